#include "qwindowkit/AgentWindow.h"

#include <QMenu>

namespace RealInput = WyTest::RealInput;
using QWK::WindowAgentBase;

class TestTitleBarDesktop : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theWindowHasNoFrame();
    void aShownWindowLosesItsFrameWithoutHiding();
    void draggingMovesTheWindow();
    void theNextDragMovesItOnceMore();
    void aClickAfterADragIsAnOrdinaryClick();
    void aClickGetsItsRelease();
    void aFullScreenWindowIsNotDragged();
    void aDoubleClickTogglesMaximized();
    void aMoveAfterADoubleClickDragsNothing();
    void aDoubleClickLeavesSomeWindowsAlone_data();
    void aDoubleClickLeavesSomeWindowsAlone();
    void aRightPressOpensTheSystemMenu();
    void theSystemMenuActsOnTheWindow();
    void otherButtonsReachTheWidget();
    void aPressWhileAPopupIsOpenClosesIt();
    void registeredWidgetsKeepTheirClicks_data();
    void registeredWidgetsKeepTheirClicks();
    void widgetsThatDoNotCountMoveTheWindow_data();
    void widgetsThatDoNotCountMoveTheWindow();
    void aTitleBarThatDoesNotCountMovesNothing_data();
    void aTitleBarThatDoesNotCountMovesNothing();
    void theTitleBarCountsWhereItIsNow();
    void aDragFromTheContentGoesOnOverTheTitleBar();
    void nativeChildrenAreDraggedToo();
    void nativeChildrenThatWereThereBeforeAreDraggedToo();
    void aRecreatedWindowStillMoves();
    void theAgentMayGoWhileTheWindowIsMaximized();
    void theWindowMayGoWhileItIsDragged();
};

void TestTitleBarDesktop::init()
{
    QVERIFY(RealInput::isAvailable());
    RealInput::movePointer(kAway);
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
}

void TestTitleBarDesktop::cleanup()
{
    RealInput::release();
}

void TestTitleBarDesktop::theWindowHasNoFrame()
{
    AgentWindow window;
    QVERIFY(window.open());
    QCOMPARE(window.geometry(), kStart);
    QCOMPARE(window.frameGeometry(), kStart);
}

void TestTitleBarDesktop::aShownWindowLosesItsFrameWithoutHiding()
{
    QWidget window;
    window.setGeometry(kStart);
    QVERIFY(RealInput::showAndActivate(&window));
    QTRY_VERIFY(window.frameGeometry() != window.geometry());
    QSignalSpy visibility(window.windowHandle(), &QWindow::visibleChanged);
    QWK::WidgetWindowAgent agent;
    agent.setup(&window);
    QTRY_COMPARE(window.windowHandle()->frameGeometry(), window.geometry());
    QCOMPARE(window.size(), kStart.size());
    QCOMPARE(visibility.size(), 0);
}

void TestTitleBarDesktop::draggingMovesTheWindow()
{
    AgentWindow window;
    QVERIFY(window.open());
    dragBy(window.onTitleBar(), QPoint(60, 40));
    QTRY_COMPARE(window.geometry(), kStart.translated(60, 40));
    QCOMPARE(window.titleBar->events, QStringList());
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
}

void TestTitleBarDesktop::theNextDragMovesItOnceMore()
{
    AgentWindow window;
    QVERIFY(window.open());
    dragBy(window.onTitleBar(), QPoint(60, 40));
    QTRY_COMPARE(window.geometry(), kStart.translated(60, 40));
    dragBy(window.onTitleBar(), QPoint(-30, 10));
    QTRY_COMPARE(window.geometry(), kStart.translated(30, 50));
}

void TestTitleBarDesktop::aClickAfterADragIsAnOrdinaryClick()
{
    AgentWindow window;
    QVERIFY(window.open());
    dragBy(window.onTitleBar(), QPoint(60, 40));
    QTRY_COMPARE(window.geometry(), kStart.translated(60, 40));
    // The window manager has kept the release of the drag, and the pointer does not move before the click.
    window.agent->setTitleBar(nullptr);
    RealInput::press();
    RealInput::release();
    QTRY_COMPARE(window.titleBar->events, QStringList({"press", "release"}));
}

void TestTitleBarDesktop::aClickGetsItsRelease()
{
    AgentWindow window;
    QVERIFY(window.open());
    Recorder native;
    window.windowHandle()->installEventFilter(&native);
    RealInput::click(window.onTitleBar());
    QTRY_COMPARE(native.events, QStringList({"press", "release"}));
    QCOMPARE(window.titleBar->events, QStringList());
    // The button is up: the pointer does not take the window along.
    RealInput::movePointer(window.onTitleBar() + QPoint(20, 0));
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
    QCOMPARE(window.geometry(), kStart);
}

