#include "WyWidgets/wycontrol/WySimpleToast.h"

#include "support/AnimationClock.h"
#include "support/Contract.h"
#include "support/Events.h"
#include "support/LastWindow.h"
#include "support/Painting.h"
#include "wycontrol/SimpleToasts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

#include <climits>

using SimpleToasts::Column;
using SimpleToasts::count;
using SimpleToasts::displayTimer;
using SimpleToasts::kLongMs;
using WyWidgets::WySimpleToast;

namespace {

QLabel* iconOf(const WySimpleToast& toast)
{
    return toast.findChild<QLabel*>(QStringLiteral("iconLabel"));
}

QImage pictureOf(const WySimpleToast& toast)
{
    return iconOf(toast)->pixmap(Qt::ReturnByValue).toImage();
}

QLabel* textOf(const WySimpleToast& toast)
{
    return toast.findChild<QLabel*>(QStringLiteral("textLabel"));
}

void send(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

void press(QWidget* widget)
{
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

QImage plate(QSize size, const QColor& color, qreal devicePixelRatio = 1.0)
{
    return WyTest::painted(
        size,
        [&](QPainter& painter) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(color);
            painter.drawRoundedRect(QRectF(0, 0, size.width(), size.height()), 8.0, 8.0, Qt::AbsoluteSize);
        },
        devicePixelRatio);
}

/// The plate colour, read off the painted plate where no label stands.
QColor plateColor(WySimpleToast& toast)
{
    return WyTest::picture(&toast).pixelColor(90, 3);
}

/// Colours come back through a premultiplied picture.
bool almost(const QColor& a, const QColor& b)
{
    return std::abs(a.red() - b.red()) <= 1 && std::abs(a.green() - b.green()) <= 1 &&
           std::abs(a.blue() - b.blue()) <= 1 && a.alpha() == b.alpha();
}

WySimpleToast::TOASTR_STYLE style(int value)
{
    return static_cast<WySimpleToast::TOASTR_STYLE>(value);
}

const char* const kStylePictures[] = {":/message.png", ":/check.png", ":/warning.png", ":/info.png",
                                      ":/shield.png"};
const QColor kStyleColors[] = {QColor(0, 0, 0), QColor(117, 182, 117), QColor(249, 171, 53),
                               QColor(88, 173, 196), QColor(203, 94, 89)};

} // namespace

class TestWySimpleToast : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void theDisplayTimeIsTwoSecondsAtFirst();

    void registersItsSlotsAndTheOpacity();
    void enumeratorsHaveTheirValues();
    void buildsAFixedPlateWithIconAndText();
    void isAToolWindowThatTakesNoActivation();
    void startsOpaqueWithAnIdleTimer();

    void setTextSetsTheLabel();
    void theTextIsTheAccessibleName();
    void aTextThatFitsHasNoTooltip();
    void aTextThatDoesNotFitIsTheTooltip();
    void aLongTooltipWraps();
    void aFullWidthToastHasRoomForMore();
    void wordsOfTheHostStay();
    void setStyleSetsColorAndPicture_data();
    void setStyleSetsColorAndPicture();
    void setStyleTakesTheOpacitySetLast();
    void anUnknownStyleOnlyShowsTheIconLabel();
    void aMissingPictureLeavesTheIconEmpty();
    void theStylesSayWhatTheyMean();
    void theDefaultPicturesAreSharpAtBothScales();
    void setIconScalesThePicture();
    void setBackgroundColorBringsItsOwnAlpha();
    void anUnknownColorNameChangesNothing();
    void opacityStyleAndLeavingRestoreTheAlpha();
    void anOpacityAbove255CountsAs255();
    void setTextColorStylesTheLabelOnly();
    void setPopupOpacitySetsTheWindowOpacity();

    void paintsARoundedPlate_data();
    void paintsARoundedPlate();

    void showFadesInAndStartsTheTimer();
    void appearsTransparent();
    void theFadesAreLinearAndTakeTheirTimes_data();
    void theFadesAreLinearAndTakeTheirTimes();
    void setDurationIsClassWideButRunningToastsKeepTheirs();
    void hugeDurationsStayQuiet();
    void theEndOfTheFadeInRemovesNothing();
    void theTimerStartsTheFadeOut();
    void hideAnimationFadesOut();
    void aFadeOutInterruptsAFadeIn();
    void aFadeOutThatIsUnderWayGoesOn();
    void aWholeLifeTakesItsTimes();

