#include "WyWidgets/wycontrol/WyToast.h"

#include "support/AnimationClock.h"
#include "support/Events.h"
#include "wycontrol/ToastSupport.h"

#include <QAccessible>
#include <QScreen>
#include <QtMath>
#include <QtTest>

using namespace WyWidgets;
using WyTest::AnimationClock;
using WyTest::EventCounter;
using WyTest::OnEvent;
using WyTest::ToastParts;

namespace {

constexpr int kShadowPx = 5;
constexpr int kLongMs = 60000;

QRect screenGeometry()
{
    return QGuiApplication::primaryScreen()->geometry();
}

/// A toast that stays, with a body of this size.
WyToast* createToast(QSize size = {301, 81}, QWidget* parent = nullptr)
{
    auto* toast = new WyToast(parent);
    toast->setDuration(0);
    toast->setFixedSize(size);
    return toast;
}

WyToast* showToast(QSize size = {301, 81}, QWidget* parent = nullptr)
{
    WyToast* toast = createToast(size, parent);
    toast->show();
    return toast;
}

/// Where the window of a body of this size belongs.
QPoint place(ToastPosition position, QSize body, int stacked = 0)
{
    const QRect sg = screenGeometry();
    const QPoint offset = WyToast::getOffset();
    const int left = sg.x() + offset.x();
    const int middle = sg.x() + sg.width() / 2 - body.width() / 2;
    const int right = sg.x() + sg.width() - body.width() - offset.x();
    const int bottom = sg.y() + sg.height() - body.height() - offset.y() - stacked;
    const int top = sg.y() + offset.y() + stacked;
    const QPoint shadow(kShadowPx, kShadowPx);
    switch (position) {
    case ToastPosition::BOTTOM_LEFT:
        return QPoint(left, bottom) - shadow;
    case ToastPosition::BOTTOM_MIDDLE:
        return QPoint(middle, bottom) - shadow;
    case ToastPosition::BOTTOM_RIGHT:
        return QPoint(right, bottom) - shadow;
    case ToastPosition::TOP_LEFT:
        return QPoint(left, top) - shadow;
    case ToastPosition::TOP_MIDDLE:
        return QPoint(middle, top) - shadow;
    case ToastPosition::TOP_RIGHT:
        return QPoint(right, top) - shadow;
    case ToastPosition::CENTER:
        return QPoint(middle, sg.y() + sg.height() / 2 - body.height() / 2 + stacked) - shadow;
    }
    return -shadow;
}

void positionRows()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("liftSign");
    const char* names[] = {"bottom left", "bottom middle", "bottom right", "top left",
                           "top middle",  "top right",     "centre",       "unknown"};
    for (int i = 0; i < 8; ++i)
        QTest::newRow(names[i]) << i << (i < 3 ? -1 : i < 7 ? 1 : 0);
}

void enter(QWidget* widget)
{
    QEvent event(QEvent::Enter);
    QCoreApplication::sendEvent(widget, &event);
}

void leave(QWidget* widget)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(widget, &event);
}

/// What a window system sends when the user closes the window.
void closeByUser(QWidget* window)
{
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window, &event);
}

} // namespace

class TestWyToastShowing : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { WyTest::resetToasts(); }

    void theFirstToastAppearsInItsPlace_data() { positionRows(); }
    void theFirstToastAppearsInItsPlace();
    void toastsStandInTheirPlaceBeforeTheyAreSeen();
    void furtherToastsSlideInFromBehindTheirPredecessor_data() { positionRows(); }
    void furtherToastsSlideInFromBehindTheirPredecessor();
    void theLiftAddsThePredecessorsRemainingWay();
    void theSlideEndsWithTheRepositioning();
    void halvesAreRoundedOneByOne();
    void spacingCountsPerStackedToast();
    void everyShownToastReturnsToItsPlaceOnAShow();
    void theToastFadesIn();
    void withoutDurationsItIsThereAtOnce();
    void theParentIsActivated();
    void screenReadersAreTold();

    void changedSettingsMoveShownToasts_data();
    void changedSettingsMoveShownToasts();
    void aNewHorizontalOffsetOnlyMovesSideways();
    void aNewVerticalOffsetOnlyMovesUpAndDown();
    void repositioningTakesAFifthOfASecond();
    void repeatedHorizontalMovesTakeTheirTimeEach();

    void theDurationStartsBothTimers();
    void withoutBarOnlyTheDurationRuns();
    void withoutDurationNothingRuns_data();
    void withoutDurationNothingRuns();
    void theBarShrinksWithTheTime();
    void itsTimerDrivesTheBar();
    void theBarStopsAtTheDuration();
    void aTickWithinAPixelChangesNothing();
    void theBarRestsWhileMinimized();
    void aRestedBarShowsTheTimeThatHasPassed();
    void restoringStartsNoBarThatStoodStill();
    void aBarThatIsNotShownNeverRuns();
    void theEndOfTheDurationFadesOut();

    void enteringRefillsTheBarAndStopsTheTime();
    void leavingStartsTheWholeDuration();
    void leavingWithoutHavingEnteredChangesNothing();
    void hoveringWithoutBarLeavesTheBarAlone();
    void withoutResetHoveringChangesNothing();
    void hoveringAToastThatStaysChangesNothing();

    void hidingFadesOutAndTellsOnce();
    void theCloseButtonHides();
    void theCloseButtonMayEndTheToastAtOnce();
    void hidingLetsTheBarRunOn();
    void theOthersMoveUpWhenTheMiddleOneCloses();
    void leavingWhileFadingOutDoesNotDisturb();
    void fadesOfNegativeLengthTakeNoTime();
    void removingTheEffectEndsAFade();
    void anEffectRemovedBeforeDoesNotCutTheFadeShort();
    void aReplacedEffectDoesNotKeepTheToast();

    void escapeClosesLikeTheButton();
    void theWindowSystemEndsItAtOnce();
    void closingByProgramEndsAtOnce();
    void hidingByProgramGivesThePlaceAway();
    void closingEverythingIsNotHeldUp();
    void toastsAreNoLastWindow();
    void aDialogThatWasNeverAToastStaysUsable();
};

