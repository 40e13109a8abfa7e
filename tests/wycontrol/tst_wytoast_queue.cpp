#include "WyWidgets/wycontrol/WyToast.h"

#include "support/AnimationClock.h"
#include "support/Events.h"
#include "support/FreedMemory.h"
#include "wycontrol/ToastSupport.h"

#include <QScreen>
#include <QtTest>

using namespace WyWidgets;
using WyTest::flushDeletions;
using WyTest::OnEvent;
using WyTest::ToastParts;

namespace {

constexpr int kLargest = std::numeric_limits<int>::max();
constexpr int kSmallest = std::numeric_limits<int>::min();

/// A toast that stays, and comes and goes without fades unless a test gives it some.
WyToast* createToast(QWidget* parent = nullptr, int fadeIn = 0)
{
    auto* toast = new WyToast(parent);
    toast->setDuration(0);
    toast->setFadeInDuration(fadeIn);
    toast->setFadeOutDuration(0);
    return toast;
}

WyToast* showToast(QWidget* parent = nullptr, int fadeIn = 0)
{
    WyToast* toast = createToast(parent, fadeIn);
    toast->show();
    return toast;
}

QVector<QPointer<WyToast>> showToasts(int count, QWidget* parent = nullptr, int fadeIn = 0)
{
    QVector<QPointer<WyToast>> toasts;
    for (int i = 0; i < count; ++i)
        toasts += showToast(parent, fadeIn);
    return toasts;
}

/// For each toast "v" if visible, "-" if not, "x" if deleted.
QString states(const QVector<QPointer<WyToast>>& toasts)
{
    QString result;
    for (const QPointer<WyToast>& toast : toasts)
        result += toast ? toast->isVisible() ? 'v' : '-' : 'x';
    return result;
}

} // namespace

class TestWyToastQueue : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { WyTest::resetToasts(); }

    void sharedSettingsStartWithTheirDefaults();
    void sharedSettingsAreStoredUnchecked();
    void threeAreShownAndTheFourthWaits();
    void theNextOneFollowsAfterTheFadeInDuration();
    void theSlotOfSeveralGoesToSeveral();
    void raisingTheMaximumShowsTheOldestAtOnce();
    void raisingTheMaximumByOneShowsOneAtMost();
    void raisingTheMaximumWithoutQueueChangesNothingElse();
    void loweringTheMaximumHidesNothing();
    void raisingTheMaximumWithoutRoomSendsTheFrontToTheBack();
    void anEnormousRiseWithoutRoomIsDoneAtOnce();
    void aRiseThatIsTakenBackMeanwhileIsDoneAtOnce();
    void aNegativeMaximumQueuesAll();
    void aToastQueuedTwiceIsQueuedOnce();
    void aQueuedToastThatFindsRoomLeavesTheQueue();
    void showingTheNextOfNoneDoesNothing();
    void showingTheNextTakesFromTheFront();
    void showingTheNextWithoutRoomSendsItToTheBack();
    void showingTwiceDoesNothing();
    void hidingBeforeShowingLeavesTheToastUsable();
    void hidingAQueuedToastLeavesItQueued();

    void resetRestoresTheSettings();
    void resetRemovesShownToastsWithoutFadeOrSignal();
    void resetDropsQueuedToastsWithoutDeletingThem();
    void resetInMidFadeLeavesNothingBehind();
    void resetDuringTheHandOverLeavesTheQueueAlone();
    void aToastMadeBeforeAResetPassesItsSlotOn();
    void resetSurvivesDyingToasts();

    void aDeletedShownToastPassesItsSlotOn();
    void aDeletedToastThatLeavesNoRoomKeepsTheOrder();
    void aDeletedShownToastLetsTheOthersMoveUp();
    void aDeletedFadingToastPassesItsSlotOn();
    void aDeletedQueuedToastIsSkipped();
    void aToastDeletedDuringTheHandOverPassesItsSlotOn();
    void aDeletedToastPassesNoSlotOnAfterAReset();
    void theParentMayDieWithAllOfThem();
    void theParentMayDieInMidFade();
    void toastsOfAnotherParentFollowADeadOne();
    void anotherMayBeDeletedWhileOneIsBeingShown_data();
    void anotherMayBeDeletedWhileOneIsBeingShown();
    void hidingWhileBeingShownFadesOut();
    void deletionWithinAStepOfAFadeIsSafe_data();
    void deletionWithinAStepOfAFadeIsSafe();

    void aSlotOfClosedMayShowAnotherToast();
    void aSlotOfClosedMayReset();
    void aSlotOfClosedMayDeleteTheToast();
    void aSlotOfClosedMayDeleteTheOthers();
    void aSlotOfClosedMayDeleteTheParent();
    void aToastThatDeletesItselfOnClosePassesItsSlotOn();

    void theEndOfLifeShowsTheNextAndDeletes();
    void hidingOneThatIsNoLongerListedOnlyCloses();
};

