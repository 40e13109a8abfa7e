#include "WyWidgets/wycontrol/WyHandleSlider.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/accessibility/AccessibleSlider.h"
#include "WyWidgets/internal/arithmetic/Pixels.h"
#include "WyWidgets/internal/arithmetic/Saturated.h"
#include "WyWidgets/internal/painting/RoundedBar.h"
#include "WyWidgets/internal/widgets/LostRelease.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"
#include "WyWidgets/internal/widgets/Timers.h"

#include <QLabel>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace WyWidgets {

namespace {

constexpr int kHandleSizePx = 16;
constexpr int kHandleHideDelayMs = 1000;

constexpr QColor kGrooveColor(255, 255, 255, 77);
constexpr QColor kFillStartColor(43, 163, 211, 194);
constexpr QColor kFillEndColor(80, 199, 98, 194);

constexpr qreal kBarLeftPx = kHandleSizePx / 2.0;

struct BarLine
{
    qreal top;
    qreal height;
    qreal radius;
};
constexpr BarLine kThinLinePx{8.0, 2.0, 1.0}; // one pixel below the handle's middle, unlike the other
constexpr BarLine kThickLinePx{6.0, 4.0, 2.0};

QBrush grooveBrush(QSize)
{
    return kGrooveColor;
}

/// The gradient spans the widget, so that the colour at the fill's end tells the position too.
QBrush fillBrush(QSize size)
{
    const int middle = size.height() / 2;
    QLinearGradient gradient(0, middle, size.width(), middle);
    gradient.setColorAt(0.0, kFillStartColor);
    gradient.setColorAt(1.0, kFillEndColor);
    return gradient;
}

} // namespace

WyHandleSlider::WyHandleSlider(QWidget* parent)
    : QWidget(parent), m_groove(std::make_unique<RoundedBar>()), m_fill(std::make_unique<RoundedBar>())
{
    offerAccessibility();
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_TranslucentBackground);
    OwnTexts::of(this)->setNameAndToolTip([] { return tr("Position"); });
    createHandle();
    SetSliderPos(0);
}

WyHandleSlider::~WyHandleSlider() = default;

void WyHandleSlider::SetMaxValue(qint64 maximum)
{
    m_maximum = maximum;
    UpdateControlPos();
    AccessibleSlider::tellValue(this);
}

void WyHandleSlider::SetSliderPos(qint64 pos)
{
    setRatio(ratioOf(pos));
}

qint64 WyHandleSlider::GetSliderPos() const
{
    return saturated<qint64>(std::floor(double(m_maximum) * m_ratio));
}

void WyHandleSlider::UpdateControlPos()
{
    placeHandle(handleX());
}

void WyHandleSlider::MoveToPos(qint64 x)
{
    const qint64 range = travel();
    const qint64 left = std::min(std::max<qint64>(x, 0), range); // a negative travel wins over 0
    placeHandle(int(left));
    if (range == 0) {
        update();
        return;
    }
    // Single precision is part of the values that listeners see.
    const float ratio = float(double(left) / double(range));
    const double oldValue = std::floor(double(m_maximum) * m_ratio);
    const float newValue = std::floor(float(m_maximum) * ratio);
    const QPointer<WyHandleSlider> guard(this);
    if (double(newValue) != oldValue)
        emit SignalPosChanged(saturated<qint64>(newValue));
    if (!guard)
        return;
    m_ratio = ratio;
    update();
    AccessibleSlider::tellValue(this);
}

void WyHandleSlider::StartTimer(int msec)
{
    if (!m_hideTimer) {
        m_hideTimer = new QTimer(this);
        m_hideTimer->setSingleShot(true);
        connect(m_hideTimer, &QTimer::timeout, this, &WyHandleSlider::hideHandle);
    }
    startIfIdle(m_hideTimer, msec);
}

void WyHandleSlider::StopTimer()
{
    stopIfActive(m_hideTimer);
}

bool WyHandleSlider::eventFilter(QObject* watched, QEvent* event)
{
    // The type first: a handle that is being destroyed sends events, too, and is no label any more.
    if (event->type() != QEvent::MouseButtonPress || watched != m_handle)
        return QWidget::eventFilter(watched, event);
    const QPointer<QObject> handleGuard(watched);
    const QPointer<WyHandleSlider> guard(this);
    m_pressState = 1;
    emit SignalHanderPressed();
    if (!handleGuard)
        return true; // nobody is left to receive the press
    if (!guard)
        return false;
    // A press that has ended meanwhile, in a dialog of a slot's, would count as one on the groove.
    return m_pressState == 0 || QWidget::eventFilter(watched, event);
}

