#include "WyWidgets/frame/WyShadowWidget.h"

#include "WyWidgets/internal/painting/Shadow.h"

#include <QGraphicsDropShadowEffect>

namespace WyWidgets {

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
    if (!m_effect)
        m_effect = addShadow(this, this);
    m_effect->setColor(color);
}

} // namespace WyWidgets
