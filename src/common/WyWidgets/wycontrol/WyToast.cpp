#include "WyWidgets/wycontrol/WyToast.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/platform/LibraryFolder.h"
#include "WyWidgets/internal/text/Markup.h"
#include "WyWidgets/internal/toast/ToastGeometry.h"
#include "WyWidgets/internal/toast/ToastIconButton.h"
#include "WyWidgets/internal/toast/ToastPlacement.h"
#include "WyWidgets/internal/toast/ToastResources.h"
#include "WyWidgets/internal/toast/ToastStyle.h"
#include "WyWidgets/internal/toast/ToastText.h"
#include "WyWidgets/internal/toast/ToastWindowFilter.h"
#include "WyWidgets/internal/widgets/Fades.h"
#include "WyWidgets/internal/widgets/GuardedList.h"
#include "WyWidgets/internal/widgets/OptionalWidgets.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"
#include "WyWidgets/internal/widgets/Timers.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QTimer>
#include <QtMath>

#include <functional>
#include <iterator>

namespace WyWidgets {

namespace {

constexpr int kDurationBarHeightPx = 4;
// The bars are taller than their container and reach out of its top, so that only their bottom is seen: its
// rounded corners follow the body's, while the top edge stays square.
constexpr int kDurationBarFullHeightPx = 20;
constexpr int kPresetSeparatorWidthPx = 2;
constexpr double kLiftDivisor = 1.5;

/// Keeps the news that their style has changed from widgets that have not been polished yet: they learn all
/// of it when they are.
class StyleChangeBlocker : public QObject
{
public:
    explicit StyleChangeBlocker(const QList<QWidget*>& widgets)
    {
        for (QWidget* widget : widgets)
            widget->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::StyleChange; }
};

// The host may have deleted any child widget.

void showPicture(QPushButton* button, const QPixmap& picture, qint64& shownKey)
{
    if (!button)
        return;
    const QIcon icon = ToastResources::plainIcon(picture);
    button->setIcon(icon);
    shownKey = icon.cacheKey();
}

/// Recolours the picture, or an icon that the host has given to the button itself.
void recolorPicture(QPushButton* button, const QPixmap& picture, const QColor& color, qint64& shownKey)
{
    if (!button)
        return;
    const QIcon current = button->icon();
    const QIcon source = current.cacheKey() == shownKey ? ToastResources::plainIcon(picture) : current;
    const QIcon icon = ToastResources::recoloredIcon(source, button->iconSize(), color);
    button->setIcon(icon);
    shownKey = icon.cacheKey();
}

Qt::WindowFlags windowFlagsFor(const QWidget* parent, bool staysOnTop)
{
    return (parent ? Qt::Window : Qt::Tool) | Qt::CustomizeWindowHint | Qt::FramelessWindowHint |
           (staysOnTop ? Qt::WindowStaysOnTopHint : Qt::WindowFlags());
}

/// What a screen reader says for an icon that tells what kind of message this is.
QString spokenName(ToastIcon icon)
{
    switch (icon) {
    case ToastIcon::SUCCESS:
        return WyToast::tr("Success");
    case ToastIcon::WARNING:
        return WyToast::tr("Warning");
    case ToastIcon::ERROR:
        return WyToast::tr("Error");
    case ToastIcon::INFORMATION:
        return WyToast::tr("Information");
    case ToastIcon::CLOSE:
        break;
    }
    return QString();
}

/// The label's font as it is shown: where the given one says nothing, the application's does, and style
/// sheets have the last word.
QFont shownFont(const QLabel* label, const QFont& font)
{
    if (!label)
        return font;
    QFont shown = label->font();
    shown.resolve(~0U);
    // Nothing of the given one but its resolution: a widget's font has that of a screen.
    return shown.resolve(font);
}

/// Makes the label wrap and returns the height it then wants.
std::function<int(int)> wrappedHeightOf(QLabel* label)
{
    return [label](int minimumWidth) {
        if (!label)
            return 0;
        label->setMinimumWidth(minimumWidth);
        label->setWordWrap(true);
        return label->sizeHint().height();
    };
}

void placeLabel(QLabel* label, const QRect& geometry, bool wraps)
{
    if (!label)
        return;
    if (wraps)
        label->setWordWrap(true);
    label->setFixedSize(geometry.size());
    label->move(geometry.topLeft());
}

} // namespace

WyToast::WyToast(QWidget* parent)
    : QDialog(parent, windowFlagsFor(parent, true)), m_parent(parent), m_resetsBefore(s_resetCount)
{
    offerAccessibility();
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    // A tool window would vanish with the application's other panels when another application comes to the
    // front.
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    setFocusPolicy(Qt::NoFocus);
    createBody();
    createOpacityEffect();
    createContents();
    createDurationBar();
    applyDefaults();
    createTimers();
    m_windowFilter = std::make_unique<ToastWindowFilter>(this);
    loadStyleSheet();
}

WyToast::~WyToast()
{
    const bool wasShown = removeFrom(s_currentlyShown, this);
    removeFrom(s_queue, this);
    if (wasShown || (m_owesItsSlot && m_resetsBefore == s_resetCount))
        passSlotOn();
}

void WyToast::setTitle(const QString& title)
{
    if (m_used)
        return;
    m_title = title;
    if (m_titleLabel)
        m_titleLabel->setText(title);
}

void WyToast::setText(const QString& text)
{
    if (m_used)
        return;
    m_text = text;
    if (m_textLabel)
        m_textLabel->setText(text);
}

void WyToast::setIcon(const QPixmap& icon)
{
    if (m_used)
        return;
    m_icon = icon;
    if (m_iconWidget)
        m_iconWidget->setAccessibleName(QString());
    showPicture(m_iconWidget, icon, m_shownIconKey);
    setIconColor(m_iconColor);
}

void WyToast::setIcon(ToastIcon icon)
{
    if (m_used)
        return;
    setIcon(getIconFromEnum(icon));
    if (m_iconWidget)
        OwnTexts::of(m_iconWidget)->setName([icon] { return spokenName(icon); });
}

void WyToast::setIconSize(const QSize& size)
{
    if (m_used)
        return;
    m_iconSize = size;
    setFixedSizeOf(m_iconWidget, size);
    if (m_iconWidget)
        m_iconWidget->setIconSize(size);
    showPicture(m_iconWidget, m_icon, m_shownIconKey);
    setIconColor(m_iconColor);
}

void WyToast::setShowIconSeparator(bool show)
{
    if (m_used)
        return;
    m_showIconSeparator = show;
    setFixedWidthOf(m_iconSeparator, show ? m_iconSeparatorWidth : 0);
}

void WyToast::setIconSeparatorWidth(int width)
{
    if (m_used)
        return;
    m_iconSeparatorWidth = width;
    setShowIconSeparator(m_showIconSeparator);
}

void WyToast::setCloseButtonIcon(const QPixmap& icon)
{
    if (m_used)
        return;
    m_closeButtonIcon = icon;
    showPicture(m_closeButton, icon, m_shownCloseButtonIconKey);
    setCloseButtonIconColor(m_closeButtonIconColor);
}

void WyToast::setCloseButtonIcon(ToastIcon icon)
{
    if (!m_used)
        setCloseButtonIcon(getIconFromEnum(icon));
}

void WyToast::setCloseButtonIconSize(const QSize& size)
{
    if (m_used)
        return;
    m_closeButtonIconSize = size;
    if (m_closeButton)
        m_closeButton->setIconSize(size);
    setCloseButtonIcon(m_closeButtonIcon);
}

void WyToast::setCloseButtonSize(const QSize& size)
{
    if (m_used)
        return;
    m_closeButtonSize = size;
    setFixedSizeOf(m_closeButton, size);
}

void WyToast::setCloseButtonWidth(int width)
{
    setCloseButtonSize({width, m_closeButtonSize.height()});
}

void WyToast::setCloseButtonHeight(int height)
{
    setCloseButtonSize({m_closeButtonSize.width(), height});
}

void WyToast::setStayOnTop(bool stay)
{
    if (m_used)
        return;
    m_stayOnTop = stay;
    setWindowFlags(windowFlagsFor(m_parent, stay));
}

void WyToast::setIconColor(const QColor& color)
{
    if (m_used)
        return;
    m_iconColor = color;
    recolorPicture(m_iconWidget, m_icon, color, m_shownIconKey);
}

void WyToast::setCloseButtonIconColor(const QColor& color)
{
    if (m_used)
        return;
    m_closeButtonIconColor = color;
    recolorPicture(m_closeButton, m_closeButtonIcon, color, m_shownCloseButtonIconKey);
}

void WyToast::setTitleFont(const QFont& font)
{
    if (m_used)
        return;
    m_titleFont = font;
    if (m_titleLabel)
        m_titleLabel->setFont(font);
}

void WyToast::setTextFont(const QFont& font)
{
    if (m_used)
        return;
    m_textFont = font;
    if (m_textLabel)
        m_textLabel->setFont(font);
}

void WyToast::applyPreset(ToastPreset preset)
{
    if (m_used)
        return;
    constexpr QColor accents[] = {sc_successAccentColor, sc_warningAccentColor, sc_errorAccentColor,
                                  sc_informationAccentColor};
    constexpr int kinds = 4;
    const int value = static_cast<int>(preset);
    if (value >= 0 && value < 2 * kinds) {
        const bool dark = value >= kinds;
        const QColor& accent = accents[value % kinds];
        setIcon(static_cast<ToastIcon>(value % kinds));
        setIconColor(accent);
        m_durationBarColor = accent;
        m_backgroundColor = dark ? sc_defaultBackgroundColorDark : sc_defaultBackgroundColor;
        setCloseButtonIconColor(dark ? sc_defaultCloseButtonIconColorDark : sc_defaultCloseButtonIconColor);
        m_iconSeparatorColor = dark ? sc_defaultIconSeparatorColorDark : sc_defaultIconSeparatorColor;
        m_titleColor = dark ? sc_defaultTitleColorDark : sc_defaultTitleColor;
        m_textColor = dark ? sc_defaultTextColorDark : sc_defaultTextColor;
    }
    m_showDurationBar = true;
    m_showIcon = true;
    setShowIconSeparator(true);
    setIconSeparatorWidth(kPresetSeparatorWidthPx);
}

void WyToast::setFixedSize(const QSize& size)
{
    setMinimumSize(size);
    setMaximumSize(size);
}

void WyToast::setFixedSize(int width, int height)
{
    setFixedSize(QSize(width, height));
}

void WyToast::setFixedWidth(int width)
{
    setMinimumWidth(width);
    setMaximumWidth(width);
}

void WyToast::setFixedHeight(int height)
{
    setMinimumHeight(height);
    setMaximumHeight(height);
}

QPixmap WyToast::getIconFromEnum(ToastIcon icon)
{
    static const QString names[] = {QStringLiteral("success"), QStringLiteral("warning"),
                                    QStringLiteral("error"), QStringLiteral("information"),
                                    QStringLiteral("close")};
    const int value = static_cast<int>(icon);
    if (value < 0 || value >= static_cast<int>(std::size(names)))
        return QPixmap();
    return ToastResources::picture(getCurrentDirectory() + QStringLiteral("/icons/%1.png").arg(names[value]));
}

QString WyToast::getCurrentDirectory()
{
    static const QString directory = [] {
        const QString library = libraryFolder();
        const QDir installed(library + QStringLiteral("/" WY_INSTALLED_DATA_DIR));
        const bool isInstalled = !library.isEmpty() && installed.exists();
        const QDir configured(QStringLiteral(WY_TOAST_RESOURCE_DIR));
        return QDir::cleanPath((isInstalled ? installed : configured).absolutePath());
    }();
    return directory;
}

QImage WyToast::recolorImage(const QImage& image, const QColor& color)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    const QRgb opaque = color.rgb() & RGB_MASK;
    for (int y = 0; y < result.height(); ++y) {
        auto* pixels = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x)
            pixels[x] = opaque | (pixels[x] & ~RGB_MASK);
    }
    return result;
}

