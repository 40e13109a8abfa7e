#include "WyWidgets/wycontrol/WyToast.h"

#include "support/Contract.h"
#include "support/Painting.h"
#include "wycontrol/ToastSupport.h"

#include <QScreen>
#include <QtTest>

using namespace WyWidgets;
using WyTest::ToastParts;

namespace {

/// Any value as text, also of types that QVariant does not know.
template <typename Value>
QString text(const Value& value)
{
    QString result;
    QDebug(&result).nospace() << value;
    return result;
}

QString text(ToastButtonAlignment alignment)
{
    return QString::number(static_cast<int>(alignment));
}

QString text(const QFont& font)
{
    return font.toString();
}

QString text(const QPixmap& pixmap)
{
    return QString::number(pixmap.cacheKey());
}

struct Setting
{
    const char* name;
    std::function<QString(const WyToast&)> get;
    QString byDefault;
    std::function<void(WyToast&)> change;
    QString changed;
};

#define SETTING(Get, Set, Default, Changed)                                                                  \
    Setting                                                                                                  \
    {                                                                                                        \
#Set, [](const WyToast& t) {                                                                         \
            return text(t.Get());                                                                            \
        }, text(Default), [](WyToast & t) {                                                                  \
            t.Set(Changed);                                                                                  \
        }, text(Changed)                                                                                     \
    }

/// A setter of one side of margins.
#define SIDE(Get, Set, Default, Value, Changed)                                                              \
    Setting                                                                                                  \
    {                                                                                                        \
#Set, [](const WyToast& t) {                                                                         \
            return text(t.Get());                                                                            \
        }, text(Default), [](WyToast & t) {                                                                  \
            t.Set(Value);                                                                                    \
        }, text(Changed)                                                                                     \
    }

