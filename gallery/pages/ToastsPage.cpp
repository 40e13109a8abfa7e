#include "pages/ToastsPage.h"

#include "FlushLayout.h"
#include "KnobPanel.h"
#include "Snippet.h"

#include <WyWidgets/wycontrol/WyToastWidget.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimer>

using WyWidgets::ToastPosition;
using WyWidgets::ToastPreset;
using WyWidgets::WyToast;
using WyWidgets::WyToastWidget;

namespace {

constexpr int kBurst = 50;
constexpr int kCountIntervalMs = 100;
constexpr int kPictureStayMs = 60000;
constexpr int kLongestMs = 60000;
constexpr int kLongestFadeMs = 5000;
constexpr int kSmallToastGapPx = 4;
constexpr QSize kBridgeSizePx(360, 80);

/// Where the button of a position is in the picture of a screen.
struct PlaceButton
{
    const char* name;
    int row;
    int column;
};

// In the order of ToastPosition.
constexpr PlaceButton kPlaces[] = {
    {QT_TRANSLATE_NOOP("ToastsPage", "Bottom left"), 2, 0},
    {QT_TRANSLATE_NOOP("ToastsPage", "Bottom middle"), 2, 1},
    {QT_TRANSLATE_NOOP("ToastsPage", "Bottom right"), 2, 2},
    {QT_TRANSLATE_NOOP("ToastsPage", "Top left"), 0, 0},
    {QT_TRANSLATE_NOOP("ToastsPage", "Top middle"), 0, 1},
    {QT_TRANSLATE_NOOP("ToastsPage", "Top right"), 0, 2},
    {QT_TRANSLATE_NOOP("ToastsPage", "Centre"), 1, 1},
};

struct Message
{
    const char* preset;
    const char* title;
    const char* text;
};

// The kinds of presets, each of which is there in light and dark.
constexpr Message kMessages[] = {
    {QT_TRANSLATE_NOOP("ToastsPage", "Success"), QT_TRANSLATE_NOOP("ToastsPage", "Upload finished"),
     QT_TRANSLATE_NOOP("ToastsPage", "All 24 files are on the server now.")},
    {QT_TRANSLATE_NOOP("ToastsPage", "Warning"), QT_TRANSLATE_NOOP("ToastsPage", "Disk almost full"),
     QT_TRANSLATE_NOOP("ToastsPage", "Less than 2 GB are left on this disk.")},
    {QT_TRANSLATE_NOOP("ToastsPage", "Error"), QT_TRANSLATE_NOOP("ToastsPage", "Connection lost"),
     QT_TRANSLATE_NOOP("ToastsPage", "Changes are kept here until you are back online.")},
    {QT_TRANSLATE_NOOP("ToastsPage", "Information"), QT_TRANSLATE_NOOP("ToastsPage", "Update available"),
     QT_TRANSLATE_NOOP("ToastsPage", "It is installed when you quit.")},
};
constexpr int kKinds = 4;

/// A rectangle over the border between two screens; half outside if there is only one.
QRect acrossScreens()
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    const QRect first = screens.first()->geometry();
    const QRect last = screens.last()->geometry();
    QPoint border(first.right(), first.center().y());
    if (screens.size() > 1)
        border = QPoint(qBound(last.left(), first.center().x(), last.right()),
                        qBound(last.top(), first.center().y(), last.bottom()));
    QRect result(QPoint(), kBridgeSizePx);
    result.moveCenter(border);
    return result;
}

QWidget* createBridge(QWidget* parent)
{
    auto* bridge = new QLabel(ToastsPage::tr("The parent of new toasts is across the screens"), parent,
                              Qt::Tool | Qt::FramelessWindowHint);
    bridge->setObjectName(QStringLiteral("gallery_canvas"));
    bridge->setAlignment(Qt::AlignCenter);
    bridge->setWordWrap(true);
    bridge->setGeometry(acrossScreens());
    bridge->show();
    return bridge;
}

} // namespace

