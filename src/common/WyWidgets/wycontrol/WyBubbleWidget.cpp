#include "WyWidgets/wycontrol/WyBubbleWidget.h"

#include "WyWidgets/internal/painting/ArrowShape.h"
#include "WyWidgets/internal/painting/FrameCache.h"
#include "WyWidgets/internal/painting/Shadow.h"
#include "WyWidgets/internal/widgets/SettledLayout.h"

#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QPainter>

#include <utility>

namespace WyWidgets {

namespace {

constexpr qreal kCornerRadiusPx = 8.0;
constexpr qreal kShadowBlurRadiusPx = 12.0;
constexpr QMargins kMarginsPx(16, 8, 16, 8);
constexpr QMargins kMarginsWithShadowPx(12, 20, 12, 12);

} // namespace

/// The painted bubble, as long as neither its shape nor its colour changes.
class WyBubbleWidget::Plate : public FrameCache<std::pair<ArrowShape, QColor>>
{
};

WyBubbleWidget::WyBubbleWidget(bool shadow, QWidget* parent)
    : QWidget(parent), m_plate(std::make_unique<Plate>())
{
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    if (shadow) {
        m_shadowEffect = addShadow(this, this, kShadowBlurRadiusPx);
        m_shadowEffect->setColor(m_shadowColor);
    }
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(shadow ? kMarginsWithShadowPx : kMarginsPx);
}

WyBubbleWidget::~WyBubbleWidget() = default;

void WyBubbleWidget::setStartPos(int startPos)
{
    m_startPos = startPos;
    repaint();
}

void WyBubbleWidget::setTriangleInfo(int width, int height)
{
    m_triangleWidth = width;
    m_triangleHeight = height;
}

void WyBubbleWidget::setDerection(Derection derection)
{
    m_derection = derection;
}

void WyBubbleWidget::SetContentWidget(QWidget* widget, const QPoint& pos)
{
    m_contentPos = pos;
    m_contentWidget = widget;
    if (widget && layout())
        layout()->addWidget(widget);
    else if (widget)
        widget->setParent(this); // the host has deleted the layout, which would have brought it here
    adjustSize();
}

void WyBubbleWidget::myMove(int x, int y)
{
    settleLayout(this);
    // The place is the stored one on purpose, wherever the layout has put the content; the size is the real
    // one.
    const QSize size = m_contentWidget ? m_contentWidget->size() : QSize(0, 0);
    shape(QRectF(m_contentPos, size)).moveTipTo(QPoint(x, y), this);
}

QColor WyBubbleWidget::bubbleColor() const
{
    return m_bubbleColor;
}

void WyBubbleWidget::setBubbleColor(QColor color)
{
    m_bubbleColor = color;
    update();
}

QColor WyBubbleWidget::shadowColor() const
{
    return m_shadowColor;
}

void WyBubbleWidget::setShadowColor(QColor color)
{
    m_shadowColor = color;
    if (m_shadowEffect)
        m_shadowEffect->setColor(color);
}

void WyBubbleWidget::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
}

void WyBubbleWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const ArrowShape bubble = shape(m_contentWidget ? QRectF(m_contentWidget->geometry()) : QRectF());
    m_plate->draw(painter, {bubble, m_bubbleColor}, 0, size(), 1, [this, &bubble](QPainter& p, int) {
        const QPainterPath outline = bubble.outline(kCornerRadiusPx);
        p.setBrush(m_bubbleColor);
        p.drawPath(outline);
        return p.deviceTransform().mapRect(outline.boundingRect());
    });
}

ArrowShape WyBubbleWidget::shape(const QRectF& box) const
{
    return {box, m_startPos, m_triangleWidth, m_triangleHeight, ArrowSide(m_derection)};
}

} // namespace WyWidgets
