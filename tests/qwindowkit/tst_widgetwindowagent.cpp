#include <QWKWidgets/widgetwindowagent.h>

#include "support/Events.h"

#include <QEnterEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QWindow>
#include <QtTest>

#include <algorithm>
#include <utility>

using QWK::WidgetWindowAgent;
using QWK::WindowAgentBase;

using Preparation = void (*)(QWidget&);
Q_DECLARE_METATYPE(Preparation)

namespace {

class WindowWithAgent : public QWidget
{
public:
    WindowWithAgent()
    {
        resize(200, 100);
        agent.setup(this);
    }

    WidgetWindowAgent agent;
};

} // namespace

class TestWidgetWindowAgent : public QObject
{
    Q_OBJECT

private slots:
    void theSystemButtonsAreARegisteredEnum();
    void setupTakesOneWindowOnce();
    void theWindowLosesItsFrameWithItsNativeWindow();
    void aWindowThatIsShownAlreadyLosesItsFrameWithoutHiding();
    void theFrameStaysAwayWhenTheHostSetsFlagsAgain();
    void aWindowThatBecomesAChildIsLeftAlone();
    void aPressWhileAPopupIsOpenClosesThePopup();
    void aPressGoesToTheWidgetThatGrabsTheMouse();
    void aPressDragsOnlyAWindowThatIsNotFullScreen();
    void aReleasedButtonHoldsTheMouseNoLonger();
    void anEnterWithoutALeaveGivesThePointerBack();
    void theAgentMayEndAsThePointerLeavesForABorder();
    void aPopupTakesThePointerOffTheBorder();
    void theSystemMenuOffersWhatIsPossible_data();
    void theSystemMenuOffersWhatIsPossible();
    void attributesAreKept();
    void theTitleBarIsRemembered();
    void systemButtonsAreRemembered();
    void unknownButtonsAndRepetitionsChangeNothing();
    void hitTestVisibleWidgetsAreRemembered();
    void aReplacedTitleBarForgetsItsButtons();
    void theFirstTitleBarKeepsButtonsRegisteredBefore();
    void destroyedWidgetsDropOut();
    void theAgentOutlivesItsWindow();
    void aWindowOutlivesItsAgent();
    void centralizeMovesToTheMiddleOfTheScreen();
    void raiseBringsAMinimizedWindowBack();
    void requestsWithoutAWindowDoNothing();
};

void TestWidgetWindowAgent::theSystemButtonsAreARegisteredEnum()
{
    const QMetaEnum buttons = QMetaEnum::fromType<WindowAgentBase::SystemButton>();
    QStringList keys;
    for (int i = 0; i < buttons.keyCount(); ++i) {
        QCOMPARE(buttons.value(i), i);
        keys += QString::fromLatin1(buttons.key(i));
    }
    QCOMPARE(keys.join(' '), QStringLiteral("Unknown WindowIcon Help Minimize Maximize Close"));
}

void TestWidgetWindowAgent::setupTakesOneWindowOnce()
{
    QWidget first;
    QWidget second;
    WidgetWindowAgent agent;
    QVERIFY(!agent.setup(nullptr));
    QVERIFY(agent.setup(&first));
    QVERIFY(first.testAttribute(Qt::WA_DontCreateNativeAncestors));
    QVERIFY(!agent.setup(&first));
    QVERIFY(!agent.setup(&second));
    QVERIFY(!second.testAttribute(Qt::WA_DontCreateNativeAncestors));
}

