#include "WyWidgets/wycontrol/WyBubbleButton.h"

#include "WyWidgets/wycontrol/WyBubbleTip.h"

#include "support/Contract.h"
#include "support/Events.h"

#include <QLabel>
#include <QtTest>

using WyWidgets::WyBubbleButton;
using WyWidgets::WyBubbleTip;

namespace {

void enter(WyBubbleButton* button)
{
    QEnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(button, &event);
}

void leave(WyBubbleButton* button)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(button, &event);
}

WyBubbleTip* bubbleOf(const QWidget& window)
{
    return window.findChild<WyBubbleTip*>();
}

QString textOf(const WyBubbleTip* bubble)
{
    return bubble->findChild<QLabel*>(QStringLiteral("label_text"))->text();
}

/// A window with a button in a panel of its own, away from the window's corner.
struct Host
{
    QWidget window;
    QWidget* panel = new QWidget(&window);
    WyBubbleButton* button = new WyBubbleButton(panel);

    Host()
    {
        window.resize(400, 300);
        panel->setGeometry(70, 80, 300, 200);
        button->setGeometry(13, 17, 90, 30);
    }
};

} // namespace

class TestWyBubbleButton : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void hasNoBubbleAtFirst();
    void makesOneHiddenBubbleForItsWindow();
    void showsItsTextWhileThePointerIsOverIt();
    void placesTheBubbleByItsPlaceInTheParent();
    void anEmptyTextShowsNoBubble();
    void aLaterTextShowsAtTheNextEntry();
    void lettingGoHidesABubbleOfAnyText();
    void theBubbleLetsTheMouseThrough();
    void surroundingWindowsMayDie();
    void aDyingButtonTakesItsBubbleOffTheScreen();
    void aButtonWithoutAParentOwnsItsBubble();
    void survivesBeingDeletedWhenTheBubbleShows();
    void survivesBeingDeletedWhileItsBubbleMoves_data();
    void survivesBeingDeletedWhileItsBubbleMoves();
};

void TestWyBubbleButton::registersNothing()
{
    WY_COMPARE_CONTRACT(WyBubbleButton, {}, {}, {});
    QCOMPARE(WyBubbleButton::staticMetaObject.superClass(), &QPushButton::staticMetaObject);
}

void TestWyBubbleButton::hasNoBubbleAtFirst()
{
    Host host;
    host.window.show();
    QVERIFY(!bubbleOf(host.window));
    enter(host.button);
    leave(host.button);
    QVERIFY(!bubbleOf(host.window));
    QCOMPARE(host.button->text(), QString());
}

void TestWyBubbleButton::makesOneHiddenBubbleForItsWindow()
{
    Host host;
    host.button->SetBubbleTip(QStringLiteral("first"));
    WyBubbleTip* bubble = bubbleOf(host.window);
    QVERIFY(bubble);
    QCOMPARE(bubble->parentWidget(), &host.window);
    QVERIFY(bubble->isHidden());
    host.button->SetBubbleTip(QStringLiteral("second"));
    QCOMPARE(host.window.findChildren<WyBubbleTip*>(), {bubble});
}

void TestWyBubbleButton::showsItsTextWhileThePointerIsOverIt()
{
    Host host;
    host.window.show();
    host.button->SetBubbleTip(QStringLiteral("what it does"));
    WyBubbleTip* bubble = bubbleOf(host.window);
    QCOMPARE(textOf(bubble), QString());
    enter(host.button);
    QVERIFY(bubble->isVisible());
    QCOMPARE(textOf(bubble), QStringLiteral("what it does"));
    leave(host.button);
    QVERIFY(bubble->isHidden());
    enter(host.button);
    QVERIFY(bubble->isVisible());
}

void TestWyBubbleButton::placesTheBubbleByItsPlaceInTheParent()
{
    Host host;
    host.window.move(500, 400);
    host.window.show();
    host.button->SetBubbleTip(QStringLiteral("text"));
    WyBubbleTip* bubble = bubbleOf(host.window);
    bubble->setDerection(WyBubbleTip::Bottom); // both are set anew at each entry
    bubble->setStartPos(48);
    enter(host.button);
    // The tip lies on (13 + 40, 17 + 60) of the screen: content told to lie at (10, 10), start at 10, a
    // triangle of 16 x 8 on the left.
    QCOMPARE(bubble->pos(), QPoint(53 - 10 + 8, 77 - (10 + 10) - 8));
}

void TestWyBubbleButton::anEmptyTextShowsNoBubble()
{
    Host host;
    host.window.show();
    host.button->SetBubbleTip(QString());
    QVERIFY(bubbleOf(host.window));
    enter(host.button);
    QVERIFY(bubbleOf(host.window)->isHidden());
}

