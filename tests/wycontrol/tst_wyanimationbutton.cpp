#include "WyWidgets/wycontrol/WyAnimationButton.h"

#include "support/Contract.h"
#include "support/Events.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QtTest>

using WyWidgets::WyAnimationButton;

namespace {

QTimer* timer(const WyAnimationButton& button)
{
    return button.findChild<QTimer*>();
}

/// Lets the animation take this many steps at once.
void tick(WyAnimationButton& button, int steps = 1)
{
    for (int i = 0; i < steps; ++i)
        QVERIFY(QMetaObject::invokeMethod(&button, "SlotTimeOut"));
}

} // namespace

class TestWyAnimationButton : public QObject
{
    Q_OBJECT

private slots:
    void registersItsSlot();
    void startsEnabledAndEmptyWithAnIdleTimer();
    void settingTextsShowsTheRestingText();
    void dotsGrowEveryHalfSecondAndStartOver();
    void dotsStandAloneWithoutAnimationText();
    void theCountdownKeepsItsFirstNumberForTwoTicks();
    void aCountdownOfOneSecondShowsOneSecondUntilTheEnd();
    void secondsBelowOneSelectTheDots_data();
    void secondsBelowOneSelectTheDots();
    void startingAgainWhileRunningChangesNothing();
    void everyRunStartsAtTheBeginning();
    void stoppingKeepsTheDotsForHalfASecond();
    void stoppingWhenNothingRunsStillRestores();
    void aNewStartOutlivesTheRestoreOfTheLastStop();
    void everyStopKeepsItsDotsForHalfASecond();
    void mayBeStoppedWhileItIsDisabled();
    void mayBeDeletedWhileItIsDisabled();
    void theTimerDrivesTheAnimation();
    void aCountdownRunsInRealTime();
    void shorteningARunningCountdownEndsIt();
    void switchingARunningCountdownToDotsGoesOn();
    void aVeryLongCountdownCounts();
    void initViewDoesNothing();
    void mayBeDeletedBeforeItIsRestored();
    void survivesItsTimer();
    void takesAnyText_data();
    void takesAnyText();
};

void TestWyAnimationButton::registersItsSlot()
{
    WY_COMPARE_CONTRACT(WyAnimationButton, {}, {"SlotTimeOut()"}, {});
}

void TestWyAnimationButton::startsEnabledAndEmptyWithAnIdleTimer()
{
    WyAnimationButton button;
    QVERIFY(button.isEnabled());
    QCOMPARE(button.text(), QString());
    QCOMPARE(button.findChildren<QTimer*>().size(), 1);
    QVERIFY(!timer(button)->isActive());
    QCOMPARE(timer(button)->interval(), 0);
    button.StartAnimation();
    QCOMPARE(timer(button)->interval(), 500); // no seconds were set, so it shows dots
    tick(button);
    QCOMPARE(button.text(), QStringLiteral("."));
}

void TestWyAnimationButton::settingTextsShowsTheRestingText()
{
    WyAnimationButton button;
    button.SetAnimationText(QStringLiteral("Send"), QStringLiteral("Sending"));
    QCOMPARE(button.text(), QStringLiteral("Send"));
    button.SetAnimationSecond(QStringLiteral("Resend"), 60);
    QCOMPARE(button.text(), QStringLiteral("Resend"));
    QVERIFY(button.isEnabled());
    QVERIFY(!timer(button)->isActive());
}

void TestWyAnimationButton::dotsGrowEveryHalfSecondAndStartOver()
{
    WyAnimationButton button;
    button.SetAnimationText(QStringLiteral("Send"), QStringLiteral("Sending"));
    button.StartAnimation();
    QVERIFY(!button.isEnabled());
    QCOMPARE(button.text(), QStringLiteral("Sending"));
    QVERIFY(timer(button)->isActive());
    QVERIFY(!timer(button)->isSingleShot());
    QCOMPARE(timer(button)->interval(), 500);
    for (const char* text :
         {"Sending.", "Sending..", "Sending...", "Sending.", "Sending..", "Sending...", "Sending."}) {
        tick(button);
        QCOMPARE(button.text(), QLatin1String(text));
        QVERIFY(!button.isEnabled());
    }
    QVERIFY(timer(button)->isActive());
}