    void enteringStopsTheTimeAndMakesThePlateOpaque();
    void leavingRunsTheWholeTimeAgain();
    void hoveringAsksForNoRepaint();
    void hoveringDoesNotInterruptAFadeOut();
    void aClickOnlyHides();
    void aClickUnderThePointerDoesNotHoldTheSlot();
    void aClickDuringTheFadeOutLeavesItAlone();
    void aRefusedClickLeavesTheTimeAlone();
    void aClickIsNotTheLastWindow();

    void aDeletedLabelIsLeftAlone();
    void withoutItsTimerItWaitsForAClick();
};

void TestWySimpleToast::cleanup()
{
    QCOMPARE(count(), 0);
}

// The first of all: a time that is set stays for the toasts of the other tests.
void TestWySimpleToast::theDisplayTimeIsTwoSecondsAtFirst()
{
    WySimpleToast toast;
    toast.show();
    QCOMPARE(displayTimer(&toast)->interval(), 2000);
}

void TestWySimpleToast::registersItsSlotsAndTheOpacity()
{
    WY_COMPARE_CONTRACT(WySimpleToast, {}, {"show()", "hideAnimation()", "hide()"}, {"float popupOpacity"});
    const QMetaObject& meta = WySimpleToast::staticMetaObject;
    QVERIFY(meta.property(meta.propertyOffset()).isWritable());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
    QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QFrame"));
}

void TestWySimpleToast::enumeratorsHaveTheirValues()
{
    QCOMPARE(int(WySimpleToast::TOASTR_MESSAGE), 0);
    QCOMPARE(int(WySimpleToast::TOASTR_SUCCESS), 1);
    QCOMPARE(int(WySimpleToast::TOASTR_WARNING), 2);
    QCOMPARE(int(WySimpleToast::TOASTR_INFO), 3);
    QCOMPARE(int(WySimpleToast::TOASTR_ERROR), 4);
    QCOMPARE(int(WySimpleToast::TOASTR_TOP_RIGHT), 0);
    QCOMPARE(int(WySimpleToast::TOASTR_TOP_LEFT), 1);
    QCOMPARE(int(WySimpleToast::TOASTR_TOP_CENTER), 2);
    QCOMPARE(int(WySimpleToast::TOASTR_TOP_FULL_WIDTH), 3);
    QCOMPARE(int(WySimpleToast::TOASTR_BOTTOM_RIGHT), 4);
    QCOMPARE(int(WySimpleToast::TOASTR_BOTTOM_LEFT), 5);
    QCOMPARE(int(WySimpleToast::TOASTR_BOTTOM_CENTER), 6);
    QCOMPARE(int(WySimpleToast::TOASTR_BOTTOM_FULL_WIDTH), 7);
}

void TestWySimpleToast::buildsAFixedPlateWithIconAndText()
{
    const WySimpleToast toast;
    QCOMPARE(toast.minimumSize(), QSize(180, 56));
    QCOMPARE(toast.maximumSize(), QSize(180, 56));
    QCOMPARE(toast.size(), QSize(180, 56));
    auto* layout = qobject_cast<QHBoxLayout*>(toast.layout());
    QVERIFY(layout);
    QCOMPARE(layout->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(layout->spacing(), 8);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), iconOf(toast));
    QCOMPARE(layout->itemAt(1)->widget(), textOf(toast));
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(layout->stretch(i), 0);
        QCOMPARE(layout->itemAt(i)->alignment(), Qt::Alignment());
    }
    QCOMPARE(iconOf(toast)->minimumSize(), QSize(50, 50));
    QCOMPARE(iconOf(toast)->maximumSize(), QSize(50, 50));
    QVERIFY(!iconOf(toast)->hasScaledContents());
    QVERIFY(pictureOf(toast).isNull());
    QCOMPARE(textOf(toast)->styleSheet(),
             QStringLiteral("QLabel {font: 600 10pt 'Segoe UI Semibold'; color: #FFFFFF}"));
}

void TestWySimpleToast::isAToolWindowThatTakesNoActivation()
{
    QWidget parent;
    const WySimpleToast toast(&parent);
    QCOMPARE(toast.parentWidget(), &parent);
    QCOMPARE(toast.windowFlags(),
             QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint).windowFlags());
    QVERIFY(toast.testAttribute(Qt::WA_Hover));
    QVERIFY(toast.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(toast.testAttribute(Qt::WA_ShowWithoutActivating));
    QVERIFY(!WySimpleToast().testAttribute(Qt::WA_QuitOnClose));
    QVERIFY(toast.isHidden());
}

