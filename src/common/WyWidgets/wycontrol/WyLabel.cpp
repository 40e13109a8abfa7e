#include "WyWidgets/wycontrol/WyLabel.h"

#include <QPointer>

namespace WyWidgets {

WyLabel::WyLabel(QWidget* parent) : QLabel(parent) {}

void WyLabel::slotClicked() {}

void WyLabel::mousePressEvent(QMouseEvent* event)
{
    const QPointer<WyLabel> guard(this);
    emit clicked();
    if (guard)
        QLabel::mousePressEvent(event);
}

} // namespace WyWidgets