void TestWidgetWindowAgent::theWindowLosesItsFrameWithItsNativeWindow()
{
    QWidget window;
    WidgetWindowAgent agent;
    agent.setup(&window);
    QVERIFY(!window.internalWinId());
    QVERIFY(!window.windowFlags().testFlag(Qt::FramelessWindowHint));
    window.winId();
    QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(window.windowHandle()->flags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(window.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
}

void TestWidgetWindowAgent::aWindowThatIsShownAlreadyLosesItsFrameWithoutHiding()
{
    QWidget window;
    window.show();
    WidgetWindowAgent agent;
    agent.setup(&window);
    QVERIFY(window.isVisible());
    QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(window.windowHandle()->flags().testFlag(Qt::FramelessWindowHint));
}

void TestWidgetWindowAgent::theFrameStaysAwayWhenTheHostSetsFlagsAgain()
{
    QWidget window;
    WidgetWindowAgent agent;
    agent.setup(&window);
    window.show();
    window.setWindowFlags(Qt::Window | Qt::WindowTitleHint);
    window.show();
    QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(window.windowHandle()->flags().testFlag(Qt::FramelessWindowHint));
}

void TestWidgetWindowAgent::aWindowThatBecomesAChildIsLeftAlone()
{
    QWidget parent;
    parent.resize(200, 100);
    auto* window = new QLineEdit;
    WidgetWindowAgent agent;
    agent.setup(window);
    agent.setTitleBar(window);
    window->show();
    window->setParent(&parent);
    window->setGeometry(0, 0, 200, 100);
    window->winId();
    parent.show();
    QVERIFY(!parent.windowFlags().testFlag(Qt::FramelessWindowHint));
    window->setText(QStringLiteral("words"));
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 50));
    QCOMPARE(window->selectedText(), QStringLiteral("words"));
}

void TestWidgetWindowAgent::aPressWhileAPopupIsOpenClosesThePopup()
{
    WindowWithAgent window;
    window.agent.setTitleBar(&window);
    window.show();
    QMenu menu;
    menu.addAction(QStringLiteral("entry"));
    menu.popup(window.mapToGlobal(QPoint(0, 150)));
    QVERIFY(menu.isVisible());
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 50));
    QVERIFY(!menu.isVisible());
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 50));
}

void TestWidgetWindowAgent::aPressGoesToTheWidgetThatGrabsTheMouse()
{
    WindowWithAgent window;
    window.agent.setTitleBar(&window);
    QPushButton button(&window);
    window.show();
    button.grabMouse();
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, button.geometry().center());
    QVERIFY(button.isDown());
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, button.geometry().center());
    QVERIFY(!button.isDown());
    button.releaseMouse();
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, button.geometry().center());
    QVERIFY(!button.isDown());
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, button.geometry().center());
}

void TestWidgetWindowAgent::aPressDragsOnlyAWindowThatIsNotFullScreen()
{
    WindowWithAgent window;
    window.agent.setTitleBar(&window);
    window.show();
    const auto isDragPrepared = [&window] {
        QWindow* handle = window.windowHandle();
        const QPoint middle = window.rect().center();
        QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, middle);
        const QObjectList parts = handle->children();
        const bool isPrepared = std::any_of(parts.begin(), parts.end(), [](const QObject* part) {
            return part->inherits("WyWidgets::WindowDrag");
        });
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, middle);
        return isPrepared;
    };
    QVERIFY(isDragPrepared());
    window.showFullScreen();
    QTRY_VERIFY(window.isFullScreen());
    QVERIFY(!isDragPrepared());
}

void TestWidgetWindowAgent::aReleasedButtonHoldsTheMouseNoLonger()
{
    struct Bar : QWidget
    {
        using QWidget::QWidget;
        int moves = 0;
        void mouseMoveEvent(QMouseEvent*) override { ++moves; }
    };
    WindowWithAgent window;
    Bar bar(&window);
    bar.resize(200, 40);
    window.agent.setTitleBar(&bar);
    window.show();
    const auto send = [&window](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
        const QPointF pos(100, 20);
        QMouseEvent event(type, pos, pos, window.mapToGlobal(pos.toPoint()), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(window.windowHandle(), &event);
    };
    send(QEvent::MouseButtonPress, Qt::MiddleButton, Qt::MiddleButton); // the bar's
    send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton | Qt::MiddleButton);
    send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton | Qt::MiddleButton);
    QCOMPARE(bar.moves, 0);
    send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::MiddleButton);
    send(QEvent::MouseMove, Qt::NoButton, Qt::MiddleButton);
    QCOMPARE(bar.moves, 1);
    send(QEvent::MouseButtonRelease, Qt::MiddleButton, Qt::NoButton);
}