void TestWyToastShowing::theFirstToastAppearsInItsPlace()
{
    QFETCH(const int, position);
    for (const QSize size : {QSize(301, 81), QSize(300, 80), QSize(299, 83)}) {
        WyToast::reset();
        WyToast::setPosition(ToastPosition(position));
        const WyToast* toast = showToast(size);
        QCOMPARE(ToastParts(toast).body->size(), size);
        QCOMPARE(toast->pos(), place(ToastPosition(position), size));
        if (position == 7)
            QCOMPARE(toast->pos(), QPoint(-5, -5));
    }
}

void TestWyToastShowing::toastsStandInTheirPlaceBeforeTheyAreSeen()
{
    for (int i = 0; i < 2; ++i) {
        WyToast* toast = createToast();
        QPoint seenAt;
        const OnEvent reaction(toast, QEvent::Show, [&] { seenAt = toast->pos(); });
        toast->show();
        QCOMPARE(seenAt, place(ToastPosition::BOTTOM_RIGHT, {301, 81}, 91 * i) - QPoint(0, 60 * i));
    }
}

void TestWyToastShowing::furtherToastsSlideInFromBehindTheirPredecessor()
{
    QFETCH(const int, position);
    QFETCH(const int, liftSign);
    WyToast::setPosition(ToastPosition(position));
    showToast({301, 81});
    const WyToast* second = showToast({200, 63});
    const QPoint target = place(ToastPosition(position), {200, 63}, 81 + 10);
    if (liftSign != 0) {
        const int lift = int((63 + 2 * kShadowPx) / 1.5);
        QCOMPARE(lift, 48);
        QCOMPARE(second->pos(), target + QPoint(0, liftSign * lift));
    } else {
        QVERIFY(second->pos() != target);
    }
    QTRY_COMPARE(second->pos(), target);
    if (position == 7)
        QCOMPARE(second->pos(), QPoint(-5, -5));
}

void TestWyToastShowing::theLiftAddsThePredecessorsRemainingWay()
{
    for (const ToastPosition position : {ToastPosition::BOTTOM_LEFT, ToastPosition::TOP_RIGHT}) {
        WyToast::reset();
        WyToast::setPosition(position);
        const int sign = position == ToastPosition::BOTTOM_LEFT ? -1 : 1;
        showToast();
        const WyToast* second = showToast();
        const WyToast* third = showToast();
        // The second one stands its own lift away from its place, 91 / 1.5.
        QCOMPARE(second->y(), place(position, {301, 81}, 91).y() + sign * 60);
        QCOMPARE(third->y(), place(position, {301, 81}, 182).y() + sign * (60 + 60));
    }
}

void TestWyToastShowing::theSlideEndsWithTheRepositioning()
{
    AnimationClock clock;
    showToast();
    WyToast* second = createToast();
    second->setFadeInDuration(kLongMs);
    second->show();
    const QPoint target = place(ToastPosition::BOTTOM_RIGHT, {301, 81}, 91);
    clock.pass(190);
    QVERIFY(second->pos() != target);
    clock.pass(10);
    QCOMPARE(second->pos(), target);
    QVERIFY(ToastParts(second).effect->opacity() < 0.5);
}

void TestWyToastShowing::halvesAreRoundedOneByOne()
{
    WyToast::setPosition(ToastPosition::CENTER);
    const QRect sg = screenGeometry();
    const WyToast* toast = showToast({301, 81});
    QCOMPARE(toast->x(), sg.x() + sg.width() / 2 - 150 - kShadowPx);
    QCOMPARE(toast->y(), sg.y() + sg.height() / 2 - 40 - kShadowPx);
}

