#pragma once

#include <QMouseEvent>

namespace WyWidgets {

/// Whether this move tells that the left button is up: a dialog that was opened during a drag may have
/// swallowed the release. Only moves of the window system count, as made-up ones may leave the buttons out.
inline bool tellsOfLostRelease(const QMouseEvent* move)
{
    return move->spontaneous() && !move->buttons().testFlag(Qt::LeftButton);
}

} // namespace WyWidgets
