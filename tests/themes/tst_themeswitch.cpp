#include "support/Painting.h"

#include "Theme.h"
#include "WyWidgets/frame/WyDialog.h"
#include "WyWidgets/frame/WyDialogBar.h"
#include "WyWidgets/wycontrol/WyBubbleTip.h"
#include "WyWidgets/wycontrol/WySimpleToast.h"
#include "WyWidgets/wycontrol/WyToast.h"
#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include <QGraphicsEffect>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QtTest>

using namespace WyWidgets;

namespace {

const QString kLight = QStringLiteral("light");
const QString kDark = QStringLiteral("dark");

/// A dialog as hosts build it, in the middle of its life: shown, titled, with contents and a spinner.
class Scene
{
public:
    Scene() : dialog(false, nullptr)
    {
        QWidget* panel = dialog.createContent();
        auto* column = new QVBoxLayout(panel);
        dialog.GetTitleBar()->SetTitle(QStringLiteral("Settings"));
        column->addWidget(dialog.GetTitleBar());
        column->addWidget(new QLabel(QStringLiteral("Name")));
        column->addWidget(new QPushButton(QStringLiteral("Save")));
        spinner = new WyWaitingSpinnerWidget(panel, false);
        column->addWidget(spinner);
        spinner->start();
        dialog.resize(300, 240);
        dialog.show();
        bubble.InitView();
        bubble.SetBubbleTip(QStringLiteral("A hint"));
        bubble.show();
    }

    /// The dialog as the active window: its shadow takes a new colour at the next activation, not before. The
    /// spinner turns, so it stays out of the picture.
    QImage dialogPicture()
    {
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&dialog, &activation);
        spinner->hide();
        const QImage image = WyTest::picture(&dialog);
        spinner->show();
        return image;
    }

    QImage bubblePicture() { return WyTest::picture(&bubble); }

    WyDialog dialog;
    WyWaitingSpinnerWidget* spinner;
    WyBubbleTip bubble;
};

template <typename Toast>
void showUntilDismissed(Toast* toast)
{
    toast->setText(QStringLiteral("All changes are on disk."));
    toast->setDuration(0);
    toast->show();
}

} // namespace

/// Changes the application's style sheet while widgets are on screen.
class TestThemeSwitch : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void whatIsOnScreenLooksAsIfMadeUnderTheNewTheme();
    void theWayBackRestoresEveryPixel();
    void toastsKeepLookPlaceAndClock();
    void simpleToastsKeepTheirLook();
    void spinnersKeepTurning();
    void aThemeMayChangeWhileAToastFadesIn();
};

void TestThemeSwitch::init()
{
    QVERIFY(Theme::apply(kLight));
}

void TestThemeSwitch::cleanup()
{
    WyToast::reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestThemeSwitch::whatIsOnScreenLooksAsIfMadeUnderTheNewTheme()
{
    Scene scene;
    const QImage lightDialog = scene.dialogPicture();
    const QImage lightBubble = scene.bubblePicture();
    QVERIFY(Theme::apply(kDark));
    const QImage darkDialog = scene.dialogPicture();
    const QImage darkBubble = scene.bubblePicture();
    QVERIFY(darkDialog != lightDialog);
    QVERIFY(darkBubble != lightBubble);

    Scene fresh;
    QCOMPARE(scene.dialog.shadowActiveColor(), fresh.dialog.shadowActiveColor());
    WY_COMPARE_PICTURES(darkDialog, fresh.dialogPicture());
    WY_COMPARE_PICTURES(darkBubble, fresh.bubblePicture());
}

void TestThemeSwitch::theWayBackRestoresEveryPixel()
{
    Scene scene;
    const QRect dialogPlace = scene.dialog.geometry();
    const QRect bubblePlace = scene.bubble.geometry();
    const QImage lightDialog = scene.dialogPicture();
    const QImage lightBubble = scene.bubblePicture();
    QVERIFY(Theme::apply(kDark));
    scene.dialogPicture();
    QVERIFY(Theme::apply(kLight));
    WY_COMPARE_PICTURES(scene.dialogPicture(), lightDialog);
    WY_COMPARE_PICTURES(scene.bubblePicture(), lightBubble);
    QCOMPARE(scene.dialog.geometry(), dialogPlace);
    QCOMPARE(scene.bubble.geometry(), bubblePlace);
}

void TestThemeSwitch::toastsKeepLookPlaceAndClock()
{
    QWidget host;
    host.show();
    auto* toast = new WyToast(&host);
    toast->setTitle(QStringLiteral("Saved"));
    toast->setText(QStringLiteral("All changes are on disk."));
    toast->setShowDurationBar(false);
    toast->setFadeInDuration(0);
    toast->setDuration(60000);
    toast->show();
    QTRY_COMPARE(toast->windowOpacity(), 1.0);
    QCoreApplication::processEvents();
    const QImage before = WyTest::picture(toast);
    const QRect place = toast->geometry();
    auto* clock = toast->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(clock->isActive());
    clock->setInterval(120000); // a start would set it anew

    QVERIFY(Theme::apply(kDark));
    QCoreApplication::processEvents();
    QVERIFY(toast->isVisible());
    QCOMPARE(toast->geometry(), place);
    QVERIFY(clock->isActive());
    QCOMPARE(clock->interval(), 120000);
    WY_COMPARE_PICTURES(WyTest::picture(toast), before);
}

void TestThemeSwitch::simpleToastsKeepTheirLook()
{
    QWidget host;
    host.show();
    // The list of its class deletes it, at the latest with its parent.
    auto* toast = new WySimpleToast(&host);
    showUntilDismissed(toast);
    const QImage before = WyTest::picture(toast);
    const QSize size = toast->size();
    QVERIFY(Theme::apply(kDark));
    QVERIFY(toast->isVisible());
    QCOMPARE(toast->size(), size);
    WY_COMPARE_PICTURES(WyTest::picture(toast), before);
}

void TestThemeSwitch::spinnersKeepTurning()
{
    Scene scene;
    const QColor color = scene.spinner->color();
    QVERIFY(Theme::apply(kDark));
    QVERIFY(scene.spinner->isSpinning());
    QVERIFY(scene.spinner->isVisible());
    QCOMPARE(scene.spinner->color(), color);
    const QImage atOnce = WyTest::picture(scene.spinner);
    QTRY_VERIFY(WyTest::picture(scene.spinner) != atOnce);
}

void TestThemeSwitch::aThemeMayChangeWhileAToastFadesIn()
{
    QWidget host;
    host.show();
    const QPointer<WyToast> toast = new WyToast(&host);
    toast->setFadeInDuration(100);
    showUntilDismissed(toast.data());
    for (const QString& theme : {kDark, kLight, kDark}) {
        QVERIFY(Theme::apply(theme));
        QCoreApplication::processEvents();
        QVERIFY(toast && toast->isVisible());
    }
    auto* effect = qobject_cast<QGraphicsOpacityEffect*>(toast->graphicsEffect());
    QVERIFY(effect);
    QTRY_COMPARE(effect->opacity(), 1.0);
}

QTEST_MAIN(TestThemeSwitch)
#include "tst_themeswitch.moc"