void TestWyToastQueue::sharedSettingsStartWithTheirDefaults()
{
    QCOMPARE(WyToast::getMaximumOnScreen(), 3);
    QCOMPARE(WyToast::getSpacing(), 10);
    QCOMPARE(WyToast::getOffset(), QPoint(20, 45));
    QCOMPARE(WyToast::getOffsetX(), 20);
    QCOMPARE(WyToast::getOffsetY(), 45);
    QCOMPARE(WyToast::getPosition(), ToastPosition::BOTTOM_RIGHT);
    QCOMPARE(WyToast::isAlwaysOnMainScreen(), false);
    QCOMPARE(WyToast::getFixedScreen(), nullptr);
    QCOMPARE(WyToast::getCount(), 0);
    QCOMPARE(WyToast::getVisibleCount(), 0);
    QCOMPARE(WyToast::getQueuedCount(), 0);
}

void TestWyToastQueue::sharedSettingsAreStoredUnchecked()
{
    for (const int value : {-7, 0, 12, kSmallest, kLargest}) {
        WyToast::setMaximumOnScreen(value);
        QCOMPARE(WyToast::getMaximumOnScreen(), value);
        WyToast::setSpacing(value);
        QCOMPARE(WyToast::getSpacing(), value);
        WyToast::setOffsetX(value);
        QCOMPARE(WyToast::getOffsetX(), value);
        WyToast::setOffsetY(value);
        QCOMPARE(WyToast::getOffsetY(), value);
        WyToast::setPosition(ToastPosition(value));
        QCOMPARE(WyToast::getPosition(), ToastPosition(value));
        WyToast::setMaximumOnScreen(1);
        delete showToast();
    }
    WyToast::setOffset(3, 4);
    QCOMPARE(WyToast::getOffset(), QPoint(3, 4));
    WyToast::setAlwaysOnMainScreen(true);
    QCOMPARE(WyToast::isAlwaysOnMainScreen(), true);
    WyToast::setFixedScreen(qApp->primaryScreen());
    QCOMPARE(WyToast::getFixedScreen(), qApp->primaryScreen());
    WyToast::setFixedScreen(nullptr);
    QCOMPARE(WyToast::getFixedScreen(), nullptr);
}

void TestWyToastQueue::threeAreShownAndTheFourthWaits()
{
    const auto toasts = showToasts(4);
    QCOMPARE(states(toasts), QString("vvv-"));
    QCOMPARE(WyToast::getVisibleCount(), 3);
    QCOMPARE(WyToast::getQueuedCount(), 1);
    QCOMPARE(WyToast::getCount(), 4);
    toasts.at(1)->hide();
    QCOMPARE(WyToast::getVisibleCount(), 2);
    QCOMPARE(WyToast::getCount(), 3);
    QTRY_COMPARE(states(toasts), QString("vxvv"));
    QCOMPARE(WyToast::getQueuedCount(), 0);
    QCOMPARE(WyToast::getCount(), 3);
}

void TestWyToastQueue::theNextOneFollowsAfterTheFadeInDuration()
{
    WyToast::setMaximumOnScreen(1);
    const auto toasts = showToasts(2, nullptr, 400);
    QElapsedTimer timer;
    connect(toasts.at(0), &WyToast::closed, this, [&timer] { timer.start(); });
    toasts.at(0)->hide();
    QVERIFY(timer.isValid());
    QTRY_COMPARE(states(toasts), QString("xv"));
    QVERIFY2(timer.elapsed() >= 375, qPrintable(QString::number(timer.elapsed())));
}

