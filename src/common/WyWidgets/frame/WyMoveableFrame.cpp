#include "WyWidgets/frame/WyMoveableFrame.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/widgets/LostRelease.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace WyWidgets {

namespace {

constexpr qreal kLineWidthPx = 2.0;

/// A larger frame than the room for it starts at 0.
int clampedTo(int room, int position, int size)
{
    return qMax(0, qMin(position, room - size));
}

} // namespace

WyMoveableFrame::WyMoveableFrame(FrameDirection direction, QWidget* parent, Qt::WindowFlags flags)
    : QFrame(parent, flags), m_direction(direction)
{
    offerAccessibility();
    setMouseTracking(true);
    setCursor(direction == kDirection_H ? Qt::SplitVCursor : Qt::SplitHCursor);
    OwnTexts::of(this)->setName([] { return tr("Divider"); });
}

bool WyMoveableFrame::event(QEvent* event)
{
    if (losesRelease(event))
        m_pressed = false;
    return QFrame::event(event);
}

void WyMoveableFrame::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        painter.setPen(
            QPen(m_colors.at(m_colorSelector), kLineWidthPx, Qt::DashLine, Qt::SquareCap, Qt::BevelJoin));
        painter.drawLine(line());
    }
    QFrame::paintEvent(event);
}

void WyMoveableFrame::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->button() == Qt::LeftButton;
    if (m_pressed) {
        m_pressPoint = event->pos();
        const QPointer<WyMoveableFrame> guard(this);
        emit SignalFrameClickeded();
        if (!guard)
            return;
    }
    QFrame::mousePressEvent(event);
}

void WyMoveableFrame::mouseMoveEvent(QMouseEvent* event)
{
    if (m_pressed) {
        const QPoint position = geometry().topLeft() - m_pressPoint + event->pos();
        setGeometry(QRect(clamped(position), size()));
    }
    QFrame::mouseMoveEvent(event);
}

void WyMoveableFrame::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_pressed = false;
    QFrame::mouseReleaseEvent(event);
}

QLine WyMoveableFrame::line() const
{
    const int right = width() - 1;
    const int bottom = height() - 1;
    if (m_direction == kDirection_H)
        return QLine(0, bottom / 2 + 1, right, bottom / 2 + 1);
    return QLine(right / 2 + 1, 0, right / 2 + 1, bottom);
}

QPoint WyMoveableFrame::clamped(QPoint position) const
{
    if (isWindow())
        return position;
    const QSize room = parentWidget()->size();
    return QPoint(clampedTo(room.width(), position.x(), width()),
                  clampedTo(room.height(), position.y(), height()));
}

} // namespace WyWidgets
