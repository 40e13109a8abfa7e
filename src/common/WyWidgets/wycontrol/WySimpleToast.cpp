#include "WyWidgets/wycontrol/WySimpleToast.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/text/Markup.h"
#include "WyWidgets/internal/text/WordWrap.h"
#include "WyWidgets/internal/toast/ToastResources.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"
#include "WyWidgets/internal/widgets/Timers.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QToolTip>

#include <limits>

namespace WyWidgets {

namespace {

constexpr QSize kPlateSizePx(180, 56);
constexpr qreal kPlateRadiusPx = 8.0;
constexpr int kMarginPx = 10;
constexpr int kSpacingPx = 8;
constexpr int kIconSizePx = 50;

constexpr int kSlotGapPx = 10;
/// Distance of the column from the sides and the bottom of its area.
constexpr int kSideDistancePx = 36;
constexpr int kBottomDistancePx = 35;
/// No place is farther away, whatever slot is asked for.
constexpr qint64 kFarthestPx = QWIDGETSIZE_MAX;

constexpr int kToolTipWidthPx = 600;

constexpr unsigned int kOpaque = 255;

/// Window opacities between which the toast fades.
constexpr double kHidden = 0.0;
constexpr double kShown = 1.0;

/// %1: the text colour.
const QLatin1String kTextStyle("QLabel {font: 600 10pt 'Segoe UI Semibold'; color: %1}");

int milliseconds(unsigned int duration)
{
    constexpr unsigned int kLongestMs = std::numeric_limits<int>::max();
    return static_cast<int>(qMin(duration, kLongestMs));
}

/// Qt itself wraps a tooltip only if it is rich text; any other runs off the screen.
QString toolTipFor(const QString& text)
{
    if (Qt::mightBeRichText(text))
        return text;
    const QFont font = QToolTip::font();
    const QFontMetrics metrics(font);
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString& line : lines) {
        if (metrics.horizontalAdvance(line) > kToolTipWidthPx)
            line = wrapWords(line, font, kToolTipWidthPx);
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

int WySimpleToast::COUNT_TOASTR = 0;
QVector<WySimpleToast*> WySimpleToast::vectorToastr;
unsigned int WySimpleToast::TIMEOUT = 2000;

WySimpleToast::WySimpleToast(QWidget* parent) : QFrame(parent)
{
    offerAccessibility();
    setupUi();
    setAttribute(Qt::WA_Hover);
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_AlwaysShowToolTips); // a toast is never the active window
    setTextColor(m_textColor);

    m_animation.setTargetObject(this);
    m_animation.setPropertyName("popupOpacity");
    connect(&m_animation, &QPropertyAnimation::finished, this, &WySimpleToast::hide);
    m_timer = new QTimer(this);
    connect(m_timer, &QTimer::timeout, this, &WySimpleToast::hideAnimation);
}

WySimpleToast::~WySimpleToast()
{
    if (takeOut(this))
        closeGaps();
}

void WySimpleToast::setupUi()
{
    setFixedSize(kPlateSizePx);
    auto* layout = new QHBoxLayout(this);
    layout->setAlignment(Qt::AlignCenter);
    layout->setSpacing(kSpacingPx);
    layout->setContentsMargins(kMarginPx, kMarginPx, kMarginPx, kMarginPx);

    m_iconLabel = new QLabel(this);
    m_iconLabel->setObjectName(QStringLiteral("iconLabel"));
    m_iconLabel->setFixedSize(kIconSizePx, kIconSizePx);
    layout->addWidget(m_iconLabel);

    m_textLabel = new QLabel(this);
    m_textLabel->setObjectName(QStringLiteral("textLabel"));
    layout->addWidget(m_textLabel);
}

void WySimpleToast::setText(QString text)
{
    if (!m_textLabel)
        return;
    m_textLabel->setText(text);
    QString name = withoutMarkup(text);
    OwnTexts::of(this)->offerName([name] { return name; });
    offerClippedText();
}

void WySimpleToast::setStyle(TOASTR_STYLE style)
{
    const QPointer<WySimpleToast> alive(this); // a handler of the host may delete the toast
    if (m_iconLabel)
        m_iconLabel->show();
    if (!alive)
        return;
    switch (style) {
    case TOASTR_MESSAGE:
        showStyle(m_messageColor, QStringLiteral(":/message.png"), [] { return tr("Message"); });
        break;
    case TOASTR_SUCCESS:
        showStyle(m_successColor, QStringLiteral(":/check.png"), [] { return tr("Success"); });
        break;
    case TOASTR_WARNING:
        showStyle(m_warningColor, QStringLiteral(":/warning.png"), [] { return tr("Warning"); });
        break;
    case TOASTR_INFO:
        showStyle(m_infoColor, QStringLiteral(":/info.png"), [] { return tr("Information"); });
        break;
    case TOASTR_ERROR:
        showStyle(m_errorColor, QStringLiteral(":/shield.png"), [] { return tr("Error"); });
        break;
    }
}

void WySimpleToast::setIcon(QPixmap pixmap)
{
    if (!m_iconLabel)
        return;
    m_iconLabel->setPixmap(pixmap);
    m_iconLabel->setScaledContents(true);
    m_iconLabel->show(); // a handler of the host may delete the toast
}

void WySimpleToast::setBackgroundColor(QString color)
{
    if (!QColor::isValidColor(color))
        return;
    m_backgroundColor.setNamedColor(color);
    update();
}

void WySimpleToast::setOpacity(unsigned int opacity)
{
    m_opacity = qMin(opacity, kOpaque);
    m_backgroundColor.setAlpha(m_opacity);
    update();
}

void WySimpleToast::setTextColor(QString color)
{
    if (m_textLabel)
        m_textLabel->setStyleSheet(QString(kTextStyle).arg(color));
}

void WySimpleToast::setOrientation(TOASTR_ORIENTATION orientation)
{
    m_orientation = orientation;
}

void WySimpleToast::setDuration(unsigned int duration)
{
    TIMEOUT = duration;
}

void WySimpleToast::setShowDuration(unsigned int duration)
{
    m_showDuration = duration;
}

void WySimpleToast::setHideDuration(unsigned int duration)
{
    m_hideDuration = duration;
}

void WySimpleToast::setPopupOpacity(float opacity)
{
    m_popupOpacity = opacity;
    setWindowOpacity(opacity);
}

float WySimpleToast::getPopupOpacity() const
{
    return m_popupOpacity;
}

void WySimpleToast::stateOrientation()
{
    const QRect area = stackingArea();
    const int distance = COUNT_TOASTR * (height() + kSlotGapPx);
    place(area, isAtTop() ? area.top() + distance : area.bottom() - kBottomDistancePx - distance);
}

void WySimpleToast::shiftOrientation(int index)
{
    const QRect area = stackingArea();
    const qint64 slotHeight = height() + kSlotGapPx;
    const qint64 distance = index * slotHeight;
    // Not the bottom slot of stateOrientation(): without its gap, and less the area's top edge.
    const qint64 y = isAtTop() ? area.top() + slotHeight + distance
                               : area.bottom() - area.top() - height() - kBottomDistancePx - distance;
    place(area, int(qBound(-kFarthestPx, y, kFarthestPx)));
}

void WySimpleToast::show()
{
    const QPointer<WySimpleToast> alive(this); // handlers of the host may delete the toast
    const bool leavesGap = takeOut(this);
    vectorToastr.append(this);
    ++COUNT_TOASTR;
    if (leavesGap)
        closeGaps();
    if (!alive)
        return;

    setWindowOpacity(kHidden);
    prepareFade(m_showDuration, kHidden, kShown);
    stateOrientation();
    if (alive)
        QWidget::show();
    if (alive && isToShow()) { // they may have sent it away again
        m_animation.start();
        if (m_timer)
            m_timer->start(milliseconds(TIMEOUT));
        tellAlert(this);
    }
}

void WySimpleToast::hideAnimation()
{
    stopIfActive(m_timer);
    prepareFade(m_hideDuration, kShown, kHidden);
    m_animation.start(); // without a duration this ends in hide(), which may delete this toast
}

void WySimpleToast::hide()
{
    if (m_popupOpacity != 0.0F)
        return; // the end of a fade-in
    const QPointer<WySimpleToast> oldest = vectorToastr.value(0);
    QWidget::hide();
    if (!oldest)
        return; // there was none, or the host has deleted it while this one was hiding
    takeOut(oldest);
    delete oldest; // often this toast: from here on there is only the class-wide state
    closeGaps();
}

void WySimpleToast::mousePressEvent(QMouseEvent* /*event*/)
{
    const QPointer<WySimpleToast> alive(this); // a handler of the host may delete the toast
    const bool isClosed = close();
    // The pointer on the plate has stopped the time, and a hidden window may never see it leave.
    if (alive && isClosed && m_timer && !m_timer->isActive() && isToShow())
        m_timer->start();
}

void WySimpleToast::enterEvent(QEvent* event)
{
    stopIfActive(m_timer);
    m_backgroundColor.setAlpha(kOpaque);
    QFrame::enterEvent(event);
}

void WySimpleToast::leaveEvent(QEvent* event)
{
    if (m_timer)
        m_timer->start();
    m_backgroundColor.setAlpha(m_opacity);
    QFrame::leaveEvent(event);
}

void WySimpleToast::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(m_backgroundColor);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(0, 0, width(), height()), kPlateRadiusPx, kPlateRadiusPx);
}