bool WyHandleSlider::event(QEvent* event)
{
    if (losesRelease(event))
        m_pressState = 0;
    return QWidget::event(event);
}

void WyHandleSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_pressState != 0) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_pressState = 1;
    MoveToPos(saturated<qint64>(std::round(event->localPos().x())));
}

void WyHandleSlider::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer<WyHandleSlider> guard(this);
    if (event->button() == Qt::LeftButton && m_pressState == 1)
        emit SignalHanderReleased(); // while the press still counts
    if (!guard)
        return;
    m_pressState = 0; // any other button ends the press too, silently
    QWidget::mouseReleaseEvent(event);
}

void WyHandleSlider::mouseMoveEvent(QMouseEvent* event)
{
    const QPointer<WyHandleSlider> guard(this);
    if ((event->buttons() & Qt::LeftButton) && m_pressState == 1)
        MoveToPos(saturated<qint64>(std::round(event->localPos().x())));
    if (guard)
        QWidget::mouseMoveEvent(event);
}

void WyHandleSlider::enterEvent(QEvent* event)
{
    StopTimer();
    m_hovered = true;
    update();
    QWidget::leaveEvent(event); // not enterEvent(): the one is as good as the other, as neither does anything
    if (m_handle)
        m_handle->show(); // a handler of the host may delete the slider
}

void WyHandleSlider::leaveEvent(QEvent* event)
{
    StartTimer(kHandleHideDelayMs);
    QWidget::leaveEvent(event);
}

void WyHandleSlider::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    paintGroove(&painter);
    paintFill(&painter);
    painter.end();
    QWidget::paintEvent(event);
}

void WyHandleSlider::resizeEvent(QResizeEvent* event)
{
    UpdateControlPos();
    QWidget::resizeEvent(event);
}

void WyHandleSlider::createHandle()
{
    m_handle = new QLabel(this); // before the filter, which compares with it
    m_handle->setObjectName(QStringLiteral("label_pos"));
    m_handle->installEventFilter(this);
    m_handle->setFixedSize(kHandleSizePx, kHandleSizePx);
    m_handle->setCursor(Qt::PointingHandCursor);
    m_handle->hide();
}

void WyHandleSlider::hideHandle()
{
    m_hovered = false;
    update();
    if (m_handle)
        m_handle->hide(); // a handler of the host may delete the slider
}

void WyHandleSlider::placeHandle(int x)
{
    if (m_handle)
        m_handle->move(toInt(x), 0);
}

double WyHandleSlider::ratioOf(qint64 pos) const
{
    return m_maximum != 0 ? double(pos) / double(m_maximum) : m_ratio;
}

void WyHandleSlider::setRatio(double ratio)
{
    m_ratio = ratio;
    UpdateControlPos();
    update();
    AccessibleSlider::tellValue(this);
}

/// Moves to a value of the user's choice: as with a drag, the position is stored after the signal.
void WyHandleSlider::choosePos(qint64 pos)
{
    const qint64 chosen = std::min(std::max<qint64>(pos, 0), m_maximum);
    const QPointer<WyHandleSlider> guard(this);
    if (chosen != GetSliderPos())
        emit SignalPosChanged(chosen);
    if (!guard)
        return;
    double ratio = ratioOf(chosen);
    // Values are rounded down. Where rounding has left the fraction short of its value, a tool that goes up
    // step by step from the value that it reads would not get on.
    if (std::floor(double(m_maximum) * ratio) < double(chosen))
        ratio = std::nextafter(ratio, std::numeric_limits<double>::max());
    setRatio(ratio);
}

void WyHandleSlider::paintGroove(QPainter* painter)
{
    const BarLine& line = m_hovered ? kThickLinePx : kThinLinePx;
    const QRectF rect(kBarLeftPx, line.top, travel(), line.height);
    m_groove->paint(painter, {rect, line.radius, grooveBrush, size()}, rect.width());
}

void WyHandleSlider::paintFill(QPainter* painter)
{
    const BarLine& line = m_hovered ? kThickLinePx : kThinLinePx;
    // Beyond the right edge nothing shows, however far the position lies.
    const QRectF longest(kBarLeftPx, line.top, width(), line.height);
    m_fill->paint(painter, {longest, line.radius, fillBrush, size()},
                  std::min<qreal>(handleX(), longest.width()));
}

int WyHandleSlider::travel() const
{
    return width() - kHandleSizePx;
}

int WyHandleSlider::handleX() const
{
    return saturated<int>(travel() * m_ratio);
}

} // namespace WyWidgets