void TestWyBubbleButton::aLaterTextShowsAtTheNextEntry()
{
    Host host;
    host.window.show();
    host.button->SetBubbleTip(QStringLiteral("old"));
    enter(host.button);
    host.button->SetBubbleTip(QStringLiteral("new"));
    QCOMPARE(textOf(bubbleOf(host.window)), QStringLiteral("old"));
    leave(host.button);
    enter(host.button);
    QCOMPARE(textOf(bubbleOf(host.window)), QStringLiteral("new"));
}

void TestWyBubbleButton::lettingGoHidesABubbleOfAnyText()
{
    Host host;
    host.window.show();
    host.button->SetBubbleTip(QStringLiteral("text"));
    enter(host.button);
    host.button->SetBubbleTip(QString());
    leave(host.button);
    QVERIFY(bubbleOf(host.window)->isHidden());
}

void TestWyBubbleButton::theBubbleLetsTheMouseThrough()
{
    Host host;
    host.button->SetBubbleTip(QStringLiteral("text"));
    WyBubbleTip* bubble = bubbleOf(host.window);
    QVERIFY(bubble->testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(bubble->windowFlags().testFlag(Qt::WindowTransparentForInput));
    QCOMPARE(bubble->windowType(), Qt::ToolTip);
    QVERIFY(bubble->windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(bubble->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(bubble->isHidden());
}

void TestWyBubbleButton::surroundingWindowsMayDie()
{
    QScopedPointer<Host> old(new Host);
    WyBubbleButton* button = old->button;
    button->SetBubbleTip(QStringLiteral("text"));
    QPointer<WyBubbleTip> bubble = bubbleOf(old->window);
    QWidget newWindow;
    button->setParent(&newWindow);
    newWindow.show();
    old.reset();
    QVERIFY(!bubble);
    enter(button);
    leave(button);
    QVERIFY(!bubbleOf(newWindow));
    button->SetBubbleTip(QStringLiteral("again"));
    enter(button);
    QVERIFY(bubbleOf(newWindow));
    QVERIFY(bubbleOf(newWindow)->isVisible());
}

void TestWyBubbleButton::aDyingButtonTakesItsBubbleOffTheScreen()
{
    Host host;
    host.window.show();
    host.button->SetBubbleTip(QStringLiteral("text"));
    QPointer<WyBubbleTip> bubble = bubbleOf(host.window);
    enter(host.button);
    delete host.button;
    QVERIFY(bubble); // it lives as long as its window
    QVERIFY(bubble->isHidden());
}

void TestWyBubbleButton::aButtonWithoutAParentOwnsItsBubble()
{
    auto* button = new WyBubbleButton;
    button->show();
    button->SetBubbleTip(QStringLiteral("text"));
    QPointer<WyBubbleTip> bubble = bubbleOf(*button);
    QCOMPARE(bubble->parentWidget(), button);
    enter(button);
    QVERIFY(bubble->isVisible());
    delete button;
    QVERIFY(!bubble);
}

void TestWyBubbleButton::survivesBeingDeletedWhenTheBubbleShows()
{
    for (QEvent::Type when : {QEvent::Show, QEvent::Hide}) {
        Host host;
        host.window.show();
        host.button->SetBubbleTip(QStringLiteral("text"));
        QPointer<WyBubbleButton> button = host.button;
        const WyTest::OnEvent deleter(bubbleOf(host.window), when, [button] { delete button; });
        button->setMouseTracking(true);
        enter(button);
        if (button)
            leave(button);
        QVERIFY(!button);
    }
}

void TestWyBubbleButton::survivesBeingDeletedWhileItsBubbleMoves_data()
{
    QTest::addColumn<QEvent::Type>("when");
    QTest::newRow("painted anew") << QEvent::Paint;
    QTest::newRow("moved") << QEvent::Move;
    QTest::newRow("resized") << QEvent::Resize;
}

void TestWyBubbleButton::survivesBeingDeletedWhileItsBubbleMoves()
{
    QFETCH(QEvent::Type, when);
    Host host;
    host.window.show();
    host.button->SetBubbleTip(QStringLiteral("text"));
    WyBubbleTip* bubble = bubbleOf(host.window);
    enter(host.button);
    QVERIFY(QTest::qWaitForWindowExposed(bubble));
    // The next entry finds it on the screen.
    host.button->move(60, 50);
    host.button->SetBubbleTip(QStringLiteral("a longer text\nof several\nlines"));
    const QPointer<WyBubbleButton> button = host.button;
    const WyTest::OnEvent deleter(bubble, when, [button] { delete button; });
    enter(button);
    QVERIFY(!button);
    QVERIFY(bubble->isHidden());
}

QTEST_MAIN(TestWyBubbleButton)
#include "tst_wybubblebutton.moc"