void TestWyToastShowing::spacingCountsPerStackedToast()
{
    WyToast::setSpacing(-7);
    const int heights[] = {80, 63, 101};
    int stacked = 0;
    for (const int height : heights) {
        const WyToast* toast = showToast({200, height});
        QTRY_COMPARE(toast->pos(), place(ToastPosition::BOTTOM_RIGHT, {200, height}, stacked));
        stacked += height - 7;
    }
}

void TestWyToastShowing::everyShownToastReturnsToItsPlaceOnAShow()
{
    WyToast* first = showToast();
    const QPoint home = first->pos();
    first->move(7, 7);
    showToast();
    QTRY_COMPARE(first->pos(), home);
}

void TestWyToastShowing::theToastFadesIn()
{
    AnimationClock clock;
    WyToast* toast = createToast();
    toast->setFadeInDuration(100);
    toast->show();
    QVERIFY(toast->isVisible());
    const ToastParts parts(toast);
    QCOMPARE(parts.effect->opacity(), 0.0);
    clock.pass(30);
    QCOMPARE(parts.effect->opacity(), 0.3);
    clock.pass(69);
    QCOMPARE(parts.effect->opacity(), 0.99);
    clock.pass(1);
    QCOMPARE(parts.effect->opacity(), 1.0);
}

void TestWyToastShowing::withoutDurationsItIsThereAtOnce()
{
    WyToast* toast = createToast();
    toast->setFadeInDuration(0);
    toast->show();
    QCOMPARE(ToastParts(toast).effect->opacity(), 1.0);
}

void TestWyToastShowing::theParentIsActivated()
{
    QWidget parent;
    parent.show();
    QWidget child(&parent);
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    showToast({301, 81}, &child);
    QTRY_COMPARE(QApplication::activeWindow(), &parent);
}

void TestWyToastShowing::screenReadersAreTold()
{
    WyToast* toast = createToast();
    toast->setTitle("Saved");
    toast->setText("All files are on the disk");
    toast->show();
    QCOMPARE(toast->accessibleName(), QString("Saved"));
    QCOMPARE(toast->accessibleDescription(), QString("All files are on the disk"));
    WyToast* untitled = createToast();
    untitled->setText("Just a text");
    untitled->show();
    QCOMPARE(untitled->accessibleName(), QString("Just a text"));
    QCOMPARE(untitled->accessibleDescription(), QString());
    WyToast* named = createToast();
    named->setText("All files are on the disk");
    named->setAccessibleName("The host's own words");
    named->show();
    QCOMPARE(named->accessibleName(), QString("The host's own words"));
    QCOMPARE(named->accessibleDescription(), QString("All files are on the disk"));
    WyToast::reset();
    WyToast* rich = createToast();
    rich->setTitle("<b>Saved</b>");
    rich->setText("All &amp; <i>every</i> file<br>of 1 &lt; 2");
    rich->show();
    QCOMPARE(rich->accessibleName(), QString("Saved"));
    QCOMPARE(rich->accessibleDescription(), QString("All & every file\nof 1 < 2"));
}

void TestWyToastShowing::changedSettingsMoveShownToasts_data()
{
    QTest::addColumn<int>("setting");
    QTest::newRow("spacing") << 0;
    QTest::newRow("offset") << 1;
    QTest::newRow("horizontal offset") << 2;
    QTest::newRow("vertical offset") << 3;
    QTest::newRow("position") << 4;
    QTest::newRow("unknown position") << 5;
    QTest::newRow("main screen") << 6;
    QTest::newRow("fixed screen") << 7;
}

void TestWyToastShowing::changedSettingsMoveShownToasts()
{
    QFETCH(const int, setting);
    const QSize size(301, 81);
    WyToast* first = showToast(size);
    WyToast* second = showToast(size);
    QTRY_COMPARE(second->pos(), place(ToastPosition::BOTTOM_RIGHT, size, 91));
    const QPoint before = second->pos();
    // Settings that happen to change nothing on a single screen bring the toasts back.
    if (setting > 5) {
        first->move(1, 1);
        second->move(2, 2);
    }
    const std::function<void()> changes[] = {
        [] { WyToast::setSpacing(33); },
        [] { WyToast::setOffset(7, 9); },
        [] { WyToast::setOffsetX(8); },
        [] { WyToast::setOffsetY(6); },
        [] { WyToast::setPosition(ToastPosition::TOP_MIDDLE); },
        [] { WyToast::setPosition(ToastPosition(7)); },
        [] { WyToast::setAlwaysOnMainScreen(true); },
        [] { WyToast::setFixedScreen(qApp->primaryScreen()); },
    };
    changes[setting]();
    const QPoint firstPlace = place(WyToast::getPosition(), size);
    const QPoint secondPlace = place(WyToast::getPosition(), size, 81 + WyToast::getSpacing());
    QVERIFY(second->pos() != secondPlace);
    QTRY_COMPARE(first->pos(), firstPlace);
    QTRY_COMPARE(second->pos(), secondPlace);
    if (setting <= 5)
        QVERIFY(secondPlace != before);
}