#define MARGINS(Name, L, T, R, B)                                                                            \
    SETTING(get##Name##s, set##Name##s, QMargins(L, T, R, B), QMargins(1, 2, 3, 4)),                         \
        SIDE(get##Name##s, set##Name##Left, QMargins(L, T, R, B), 77, QMargins(77, T, R, B)),                \
        SIDE(get##Name##s, set##Name##Top, QMargins(L, T, R, B), 77, QMargins(L, 77, R, B)),                 \
        SIDE(get##Name##s, set##Name##Right, QMargins(L, T, R, B), 77, QMargins(L, T, 77, B)),               \
        SIDE(get##Name##s, set##Name##Bottom, QMargins(L, T, R, B), 77, QMargins(L, T, R, 77))

QFont arial(int weight)
{
    return QFont(QStringLiteral("Arial"), 9, weight);
}

QPixmap blackSquare()
{
    static const QPixmap pixmap = [] {
        QPixmap square(20, 20);
        square.fill(Qt::black);
        return square;
    }();
    return pixmap;
}

QVector<Setting> settings()
{
    return {
        SETTING(getDuration, setDuration, 5000, 1234),
        SETTING(isShowDurationBar, setShowDurationBar, true, false),
        SETTING(getTitle, setTitle, QString(""), QString("Title")),
        SETTING(getText, setText, QString(""), QString("Text")),
        SETTING(isShowIcon, setShowIcon, false, true),
        SETTING(getIconSize, setIconSize, QSize(18, 18), QSize(30, 31)),
        SETTING(isShowIconSeparator, setShowIconSeparator, true, false),
        SETTING(getIconSeparatorWidth, setIconSeparatorWidth, 2, 7),
        SETTING(isShowCloseButton, setShowCloseButton, true, false),
        SETTING(getCloseButtonIconSize, setCloseButtonIconSize, QSize(10, 10), QSize(12, 13)),
        SETTING(getCloseButtonSize, setCloseButtonSize, QSize(24, 24), QSize(30, 40)),
        SETTING(getCloseButtonWidth, setCloseButtonWidth, 24, 50),
        SETTING(getCloseButtonHeight, setCloseButtonHeight, 24, 60),
        SETTING(getCloseButtonAlignment, setCloseButtonAlignment, ToastButtonAlignment::TOP,
                ToastButtonAlignment::BOTTOM),
        SETTING(getFadeInDuration, setFadeInDuration, 250, 10),
        SETTING(getFadeOutDuration, setFadeOutDuration, 250, 20),
        SETTING(isResetDurationOnHover, setResetDurationOnHover, true, false),
        SETTING(isStayOnTop, setStayOnTop, true, false),
        SETTING(getBorderRadius, setBorderRadius, 0, 6),
        SETTING(getBackgroundColor, setBackgroundColor, QColor(0xE7, 0xF4, 0xF9), QColor(1, 2, 3)),
        SETTING(getTitleColor, setTitleColor, QColor(0, 0, 0), QColor(4, 5, 6)),
        SETTING(getTextColor, setTextColor, QColor(0x5C, 0x5C, 0x5C), QColor(7, 8, 9)),
        SETTING(getIconColor, setIconColor, QColor(0x5C, 0x5C, 0x5C), QColor(10, 11, 12)),
        SETTING(getIconSeparatorColor, setIconSeparatorColor, QColor(0xD9, 0xD9, 0xD9), QColor(13, 14, 15)),
        SETTING(getCloseButtonIconColor, setCloseButtonIconColor, QColor(0, 0, 0), QColor(16, 17, 18)),
        SETTING(getDurationBarColor, setDurationBarColor, QColor(0x5C, 0x5C, 0x5C), QColor(19, 20, 21)),
        SETTING(getTitleFont, setTitleFont, arial(75), QFont(QStringLiteral("DejaVu Sans"), 20)),
        SETTING(getTextFont, setTextFont, arial(-1), QFont(QStringLiteral("DejaVu Sans"), 21)),
        SETTING(getIcon, setIcon, WyToast::getIconFromEnum(ToastIcon::INFORMATION), blackSquare()),
        SETTING(getIcon, setIcon, WyToast::getIconFromEnum(ToastIcon::INFORMATION), QPixmap()),
        SETTING(getCloseButtonIcon, setCloseButtonIcon, WyToast::getIconFromEnum(ToastIcon::CLOSE),
                blackSquare()),
        SETTING(getTextSectionSpacing, setTextSectionSpacing, 8, -3),
        MARGINS(Margin, 20, 18, 10, 18),
        MARGINS(IconMargin, 0, 0, 15, 0),
        MARGINS(IconSectionMargin, 0, 0, 15, 0),
        MARGINS(TextSectionMargin, 0, 0, 15, 0),
        MARGINS(CloseButtonMargin, 0, -8, 0, -8),
    };
}

QImage shownPicture(const QPushButton* button)
{
    return button->icon().pixmap(button->iconSize()).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The plain way to what recolouring gives.
QImage recolored(const QPixmap& picture, QSize size, const QColor& color)
{
    QImage image = QIcon(picture).pixmap(size).toImage().convertToFormat(QImage::Format_ARGB32);
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            const int alpha = qAlpha(image.pixel(x, y));
            image.setPixel(x, y, qRgba(color.red(), color.green(), color.blue(), alpha));
        }
    }
    return QPixmap::fromImage(image).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// What is seen of the toast once it has come, with an icon, texts and a duration bar.
QImage lookOf(WyToast* toast)
{
    toast->applyPreset(ToastPreset::INFORMATION);
    toast->setTitle("Title");
    toast->setText("Text");
    toast->setFadeInDuration(0);
    toast->show();
    return toast->grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

class TestWyToastSettings : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { WyTest::resetToasts(); }

    void registersItsSignalAndSlots();
    void numbersItsEnumerations();
    void theConstructorBuildsTheTreeInOrder();
    void theConstructorSetsUpTheWindow();
    void theWindowTypeDependsOnTheParent_data();
    void theWindowTypeDependsOnTheParent();
    void theBaseStyleSheetIsTheFile();

    void settingsStartWithTheirDefaults_data() { settingRows(); }
    void settingsStartWithTheirDefaults();
    void settersStore_data() { settingRows(); }
    void settersStore();
    void settersDoNothingOnceShown_data() { settingRows(); }
    void settersDoNothingOnceShown();
    void settersWorkWhileQueued_data() { settingRows(); }
    void settersWorkWhileQueued();

    void titleAndTextReachTheirLabels();
    void fontsReachTheirLabels();
    void iconSizesReachTheButtons();
    void theSeparatorIsAsWideAsItShows();
    void aNegativeSeparatorWidthCountsAsNone();
    void theCloseButtonIsFixed();
    void fixedSizesSetMinimumAndMaximumOnly();
    void fixedSizesWorkOnceShown();

    void builtInIcons_data();
    void builtInIcons();
    void unknownIconsAreNull();
    void theFolderIsAbsolute();
    void recoloringKeepsAlpha_data();
    void recoloringKeepsAlpha();
    void recoloringNothingGivesNothing();
    void buttonsShowSilhouettes();
    void anIconIsPaintedInTheMiddleOfItsButton();
    void anIconIsPaintedOverWhatTheHostGivesItsButton();
    void aNewCloseButtonIconTakesTheColorThatIsSet();
    void recoloringKeepsTheStoredPicture();
    void resizingStartsFromTheStoredPicture();
    void anIconGivenToTheButtonIsRecoloured();
    void smallPicturesAreNotEnlarged();
    void equalIconsAreSharedAmongToasts();
    void iconsAreAsSharpAsTheScreen();
    void iconsOfHighDpiPixmapsAreAsSharpAsTheScreen();

    void presets_data();
    void presets();
    void unknownPresetsLeaveTheColors_data();
    void unknownPresetsLeaveTheColors();
    void presetsDoNothingOnceShown();

    void partsAreStyledFromTheSettings();
    void aToastThatStaysHasARoundChunk_data();
    void aToastThatStaysHasARoundChunk();
    void aStyleSheetOfTheApplicationLeavesTheLookAlone();
    void aStyleSheetSetAgainLeavesTheLookAlone();
    void partsHaveAccessibleNames();

private:
    static void settingRows();
};

void TestWyToastSettings::registersItsSignalAndSlots()
{
    WY_COMPARE_CONTRACT(
        WyToast, {"closed()"},
        {"show()", "hide()", "hide_()", "fadeOut()", "updateDurationBar()", "deleteAndShowNextInQueue()"},
        {});
    const QMetaObject& meta = WyToast::staticMetaObject;
    QCOMPARE(meta.superClass()->className(), "QDialog");
    for (const char* slot : {"show()", "hide()"})
        QCOMPARE(meta.method(meta.indexOfSlot(slot)).access(), QMetaMethod::Public);
    for (const char* slot : {"hide_()", "fadeOut()", "updateDurationBar()", "deleteAndShowNextInQueue()"})
        QCOMPARE(meta.method(meta.indexOfSlot(slot)).access(), QMetaMethod::Private);
}

void TestWyToastSettings::numbersItsEnumerations()
{
    QCOMPARE(static_cast<int>(ToastPosition::BOTTOM_LEFT), 0);
    QCOMPARE(static_cast<int>(ToastPosition::BOTTOM_MIDDLE), 1);
    QCOMPARE(static_cast<int>(ToastPosition::BOTTOM_RIGHT), 2);
    QCOMPARE(static_cast<int>(ToastPosition::TOP_LEFT), 3);
    QCOMPARE(static_cast<int>(ToastPosition::TOP_MIDDLE), 4);
    QCOMPARE(static_cast<int>(ToastPosition::TOP_RIGHT), 5);
    QCOMPARE(static_cast<int>(ToastPosition::CENTER), 6);
    QCOMPARE(static_cast<int>(ToastPreset::SUCCESS), 0);
    QCOMPARE(static_cast<int>(ToastPreset::WARNING), 1);
    QCOMPARE(static_cast<int>(ToastPreset::ERROR), 2);
    QCOMPARE(static_cast<int>(ToastPreset::INFORMATION), 3);
    QCOMPARE(static_cast<int>(ToastPreset::SUCCESS_DARK), 4);
    QCOMPARE(static_cast<int>(ToastPreset::WARNING_DARK), 5);
    QCOMPARE(static_cast<int>(ToastPreset::ERROR_DARK), 6);
    QCOMPARE(static_cast<int>(ToastPreset::INFORMATION_DARK), 7);
    QCOMPARE(static_cast<int>(ToastIcon::SUCCESS), 0);
    QCOMPARE(static_cast<int>(ToastIcon::WARNING), 1);
    QCOMPARE(static_cast<int>(ToastIcon::ERROR), 2);
    QCOMPARE(static_cast<int>(ToastIcon::INFORMATION), 3);
    QCOMPARE(static_cast<int>(ToastIcon::CLOSE), 4);
    QCOMPARE(static_cast<int>(ToastButtonAlignment::TOP), 0);
    QCOMPARE(static_cast<int>(ToastButtonAlignment::MIDDLE), 1);
    QCOMPARE(static_cast<int>(ToastButtonAlignment::BOTTOM), 2);
}

void TestWyToastSettings::theConstructorBuildsTheTreeInOrder()
{
    WyToast toast;
    const auto describe = [](const QObject* parent) {
        QStringList lines;
        for (const QObject* child : parent->children())
            lines += QString::fromLatin1(child->metaObject()->className()) + ' ' + child->objectName();
        return lines;
    };
    QCOMPARE(
        describe(&toast),
        (QStringList{"QLabel ", "QWidget toast-drop-shadow-layer-1", "QWidget toast-drop-shadow-layer-2",
                     "QWidget toast-drop-shadow-layer-3", "QWidget toast-drop-shadow-layer-4",
                     "QWidget toast-drop-shadow-layer-5", "QGraphicsOpacityEffect ", "QTimer ", "QTimer "}));
    const ToastParts parts(&toast);
    QCOMPARE(describe(parts.body), (QStringList{"QPushButton toast-close-button", "QLabel ", "QLabel ",
                                                "QPushButton toast-icon-widget", "QWidget ", "QWidget "}));
    QCOMPARE(describe(parts.barContainer), (QStringList{"QWidget ", "QWidget "}));

    QCOMPARE(toast.graphicsEffect(), parts.effect);
    QCOMPARE(parts.effect->opacity(), 1.0);
    QCOMPARE(parts.closeButton->cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(parts.separator->minimumWidth(), 2);
    QCOMPARE(parts.separator->maximumWidth(), 2);
    QCOMPARE(parts.barContainer->minimumHeight(), 4);
    QCOMPARE(parts.barContainer->maximumHeight(), 4);
    QCOMPARE(parts.barContainer->styleSheet(), QString("background: transparent;"));
    for (QWidget* bar : {parts.bar, parts.chunk}) {
        QCOMPARE(bar->minimumHeight(), 20);
        QCOMPARE(bar->maximumHeight(), 20);
        QCOMPARE(bar->pos(), QPoint(0, -16));
    }
    QVERIFY(parts.durationTimer->isSingleShot());
    QVERIFY(!parts.durationTimer->isActive());
    QVERIFY(!parts.barTimer->isSingleShot());
    QVERIFY(!parts.barTimer->isActive());
}

void TestWyToastSettings::theConstructorSetsUpTheWindow()
{
    WyToast toast;
    QVERIFY(toast.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(toast.testAttribute(Qt::WA_ShowWithoutActivating));
    QVERIFY(!toast.testAttribute(Qt::WA_QuitOnClose));
    QCOMPARE(toast.focusPolicy(), Qt::NoFocus);
    QVERIFY(toast.isHidden());
}

void TestWyToastSettings::theWindowTypeDependsOnTheParent_data()
{
    QTest::addColumn<bool>("hasParent");
    QTest::addColumn<bool>("stays");
    for (const bool hasParent : {false, true}) {
        for (const bool stays : {false, true})
            QTest::addRow("parent %d, on top %d", hasParent, stays) << hasParent << stays;
    }
}

void TestWyToastSettings::theWindowTypeDependsOnTheParent()
{
    QFETCH(const bool, hasParent);
    QFETCH(const bool, stays);
    QWidget parent;
    WyToast toast(hasParent ? &parent : nullptr);
    QVERIFY(toast.windowFlags() & Qt::WindowStaysOnTopHint);
    toast.setStayOnTop(stays);
    QCOMPARE(toast.windowType(), hasParent ? Qt::Window : Qt::Tool);
    QCOMPARE(toast.windowFlags() & ~Qt::WindowType_Mask,
             Qt::CustomizeWindowHint | Qt::FramelessWindowHint |
                 (stays ? Qt::WindowStaysOnTopHint : Qt::WindowFlags()));
    QVERIFY(!toast.testAttribute(Qt::WA_QuitOnClose));
}

void TestWyToastSettings::theBaseStyleSheetIsTheFile()
{
    QFile file(WyToast::getCurrentDirectory() + "/css/toast.css");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString sheet = QString::fromUtf8(file.readAll());
    QVERIFY(sheet.contains("toast-drop-shadow-layer-5"));
    QCOMPARE(WyToast().styleSheet(), sheet);
}

void TestWyToastSettings::settingRows()
{
    QTest::addColumn<int>("index");
    const QVector<Setting> all = settings();
    for (int i = 0; i < all.size(); ++i)
        QTest::addRow("%d %s", i, all.at(i).name) << i;
}

void TestWyToastSettings::settingsStartWithTheirDefaults()
{
    QFETCH(const int, index);
    const Setting setting = settings().at(index);
    QCOMPARE(setting.get(WyToast()), setting.byDefault);
}

void TestWyToastSettings::settersStore()
{
    QFETCH(const int, index);
    const Setting setting = settings().at(index);
    WyToast toast;
    setting.change(toast);
    QCOMPARE(setting.get(toast), setting.changed);
    QVERIFY(setting.changed != setting.byDefault);
}

void TestWyToastSettings::settersDoNothingOnceShown()
{
    QFETCH(const int, index);
    const Setting setting = settings().at(index);
    auto* toast = new WyToast;
    toast->show();
    const ToastParts parts(toast);
    const qint64 icon = parts.icon->icon().cacheKey();
    const qint64 closeIcon = parts.closeButton->icon().cacheKey();
    const Qt::WindowFlags flags = toast->windowFlags();
    setting.change(*toast);
    QCOMPARE(setting.get(*toast), setting.byDefault);
    QCOMPARE(parts.icon->icon().cacheKey(), icon);
    QCOMPARE(parts.closeButton->icon().cacheKey(), closeIcon);
    QCOMPARE(parts.icon->size(), QSize(18, 18));
    QCOMPARE(parts.icon->iconSize(), QSize(18, 18));
    QCOMPARE(parts.closeButton->size(), QSize(24, 24));
    QCOMPARE(parts.closeButton->iconSize(), QSize(10, 10));
    QCOMPARE(parts.separator->width(), 2);
    QCOMPARE(parts.title->text(), QString());
    QCOMPARE(parts.text->text(), QString());
    QCOMPARE(parts.title->font().pointSize(), 9);
    QCOMPARE(parts.text->font().pointSize(), 9);
    QCOMPARE(toast->windowFlags(), flags);
}

void TestWyToastSettings::settersWorkWhileQueued()
{
    QFETCH(const int, index);
    const Setting setting = settings().at(index);
    WyToast::setMaximumOnScreen(0);
    WyToast toast;
    toast.show();
    QCOMPARE(WyToast::getQueuedCount(), 1);
    setting.change(toast);
    QCOMPARE(setting.get(toast), setting.changed);
}

void TestWyToastSettings::titleAndTextReachTheirLabels()
{
    WyToast toast;
    toast.setTitle("One");
    toast.setText("Two");
    QCOMPARE(ToastParts(&toast).title->text(), QString("One"));
    QCOMPARE(ToastParts(&toast).text->text(), QString("Two"));
}

void TestWyToastSettings::fontsReachTheirLabels()
{
    WyToast toast;
    const ToastParts parts(&toast);
    QCOMPARE(parts.title->font().family(), QString("Arial"));
    QCOMPARE(parts.title->font().pointSize(), 9);
    QCOMPARE(parts.title->font().weight(), 75);
    QVERIFY(!parts.title->font().italic());
    QCOMPARE(parts.text->font().family(), QString("Arial"));
    QCOMPARE(parts.text->font().pointSize(), 9);
    QCOMPARE(parts.text->font().weight(), int(QFont::Normal));
    QVERIFY(!parts.text->font().italic());
    toast.setTitleFont(QFont("DejaVu Sans", 20));
    toast.setTextFont(QFont("DejaVu Serif", 21));
    QCOMPARE(parts.title->font().family(), QString("DejaVu Sans"));
    QCOMPARE(parts.title->font().pointSize(), 20);
    QCOMPARE(parts.text->font().family(), QString("DejaVu Serif"));
    QCOMPARE(parts.text->font().pointSize(), 21);
}

void TestWyToastSettings::iconSizesReachTheButtons()
{
    WyToast toast;
    const ToastParts parts(&toast);
    toast.setIconSize(QSize(30, 31));
    QCOMPARE(parts.icon->iconSize(), QSize(30, 31));
    QCOMPARE(parts.icon->minimumSize(), QSize(30, 31));
    QCOMPARE(parts.icon->maximumSize(), QSize(30, 31));
    toast.setCloseButtonIconSize(QSize(16, 17));
    QCOMPARE(parts.closeButton->iconSize(), QSize(16, 17));
    // The button around it keeps its size.
    QCOMPARE(parts.closeButton->size(), QSize(24, 24));
}

void TestWyToastSettings::theSeparatorIsAsWideAsItShows()
{
    WyToast toast;
    const ToastParts parts(&toast);
    toast.setIconSeparatorWidth(5);
    QCOMPARE(parts.separator->width(), 5);
    toast.setShowIconSeparator(false);
    QCOMPARE(parts.separator->width(), 0);
    QCOMPARE(parts.separator->maximumWidth(), 0);
    toast.setIconSeparatorWidth(9);
    QCOMPARE(parts.separator->width(), 0);
    toast.setShowIconSeparator(true);
    QCOMPARE(parts.separator->width(), 9);
}

void TestWyToastSettings::aNegativeSeparatorWidthCountsAsNone()
{
    WyToast toast;
    toast.setIconSeparatorWidth(-4);
    toast.setCloseButtonSize(QSize(-1, -1));
    toast.setIconSize(QSize(-1, -1));
    QCOMPARE(toast.getIconSeparatorWidth(), -4);
    QCOMPARE(ToastParts(&toast).separator->width(), 0);
    QCOMPARE(ToastParts(&toast).closeButton->size(), QSize(0, 0));
    QCOMPARE(ToastParts(&toast).icon->size(), QSize(0, 0));
}

void TestWyToastSettings::theCloseButtonIsFixed()
{
    WyToast toast;
    const ToastParts parts(&toast);
    toast.setCloseButtonSize(QSize(30, 40));
    QCOMPARE(parts.closeButton->minimumSize(), QSize(30, 40));
    QCOMPARE(parts.closeButton->maximumSize(), QSize(30, 40));
    toast.setCloseButtonWidth(31);
    QCOMPARE(parts.closeButton->size(), QSize(31, 40));
    QCOMPARE(toast.getCloseButtonSize(), QSize(31, 40));
    toast.setCloseButtonHeight(41);
    QCOMPARE(parts.closeButton->size(), QSize(31, 41));
}

void TestWyToastSettings::fixedSizesSetMinimumAndMaximumOnly()
{
    WyToast toast;
    const QSizePolicy policy = toast.sizePolicy();
    toast.setFixedSize(QSize(300, 90));
    QCOMPARE(toast.minimumSize(), QSize(300, 90));
    QCOMPARE(toast.maximumSize(), QSize(300, 90));
    toast.setFixedSize(310, 91);
    QCOMPARE(toast.minimumSize(), QSize(310, 91));
    QCOMPARE(toast.maximumSize(), QSize(310, 91));
    toast.setFixedWidth(320);
    QCOMPARE(toast.minimumSize(), QSize(320, 91));
    QCOMPARE(toast.maximumSize(), QSize(320, 91));
    toast.setFixedHeight(92);
    QCOMPARE(toast.minimumSize(), QSize(320, 92));
    QCOMPARE(toast.maximumSize(), QSize(320, 92));
    QCOMPARE(toast.sizePolicy(), policy);
}

void TestWyToastSettings::fixedSizesWorkOnceShown()
{
    auto* toast = new WyToast;
    toast->show();
    toast->setFixedSize(QSize(300, 90));
    QCOMPARE(toast->size(), QSize(300, 90));
    toast->setFixedSize(310, 91);
    QCOMPARE(toast->size(), QSize(310, 91));
    toast->setFixedWidth(320);
    QCOMPARE(toast->size(), QSize(320, 91));
    toast->setFixedHeight(92);
    QCOMPARE(toast->size(), QSize(320, 92));
}

void TestWyToastSettings::builtInIcons_data()
{
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("file");
    QTest::newRow("success") << 0 << "/icons/success.png";
    QTest::newRow("warning") << 1 << "/icons/warning.png";
    QTest::newRow("error") << 2 << "/icons/error.png";
    QTest::newRow("information") << 3 << "/icons/information.png";
    QTest::newRow("close") << 4 << "/icons/close.png";
}

void TestWyToastSettings::builtInIcons()
{
    QFETCH(const int, icon);
    QFETCH(const QString, file);
    const QImage image(WyToast::getCurrentDirectory() + file);
    QVERIFY(!image.isNull());
    // Large enough for dense screens, with both opaque and transparent places.
    QVERIFY(image.width() >= 80);
    QCOMPARE(image.width(), image.height());
    QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
    WY_COMPARE_PICTURES(WyToast::getIconFromEnum(ToastIcon(icon)).toImage(),
                        QPixmap::fromImage(image).toImage());

    WyToast toast;
    toast.setIcon(ToastIcon(icon));
    toast.setCloseButtonIcon(ToastIcon(icon));
    QCOMPARE(toast.getIcon().cacheKey(), WyToast::getIconFromEnum(ToastIcon(icon)).cacheKey());
    QCOMPARE(toast.getCloseButtonIcon().cacheKey(), toast.getIcon().cacheKey());
}

void TestWyToastSettings::unknownIconsAreNull()
{
    QVERIFY(WyToast::getIconFromEnum(ToastIcon(5)).isNull());
    QVERIFY(WyToast::getIconFromEnum(ToastIcon(-1)).isNull());
    WyToast toast;
    toast.setIcon(ToastIcon(5));
    QVERIFY(toast.getIcon().isNull());
    QVERIFY(ToastParts(&toast).icon->icon().isNull());
}

void TestWyToastSettings::theFolderIsAbsolute()
{
    const QString folder = WyToast::getCurrentDirectory();
    QVERIFY(QDir::isAbsolutePath(folder));
    QVERIFY(!folder.endsWith('/'));
    QVERIFY(QFile::exists(folder + "/css/toast.css"));
}

void TestWyToastSettings::recoloringKeepsAlpha_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("ARGB32") << int(QImage::Format_ARGB32);
    QTest::newRow("ARGB32 premultiplied") << int(QImage::Format_ARGB32_Premultiplied);
    QTest::newRow("RGB32") << int(QImage::Format_RGB32);
    QTest::newRow("RGBA8888") << int(QImage::Format_RGBA8888);
    QTest::newRow("indexed") << int(QImage::Format_Indexed8);
    QTest::newRow("mono") << int(QImage::Format_Mono);
}

void TestWyToastSettings::recoloringKeepsAlpha()
{
    QFETCH(const int, format);
    QImage image(7, 5, QImage::Format_ARGB32);
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            image.setPixel(x, y, qRgba(x * 30, y * 40, 200, x * 42));
    }
    image = image.convertToFormat(QImage::Format(format));
    const QImage result = WyToast::recolorImage(image, QColor(10, 200, 30, 5));
    QCOMPARE(result.size(), image.size());
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            QCOMPARE(result.pixelColor(x, y), QColor(10, 200, 30, image.pixelColor(x, y).alpha()));
    }
}

void TestWyToastSettings::recoloringNothingGivesNothing()
{
    QVERIFY(WyToast::recolorImage(QImage(), Qt::red).isNull());
    QImage dense(4, 4, QImage::Format_ARGB32);
    dense.fill(Qt::black);
    dense.setDevicePixelRatio(2);
    QCOMPARE(WyToast::recolorImage(dense, QColor()).devicePixelRatio(), 2.0);
    QCOMPARE(WyToast::recolorImage(dense, QColor()).pixelColor(1, 1), QColor(Qt::black));
}

void TestWyToastSettings::buttonsShowSilhouettes()
{
    WyToast toast;
    const ToastParts parts(&toast);
    WY_COMPARE_PICTURES(shownPicture(parts.icon),
                        recolored(toast.getIcon(), QSize(18, 18), QColor(0x5C, 0x5C, 0x5C)));
    WY_COMPARE_PICTURES(shownPicture(parts.closeButton),
                        recolored(toast.getCloseButtonIcon(), QSize(10, 10), Qt::black));
    toast.setIconColor(QColor(200, 10, 20));
    toast.setCloseButtonIconColor(QColor(20, 10, 200));
    WY_COMPARE_PICTURES(shownPicture(parts.icon),
                        recolored(toast.getIcon(), QSize(18, 18), QColor(200, 10, 20)));
    WY_COMPARE_PICTURES(shownPicture(parts.closeButton),
                        recolored(toast.getCloseButtonIcon(), QSize(10, 10), QColor(20, 10, 200)));
    QPixmap colorful(40, 20);
    colorful.fill(Qt::transparent);
    QPainter(&colorful).fillRect(3, 3, 20, 10, Qt::yellow);
    toast.setIcon(colorful);
    WY_COMPARE_PICTURES(shownPicture(parts.icon), recolored(colorful, QSize(18, 18), QColor(200, 10, 20)));
    // A picture keeps its proportions.
    QCOMPARE(shownPicture(parts.icon).size(), QSize(18, 9));
}

void TestWyToastSettings::anIconIsPaintedInTheMiddleOfItsButton()
{
    WyToast toast;
    toast.setCloseButtonIcon(blackSquare());
    toast.setCloseButtonSize(QSize(40, 30));
    toast.setCloseButtonIconSize(QSize(10, 10));
    toast.setCloseButtonIconColor(Qt::red);
    WY_COMPARE_PICTURES(
        WyTest::picture(ToastParts(&toast).closeButton),
        WyTest::painted(QSize(40, 30), [](QPainter& painter) { painter.fillRect(15, 10, 10, 10, Qt::red); }));
}

void TestWyToastSettings::anIconIsPaintedOverWhatTheHostGivesItsButton()
{
    WyToast toast;
    toast.setCloseButtonIcon(blackSquare());
    toast.setCloseButtonIconColor(Qt::red);
    QPushButton* button = ToastParts(&toast).closeButton;
    button->setStyleSheet(QStringLiteral("background: blue; border: none;"));
    WY_COMPARE_PICTURES(WyTest::picture(button), WyTest::painted(QSize(24, 24), [](QPainter& painter) {
                            painter.fillRect(0, 0, 24, 24, Qt::blue);
                            painter.fillRect(7, 7, 10, 10, Qt::red);
                        }));
}

void TestWyToastSettings::aNewCloseButtonIconTakesTheColorThatIsSet()
{
    WyToast toast;
    toast.setCloseButtonIconColor(Qt::red);
    toast.setCloseButtonIcon(blackSquare());
    WY_COMPARE_PICTURES(shownPicture(ToastParts(&toast).closeButton),
                        recolored(blackSquare(), QSize(10, 10), Qt::red));
}

void TestWyToastSettings::recoloringKeepsTheStoredPicture()
{
    WyToast toast;
    toast.setIcon(blackSquare());
    toast.setCloseButtonIcon(blackSquare());
    toast.setIconColor(Qt::red);
    toast.setCloseButtonIconColor(Qt::red);
    QCOMPARE(toast.getIcon().cacheKey(), blackSquare().cacheKey());
    QCOMPARE(toast.getCloseButtonIcon().cacheKey(), blackSquare().cacheKey());
}

void TestWyToastSettings::resizingStartsFromTheStoredPicture()
{
    WyToast toast;
    const ToastParts parts(&toast);
    toast.setIconSize(QSize(6, 6));
    toast.setIconSize(QSize(60, 60));
    WY_COMPARE_PICTURES(shownPicture(parts.icon),
                        recolored(toast.getIcon(), QSize(60, 60), QColor(0x5C, 0x5C, 0x5C)));
    toast.setCloseButtonIconSize(QSize(4, 4));
    toast.setCloseButtonIconSize(QSize(40, 40));
    WY_COMPARE_PICTURES(shownPicture(parts.closeButton),
                        recolored(toast.getCloseButtonIcon(), QSize(40, 40), Qt::black));
}

void TestWyToastSettings::anIconGivenToTheButtonIsRecoloured()
{
    WyToast toast;
    const ToastParts parts(&toast);
    parts.icon->setIcon(QIcon(blackSquare()));
    toast.setIconColor(Qt::red);
    WY_COMPARE_PICTURES(shownPicture(parts.icon), recolored(blackSquare(), QSize(18, 18), Qt::red));
    toast.setIcon(ToastIcon::ERROR);
    WY_COMPARE_PICTURES(shownPicture(parts.icon),
                        recolored(WyToast::getIconFromEnum(ToastIcon::ERROR), QSize(18, 18), Qt::red));
}

void TestWyToastSettings::smallPicturesAreNotEnlarged()
{
    WyToast toast;
    toast.setIconSize(QSize(100, 100));
    toast.setIcon(blackSquare());
    QCOMPARE(shownPicture(ToastParts(&toast).icon).size(), QSize(20, 20));
}

void TestWyToastSettings::equalIconsAreSharedAmongToasts()
{
    WyToast first;
    WyToast second;
    first.applyPreset(ToastPreset::ERROR);
    second.applyPreset(ToastPreset::ERROR);
    QCOMPARE(ToastParts(&first).icon->icon().cacheKey(), ToastParts(&second).icon->icon().cacheKey());
    QCOMPARE(first.getIcon().cacheKey(), second.getIcon().cacheKey());
    second.applyPreset(ToastPreset::SUCCESS);
    QVERIFY(ToastParts(&first).icon->icon().cacheKey() != ToastParts(&second).icon->icon().cacheKey());
}

/// The icon button as it looks on the screen, beside the stored picture scaled to as many pixels.
void TestWyToastSettings::iconsAreAsSharpAsTheScreen()
{
    WyToast toast;
    toast.setIcon(ToastIcon::SUCCESS);
    toast.setIconColor(Qt::black);
    const ToastParts parts(&toast);
    parts.icon->setStyleSheet("border: none; background: transparent;");
    const qreal ratio = qApp->devicePixelRatio();
    const QImage shown = WyTest::picture(parts.icon, ratio);
    const QImage stored =
        toast.getIcon().toImage().scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage expected = WyToast::recolorImage(stored, Qt::black);
    const QString difference = WyTest::difference(shown, expected.convertToFormat(shown.format()), 1);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void TestWyToastSettings::iconsOfHighDpiPixmapsAreAsSharpAsTheScreen()
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const auto restore = qScopeGuard([] { QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, false); });
    // Not a size or colour that another test has used: icons are kept.
    WyToast toast;
    toast.setIconSize(QSize(24, 24));
    toast.setIcon(ToastIcon::WARNING);
    toast.setIconColor(QColor(1, 0, 0));
    const ToastParts parts(&toast);
    parts.icon->setStyleSheet("border: none; background: transparent;");
    const qreal ratio = qApp->devicePixelRatio();
    const QImage shown = WyTest::picture(parts.icon, ratio);
    const QImage stored =
        toast.getIcon().toImage().scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage expected = WyToast::recolorImage(stored, QColor(1, 0, 0));
    const QString difference = WyTest::difference(shown, expected.convertToFormat(shown.format()), 1);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
    QCOMPARE(parts.icon->icon().pixmap(QSize(24, 24)).size(), QSize(24, 24) * ratio);
}

void TestWyToastSettings::presets_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("accent");
    QTest::addColumn<bool>("dark");
    const char* accents[] = {"#3E9141", "#E8B849", "#BA2626", "#007FFF"};
    for (int preset = 0; preset < 8; ++preset)
        QTest::addRow("preset %d", preset) << preset << preset % 4 << accents[preset % 4] << (preset > 3);
}

void TestWyToastSettings::presets()
{
    QFETCH(const int, preset);
    QFETCH(const int, icon);
    QFETCH(const QString, accent);
    QFETCH(const bool, dark);
    WyToast toast;
    toast.setShowDurationBar(false);
    toast.setShowIconSeparator(false);
    toast.setIconSeparatorWidth(9);
    toast.applyPreset(ToastPreset(preset));
    QCOMPARE(toast.getIcon().cacheKey(), WyToast::getIconFromEnum(ToastIcon(icon)).cacheKey());
    QCOMPARE(toast.getIconColor(), QColor(accent));
    QCOMPARE(toast.getDurationBarColor(), QColor(accent));
    QCOMPARE(toast.getBackgroundColor(), QColor(dark ? "#292929" : "#E7F4F9"));
    QCOMPARE(toast.getCloseButtonIconColor(), QColor(dark ? "#C9C9C9" : "#000000"));
    QCOMPARE(toast.getIconSeparatorColor(), QColor(dark ? "#585858" : "#D9D9D9"));
    QCOMPARE(toast.getTitleColor(), QColor(dark ? "#FFFFFF" : "#000000"));
    QCOMPARE(toast.getTextColor(), QColor(dark ? "#D0D0D0" : "#5C5C5C"));
    QVERIFY(toast.isShowDurationBar());
    QVERIFY(toast.isShowIcon());
    QVERIFY(toast.isShowIconSeparator());
    QCOMPARE(toast.getIconSeparatorWidth(), 2);
    QCOMPARE(ToastParts(&toast).separator->width(), 2);
    WY_COMPARE_PICTURES(shownPicture(ToastParts(&toast).icon),
                        recolored(toast.getIcon(), QSize(18, 18), QColor(accent)));
    WY_COMPARE_PICTURES(
        shownPicture(ToastParts(&toast).closeButton),
        recolored(toast.getCloseButtonIcon(), QSize(10, 10), QColor(dark ? "#C9C9C9" : "#000000")));
}

void TestWyToastSettings::unknownPresetsLeaveTheColors_data()
{
    QTest::addColumn<int>("preset");
    for (const int preset :
         {-1, -4, -8, 8, 9, 12, 1000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QTest::addRow("%d", preset) << preset;
}

void TestWyToastSettings::unknownPresetsLeaveTheColors()
{
    QFETCH(const int, preset);
    WyToast toast;
    const QColor mine(1, 2, 3);
    toast.setIcon(blackSquare());
    toast.setIconColor(mine);
    toast.setDurationBarColor(mine);
    toast.setBackgroundColor(mine);
    toast.setCloseButtonIconColor(mine);
    toast.setIconSeparatorColor(mine);
    toast.setTitleColor(mine);
    toast.setTextColor(mine);
    toast.setShowDurationBar(false);
    toast.setShowIconSeparator(false);
    toast.setIconSeparatorWidth(9);
    toast.applyPreset(ToastPreset(preset));
    QCOMPARE(toast.getIcon().cacheKey(), blackSquare().cacheKey());
    for (const QColor& color : {toast.getIconColor(), toast.getDurationBarColor(), toast.getBackgroundColor(),
                                toast.getCloseButtonIconColor(), toast.getIconSeparatorColor(),
                                toast.getTitleColor(), toast.getTextColor()})
        QCOMPARE(color, mine);
    QVERIFY(toast.isShowDurationBar());
    QVERIFY(toast.isShowIcon());
    QVERIFY(toast.isShowIconSeparator());
    QCOMPARE(toast.getIconSeparatorWidth(), 2);
    QCOMPARE(ToastParts(&toast).separator->width(), 2);
}

void TestWyToastSettings::presetsDoNothingOnceShown()
{
    auto* toast = new WyToast;
    toast->show();
    toast->applyPreset(ToastPreset::ERROR_DARK);
    QCOMPARE(toast->getBackgroundColor(), QColor("#E7F4F9"));
    QCOMPARE(toast->getDurationBarColor(), QColor("#5C5C5C"));
    QVERIFY(!toast->isShowIcon());
    QCOMPARE(toast->getIcon().cacheKey(), WyToast::getIconFromEnum(ToastIcon::INFORMATION).cacheKey());
}

void TestWyToastSettings::partsAreStyledFromTheSettings()
{
    auto* toast = new WyToast;
    toast->setBackgroundColor(QColor(0xAB, 0xCD, 0xEF));
    toast->setBorderRadius(7);
    toast->setDurationBarColor(QColor(1, 22, 255));
    toast->setIconSeparatorColor(QColor(0xFE, 0xDC, 0xBA));
    toast->setTitleColor(QColor(0x0A, 0x0B, 0x0C));
    toast->setTextColor(QColor(0xD0, 0xE0, 0xF0));
    const ToastParts parts(toast);
    for (QWidget* widget :
         QList<QWidget*>{parts.body, parts.bar, parts.chunk, parts.separator, parts.title, parts.text})
        QCOMPARE(widget->styleSheet(), QString());
    toast->show();
    QCOMPARE(parts.body->styleSheet(), QString("background: #abcdef;border-radius: 7px; "));
    QCOMPARE(parts.bar->styleSheet(), QString("background: rgba(1, 22, 255, 100);border-radius: 7px;"));
    QCOMPARE(parts.chunk->styleSheet(),
             QString("background: rgba(1, 22, 255, 255);border-bottom-left-radius: 7px; "
                     "border-bottom-right-radius: 0px;"));
    QCOMPARE(parts.separator->styleSheet(), QString("background: #fedcba;"));
    QCOMPARE(parts.title->styleSheet(), QString("color: #0a0b0c;"));
    QCOMPARE(parts.text->styleSheet(), QString("color: #d0e0f0;"));
}

void TestWyToastSettings::aToastThatStaysHasARoundChunk_data()
{
    QTest::addColumn<int>("duration");
    QTest::newRow("0") << 0;
    QTest::newRow("negative") << -1;
}

void TestWyToastSettings::aToastThatStaysHasARoundChunk()
{
    QFETCH(const int, duration);
    auto* toast = new WyToast;
    toast->setDuration(duration);
    toast->setBorderRadius(9);
    toast->show();
    QCOMPARE(ToastParts(toast).chunk->styleSheet(),
             QString("background: rgba(92, 92, 92, 255);border-bottom-left-radius: 9px; "
                     "border-bottom-right-radius: 9px;"));
}

void TestWyToastSettings::aStyleSheetOfTheApplicationLeavesTheLookAlone()
{
    const auto look = [] {
        return lookOf(new WyToast);
    };
    const QImage plain = look();
    QVERIFY(qAlpha(plain.pixel(0, 0)) < 20);
    QCOMPARE(plain.pixelColor(plain.rect().center().x(), 12), QColor("#E7F4F9"));
    qApp->setStyleSheet(
        "QDialog { background: red; border: 2px solid red; min-width: 400px; min-height: 200px; } "
        "QWidget { background: red; max-width: 90px; max-height: 20px; } "
        "QLabel { padding: 9px; margin: 3px; border: 2px solid red; } "
        "QPushButton { padding: 9px; border: 4px solid red; min-width: 80px; }");
    const auto restore = qScopeGuard([] { qApp->setStyleSheet(QString()); });
    WY_COMPARE_PICTURES(look(), plain);
}

/// The constructor spares the children the style sheet's arrival; they must learn it all the same.
void TestWyToastSettings::aStyleSheetSetAgainLeavesTheLookAlone()
{
    auto* toast = new WyToast;
    const QString sheet = toast->styleSheet();
    toast->setStyleSheet(QString());
    toast->setStyleSheet(sheet);
    WY_COMPARE_PICTURES(lookOf(new WyToast), lookOf(toast));
}

void TestWyToastSettings::partsHaveAccessibleNames()
{
    WyToast toast;
    const ToastParts parts(&toast);
    QCOMPARE(parts.closeButton->accessibleName(), QString("Close"));
    QCOMPARE(parts.closeButton->toolTip(), QString("Close"));
    const char* names[] = {"Success", "Warning", "Error", "Information"};
    for (int kind = 0; kind < 4; ++kind) {
        toast.applyPreset(ToastPreset(kind));
        QCOMPARE(parts.icon->accessibleName(), QString(names[kind]));
        toast.setIconSize(QSize(20 + kind, 20));
        QCOMPARE(parts.icon->accessibleName(), QString(names[kind]));
    }
    toast.setIcon(blackSquare());
    QCOMPARE(parts.icon->accessibleName(), QString());
}

QTEST_MAIN(TestWyToastSettings)
#include "tst_wytoast_settings.moc"
