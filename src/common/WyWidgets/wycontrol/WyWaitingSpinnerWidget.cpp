#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/painting/FrameCache.h"
#include "WyWidgets/internal/widgets/BusyIndicator.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"

#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace WyWidgets {

namespace {

constexpr double kMillisecondsPerSecond = 1000.0;
// More bars than a ring can show apart; a careless number must not stop the host for seconds.
constexpr int kMostPaintedLines = 10000;
// QWIDGETSIZE_MAX itself would mean "no fixed size".
constexpr int kLargestSidePx = QWIDGETSIZE_MAX - 1;

// Unlike qBound() and std::clamp() it has a result for NaN too: the upper bound.
double bounded(double lowest, double value, double highest)
{
    return std::max(lowest, std::min(highest, value));
}

// What the frames of a ring depend on.
using Look = std::tuple<QColor, double, double, double, int, int, int, int>;

} // namespace

class WyWaitingSpinnerWidget::Frames : public FrameCache<Look>
{
};

WyWaitingSpinnerWidget::WyWaitingSpinnerWidget(QWidget* parent, bool centerOnParent,
                                               bool disableParentWhenSpinning)
    : QWidget(parent),
      m_centerOnParent(centerOnParent),
      m_disableParentWhenSpinning(disableParentWhenSpinning)
{
    initialize();
}

WyWaitingSpinnerWidget::WyWaitingSpinnerWidget(Qt::WindowModality modality, QWidget* parent,
                                               bool centerOnParent, bool disableParentWhenSpinning)
    : QWidget(parent, Qt::Dialog | Qt::FramelessWindowHint),
      m_centerOnParent(centerOnParent),
      m_disableParentWhenSpinning(disableParentWhenSpinning)
{
    initialize();
    setWindowModality(modality);
    setAttribute(Qt::WA_TranslucentBackground);
}

WyWaitingSpinnerWidget::~WyWaitingSpinnerWidget()
{
    // A parent that is being destroyed has already dropped the spinner from its children: it stays as it is.
    if (m_isSpinning && m_disableParentWhenSpinning && parentWidget() &&
        parentWidget()->children().contains(this))
        parentWidget()->setEnabled(true);
}

void WyWaitingSpinnerWidget::setColor(QColor color)
{
    m_color = color;
}

void WyWaitingSpinnerWidget::setRoundness(double roundness)
{
    m_roundness = bounded(0.0, roundness, 100.0);
}

void WyWaitingSpinnerWidget::setMinimumTrailOpacity(double minimumTrailOpacity)
{
    m_minimumTrailOpacity = minimumTrailOpacity;
}

void WyWaitingSpinnerWidget::setTrailFadePercentage(double trailFadePercentage)
{
    m_trailFadePercentage = trailFadePercentage;
}

void WyWaitingSpinnerWidget::setRevolutionsPerSecond(double revolutionsPerSecond)
{
    m_revolutionsPerSecond = revolutionsPerSecond;
    updateTimer();
}

void WyWaitingSpinnerWidget::setNumberOfLines(int numberOfLines)
{
    m_numberOfLines = numberOfLines;
    m_currentCounter = 0;
    updateTimer();
}

void WyWaitingSpinnerWidget::setLineLength(int lineLength)
{
    m_lineLength = lineLength;
    updateSize();
}

void WyWaitingSpinnerWidget::setLineWidth(int lineWidth)
{
    m_lineWidth = lineWidth;
    updateSize();
}

void WyWaitingSpinnerWidget::setInnerRadius(int innerRadius)
{
    m_innerRadius = innerRadius;
    updateSize();
}

QColor WyWaitingSpinnerWidget::color() const
{
    return m_color;
}

double WyWaitingSpinnerWidget::roundness() const
{
    return m_roundness;
}

double WyWaitingSpinnerWidget::minimumTrailOpacity() const
{
    return m_minimumTrailOpacity;
}

double WyWaitingSpinnerWidget::trailFadePercentage() const
{
    return m_trailFadePercentage;
}

double WyWaitingSpinnerWidget::revolutionsPersSecond() const
{
    return m_revolutionsPerSecond;
}

int WyWaitingSpinnerWidget::numberOfLines() const
{
    return m_numberOfLines;
}

int WyWaitingSpinnerWidget::lineLength() const
{
    return m_lineLength;
}

int WyWaitingSpinnerWidget::lineWidth() const
{
    return m_lineWidth;
}

int WyWaitingSpinnerWidget::innerRadius() const
{
    return m_innerRadius;
}

bool WyWaitingSpinnerWidget::isSpinning() const
{
    return m_isSpinning;
}

void WyWaitingSpinnerWidget::start()
{
    const QPointer<WyWaitingSpinnerWidget> alive(this); // handlers of the host may delete it or stop it again
    updatePosition();
    m_isSpinning = true;
    show();
    if (alive && m_isSpinning && parentWidget() && m_disableParentWhenSpinning)
        parentWidget()->setEnabled(false);
    if (alive && m_isSpinning && m_timer && !m_timer->isActive()) {
        m_timer->start();
        m_currentCounter = 0;
    }
}

