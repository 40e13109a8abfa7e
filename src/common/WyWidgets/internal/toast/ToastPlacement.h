#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QScreen;
class QWidget;

namespace WyWidgets {

enum class ToastPosition;

/// The screen of toasts that are not bound to one: the parent's, or the primary screen if the parent is null
/// or on several screens or on none. Null only if there is no screen.
QScreen* screenBesideParent(const QWidget* parent);

/// The top left corner of a toast body on the screen, `stacked` pixels away from where the first toast is.
/// (0, 0) for unknown positions.
QPoint anchoredPosition(ToastPosition position, const QRect& screen, const QSize& body, const QPoint& offset,
                        qint64 stacked);

/// -1 if each further toast is above the one before it, 1 if below; 0 for unknown positions.
int stackingDirection(ToastPosition position);

} // namespace WyWidgets