void WyToast::show()
{
    if (m_used)
        return;
    if (getVisibleCount() >= s_maximumOnScreen) {
        if (!contains(s_queue, this))
            s_queue.push_back(this);
        return;
    }
    removeFrom(s_queue, this);
    m_used = true;
    m_resetsBefore = s_resetCount;
    s_currentlyShown.push_back(this);
    setupUI();
    startDuration();
    slideIn(calculatePosition());
    setAccessibleTexts();
    const QPointer<WyToast> guard(this);
    QDialog::show();
    if (!guard)
        return;
    tellAlert(this);
    // A handler of the host may have called hide(): fading in would end that fade for good.
    if (!m_fadingOut)
        start(fade(0.0, 1.0, m_fadeInDuration));
    // Some window managers hand the focus to every new window.
    if (m_parent)
        m_parent->activateWindow();
    updateCurrentlyShowingPositionXY();
}

void WyToast::hide()
{
    if (!m_used) {
        QDialog::hide();
        return;
    }
    stopIfActive(m_durationTimer);
    fadeOut();
}

void WyToast::hide_()
{
    const QPointer<WyToast> guard(this);
    close();
    if (!guard)
        return;
    if (!removeFrom(s_currentlyShown, this)) {
        if (!m_used)
            m_fadingOut = false;
        return;
    }
    m_durationElapsed = 0;
    m_fadingOut = false;
    m_owesItsSlot = true;
    emit closed();
    updateCurrentlyShowingPositionY();
    // If it is gone, its destructor has passed the slot on. The wait is the fade-in's on purpose: the others
    // have moved up by then.
    if (guard)
        QTimer::singleShot(qMax(0, m_fadeInDuration), this, &WyToast::deleteAndShowNextInQueue);
}