ToastsPage::ToastsPage(QWidget* parent)
    : GalleryPage(tr("Toasts"),
                  tr("Notifications that slide and fade in, stack in one place of the screen and go away by "
                     "themselves. A few are on screen; the others wait for their turn. Under the pointer a "
                     "toast stays, and then for its whole time once more."),
                  parent),
      m_knobs([this] { drawPreviews(); }),
      m_countTimer(new QTimer(this))
{
    addPresets();
    addPlaces();
    addTextAndTime();
    addIcons();
    addColors();
    addRoom();
    addTextToast();
    applyPreset(ToastPreset::SUCCESS);
    m_countTimer->setInterval(kCountIntervalMs);
    connect(m_countTimer, &QTimer::timeout, this, &ToastsPage::updateCounts);
}

ToastsPage::~ToastsPage()
{
    deleteToasts();
}

void ToastsPage::prepareForPicture()
{
    for (const ToastPreset preset : {ToastPreset::SUCCESS, ToastPreset::WARNING_DARK, ToastPreset::ERROR}) {
        applyPreset(preset);
        Toast* toast = createToast();
        toast->setDuration(kPictureStayMs);
        toast->show();
    }
}

void ToastsPage::endPicture()
{
    deleteToasts();
}

void ToastsPage::showEvent(QShowEvent* event)
{
    GalleryPage::showEvent(event);
    updateCounts();
    m_countTimer->start();
}

void ToastsPage::hideEvent(QHideEvent* event)
{
    GalleryPage::hideEvent(event);
    m_countTimer->stop();
}

void ToastsPage::addPresets()
{
    auto* knobs = new KnobPanel;
    knobs->addButton(tr("Show a toast"), [this] { showToast(); });
    knobs->addButton(tr("Show %1 at once").arg(kBurst), [this] { showBurst(); });
    knobs->addButton(tr("Show the next in the queue"), [] { WyToast::showNextInQueue(); });
    knobs->addButton(tr("Reset"), [this] {
        // What was waiting is not deleted by a reset.
        WyToast::reset();
        deleteToasts();
        for (const auto& refresh : qAsConst(m_sharedRefreshers))
            refresh();
    });
    m_visibleCount = knobs->addReadout(tr("On screen"));
    m_queuedCount = knobs->addReadout(tr("Waiting"));
    m_closedCount = knobs->addReadout(tr("Closed"));
    addExample(tr("Eight presets and a queue"), createPresetButtons(), knobs,
               snippet(QStringLiteral("WyToast")));
}

QWidget* ToastsPage::createPresetButtons()
{
    auto* stage = new QWidget;
    auto* grid = flushLayout<QGridLayout>(stage);
    grid->setSpacing(10);
    for (int value = 0; value < 2 * kKinds; ++value) {
        const QString kind = tr(kMessages[value % kKinds].preset);
        auto* button = new QPushButton(value < kKinds ? kind : tr("%1, dark").arg(kind));
        grid->addWidget(button, value % kKinds, value / kKinds);
        connect(button, &QPushButton::clicked, this,
                [this, value] { showPreset(static_cast<ToastPreset>(value)); });
    }
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(kKinds, 1);
    return stage;
}

void ToastsPage::addPlaces()
{
    auto* knobs = new KnobPanel;
    addSharedKnob(knobs, tr("At most"), 0, 100, &WyToast::getMaximumOnScreen, &WyToast::setMaximumOnScreen);
    addSharedKnob(knobs, tr("Spacing"), -50, 200, &WyToast::getSpacing, &WyToast::setSpacing);
    addSharedKnob(knobs, tr("Offset x"), -200, 1000, &WyToast::getOffsetX, &WyToast::setOffsetX);
    addSharedKnob(knobs, tr("Offset y"), -200, 1000, &WyToast::getOffsetY, &WyToast::setOffsetY);
    addScreenKnobs(knobs);
    addExample(tr("Where toasts are"), createPositionButtons(), knobs,
               snippet(QStringLiteral("WyToast-settings")));
}