/// Takes the toast out of list and count; false if it is not in the column.
bool WySimpleToast::takeOut(WySimpleToast* toast)
{
    if (!vectorToastr.removeOne(toast))
        return false;
    --COUNT_TOASTR;
    return true;
}

void WySimpleToast::closeGaps()
{
    for (int i = 0; i < vectorToastr.size(); ++i)
        vectorToastr.at(i)->shiftOrientation(i);
}

void WySimpleToast::prepareFade(unsigned int duration, double from, double to)
{
    // Starting a running animation changes nothing: a fade the other way has to give way. It has not ended,
    // even if it has come to its last moment.
    if (m_animation.endValue() != to) {
        const QSignalBlocker silence(&m_animation);
        m_animation.stop();
    }
    m_animation.setDuration(milliseconds(duration));
    m_animation.setStartValue(from);
    m_animation.setEndValue(to);
}

/// False before the first fade-in and from the beginning of the fade-out on.
bool WySimpleToast::isToShow() const
{
    return m_animation.endValue() == kShown;
}

void WySimpleToast::showStyle(QColor color, const QString& picture, QString (*accessibleName)())
{
    color.setAlpha(m_opacity);
    m_backgroundColor = color;
    setIcon(ToastResources::picture(picture));
    if (m_iconLabel)
        OwnTexts::of(m_iconLabel)->setName(accessibleName);
    update();
}

