#include "WyWidgets/frame/WyMainWindow.h"

#include "WyWidgets/frame/WyWindowBar.h"

#include "support/RealInput.h"
#include "support/WindowDragging.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using WyTest::centreOf;
using WyWidgets::WyMainWindow;
using WyWidgets::WyWindowBar;
namespace RealInput = WyTest::RealInput;

namespace {

constexpr QRect kStart(200, 100, 540, 300);

} // namespace

/// A main window with a registered bar, as hosts use it, with a window manager.
class TestWyMainWindowDesktop : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theWindowHasNoFrame();
    void theBarDragsTheWindow();
    void aDoubleClickOnTheBarMaximisesAndRestores();
    void theBordersResizeTheWindow();
    void theSystemButtonsAreClicked();
    void registeredChildrenTakeTheirClicks();
    void aDeletedBarLeavesAWindowThatWorks();

private:
    QPoint onBar() const { return m_bar->mapToGlobal(QPoint(250, 24)); }

    QScopedPointer<WyMainWindow> m_window;
    QPointer<WyWindowBar> m_bar;
};

void TestWyMainWindowDesktop::init()
{
    QVERIFY(RealInput::isAvailable());
    RealInput::movePointer(QPoint(5, 5));
    m_window.reset(new WyMainWindow);
    m_bar = new WyWindowBar(m_window.data());
    m_bar->setFixedHeight(48);
    m_window->setMenuWidget(m_bar);
    m_bar->InitSysButton();
    m_window->registTitleBar(m_bar);
    const auto buttons = m_bar->findChildren<QPushButton*>();
    for (QPushButton* button : buttons)
        m_window->registHitTestVisible(button, true);
    m_window->registMaxButton(m_bar->findChild<QPushButton*>(QStringLiteral("max_button")));
    m_window->setGeometry(kStart);
    QVERIFY(RealInput::showAndActivate(m_window.data()));
    QTRY_COMPARE(m_window->geometry(), kStart);
}

void TestWyMainWindowDesktop::cleanup()
{
    RealInput::release();
    m_window.reset();
}

void TestWyMainWindowDesktop::theWindowHasNoFrame()
{
    QCOMPARE(m_window->frameGeometry(), kStart);
}

void TestWyMainWindowDesktop::theBarDragsTheWindow()
{
    WyTest::dragBy(onBar(), QPoint(90, 60));
    QTRY_COMPARE(m_window->geometry(), kStart.translated(90, 60));
    WyTest::dragBy(onBar(), QPoint(-50, -20));
    QTRY_COMPARE(m_window->geometry(), kStart.translated(40, 40));
}

void TestWyMainWindowDesktop::aDoubleClickOnTheBarMaximisesAndRestores()
{
    WyTest::doubleClick(m_window.data(), onBar());
    QTRY_VERIFY(m_window->isMaximized());
    QTRY_COMPARE(m_window->geometry(), m_window->screen()->availableGeometry());
    WyTest::doubleClick(m_window.data(), onBar() + QPoint(60, 0));
    QTRY_VERIFY(!m_window->isMaximized());
    QTRY_COMPARE(m_window->geometry(), kStart);
}

void TestWyMainWindowDesktop::theBordersResizeTheWindow()
{
    const QPoint corner = m_window->mapToGlobal(QPoint(kStart.width() - 3, kStart.height() - 3));
    WyTest::dragBy(corner, QPoint(60, 40));
    QTRY_VERIFY(m_window->width() > kStart.width() + 30 && m_window->height() > kStart.height() + 20);
    QCOMPARE(m_window->pos(), kStart.topLeft());
}

void TestWyMainWindowDesktop::theSystemButtonsAreClicked()
{
    WyTest::clickThroughSystemButtons(m_window.data());
}

void TestWyMainWindowDesktop::registeredChildrenTakeTheirClicks()
{
    auto* tool = new QPushButton;
    tool->setFixedSize(60, 30);
    m_bar->AddToolButton(tool);
    m_window->registHitTestVisible(tool, true);
    QSignalSpy clicked(tool, &QPushButton::clicked);
    QTRY_VERIFY(tool->isVisible() && tool->x() > 0);
    RealInput::click(centreOf(tool));
    QTRY_COMPARE(clicked.size(), 1);
    QCOMPARE(m_window->geometry(), kStart);
}

void TestWyMainWindowDesktop::aDeletedBarLeavesAWindowThatWorks()
{
    auto* button = new QPushButton;
    m_window->setCentralWidget(button);
    delete m_bar;
    QSignalSpy clicked(button, &QPushButton::clicked);
    QTRY_COMPARE(button->height(), kStart.height());
    RealInput::click(button->mapToGlobal(QPoint(250, 24)));
    QTRY_COMPARE(clicked.size(), 1);
    QCOMPARE(m_window->geometry(), kStart);
}

QTEST_MAIN(TestWyMainWindowDesktop)
#include "tst_wymainwindow_desktop.moc"