QWidget* ToastsPage::createPositionButtons()
{
    auto* screen = new QFrame;
    screen->setObjectName(QStringLiteral("gallery_canvas"));
    screen->setLayoutDirection(Qt::LeftToRight); // left and right of the screen are what they are
    auto* grid = new QGridLayout(screen);
    auto* group = new QButtonGroup(screen);
    int position = 0;
    for (const PlaceButton& place : kPlaces) {
        auto* button = new QPushButton(tr(place.name));
        button->setCheckable(true);
        group->addButton(button, position++);
        const Qt::Alignment vertical = place.row == 0   ? Qt::AlignTop
                                       : place.row == 1 ? Qt::AlignVCenter
                                                        : Qt::AlignBottom;
        grid->addWidget(button, place.row, place.column, vertical);
    }
    for (int row = 0; row < 3; ++row)
        grid->setRowStretch(row, 1);
    connect(group, &QButtonGroup::idClicked, this,
            [](int id) { WyToast::setPosition(static_cast<ToastPosition>(id)); });
    m_sharedRefreshers += [group] {
        if (QAbstractButton* button = group->button(static_cast<int>(WyToast::getPosition())))
            button->setChecked(true);
    };
    m_sharedRefreshers.last()();
    return screen;
}

void ToastsPage::addScreenKnobs(KnobPanel* knobs)
{
    knobs->addChoice(tr("Parent"), {tr("This window"), tr("None"), tr("Across two screens")}, m_parentKind,
                     [this](int kind) {
                         m_parentKind = kind;
                         delete m_bridge;
                     });
    QCheckBox* main = knobs->addCheck(tr("Always on the main screen"), WyToast::isAlwaysOnMainScreen(),
                                      [](bool on) { WyToast::setAlwaysOnMainScreen(on); });
    QStringList names(tr("Any"));
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens)
        names += screen->name();
    QComboBox* fixed = knobs->addChoice(tr("Screen"), names, 0, [](int index) {
        WyToast::setFixedScreen(QGuiApplication::screens().value(index - 1));
    });
    m_sharedRefreshers += [main, fixed] {
        const QSignalBlocker mainBlocker(main);
        const QSignalBlocker fixedBlocker(fixed);
        main->setChecked(WyToast::isAlwaysOnMainScreen());
        fixed->setCurrentIndex(QGuiApplication::screens().indexOf(WyToast::getFixedScreen()) + 1);
    };
}

void ToastsPage::addSharedKnob(KnobPanel* knobs, const QString& label, int minimum, int maximum, int (*get)(),
                               void (*set)(int))
{
    QSpinBox* spin = knobs->addInt(label, minimum, maximum, get(), set);
    m_sharedRefreshers += [spin, get] {
        const QSignalBlocker blocker(spin);
        spin->setValue(get());
    };
}

void ToastsPage::addTextAndTime()
{
    auto* knobs = new KnobPanel;
    m_title = m_knobs.addText(knobs, tr("Title"), &WyToast::getTitle, &WyToast::setTitle);
    m_text = m_knobs.addText(knobs, tr("Text"), &WyToast::getText, &WyToast::setText);
    m_knobs.addInt(knobs, tr("Duration (ms)"), 0, kLongestMs, &WyToast::getDuration, &WyToast::setDuration);
    m_knobs.addCheck(knobs, tr("Duration bar"), &WyToast::isShowDurationBar, &WyToast::setShowDurationBar);
    m_knobs.addCheck(knobs, tr("Hovering restarts the duration"), &WyToast::isResetDurationOnHover,
                     &WyToast::setResetDurationOnHover);
    m_knobs.addInt(knobs, tr("Fade in (ms)"), 0, kLongestFadeMs, &WyToast::getFadeInDuration,
                   &WyToast::setFadeInDuration);
    m_knobs.addInt(knobs, tr("Fade out (ms)"), 0, kLongestFadeMs, &WyToast::getFadeOutDuration,
                   &WyToast::setFadeOutDuration);
    m_knobs.addCheck(knobs, tr("On top of other windows"), &WyToast::isStayOnTop, &WyToast::setStayOnTop);
    addExample(tr("Text and time"), createPreview(), knobs, snippet(QStringLiteral("WyToast-more")));
}