QRect WySimpleToast::stackingArea() const
{
    const QWidget* parent = parentWidget();
    if (!parent)
        return QApplication::desktop()->geometry();
    return QRect(parent->mapToGlobal(QPoint(0, 0)), parent->size());
}

bool WySimpleToast::isAtTop() const
{
    return m_orientation <= TOASTR_TOP_FULL_WIDTH;
}

void WySimpleToast::place(const QRect& area, int y)
{
    QRect placed(QPoint(0, y), size());
    switch (m_orientation) {
    case TOASTR_TOP_RIGHT:
    case TOASTR_BOTTOM_RIGHT:
        // The right column is measured from x = 0, wherever its area begins.
        placed.moveLeft(area.width() - width() - kSideDistancePx);
        break;
    case TOASTR_TOP_LEFT:
    case TOASTR_BOTTOM_LEFT:
        placed.moveLeft(area.left() + kSideDistancePx);
        break;
    case TOASTR_TOP_CENTER:
    case TOASTR_BOTTOM_CENTER:
        placed.moveLeft(area.left() + area.width() / 2 - width() / 2);
        break;
    case TOASTR_TOP_FULL_WIDTH:
    case TOASTR_BOTTOM_FULL_WIDTH:
        setMaximumWidth(qMax(0, area.width() - kSideDistancePx));
        placed.setLeft(area.left() + kSideDistancePx);
        placed.setRight(area.right() - kSideDistancePx);
        break;
    default:
        return;
    }
    setGeometry(placed);
    offerClippedText();
}

void WySimpleToast::offerClippedText()
{
    OwnTexts* texts = OwnTexts::of(this);
    if (!m_textLabel || !layout() || !texts->isToolTipOwn())
        return;
    layout()->invalidate(); // a hidden toast is laid out on demand only
    layout()->activate();
    const QSize needed = m_textLabel->sizeHint();
    const bool fits = needed.boundedTo(m_textLabel->size()) == needed;
    QString clipped = fits ? QString() : toolTipFor(m_textLabel->text());
    texts->setToolTip([clipped] { return clipped; });
}

} // namespace WyWidgets
