#include "WyWidgets/wycontrol/WyHoverButton.h"

#include <QPointer>

namespace WyWidgets {

WyHoverButton::WyHoverButton(QWidget* parent) : QPushButton(parent) {}

void WyHoverButton::enterEvent(QEvent* event)
{
    const QPointer<WyHoverButton> guard(this);
    emit SignalEnterEvent();
    if (guard)
        QPushButton::enterEvent(event);
}

void WyHoverButton::leaveEvent(QEvent* event)
{
    const QPointer<WyHoverButton> guard(this);
    emit SignalLeaveEvent();
    if (guard)
        QPushButton::leaveEvent(event);
}

} // namespace WyWidgets
