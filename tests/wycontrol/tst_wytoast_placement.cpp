#include "WyWidgets/wycontrol/WyToast.h"

#include "support/FakeScreens.h"
#include "wycontrol/ToastSupport.h"

#include <QRandomGenerator>
#include <QScreen>
#include <QtTest>

using WyTest::FakeScreen;
using WyTest::FakeScreens;
using WyWidgets::ToastPosition;
using WyWidgets::WyToast;

namespace {

constexpr QSize kBody(301, 81);
const QRect kMain(0, 0, 1920, 1080);
const QRect kSecond(1920, 0, 1280, 1024);

QVector<FakeScreen> monitors(const QVector<QRect>& geometries)
{
    QVector<FakeScreen> screens;
    for (const QRect& geometry : geometries) {
        FakeScreen screen;
        screen.geometry = geometry;
        // A panel or a dock; toasts do not mind it.
        screen.availableGeometry = geometry.adjusted(20, 30, -40, -50);
        screens += screen;
    }
    return screens;
}

void configure(WyToast& toast)
{
    toast.setDuration(0);
    toast.setFixedSize(kBody);
    // The made-up screens have no windows.
    toast.setAttribute(Qt::WA_DontShowOnScreen);
}

/// Where the first toast beside a window of this geometry (null: without a parent) appears.
QPoint placeBeside(const QRect& parentGeometry)
{
    QWidget parent;
    parent.setGeometry(parentGeometry);
    WyToast toast(parentGeometry.isNull() ? nullptr : &parent);
    configure(toast);
    toast.show();
    return toast.pos();
}

/// The bottom right place of a screen, with the offsets and the shadow.
QPoint placeOn(const QRect& screen)
{
    return {screen.x() + screen.width() - kBody.width() - 20 - 5,
            screen.y() + screen.height() - kBody.height() - 45 - 5};
}

/// The first toast's place, worked out once more.
QPoint modelPlace(const QVector<QRect>& screens, int position, const QRect& parent)
{
    QRect sg = screens.first();
    if (WyToast::getFixedScreen()) {
        sg = WyToast::getFixedScreen()->geometry();
    } else if (!WyToast::isAlwaysOnMainScreen() && !parent.isNull()) {
        QVector<QRect> touched;
        for (const QRect& screen : screens) {
            if (screen.intersects(parent))
                touched += screen;
        }
        if (touched.size() == 1)
            sg = touched.first();
    }
    const int dx = WyToast::getOffsetX();
    const int dy = WyToast::getOffsetY();
    const int middle = sg.x() + sg.width() / 2 - kBody.width() / 2;
    const int right = sg.x() + sg.width() - kBody.width() - dx;
    const int bottom = sg.y() + sg.height() - kBody.height() - dy;
    const QPoint places[] = {{sg.x() + dx, bottom},
                             {middle, bottom},
                             {right, bottom},
                             {sg.x() + dx, sg.y() + dy},
                             {middle, sg.y() + dy},
                             {right, sg.y() + dy},
                             {middle, sg.y() + sg.height() / 2 - kBody.height() / 2}};
    const QPoint place = position >= 0 && position < 7 ? places[position] : QPoint(0, 0);
    return place - QPoint(5, 5);
}

} // namespace

/// The choice of a screen, on screens that no test machine has.
class TestWyToastPlacement : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { WyTest::resetToasts(); }

    void theFirstBodyOfAFullHdScreen();
    void aParentBringsItsScreen();
    void aParentOnTwoScreensBringsThePrimaryOne();
    void theSecondScreenTouchedEndsTheSearch();
    void aParentOnNoScreenBringsThePrimaryOne();
    void aChildParentCountsInItsOwnParentsCoordinates();
    void theMainScreenMayBeMandatory();
    void aFixedScreenComesBeforeAllElse();
    void anUnpluggedFixedScreenIsForgotten();
    void changingTheScreenMovesShownToasts();
    void withoutScreensToastsAreInTheCorner();
    void aDeadParentCountsAsNone();
    void anyToastIsPlacedAsTheModel();
};

void TestWyToastPlacement::theFirstBodyOfAFullHdScreen()
{
    const FakeScreens screens(monitors({kMain}));
    WyToast toast;
    configure(toast);
    toast.setFixedSize(300, 80);
    toast.show();
    QCOMPARE(toast.pos(), QPoint(1595, 950));
}

void TestWyToastPlacement::aParentBringsItsScreen()
{
    const FakeScreens screens(monitors({kMain, kSecond}));
    QCOMPARE(placeBeside({100, 100, 400, 300}), placeOn(kMain));
    QCOMPARE(placeBeside({2000, 100, 400, 300}), placeOn(kSecond));
    QCOMPARE(placeBeside(QRect()), placeOn(kMain));
}

void TestWyToastPlacement::aParentOnTwoScreensBringsThePrimaryOne()
{
    const QRect third(-1280, 0, 1280, 1024);
    const FakeScreens screens(monitors({kMain, kSecond, third}));
    QCOMPARE(placeBeside({1900, 100, 400, 300}), placeOn(kMain));
    // One pixel is enough to be on a screen.
    QCOMPARE(placeBeside({1919, 100, 400, 300}), placeOn(kMain));
    QCOMPARE(placeBeside({1920, 100, 400, 300}), placeOn(kSecond));
}

void TestWyToastPlacement::theSecondScreenTouchedEndsTheSearch()
{
    // Neither of the two that the parent is on is the primary screen.
    const QRect third(3200, 0, 1280, 1024);
    const FakeScreens screens(monitors({kMain, kSecond, third}));
    QCOMPARE(placeBeside({3100, 100, 400, 300}), placeOn(kMain));
    QCOMPARE(placeBeside({3300, 100, 400, 300}), placeOn(third));
}