void TestWyAnimationButton::dotsStandAloneWithoutAnimationText()
{
    WyAnimationButton button;
    button.SetAnimationSecond(QStringLiteral("Send"), 0);
    button.StartAnimation();
    QCOMPARE(button.text(), QString());
    for (const char* text : {".", "..", "...", "."}) {
        tick(button);
        QCOMPARE(button.text(), QLatin1String(text));
    }
}

void TestWyAnimationButton::theCountdownKeepsItsFirstNumberForTwoTicks()
{
    WyAnimationButton button;
    button.SetAnimationSecond(QStringLiteral("Resend"), 3);
    button.StartAnimation();
    QVERIFY(!button.isEnabled());
    QCOMPARE(timer(button)->interval(), 1000);
    QCOMPARE(button.text(), QStringLiteral("3 s")); // from 0 s
    tick(button);
    QCOMPARE(button.text(), QStringLiteral("3 s")); // from 1 s
    tick(button);
    QCOMPARE(button.text(), QStringLiteral("2 s")); // from 2 s
    QVERIFY(timer(button)->isActive());
    tick(button);
    QCOMPARE(button.text(), QStringLiteral("1 s")); // from 3 s
    QVERIFY(!timer(button)->isActive());
    QVERIFY(!button.isEnabled());
    QTRY_VERIFY(button.isEnabled()); // at 3.5 s
    QCOMPARE(button.text(), QStringLiteral("Resend"));
}

void TestWyAnimationButton::aCountdownOfOneSecondShowsOneSecondUntilTheEnd()
{
    WyAnimationButton button;
    button.SetAnimationSecond(QStringLiteral("Resend"), 1);
    button.StartAnimation();
    QCOMPARE(button.text(), QStringLiteral("1 s"));
    tick(button);
    QCOMPARE(button.text(), QStringLiteral("1 s"));
    QVERIFY(!timer(button)->isActive());
    QVERIFY(!button.isEnabled());
    QTRY_COMPARE(button.text(), QStringLiteral("Resend"));
    QVERIFY(button.isEnabled());
}