void WyToast::fadeOut()
{
    if (m_fadingOut)
        return;
    m_fadingOut = true;
    QPropertyAnimation* animation = fade(1.0, 0.0, m_fadeOutDuration);
    connect(animation, &QPropertyAnimation::finished, this, &WyToast::hide_);
    start(animation);
}

void WyToast::updateDurationBar()
{
    m_durationElapsed += sc_durationBarUpdateInterval;
    if (m_durationElapsed >= m_duration) {
        stopIfActive(m_durationBarTimer);
        return;
    }
    if (!m_durationBarContainer || !m_durationBarChunk)
        return;
    const int full = m_durationBarContainer->width();
    const int left = qFloor(full - double(m_durationElapsed) / m_duration * full);
    // Most ticks are shorter than a pixel.
    if (m_durationBarChunk->width() != left)
        m_durationBarChunk->setFixedWidth(left);
}

void WyToast::deleteAndShowNextInQueue()
{
    const QPointer<WyToast> guard(this);
    m_owesItsSlot = false;
    if (m_resetsBefore == s_resetCount)
        showNextInQueue();
    if (guard)
        deleteLater();
}

void WyToast::enterEvent(QEvent*)
{
    if (m_duration <= 0 || !m_resetDurationOnHover || !m_durationTimer || !m_durationTimer->isActive())
        return;
    m_durationTimer->stop();
    if (m_showDurationBar) {
        stopIfActive(m_durationBarTimer);
        setFixedWidthOf(m_durationBarChunk, bodySize().width());
        m_durationElapsed = 0;
    }
}

