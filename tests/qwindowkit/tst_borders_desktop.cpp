#include "qwindowkit/AgentWindow.h"

#include <QLineEdit>

namespace RealInput = WyTest::RealInput;

Q_DECLARE_METATYPE(QMargins)
Q_DECLARE_METATYPE(Qt::CursorShape)

namespace {

/// The eight zones at their inner ends, in the coordinates of a window of kStart's size.
void addZones()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<Qt::CursorShape>("shape");
    // What a drag by (1, 1) adds to left, top, right and bottom of the window.
    QTest::addColumn<QMargins>("change");

    QTest::newRow("left") << QPoint(7, 150) << Qt::SizeHorCursor << QMargins(1, 0, 0, 0);
    QTest::newRow("top left") << QPoint(7, 7) << Qt::SizeFDiagCursor << QMargins(1, 1, 0, 0);
    QTest::newRow("top") << QPoint(200, 7) << Qt::SizeVerCursor << QMargins(0, 1, 0, 0);
    QTest::newRow("top right") << QPoint(392, 7) << Qt::SizeBDiagCursor << QMargins(0, 1, 1, 0);
    QTest::newRow("right") << QPoint(392, 150) << Qt::SizeHorCursor << QMargins(0, 0, 1, 0);
    QTest::newRow("bottom right") << QPoint(392, 292) << Qt::SizeFDiagCursor << QMargins(0, 0, 1, 1);
    QTest::newRow("bottom") << QPoint(200, 292) << Qt::SizeVerCursor << QMargins(0, 0, 0, 1);
    QTest::newRow("bottom left") << QPoint(7, 292) << Qt::SizeBDiagCursor << QMargins(1, 0, 0, 1);
}

/// The nearest point that is 8 px away from every side.
QPoint inside(QPoint pos)
{
    return QPoint(qBound(8, pos.x(), 391), qBound(8, pos.y(), 291));
}

} // namespace

class TestBordersDesktop : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void draggingABorderResizes_data();
    void draggingABorderResizes();
    void aClickOnABorderResizesNothing();
    void aDoubleClickOnTheTopBorderDoesNotMaximize();
    void theMinimumSizeHolds();
    void someWindowsHaveNoBorders_data();
    void someWindowsHaveNoBorders();
    void aFixedWidthKeepsTopAndBottom();
    void aFixedHeightKeepsLeftAndRight();
    void theBordersShowResizePointers_data();
    void theBordersShowResizePointers();
    void leavingTheWindowOverABorderRestoresItsPointer();
    void aHeldButtonShowsNoResizePointer();
    void widgetsBelowTheBordersAreNotHovered();
    void widgetsGetTheirPointersBackBehindTheBorders();
    void aPointerThatTheHostSetsMeanwhileStays_data();
    void aPointerThatTheHostSetsMeanwhileStays();
    void aMaximizedWindowLosesTheResizePointer();
    void nativeChildrenHaveBordersToo();
};

void TestBordersDesktop::init()
{
    QVERIFY(RealInput::isAvailable());
    RealInput::movePointer(kAway);
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
}

void TestBordersDesktop::cleanup()
{
    RealInput::release();
}

void TestBordersDesktop::draggingABorderResizes_data()
{
    addZones();
}

void TestBordersDesktop::draggingABorderResizes()
{
    QFETCH(QPoint, pos);
    QFETCH(QMargins, change);
    AgentWindow window;
    QVERIFY(window.open());
    const QPoint distance(40, 20);
    dragBy(window.mapToGlobal(pos), distance);
    QTRY_COMPARE(window.geometry(),
                 kStart.adjusted(change.left() * distance.x(), change.top() * distance.y(),
                                 change.right() * distance.x(), change.bottom() * distance.y()));
    QCOMPARE(window.titleBar->events + window.content->events, QStringList());
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
}

void TestBordersDesktop::aClickOnABorderResizesNothing()
{
    AgentWindow window;
    QVERIFY(window.open());
    QVERIFY(RealInput::hover(window.mapToGlobal(QPoint(2, 150))));
    RealInput::press();
    RealInput::release();
    RealInput::movePointer(window.mapToGlobal(QPoint(50, 150)));
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
    QCOMPARE(window.geometry(), kStart);
}

void TestBordersDesktop::aDoubleClickOnTheTopBorderDoesNotMaximize()
{
    AgentWindow window;
    QVERIFY(window.open());
    doubleClick(&window, window.mapToGlobal(QPoint(200, 2)));
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
    QVERIFY(!window.isMaximized());
    QCOMPARE(window.titleBar->events, QStringList());
}

void TestBordersDesktop::theMinimumSizeHolds()
{
    AgentWindow window;
    window.setMinimumSize(kStart.size() - QSize(10, 10));
    QVERIFY(window.open());
    dragBy(window.mapToGlobal(QPoint(399, 299)), QPoint(-100, -80));
    QTRY_COMPARE(window.geometry(), kStart.adjusted(0, 0, -10, -10));
}

