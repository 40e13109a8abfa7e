#include "WyWidgets/frame/WyWindowBar.h"

#include "support/MoveRequests.h"
#include "support/RealInput.h"
#include "support/WindowDragging.h"

#include <QPushButton>
#include <QtTest>

using WyTest::centreOf;
using WyTest::MoveRequests;
using WyWidgets::WyWindowBar;
namespace RealInput = WyTest::RealInput;

namespace {

constexpr QRect kWindowRect(300, 200, 500, 300);

} // namespace

/// A bar in a window without frame and without agent, under the real pointer.
class TestWyWindowBarDesktop : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aDragOnTheBarMovesTheWindow();
    void aDragFromAButtonAsksForNoMove();
    void aDoubleClickMaximisesAndRestores();
    void theSecondPressOfADoubleClickDragsAsWell();
    void aDoubleClickLeavesFullScreenAlone();
    void theButtonsWorkUnderThePointer();

private:
    QPoint onBar() const { return m_bar->mapToGlobal(QPoint(250, 20)); }
    void drag(QPoint from);

    QScopedPointer<QWidget> m_window;
    WyWindowBar* m_bar = nullptr;
};

void TestWyWindowBarDesktop::init()
{
    QVERIFY(RealInput::isAvailable());
    m_window.reset(new QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint));
    m_window->setGeometry(kWindowRect);
    m_bar = new WyWindowBar(m_window.data());
    m_bar->setGeometry(0, 0, kWindowRect.width(), 40);
    m_bar->InitSysButton();
    RealInput::movePointer(QPoint(5, 5));
    QVERIFY(RealInput::showAndActivate(m_window.data()));
    QTRY_COMPARE(m_window->geometry(), kWindowRect);
}

void TestWyWindowBarDesktop::cleanup()
{
    RealInput::release();
    m_window.reset();
}

void TestWyWindowBarDesktop::drag(QPoint from)
{
    QVERIFY(RealInput::hover(from));
    RealInput::press();
    for (int step = 1; step <= 5; ++step)
        RealInput::movePointer(from + QPoint(step, step));
    RealInput::release();
}

void TestWyWindowBarDesktop::aDragOnTheBarMovesTheWindow()
{
    MoveRequests requests(m_window.data());
    WyTest::dragBy(onBar(), QPoint(120, 80));
    QTRY_COMPARE(m_window->geometry(), kWindowRect.translated(120, 80));
    QCOMPARE(requests.count(), 1);
}

void TestWyWindowBarDesktop::aDragFromAButtonAsksForNoMove()
{
    auto* button = m_bar->findChild<QPushButton*>(QStringLiteral("min_button"));
    QSignalSpy pressed(button, &QPushButton::pressed);
    MoveRequests requests(m_window.data());
    drag(centreOf(button));
    QTRY_COMPARE(pressed.size(), 1);
    QCOMPARE(requests.count(), 0);
}

void TestWyWindowBarDesktop::aDoubleClickMaximisesAndRestores()
{
    WyTest::doubleClick(m_window.data(), onBar());
    QTRY_VERIFY(m_window->isMaximized());
    QTRY_COMPARE(m_window->geometry(), m_window->screen()->availableGeometry());
    WyTest::doubleClick(m_window.data(), onBar());
    QTRY_VERIFY(!m_window->isMaximized());
    QTRY_COMPARE(m_window->geometry(), kWindowRect);
}

void TestWyWindowBarDesktop::theSecondPressOfADoubleClickDragsAsWell()
{
    m_window->showFullScreen();
    QTRY_COMPARE(m_window->geometry(), m_window->screen()->geometry());
    MoveRequests requests(m_window.data());
    QApplication::setDoubleClickInterval(10000);
    QVERIFY(RealInput::hover(onBar()));
    RealInput::click(onBar());
    drag(onBar());
    QTRY_COMPARE(requests.count(), 1);
    QApplication::setDoubleClickInterval(0);
}

void TestWyWindowBarDesktop::aDoubleClickLeavesFullScreenAlone()
{
    m_window->showFullScreen();
    QTRY_COMPARE(m_window->geometry(), m_window->screen()->geometry());
    WyTest::doubleClick(m_window.data(), onBar());
    QVERIFY(m_window->isFullScreen());
    QVERIFY(!m_window->isMaximized());
}

void TestWyWindowBarDesktop::theButtonsWorkUnderThePointer()
{
    // The bar has no layout to follow the window: its buttons stay where they were.
    WyTest::clickThroughSystemButtons(m_window.data());
}

QTEST_MAIN(TestWyWindowBarDesktop)
#include "tst_wywindowbar_desktop.moc"