void WyToast::leaveEvent(QEvent*)
{
    if (m_resetDurationOnHover && m_durationTimer && !m_durationTimer->isActive())
        startDuration();
}

void WyToast::createBody()
{
    m_notification = new QLabel(this);
    for (std::size_t i = 0; i < m_dropShadowLayers.size(); ++i) {
        m_dropShadowLayers[i] = new QWidget(this);
        m_dropShadowLayers[i]->setObjectName(QStringLiteral("toast-drop-shadow-layer-%1").arg(i + 1));
    }
}

void WyToast::createOpacityEffect()
{
    m_opacityEffect = installOpacityEffect(this, 1.0);
    // Without its effect a fade never ends.
    connect(
        m_opacityEffect, &QObject::destroyed, this,
        [this] {
            if (m_fadingOut && !m_opacityEffect)
                hide_();
        },
        Qt::QueuedConnection);
}

void WyToast::createContents()
{
    m_closeButton = new ToastIconButton(m_notification);
    m_closeButton->setCursor(Qt::PointingHandCursor);
    m_closeButton->setObjectName(QStringLiteral("toast-close-button"));
    OwnTexts::of(m_closeButton)->setNameAndToolTip([] { return tr("Close"); });
    connect(m_closeButton, &QPushButton::clicked, this, &WyToast::hide);
    m_titleLabel = new QLabel(m_notification);
    m_textLabel = new QLabel(m_notification);
    m_iconWidget = new ToastIconButton(m_notification);
    m_iconWidget->setObjectName(QStringLiteral("toast-icon-widget"));
    m_iconWidget->setFocusPolicy(Qt::NoFocus);
    m_iconSeparator = new QWidget(m_notification);
}