void TestTitleBarDesktop::aFullScreenWindowIsNotDragged()
{
    AgentWindow window;
    window.setWindowState(Qt::WindowFullScreen);
    QVERIFY(window.open());
    QTRY_COMPARE(window.geometry(), window.screen()->geometry());
    dragBy(window.onTitleBar(), QPoint(60, 40));
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
    QCOMPARE(window.geometry(), window.screen()->geometry());
}

void TestTitleBarDesktop::aDoubleClickTogglesMaximized()
{
    AgentWindow window;
    QVERIFY(window.open());
    doubleClick(&window, window.onTitleBar());
    QTRY_VERIFY(window.isMaximized());
    QTRY_COMPARE(window.geometry(), window.screen()->availableGeometry());
    doubleClick(&window, window.onTitleBar() + QPoint(100, 0));
    QTRY_VERIFY(!window.isMaximized());
    QTRY_COMPARE(window.geometry(), kStart);
    QCOMPARE(window.titleBar->events, QStringList());
}

void TestTitleBarDesktop::aMoveAfterADoubleClickDragsNothing()
{
    AgentWindow window;
    QVERIFY(window.open());
    doubleClick(&window, window.onTitleBar(), [&] {
        QTRY_VERIFY(window.isMaximized());
        for (int i = 1; i <= 5; ++i)
            QVERIFY(RealInput::movePointerAndWait(window.onTitleBar() + QPoint(i, i)));
    });
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
    QVERIFY(window.isMaximized());
}

void TestTitleBarDesktop::aDoubleClickLeavesSomeWindowsAlone_data()
{
    QTest::addColumn<Preparation>("prepare");
    const auto row = [](const char* name, Preparation prepare) {
        QTest::newRow(name) << prepare;
    };
    row("full screen", [](AgentWindow& window) { window.setWindowState(Qt::WindowFullScreen); });
    row("fixed size", [](AgentWindow& window) { window.setFixedSize(kStart.size()); });
    row("no maximise hint", [](AgentWindow& window) {
        window.setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    });
}

void TestTitleBarDesktop::aDoubleClickLeavesSomeWindowsAlone()
{
    QFETCH(Preparation, prepare);
    AgentWindow window;
    prepare(window);
    QVERIFY(window.open());
    const bool isFullScreen = window.isFullScreen();
    doubleClick(&window, window.onTitleBar());
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
    QCOMPARE(window.isFullScreen(), isFullScreen);
    QVERIFY(!window.isMaximized());
    QCOMPARE(window.titleBar->events, QStringList());
}

void TestTitleBarDesktop::aRightPressOpensTheSystemMenu()
{
    AgentWindow window;
    window.titleBar->setContextMenuPolicy(Qt::PreventContextMenu);
    QVERIFY(window.open());
    RealInput::click(window.onTitleBar(), Qt::RightButton);
    QTRY_VERIFY(qobject_cast<QMenu*>(QApplication::activePopupWidget()));
    QPointer<QWidget> menu = QApplication::activePopupWidget();
    QVERIFY((menu->pos() - window.onTitleBar()).manhattanLength() < 10);
    QCOMPARE(window.titleBar->events, QStringList());
    RealInput::tapKey("Escape");
    QTRY_VERIFY(!menu);
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
}

void TestTitleBarDesktop::theSystemMenuActsOnTheWindow()
{
    AgentWindow window;
    QVERIFY(window.open());
    window.agent->showSystemMenu(window.onTitleBar());
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QTRY_VERIFY(menu->isVisible());
    QStringList texts;
    QList<bool> enabled;
    for (const QAction* action : menu->actions()) {
        texts += action->text();
        enabled += action->isEnabled();
    }
    QCOMPARE(texts, QStringList({"&Restore", "Mi&nimize", "Ma&ximize", "", "&Close"}));
    QCOMPARE(enabled, QList<bool>({false, true, true, true, true}));
    const QAction* maximize = menu->actions().at(2);
    RealInput::click(menu->mapToGlobal(menu->actionGeometry(const_cast<QAction*>(maximize)).center()));
    QTRY_VERIFY(window.isMaximized());
    QTRY_COMPARE(window.geometry(), window.screen()->availableGeometry());
}

void TestTitleBarDesktop::otherButtonsReachTheWidget()
{
    AgentWindow window;
    QVERIFY(window.open());
    RealInput::click(window.onTitleBar(), Qt::MiddleButton);
    QTRY_COMPARE(window.titleBar->events, QStringList({"middle press", "middle release"}));
}

