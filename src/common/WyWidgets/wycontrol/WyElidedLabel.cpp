#include "WyWidgets/wycontrol/WyElidedLabel.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace WyWidgets {

WyElidedLabel::WyElidedLabel(QWidget* parent, Qt::WindowFlags flags) : QLabel(parent, flags)
{
    letLayoutsSqueeze();
}

WyElidedLabel::WyElidedLabel(const QString& text, QWidget* parent, Qt::WindowFlags flags)
    : QLabel(text, parent, flags)
{
    letLayoutsSqueeze();
}

void WyElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QRect rect = textRect();
    elide(rect.width());
    QStyleOption option;
    option.initFrom(this);
    style()->drawItemText(&painter, rect, int(alignment()), option.palette, isEnabled(), m_elidedText,
                          foregroundRole());
}

void WyElidedLabel::letLayoutsSqueeze()
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setMinimumWidth(1);
}

QRect WyElidedLabel::textRect() const
{
    const int inset = margin();
    return contentsRect().adjusted(inset, inset, -inset, -inset);
}

void WyElidedLabel::elide(int width)
{
    // Text and width are the whole key: repainting in another font or state costs no measuring.
    const QString source = text();
    if (source == m_sourceText && width == m_elidedWidth)
        return;
    m_elidedText = QFontMetrics(font()).elidedText(source, Qt::ElideRight, width, 0);
    m_elided = m_elidedText != source;
    m_sourceText = source;
    m_elidedWidth = width;
}

} // namespace WyWidgets