void TestWyToastQueue::theSlotOfSeveralGoesToSeveral()
{
    const auto toasts = showToasts(6);
    for (int i = 0; i < 3; ++i)
        toasts.at(i)->hide();
    QTRY_COMPARE(states(toasts), QString("xxxvvv"));
}

void TestWyToastQueue::raisingTheMaximumShowsTheOldestAtOnce()
{
    const auto toasts = showToasts(7);
    QCOMPARE(states(toasts), QString("vvv----"));
    WyToast::setMaximumOnScreen(5);
    QCOMPARE(states(toasts), QString("vvvvv--"));
    QCOMPARE(WyToast::getQueuedCount(), 2);
}

void TestWyToastQueue::raisingTheMaximumByOneShowsOneAtMost()
{
    WyToast::setMaximumOnScreen(3);
    const auto toasts = showToasts(5);
    // Two of the three leave; nobody has followed yet when the maximum rises.
    for (const int i : {0, 1}) {
        toasts.at(i)->hide();
        QCOMPARE(WyToast::getVisibleCount(), 2 - i);
    }
    WyToast::setMaximumOnScreen(4);
    QCOMPARE(WyToast::getVisibleCount(), 2);
    QCOMPARE(WyToast::getQueuedCount(), 1);
    QVERIFY(toasts.at(3)->isVisible());
}

void TestWyToastQueue::raisingTheMaximumWithoutQueueChangesNothingElse()
{
    const auto toasts = showToasts(3);
    WyToast::setMaximumOnScreen(kLargest);
    QCOMPARE(states(toasts), QString("vvv"));
    QCOMPARE(WyToast::getVisibleCount(), 3);
}

void TestWyToastQueue::loweringTheMaximumHidesNothing()
{
    const auto toasts = showToasts(4);
    WyToast::setMaximumOnScreen(1);
    QCOMPARE(states(toasts), QString("vvv-"));
    const auto more = showToasts(1);
    QCOMPARE(WyToast::getQueuedCount(), 2);
}

void TestWyToastQueue::raisingTheMaximumWithoutRoomSendsTheFrontToTheBack()
{
    const auto toasts = showToasts(6);
    WyToast::setMaximumOnScreen(0);
    WyToast::setMaximumOnScreen(2);
    QCOMPARE(states(toasts), QString("vvv---"));
    // Of the waiting toasts 3, 4 and 5 two went round.
    WyToast::setMaximumOnScreen(3);
    WyToast::setMaximumOnScreen(4);
    QCOMPARE(states(toasts), QString("vvvv--"));
}

void TestWyToastQueue::anEnormousRiseWithoutRoomIsDoneAtOnce()
{
    const auto toasts = showToasts(6);
    WyToast::setMaximumOnScreen(kSmallest);
    // 2147483648 turns of three toasts: two more than a multiple of three.
    WyToast::setMaximumOnScreen(0);
    QCOMPARE(states(toasts), QString("vvv---"));
    delete toasts.at(0);
    delete toasts.at(1);
    delete toasts.at(2);
    WyToast::setMaximumOnScreen(1);
    QCOMPARE(states(toasts), QString("xxx--v"));
}

void TestWyToastQueue::aRiseThatIsTakenBackMeanwhileIsDoneAtOnce()
{
    const auto toasts = showToasts(6);
    const OnEvent reaction(toasts.at(3), QEvent::Show, [] { WyToast::setMaximumOnScreen(2); });
    QElapsedTimer timer;
    timer.start();
    // Two thousand million turns in vain would take minutes.
    WyToast::setMaximumOnScreen(kLargest);
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(states(toasts), QString("vvvv--"));
    QCOMPARE(WyToast::getMaximumOnScreen(), 2);
    QCOMPARE(WyToast::getQueuedCount(), 2);
    qDeleteAll(toasts);
}