void TestWySimpleToast::startsOpaqueWithAnIdleTimer()
{
    const WySimpleToast toast;
    QCOMPARE(toast.getPopupOpacity(), 1.0F);
    QVERIFY(displayTimer(&toast));
    QVERIFY(!displayTimer(&toast)->isSingleShot());
    QVERIFY(!displayTimer(&toast)->isActive());
    QCOMPARE(displayTimer(&toast)->interval(), 0);
}

void TestWySimpleToast::setTextSetsTheLabel()
{
    WySimpleToast toast;
    for (const QString& text :
         {QStringLiteral("Saved"), QString(), QStringLiteral("<b>bold</b>"), QStringLiteral("نص عربي"),
          QStringLiteral("🎉"), QString(5000, QLatin1Char('x'))}) {
        toast.setText(text);
        QCOMPARE(textOf(toast)->text(), text);
        QCOMPARE(toast.size(), QSize(180, 56));
    }
}

void TestWySimpleToast::theTextIsTheAccessibleName()
{
    WySimpleToast toast;
    toast.setText(QStringLiteral("Saved"));
    QCOMPARE(toast.accessibleName(), QStringLiteral("Saved"));
    toast.setText(QStringLiteral("2 < 3 and 5 > 4"));
    QCOMPARE(toast.accessibleName(), QStringLiteral("2 < 3 and 5 > 4"));
    toast.setText(QString());
    QCOMPARE(toast.accessibleName(), QString());
    // As it is shown, without the tags of rich text.
    toast.setText(QStringLiteral("<b>Saved</b> to &quot;Notes&quot;"));
    QCOMPARE(toast.accessibleName(), QStringLiteral("Saved to \"Notes\""));
}

void TestWySimpleToast::aTextThatFitsHasNoTooltip()
{
    WySimpleToast toast;
    toast.setText(QStringLiteral("Saved"));
    QVERIFY(toast.toolTip().isEmpty());
}

void TestWySimpleToast::aTextThatDoesNotFitIsTheTooltip()
{
    Column column;
    QPointer<WySimpleToast> toast = column.make();
    const QString text = QStringLiteral("The document has been saved on the server");
    toast->setText(text);
    QCOMPARE(toast->toolTip(), text);
    QVERIFY(toast->testAttribute(Qt::WA_AlwaysShowToolTips));
    toast->show();
    QCOMPARE(toast->toolTip(), text);
    toast->setText(QStringLiteral("Saved"));
    QVERIFY(toast->toolTip().isEmpty());
}

void TestWySimpleToast::aLongTooltipWraps()
{
    WySimpleToast toast;
    const QFontMetrics metrics(QToolTip::font());
    const QString sentence = QStringLiteral("The document has been saved on the server. ");
    const QString shortLine = QStringLiteral("  Your own line breaks stay.");
    toast.setText(sentence.repeated(40) + QLatin1Char('\n') + shortLine);
    const QStringList lines = toast.toolTip().split(QLatin1Char('\n'));
    QVERIFY(lines.size() > 4);
    for (const QString& line : lines)
        QVERIFY(metrics.horizontalAdvance(line) <= 600);
    QCOMPARE(lines.last(), shortLine);
    QCOMPARE(toast.toolTip().simplified(), textOf(toast)->text().simplified());

    // Qt wraps rich text by itself.
    const QString rich = QStringLiteral("<b>") + sentence.repeated(40) + QStringLiteral("</b>");
    toast.setText(rich);
    QCOMPARE(toast.toolTip(), rich);
}

void TestWySimpleToast::aFullWidthToastHasRoomForMore()
{
    Column column;
    QPointer<WySimpleToast> toast = column.make();
    toast->setMinimumWidth(0);
    const QString text = QStringLiteral("The document has been saved on the server");
    toast->setText(text);
    QCOMPARE(toast->toolTip(), text);
    toast->setOrientation(WySimpleToast::TOASTR_TOP_FULL_WIDTH);
    toast->show();
    QVERIFY(toast->toolTip().isEmpty());
}

void TestWySimpleToast::wordsOfTheHostStay()
{
    Column column;
    QPointer<WySimpleToast> toast = column.make();
    const QString text = QStringLiteral("The document has been saved on the server");
    toast->setText(text);
    QCOMPARE(toast->accessibleName(), text);
    toast->setToolTip(QStringLiteral("Click to close"));
    toast->setAccessibleName(QStringLiteral("News"));
    toast->setText(text + text);
    toast->show();
    toast->setText(QStringLiteral("Saved"));
    QCOMPARE(toast->toolTip(), QStringLiteral("Click to close"));
    QCOMPARE(toast->accessibleName(), QStringLiteral("News"));
}

