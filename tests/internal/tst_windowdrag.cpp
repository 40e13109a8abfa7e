#include "WyWidgets/internal/platform/WindowDrag.h"

#include <QtTest>

using WyWidgets::WindowDrag;

/// The life of a prepared drag; what the window system makes of it is tested on a desktop.
class TestWindowDrag : public QObject
{
    Q_OBJECT

private slots:
    void needsAVisibleWindowAndThePressedButton();
    void otherButtonsDoNotCount();
    void aSecondPreparationReplacesTheFirst();
    void endsWithTheRelease();
    void endsWhenAMoveShowsThatTheButtonIsUp();
    void endsWhenItBegins();
    void aMoveInAChildWindowDoesNotBeginIt();
    void goesWithItsWindow();
    void mayBeCalledOff();
};

namespace {

constexpr QPoint kPress(10, 10);
constexpr QPoint kMove(20, 20);

/// A window with the left button held down in it.
class PressedWindow : public QWindow
{
public:
    PressedWindow()
    {
        setGeometry(0, 0, 100, 100);
        show();
        QTest::mousePress(this, Qt::LeftButton, Qt::NoModifier, kPress);
    }
    ~PressedWindow() override { release(); }

    void release() { QTest::mouseRelease(this, Qt::LeftButton, Qt::NoModifier, kPress); }
};

/// Moves the pointer with these buttons down.
void move(QWindow* window, Qt::MouseButtons buttons)
{
    QMouseEvent event(QEvent::MouseMove, kMove, kMove, kMove, Qt::NoButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &event);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

void TestWindowDrag::needsAVisibleWindowAndThePressedButton()
{
    QVERIFY(!WindowDrag::prepare(nullptr));
    QWindow hidden;
    {
        PressedWindow window;
        QVERIFY(!WindowDrag::prepare(nullptr));
        QVERIFY(!WindowDrag::prepare(&hidden));
        QVERIFY(WindowDrag::prepare(&window));
        window.release();
        QVERIFY(!WindowDrag::prepare(&window));
    }
}

void TestWindowDrag::otherButtonsDoNotCount()
{
    QWindow window;
    window.show();
    QTest::mousePress(&window, Qt::RightButton, Qt::NoModifier, kPress);
    QVERIFY(!WindowDrag::prepare(&window));
    QTest::mouseRelease(&window, Qt::RightButton, Qt::NoModifier, kPress);
}

void TestWindowDrag::aSecondPreparationReplacesTheFirst()
{
    PressedWindow window;
    const QPointer<WindowDrag> first = WindowDrag::prepare(&window);
    const QPointer<WindowDrag> second = WindowDrag::prepare(&window, Qt::LeftEdge);
    QVERIFY(!first);
    QVERIFY(second);
}

void TestWindowDrag::endsWithTheRelease()
{
    PressedWindow window;
    const QPointer<WindowDrag> drag = WindowDrag::prepare(&window);
    window.release();
    QTRY_VERIFY(!drag);
}

void TestWindowDrag::endsWhenAMoveShowsThatTheButtonIsUp()
{
    PressedWindow window;
    const QPointer<WindowDrag> drag = WindowDrag::prepare(&window);
    move(&window, Qt::NoButton);
    QVERIFY(!drag);
}

void TestWindowDrag::endsWhenItBegins()
{
    PressedWindow window;
    for (const Qt::Edges edges : {Qt::Edges(), Qt::Edges(Qt::LeftEdge)}) {
        const QPointer<WindowDrag> drag = WindowDrag::prepare(&window, edges);
        move(&window, Qt::LeftButton);
        QVERIFY(!drag);
    }
}

void TestWindowDrag::aMoveInAChildWindowDoesNotBeginIt()
{
    PressedWindow window;
    QWindow child(&window);
    child.show();
    const QPointer<WindowDrag> drag = WindowDrag::prepare(&window);
    move(&child, Qt::LeftButton);
    QVERIFY(drag);
    move(&window, Qt::LeftButton);
    QVERIFY(!drag);
}

void TestWindowDrag::goesWithItsWindow()
{
    auto window = std::make_unique<PressedWindow>();
    QWindow child(window.get());
    const QPointer<WindowDrag> drag = WindowDrag::prepare(window.get());
    move(&child, Qt::LeftButton);
    child.setParent(nullptr);
    window.reset();
    QVERIFY(!drag);
}

void TestWindowDrag::mayBeCalledOff()
{
    PressedWindow window;
    delete WindowDrag::prepare(&window);
    move(&window, Qt::LeftButton);
    QVERIFY(window.findChildren<WindowDrag*>().isEmpty());
}

QTEST_MAIN(TestWindowDrag)
#include "tst_windowdrag.moc"
