#include "WyWidgets/internal/toast/ToastIconButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace WyWidgets {

void ToastIconButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.icon = QIcon();
    painter.drawControl(QStyle::CE_PushButton, option);
    QRect place(QPoint(), iconSize());
    place.moveCenter(rect().center());
    icon().paint(&painter, place);
}

} // namespace WyWidgets
