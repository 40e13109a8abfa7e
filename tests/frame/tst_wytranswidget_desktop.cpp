#include "WyWidgets/frame/WyTransWidget.h"

#include "support/RealInput.h"
#include "support/WindowDragging.h"

#include <QAbstractNativeEventFilter>
#include <QWindow>
#include <QtTest>

namespace RealInput = WyTest::RealInput;
using WyWidgets::WyTransWidget;

Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

constexpr QRect kBelow(300, 200, 300, 200);
constexpr QRect kAbove(400, 260, 300, 200);
/// A place that both windows cover.
const QPoint kShared = (kBelow & kAbove).center();
constexpr QPoint kDistance(100, 60);

/// Counts the clicks that reach it, and drags its window on request.
class ClickCounter : public WyTransWidget
{
public:
    using WyTransWidget::WyTransWidget;
    bool isHandle = false;
    int presses = 0;
    int releases = 0;
    int doubleClicks = 0;

protected:
    void mousePressEvent(QMouseEvent*) override
    {
        ++presses;
        if (isHandle)
            StartNativeSystemMove(this);
    }
    void mouseReleaseEvent(QMouseEvent*) override { ++releases; }
    void mouseDoubleClickEvent(QMouseEvent*) override { ++doubleClicks; }
};

/// A frameless window that is moved by all of its area.
class HandleWindow : public QWidget
{
public:
    HandleWindow() : QWidget(nullptr, Qt::FramelessWindowHint), handle(this)
    {
        handle.isHandle = true;
        handle.resize(kBelow.size());
        setGeometry(kBelow);
    }

    QPoint middle() const { return mapToGlobal(rect().center()); }

    ClickCounter handle;
};

/// Counts how often the X server takes a window of this program off the screen or gives it another parent.
class UnmapCounter : public QAbstractNativeEventFilter
{
public:
    UnmapCounter() { qApp->installNativeEventFilter(this); }
    int count = 0;

    bool nativeEventFilter(const QByteArray&, void* message, long*) override
    {
        constexpr int kUnmapNotify = 18;
        constexpr int kReparentNotify = 21;
        const int type = *static_cast<const quint8*>(message) & 0x7f;
        count += type == kUnmapNotify || type == kReparentNotify;
        return false;
    }
};

/// Clicks until the expected window takes a click, since a window manager restacks when it finds the time. A
/// click raises what it hits, so the window in question is raised before each.
bool isClickedAt(QPoint globalPos, const ClickCounter& expected, QWidget* raised = nullptr)
{
    return QTest::qWaitFor([&] {
        const int before = expected.releases;
        if (raised)
            raised->raise();
        RealInput::click(globalPos, Qt::MiddleButton);
        return QTest::qWaitFor([&] { return expected.releases > before; }, 200);
    });
}

} // namespace

class TestWyTransWidgetDesktop : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void staysOnTopOfARaisedWindow_data();
    void staysOnTopOfARaisedWindow();
    void clicksGoThroughAWindowThatIgnoresTheMouse();
    void aVisibleWindowStaysWhereItIs_data();
    void aVisibleWindowStaysWhereItIs();
    void aWindowThatIsShownLaterStaysOnTop();
    void aPressStartsAMove();
    void otherButtonsMoveNothing_data();
    void otherButtonsMoveNothing();
    void aPressOnANativeChildStartsAMove();
    void aClickMovesNothing();
    void aDoubleClickStaysADoubleClick();
    void withoutAPressNothingMoves();
    void aWindowMayGoBeforeItMoves();
};

void TestWyTransWidgetDesktop::init()
{
    QVERIFY(RealInput::isAvailable());
    RealInput::movePointer(QPoint(5, 5));
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
}

void TestWyTransWidgetDesktop::cleanup()
{
    RealInput::release();
}

void TestWyTransWidgetDesktop::staysOnTopOfARaisedWindow_data()
{
    QTest::addColumn<bool>("isHigh");
    QTest::newRow("normal") << false;
    QTest::newRow("high") << true;
}

void TestWyTransWidgetDesktop::staysOnTopOfARaisedWindow()
{
    QFETCH(bool, isHigh);
    ClickCounter window;
    ClickCounter other;
    window.setGeometry(kBelow);
    other.setGeometry(kAbove);
    QVERIFY(RealInput::showAndActivate(&window));
    QVERIFY(RealInput::showAndActivate(&other));
    QVERIFY(isClickedAt(kShared, other, &other));
    WyTransWidget::SetWidgetStaysOnTop(&window, true, isHigh);
    QVERIFY(isClickedAt(kShared, window, &other));
    WyTransWidget::SetWidgetStaysOnTop(&window, false, isHigh);
    QVERIFY(isClickedAt(kShared, other, &other));
}

void TestWyTransWidgetDesktop::clicksGoThroughAWindowThatIgnoresTheMouse()
{
    ClickCounter window;
    ClickCounter other;
    window.setGeometry(kBelow);
    other.setGeometry(kAbove);
    QVERIFY(RealInput::showAndActivate(&window));
    QVERIFY(RealInput::showAndActivate(&other));
    QVERIFY(isClickedAt(kShared, other, &other));
    WyTransWidget::SetWidgetIgnoresMouseEvents(&other, true);
    QVERIFY(isClickedAt(kShared, window, &other));
    WyTransWidget::SetWidgetIgnoresMouseEvents(&other, false);
    QVERIFY(isClickedAt(kShared, other, &other));
}

void TestWyTransWidgetDesktop::aVisibleWindowStaysWhereItIs_data()
{
    QTest::addColumn<int>("flags");
    QTest::newRow("with frame") << int(Qt::Window);
    QTest::newRow("frameless") << int(Qt::FramelessWindowHint);
}