void TestWySimpleToast::setStyleSetsColorAndPicture_data()
{
    QTest::addColumn<int>("value");
    for (int value = 0; value < 5; ++value)
        QTest::newRow(kStylePictures[value]) << value;
}

void TestWySimpleToast::setStyleSetsColorAndPicture()
{
    QFETCH(int, value);
    WySimpleToast toast;
    iconOf(toast)->hide();
    toast.setStyle(style(value));
    QVERIFY(!iconOf(toast)->isHidden());
    QVERIFY(iconOf(toast)->hasScaledContents());
    QVERIFY(!pictureOf(toast).isNull());
    QCOMPARE(pictureOf(toast), QPixmap(QLatin1String(kStylePictures[value])).toImage());
    QColor color = kStyleColors[value];
    color.setAlpha(200);
    QVERIFY2(almost(plateColor(toast), color), qPrintable(plateColor(toast).name(QColor::HexArgb)));
}

void TestWySimpleToast::setStyleTakesTheOpacitySetLast()
{
    WySimpleToast toast;
    toast.setOpacity(90);
    for (int value = 0; value < 5; ++value) {
        toast.setStyle(style(value));
        QCOMPARE(plateColor(toast).alpha(), 90);
    }
}

void TestWySimpleToast::anUnknownStyleOnlyShowsTheIconLabel()
{
    WySimpleToast toast;
    toast.setStyle(WySimpleToast::TOASTR_INFO);
    for (const int value : {5, 6, 4711, -1}) {
        const QImage before = WyTest::picture(&toast);
        iconOf(toast)->hide();
        toast.setStyle(style(value));
        QVERIFY(!iconOf(toast)->isHidden());
        QCOMPARE(WyTest::picture(&toast), before);
    }
}

void TestWySimpleToast::aMissingPictureLeavesTheIconEmpty()
{
    WySimpleToast toast;
    toast.setIcon(QPixmap(3, 3));
    Q_CLEANUP_RESOURCE(simpletoast);
    toast.setStyle(WySimpleToast::TOASTR_INFO);
    Q_INIT_RESOURCE(simpletoast);
    QVERIFY(pictureOf(toast).isNull());
    QVERIFY(!iconOf(toast)->isHidden());
    QCOMPARE(toast.size(), QSize(180, 56));
}

void TestWySimpleToast::theStylesSayWhatTheyMean()
{
    WySimpleToast toast;
    const QStringList names{QStringLiteral("Message"), QStringLiteral("Success"), QStringLiteral("Warning"),
                            QStringLiteral("Information"), QStringLiteral("Error")};
    for (int value = 0; value < 5; ++value) {
        toast.setStyle(style(value));
        QCOMPARE(iconOf(toast)->accessibleName(), names.at(value));
    }
}