void ToastsPage::addIcons()
{
    auto* knobs = new KnobPanel;
    m_knobs.addCheck(knobs, tr("Icon"), &WyToast::isShowIcon, &WyToast::setShowIcon);
    m_knobs.addSize(knobs, tr("Icon"), 128, &WyToast::getIconSize, &WyToast::setIconSize);
    m_knobs.addIcon(knobs, tr("Picture"), &WyToast::getIcon, &WyToast::setIcon, &WyToast::setIcon);
    m_knobs.addCheck(knobs, tr("Separator"), &WyToast::isShowIconSeparator, &WyToast::setShowIconSeparator);
    m_knobs.addInt(knobs, tr("Separator width"), 0, 40, &WyToast::getIconSeparatorWidth,
                   &WyToast::setIconSeparatorWidth);
    m_knobs.addCheck(knobs, tr("Close button"), &WyToast::isShowCloseButton, &WyToast::setShowCloseButton);
    m_knobs.addAlignment(knobs, tr("Its place"));
    m_knobs.addIcon(knobs, tr("Its picture"), &WyToast::getCloseButtonIcon, &WyToast::setCloseButtonIcon,
                    &WyToast::setCloseButtonIcon);
    m_knobs.addSize(knobs, tr("Picture"), 64, &WyToast::getCloseButtonIconSize,
                    &WyToast::setCloseButtonIconSize);
    m_knobs.addSize(knobs, tr("Button"), 128, &WyToast::getCloseButtonSize, &WyToast::setCloseButtonSize);
    addExample(tr("Icon and close button"), createPreview(), knobs, snippet(QStringLiteral("WyToast-icon")));
}

void ToastsPage::addColors()
{
    auto* knobs = new KnobPanel;
    m_knobs.addColor(knobs, tr("Background"), &WyToast::getBackgroundColor, &WyToast::setBackgroundColor);
    m_knobs.addColor(knobs, tr("Title"), &WyToast::getTitleColor, &WyToast::setTitleColor);
    m_knobs.addColor(knobs, tr("Text"), &WyToast::getTextColor, &WyToast::setTextColor);
    m_knobs.addColor(knobs, tr("Icon"), &WyToast::getIconColor, &WyToast::setIconColor);
    m_knobs.addColor(knobs, tr("Separator"), &WyToast::getIconSeparatorColor,
                     &WyToast::setIconSeparatorColor);
    m_knobs.addColor(knobs, tr("Close icon"), &WyToast::getCloseButtonIconColor,
                     &WyToast::setCloseButtonIconColor);
    m_knobs.addColor(knobs, tr("Duration bar"), &WyToast::getDurationBarColor, &WyToast::setDurationBarColor);
    m_knobs.addInt(knobs, tr("Corner radius"), 0, 20, &WyToast::getBorderRadius, &WyToast::setBorderRadius);
    m_knobs.addFont(knobs, tr("Title"), &WyToast::getTitleFont, &WyToast::setTitleFont);
    m_knobs.addFont(knobs, tr("Text"), &WyToast::getTextFont, &WyToast::setTextFont);
    addExample(tr("Colours and fonts"), createPreview(), knobs, snippet(QStringLiteral("WyToast-colors")));
}

void ToastsPage::addRoom()
{
    auto* stage = new QWidget;
    auto* layout = flushLayout<QVBoxLayout>(stage);
    layout->setSpacing(20);
    layout->addWidget(createPreview());
    layout->addWidget(m_knobs.createMarginTable());
    auto* knobs = new KnobPanel;
    m_knobs.addInt(knobs, tr("Title to text"), -20, 100, &WyToast::getTextSectionSpacing,
                   &WyToast::setTextSectionSpacing);
    m_knobs.addBounds(knobs);
    addExample(tr("Margins and bounds"), stage, knobs, snippet(QStringLiteral("WyToast-size")));
}

