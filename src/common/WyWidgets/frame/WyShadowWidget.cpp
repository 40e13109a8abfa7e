#include "WyWidgets/frame/WyShadowWidget.h"

#include <QGraphicsDropShadowEffect>

namespace WyWidgets {

namespace {

constexpr qreal kShadowBlurRadiusPx = 24.0;

} // namespace

WyShadowWidget::WyShadowWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
}

QColor WyShadowWidget::shadowColor() const
{
    return m_shadowColor;
}

void WyShadowWidget::setShadowColor(QColor color)
{
    m_shadowColor = color;
    if (!m_effect) {
        m_effect = new QGraphicsDropShadowEffect(this);
        m_effect->setOffset(0, 0);
        m_effect->setBlurRadius(kShadowBlurRadiusPx);
        setGraphicsEffect(m_effect);
    }
    m_effect->setColor(color);
}

} // namespace WyWidgets