void TestWyToastQueue::aNegativeMaximumQueuesAll()
{
    WyToast::setMaximumOnScreen(-5);
    const auto toasts = showToasts(2);
    QCOMPARE(states(toasts), QString("--"));
    QCOMPARE(WyToast::getQueuedCount(), 2);
    WyToast::setMaximumOnScreen(1);
    QCOMPARE(states(toasts), QString("v-"));
    qDeleteAll(toasts);
}

void TestWyToastQueue::aToastQueuedTwiceIsQueuedOnce()
{
    WyToast::setMaximumOnScreen(0);
    const auto toasts = showToasts(2);
    toasts.at(0)->show();
    QCOMPARE(WyToast::getQueuedCount(), 2);
    WyToast::setMaximumOnScreen(1);
    QCOMPARE(states(toasts), QString("v-"));
    qDeleteAll(toasts);
}

void TestWyToastQueue::aQueuedToastThatFindsRoomLeavesTheQueue()
{
    WyToast::setMaximumOnScreen(1);
    const auto toasts = showToasts(3);
    toasts.at(0)->hide();
    toasts.at(2)->show();
    QCOMPARE(states(toasts), QString("--v"));
    QCOMPARE(WyToast::getQueuedCount(), 1);
    delete toasts.at(2);
    QTRY_COMPARE(states(toasts), QString("xvx"));
}

void TestWyToastQueue::showingTheNextOfNoneDoesNothing()
{
    WyToast::showNextInQueue();
    QCOMPARE(WyToast::getCount(), 0);
}

void TestWyToastQueue::showingTheNextTakesFromTheFront()
{
    WyToast::setMaximumOnScreen(1);
    const auto toasts = showToasts(3);
    delete toasts.at(0);
    WyToast::showNextInQueue();
    QCOMPARE(states(toasts), QString("xv-"));
}

void TestWyToastQueue::showingTheNextWithoutRoomSendsItToTheBack()
{
    WyToast::setMaximumOnScreen(1);
    const auto toasts = showToasts(3);
    WyToast::showNextInQueue();
    QCOMPARE(WyToast::getQueuedCount(), 2);
    toasts.at(0)->hide();
    QTRY_COMPARE(states(toasts), QString("x-v"));
}

void TestWyToastQueue::showingTwiceDoesNothing()
{
    WyToast* toast = showToast();
    toast->show();
    QCOMPARE(WyToast::getVisibleCount(), 1);
    QCOMPARE(WyToast::getQueuedCount(), 0);
}

void TestWyToastQueue::hidingBeforeShowingLeavesTheToastUsable()
{
    WyToast* toast = createToast();
    QSignalSpy closed(toast, &WyToast::closed);
    toast->hide();
    QMetaObject::invokeMethod(toast, "fadeOut");
    QCOMPARE(closed.count(), 0);
    toast->setTitle("Still open to changes");
    QCOMPARE(toast->getTitle(), QString("Still open to changes"));
    toast->show();
    QVERIFY(toast->isVisible());
    toast->hide();
    QCOMPARE(closed.count(), 1);
    QCOMPARE(WyToast::getVisibleCount(), 0);
}

void TestWyToastQueue::hidingAQueuedToastLeavesItQueued()
{
    WyToast::setMaximumOnScreen(0);
    const QPointer<WyToast> toast = showToast();
    toast->hide();
    QCOMPARE(WyToast::getQueuedCount(), 1);
    WyToast::setMaximumOnScreen(1);
    QVERIFY(toast->isVisible());
    toast->hide();
    QCOMPARE(WyToast::getVisibleCount(), 0);
}

void TestWyToastQueue::resetRestoresTheSettings()
{
    WyToast::setMaximumOnScreen(9);
    WyToast::setSpacing(9);
    WyToast::setOffset(9, 9);
    WyToast::setAlwaysOnMainScreen(true);
    WyToast::setFixedScreen(qApp->primaryScreen());
    WyToast::setPosition(ToastPosition::CENTER);
    WyToast::reset();
    sharedSettingsStartWithTheirDefaults();
}

