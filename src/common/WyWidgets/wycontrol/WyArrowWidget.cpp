#include "WyWidgets/wycontrol/WyArrowWidget.h"

#include "WyWidgets/internal/painting/ArrowShape.h"
#include "WyWidgets/internal/painting/Shadow.h"
#include "WyWidgets/internal/widgets/SettledLayout.h"

#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVariant>

namespace WyWidgets {

namespace {

constexpr qreal kCornerRadiusPx = 5.0;
constexpr qreal kShadowBlurRadiusPx = 15.0;
constexpr int kTextWidthPx = 150;
constexpr QMargins kMarginsPx(15, 25, 15, 15); // room for the arrow and the shadow

} // namespace

WyArrowWidget::WyArrowWidget(QWidget* parent) : QWidget(parent)
{
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    m_shadowEffect = addShadow(this, this, kShadowBlurRadiusPx);
    m_shadowEffect->setColor(Qt::gray);
    addText();
}

void WyArrowWidget::setStartPos(int startPos)
{
    m_startPos = startPos;
    repaint();
}

void WyArrowWidget::setTriangleInfo(int width, int height)
{
    m_triangleWidth = width;
    m_triangleHeight = height;
}

void WyArrowWidget::setDerection(Derection derection)
{
    m_derection = derection;
}

void WyArrowWidget::setText(QString text)
{
    if (m_textLabel)
        m_textLabel->setText(text);
    adjustSize();
}

QString WyArrowWidget::text()
{
    return m_textLabel ? m_textLabel->text() : QString();
}

void WyArrowWidget::myMove(int x, int y)
{
    settleLayout(this);
    shape().moveTipTo(QPoint(x, y), this);
}

void WyArrowWidget::mousePressEvent(QMouseEvent*)
{
    close();
}

void WyArrowWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawPath(shape().outline(kCornerRadiusPx));
}

void WyArrowWidget::addText()
{
    auto* layout = new QHBoxLayout(this);
    m_textLabel = new QLabel;
    m_textLabel->setProperty("class", "font14px");
    m_textLabel->setWordWrap(true);
    m_textLabel->setAlignment(Qt::AlignTop);
    m_textLabel->setFixedWidth(kTextWidthPx);
    m_textLabel->setStyleSheet(QStringLiteral("padding: 16px 16px 16px 16px;"));
    layout->addWidget(m_textLabel);
    layout->setContentsMargins(kMarginsPx);
}

ArrowShape WyArrowWidget::shape() const
{
    // The label as it lies now is the box; a label that the host has deleted leaves an empty one.
    const QRectF box = m_textLabel ? QRectF(m_textLabel->geometry()) : QRectF();
    return {box, m_startPos, m_triangleWidth, m_triangleHeight, ArrowSide(m_derection)};
}

} // namespace WyWidgets
