#include "WyWidgets/wycontrol/WyArrowWidget.h"
#include "WyWidgets/wycontrol/WyBubbleButton.h"
#include "WyWidgets/wycontrol/WyBubbleTip.h"
#include "WyWidgets/wycontrol/WyTipWidget.h"

#include "support/Events.h"
#include "support/RealInput.h"

#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QtTest>

using namespace WyTest;
using WyWidgets::WyArrowWidget;
using WyWidgets::WyBubbleButton;
using WyWidgets::WyBubbleTip;
using WyWidgets::WyTipWidget;

namespace {

constexpr QPoint kFarAway(1700, 1000);

QColor screenPixel(QPoint position)
{
    const QImage screen = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    return screen.pixelColor(position * screen.devicePixelRatio());
}

} // namespace

/// The arrow panels and the tip with a real pointer, real windows and a window manager.
class TestWyBubblesDesktop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void theTipOfAnArrowWindowLiesOnItsPoint_data();
    void theTipOfAnArrowWindowLiesOnItsPoint();
    void aRealClickClosesAnArrowWindow();
    void theBubbleShowsWhileThePointerIsOverTheButton();
    void aBubbleUnderThePointerNeitherFlickersNorTakesTheClick();
    void thePointerKeepsATipAlive();
    void aRealClickOnALinkEndsTheTip();
};

void TestWyBubblesDesktop::initTestCase()
{
    if (!RealInput::isAvailable())
        QSKIP("needs an X server with the test extension");
}

void TestWyBubblesDesktop::init()
{
    RealInput::movePointer(kFarAway);
}

void TestWyBubblesDesktop::theTipOfAnArrowWindowLiesOnItsPoint_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QPoint>("inwards"); // from the tip into the arrow
    QTest::newRow("left") << int(WyArrowWidget::Left) << QPoint(1, 0);
    QTest::newRow("right") << int(WyArrowWidget::Right) << QPoint(-1, 0);
    QTest::newRow("top") << int(WyArrowWidget::Top) << QPoint(0, 1);
    QTest::newRow("bottom") << int(WyArrowWidget::Bottom) << QPoint(0, -1);
}

void TestWyBubblesDesktop::theTipOfAnArrowWindowLiesOnItsPoint()
{
    QFETCH(int, side);
    QFETCH(QPoint, inwards);
    const QPoint target(800, 500);
    WyArrowWidget arrow;
    arrow.setText(
        QStringLiteral("A text that wraps into several lines, so that the panel is much larger than "
                       "it is when it is new and without any text."));
    arrow.setDerection(WyArrowWidget::Derection(side));
    arrow.setTriangleInfo(24, 20);
    arrow.myMove(target.x(), target.y());
    arrow.show();
    QVERIFY(QTest::qWaitForWindowExposed(&arrow));
    QTRY_COMPARE(screenPixel(target + 12 * inwards), QColor(Qt::white));
    QVERIFY(screenPixel(target - 3 * inwards) != QColor(Qt::white));
}

void TestWyBubblesDesktop::aRealClickClosesAnArrowWindow()
{
    WyArrowWidget arrow;
    arrow.setText(QStringLiteral("text"));
    arrow.myMove(800, 500);
    arrow.show();
    QVERIFY(QTest::qWaitForWindowExposed(&arrow));
    QLabel* label = arrow.findChild<QLabel*>();
    RealInput::click(centreOf(label));
    QTRY_VERIFY(arrow.isHidden());
}

void TestWyBubblesDesktop::theBubbleShowsWhileThePointerIsOverTheButton()
{
    QWidget window;
    window.setGeometry(700, 400, 300, 200);
    WyBubbleButton button(&window);
    button.setGeometry(20, 30, 120, 40);
    button.SetBubbleTip(QStringLiteral("what it does"));
    auto* bubble = window.findChild<WyBubbleTip*>();
    QVERIFY(RealInput::showAndActivate(&window));
    RealInput::movePointer(button.mapToGlobal(QPoint(10, 10)));
    QTRY_VERIFY(bubble->isVisible());
    // The place in the window, taken as a place on the screen: the tip on (20 + 40, 30 + 60).
    QTRY_COMPARE(bubble->pos(), QPoint(60 - 10 + 8, 90 - (10 + 10) - 8));
    RealInput::movePointer(button.mapToGlobal(QPoint(100, 30)));
    QVERIFY(bubble->isVisible());
    RealInput::movePointer(window.mapToGlobal(QPoint(290, 190)));
    QTRY_VERIFY(bubble->isHidden());
}