void TestWyToastQueue::resetRemovesShownToastsWithoutFadeOrSignal()
{
    const auto toasts = showToasts(3);
    QSignalSpy closed(toasts.at(0), &WyToast::closed);
    WyToast::reset();
    QCOMPARE(states(toasts), QString("---"));
    QCOMPARE(WyToast::getCount(), 0);
    QCOMPARE(ToastParts(toasts.at(0)).effect->opacity(), 1.0);
    flushDeletions();
    QCOMPARE(states(toasts), QString("xxx"));
    QCOMPARE(closed.count(), 0);
}

void TestWyToastQueue::resetDropsQueuedToastsWithoutDeletingThem()
{
    const auto toasts = showToasts(5);
    WyToast::reset();
    QCOMPARE(WyToast::getQueuedCount(), 0);
    flushDeletions();
    QCOMPARE(states(toasts), QString("xxx--"));
    toasts.at(3)->setTitle("Still open to changes");
    QCOMPARE(toasts.at(3)->getTitle(), QString("Still open to changes"));
    toasts.at(3)->show();
    QCOMPARE(states(toasts), QString("xxxv-"));
    delete toasts.at(4);
}

void TestWyToastQueue::resetInMidFadeLeavesNothingBehind()
{
    QVector<QPointer<WyToast>> toasts;
    int closed = 0;
    for (int i = 0; i < 3; ++i) {
        WyToast* toast = createToast();
        toast->setFadeOutDuration(30);
        toast->setDuration(60000);
        toast->show();
        connect(toast, &WyToast::closed, this, [&closed] { ++closed; });
        toasts += toast;
    }
    toasts.at(0)->hide();
    toasts.at(1)->hide();
    WyToast::reset();
    // What is left of the old ones meets a full stack and a queue of two.
    const auto others = showToasts(5);
    // A nested event loop lets timers run before the deletions.
    QEventLoop loop;
    QTimer::singleShot(100, &loop, &QEventLoop::quit);
    loop.exec();
    QCOMPARE(states(others), QString("vvv--"));
    QCOMPARE(WyToast::getVisibleCount(), 3);
    QCOMPARE(WyToast::getQueuedCount(), 2);
    QCOMPARE(closed, 0);
    flushDeletions();
    QCOMPARE(states(toasts), QString("xxx"));
    QCOMPARE(states(others), QString("vvv--"));
    qDeleteAll(others);
}

void TestWyToastQueue::resetDuringTheHandOverLeavesTheQueueAlone()
{
    const QPointer<WyToast> old = showToast(nullptr, 30);
    old->hide();
    QCOMPARE(WyToast::getVisibleCount(), 0);
    WyToast::reset();
    const auto toasts = showToasts(5);
    // The old toast deletes itself, and that is all: the front of the queue stays the front.
    QTRY_VERIFY(!old);
    delete toasts.at(0);
    flushDeletions();
    QCOMPARE(states(toasts), QString("xvvv-"));
    qDeleteAll(toasts);
}

void TestWyToastQueue::aToastMadeBeforeAResetPassesItsSlotOn()
{
    const QPointer<WyToast> toast = createToast();
    WyToast::reset();
    WyToast::setMaximumOnScreen(1);
    toast->show();
    const QPointer<WyToast> next = showToast();
    QVERIFY(!next->isVisible());
    toast->hide();
    QTRY_VERIFY(next->isVisible());
}

void TestWyToastQueue::resetSurvivesDyingToasts()
{
    const auto toasts = showToasts(3);
    // Hiding the first one ends the second.
    const OnEvent reaction(toasts.at(0), QEvent::Hide, [toasts] { delete toasts.at(1); });
    WyToast::reset();
    QCOMPARE(states(toasts), QString("-x-"));
    flushDeletions();
    QCOMPARE(states(toasts), QString("xxx"));
    QCOMPARE(WyToast::getCount(), 0);
}

void TestWyToastQueue::aDeletedShownToastPassesItsSlotOn()
{
    const auto toasts = showToasts(5);
    delete toasts.at(1);
    QCOMPARE(WyToast::getVisibleCount(), 2);
    QTRY_COMPARE(states(toasts), QString("vxvv-"));
    delete toasts.at(0);
    QTRY_COMPARE(states(toasts), QString("xxvvv"));
}