void WyToast::createDurationBar()
{
    m_durationBarContainer = new QWidget(m_notification);
    m_durationBarContainer->setFixedHeight(kDurationBarHeightPx);
    const auto createBar = [this] {
        auto* bar = new QWidget(m_durationBarContainer);
        bar->setFixedHeight(kDurationBarFullHeightPx);
        bar->move(0, kDurationBarHeightPx - kDurationBarFullHeightPx);
        return bar;
    };
    m_durationBar = createBar();
    m_durationBarChunk = createBar();
}

void WyToast::applyDefaults()
{
    setIcon(ToastIcon::INFORMATION);
    setIconSize(m_iconSize);
    setIconColor(m_iconColor);
    setIconSeparatorWidth(m_iconSeparatorWidth);
    setCloseButtonIcon(ToastIcon::CLOSE);
    setCloseButtonIconSize(m_closeButtonIconSize);
    setCloseButtonSize(m_closeButtonSize);
    setStayOnTop(m_stayOnTop);
    setCloseButtonIconColor(m_closeButtonIconColor);
    setTitleFont(m_titleFont);
    setTextFont(m_textFont);
}

void WyToast::createTimers()
{
    m_durationTimer = new QTimer(this);
    m_durationTimer->setSingleShot(true);
    connect(m_durationTimer, &QTimer::timeout, this, &WyToast::fadeOut);
    m_durationBarTimer = new QTimer(this);
    connect(m_durationBarTimer, &QTimer::timeout, this, &WyToast::updateDurationBar);
}

void WyToast::loadStyleSheet()
{
    // Otherwise Qt works the rules out for each child here, and again when the child is polished: this would
    // double the cost of a toast.
    const StyleChangeBlocker blocker(findChildren<QWidget*>());
    setStyleSheet(ToastResources::styleSheet(getCurrentDirectory() + QStringLiteral("/css/toast.css")));
    m_durationBarContainer->setStyleSheet(QStringLiteral("background: transparent;"));
}

void WyToast::updateStylesheet()
{
    const QColor& bar = m_durationBarColor;
    setStyleSheetOf(m_notification, ToastStyle::body(m_backgroundColor, m_borderRadius));
    setStyleSheetOf(m_durationBar, ToastStyle::durationBar(bar, m_borderRadius));
    setStyleSheetOf(m_durationBarChunk, ToastStyle::durationBarChunk(bar, m_borderRadius, m_duration > 0));
    setStyleSheetOf(m_iconSeparator, ToastStyle::separator(m_iconSeparatorColor));
    setStyleSheetOf(m_titleLabel, ToastStyle::text(m_titleColor));
    setStyleSheetOf(m_textLabel, ToastStyle::text(m_textColor));
}

void WyToast::setupUI()
{
    updateStylesheet();
    // Labels know the fonts of all style sheets but the application's. To polish takes longer than all else
    // here, and showing a toast does it anyway.
    if (qApp->styleSheet().contains(QLatin1String("font"), Qt::CaseInsensitive))
        ensurePolished();
    ToastMeasures measures;
    measures.margins = m_margins;
    measures.iconMargins = m_iconMargins;
    measures.iconSectionMargins = m_iconSectionMargins;
    measures.textSectionMargins = m_textSectionMargins;
    measures.closeButtonMargins = m_closeButtonMargins;
    measures.textSectionSpacing = m_textSectionSpacing;
    measures.showIcon = m_showIcon;
    measures.iconSize = sizeOf(m_iconWidget);
    measures.separatorWidth = sizeOf(m_iconSeparator).width();
    measures.showCloseButton = m_showCloseButton;
    measures.closeButtonSize = sizeOf(m_closeButton);
    measures.closeButtonAlignment = m_closeButtonAlignment;
    measures.durationBarHeight = m_showDurationBar ? kDurationBarHeightPx : 0;
    measures.minimumSize = minimumSize();
    measures.maximumSize = maximumSize();
    measures.titleHeightAt = wrappedHeightOf(m_titleLabel);
    measures.textHeightAt = wrappedHeightOf(m_textLabel);
    place(layOutToast(measures, ToastText(shownFont(m_titleLabel, m_titleFont), m_title),
                      ToastText(shownFont(m_textLabel, m_textFont), m_text)));
}

