#include "WyWidgets/frame/WyMainWindow.h"

#include "support/Contract.h"
#include "support/Events.h"
#include "support/WindowAgents.h"

#include <QPushButton>
#include <QWindow>
#include <QtTest>

using QWK::WindowAgentBase;
using WyTest::agentsOf;
using WyWidgets::WyMainWindow;

namespace {

const QString kNoSystemButtons = QStringLiteral("no-system-buttons");

class PressCounter : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;
    int pressCount = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++pressCount; }
};

QWK::WidgetWindowAgent* agentOf(const QObject& window)
{
    const auto agents = agentsOf(&window);
    return agents.isEmpty() ? nullptr : agents.last();
}

} // namespace

class TestWyMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void hasTheFlagsOfAPlainMainWindow();
    void theConstructorInstallsAnAgent();
    void theWindowBecomesFrameless();
    void theTitleBarReachesTheAgent();
    void theMaximiseButtonReachesTheAgent();
    void hitTestVisibilityReachesTheAgent();
    void nullWidgetsAreIgnored();
    void systemButtonVisibilityIsAnInvertedAttribute();
    void registrationsWithoutAgentAreIgnored();
    void installingAgainAddsAnAgentThatTakesOver();
    void aWindowWithTwoAgentsStillWorks();
    void theTitleBarKeepsPressesFromItsChildrenUnlessRegistered();
    void registeredWidgetsMayBeDeleted();
    void theWindowMayEndAsThePointerLeavesForABorder();
    void theAgentGoesWithTheWindow();
};

void TestWyMainWindow::registersNothing()
{
    WY_COMPARE_CONTRACT(WyMainWindow, {}, {}, {});
}

void TestWyMainWindow::hasTheFlagsOfAPlainMainWindow()
{
    QWidget parent;
    QCOMPARE(WyMainWindow(&parent).windowFlags(), QMainWindow(&parent).windowFlags());
    QCOMPARE(WyMainWindow().windowFlags(), QMainWindow().windowFlags());
    QVERIFY(!WyMainWindow().parent());
}

void TestWyMainWindow::theConstructorInstallsAnAgent()
{
    WyMainWindow window;
    QCOMPARE(agentsOf(&window).size(), 1);
    QVERIFY2(!agentOf(window)->setup(&window), "the agent is already set up");
    QVERIFY(!agentOf(window)->titleBar());
}

void TestWyMainWindow::theWindowBecomesFrameless()
{
    WyMainWindow window;
    window.show();
    QVERIFY(window.windowHandle()->flags().testFlag(Qt::FramelessWindowHint));
}

void TestWyMainWindow::theTitleBarReachesTheAgent()
{
    WyMainWindow window;
    auto* bar = new QWidget(&window);
    window.registTitleBar(bar);
    QCOMPARE(agentOf(window)->titleBar(), bar);
}

void TestWyMainWindow::theMaximiseButtonReachesTheAgent()
{
    WyMainWindow window;
    auto* bar = new QWidget(&window);
    auto* button = new QPushButton(bar);
    window.registTitleBar(bar);
    window.registMaxButton(button);
    for (int kind = WindowAgentBase::Unknown; kind <= WindowAgentBase::Close; ++kind) {
        QWidget* const expected = kind == 4 ? button : nullptr;
        QCOMPARE(agentOf(window)->systemButton(WindowAgentBase::SystemButton(kind)), expected);
    }
}

void TestWyMainWindow::hitTestVisibilityReachesTheAgent()
{
    WyMainWindow window;
    auto* bar = new QWidget(&window);
    auto* child = new QWidget(bar);
    window.registTitleBar(bar);
    window.registHitTestVisible(child, true);
    QVERIFY(agentOf(window)->isHitTestVisible(child));
    window.registHitTestVisible(child, false);
    QVERIFY(!agentOf(window)->isHitTestVisible(child));
}

void TestWyMainWindow::nullWidgetsAreIgnored()
{
    WyMainWindow window;
    auto* bar = new QWidget(&window);
    auto* button = new QPushButton(bar);
    window.registTitleBar(bar);
    window.registMaxButton(button);
    window.registTitleBar(nullptr);
    window.registMaxButton(nullptr);
    window.registHitTestVisible(nullptr, true);
    QCOMPARE(agentOf(window)->titleBar(), bar);
    QCOMPARE(agentOf(window)->systemButton(WindowAgentBase::Maximize), button);
}