void TestWyToastShowing::aNewHorizontalOffsetOnlyMovesSideways()
{
    AnimationClock clock;
    WyToast* toast = showToast();
    clock.pass(200);
    toast->move(100, 100);
    WyToast::setOffsetX(50);
    clock.pass(200);
    QCOMPARE(toast->pos(), QPoint(place(ToastPosition::BOTTOM_RIGHT, {301, 81}).x(), 100));
}

void TestWyToastShowing::aNewVerticalOffsetOnlyMovesUpAndDown()
{
    AnimationClock clock;
    WyToast* toast = showToast();
    clock.pass(200);
    for (const std::function<void()>& change : {std::function<void()>([] { WyToast::setOffsetY(50); }),
                                                std::function<void()>([] { WyToast::setSpacing(50); })}) {
        toast->move(100, 100);
        change();
        clock.pass(200);
        QCOMPARE(toast->pos(), QPoint(100, place(ToastPosition::BOTTOM_RIGHT, {301, 81}).y()));
    }
}

void TestWyToastShowing::repositioningTakesAFifthOfASecond()
{
    AnimationClock clock;
    const WyToast* toast = showToast();
    clock.pass(200);
    for (const std::function<void()>& change : {std::function<void()>([] { WyToast::setOffsetX(200); }),
                                                std::function<void()>([] { WyToast::setOffsetY(200); }),
                                                std::function<void()>([] { WyToast::setOffset(0, 0); })}) {
        const QPoint start = toast->pos();
        change();
        const QPoint target = place(ToastPosition::BOTTOM_RIGHT, {301, 81});
        clock.pass(100);
        QVERIFY((toast->pos() - (start + target) / 2).manhattanLength() <= 2);
        clock.pass(90);
        QVERIFY(toast->pos() != target);
        clock.pass(10);
        QCOMPARE(toast->pos(), target);
    }
}

void TestWyToastShowing::repeatedHorizontalMovesTakeTheirTimeEach()
{
    AnimationClock clock;
    const WyToast* toast = showToast();
    clock.pass(200);
    for (const int offset : {400, 30, 600}) {
        WyToast::setOffsetX(offset + 100);
        clock.pass(150);
        WyToast::setOffsetX(offset);
        const QPoint target = place(ToastPosition::BOTTOM_RIGHT, {301, 81});
        clock.pass(190);
        QVERIFY(toast->pos() != target);
        clock.pass(10);
        QCOMPARE(toast->pos(), target);
    }
}

void TestWyToastShowing::theDurationStartsBothTimers()
{
    auto* toast = new WyToast;
    toast->setDuration(12345);
    toast->show();
    const ToastParts parts(toast);
    QVERIFY(parts.durationTimer->isActive());
    QCOMPARE(parts.durationTimer->interval(), 12345);
    QVERIFY(parts.barTimer->isActive());
    QCOMPARE(parts.barTimer->interval(), 5);
}

void TestWyToastShowing::withoutBarOnlyTheDurationRuns()
{
    auto* toast = new WyToast;
    toast->setShowDurationBar(false);
    toast->show();
    const ToastParts parts(toast);
    QVERIFY(parts.durationTimer->isActive());
    QVERIFY(!parts.barTimer->isActive());
    QVERIFY(parts.barContainer->isHidden());
}

