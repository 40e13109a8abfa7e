#include "WyWidgets/wycontrol/WyWaitingBar.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/painting/FrameCache.h"
#include "WyWidgets/internal/widgets/BusyIndicator.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"

#include <QLinearGradient>
#include <QPainter>
#include <QTimer>

namespace WyWidgets {

namespace {

constexpr QColor kEdgeColor(43, 163, 211, 194);
constexpr QColor kHighlightColor(80, 199, 98, 194);
constexpr double kCornerRadiusPx = 6.0;
constexpr int kStepIntervalMs = 50;
// Single precision on purpose: the twentieth step lands just above 1, so that a sweep has exactly twenty.
constexpr double kStep = 0.05f;
constexpr QSize kPreferredSizePx(200, 12);
constexpr QSize kSmallestSizePx(24, 12);

} // namespace

WyWaitingBar::WyWaitingBar(QWidget* parent) : QWidget(parent), m_frames(std::make_unique<FrameStore>())
{
    offerAccessibility();
    setAttribute(Qt::WA_TranslucentBackground);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    OwnTexts::of(this)->setName([] { return tr("Busy"); });
}

WyWaitingBar::~WyWaitingBar()
{
    stop();
}

void WyWaitingBar::setColor(const QColor&, const QColor&) {}

void WyWaitingBar::setRoundness(double) {}

QSize WyWaitingBar::sizeHint() const
{
    return kPreferredSizePx;
}

QSize WyWaitingBar::minimumSizeHint() const
{
    return kSmallestSizePx;
}

void WyWaitingBar::start()
{
    if (!m_timer) {
        m_timer = new QTimer(this);
        connect(m_timer, SIGNAL(timeout()), this, SLOT(SlotTimeout()));
        m_timer->setInterval(kStepIntervalMs);
    }
    const QPointer<WyWaitingBar> alive(this); // a handler of the host may delete the bar
    show();
    if (alive && m_timer && !m_timer->isActive()) {
        m_timer->start();
        m_position = 0.0;
    }
}

void WyWaitingBar::stop()
{
    const QPointer<WyWaitingBar> alive(this);
    hide();
    if (!alive)
        return;
    if (m_timer && m_timer->isActive()) {
        m_timer->stop();
        m_position = 0.0;
    }
    m_frames->clear(); // a bar at rest needs no memory for its pictures
}

void WyWaitingBar::SlotTimeout()
{
    const double next = m_position + kStep;
    m_position = next >= 1.0 ? 0.0 : next;
    updateUnlessMinimized(this);
}

void WyWaitingBar::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        m_frames->draw(painter, m_position, size(), 1, [this](QPainter& p, int) { return paintPlate(p); });
    }
    QWidget::paintEvent(event);
}

QRectF WyWaitingBar::paintPlate(QPainter& painter) const
{
    const int middle = height() / 2;
    QLinearGradient gradient(0, middle, width(), middle);
    // The order matters: a highlight at 0 takes the place of the edge colour there.
    gradient.setColorAt(0.0, kEdgeColor);
    gradient.setColorAt(m_position, kHighlightColor);
    gradient.setColorAt(1.0, kEdgeColor);
    painter.setBrush(gradient);
    painter.drawRoundedRect(rect(), kCornerRadiusPx, kCornerRadiusPx);
    return painter.deviceTransform().mapRect(QRectF(rect()));
}

} // namespace WyWidgets