void TestWyMainWindow::systemButtonVisibilityIsAnInvertedAttribute()
{
    WyMainWindow window;
    QVERIFY(!agentOf(window)->windowAttribute(kNoSystemButtons).isValid());
    window.setSystemButtonsVisible(false);
    QCOMPARE(agentOf(window)->windowAttribute(kNoSystemButtons), QVariant(true));
    window.setSystemButtonsVisible(true);
    QCOMPARE(agentOf(window)->windowAttribute(kNoSystemButtons), QVariant(false));
}

void TestWyMainWindow::registrationsWithoutAgentAreIgnored()
{
    WyMainWindow window;
    delete agentOf(window);
    auto* bar = new QPushButton(&window);
    window.registTitleBar(bar);
    window.registMaxButton(bar);
    window.registHitTestVisible(bar, true);
    window.setSystemButtonsVisible(false);
    window.show();
    QVERIFY(window.isVisible());
}

void TestWyMainWindow::installingAgainAddsAnAgentThatTakesOver()
{
    WyMainWindow window;
    QWK::WidgetWindowAgent* const first = agentOf(window);
    window.installWindowAgent();
    QCOMPARE(agentsOf(&window).size(), 2);
    QCOMPARE(agentsOf(&window).first(), first);
    QWK::WidgetWindowAgent* const second = agentOf(window);
    QVERIFY2(!second->setup(&window), "the second agent is already set up");

    auto* bar = new QWidget(&window);
    auto* button = new QPushButton(bar);
    window.registTitleBar(bar);
    window.registMaxButton(button);
    window.registHitTestVisible(button, true);
    window.setSystemButtonsVisible(false);
    QCOMPARE(second->titleBar(), bar);
    QCOMPARE(second->systemButton(WindowAgentBase::Maximize), button);
    QVERIFY(second->isHitTestVisible(button));
    QCOMPARE(second->windowAttribute(kNoSystemButtons), QVariant(true));
    QVERIFY(!first->titleBar());
    QVERIFY(!first->systemButton(WindowAgentBase::Maximize));
    QVERIFY(!first->isHitTestVisible(button));
    QVERIFY(!first->windowAttribute(kNoSystemButtons).isValid());
}

void TestWyMainWindow::aWindowWithTwoAgentsStillWorks()
{
    WyMainWindow window;
    window.installWindowAgent();
    auto* button = new PressCounter(&window);
    window.setCentralWidget(button);
    window.resize(200, 100);
    window.show();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 50));
    QCOMPARE(button->pressCount, 1);
}

void TestWyMainWindow::theTitleBarKeepsPressesFromItsChildrenUnlessRegistered()
{
    WyMainWindow window;
    auto* bar = new QWidget;
    bar->setFixedHeight(40);
    auto* child = new PressCounter(bar);
    child->setGeometry(20, 10, 60, 20);
    window.setMenuWidget(bar);
    window.registTitleBar(bar);
    window.resize(300, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const QPoint overChild = child->mapTo(&window, QPoint(30, 10));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, overChild);
    QCOMPARE(child->pressCount, 0);
    window.registHitTestVisible(child, true);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, overChild);
    QCOMPARE(child->pressCount, 1);
    window.registHitTestVisible(child, false);
    window.registMaxButton(child);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, overChild);
    QCOMPARE(child->pressCount, 2);
}

void TestWyMainWindow::registeredWidgetsMayBeDeleted()
{
    WyMainWindow window;
    auto* bar = new QWidget(&window);
    bar->resize(200, 40);
    auto* button = new QPushButton(bar);
    auto* child = new QWidget(bar);
    window.registTitleBar(bar);
    window.registMaxButton(button);
    window.registHitTestVisible(child, true);
    window.show();
    delete child;
    delete button;
    QVERIFY(!agentOf(window)->systemButton(WindowAgentBase::Maximize));
    delete bar;
    QVERIFY(!agentOf(window)->titleBar());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    QVERIFY(window.isVisible());
}

void TestWyMainWindow::theWindowMayEndAsThePointerLeavesForABorder()
{
    QPointer<WyMainWindow> window = new WyMainWindow;
    window->resize(300, 300);
    window->show();
    const WyTest::OnEvent onLeave(window->windowHandle(), QEvent::Leave, [&window] { delete window; });
    QTest::mouseMove(window->windowHandle(), QPoint(150, 150));
    QVERIFY(window);
    QTest::mouseMove(window->windowHandle(), QPoint(2, 150));
    QVERIFY(!window);
}

void TestWyMainWindow::theAgentGoesWithTheWindow()
{
    QPointer<QObject> agent;
    {
        WyMainWindow window;
        window.installWindowAgent();
        window.show();
        agent = agentOf(window);
        QCOMPARE(agent->parent(), &window);
    }
    QVERIFY(!agent);
}

QTEST_MAIN(TestWyMainWindow)
#include "tst_wymainwindow.moc"
