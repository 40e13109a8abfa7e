#include "WyWidgets/wycontrol/WyHoverButton.h"

namespace WyWidgets {

WyHoverButton::WyHoverButton(QWidget* parent) : QPushButton(parent) {}

void WyHoverButton::enterEvent(QEvent* event)
{
    QPushButton::enterEvent(event);
    emit SignalEnterEvent();
}

void WyHoverButton::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    emit SignalLeaveEvent();
}

} // namespace WyWidgets