void TestWyToastShowing::withoutDurationNothingRuns_data()
{
    QTest::addColumn<int>("duration");
    QTest::newRow("0") << 0;
    QTest::newRow("-1") << -1;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void TestWyToastShowing::withoutDurationNothingRuns()
{
    QFETCH(const int, duration);
    auto* toast = new WyToast;
    toast->setDuration(duration);
    toast->show();
    QCOMPARE(toast->getDuration(), duration);
    const ToastParts parts(toast);
    QVERIFY(!parts.durationTimer->isActive());
    QVERIFY(!parts.barTimer->isActive());
    QCOMPARE(parts.chunk->width(), parts.body->width());
    QMetaObject::invokeMethod(toast, "updateDurationBar");
    QCOMPARE(parts.chunk->width(), parts.body->width());
}

void TestWyToastShowing::theBarShrinksWithTheTime()
{
    WyToast* toast = createToast({333, 81});
    toast->setDuration(1001);
    toast->show();
    const ToastParts parts(toast);
    parts.barTimer->stop();
    QCOMPARE(parts.chunk->width(), 333);
    for (int elapsed = 5; elapsed < 1001; elapsed += 5) {
        QMetaObject::invokeMethod(toast, "updateDurationBar");
        const int expected = int(std::floor(333 - double(elapsed) / 1001 * 333));
        QCOMPARE(parts.chunk->width(), expected);
        QCOMPARE(parts.chunk->minimumWidth(), expected);
        QCOMPARE(parts.chunk->maximumWidth(), expected);
    }
    QCOMPARE(parts.bar->width(), 333);
}

void TestWyToastShowing::itsTimerDrivesTheBar()
{
    WyToast* toast = createToast({333, 81});
    toast->setDuration(100000);
    toast->show();
    const ToastParts parts(toast);
    QCOMPARE(parts.chunk->width(), 333);
    parts.barTimer->setInterval(0);
    QTRY_VERIFY(parts.chunk->width() < 333);
}

void TestWyToastShowing::theBarStopsAtTheDuration()
{
    WyToast* toast = createToast();
    toast->setDuration(10);
    toast->show();
    const ToastParts parts(toast);
    QVERIFY(parts.barTimer->isActive());
    QMetaObject::invokeMethod(toast, "updateDurationBar");
    const int half = parts.chunk->width();
    QCOMPARE(half, 150);
    QVERIFY(parts.barTimer->isActive());
    QMetaObject::invokeMethod(toast, "updateDurationBar");
    QVERIFY(!parts.barTimer->isActive());
    QCOMPARE(parts.chunk->width(), half);
}

void TestWyToastShowing::aTickWithinAPixelChangesNothing()
{
    WyToast* toast = createToast({100, 81});
    toast->setDuration(5000);
    toast->show();
    const ToastParts parts(toast);
    parts.barTimer->stop();
    const EventCounter resizes(parts.chunk, QEvent::Resize);
    for (int tick = 1; tick < 1000; ++tick)
        QMetaObject::invokeMethod(toast, "updateDurationBar");
    // 100 px in 999 ticks
    QCOMPARE(resizes.count(), 100);
    QCOMPARE(parts.chunk->width(), 0);
}

void TestWyToastShowing::theBarRestsWhileMinimized()
{
    WyToast* toast = createToast();
    toast->setDuration(kLongMs);
    toast->show();
    const ToastParts parts(toast);
    toast->showMinimized();
    QVERIFY(!parts.barTimer->isActive());
    QVERIFY(parts.durationTimer->isActive());
    toast->showNormal();
    QVERIFY(parts.barTimer->isActive());
    QCOMPARE(parts.barTimer->interval(), 5);

    // The pointer leaves a toast that is being minimised.
    enter(toast);
    toast->showMinimized();
    leave(toast);
    QVERIFY(parts.durationTimer->isActive());
    QVERIFY(!parts.barTimer->isActive());
}

void TestWyToastShowing::aRestedBarShowsTheTimeThatHasPassed()
{
    WyToast* toast = createToast();
    toast->setDuration(kLongMs);
    toast->show();
    const ToastParts parts(toast);
    toast->showMinimized();
    parts.durationTimer->start(kLongMs / 2);
    const double remaining = parts.durationTimer->remainingTime(); // coarse timers take some freedom
    toast->showNormal();
    QMetaObject::invokeMethod(toast, "updateDurationBar");
    QVERIFY(qAbs(parts.chunk->width() - remaining / kLongMs * 301) <= 1.5);
    QVERIFY(qAbs(parts.chunk->width() - 150) < 10);
}

void TestWyToastShowing::restoringStartsNoBarThatStoodStill()
{
    WyToast* toast = createToast();
    toast->setDuration(kLongMs);
    toast->show();
    const ToastParts parts(toast);
    enter(toast);
    toast->showMinimized();
    toast->showNormal();
    QVERIFY(!parts.durationTimer->isActive());
    QVERIFY(!parts.barTimer->isActive());
}

void TestWyToastShowing::aBarThatIsNotShownNeverRuns()
{
    WyToast* toast = createToast();
    toast->setShowDurationBar(false);
    toast->setDuration(kLongMs);
    toast->show();
    toast->showMinimized();
    toast->showNormal();
    QVERIFY(!ToastParts(toast).barTimer->isActive());
}

void TestWyToastShowing::theEndOfTheDurationFadesOut()
{
    WyToast* toast = createToast();
    toast->setDuration(20);
    toast->setFadeOutDuration(20);
    QSignalSpy closed(toast, &WyToast::closed);
    toast->show();
    QTRY_COMPARE(closed.count(), 1);
    QCOMPARE(WyToast::getVisibleCount(), 0);
}

void TestWyToastShowing::enteringRefillsTheBarAndStopsTheTime()
{
    WyToast* toast = createToast();
    toast->setDuration(kLongMs);
    toast->show();
    const ToastParts parts(toast);
    for (int tick = 0; tick < 6000; ++tick)
        QMetaObject::invokeMethod(toast, "updateDurationBar");
    QVERIFY(parts.chunk->width() <= 151);
    enter(toast);
    QVERIFY(!parts.durationTimer->isActive());
    QVERIFY(!parts.barTimer->isActive());
    QCOMPARE(parts.chunk->width(), 301);
    leave(toast);
    // It starts all over.
    QMetaObject::invokeMethod(toast, "updateDurationBar");
    QCOMPARE(parts.chunk->width(), 300);
}

void TestWyToastShowing::leavingStartsTheWholeDuration()
{
    WyToast* toast = createToast();
    toast->setDuration(kLongMs);
    toast->show();
    const ToastParts parts(toast);
    enter(toast);
    leave(toast);
    QVERIFY(parts.durationTimer->isActive());
    QCOMPARE(parts.durationTimer->interval(), kLongMs);
    QVERIFY(parts.durationTimer->remainingTime() > kLongMs - 5000);
    QVERIFY(parts.barTimer->isActive());
    QCOMPARE(parts.barTimer->interval(), 5);
}

/// A toast may appear under a pointer that does not move until it leaves.
void TestWyToastShowing::leavingWithoutHavingEnteredChangesNothing()
{
    WyToast* toast = createToast();
    toast->setDuration(kLongMs);
    toast->show();
    const ToastParts parts(toast);
    // A start would set the intervals anew.
    parts.durationTimer->setInterval(2 * kLongMs);
    parts.barTimer->setInterval(3 * kLongMs);
    leave(toast);
    QCOMPARE(parts.durationTimer->interval(), 2 * kLongMs);
    QCOMPARE(parts.barTimer->interval(), 3 * kLongMs);
}

void TestWyToastShowing::hoveringWithoutBarLeavesTheBarAlone()
{
    WyToast* toast = createToast();
    toast->setDuration(kLongMs);
    toast->setShowDurationBar(false);
    toast->show();
    const ToastParts parts(toast);
    const int width = parts.chunk->width();
    enter(toast);
    QVERIFY(!parts.durationTimer->isActive());
    QCOMPARE(parts.chunk->width(), width);
    leave(toast);
    QVERIFY(parts.durationTimer->isActive());
    QVERIFY(!parts.barTimer->isActive());
}

void TestWyToastShowing::withoutResetHoveringChangesNothing()
{
    WyToast* toast = createToast();
    toast->setDuration(kLongMs);
    toast->setResetDurationOnHover(false);
    toast->show();
    const ToastParts parts(toast);
    enter(toast);
    QVERIFY(parts.durationTimer->isActive());
    QVERIFY(parts.barTimer->isActive());
    parts.durationTimer->stop();
    parts.barTimer->stop();
    leave(toast);
    QVERIFY(!parts.durationTimer->isActive());
    QVERIFY(!parts.barTimer->isActive());
}

void TestWyToastShowing::hoveringAToastThatStaysChangesNothing()
{
    const ToastParts parts(showToast());
    enter(parts.body->window());
    leave(parts.body->window());
    QVERIFY(!parts.durationTimer->isActive());
    QVERIFY(!parts.barTimer->isActive());
}

void TestWyToastShowing::hidingFadesOutAndTellsOnce()
{
    AnimationClock clock;
    QPointer<WyToast> toast = createToast();
    toast->setDuration(kLongMs);
    toast->setFadeInDuration(0);
    toast->setFadeOutDuration(100);
    QSignalSpy closed(toast, &WyToast::closed);
    bool listed = true;
    connect(toast, &WyToast::closed, this, [&listed] { listed = WyToast::getVisibleCount() > 0; });
    toast->show();
    toast->hide();
    QVERIFY(!ToastParts(toast).durationTimer->isActive());
    clock.pass(30);
    QCOMPARE(ToastParts(toast).effect->opacity(), 0.7);
    toast->hide();
    QMetaObject::invokeMethod(toast, "fadeOut");
    QVERIFY(toast->isVisible());
    QCOMPARE(closed.count(), 0);
    QCOMPARE(WyToast::getVisibleCount(), 1);
    clock.pass(69);
    QCOMPARE(closed.count(), 0);
    clock.pass(1);
    QCOMPARE(closed.count(), 1);
    QVERIFY(!listed);
    QTRY_VERIFY(!toast);
    QCOMPARE(closed.count(), 1);
}

void TestWyToastShowing::theCloseButtonHides()
{
    WyToast* toast = createToast();
    toast->setFadeOutDuration(30);
    toast->show();
    QSignalSpy closed(toast, &WyToast::closed);
    QTest::mouseClick(ToastParts(toast).closeButton, Qt::LeftButton);
    QTRY_COMPARE(closed.count(), 1);
}

void TestWyToastShowing::theCloseButtonMayEndTheToastAtOnce()
{
    QPointer<WyToast> toast = createToast();
    toast->setFadeOutDuration(0);
    toast->show();
    connect(toast, &WyToast::closed, this, [toast] { delete toast; });
    QTest::mouseClick(ToastParts(toast).closeButton, Qt::LeftButton);
    QVERIFY(!toast);
}

void TestWyToastShowing::hidingLetsTheBarRunOn()
{
    WyToast* toast = createToast();
    toast->setDuration(kLongMs);
    toast->setFadeOutDuration(kLongMs);
    toast->show();
    toast->hide();
    QVERIFY(!ToastParts(toast).durationTimer->isActive());
    QVERIFY(ToastParts(toast).barTimer->isActive());
}

void TestWyToastShowing::theOthersMoveUpWhenTheMiddleOneCloses()
{
    AnimationClock clock;
    WyToast* first = showToast({301, 81});
    WyToast* middle = createToast({301, 61});
    middle->setFadeOutDuration(0);
    middle->show();
    WyToast* upper = showToast({301, 71});
    clock.pass(200);
    QCOMPARE(upper->pos(), place(ToastPosition::BOTTOM_RIGHT, {301, 71}, 81 + 61 + 20));
    QSignalSpy closed(middle, &WyToast::closed);
    // They move after the slots have run, and neither to the left nor to the right.
    connect(middle, &WyToast::closed, upper, [upper] { upper->move(upper->x() - 30, upper->y()); });
    const QPoint firstPlace = first->pos();
    middle->hide();
    QCOMPARE(closed.count(), 1);
    const QPoint target = place(ToastPosition::BOTTOM_RIGHT, {301, 71}, 81 + 10) - QPoint(30, 0);
    clock.pass(190);
    QVERIFY(upper->y() != target.y());
    clock.pass(10);
    QCOMPARE(upper->pos(), target);
    QCOMPARE(first->pos(), firstPlace);
    QCOMPARE(closed.count(), 1);
}

void TestWyToastShowing::leavingWhileFadingOutDoesNotDisturb()
{
    QPointer<WyToast> toast = createToast();
    toast->setDuration(10);
    toast->setFadeInDuration(10);
    toast->setFadeOutDuration(150);
    toast->show();
    QSignalSpy closed(toast, &WyToast::closed);
    QTRY_VERIFY(ToastParts(toast).effect->opacity() < 0.7 && !ToastParts(toast).durationTimer->isActive());
    leave(toast);
    double last = 1;
    // The duration ends again during the fade, which goes on all the same.
    while (toast && closed.isEmpty()) {
        const double opacity = ToastParts(toast).effect->opacity();
        QVERIFY(opacity <= last);
        last = opacity;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
    }
    QCOMPARE(closed.count(), 1);
    QTRY_VERIFY(!toast);
}

void TestWyToastShowing::fadesOfNegativeLengthTakeNoTime()
{
    QPointer<WyToast> toast = createToast();
    toast->setFadeInDuration(-100);
    toast->setFadeOutDuration(-100);
    toast->show();
    QCOMPARE(ToastParts(toast).effect->opacity(), 1.0);
    const QPointer<WyToast> second = createToast();
    second->setFadeInDuration(-100);
    second->show();
    QSignalSpy closed(toast, &WyToast::closed);
    toast->hide();
    QCOMPARE(closed.count(), 1);
    QTRY_VERIFY(!toast);
}

void TestWyToastShowing::removingTheEffectEndsAFade()
{
    QPointer<WyToast> toast = createToast();
    toast->setFadeOutDuration(kLongMs);
    toast->show();
    QSignalSpy closed(toast, &WyToast::closed);
    toast->hide();
    toast->setGraphicsEffect(nullptr);
    QTRY_COMPARE(closed.count(), 1);
    QTRY_VERIFY(!toast);
}

void TestWyToastShowing::anEffectRemovedBeforeDoesNotCutTheFadeShort()
{
    WyToast* toast = createToast();
    toast->setFadeOutDuration(kLongMs);
    toast->show();
    toast->setGraphicsEffect(nullptr);
    toast->hide();
    QCoreApplication::processEvents();
    QVERIFY(toast->isVisible());
    QVERIFY(qobject_cast<QGraphicsOpacityEffect*>(toast->graphicsEffect()));
}

void TestWyToastShowing::aReplacedEffectDoesNotKeepTheToast()
{
    QPointer<WyToast> toast = createToast();
    toast->setFadeOutDuration(20);
    toast->show();
    toast->setGraphicsEffect(new QGraphicsBlurEffect);
    QCoreApplication::processEvents();
    QVERIFY(toast->isVisible());
    QSignalSpy closed(toast, &WyToast::closed);
    toast->hide();
    QTRY_COMPARE(closed.count(), 1);
}

void TestWyToastShowing::escapeClosesLikeTheButton()
{
    WyToast* toast = createToast();
    toast->setFadeOutDuration(50);
    toast->show();
    QSignalSpy closed(toast, &WyToast::closed);
    QTest::keyClick(toast, Qt::Key_Escape);
    QVERIFY(toast->isVisible());
    QCOMPARE(closed.count(), 0);
    QTRY_COMPARE(closed.count(), 1);
    QCOMPARE(WyToast::getVisibleCount(), 0);
}

void TestWyToastShowing::theWindowSystemEndsItAtOnce()
{
    WyToast::setMaximumOnScreen(1);
    WyToast* toast = createToast();
    toast->setFadeInDuration(0);
    toast->setFadeOutDuration(kLongMs);
    toast->show();
    const QPointer<WyToast> next = showToast();
    QSignalSpy closed(toast, &WyToast::closed);
    closeByUser(toast);
    QVERIFY(!toast->isVisible());
    QTRY_COMPARE(closed.count(), 1);
    QTRY_VERIFY(next->isVisible());
}

void TestWyToastShowing::closingByProgramEndsAtOnce()
{
    for (const char* slot : {"close", "reject", "accept"}) {
        QPointer<WyToast> toast = createToast();
        toast->setFadeOutDuration(kLongMs);
        toast->show();
        QSignalSpy closed(toast, &WyToast::closed);
        QMetaObject::invokeMethod(toast, slot);
        QVERIFY(!toast->isVisible());
        QTRY_COMPARE(closed.count(), 1);
        QCOMPARE(WyToast::getVisibleCount(), 0);
        QTRY_VERIFY(!toast);
        QCOMPARE(closed.count(), 1);
    }
}

void TestWyToastShowing::hidingByProgramGivesThePlaceAway()
{
    WyToast::setMaximumOnScreen(1);
    QPointer<WyToast> toast = createToast();
    toast->setFadeInDuration(10);
    toast->show();
    const QPointer<WyToast> next = showToast();
    static_cast<QWidget*>(toast)->setVisible(false);
    QTRY_VERIFY(next->isVisible());
    QTRY_VERIFY(!toast);
}

void TestWyToastShowing::closingEverythingIsNotHeldUp()
{
    QWidget window;
    window.show();
    const QPointer<WyToast> toast = showToast({301, 81}, &window);
    const QPointer<WyToast> other = showToast();
    QApplication::closeAllWindows();
    QVERIFY(!window.isVisible());
    QVERIFY(!toast->isVisible());
    QVERIFY(!other->isVisible());
}

void TestWyToastShowing::toastsAreNoLastWindow()
{
    QSignalSpy lastClosed(qApp, &QGuiApplication::lastWindowClosed);
    // Qt tells about the last window only while the application's own event loop runs.
    const auto runFor = [](int msec) {
        QTimer::singleShot(msec, qApp, &QCoreApplication::quit);
        QApplication::exec();
    };
    qApp->setQuitOnLastWindowClosed(false);
    const auto restore = qScopeGuard([] { qApp->setQuitOnLastWindowClosed(true); });
    for (const bool hasParent : {false, true}) {
        // A toast that ends does not end an application without other visible windows.
        QWidget hidden;
        QPointer<WyToast> toast = createToast({301, 81}, hasParent ? &hidden : nullptr);
        toast->setFadeInDuration(0);
        toast->setFadeOutDuration(0);
        toast->show();
        QTimer::singleShot(0, toast, [toast] { toast->hide(); });
        runFor(50);
        QVERIFY(!toast);
        QCOMPARE(lastClosed.count(), 0);
    }
    for (const bool hasParent : {false, true}) {
        // A toast does not keep an application running, either.
        QWidget window;
        window.show();
        const QPointer<WyToast> toast = showToast({301, 81}, hasParent ? &window : nullptr);
        lastClosed.clear();
        QTimer::singleShot(0, &window, &QWidget::close);
        runFor(50);
        QVERIFY(lastClosed.count() > 0);
        delete toast;
    }
}

void TestWyToastShowing::aDialogThatWasNeverAToastStaysUsable()
{
    QPointer<WyToast> toast = createToast();
    // Run as the dialog that it also is.
    QTimer::singleShot(0, toast,
                       [toast] { QTest::mouseClick(ToastParts(toast).closeButton, Qt::LeftButton); });
    toast->exec();
    QVERIFY(!toast->isVisible());
    toast->show();
    QVERIFY(toast->isVisible());
    QTest::qWait(10);
    QVERIFY(toast->isVisible());
    QCOMPARE(WyToast::getVisibleCount(), 1);
}

QTEST_MAIN(TestWyToastShowing)
#include "tst_wytoast_showing.moc"