void TestWyToastQueue::aDeletedToastThatLeavesNoRoomKeepsTheOrder()
{
    const auto toasts = showToasts(6);
    WyToast::setMaximumOnScreen(1);
    for (const int i : {0, 1}) {
        delete toasts.at(i);
        flushDeletions();
        QCOMPARE(WyToast::getQueuedCount(), 3);
    }
    delete toasts.at(2);
    QTRY_COMPARE(states(toasts), QString("xxxv--"));
    qDeleteAll(toasts);
}

void TestWyToastQueue::aDeletedShownToastLetsTheOthersMoveUp()
{
    const auto toasts = showToasts(3);
    QTRY_VERIFY(toasts.at(2)->y() < toasts.at(1)->y() && toasts.at(1)->y() < toasts.at(0)->y());
    QTest::qWait(0);
    const int step = ToastParts(toasts.at(0)).body->height() + 10;
    QTRY_COMPARE(toasts.at(2)->y(), toasts.at(0)->y() - 2 * step);
    const int first = toasts.at(0)->y();
    delete toasts.at(0);
    QTRY_COMPARE(toasts.at(1)->y(), first);
    QTRY_COMPARE(toasts.at(2)->y(), first - step);
}

void TestWyToastQueue::aDeletedFadingToastPassesItsSlotOn()
{
    WyToast::setMaximumOnScreen(1);
    WyToast* fading = createToast();
    fading->setFadeOutDuration(60000);
    fading->show();
    const QPointer<WyToast> next = showToast();
    fading->hide();
    QVERIFY(!next->isVisible());
    delete fading;
    QTRY_VERIFY(next->isVisible());
}

void TestWyToastQueue::aDeletedQueuedToastIsSkipped()
{
    WyToast::setMaximumOnScreen(1);
    const auto toasts = showToasts(3);
    delete toasts.at(1);
    QCOMPARE(WyToast::getQueuedCount(), 1);
    toasts.at(0)->hide();
    QTRY_COMPARE(states(toasts), QString("xxv"));
}

void TestWyToastQueue::aToastDeletedDuringTheHandOverPassesItsSlotOn()
{
    WyToast::setMaximumOnScreen(1);
    const QPointer<WyToast> first = showToast(nullptr, 60000);
    const QPointer<WyToast> second = showToast();
    first->hide();
    QCOMPARE(WyToast::getVisibleCount(), 0);
    delete first;
    QTRY_VERIFY(second->isVisible());
}

void TestWyToastQueue::aDeletedToastPassesNoSlotOnAfterAReset()
{
    const auto old = showToasts(2, nullptr, 60000);
    for (const QPointer<WyToast>& toast : old)
        toast->hide();
    WyToast::reset();
    WyToast::setMaximumOnScreen(1);
    const auto toasts = showToasts(3, nullptr, 60000);
    delete old.at(0);
    flushDeletions();
    QCOMPARE(states(toasts), QString("v--"));
    // There is room now, but another one is about to pass it on.
    toasts.at(0)->hide();
    delete old.at(1);
    flushDeletions();
    QCOMPARE(states(toasts), QString("---"));
    delete toasts.at(0);
    flushDeletions();
    QCOMPARE(states(toasts), QString("xv-"));
    qDeleteAll(toasts);
}

void TestWyToastQueue::theParentMayDieWithAllOfThem()
{
    auto* parent = new QWidget;
    parent->show();
    const auto toasts = showToasts(8, parent, 100);
    delete parent;
    QCOMPARE(states(toasts), QString("xxxxxxxx"));
    QCOMPARE(WyToast::getCount(), 0);
    QTest::qWait(150);
    QCOMPARE(WyToast::getCount(), 0);
    const QPointer<WyToast> next = showToast();
    QVERIFY(next->isVisible());
}

