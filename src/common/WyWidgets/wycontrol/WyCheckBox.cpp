#include "WyWidgets/wycontrol/WyCheckBox.h"

#include "WyWidgets/internal/text/WordWrap.h"

#include <QFontMetrics>
#include <QResizeEvent>
#include <QStyle>

namespace WyWidgets {

WyCheckBox::WyCheckBox(const QString& text, QWidget* parent) : QCheckBox(text, parent)
{
    setSizePolicy(QSizePolicy::Preferred, sizePolicy().verticalPolicy());
    updateGeometry();
}

void WyCheckBox::wrapLines(int width)
{
    setText(wrapWords(text(), font(), width));
}

QSize WyCheckBox::minimumSizeHint() const
{
    return QSize(QCheckBox().minimumSizeHint().width(), sizeHint().height());
}

void WyCheckBox::resizeEvent(QResizeEvent* event)
{
    const QRect textRect =
        style()->itemTextRect(QFontMetrics(font()), QRect(), Qt::TextShowMnemonic, false, text());
    const int besideText = sizeHint().width() - textRect.width(); // indicator, spacing and margins
    wrapLines(event->size().width() - besideText);
    QWidget::resizeEvent(event);
}

} // namespace WyWidgets