void ToastsPage::addTextToast()
{
    auto* button = new QPushButton(tr("Show it here"));
    auto* knobs = new KnobPanel;
    QLineEdit* text = knobs->addText(tr("Text"), tr("Copied to the clipboard"), [](const QString&) {});
    QSpinBox* stay = knobs->addInt(tr("Stay (ms)"), 0, kLongestMs, 1500, [](int) {});
    connect(button, &QPushButton::clicked, this, [button, text, stay] {
        WyToastWidget::ShowToastText(button->mapToGlobal(QPoint(0, button->height() + kSmallToastGapPx)),
                                     text->text(), stay->value());
    });
    auto* stage = new QWidget;
    auto* layout = flushLayout<QVBoxLayout>(stage);
    layout->addWidget(button, 0, Qt::AlignTop | Qt::AlignLeft);
    addExample(tr("A line of text at a point"), stage, knobs, snippet(QStringLiteral("WyToastWidget")));
}

QLabel* ToastsPage::createPreview()
{
    auto* preview = new QLabel;
    preview->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    // A wide toast does not widen the page.
    preview->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    preview->setAccessibleName(tr("The toast as the knobs make it"));
    m_previews += preview;
    return preview;
}

WyToast* ToastsPage::createToast()
{
    auto* toast = new Toast(parentOfToasts());
    m_knobs.copyTo(toast);
    connect(toast, &WyToast::closed, this, [this] { ++m_closings; });
    m_toasts.removeAll(nullptr);
    m_toasts += toast;
    return toast;
}

void ToastsPage::showToast()
{
    createToast()->show();
}

void ToastsPage::showPreset(ToastPreset preset)
{
    applyPreset(preset);
    showToast();
}

void ToastsPage::showBurst()
{
    for (int number = 1; number <= kBurst; ++number) {
        Toast* toast = createToast();
        toast->setTitle(tr("%1 of %2").arg(number).arg(kBurst));
        toast->show();
    }
}

void ToastsPage::applyPreset(ToastPreset preset)
{
    const Message& message = kMessages[static_cast<int>(preset) % kKinds];
    m_title->setText(tr(message.title));
    m_text->setText(tr(message.text));
    m_text->setCursorPosition(0);
    m_knobs.applyPreset(preset);
    drawPreviews();
}

void ToastsPage::deleteToasts()
{
    for (const QPointer<Toast>& toast : qAsConst(m_toasts))
        delete toast;
    m_toasts.clear();
}

/// Toasts are drawn as they come on screen, so this takes a place there for a moment: not from a waiting one.
void ToastsPage::drawPreviews()
{
    m_previewsAreStale =
        WyToast::getQueuedCount() > 0 || WyToast::getVisibleCount() >= WyToast::getMaximumOnScreen();
    if (m_previewsAreStale)
        return;
    Toast toast;
    m_knobs.copyTo(&toast);
    toast.setFadeInDuration(0);
    toast.setAttribute(Qt::WA_DontShowOnScreen);
    toast.show();
    const QPixmap picture = toast.grab();
    for (QLabel* preview : qAsConst(m_previews))
        preview->setPixmap(picture);
}

void ToastsPage::updateCounts()
{
    m_visibleCount->setText(QString::number(WyToast::getVisibleCount()));
    m_queuedCount->setText(QString::number(WyToast::getQueuedCount()));
    m_closedCount->setText(QString::number(m_closings));
    if (m_previewsAreStale)
        drawPreviews();
}

QWidget* ToastsPage::parentOfToasts()
{
    switch (m_parentKind) {
    case AcrossScreens:
        if (!m_bridge)
            m_bridge = createBridge(this);
        return m_bridge;
    case ThisWindow:
        return window();
    default:
        return nullptr;
    }
}