void TestWyBubblesDesktop::aBubbleUnderThePointerNeitherFlickersNorTakesTheClick()
{
    // At the screen's corner the bubble comes up over its own button.
    QWidget window;
    window.setWindowFlags(Qt::FramelessWindowHint);
    window.setGeometry(10, 10, 500, 400);
    WyBubbleButton button(&window);
    button.setGeometry(0, 0, 400, 300);
    button.SetBubbleTip(QStringLiteral("what it does"));
    auto* bubble = window.findChild<WyBubbleTip*>();
    QSignalSpy clicks(&button, &QPushButton::clicked);
    QVERIFY(RealInput::showAndActivate(&window));
    QTRY_COMPARE(window.pos(), QPoint(10, 10));
    RealInput::movePointer(QPoint(300, 250));
    QTRY_VERIFY(bubble->isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(bubble));
    const QPoint covered = bubble->geometry().center();
    QVERIFY(QRect(button.mapToGlobal(QPoint()), button.size()).contains(covered));
    EventCounter hides(bubble, QEvent::Hide);
    for (int step = 0; step < 10; ++step)
        RealInput::movePointer(covered + QPoint(step, 0));
    RealInput::click(covered);
    QTRY_COMPARE(clicks.count(), 1);
    QCOMPARE(hides.count(), 0);
    QVERIFY(bubble->isVisible());

    // The second time it comes up right under the pointer.
    RealInput::movePointer(kFarAway);
    QTRY_VERIFY(bubble->isHidden());
    hides.reset();
    RealInput::movePointer(covered);
    QTRY_VERIFY(bubble->isVisible());
    RealInput::click(covered);
    QTRY_COMPARE(clicks.count(), 2);
    QCOMPARE(hides.count(), 0);
}

void TestWyBubblesDesktop::thePointerKeepsATipAlive()
{
    QWidget window;
    window.setGeometry(700, 400, 500, 200);
    QPointer<WyTipWidget> tip = new WyTipWidget(&window);
    tip->SetText(QStringLiteral("A notice"));
    tip->SetLinkText(QStringLiteral("Undo"), QStringLiteral("Details"));
    tip->move(40, 40);
    QVERIFY(RealInput::showAndActivate(&window));
    tip->StartShowAnimation();
    auto* timer = tip->findChild<QTimer*>();
    QVERIFY(timer->isActive());
    RealInput::movePointer(tip->mapToGlobal(QPoint(3, 3)));
    QTRY_VERIFY(!timer->isActive());
    auto* link = tip->findChildren<QPushButton*>().at(1);
    RealInput::movePointer(centreOf(link)); // still on the tip
    QTRY_VERIFY(link->underMouse());
    QVERIFY(!timer->isActive());
    RealInput::movePointer(window.mapToGlobal(QPoint(490, 190)));
    QTRY_VERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 2000);
    RealInput::movePointer(tip->mapToGlobal(QPoint(3, 3)));
    QTRY_VERIFY(!timer->isActive());
    RealInput::movePointer(window.mapToGlobal(QPoint(490, 190)));
    QTRY_VERIFY_WITH_TIMEOUT(!tip, 10000);
}

void TestWyBubblesDesktop::aRealClickOnALinkEndsTheTip()
{
    QWidget window;
    window.setGeometry(700, 400, 500, 200);
    QPointer<WyTipWidget> tip = new WyTipWidget(&window);
    tip->SetText(QStringLiteral("A notice"));
    tip->SetLinkText(QString(), QStringLiteral("Details"));
    QSignalSpy clicks(tip, &WyTipWidget::SignalClickedRightLink);
    QVERIFY(RealInput::showAndActivate(&window));
    auto* link = tip->findChildren<QPushButton*>().at(1);
    RealInput::click(centreOf(link));
    QTRY_VERIFY(!tip);
    QCOMPARE(clicks.count(), 1);
}

QTEST_MAIN(TestWyBubblesDesktop)
#include "tst_wybubbles_desktop.moc"