void TestWySimpleToast::theDefaultPicturesAreSharpAtBothScales()
{
    const qreal scale = qApp->devicePixelRatio();
    for (int value = 0; value < 5; ++value) {
        // As many pixels as the label has at scale 2, and twice as many in each direction as at scale 1.
        const QImage image(QString::fromLatin1(kStylePictures[value]));
        QCOMPARE(image.size(), QSize(100, 100));
        WySimpleToast toast;
        toast.setStyle(style(value));
        const QImage expected =
            scale == 2.0 ? image : image.scaled(50, 50, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        WY_COMPARE_PICTURES(WyTest::picture(iconOf(toast), scale),
                            expected.convertToFormat(QImage::Format_ARGB32_Premultiplied));
        // The plate is lower than the picture: nothing of it may be clipped.
        for (int y = 92; y < 100; ++y) {
            for (int x = 0; x < 100; ++x)
                QCOMPARE(image.pixelColor(x, y).alpha(), 0);
        }
    }
}

void TestWySimpleToast::setIconScalesThePicture()
{
    WySimpleToast toast;
    iconOf(toast)->hide();
    QPixmap pixmap(7, 9);
    pixmap.fill(Qt::red);
    toast.setIcon(pixmap);
    QVERIFY(!iconOf(toast)->isHidden());
    QVERIFY(iconOf(toast)->hasScaledContents());
    QCOMPARE(pictureOf(toast), pixmap.toImage());
    toast.setIcon(QPixmap());
    QVERIFY(pictureOf(toast).isNull());
}

void TestWySimpleToast::setBackgroundColorBringsItsOwnAlpha()
{
    WySimpleToast toast;
    QCOMPARE(plateColor(toast), QColor(Qt::gray));
    toast.setBackgroundColor(QStringLiteral("#102030"));
    QCOMPARE(plateColor(toast), QColor(0x10, 0x20, 0x30, 255));
    toast.setBackgroundColor(QStringLiteral("#40FF0000"));
    QVERIFY(almost(plateColor(toast), QColor(255, 0, 0, 0x40)));
    toast.setBackgroundColor(QStringLiteral("steelblue"));
    QCOMPARE(plateColor(toast), QColor(QStringLiteral("steelblue")));
}

void TestWySimpleToast::anUnknownColorNameChangesNothing()
{
    WySimpleToast toast;
    toast.setBackgroundColor(QStringLiteral("#40FF0000"));
    const QImage before = WyTest::picture(&toast);
    for (const QString& name : {QString(), QStringLiteral("no colour"), QStringLiteral("#12")}) {
        toast.setBackgroundColor(name);
        QCOMPARE(WyTest::picture(&toast), before);
    }
}

void TestWySimpleToast::opacityStyleAndLeavingRestoreTheAlpha()
{
    WySimpleToast toast;
    const auto makeOpaque = [&toast] {
        toast.setBackgroundColor(QStringLiteral("#102030"));
    };
    makeOpaque();
    toast.setOpacity(120);
    QVERIFY(almost(plateColor(toast), QColor(0x10, 0x20, 0x30, 120)));
    makeOpaque();
    QCOMPARE(plateColor(toast).alpha(), 255);
    toast.setStyle(WySimpleToast::TOASTR_ERROR);
    QCOMPARE(plateColor(toast).alpha(), 120);
    makeOpaque();
    send(&toast, QEvent::Leave);
    displayTimer(&toast)->stop(); // leaving has started it
    QCOMPARE(plateColor(toast).alpha(), 120);
}

void TestWySimpleToast::anOpacityAbove255CountsAs255()
{
    WySimpleToast toast;
    for (const unsigned int opacity : {256U, 100000U, UINT_MAX}) {
        toast.setOpacity(0);
        QCOMPARE(plateColor(toast).alpha(), 0);
        toast.setOpacity(opacity);
        QCOMPARE(plateColor(toast).alpha(), 255);
        toast.setStyle(WySimpleToast::TOASTR_INFO);
        QCOMPARE(plateColor(toast).alpha(), 255);
    }
}

void TestWySimpleToast::setTextColorStylesTheLabelOnly()
{
    WySimpleToast toast;
    toast.setTextColor(QStringLiteral("#112233"));
    QCOMPARE(textOf(toast)->styleSheet(),
             QStringLiteral("QLabel {font: 600 10pt 'Segoe UI Semibold'; color: #112233}"));
    QVERIFY(toast.styleSheet().isEmpty());
    // The next toast is white again.
    QVERIFY(textOf(WySimpleToast())->styleSheet().contains(QLatin1String("#FFFFFF")));
}

void TestWySimpleToast::setPopupOpacitySetsTheWindowOpacity()
{
    WySimpleToast toast;
    toast.setPopupOpacity(0.5F);
    QCOMPARE(toast.getPopupOpacity(), 0.5F);
    QVERIFY(std::abs(toast.windowOpacity() - 0.5) < 0.01);
    QVERIFY(toast.setProperty("popupOpacity", 0.25F));
    QCOMPARE(toast.getPopupOpacity(), 0.25F);
    QCOMPARE(toast.property("popupOpacity").toFloat(), 0.25F);
}

void TestWySimpleToast::paintsARoundedPlate_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<QSize>("size");
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        for (const QSize size : {QSize(180, 56), QSize(700, 56), QSize(20, 9)}) {
            QTest::addRow("%d x %d at %g", size.width(), size.height(), scale) << scale << size;
        }
    }
}

void TestWySimpleToast::paintsARoundedPlate()
{
    QFETCH(qreal, scale);
    QFETCH(QSize, size);
    WySimpleToast toast;
    toast.setFixedSize(size);
    WY_COMPARE_PICTURES(WyTest::picture(&toast, scale), plate(size, QColor(Qt::gray), scale));
    toast.setBackgroundColor(QStringLiteral("#64C86432"));
    WY_COMPARE_PICTURES(WyTest::picture(&toast, scale), plate(size, QColor(200, 100, 50, 100), scale));
}