void TestBordersDesktop::someWindowsHaveNoBorders_data()
{
    QTest::addColumn<Preparation>("prepare");
    const auto row = [](const char* name, Preparation prepare) {
        QTest::newRow(name) << prepare;
    };
    row("fixed size", [](AgentWindow& window) { window.setFixedSize(kStart.size()); });
    row("maximised", [](AgentWindow& window) { window.setWindowState(Qt::WindowMaximized); });
    row("full screen", [](AgentWindow& window) { window.setWindowState(Qt::WindowFullScreen); });
}

void TestBordersDesktop::someWindowsHaveNoBorders()
{
    QFETCH(Preparation, prepare);
    AgentWindow window;
    prepare(window);
    QVERIFY(window.open());
    const QSize expected =
        window.minimumSize() == window.maximumSize() ? kStart.size() : window.screen()->geometry().size();
    QTRY_COMPARE(window.size(), expected);
    const QPoint bottomRight(window.width() - 2, window.height() - 2);
    QVERIFY(RealInput::hover(window.mapToGlobal(bottomRight)));
    QTRY_COMPARE(window.pointerShape(), Qt::ArrowCursor);
    dragBy(window.mapToGlobal(bottomRight), QPoint(-30, -20));
    QTRY_COMPARE(window.content->events, QStringList({"press", "release"}));
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
    QCOMPARE(window.size(), expected);
}

void TestBordersDesktop::aFixedWidthKeepsTopAndBottom()
{
    AgentWindow window;
    window.setFixedWidth(kStart.width());
    QVERIFY(window.open());
    QVERIFY(RealInput::hover(window.mapToGlobal(QPoint(2, 150))));
    QTRY_COMPARE(window.pointerShape(), Qt::ArrowCursor);
    QVERIFY(RealInput::hover(window.mapToGlobal(QPoint(2, 298))));
    QTRY_COMPARE(window.pointerShape(), Qt::SizeVerCursor);
    dragBy(window.mapToGlobal(QPoint(2, 298)), QPoint(30, 20));
    QTRY_COMPARE(window.geometry(), kStart.adjusted(0, 0, 0, 20));
}

void TestBordersDesktop::aFixedHeightKeepsLeftAndRight()
{
    AgentWindow window;
    window.setFixedHeight(kStart.height());
    QVERIFY(window.open());
    QVERIFY(RealInput::hover(window.mapToGlobal(QPoint(200, 298))));
    QTRY_COMPARE(window.pointerShape(), Qt::ArrowCursor);
    dragBy(window.mapToGlobal(QPoint(398, 298)), QPoint(30, 20));
    QTRY_COMPARE(window.geometry(), kStart.adjusted(0, 0, 30, 0));
}

void TestBordersDesktop::theBordersShowResizePointers_data()
{
    addZones();
}

void TestBordersDesktop::theBordersShowResizePointers()
{
    QFETCH(QPoint, pos);
    QFETCH(Qt::CursorShape, shape);
    AgentWindow window;
    window.setCursor(Qt::PointingHandCursor);
    QVERIFY(window.open());
    QVERIFY(RealInput::hover(window.mapToGlobal(inside(pos))));
    QTRY_COMPARE(window.pointerShape(), Qt::PointingHandCursor);
    QVERIFY(RealInput::hover(window.mapToGlobal(pos)));
    QTRY_COMPARE(window.pointerShape(), shape);
    QVERIFY(RealInput::hover(window.mapToGlobal(inside(pos))));
    QTRY_COMPARE(window.pointerShape(), Qt::PointingHandCursor);
}

void TestBordersDesktop::leavingTheWindowOverABorderRestoresItsPointer()
{
    AgentWindow window;
    window.setCursor(Qt::PointingHandCursor);
    QVERIFY(window.open());
    bool hasEntered = false;
    bool hasLeft = false;
    const OnEvent enter(&window, QEvent::Enter, [&] { hasEntered = true; });
    const OnEvent leave(&window, QEvent::Leave, [&] { hasLeft = true; });
    QVERIFY(RealInput::hover(window.mapToGlobal(QPoint(1, 150))));
    QTRY_COMPARE(window.pointerShape(), Qt::SizeHorCursor);
    RealInput::movePointer(kAway);
    QTRY_COMPARE(window.pointerShape(), Qt::PointingHandCursor);
    QVERIFY(!hasEntered);
    QVERIFY(!hasLeft);
}

void TestBordersDesktop::aHeldButtonShowsNoResizePointer()
{
    AgentWindow window;
    QVERIFY(window.open());
    QVERIFY(RealInput::hover(window.onContent()));
    RealInput::press();
    QVERIFY(RealInput::movePointerAndWait(window.mapToGlobal(QPoint(2, 150))));
    QTRY_COMPARE(window.pointerShape(), Qt::ArrowCursor);
    RealInput::release();
    QTRY_COMPARE(window.content->events, QStringList({"press", "release"}));
    QVERIFY(RealInput::hover(window.mapToGlobal(QPoint(3, 150))));
    QTRY_COMPARE(window.pointerShape(), Qt::SizeHorCursor);
}

