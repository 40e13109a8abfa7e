#pragma once

#include <QEvent>

namespace WyWidgets {

/// Whether a widget that gets this event will not see the release of a button that is held down on it: a
/// dialog blocks its window, or the widget is hidden or disabled.
///
/// The buttons of the next move would tell as well, but moves that are made up for tests often leave them
/// out.
inline bool losesRelease(const QEvent* event)
{
    return event->type() == QEvent::WindowBlocked || event->type() == QEvent::Hide ||
           event->type() == QEvent::EnabledChange;
}

} // namespace WyWidgets