void WyToast::place(const ToastGeometry& geometry)
{
    const QSize body = geometry.body;
    const int layers = static_cast<int>(m_dropShadowLayers.size());
    for (int i = 0; i < layers; ++i) {
        const int reach = 2 * (layers - i);
        if (m_dropShadowLayers[i])
            m_dropShadowLayers[i]->setGeometry(i, i, body.width() + reach, body.height() + reach);
    }
    QDialog::setFixedSize(body + 2 * QSize(sc_dropShadowSize, sc_dropShadowSize));
    setFixedSizeOf(m_notification, body);
    moveTo(m_notification, {sc_dropShadowSize, sc_dropShadowSize});
    if (m_notification)
        m_notification->raise();
    placeLabel(m_titleLabel, geometry.title, geometry.wrapsTexts);
    placeLabel(m_textLabel, geometry.text, geometry.wrapsTexts);
    if (m_showIcon) {
        moveTo(m_iconWidget, geometry.icon);
        setFixedHeightOf(m_iconSeparator, geometry.separatorHeight);
        moveTo(m_iconSeparator, geometry.separator);
    } else {
        hideIfAny(m_iconWidget);
        hideIfAny(m_iconSeparator);
    }
    if (geometry.closeButton)
        moveTo(m_closeButton, *geometry.closeButton);
    if (!m_showCloseButton)
        hideIfAny(m_closeButton);
    if (m_showDurationBar) {
        setFixedWidthOf(m_durationBarContainer, body.width());
        moveTo(m_durationBarContainer, {0, body.height() - kDurationBarHeightPx});
        setFixedWidthOf(m_durationBar, body.width());
        setFixedWidthOf(m_durationBarChunk, body.width());
    } else {
        hideIfAny(m_durationBarContainer);
    }
}

QSize WyToast::bodySize() const
{
    return sizeOf(m_notification);
}

void WyToast::setAccessibleTexts()
{
    const QString title = withoutMarkup(m_title);
    const QString text = withoutMarkup(m_text);
    if (accessibleName().isEmpty())
        setAccessibleName(title.isEmpty() ? text : title);
    if (accessibleDescription().isEmpty() && accessibleName() != text)
        setAccessibleDescription(text);
}

void WyToast::startDuration()
{
    if (m_duration <= 0)
        return;
    if (m_durationTimer)
        m_durationTimer->start(m_duration);
    if (m_showDurationBar && m_durationBarTimer && !isMinimized())
        m_durationBarTimer->start(sc_durationBarUpdateInterval);
}

void WyToast::restDurationBarWhileMinimized()
{
    if (!m_showDurationBar || !m_durationBarTimer || !m_durationTimer || !m_durationTimer->isActive())
        return;
    if (isMinimized()) {
        m_durationBarTimer->stop();
    } else if (!m_durationBarTimer->isActive()) {
        m_durationElapsed = m_duration - m_durationTimer->remainingTime();
        m_durationBarTimer->start(sc_durationBarUpdateInterval);
    }
}

/// The first toast appears in its place; another one comes from behind its predecessor, farther away the
/// longer that one's own way still is.
void WyToast::slideIn(const QPoint& target)
{
    const WyToast* predecessor = getPredecessorToast();
    if (!predecessor) {
        move(target);
        return;
    }
    const int remaining = qAbs(predecessor->calculatePosition().y() - predecessor->y());
    const int lift = remaining + static_cast<int>(height() / kLiftDivisor);
    if (const int direction = stackingDirection(s_position))
        move(target.x(), target.y() + direction * lift);
    animatePosition(target, m_fadeInDuration);
}

QPropertyAnimation* WyToast::fade(qreal from, qreal to, int duration)
{
    if (!m_opacityEffect)
        createOpacityEffect();
    return createOpacityFade(m_opacityEffect, qMax(0, duration), from, to);
}

/// The animation ends with the toast at the latest: it has no parent, and notices the end of what it animates
/// only at its next step. It is deleted from the event loop, for its own step may have ended the toast.
void WyToast::start(QPropertyAnimation* animation)
{
    connect(this, &QObject::destroyed, animation, [animation] { endLater(animation); });
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace WyWidgets