void TestTitleBarDesktop::aPressWhileAPopupIsOpenClosesIt()
{
    AgentWindow window;
    QVERIFY(window.open());
    QMenu menu;
    menu.addAction(QStringLiteral("entry"));
    menu.popup(window.onContent());
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    RealInput::click(window.onTitleBar());
    QTRY_VERIFY(!menu.isVisible());
    QCOMPARE(window.geometry(), kStart);
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
}

void TestTitleBarDesktop::registeredWidgetsKeepTheirClicks_data()
{
    QTest::addColumn<Preparation>("prepare");
    const auto row = [](const char* name, Preparation prepare) {
        QTest::newRow(name) << prepare;
    };
    row("hit-test visible", [](AgentWindow& window) { window.agent->setHitTestVisible(window.button); });
    row("system button",
        [](AgentWindow& window) { window.agent->setSystemButton(WindowAgentBase::Close, window.button); });
    row("hit-test visible parent", [](AgentWindow& window) {
        auto* group = new QWidget(window.titleBar);
        group->setGeometry(0, 0, 200, kTitleBarHeightPx);
        window.button->setParent(group);
        window.agent->setHitTestVisible(group);
    });
    row("right to left", [](AgentWindow& window) {
        window.setLayoutDirection(Qt::RightToLeft);
        window.agent->setHitTestVisible(window.button);
    });
}

void TestTitleBarDesktop::registeredWidgetsKeepTheirClicks()
{
    QFETCH(Preparation, prepare);
    AgentWindow window;
    prepare(window);
    QVERIFY(window.open());
    QSignalSpy clicked(window.button, &QPushButton::clicked);
    RealInput::click(window.onButton());
    QTRY_COMPARE(clicked.size(), 1);
    dragBy(window.onButton(), QPoint(60, 40));
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
    QCOMPARE(window.geometry(), kStart);
}

void TestTitleBarDesktop::widgetsThatDoNotCountMoveTheWindow_data()
{
    QTest::addColumn<Preparation>("prepare");
    const auto row = [](const char* name, Preparation prepare) {
        QTest::newRow(name) << prepare;
    };
    row("not registered", [](AgentWindow&) {});
    row("no longer registered", [](AgentWindow& window) {
        window.agent->setHitTestVisible(window.button);
        window.agent->setHitTestVisible(window.button, false);
    });
    row("disabled system button", [](AgentWindow& window) {
        window.agent->setSystemButton(WindowAgentBase::Close, window.button);
        window.button->setEnabled(false);
    });
    row("hidden system button", [](AgentWindow& window) {
        window.agent->setSystemButton(WindowAgentBase::Close, window.button);
        window.button->hide();
    });
    row("hidden hit-test visible widget", [](AgentWindow& window) {
        window.agent->setHitTestVisible(window.button);
        window.button->hide();
    });
    row("deleted widget", [](AgentWindow& window) {
        auto* gone = new QWidget(window.titleBar);
        window.agent->setHitTestVisible(gone);
        window.agent->setSystemButton(WindowAgentBase::Help, gone);
        delete gone;
    });
}

void TestTitleBarDesktop::widgetsThatDoNotCountMoveTheWindow()
{
    QFETCH(Preparation, prepare);
    AgentWindow window;
    prepare(window);
    QVERIFY(window.open());
    QSignalSpy pressed(window.button, &QPushButton::pressed);
    dragBy(window.mapToGlobal(window.button->geometry().center()), QPoint(60, 40));
    QTRY_COMPARE(window.geometry(), kStart.translated(60, 40));
    QCOMPARE(pressed.size(), 0);
}

void TestTitleBarDesktop::aTitleBarThatDoesNotCountMovesNothing_data()
{
    QTest::addColumn<Preparation>("prepare");
    const auto row = [](const char* name, Preparation prepare) {
        QTest::newRow(name) << prepare;
    };
    row("none", [](AgentWindow& window) { window.agent->setTitleBar(nullptr); });
    row("hidden", [](AgentWindow& window) { window.titleBar->hide(); });
    row("disabled", [](AgentWindow& window) { window.titleBar->setEnabled(false); });
    row("destroyed", [](AgentWindow& window) {
        delete window.titleBar;
        window.titleBar = nullptr;
    });
    row("outside the window", [](AgentWindow& window) {
        window.titleBar->setParent(nullptr);
        window.titleBar->setGeometry(kStart.translated(kStart.width() + 50, 0));
        window.titleBar->show();
    });
}

void TestTitleBarDesktop::aTitleBarThatDoesNotCountMovesNothing()
{
    QFETCH(Preparation, prepare);
    AgentWindow window;
    prepare(window);
    QVERIFY(window.open());
    dragBy(window.onTitleBar(), QPoint(60, 40));
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
    QCOMPARE(window.geometry(), kStart);
    if (window.titleBar && window.titleBar->isWindow())
        delete window.titleBar;
}