void TestWidgetWindowAgent::anEnterWithoutALeaveGivesThePointerBack()
{
    WindowWithAgent window;
    window.show();
    const auto enter = [&window](const QPoint& pos) {
        QEnterEvent event(pos, pos, window.mapToGlobal(pos));
        QCoreApplication::sendEvent(window.windowHandle(), &event);
    };
    enter(QPoint(2, 50));
    QCOMPARE(window.windowHandle()->cursor().shape(), Qt::SizeHorCursor);
    enter(QPoint(100, 50));
    QCOMPARE(window.windowHandle()->cursor().shape(), Qt::ArrowCursor);
}

void TestWidgetWindowAgent::theAgentMayEndAsThePointerLeavesForABorder()
{
    QWidget window;
    window.resize(200, 100);
    auto* agent = new WidgetWindowAgent;
    agent->setup(&window);
    window.show();
    const WyTest::OnEvent onLeave(window.windowHandle(), QEvent::Leave,
                                  [&agent] { delete std::exchange(agent, nullptr); });
    QTest::mouseMove(window.windowHandle(), QPoint(100, 50));
    QTest::mouseMove(window.windowHandle(), QPoint(2, 40));
    QVERIFY(!agent);
    QCOMPARE(window.windowHandle()->cursor().shape(), Qt::ArrowCursor);
}

void TestWidgetWindowAgent::aPopupTakesThePointerOffTheBorder()
{
    WindowWithAgent window;
    window.show();
    QTest::mouseMove(window.windowHandle(), QPoint(2, 50));
    QCOMPARE(window.windowHandle()->cursor().shape(), Qt::SizeHorCursor);
    QMenu menu;
    menu.addAction(QStringLiteral("entry"));
    menu.popup(window.mapToGlobal(QPoint(0, 150)));
    QTest::mouseMove(window.windowHandle(), QPoint(3, 50));
    QCOMPARE(window.windowHandle()->cursor().shape(), Qt::ArrowCursor);
}

void TestWidgetWindowAgent::theSystemMenuOffersWhatIsPossible_data()
{
    QTest::addColumn<Preparation>("prepare");
    QTest::addColumn<QStringList>("offered");
    const auto row = [](const char* name, Preparation prepare, const QStringList& offered) {
        QTest::newRow(name) << prepare << offered;
    };
    row("normal", [](QWidget& window) { window.showNormal(); }, {"Mi&nimize", "Ma&ximize", "&Close"});
    row("maximised", [](QWidget& window) { window.showMaximized(); }, {"&Restore", "Mi&nimize", "&Close"});
    row("full screen", [](QWidget& window) { window.showFullScreen(); },
        {"&Restore", "Mi&nimize", "Ma&ximize", "&Close"});
    row("fixed size", [](QWidget& window) { window.setFixedSize(200, 100); }, {"Mi&nimize", "&Close"});
    row("without the button",
        [](QWidget& window) { window.setWindowFlags(Qt::Window | Qt::WindowMaximizeButtonHint); },
        {"Ma&ximize", "&Close"});
}

void TestWidgetWindowAgent::theSystemMenuOffersWhatIsPossible()
{
    QFETCH(Preparation, prepare);
    QFETCH(QStringList, offered);
    QWidget window;
    WidgetWindowAgent agent;
    agent.setup(&window);
    prepare(window);
    window.setVisible(true);
    agent.showSystemMenu(window.mapToGlobal(QPoint(10, 10)));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QStringList enabled;
    for (const QAction* action : menu->actions()) {
        if (action->isEnabled() && !action->isSeparator())
            enabled += action->text();
    }
    menu->close();
    QCOMPARE(enabled, offered);
}