void TestWyTransWidgetDesktop::aVisibleWindowStaysWhereItIs()
{
    QFETCH(int, flags);
    ClickCounter window;
    window.setWindowFlags(Qt::WindowFlags(flags));
    window.setGeometry(kBelow);
    QVERIFY(RealInput::showAndActivate(&window));
    QVERIFY(isClickedAt(kShared, window));
    const QRect frame = window.frameGeometry();
    UnmapCounter unmaps;
    window.SetWidgetIgnoresMouseEvents(true);
    window.SetWidgetIgnoresMouseEvents(false);
    window.SetWidgetStaysOnTop(true);
    window.SetHasShadow(false);
    window.SetMiniaturizable(true);
    WyTransWidget::SetWidgetStaysOnTop(&window, false, false);
    QVERIFY(isClickedAt(kShared, window));
    QCOMPARE(unmaps.count, 0);
    QCOMPARE(window.geometry(), kBelow);
    QCOMPARE(window.frameGeometry(), frame);
    QVERIFY(window.isActiveWindow());
}

void TestWyTransWidgetDesktop::aWindowThatIsShownLaterStaysOnTop()
{
    ClickCounter window;
    ClickCounter other;
    window.setGeometry(kBelow);
    other.setGeometry(kAbove);
    window.SetWidgetStaysOnTop(true);
    QVERIFY(RealInput::showAndActivate(&window));
    QVERIFY(RealInput::showAndActivate(&other));
    QVERIFY(isClickedAt(kShared, window, &other));
}

void TestWyTransWidgetDesktop::aPressStartsAMove()
{
    HandleWindow window;
    QVERIFY(RealInput::showAndActivate(&window));
    WyTest::dragBy(window.middle(), kDistance);
    QTRY_COMPARE(window.pos(), kBelow.topLeft() + kDistance);
    // The button is up: the window does not go on.
    RealInput::movePointer(kShared + QPoint(200, 200));
    QVERIFY(isClickedAt(window.middle(), window.handle));
    QCOMPARE(window.pos(), kBelow.topLeft() + kDistance);
}

void TestWyTransWidgetDesktop::otherButtonsMoveNothing_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("right") << Qt::RightButton;
}

void TestWyTransWidgetDesktop::otherButtonsMoveNothing()
{
    QFETCH(Qt::MouseButton, button);
    HandleWindow window;
    QVERIFY(RealInput::showAndActivate(&window));
    WyTest::dragBy(window.middle(), kDistance, 1, button);
    QTRY_COMPARE(window.handle.releases, 1);
    QVERIFY(isClickedAt(window.middle(), window.handle));
    QCOMPARE(window.pos(), kBelow.topLeft());
}

void TestWyTransWidgetDesktop::aPressOnANativeChildStartsAMove()
{
    HandleWindow window;
    window.handle.winId();
    QVERIFY(RealInput::showAndActivate(&window));
    WyTest::dragBy(window.middle(), kDistance, 2);
    QTRY_COMPARE(window.pos(), kBelow.topLeft() + kDistance);
    QVERIFY(isClickedAt(window.middle(), window.handle));
    QCOMPARE(window.pos(), kBelow.topLeft() + kDistance);
}

void TestWyTransWidgetDesktop::aClickMovesNothing()
{
    HandleWindow window;
    QVERIFY(RealInput::showAndActivate(&window));
    QVERIFY(RealInput::hover(window.middle()));
    RealInput::press();
    RealInput::release();
    QTRY_COMPARE(window.handle.releases, 1);
    QVERIFY(RealInput::movePointerAndWait(window.middle() + QPoint(10, 10)));
    QVERIFY(isClickedAt(window.middle(), window.handle));
    QCOMPARE(window.pos(), kBelow.topLeft());
}

void TestWyTransWidgetDesktop::aDoubleClickStaysADoubleClick()
{
    HandleWindow window;
    QVERIFY(RealInput::showAndActivate(&window));
    WyTest::doubleClick(&window, window.middle());
    QCOMPARE(window.handle.releases, 2);
    QCOMPARE(window.handle.doubleClicks, 1);
    QCOMPARE(window.pos(), kBelow.topLeft());
}

void TestWyTransWidgetDesktop::withoutAPressNothingMoves()
{
    HandleWindow window;
    QVERIFY(RealInput::showAndActivate(&window));
    QVERIFY(RealInput::hover(window.middle()));
    WyTransWidget::StartNativeSystemMove(&window);
    QVERIFY(RealInput::movePointerAndWait(window.middle() + QPoint(10, 10)));
    QVERIFY(isClickedAt(window.middle(), window.handle));
    QCOMPARE(window.pos(), kBelow.topLeft());
}

void TestWyTransWidgetDesktop::aWindowMayGoBeforeItMoves()
{
    auto window = std::make_unique<HandleWindow>();
    QVERIFY(RealInput::showAndActivate(window.get()));
    QVERIFY(RealInput::hover(window->middle()));
    RealInput::press();
    QTRY_COMPARE(window->handle.presses, 1);
    window.reset();
    RealInput::movePointer(kShared + QPoint(30, 30));
    RealInput::release();
    HandleWindow next;
    QVERIFY(RealInput::showAndActivate(&next));
    QVERIFY(isClickedAt(next.middle(), next.handle));
    QCOMPARE(next.pos(), kBelow.topLeft());
}

QTEST_MAIN(TestWyTransWidgetDesktop)
#include "tst_wytranswidget_desktop.moc"