void TestWyToastQueue::theParentMayDieInMidFade()
{
    auto* parent = new QWidget;
    const auto toasts = showToasts(2, parent);
    WyToast* fading = createToast(parent);
    fading->setFadeOutDuration(50);
    fading->show();
    fading->hide();
    delete parent;
    QCOMPARE(WyToast::getCount(), 0);
    QTest::qWait(100);
    QCOMPARE(WyToast::getCount(), 0);
}

void TestWyToastQueue::toastsOfAnotherParentFollowADeadOne()
{
    auto* parent = new QWidget;
    showToasts(3, parent);
    QWidget other;
    const auto waiting = showToasts(4, &other);
    QCOMPARE(states(waiting), QString("----"));
    delete parent;
    QTRY_COMPARE(states(waiting), QString("vvv-"));
}

void TestWyToastQueue::anotherMayBeDeletedWhileOneIsBeingShown_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("when it is polished") << int(QEvent::Polish);
    QTest::newRow("when it appears") << int(QEvent::Show);
    QTest::newRow("when it has appeared") << int(QEvent::ShowToParent);
}

void TestWyToastQueue::anotherMayBeDeletedWhileOneIsBeingShown()
{
    QFETCH(const int, type);
    const QPointer<WyToast> other = showToast();
    const QPointer<WyToast> toast = createToast();
    const OnEvent reaction(toast, QEvent::Type(type), [other] {
        delete other;
        WyTest::overwriteFreedMemory();
    });
    toast->show();
    QCOMPARE(states({other, toast}), QString("xv"));
    QCOMPARE(WyToast::getVisibleCount(), 1);
}

void TestWyToastQueue::hidingWhileBeingShownFadesOut()
{
    const QPointer<WyToast> toast = createToast(nullptr, 20);
    toast->setFadeOutDuration(20);
    const OnEvent reaction(toast, QEvent::Show, [toast] { toast->hide(); });
    QSignalSpy closed(toast, &WyToast::closed);
    toast->show();
    QVERIFY(toast->isVisible());
    QTRY_COMPARE(closed.count(), 1);
    QTRY_VERIFY(!toast);
}

void TestWyToastQueue::deletionWithinAStepOfAFadeIsSafe_data()
{
    QTest::addColumn<bool>("fadesOut");
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::newRow("while it fades in") << false << 0.1 << 0.9;
    QTest::newRow("when it has faded in") << false << 1.0 << 1.0;
    QTest::newRow("while it fades out") << true << 0.1 << 0.9;
    QTest::newRow("when it has faded out") << true << 0.0 << 0.0;
}

void TestWyToastQueue::deletionWithinAStepOfAFadeIsSafe()
{
    QFETCH(const bool, fadesOut);
    QFETCH(const double, from);
    QFETCH(const double, to);
    WyTest::AnimationClock clock;
    const QPointer<WyToast> toast = createToast(nullptr, fadesOut ? 0 : 100);
    toast->setFadeOutDuration(100);
    toast->show();
    QSignalSpy closed(toast, &WyToast::closed);
    connect(ToastParts(toast).effect, &QGraphicsOpacityEffect::opacityChanged, this, [&](qreal opacity) {
        if (from <= opacity && opacity <= to) {
            delete toast;
            WyTest::overwriteFreedMemory();
        }
    });
    if (fadesOut)
        toast->hide();
    for (int step = 0; step < 20; ++step)
        clock.pass(10);
    QVERIFY(!toast);
    QCOMPARE(closed.count(), 0);
    QCOMPARE(WyToast::getVisibleCount(), 0);
}

void TestWyToastQueue::aSlotOfClosedMayShowAnotherToast()
{
    WyToast::setMaximumOnScreen(1);
    const auto toasts = showToasts(2);
    QPointer<WyToast> another;
    connect(toasts.at(0), &WyToast::closed, this, [&another] {
        QCOMPARE(WyToast::getVisibleCount(), 0);
        another = showToast();
    });
    toasts.at(0)->hide();
    QVERIFY(another->isVisible());
    // The waiting one finds no room and waits on.
    QTRY_VERIFY(!toasts.at(0));
    QCOMPARE(WyToast::getQueuedCount(), 1);
    QVERIFY(!toasts.at(1)->isVisible());
    another->hide();
    QTRY_VERIFY(toasts.at(1)->isVisible());
}