void TestWySimpleToast::showFadesInAndStartsTheTimer()
{
    Column column;
    WySimpleToast* toast = column.make();
    toast->setShowDuration(kLongMs);
    toast->show();
    QVERIFY(toast->isVisible());
    QCOMPARE(toast->windowOpacity(), 0.0);
    QCOMPARE(toast->getPopupOpacity(), 0.0F);
    QVERIFY(displayTimer(toast)->isActive());
    QCOMPARE(displayTimer(toast)->interval(), kLongMs);

    WySimpleToast* quick = column.make();
    quick->setShowDuration(1);
    quick->show();
    QTRY_COMPARE(quick->getPopupOpacity(), 1.0F);
    QCOMPARE(quick->windowOpacity(), 1.0);
    QVERIFY(displayTimer(quick)->isActive());
}

void TestWySimpleToast::appearsTransparent()
{
    Column column;
    WySimpleToast* toast = column.make();
    qreal opacityAtShow = -1;
    const WyTest::OnEvent note(toast, QEvent::Show, [&] { opacityAtShow = toast->windowOpacity(); });
    toast->show();
    QCOMPARE(opacityAtShow, 0.0);
}

void TestWySimpleToast::theFadesAreLinearAndTakeTheirTimes_data()
{
    QTest::addColumn<bool>("areSet");
    QTest::addColumn<int>("fadeInMs");
    QTest::addColumn<int>("fadeOutMs");
    QTest::newRow("at first") << false << 150 << 500;
    QTest::newRow("set") << true << 700 << 300;
}

void TestWySimpleToast::theFadesAreLinearAndTakeTheirTimes()
{
    QFETCH(bool, areSet);
    QFETCH(int, fadeInMs);
    QFETCH(int, fadeOutMs);
    Column column;
    WyTest::AnimationClock clock;
    QPointer<WySimpleToast> toast = new WySimpleToast(&column.window());
    toast->setDuration(kLongMs);
    if (areSet) {
        toast->setShowDuration(fadeInMs);
        toast->setHideDuration(fadeOutMs);
    }
    toast->show();
    QCOMPARE(toast->getPopupOpacity(), 0.0F);
    clock.pass(fadeInMs / 4);
    QCOMPARE(toast->getPopupOpacity(), float(fadeInMs / 4) / fadeInMs);
    clock.pass(fadeInMs / 4);
    QCOMPARE(toast->getPopupOpacity(), float(fadeInMs / 4 * 2) / fadeInMs);
    clock.pass(fadeInMs - fadeInMs / 4 * 2);
    QCOMPARE(toast->getPopupOpacity(), 1.0F);

    toast->hideAnimation();
    QCOMPARE(toast->getPopupOpacity(), 1.0F);
    clock.pass(fadeOutMs / 2);
    QCOMPARE(toast->getPopupOpacity(), 0.5F);
    clock.pass(fadeOutMs / 2 - 1);
    QVERIFY(toast);
    clock.pass(1);
    QVERIFY(!toast);
}

void TestWySimpleToast::setDurationIsClassWideButRunningToastsKeepTheirs()
{
    Column column;
    QPointer<WySimpleToast> first = column.show();
    WySimpleToast().setDuration(5000);
    QPointer<WySimpleToast> second = new WySimpleToast(&column.window());
    second->show();
    QCOMPARE(displayTimer(first)->interval(), kLongMs);
    QCOMPARE(displayTimer(second)->interval(), 5000);
    send(first, QEvent::Enter);
    send(first, QEvent::Leave);
    QCOMPARE(displayTimer(first)->interval(), kLongMs);
    delete second;
}

void TestWySimpleToast::hugeDurationsStayQuiet()
{
    Column column;
    WySimpleToast* toast = column.make();
    toast->setShowDuration(UINT_MAX);
    toast->setHideDuration(UINT_MAX);
    toast->setDuration(UINT_MAX);
    toast->show();
    QVERIFY(displayTimer(toast)->isActive());
    QCOMPARE(displayTimer(toast)->interval(), INT_MAX);
    toast->hideAnimation();
    QVERIFY(toast->getPopupOpacity() > 0.99F);
}

void TestWySimpleToast::theEndOfTheFadeInRemovesNothing()
{
    Column column;
    QPointer<WySimpleToast> toast = column.make();
    toast->setShowDuration(1);
    toast->show();
    QTRY_COMPARE(toast->getPopupOpacity(), 1.0F);
    QCoreApplication::processEvents();
    QVERIFY(toast->isVisible());
    QCOMPARE(count(), 1);
    // Without a duration the fade-in ends inside show().
    QVERIFY(column.show()->isVisible());
    QCOMPARE(count(), 2);
}

