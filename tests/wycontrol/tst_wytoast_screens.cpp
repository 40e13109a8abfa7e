#include "WyWidgets/wycontrol/WyToast.h"

#include "support/RealInput.h"
#include "wycontrol/ToastSupport.h"

#include <QGuiApplication>
#include <QScreen>
#include <QtTest>

using WyWidgets::ToastPosition;
using WyWidgets::WyToast;
namespace RealInput = WyTest::RealInput;

namespace {

constexpr QSize kBody(300, 80);
constexpr QRect kFirst(0, 0, 1920, 1080);
constexpr QRect kSecond(1920, 0, 1280, 1024);

QPointer<WyToast> showMapped(QWidget* parent)
{
    QPointer<WyToast> toast = new WyToast(parent);
    toast->setFixedSize(kBody);
    toast->setDuration(0);
    toast->setFadeInDuration(20);
    toast->show();
    [[maybe_unused]] const bool exposed = QTest::qWaitForWindowExposed(toast);
    return toast;
}

/// The window's place at the default position of a screen.
QPoint bottomRightOf(const QRect& screen)
{
    return {screen.x() + screen.width() - kBody.width() - 20 - 5,
            screen.y() + screen.height() - kBody.height() - 45 - 5};
}

/// A window without frame, so that it is where it is put, also across two screens.
class Parent : public QWidget
{
public:
    explicit Parent(const QRect& geometry) : QWidget(nullptr, Qt::FramelessWindowHint)
    {
        setGeometry(geometry);
        show();
    }
};

} // namespace

/// Two real monitors: 1920 x 1080 at the origin, which is the primary one, and 1280 x 1024 right of it.
class TestWyToastScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { RealInput::movePointer(QPoint(500, 500)); }
    void cleanup() { WyTest::resetToasts(); }

    void followsItsParentsScreen_data();
    void followsItsParentsScreen();
    void everyPositionOfTheSecondScreen_data();
    void everyPositionOfTheSecondScreen();
    void aFixedScreenComesFirst();
    void changingTheScreenMovesShownToasts();
    void theWholeStackFollowsItsParent();
};

void TestWyToastScreens::initTestCase()
{
    QVERIFY(RealInput::isAvailable());
    const QList<QScreen*> screens = QGuiApplication::screens();
    QCOMPARE(screens.size(), 2);
    QCOMPARE(screens.at(0)->geometry(), kFirst);
    QCOMPARE(screens.at(1)->geometry(), kSecond);
    // A window manager that has just started places its first windows itself.
    QWidget window;
    QVERIFY(RealInput::showAndActivate(&window));
}

void TestWyToastScreens::followsItsParentsScreen_data()
{
    QTest::addColumn<QRect>("parent");
    QTest::addColumn<QRect>("screen");
    QTest::newRow("on the first") << QRect(200, 200, 400, 300) << kFirst;
    QTest::newRow("on the second") << QRect(2200, 200, 400, 300) << kSecond;
    QTest::newRow("across both: the primary one") << QRect(1800, 200, 400, 300) << kFirst;
    QTest::newRow("mostly on the second: the primary one") << QRect(1910, 200, 400, 300) << kFirst;
}

void TestWyToastScreens::followsItsParentsScreen()
{
    QFETCH(const QRect, parent);
    QFETCH(const QRect, screen);
    Parent window(parent);
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_COMPARE(window.geometry(), parent);
    const QPointer<WyToast> toast = showMapped(&window);
    QTRY_COMPARE(toast->mapToGlobal(QPoint()), bottomRightOf(screen));
    // The X server agrees: that is where the pointer finds it.
    QVERIFY(RealInput::hover(bottomRightOf(screen) + QPoint(20, 20)));
    QTRY_VERIFY(toast->underMouse());
}

void TestWyToastScreens::everyPositionOfTheSecondScreen_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("bottom left") << 0 << QPoint(1920 + 20 - 5, 1024 - 80 - 45 - 5);
    QTest::newRow("bottom middle") << 1 << QPoint(1920 + 640 - 150 - 5, 1024 - 80 - 45 - 5);
    QTest::newRow("bottom right") << 2 << QPoint(1920 + 1280 - 300 - 20 - 5, 1024 - 80 - 45 - 5);
    QTest::newRow("top left") << 3 << QPoint(1920 + 20 - 5, 45 - 5);
    QTest::newRow("top middle") << 4 << QPoint(1920 + 640 - 150 - 5, 45 - 5);
    QTest::newRow("top right") << 5 << QPoint(1920 + 1280 - 300 - 20 - 5, 45 - 5);
    QTest::newRow("centre") << 6 << QPoint(1920 + 640 - 150 - 5, 512 - 40 - 5);
}

void TestWyToastScreens::everyPositionOfTheSecondScreen()
{
    QFETCH(const int, position);
    QFETCH(const QPoint, place);
    WyToast::setFixedScreen(QGuiApplication::screens().at(1));
    WyToast::setPosition(ToastPosition(position));
    const QPointer<WyToast> toast = showMapped(nullptr);
    QTRY_COMPARE(toast->mapToGlobal(QPoint()), place);
}

void TestWyToastScreens::aFixedScreenComesFirst()
{
    Parent window(QRect(200, 200, 400, 300));
    WyToast::setAlwaysOnMainScreen(true);
    WyToast::setFixedScreen(QGuiApplication::screens().at(1));
    const QPointer<WyToast> toast = showMapped(&window);
    QTRY_COMPARE(toast->mapToGlobal(QPoint()), bottomRightOf(kSecond));
}

void TestWyToastScreens::changingTheScreenMovesShownToasts()
{
    Parent window(QRect(2200, 200, 400, 300));
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_COMPARE(window.pos(), QPoint(2200, 200));
    const QPointer<WyToast> toast = showMapped(&window);
    QTRY_COMPARE(toast->mapToGlobal(QPoint()), bottomRightOf(kSecond));
    WyToast::setAlwaysOnMainScreen(true);
    QTRY_COMPARE(toast->mapToGlobal(QPoint()), bottomRightOf(kFirst));
    WyToast::setFixedScreen(QGuiApplication::screens().at(1));
    QTRY_COMPARE(toast->mapToGlobal(QPoint()), bottomRightOf(kSecond));
}

void TestWyToastScreens::theWholeStackFollowsItsParent()
{
    Parent window(QRect(200, 200, 400, 300));
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QPointer<WyToast> first = showMapped(&window);
    window.move(2200, 200);
    QTRY_COMPARE(window.pos(), QPoint(2200, 200));
    const QPointer<WyToast> second = showMapped(&window);
    // The new toast brings those that are there along.
    QTRY_COMPARE(first->mapToGlobal(QPoint()), bottomRightOf(kSecond));
    QTRY_COMPARE(second->mapToGlobal(QPoint()), bottomRightOf(kSecond) - QPoint(0, 90));
}

QTEST_MAIN(TestWyToastScreens)
#include "tst_wytoast_screens.moc"
