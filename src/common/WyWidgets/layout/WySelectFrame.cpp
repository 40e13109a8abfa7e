#include "WyWidgets/layout/WySelectFrame.h"

#include "WyWidgets/frame/WyWidgetUtils.h"
#include "WyWidgets/internal/arithmetic/Saturated.h"
#include "WyWidgets/internal/widgets/LostRelease.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"

#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace WyWidgets {

namespace {

constexpr int kCornerZonePx = 12;
constexpr int kEdgeZonePx = 6;
constexpr int kMinimumRatioSidePx = 120;
constexpr int kCloseButtonSizePx = 16;
constexpr int kMoveHandleSizePx = 48;
constexpr int kBandWidthPx = 10;
// The band round the outline is practically invisible, but on a translucent window it catches the mouse.
constexpr QColor kBandColor(0, 0, 0, 1);
constexpr QColor kDimColor(0, 0, 0, 100);

/// Which edges a direction drags: -1 top or left, 1 bottom or right, 0 neither.
struct Edges
{
    int vertical;
    int horizontal;
};

constexpr Edges kEdgesOfDirection[] = {{0, 0},   {-1, 0}, {1, 0}, {0, -1}, {0, 1},
                                       {-1, -1}, {1, -1}, {1, 1}, {-1, 1}};

constexpr Qt::CursorShape kCursorOfDirection[] = {
    Qt::SizeAllCursor,   Qt::SizeVerCursor,   Qt::SizeVerCursor,   Qt::SizeHorCursor,  Qt::SizeHorCursor,
    Qt::SizeFDiagCursor, Qt::SizeBDiagCursor, Qt::SizeFDiagCursor, Qt::SizeBDiagCursor};

int directionOf(Edges edges)
{
    constexpr int kDirections[3][3] = {
        {WySelectFrame::kDirect_TopLeft, WySelectFrame::kDirect_Top, WySelectFrame::kDirect_TopRight},
        {WySelectFrame::kDirect_Left, WySelectFrame::kDirect_None, WySelectFrame::kDirect_Right},
        {WySelectFrame::kDirect_BottomLeft, WySelectFrame::kDirect_Bottom,
         WySelectFrame::kDirect_BottomRight}};
    return kDirections[edges.vertical + 1][edges.horizontal + 1];
}

bool isWithin(int value, int first, int last)
{
    return first <= value && value <= last;
}

/// Draws the outline with the band's pen. Of that band all lies in the frame that is no deeper than half its
/// width, so filling the difference of two rectangles gives the same pixels at a fraction of the cost. Only
/// where a bevelled corner of the pen would show, on tiny frames and within a fraction of a pixel, the pen
/// itself has to draw.
void paintBand(QPainter& painter, const QRect& frame, const QRect& outline)
{
    constexpr int kHalf = kBandWidthPx / 2;
    const bool isTiny = outline.width() < kBandWidthPx || outline.height() < kBandWidthPx;
    const int distance = frame.right() - outline.right();
    const bool showsBevel = distance + distance > kHalf && painter.deviceTransform().m11() > 1.0;
    if (isTiny || showsBevel) {
        painter.setPen(QPen(kBandColor, kBandWidthPx, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.drawRect(outline);
        return;
    }
    const QRegion band = QRegion(frame) - outline.adjusted(kHalf, kHalf, -kHalf, -kHalf);
    for (const QRect& part : band)
        painter.fillRect(part, kBandColor);
}

/// A rectangle in 64 bits, so that no generated position or size overflows on the way.
struct WideRect
{
    explicit WideRect(const QRect& r)
        : x(r.x()),
          y(r.y()),
          width(qint64(r.right()) - r.left() + 1),
          height(qint64(r.bottom()) - r.top() + 1)
    {
    }

    QRect toRect() const
    {
        return QRect(QPoint(saturated<int>(x), saturated<int>(y)),
                     QPoint(saturated<int>(x + width - 1), saturated<int>(y + height - 1)));
    }

    qint64 x;
    qint64 y;
    qint64 width;
    qint64 height;
};

/// Whether a drag that keeps the ratio may not go here: a side gets too short, or the frame crosses one of
/// the borders that a drag in this direction minds.
bool isRatioDragRefused(int direction, const WideRect& old, const WideRect& r, QSize area)
{
    if (r.width < kMinimumRatioSidePx || r.height < kMinimumRatioSidePx)
        return true;
    const bool leavesLeft = r.x < 0;
    const bool leavesTop = r.y < 0;
    const bool leavesRight = r.x + r.width > area.width();
    const bool leavesBottom = r.y + r.height > area.height();
    switch (direction) {
    case WySelectFrame::kDirect_Top:
        return leavesTop || leavesRight;
    case WySelectFrame::kDirect_Left:
        return leavesLeft || leavesTop || leavesBottom;
    case WySelectFrame::kDirect_TopLeft:
        return leavesLeft || leavesTop;
    case WySelectFrame::kDirect_BottomLeft:
        // The right edge does not move, yet one beyond the parent refuses the drag.
        return leavesLeft || leavesBottom || old.x + old.width > area.width();
    case WySelectFrame::kDirect_TopRight:
        return leavesLeft || leavesTop || leavesRight;
    default:
        return leavesBottom || leavesRight;
    }
}

} // namespace

WySelectFrame::WySelectFrame(FrameType type, QWidget* parent, Qt::WindowFlags flags)
    : QFrame(parent, flags), m_type(type)
{
    setMouseTracking(true);
    OwnTexts::of(this)->setName([] { return tr("Selection"); });
    InitView();
}

void WySelectFrame::InitView()
{
    if (layout())
        return;
    auto* grid = new QGridLayout(this);
    grid->setSpacing(0);
    grid->setContentsMargins(0, 0, 0, 0);
    if (m_type == kType_Corners)
        addCornerHandles(grid);
    else if (m_type == kType_Points || m_type == kType_Close)
        addPointHandles(grid);
    // Hovering and pressing exactly on a handle counts as its zone of the frame.
    const auto handles = findChildren<QLabel*>(QStringLiteral("label_point"));
    for (QLabel* handle : handles) {
        handle->setAttribute(Qt::WA_TransparentForMouseEvents);
        OwnTexts::of(handle)->setName([] { return tr("Resize the selection"); });
    }
}

QColor WySelectFrame::FrameColor() const
{
    return m_frameColor;
}

void WySelectFrame::SetFrameColor(const QColor& color)
{
    m_frameColor = color;
    update();
}

QString WySelectFrame::Text() const
{
    return m_text;
}

void WySelectFrame::SetText(const QString& text)
{
    m_text = text;
    update();
}

bool WySelectFrame::IsFrameEnabled() const
{
    return m_enabled;
}

void WySelectFrame::SetFrameEnabled(bool enabled)
{
    m_enabled = enabled;
    if (!enabled)
        endDrag();
    update();
}

void WySelectFrame::SetFrameScale(const QSize& ratio, bool keep)
{
    m_scaleSize = ratio;
    m_keepScale = keep;
}

void WySelectFrame::SetMoveHandleVisible(bool visible)
{
    if (!m_moveHandle)
        return;
    if (!visible)
        takeOverDrag();
    m_moveHandle->setVisible(visible);
}

int WySelectFrame::GetCursorDirect(const QPoint& globalPos)
{
    const QPoint topLeft = mapToGlobal(QPoint(0, 0));
    const QPoint bottomRight = mapToGlobal(QPoint(width() - 1, height() - 1));
    const auto isNearLeft = [&](int zone) {
        return isWithin(globalPos.x(), topLeft.x(), topLeft.x() + zone);
    };
    const auto isNearRight = [&](int zone) {
        return isWithin(globalPos.x(), bottomRight.x() - zone, bottomRight.x());
    };
    const auto isNearTop = [&](int zone) {
        return isWithin(globalPos.y(), topLeft.y(), topLeft.y() + zone);
    };
    const auto isNearBottom = [&](int zone) {
        return isWithin(globalPos.y(), bottomRight.y() - zone, bottomRight.y());
    };

    // On a frame smaller than two corner zones they overlap, and the first one here wins.
    int direction = kDirect_None;
    if (isNearLeft(kCornerZonePx) && isNearTop(kCornerZonePx))
        direction = kDirect_TopLeft;
    else if (isNearRight(kCornerZonePx) && isNearBottom(kCornerZonePx))
        direction = kDirect_BottomRight;
    else if (isNearLeft(kCornerZonePx) && isNearBottom(kCornerZonePx))
        direction = kDirect_BottomLeft;
    else if (isNearRight(kCornerZonePx) && isNearTop(kCornerZonePx))
        direction = kDirect_TopRight;
    // An edge zone reaches beyond the frame: it ignores the other coordinate.
    else if (isNearLeft(kEdgeZonePx))
        direction = kDirect_Left;
    else if (isNearRight(kEdgeZonePx))
        direction = kDirect_Right;
    else if (isNearTop(kEdgeZonePx))
        direction = kDirect_Top;
    else if (isNearBottom(kEdgeZonePx))
        direction = kDirect_Bottom;
    setCursor(kCursorOfDirection[direction]);
    return direction;
}

QRect WySelectFrame::GetRectVaild(QRect rect) const
{
    const QWidget* area = parentWidget();
    if (!area)
        return rect;
    // The right and bottom edges come from the position before the clamp: what was pushed out is cut off.
    const WideRect r(rect);
    const qint64 right = r.x + qMin<qint64>(r.width, area->width() - r.x) - 1;
    const qint64 bottom = r.y + qMin<qint64>(r.height, area->height() - r.y) - 1;
    return QRect(QPoint(qMax(rect.x(), 0), qMax(rect.y(), 0)),
                 QPoint(saturated<int>(right), saturated<int>(bottom)));
}

bool WySelectFrame::event(QEvent* event)
{
    if (losesRelease(event))
        endDrag();
    else if (event->type() == QEvent::ChildRemoved)
        takeOverDrag();
    return QFrame::event(event);
}

void WySelectFrame::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        const QRect outline = outlineRect();
        paintBand(painter, rect(), outline);
        if (m_type == kType_Close) {
            painter.fillRect(outline, kDimColor);
            painter.setPen(QPen(m_frameColor, 1, Qt::DashLine));
        } else {
            painter.setPen(QPen(m_frameColor, m_type == kType_Corners ? 2 : 1));
        }
        painter.drawRect(outline);
        if (!m_text.isEmpty()) {
            painter.setPen(Qt::white);
            painter.drawText(outline, Qt::AlignCenter, m_text);
        }
    }
    QFrame::paintEvent(event);
}