void TestWySimpleToast::theTimerStartsTheFadeOut()
{
    Column column;
    QPointer<WySimpleToast> toast = column.make();
    toast->setHideDuration(kLongMs);
    toast->setDuration(1);
    toast->show();
    QVERIFY(displayTimer(toast)->isActive());
    QTRY_VERIFY(!displayTimer(toast)->isActive());
    QTRY_VERIFY(toast->getPopupOpacity() < 1.0F);
    QVERIFY(toast->isVisible());
}

void TestWySimpleToast::hideAnimationFadesOut()
{
    Column column;
    QPointer<WySimpleToast> toast = column.show();
    toast->setHideDuration(30);
    toast->hideAnimation();
    QVERIFY(!displayTimer(toast)->isActive());
    QCOMPARE(toast->getPopupOpacity(), 1.0F);
    QVERIFY(toast->isVisible());
    QTRY_VERIFY(!toast);
    QCOMPARE(count(), 0);
}

void TestWySimpleToast::aFadeOutInterruptsAFadeIn()
{
    Column column;
    WyTest::AnimationClock clock;
    QPointer<WySimpleToast> toast = column.make();
    toast->setShowDuration(1000);
    toast->setHideDuration(1000);
    toast->show();
    clock.pass(600);
    QCOMPARE(toast->getPopupOpacity(), 0.6F);
    // It begins at its beginning and takes its whole time.
    toast->hideAnimation();
    QCOMPARE(toast->getPopupOpacity(), 1.0F);
    clock.pass(999);
    QVERIFY(toast);
    QVERIFY(toast->getPopupOpacity() > 0.0F);
    clock.pass(1);
    QVERIFY(!toast);
}

void TestWySimpleToast::aFadeOutThatIsUnderWayGoesOn()
{
    Column column;
    QPointer<WySimpleToast> toast = column.show();
    toast->setHideDuration(kLongMs);
    toast->hideAnimation();
    QTRY_VERIFY(toast->getPopupOpacity() < 1.0F);
    const float opacity = toast->getPopupOpacity();
    toast->hideAnimation();
    QVERIFY(toast->getPopupOpacity() <= opacity);
}

void TestWySimpleToast::aWholeLifeTakesItsTimes()
{
    Column column;
    QPointer<WySimpleToast> toast = column.make();
    toast->setShowDuration(20);
    toast->setDuration(100);
    toast->setHideDuration(60);
    QElapsedTimer clock;
    clock.start();
    toast->show();
    QTRY_VERIFY(!toast);
    QVERIFY2(clock.elapsed() >= 155, qPrintable(QString::number(clock.elapsed())));
}

void TestWySimpleToast::enteringStopsTheTimeAndMakesThePlateOpaque()
{
    Column column;
    WySimpleToast* toast = column.show();
    toast->setStyle(WySimpleToast::TOASTR_INFO);
    send(toast, QEvent::Enter);
    QVERIFY(!displayTimer(toast)->isActive());
    QCOMPARE(plateColor(*toast), QColor(88, 173, 196, 255));
}

void TestWySimpleToast::leavingRunsTheWholeTimeAgain()
{
    Column column;
    WySimpleToast* toast = column.show();
    toast->setStyle(WySimpleToast::TOASTR_INFO);
    send(toast, QEvent::Enter);
    send(toast, QEvent::Leave);
    QVERIFY(displayTimer(toast)->isActive());
    QCOMPARE(displayTimer(toast)->interval(), kLongMs);
    QVERIFY(displayTimer(toast)->remainingTime() > kLongMs - 5000);
    QVERIFY(almost(plateColor(*toast), QColor(88, 173, 196, 200)));
    // So it does where the time has never stopped.
    displayTimer(toast)->setTimerType(Qt::PreciseTimer);
    displayTimer(toast)->start();
    QTRY_VERIFY(displayTimer(toast)->remainingTime() <= kLongMs - 200);
    send(toast, QEvent::Leave);
    QVERIFY(displayTimer(toast)->remainingTime() > kLongMs - 200);
}

void TestWySimpleToast::hoveringAsksForNoRepaint()
{
    Column column;
    WySimpleToast* toast = column.show();
    QVERIFY(QTest::qWaitForWindowExposed(toast));
    QCoreApplication::processEvents();
    const WyTest::EventCounter paints(toast, QEvent::Paint);
    send(toast, QEvent::Enter);
    QCoreApplication::processEvents();
    send(toast, QEvent::Leave);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count(), 0);
}