void TestWidgetWindowAgent::attributesAreKept()
{
    QWidget window;
    WidgetWindowAgent agent;
    const QString key = QStringLiteral("no-system-buttons");
    QVERIFY(!agent.windowAttribute(key).isValid());
    QVERIFY(agent.setWindowAttribute(key, true));
    agent.setup(&window);
    window.winId();
    QCOMPARE(agent.windowAttribute(key), QVariant(true));
    bool result = false;
    QVERIFY(QMetaObject::invokeMethod(&agent, "setWindowAttribute", Q_RETURN_ARG(bool, result),
                                      Q_ARG(QString, key), Q_ARG(QVariant, false)));
    QVERIFY(result);
    QCOMPARE(agent.windowAttribute(key), QVariant(false));
    QVERIFY(agent.setWindowAttribute(key, QVariant()));
    QVERIFY(!agent.windowAttribute(key).isValid());
}

void TestWidgetWindowAgent::theTitleBarIsRemembered()
{
    QWidget bar;
    WidgetWindowAgent agent;
    QSignalSpy changed(&agent, &WidgetWindowAgent::titleBarChanged);
    QVERIFY(!agent.titleBar());
    agent.setTitleBar(&bar);
    agent.setTitleBar(&bar);
    QCOMPARE(agent.titleBar(), &bar);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().value<QWidget*>(), &bar);
    agent.setTitleBar(nullptr);
    QVERIFY(!agent.titleBar());
    QCOMPARE(changed.size(), 2);
}

void TestWidgetWindowAgent::systemButtonsAreRemembered()
{
    qRegisterMetaType<WindowAgentBase::SystemButton>("SystemButton");
    QWidget button;
    WidgetWindowAgent agent;
    QSignalSpy changed(&agent, &WidgetWindowAgent::systemButtonChanged);
    for (int i = WindowAgentBase::WindowIcon; i <= WindowAgentBase::Close; ++i) {
        const auto kind = static_cast<WindowAgentBase::SystemButton>(i);
        QVERIFY(!agent.systemButton(kind));
        agent.setSystemButton(kind, &button);
        QCOMPARE(agent.systemButton(kind), &button);
    }
    QCOMPARE(changed.size(), 5);
    QCOMPARE(changed.last().first().value<WindowAgentBase::SystemButton>(), WindowAgentBase::Close);
    QCOMPARE(changed.last().last().value<QWidget*>(), &button);
    agent.setSystemButton(WindowAgentBase::Close, nullptr);
    QVERIFY(!agent.systemButton(WindowAgentBase::Close));
    QCOMPARE(changed.size(), 6);
}

void TestWidgetWindowAgent::unknownButtonsAndRepetitionsChangeNothing()
{
    QWidget button;
    WidgetWindowAgent agent;
    agent.setSystemButton(WindowAgentBase::Close, &button);
    QSignalSpy changed(&agent, &WidgetWindowAgent::systemButtonChanged);
    agent.setSystemButton(WindowAgentBase::Close, &button);
    for (int kind : {0, -1, 6, 100}) {
        agent.setSystemButton(static_cast<WindowAgentBase::SystemButton>(kind), &button);
        QVERIFY(!agent.systemButton(static_cast<WindowAgentBase::SystemButton>(kind)));
    }
    QCOMPARE(changed.size(), 0);
}

void TestWidgetWindowAgent::hitTestVisibleWidgetsAreRemembered()
{
    QWidget widget;
    WidgetWindowAgent agent;
    QVERIFY(!agent.isHitTestVisible(&widget));
    QVERIFY(!agent.isHitTestVisible(nullptr));
    agent.setHitTestVisible(nullptr, true);
    agent.setHitTestVisible(&widget);
    agent.setHitTestVisible(&widget, true);
    QVERIFY(agent.isHitTestVisible(&widget));
    agent.setHitTestVisible(&widget, false);
    QVERIFY(!agent.isHitTestVisible(&widget));
    QVERIFY(!agent.isHitTestVisible(nullptr));
}