void TestWyToastQueue::aSlotOfClosedMayReset()
{
    const auto toasts = showToasts(5);
    connect(toasts.at(0), &WyToast::closed, this, [] { WyToast::reset(); });
    toasts.at(0)->hide();
    QCOMPARE(WyToast::getCount(), 0);
    QTRY_COMPARE(states(toasts), QString("xxx--"));
    QCOMPARE(WyToast::getCount(), 0);
    qDeleteAll(toasts);
}

void TestWyToastQueue::aSlotOfClosedMayDeleteTheToast()
{
    WyToast::setMaximumOnScreen(2);
    const auto toasts = showToasts(3);
    const QPointer<WyToast> first = toasts.at(0);
    connect(first, &WyToast::closed, this, [first] { delete first; });
    first->hide();
    QVERIFY(!first);
    QTRY_COMPARE(states(toasts), QString("xvv"));
}

void TestWyToastQueue::aSlotOfClosedMayDeleteTheOthers()
{
    const auto toasts = showToasts(5);
    connect(toasts.at(0), &WyToast::closed, this, [toasts] {
        for (int i = 1; i < toasts.size(); ++i)
            delete toasts.at(i);
    });
    toasts.at(0)->hide();
    QCOMPARE(WyToast::getCount(), 0);
    QTRY_COMPARE(states(toasts), QString("xxxxx"));
}

void TestWyToastQueue::aSlotOfClosedMayDeleteTheParent()
{
    auto* parent = new QWidget;
    const auto toasts = showToasts(5, parent);
    connect(toasts.at(0), &WyToast::closed, this, [parent] { delete parent; });
    // From a timer, as the end of a fade comes: not from within one of the parent's children.
    QMetaObject::invokeMethod(toasts.at(0), "hide", Qt::QueuedConnection);
    QTRY_COMPARE(states(toasts), QString("xxxxx"));
    QCOMPARE(WyToast::getCount(), 0);
}

void TestWyToastQueue::aToastThatDeletesItselfOnClosePassesItsSlotOn()
{
    WyToast::setMaximumOnScreen(1);
    WyToast* toast = createToast(nullptr, 60000);
    toast->setAttribute(Qt::WA_DeleteOnClose);
    toast->show();
    const QPointer<WyToast> next = showToast();
    QSignalSpy closed(toast, &WyToast::closed);
    toast->hide();
    QCOMPARE(closed.count(), 1);
    QTRY_VERIFY(next->isVisible());
}

void TestWyToastQueue::theEndOfLifeShowsTheNextAndDeletes()
{
    WyToast::setMaximumOnScreen(1);
    const auto toasts = showToasts(2);
    WyToast::setMaximumOnScreen(2);
    QCOMPARE(states(toasts), QString("vv"));
    const QPointer<WyToast> waiting = showToast();
    QPointer<WyToast> unused = createToast();
    WyToast::setMaximumOnScreen(2);
    delete toasts.at(0);
    QMetaObject::invokeMethod(unused, "deleteAndShowNextInQueue");
    QVERIFY(waiting->isVisible());
    QVERIFY(unused);
    flushDeletions();
    QVERIFY(!unused);
}

void TestWyToastQueue::hidingOneThatIsNoLongerListedOnlyCloses()
{
    const QPointer<WyToast> toast = showToast(nullptr, 60000);
    const QPointer<WyToast> other = showToast();
    QSignalSpy closed(toast, &WyToast::closed);
    toast->hide();
    QCOMPARE(closed.count(), 1);
    QMetaObject::invokeMethod(toast, "hide_");
    toast->hide();
    QCOMPARE(closed.count(), 1);
    QCOMPARE(WyToast::getVisibleCount(), 1);
    QVERIFY(!toast->isVisible());
    // It stays used.
    toast->show();
    QVERIFY(!toast->isVisible());
    toast->setTitle("Too late");
    QCOMPARE(toast->getTitle(), QString());
    delete toast;
}

QTEST_MAIN(TestWyToastQueue)
#include "tst_wytoast_queue.moc"
