#pragma once

#include <QWidget>

namespace WyWidgets {

/// Requests the next frame of an animation, but not from a minimised window: nobody would see it, and some
/// window systems would have it painted all the same. A hidden widget ignores the request by itself.
inline void updateUnlessMinimized(QWidget* widget)
{
    if (!widget->window()->isMinimized())
        widget->update();
}

} // namespace WyWidgets