void TestWidgetWindowAgent::aReplacedTitleBarForgetsItsButtons()
{
    QWidget first;
    QWidget second;
    QWidget button;
    WidgetWindowAgent agent;
    agent.setTitleBar(&first);
    agent.setSystemButton(WindowAgentBase::Maximize, &button);
    agent.setHitTestVisible(&button);
    agent.setTitleBar(&second);
    QVERIFY(!agent.systemButton(WindowAgentBase::Maximize));
    QVERIFY(!agent.isHitTestVisible(&button));
}

void TestWidgetWindowAgent::theFirstTitleBarKeepsButtonsRegisteredBefore()
{
    QWidget bar;
    QWidget button;
    WidgetWindowAgent agent;
    agent.setSystemButton(WindowAgentBase::Maximize, &button);
    agent.setHitTestVisible(&button);
    agent.setTitleBar(&bar);
    QCOMPARE(agent.systemButton(WindowAgentBase::Maximize), &button);
    QVERIFY(agent.isHitTestVisible(&button));
}

void TestWidgetWindowAgent::destroyedWidgetsDropOut()
{
    WidgetWindowAgent agent;
    auto bar = std::make_unique<QWidget>();
    auto* button = new QWidget(bar.get());
    agent.setTitleBar(bar.get());
    agent.setSystemButton(WindowAgentBase::Close, button);
    agent.setHitTestVisible(button);
    const QWidget* gone = button;
    bar.reset();
    QVERIFY(!agent.titleBar());
    QVERIFY(!agent.systemButton(WindowAgentBase::Close));
    QVERIFY(!agent.isHitTestVisible(gone));
}

void TestWidgetWindowAgent::theAgentOutlivesItsWindow()
{
    WidgetWindowAgent agent;
    {
        QWidget window;
        agent.setup(&window);
        window.show();
    }
    agent.centralize();
    agent.raise();
    agent.showSystemMenu(QPoint());
    QWidget other;
    QVERIFY(!agent.setup(&other));
}

void TestWidgetWindowAgent::aWindowOutlivesItsAgent()
{
    QWidget window;
    auto agent = std::make_unique<WidgetWindowAgent>();
    agent->setup(&window);
    window.show();
    agent.reset();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    window.setWindowFlags(Qt::Window);
    window.show();
    QVERIFY(!window.windowFlags().testFlag(Qt::FramelessWindowHint));
}

void TestWidgetWindowAgent::centralizeMovesToTheMiddleOfTheScreen()
{
    QWidget window;
    WidgetWindowAgent agent;
    agent.setup(&window);
    window.setGeometry(3, 5, 201, 101);
    window.show();
    agent.centralize();
    QRect expected(0, 0, 201, 101);
    expected.moveCenter(window.screen()->availableGeometry().center());
    QCOMPARE(window.geometry(), expected);
}

void TestWidgetWindowAgent::raiseBringsAMinimizedWindowBack()
{
    QWidget window;
    WidgetWindowAgent agent;
    agent.setup(&window);
    window.showMaximized();
    window.setWindowState(window.windowState() | Qt::WindowMinimized);
    QVERIFY(window.isMinimized());
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
    agent.raise();
    QVERIFY(!window.isMinimized());
    QVERIFY(window.isMaximized());
    QTRY_VERIFY(window.isActiveWindow());
}

void TestWidgetWindowAgent::requestsWithoutAWindowDoNothing()
{
    WidgetWindowAgent agent;
    agent.centralize();
    agent.raise();
    agent.showSystemMenu(QPoint());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QTEST_MAIN(TestWidgetWindowAgent)
#include "tst_widgetwindowagent.moc"