void WySelectFrame::mousePressEvent(QMouseEvent* event)
{
    const QPointer<WySelectFrame> guard(this);
    if (m_enabled && event->button() == Qt::LeftButton) {
        m_pressed = true;
        m_verticalCarry = 0;
        m_horizontalCarry = 0;
        m_pressPoint = event->pos();
        pointAt(event->globalPos());
    }
    if (guard)
        QFrame::mousePressEvent(event);
}

void WySelectFrame::mouseMoveEvent(QMouseEvent* event)
{
    const QPointer<WySelectFrame> guard(this);
    if (m_enabled && !m_pressed)
        pointAt(event->globalPos());
    else if (m_enabled)
        dragTo(event->localPos());
    if (guard)
        QFrame::mouseMoveEvent(event);
}

void WySelectFrame::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_enabled && event->button() == Qt::LeftButton)
        endDrag();
    QFrame::mouseReleaseEvent(event);
}

void WySelectFrame::addPointHandles(QGridLayout* grid)
{
    grid->addWidget(CreatePoint(this), 0, 0, Qt::AlignLeft | Qt::AlignTop);
    grid->addWidget(CreatePoint(this), 0, 1, Qt::AlignHCenter | Qt::AlignTop);
    grid->addWidget(CreatePoint(this), 0, 2, Qt::AlignRight | Qt::AlignTop);
    if (m_type == kType_Close)
        grid->addWidget(createCloseButton(), 0, 2, Qt::AlignRight | Qt::AlignTop);
    grid->addWidget(CreatePoint(this), 1, 0, Qt::AlignLeft | Qt::AlignVCenter);
    grid->addWidget(CreatePoint(this), 1, 2, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(CreatePoint(this), 2, 0, Qt::AlignLeft | Qt::AlignBottom);
    grid->addWidget(CreatePoint(this), 2, 1, Qt::AlignHCenter | Qt::AlignBottom);
    grid->addWidget(CreatePoint(this), 2, 2, Qt::AlignRight | Qt::AlignBottom);
}

void WySelectFrame::addCornerHandles(QGridLayout* grid)
{
    grid->addWidget(CreateHPoint(this), 0, 0, Qt::AlignLeft | Qt::AlignTop);
    grid->addWidget(CreateHPoint(this), 0, 2, Qt::AlignRight | Qt::AlignTop);
    grid->addWidget(CreateVPoint(this), 1, 0, Qt::AlignLeft | Qt::AlignTop);
    grid->addWidget(CreateVPoint(this), 1, 2, Qt::AlignRight | Qt::AlignTop);
    m_moveHandle = new QLabel(this);
    m_moveHandle->setObjectName(QStringLiteral("label_move"));
    m_moveHandle->setFixedSize(kMoveHandleSizePx, kMoveHandleSizePx);
    m_moveHandle->setCursor(Qt::SizeAllCursor);
    OwnTexts::of(m_moveHandle)->setNameAndToolTip([] { return tr("Move the selection"); });
    grid->addWidget(m_moveHandle, 2, 1, Qt::AlignCenter);
    grid->setRowStretch(2, 1);
    grid->addWidget(CreateVPoint(this), 3, 0, Qt::AlignLeft | Qt::AlignBottom);
    grid->addWidget(CreateVPoint(this), 3, 2, Qt::AlignRight | Qt::AlignBottom);
    grid->addWidget(CreateHPoint(this), 4, 0, Qt::AlignLeft | Qt::AlignBottom);
    grid->addWidget(CreateHPoint(this), 4, 2, Qt::AlignRight | Qt::AlignBottom);
}

QPushButton* WySelectFrame::createCloseButton()
{
    auto* button = new QPushButton(this);
    button->setObjectName(QStringLiteral("button_close"));
    button->setFixedSize(kCloseButtonSizePx, kCloseButtonSizePx);
    button->setCursor(Qt::PointingHandCursor);
    OwnTexts::of(button)->setNameAndToolTip([] { return tr("Close the selection"); });
    connect(button, &QPushButton::clicked, this, &WySelectFrame::SignalClickedClose);
    return button;
}

void WySelectFrame::pointAt(QPoint globalPos)
{
    const QPointer<WySelectFrame> guard(this); // a handler of the host may delete the frame
    const int direction = GetCursorDirect(globalPos);
    if (guard)
        m_direction = direction;
}

/// A drag may have begun on the move handle. Should that go in the middle of it, Qt would drop the rest, the
/// release included.
void WySelectFrame::takeOverDrag()
{
    if (m_pressed)
        grabMouse();
}

void WySelectFrame::endDrag()
{
    m_pressed = false;
    m_verticalCarry = 0;
    m_horizontalCarry = 0;
    if (mouseGrabber() == this)
        releaseMouse();
}

bool WySelectFrame::keepsRatio() const
{
    return m_keepScale && m_scaleSize.width() > 0 && m_scaleSize.height() > 0;
}

void WySelectFrame::dragTo(const QPointF& localPos)
{
    if (!parentWidget())
        return;
    const QPoint local = localPos.toPoint();
    const int dragged = m_direction;
    const QPoint carried(m_horizontalCarry, m_verticalCarry);
    QRect rect;
    if (dragged == kDirect_None) {
        rect = movedRect(local);
    } else {
        const std::optional<QRect> resized =
            keepsRatio() ? ratioResizedRect(local) : std::optional<QRect>(freelyResizedRect(local));
        if (!resized)
            return;
        rect = turnedOverIfNegative(GetRectVaild(*resized));
    }

    const QPoint oldOrigin = pos();
    const QPointer<WySelectFrame> guard(this);
    setGeometry(rect);
    if (guard && m_direction != dragged)
        setCursor(kCursorOfDirection[m_direction]);
    if (!guard)
        return;
    // Local positions count from the frame's new origin from here on.
    updatePressPoint(dragged, localPos - (pos() - oldOrigin), carried);
    emit SignalWindowMoved(rect, m_direction == kDirect_None);
}

QRect WySelectFrame::movedRect(QPoint local) const
{
    const auto moved = [](int origin, qreal press, int pointer, int size, int areaSize) {
        const int shifted = saturated<int>(origin - press + pointer);
        if (shifted < 0)
            return 0;
        // A frame wider than its parent ends left of the parent's origin.
        return qint64(shifted) + size > areaSize ? areaSize - size : shifted;
    };
    const QSize area = parentWidget()->size();
    return QRect(moved(x(), m_pressPoint.x(), local.x(), width(), area.width()),
                 moved(y(), m_pressPoint.y(), local.y(), height(), area.height()), width(), height());
}

QRect WySelectFrame::freelyResizedRect(QPoint local) const
{
    // One axis of the frame: a leading (top, left) edge takes the origin along, a trailing one keeps it, but
    // for the overshoot carried over from a drag across the opposite edge.
    const auto resize = [](qint64* origin, qint64* size, int edge, qreal press, int pointer, int carry) {
        if (edge < 0) {
            const int growth = saturated<int>(press - pointer - carry);
            *origin -= growth;
            *size += growth;
        } else if (edge > 0) {
            *size -= saturated<int>(carry + press - pointer);
            *origin += carry;
        }
    };
    const Edges edges = kEdgesOfDirection[m_direction];
    WideRect r(geometry());
    resize(&r.y, &r.height, edges.vertical, m_pressPoint.y(), local.y(), m_verticalCarry);
    resize(&r.x, &r.width, edges.horizontal, m_pressPoint.x(), local.x(), m_horizontalCarry);
    return r.toRect();
}

/// Empty when the move is refused.
std::optional<QRect> WySelectFrame::ratioResizedRect(QPoint local) const
{
    const Edges edges = kEdgesOfDirection[m_direction];
    const WideRect old(geometry());
    WideRect r = old;
    const bool isDrivenByHeight =
        edges.vertical != 0 && m_direction != kDirect_TopLeft && m_direction != kDirect_BottomLeft;
    if (isDrivenByHeight) {
        r.height += edges.vertical * qint64(saturated<int>(local.y() - m_pressPoint.y()));
        r.width = m_scaleSize.width() * r.height / m_scaleSize.height();
    } else {
        r.width += edges.horizontal * qint64(saturated<int>(local.x() - m_pressPoint.x()));
        r.height = m_scaleSize.height() * r.width / m_scaleSize.width();
    }
    if (edges.vertical < 0)
        r.y += old.height - r.height;
    if (edges.horizontal < 0)
        r.x += old.width - r.width;

    if (isRatioDragRefused(m_direction, old, r, parentWidget()->size()))
        return std::nullopt;
    return r.toRect();
}

/// An edge that was dragged across the opposite one leaves a side of zero there, and the drag goes on as one
/// of the opposite edge: the overshoot is carried over to the next step. A corner that turns over both ways
/// at once goes on as its horizontal mirror.
QRect WySelectFrame::turnedOverIfNegative(QRect rect)
{
    m_verticalCarry = 0;
    m_horizontalCarry = 0;
    const Edges edges = kEdgesOfDirection[m_direction];
    const WideRect wide(rect);
    if (edges.vertical != 0 && wide.height < 0) {
        m_verticalCarry = saturated<int>(wide.height);
        rect.setBottom(rect.top() - 1);
        m_direction = directionOf({-edges.vertical, edges.horizontal});
    }
    if (edges.horizontal != 0 && wide.width < 0) {
        m_horizontalCarry = saturated<int>(wide.width);
        rect.setRight(rect.left() - 1);
        m_direction = directionOf({edges.vertical, -edges.horizontal});
    }
    return rect;
}

/// Keeps the distance between the pointer and the dragged edge. A leading edge takes the press point along
/// with the frame's origin; a trailing edge follows the pointer. A carry that this step has used up is no
/// longer part of the distance.
void WySelectFrame::updatePressPoint(int direction, const QPointF& pos, QPoint carried)
{
    const Edges edges = kEdgesOfDirection[direction];
    const bool isMixedCorner = edges.vertical * edges.horizontal < 0;
    if (isMixedCorner && keepsRatio())
        return;
    if (!keepsRatio()) {
        if (edges.vertical < 0)
            m_pressPoint.ry() -= carried.y();
        if (edges.horizontal < 0)
            m_pressPoint.rx() -= carried.x();
    }
    if (edges.vertical > 0 || (edges.horizontal > 0 && !isMixedCorner))
        m_pressPoint.setY(pos.y());
    if (edges.horizontal > 0 || (edges.vertical > 0 && !isMixedCorner))
        m_pressPoint.setX(pos.x());
}

/// The outline keeps clear of the handles; how far depends on the type.
QRect WySelectFrame::outlineRect() const
{
    const int margin = m_type == kType_Points ? 2 : (m_type == kType_Corners ? 1 : 0);
    const int extra = m_type == kType_Points ? 2 : 0;
    return QRect(QPoint(margin, margin), QPoint(width() - 2 - extra, height() - 2 - extra));
}

} // namespace WyWidgets