void TestWyAnimationButton::secondsBelowOneSelectTheDots_data()
{
    QTest::addColumn<int>("seconds");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -5;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void TestWyAnimationButton::secondsBelowOneSelectTheDots()
{
    QFETCH(int, seconds);
    WyAnimationButton button;
    button.SetAnimationText(QStringLiteral("Send"), QStringLiteral("Sending"));
    button.SetAnimationSecond(QStringLiteral("Resend"), seconds);
    button.StartAnimation();
    QCOMPARE(button.text(), QStringLiteral("Sending"));
    QCOMPARE(timer(button)->interval(), 500);
    tick(button, 2);
    QCOMPARE(button.text(), QStringLiteral("Sending.."));
    QVERIFY(timer(button)->isActive());
}

void TestWyAnimationButton::startingAgainWhileRunningChangesNothing()
{
    WyAnimationButton button;
    button.SetAnimationSecond(QStringLiteral("Resend"), 5);
    button.StartAnimation();
    tick(button, 3);
    button.StartAnimation();
    QCOMPARE(button.text(), QStringLiteral("3 s"));
    tick(button);
    QCOMPARE(button.text(), QStringLiteral("2 s"));
}

void TestWyAnimationButton::everyRunStartsAtTheBeginning()
{
    WyAnimationButton button;
    button.SetAnimationSecond(QStringLiteral("Resend"), 5);
    button.StartAnimation();
    tick(button, 3);
    button.StopAnimation();
    button.StartAnimation();
    QCOMPARE(button.text(), QStringLiteral("5 s"));
    button.StopAnimation();
    button.SetAnimationSecond(QStringLiteral("Resend"), 0);
    button.StartAnimation();
    tick(button, 2);
    button.StopAnimation();
    button.StartAnimation();
    tick(button);
    QCOMPARE(button.text(), QStringLiteral("."));
}

void TestWyAnimationButton::stoppingKeepsTheDotsForHalfASecond()
{
    WyAnimationButton button;
    button.SetAnimationText(QStringLiteral("Send"), QStringLiteral("Sending"));
    button.StartAnimation();
    tick(button, 2);
    QElapsedTimer sinceStop;
    sinceStop.start();
    button.StopAnimation();
    QVERIFY(!timer(button)->isActive());
    QCOMPARE(button.text(), QStringLiteral("Sending.."));
    QVERIFY(!button.isEnabled());
    QTRY_VERIFY(button.isEnabled());
    QVERIFY(sinceStop.elapsed() >= 450); // timers may fire 5 % early
    QCOMPARE(button.text(), QStringLiteral("Send"));
}

void TestWyAnimationButton::stoppingWhenNothingRunsStillRestores()
{
    WyAnimationButton button;
    button.SetAnimationText(QStringLiteral("Send"), QStringLiteral("Sending"));
    button.setText(QStringLiteral("Host's own"));
    button.setEnabled(false);
    button.StopAnimation();
    QCOMPARE(button.text(), QStringLiteral("Host's own"));
    QVERIFY(!button.isEnabled());
    QTRY_VERIFY(button.isEnabled());
    QCOMPARE(button.text(), QStringLiteral("Send"));
}

void TestWyAnimationButton::aNewStartOutlivesTheRestoreOfTheLastStop()
{
    WyAnimationButton button;
    button.SetAnimationText(QStringLiteral("Send"), QStringLiteral("Sending"));
    WyAnimationButton reference;
    reference.setEnabled(false);
    button.StartAnimation();
    button.StopAnimation();
    button.StartAnimation();
    reference.StopAnimation(); // is restored right after the first button would be
    QTRY_VERIFY(reference.isEnabled());
    QVERIFY(!button.isEnabled());
    QVERIFY(button.text().startsWith(QLatin1String("Sending")));
}

void TestWyAnimationButton::everyStopKeepsItsDotsForHalfASecond()
{
    WyAnimationButton button;
    button.SetAnimationText(QStringLiteral("Send"), QStringLiteral("Sending"));
    WyAnimationButton reference;
    reference.setEnabled(false);
    button.StartAnimation();
    button.StopAnimation();
    reference.StopAnimation(); // is restored right after the first run would be
    QElapsedTimer sinceStop;
    QTimer::singleShot(200, &button, [&] {
        button.StartAnimation();
        tick(button);
        sinceStop.start();
        button.StopAnimation();
    });
    QTRY_VERIFY(reference.isEnabled());
    QTRY_VERIFY(button.isEnabled());
    QVERIFY2(sinceStop.elapsed() >= 450, qPrintable(QString::number(sinceStop.elapsed())));
    QCOMPARE(button.text(), QStringLiteral("Send"));
}

void TestWyAnimationButton::mayBeStoppedWhileItIsDisabled()
{
    WyAnimationButton button;
    button.SetAnimationText(QStringLiteral("Send"), QStringLiteral("Sending"));
    const WyTest::OnEvent onDisabled(&button, QEvent::EnabledChange, [&button] {
        if (!button.isEnabled())
            button.StopAnimation();
    });
    button.StartAnimation();
    QVERIFY(!timer(button)->isActive());
    QTRY_VERIFY(button.isEnabled());
    QCOMPARE(button.text(), QStringLiteral("Send"));
}

void TestWyAnimationButton::mayBeDeletedWhileItIsDisabled()
{
    const QPointer<WyAnimationButton> button = new WyAnimationButton;
    const WyTest::OnEvent onDisabled(button, QEvent::EnabledChange, [button] { delete button; });
    button->StartAnimation();
    QVERIFY(!button);
}

void TestWyAnimationButton::theTimerDrivesTheAnimation()
{
    WyAnimationButton button;
    button.SetAnimationText(QStringLiteral("Send"), QStringLiteral("Sending"));
    button.StartAnimation();
    timer(button)->setInterval(1);
    QTRY_COMPARE(button.text(), QStringLiteral("Sending..."));
    QTRY_COMPARE(button.text(), QStringLiteral("Sending."));
}

void TestWyAnimationButton::aCountdownRunsInRealTime()
{
    WyAnimationButton button;
    button.SetAnimationSecond(QStringLiteral("Resend"), 1);
    QElapsedTimer sinceStart;
    sinceStart.start();
    button.StartAnimation();
    QTRY_VERIFY(!timer(button)->isActive());
    QVERIFY(sinceStart.elapsed() >= 950);
    QTRY_VERIFY(button.isEnabled());
    QVERIFY(sinceStart.elapsed() >= 1400);
}

void TestWyAnimationButton::shorteningARunningCountdownEndsIt()
{
    WyAnimationButton button;
    button.SetAnimationSecond(QStringLiteral("Resend"), 60);
    button.StartAnimation();
    tick(button, 10);
    button.SetAnimationSecond(QStringLiteral("Resend"), 5);
    tick(button);
    QCOMPARE(button.text(), QStringLiteral("0 s"));
    QVERIFY(!timer(button)->isActive());
    QTRY_VERIFY(button.isEnabled());
}

void TestWyAnimationButton::switchingARunningCountdownToDotsGoesOn()
{
    WyAnimationButton button;
    button.SetAnimationText(QStringLiteral("Send"), QStringLiteral("Sending"));
    button.SetAnimationSecond(QStringLiteral("Send"), 60);
    button.StartAnimation();
    tick(button, 13);
    button.SetAnimationSecond(QStringLiteral("Send"), 0);
    for (int i = 0; i < 6; ++i) {
        tick(button);
        const int dots = button.text().size() - int(qstrlen("Sending"));
        QVERIFY2(dots >= 1 && dots <= 3, qPrintable(button.text()));
    }
}

void TestWyAnimationButton::aVeryLongCountdownCounts()
{
    WyAnimationButton button;
    button.SetAnimationSecond(QStringLiteral("Resend"), std::numeric_limits<int>::max());
    button.StartAnimation();
    tick(button, 2);
    QCOMPARE(button.text(), QStringLiteral("2147483646 s"));
}

void TestWyAnimationButton::initViewDoesNothing()
{
    WyAnimationButton button;
    const int children = button.children().size();
    button.InitView();
    button.InitView();
    QCOMPARE(button.children().size(), children);
    QVERIFY(!button.layout());
}

void TestWyAnimationButton::mayBeDeletedBeforeItIsRestored()
{
    auto* button = new WyAnimationButton;
    WyAnimationButton reference;
    reference.setEnabled(false);
    button->StopAnimation();
    reference.StopAnimation();
    delete button;
    QTRY_VERIFY(reference.isEnabled());
}

void TestWyAnimationButton::survivesItsTimer()
{
    WyAnimationButton button;
    button.SetAnimationSecond(QStringLiteral("Resend"), 1);
    button.StartAnimation();
    delete timer(button);
    tick(button);
    button.StopAnimation();
    QTRY_VERIFY(button.isEnabled());
    button.StartAnimation(); // with nothing to drive it, it stays at rest
    QVERIFY(button.isEnabled());
    QCOMPARE(button.text(), QStringLiteral("Resend"));
}

void TestWyAnimationButton::takesAnyText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("null") << QString();
    QTest::newRow("placeholder") << "%1 %2";
    QTest::newRow("rich text") << "<b>bold</b>";
    QTest::newRow("right to left") << QString::fromUtf8("שליחה");
    QTest::newRow("emoji") << QString::fromUtf8("📨");
    QTest::newRow("huge") << QString(100000, QLatin1Char('w'));
}

void TestWyAnimationButton::takesAnyText()
{
    QFETCH(QString, text);
    WyAnimationButton button;
    button.SetAnimationText(text, text);
    QCOMPARE(button.text(), text);
    button.StartAnimation();
    tick(button);
    QCOMPARE(button.text(), text + QLatin1Char('.'));
}

QTEST_MAIN(TestWyAnimationButton)
#include "tst_wyanimationbutton.moc"