void WyWaitingSpinnerWidget::stop()
{
    const QPointer<WyWaitingSpinnerWidget> alive(this);
    m_isSpinning = false;
    hide();
    if (alive && !m_isSpinning && parentWidget() && m_disableParentWhenSpinning)
        parentWidget()->setEnabled(true);
    if (!alive || m_isSpinning) // a handler has started it again
        return;
    if (m_timer && m_timer->isActive()) {
        m_timer->stop();
        m_currentCounter = 0;
    }
    m_frames->clear(); // a spinner at rest needs no memory for its pictures
}

void WyWaitingSpinnerWidget::rotate()
{
    ++m_currentCounter;
    if (m_currentCounter >= m_numberOfLines)
        m_currentCounter = 0;
    updateUnlessMinimized(this);
}

void WyWaitingSpinnerWidget::paintEvent(QPaintEvent*)
{
    updatePosition();
    if (m_numberOfLines > kMostPaintedLines)
        return;
    QPainter painter(this);
    const Look look(m_color, m_roundness, m_minimumTrailOpacity, m_trailFadePercentage, m_numberOfLines,
                    m_lineLength, m_lineWidth, m_innerRadius);
    m_frames->draw(painter, look, m_currentCounter, size(), m_numberOfLines,
                   [this](QPainter& p, int line) { return paintLine(p, line); });
}

int WyWaitingSpinnerWidget::lineCountDistanceFromPrimary(int current, int primary, int totalNrOfLines)
{
    const int distance = primary - current;
    return distance < 0 ? distance + totalNrOfLines : distance;
}

QColor WyWaitingSpinnerWidget::currentLineColor(int countDistance, int totalNrOfLines, double trailFadePerc,
                                                double minOpacity, QColor color)
{
    if (countDistance == 0)
        return color; // the head keeps its own alpha, also one below the floor of the trail
    const double minAlphaF = minOpacity / 100.0;
    const double threshold = std::ceil((totalNrOfLines - 1) * trailFadePerc / 100.0);
    double alpha = minAlphaF;
    if (countDistance <= threshold) {
        const double gradient = (color.alphaF() - minAlphaF) / (threshold + 1);
        alpha = color.alphaF() - gradient * countDistance;
    }
    color.setAlphaF(bounded(0.0, alpha, 1.0));
    return color;
}

void WyWaitingSpinnerWidget::initialize()
{
    offerAccessibility();
    m_frames = std::make_unique<Frames>();
    OwnTexts::of(this)->setName([] { return tr("Busy"); });
    m_timer = new QTimer(this);
    connect(m_timer, SIGNAL(timeout()), this, SLOT(rotate()));
    updateSize();
    updateTimer();
    hide();
}

void WyWaitingSpinnerWidget::updateSize()
{
    const qint64 side = 2 * (qint64(m_innerRadius) + m_lineLength);
    const int size = int(qBound<qint64>(0, side, kLargestSidePx));
    setFixedSize(size, size);
}

void WyWaitingSpinnerWidget::updateTimer()
{
    const double stepsPerSecond = m_numberOfLines * m_revolutionsPerSecond;
    if (!m_timer || !(stepsPerSecond > 0.0))
        return;
    const double interval = kMillisecondsPerSecond / stepsPerSecond;
    m_timer->setInterval(int(std::min<double>(interval, std::numeric_limits<int>::max())));
}

void WyWaitingSpinnerWidget::updatePosition()
{
    // Each half is truncated on its own, so the spinner of an odd-sized parent may sit half a pixel off.
    if (parentWidget() && m_centerOnParent)
        move(parentWidget()->width() / 2 - width() / 2, parentWidget()->height() / 2 - height() / 2);
}

QRectF WyWaitingSpinnerWidget::paintLine(QPainter& painter, int index) const
{
    const int distance = lineCountDistanceFromPrimary(index, m_currentCounter, m_numberOfLines);
    const double centre = double(m_innerRadius) + m_lineLength;
    const int aboveAxis = m_lineWidth / 2; // a whole number, so an odd line is wider below
    const QRectF bar(0, -aboveAxis, m_lineLength, m_lineWidth);
    painter.save();
    painter.translate(centre, centre);
    painter.rotate(double(index * 360) / m_numberOfLines);
    painter.translate(m_innerRadius, 0);
    painter.setBrush(
        currentLineColor(distance, m_numberOfLines, m_trailFadePercentage, m_minimumTrailOpacity, m_color));
    painter.drawRoundedRect(bar, m_roundness, m_roundness, Qt::RelativeSize);
    const QRectF painted = painter.deviceTransform().mapRect(bar);
    painter.restore();
    return painted;
}

} // namespace WyWidgets