void TestWyToastPlacement::aParentOnNoScreenBringsThePrimaryOne()
{
    const FakeScreens screens(monitors({kMain, kSecond}));
    QCOMPARE(placeBeside({9000, 9000, 400, 300}), placeOn(kMain));
    QCOMPARE(placeBeside({-500, -400, 400, 300}), placeOn(kMain));
}

void TestWyToastPlacement::aChildParentCountsInItsOwnParentsCoordinates()
{
    const FakeScreens screens(monitors({kMain, kSecond}));
    QWidget window;
    window.setGeometry(2000, 100, 800, 600);
    QWidget child(&window);
    child.setGeometry(10, 10, 100, 100);
    WyToast toast(&child);
    configure(toast);
    toast.show();
    QCOMPARE(toast.pos(), placeOn(kMain));
}

void TestWyToastPlacement::theMainScreenMayBeMandatory()
{
    const FakeScreens screens(monitors({kMain, kSecond}));
    WyToast::setAlwaysOnMainScreen(true);
    QCOMPARE(placeBeside({2000, 100, 400, 300}), placeOn(kMain));
}

void TestWyToastPlacement::aFixedScreenComesBeforeAllElse()
{
    const FakeScreens screens(monitors({kMain, kSecond}));
    WyToast::setAlwaysOnMainScreen(true);
    WyToast::setFixedScreen(QGuiApplication::screens().last());
    QCOMPARE(placeBeside({100, 100, 400, 300}), placeOn(kSecond));
    QCOMPARE(placeBeside(QRect()), placeOn(kSecond));
    WyToast::setFixedScreen(nullptr);
    QCOMPARE(placeBeside({2000, 100, 400, 300}), placeOn(kMain));
}

void TestWyToastPlacement::anUnpluggedFixedScreenIsForgotten()
{
    {
        const FakeScreens screens(monitors({kMain, kSecond}));
        WyToast::setFixedScreen(QGuiApplication::screens().last());
        WyToast::setFixedScreen(QGuiApplication::screens().first());
        WyToast::setFixedScreen(QGuiApplication::screens().last());
        QVERIFY(WyToast::getFixedScreen());
    }
    QCOMPARE(WyToast::getFixedScreen(), nullptr);
    QCOMPARE(placeBeside(QRect()), placeOn(QGuiApplication::primaryScreen()->geometry()));
    QScreen* lasting = QGuiApplication::primaryScreen();
    {
        // The end of a screen that is no longer the fixed one changes nothing.
        const FakeScreens screens(monitors({kMain, kSecond}));
        WyToast::setFixedScreen(QGuiApplication::screens().first());
        WyToast::reset();
        WyToast::setFixedScreen(QGuiApplication::screens().last());
        WyToast::setFixedScreen(lasting);
    }
    QCOMPARE(WyToast::getFixedScreen(), lasting);
}

void TestWyToastPlacement::changingTheScreenMovesShownToasts()
{
    const FakeScreens screens(monitors({kMain, kSecond}));
    WyToast toast;
    configure(toast);
    toast.show();
    QCOMPARE(toast.pos(), placeOn(kMain));
    WyToast::setFixedScreen(QGuiApplication::screens().last());
    QTRY_COMPARE(toast.pos(), placeOn(kSecond));
    WyToast::setFixedScreen(nullptr);
    QTRY_COMPARE(toast.pos(), placeOn(kMain));
}

void TestWyToastPlacement::withoutScreensToastsAreInTheCorner()
{
    WyToast toast;
    configure(toast);
    // Qt makes no window without a screen, but one may lose its last screen.
    toast.winId();
    const FakeScreens none({});
    toast.show();
    QCOMPARE(toast.pos(), QPoint(-5, -5));
    WyToast::setOffset(7, 8);
    QCOMPARE(WyToast::getVisibleCount(), 1);
}

void TestWyToastPlacement::aDeadParentCountsAsNone()
{
    const FakeScreens screens(monitors({kMain, kSecond}));
    auto* parent = new QWidget;
    parent->setGeometry(2000, 100, 400, 300);
    WyToast toast(parent);
    configure(toast);
    toast.setParent(nullptr);
    delete parent;
    toast.show();
    QCOMPARE(toast.pos(), placeOn(kMain));
}

void TestWyToastPlacement::anyToastIsPlacedAsTheModel()
{
    QRandomGenerator random(77);
    const auto number = [&random](int from, int to) {
        return random.bounded(from, to + 1);
    };
    const auto rect = [&number](int place, int least, int most) {
        return QRect(number(-place, place), number(-place, place), number(least, most), number(least, most));
    };
    for (int layout = 0; layout < 60; ++layout) {
        QVector<QRect> geometries;
        for (int left = number(1, 4); left > 0; --left)
            geometries += rect(3000, 400, 2500);
        const FakeScreens screens(monitors(geometries));
        for (int i = 0; i < 50; ++i) {
            const int position = number(-1, 8);
            const QRect parent = number(0, 4) ? rect(3500, 1, 1500) : QRect();
            WyToast::setPosition(ToastPosition(position));
            WyToast::setOffset(number(-50, 200), number(-50, 200));
            WyToast::setAlwaysOnMainScreen(number(0, 5) == 0);
            WyToast::setFixedScreen(number(0, 5) ? nullptr : QGuiApplication::screens().last());
            QCOMPARE(placeBeside(parent), modelPlace(geometries, position, parent));
        }
    }
}

QTEST_MAIN(TestWyToastPlacement)
#include "tst_wytoast_placement.moc"