void TestTitleBarDesktop::theTitleBarCountsWhereItIsNow()
{
    AgentWindow window;
    auto* bar = new Recorder(window.content);
    bar->setGeometry(50, 100, 100, 30);
    window.agent->setTitleBar(bar);
    QVERIFY(window.open());
    bar->move(200, 60);
    dragBy(bar->mapToGlobal(QPoint(99, 29)), QPoint(60, 40));
    QTRY_COMPARE(window.geometry(), kStart.translated(60, 40));
    dragBy(bar->mapToGlobal(QPoint(100, 30)), QPoint(60, 40));
    QTRY_COMPARE(window.content->events, QStringList({"press", "release"}));
    QCOMPARE(window.geometry(), kStart.translated(60, 40));
}

void TestTitleBarDesktop::aDragFromTheContentGoesOnOverTheTitleBar()
{
    AgentWindow window;
    QVERIFY(window.open());
    RealInput::dragPointer(window.onContent(), window.onTitleBar());
    QTRY_COMPARE(window.content->events, QStringList({"press", "release"}));
    QCOMPARE(window.titleBar->events, QStringList());
    QCOMPARE(window.geometry(), kStart);
}

void TestTitleBarDesktop::nativeChildrenAreDraggedToo()
{
    AgentWindow window;
    window.agent->setHitTestVisible(window.button);
    window.button->winId();
    QVERIFY(window.titleBar->internalWinId());
    QVERIFY(window.open());
    auto* late = new Recorder(window.content);
    late->setGeometry(100, 100, 100, 30);
    late->winId();
    late->show();
    QSignalSpy clicked(window.button, &QPushButton::clicked);
    dragBy(window.onTitleBar(), QPoint(60, 40), 2);
    QTRY_COMPARE(window.geometry(), kStart.translated(60, 40));
    RealInput::click(window.onButton());
    QTRY_COMPARE(clicked.size(), 1);
    window.agent->setTitleBar(late);
    dragBy(late->mapToGlobal(QPoint(50, 15)), QPoint(-60, -40), 2);
    QTRY_COMPARE(window.geometry(), kStart);
    QCOMPARE(late->events, QStringList());
}

void TestTitleBarDesktop::nativeChildrenThatWereThereBeforeAreDraggedToo()
{
    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.setGeometry(kStart);
    // The window owns them, so that they are hidden before they go: Qt's X11 plugin keeps
    // the pressed native window until then, because the window manager takes the release.
    auto* bar = new QWidget(&window);
    auto* nested = new QWidget(bar);
    for (QWidget* widget : {bar, nested}) {
        widget->resize(200, 50);
        widget->winId();
    }
    QVERIFY(RealInput::showAndActivate(&window));
    QWK::WidgetWindowAgent agent;
    agent.setup(&window);
    agent.setTitleBar(bar);
    dragBy(nested->mapToGlobal(QPoint(100, 25)), QPoint(60, 40), 2);
    QTRY_COMPARE(window.geometry(), kStart.translated(60, 40));
}

void TestTitleBarDesktop::aRecreatedWindowStillMoves()
{
    AgentWindow window;
    QVERIFY(window.open());
    window.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint);
    window.setGeometry(kStart);
    QVERIFY(window.open());
    QTRY_COMPARE(window.frameGeometry(), kStart);
    dragBy(window.onTitleBar(), QPoint(60, 40));
    QTRY_COMPARE(window.geometry(), kStart.translated(60, 40));
}

void TestTitleBarDesktop::theAgentMayGoWhileTheWindowIsMaximized()
{
    AgentWindow window;
    QVERIFY(window.open());
    const OnEvent deleteAgent(&window, QEvent::WindowStateChange,
                              [&] { delete std::exchange(window.agent, nullptr); });
    doubleClick(&window, window.onTitleBar());
    QTRY_VERIFY(window.isMaximized());
    QVERIFY(!window.agent);
    WY_VERIFY_CONTENT_TAKES_CLICKS(window);
}

void TestTitleBarDesktop::theWindowMayGoWhileItIsDragged()
{
    auto* window = new AgentWindow;
    QVERIFY(window->open());
    const QPoint from = window->onTitleBar();
    RealInput::movePointer(from);
    RealInput::press();
    delete window;
    RealInput::movePointer(from + QPoint(20, 20));
    RealInput::release();
    AgentWindow next;
    QVERIFY(next.open());
    WY_VERIFY_CONTENT_TAKES_CLICKS(next);
    QCOMPARE(next.geometry(), kStart);
}

QTEST_MAIN(TestTitleBarDesktop)
#include "tst_titlebar_desktop.moc"