void TestWySimpleToast::hoveringDoesNotInterruptAFadeOut()
{
    Column column;
    QPointer<WySimpleToast> toast = column.show();
    toast->setHideDuration(50);
    toast->hideAnimation();
    send(toast, QEvent::Enter);
    send(toast, QEvent::Leave);
    send(toast, QEvent::Enter);
    QTRY_VERIFY(!toast);
    QCOMPARE(count(), 0);
}

void TestWySimpleToast::aClickOnlyHides()
{
    Column column;
    QPointer<WySimpleToast> toast = column.show();
    QPointer<WySimpleToast> second = column.show();
    displayTimer(toast)->setTimerType(Qt::PreciseTimer);
    displayTimer(toast)->start();
    QTRY_VERIFY(displayTimer(toast)->remainingTime() <= kLongMs - 50);
    press(toast);
    QVERIFY(toast);
    QVERIFY(toast->isHidden());
    QCOMPARE(count(), 2);
    // Its time runs on, and has not begun anew.
    QVERIFY(displayTimer(toast)->isActive());
    QVERIFY(displayTimer(toast)->remainingTime() <= kLongMs - 50);
    QCOMPARE(column.slotOf(second), 2);

    SimpleToasts::expire(toast);
    QVERIFY(!toast);
    QCOMPARE(count(), 1);
    QCOMPARE(column.slotOf(second), 1);
}

void TestWySimpleToast::aClickUnderThePointerDoesNotHoldTheSlot()
{
    Column column;
    QPointer<WySimpleToast> toast = column.show();
    send(toast, QEvent::Enter);
    QVERIFY(!displayTimer(toast)->isActive());
    press(toast);
    QVERIFY(displayTimer(toast)->isActive());
    QCOMPARE(displayTimer(toast)->interval(), kLongMs);
}

void TestWySimpleToast::aClickDuringTheFadeOutLeavesItAlone()
{
    Column column;
    QPointer<WySimpleToast> toast = column.show();
    toast->setHideDuration(50);
    toast->hideAnimation();
    press(toast);
    QVERIFY(toast->isHidden());
    QVERIFY(!displayTimer(toast)->isActive());
    QTRY_VERIFY(!toast);
    QCOMPARE(count(), 0);

    // Nor does a click start anything on a toast that nobody has shown.
    WySimpleToast unshown;
    press(&unshown);
    QVERIFY(!displayTimer(&unshown)->isActive());
}

void TestWySimpleToast::aRefusedClickLeavesTheTimeAlone()
{
    class Refusal : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() != QEvent::Close)
                return false;
            event->ignore();
            return true;
        }
    };
    Column column;
    Refusal refusal;
    QPointer<WySimpleToast> toast = column.show();
    toast->installEventFilter(&refusal);
    send(toast, QEvent::Enter);
    press(toast);
    QVERIFY(toast->isVisible());
    QVERIFY(!displayTimer(toast)->isActive()); // the pointer is still on the plate
}

void TestWySimpleToast::aClickIsNotTheLastWindow()
{
    QCOMPARE(WyTest::lastWindowClosings([] {
                 WySimpleToast toast;
                 toast.show();
                 press(&toast);
             }),
             0);
    // A toast on screen does not keep an application alive either.
    QCOMPARE(WyTest::lastWindowClosings([] {
                 WySimpleToast toast;
                 toast.show();
                 QWidget window;
                 window.show();
                 window.close();
             }),
             1);
}

void TestWySimpleToast::aDeletedLabelIsLeftAlone()
{
    Column column;
    WySimpleToast* toast = column.make();
    delete iconOf(*toast);
    delete textOf(*toast);
    toast->setText(QString(200, QLatin1Char('x')));
    toast->setTextColor(QStringLiteral("red"));
    toast->setIcon(QPixmap(3, 3));
    toast->setStyle(WySimpleToast::TOASTR_SUCCESS);
    toast->show();
    QVERIFY(toast->isVisible());
    QVERIFY(almost(plateColor(*toast), QColor(117, 182, 117, 200)));
    delete toast->layout();
    toast->stateOrientation();
    QVERIFY(toast->isVisible());
}

void TestWySimpleToast::withoutItsTimerItWaitsForAClick()
{
    Column column;
    WySimpleToast* toast = column.make();
    delete displayTimer(toast);
    toast->show();
    send(toast, QEvent::Enter);
    send(toast, QEvent::Leave);
    QVERIFY(toast->isVisible());
    QTest::mousePress(toast, Qt::LeftButton);
    QVERIFY(toast->isHidden());
    toast->hideAnimation();
}

QTEST_MAIN(TestWySimpleToast)
#include "tst_wysimpletoast.moc"