void TestBordersDesktop::widgetsBelowTheBordersAreNotHovered()
{
    AgentWindow window;
    window.content->setMouseTracking(true);
    QVERIFY(window.open());
    QVERIFY(RealInput::hover(window.onContent()));
    QVERIFY(window.content->underMouse());
    // Hovering moves until a move arrives; this one comes behind all of those.
    QVERIFY(RealInput::movePointerAndWait(window.onContent() + QPoint(5, 5)));
    bool hasMoved = false;
    const OnEvent move(window.content, QEvent::MouseMove, [&] { hasMoved = true; });
    QVERIFY(RealInput::hover(window.mapToGlobal(QPoint(2, 150))));
    QVERIFY(!window.content->underMouse());
    QVERIFY(!hasMoved);
    QVERIFY(RealInput::hover(window.onContent()));
    QVERIFY(window.content->underMouse());
}

void TestBordersDesktop::widgetsGetTheirPointersBackBehindTheBorders()
{
    AgentWindow window;
    auto* edit = new QLineEdit(window.content);
    edit->resize(100, 30);
    window.content->setCursor(Qt::CrossCursor);
    QVERIFY(window.open());
    const QPoint onEdit = edit->mapToGlobal(QPoint(50, 15));
    const QPoint onBorder = edit->mapToGlobal(QPoint(2, 15));
    QVERIFY(RealInput::hover(onBorder)); // coming from outside
    QTRY_COMPARE(window.pointerShape(), Qt::SizeHorCursor);
    QVERIFY(RealInput::hover(onEdit));
    QTRY_COMPARE(window.pointerShape(), Qt::IBeamCursor);
    QVERIFY(RealInput::hover(onBorder)); // coming from inside
    QTRY_COMPARE(window.pointerShape(), Qt::SizeHorCursor);
    QVERIFY(RealInput::hover(onEdit));
    QTRY_COMPARE(window.pointerShape(), Qt::IBeamCursor);
    QVERIFY(RealInput::hover(window.onContent()));
    QTRY_COMPARE(window.pointerShape(), Qt::CrossCursor);
}

void TestBordersDesktop::aPointerThatTheHostSetsMeanwhileStays_data()
{
    QTest::addColumn<bool>("staysOnBorder");
    QTest::newRow("leaving at once") << false;
    QTest::newRow("moving on along the border") << true;
}

void TestBordersDesktop::aPointerThatTheHostSetsMeanwhileStays()
{
    QFETCH(bool, staysOnBorder);
    AgentWindow window;
    QVERIFY(window.open());
    QVERIFY(RealInput::hover(window.mapToGlobal(QPoint(2, 150))));
    QTRY_COMPARE(window.pointerShape(), Qt::SizeHorCursor);
    window.setCursor(Qt::WaitCursor);
    QTRY_COMPARE(window.pointerShape(), Qt::WaitCursor);
    if (staysOnBorder) {
        QVERIFY(RealInput::hover(window.mapToGlobal(QPoint(4, 150))));
        QTRY_COMPARE(window.pointerShape(), Qt::SizeHorCursor);
    }
    bool hasLeft = false;
    const OnEvent leave(qApp, QEvent::Leave, [&] { hasLeft = true; });
    RealInput::movePointer(kAway);
    QTRY_VERIFY(hasLeft);
    QTRY_COMPARE(window.pointerShape(), Qt::WaitCursor);
}

void TestBordersDesktop::aMaximizedWindowLosesTheResizePointer()
{
    AgentWindow window;
    QVERIFY(window.open());
    QVERIFY(RealInput::hover(window.mapToGlobal(QPoint(200, 2))));
    QTRY_COMPARE(window.pointerShape(), Qt::SizeVerCursor);
    window.showMaximized();
    QTRY_COMPARE(window.size(), window.screen()->geometry().size());
    QVERIFY(RealInput::hover(kStart.topLeft() + QPoint(201, 3)));
    QTRY_COMPARE(window.pointerShape(), Qt::ArrowCursor);
}

void TestBordersDesktop::nativeChildrenHaveBordersToo()
{
    AgentWindow window;
    window.content->setCursor(Qt::CrossCursor);
    window.content->winId();
    QVERIFY(window.open());
    const QWindow* native = window.content->windowHandle();
    QVERIFY(RealInput::hover(window.onContent()));
    QCOMPARE(native->cursor().shape(), Qt::CrossCursor);
    QVERIFY(RealInput::hover(window.mapToGlobal(QPoint(398, 298))));
    QCOMPARE(native->cursor().shape(), Qt::SizeFDiagCursor);
    QVERIFY(!window.content->underMouse());
    QVERIFY(RealInput::hover(window.onContent()));
    QCOMPARE(native->cursor().shape(), Qt::CrossCursor);
    QVERIFY(window.content->underMouse());
    dragBy(window.mapToGlobal(QPoint(396, 296)), QPoint(40, 20), 2);
    QTRY_COMPARE(window.geometry(), kStart.adjusted(0, 0, 40, 20));
    QCOMPARE(window.content->events, QStringList());
}

QTEST_MAIN(TestBordersDesktop)
#include "tst_borders_desktop.moc"
