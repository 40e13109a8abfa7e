#include "WyWidgets/wycontrol/WySimpleToast.h"

#include "support/Events.h"
#include "wycontrol/SimpleToasts.h"

#include <QLabel>
#include <QRandomGenerator>
#include <QtTest>

#include <functional>

using SimpleToasts::Column;
using SimpleToasts::count;
using SimpleToasts::displayTimer;
using SimpleToasts::expire;
using SimpleToasts::kLongMs;
using WyTest::OnEvent;
using WyWidgets::WySimpleToast;

namespace {

using Toasts = QVector<QPointer<WySimpleToast>>;

Toasts showSome(Column& column, int number)
{
    Toasts toasts;
    for (int i = 0; i < number; ++i)
        toasts += column.show();
    return toasts;
}

void send(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

void fadeOut(WySimpleToast* toast, unsigned int duration)
{
    toast->setHideDuration(duration);
    toast->hideAnimation();
}

/// Calls `act` when the object is destroyed.
template <typename Act>
void onDestroyed(QObject* object, Act act)
{
    QObject::connect(object, &QObject::destroyed, object, act);
}

} // namespace

/// Which toast goes when, and that no order of ends, deletions and calls leaves a trace.
class TestWySimpleToastColumn : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void theEndOfAFadeOutDeletesTheToastAndClosesTheGap();
    void aYoungerToastThatEndsFirstRemovesTheOldest();
    void aHiddenToastKeepsASlotUntilItsTurn();
    void hiddenToastsMoveUp();
    void hoveringTheOldestWhileAYoungerOneEndsIsSafe();
    void aFadeOutWithoutDurationIsSafe();
    void twoToastsEndInOnePass_data();
    void twoToastsEndInOnePass();
    void manyToastsEndInOnePass();
    void aTimerEndsAToastThatIsNotTheOldest();

    void hideDoesNothingWhileAnythingIsVisible();
    void hideWithAnEmptyColumnOnlyHides();
    void hideOfAnUnshownTransparentToastRemovesTheOldest();

    void showingTwiceTakesOneSlot();
    void showingAgainMakesTheToastTheNewest();
    void showingAgainAfterAClickIsSafe();
    void showingAgainInTheFadeOutFadesIn();
    void showingAgainInAFadeOutCutShortIsSafe();

    void aDeletedToastDropsOutAndClosesTheGap();
    void deletionInTheMiddleOfAFadeIsSafe();
    void aDyingParentTakesItsToastsAlong();
    void aDyingParentLeavesTheOthersAlone();
    void deletionInSlotsOfOtherToastsIsSafe();
    void showingInASlotOfADyingToastIsSafe();
    void deletionWhileShowingIsSafe();
    void deletionWhileItIsPlacedIsSafe();
    void deletionWhileItsIconAppearsIsSafe();
    void deletionWhileTheGapClosesIsSafe();
    void showingWhileTheGapClosesTakesOneSlot();
    void aHandlerMaySendTheToastAwayAsItAppears();
    void deletionWhileAClickHidesIsSafe();
    void aToastDeletedWhileItHidesTakesNoOtherAlong();
    void deleteOnCloseIsSafe();
    void anyOrderOfEventsLeavesTheColumnConsistent_data();
    void anyOrderOfEventsLeavesTheColumnConsistent();
};

void TestWySimpleToastColumn::cleanup()
{
    QCOMPARE(count(), 0);
}

void TestWySimpleToastColumn::theEndOfAFadeOutDeletesTheToastAndClosesTheGap()
{
    Column column;
    const Toasts toasts = showSome(column, 3);
    expire(toasts.at(0));
    QVERIFY(!toasts.at(0));
    QCOMPARE(count(), 2);
    QCOMPARE(column.slotOf(toasts.at(1)), 1);
    QCOMPARE(column.slotOf(toasts.at(2)), 2);
    QCOMPARE(column.slotOf(column.show()), 3);
}

void TestWySimpleToastColumn::aYoungerToastThatEndsFirstRemovesTheOldest()
{
    Column column;
    const Toasts toasts = showSome(column, 3);
    expire(toasts.at(1));
    QVERIFY(!toasts.at(0));
    QVERIFY(toasts.at(1));
    QVERIFY(toasts.at(1)->isHidden());
    QVERIFY(toasts.at(2)->isVisible());
    QCOMPARE(count(), 2);
}

void TestWySimpleToastColumn::aHiddenToastKeepsASlotUntilItsTurn()
{
    Column column;
    const Toasts toasts = showSome(column, 3);
    expire(toasts.at(1));
    QCOMPARE(column.slotOf(toasts.at(2)), 2);
    expire(toasts.at(2));
    QVERIFY(!toasts.at(1));
    QVERIFY(toasts.at(2));
    QVERIFY(toasts.at(2)->isHidden());
    QCOMPARE(count(), 1);
    QCOMPARE(column.slotOf(column.show()), 2);
}

void TestWySimpleToastColumn::hiddenToastsMoveUp()
{
    Column column;
    const Toasts toasts = showSome(column, 3);
    expire(toasts.at(2));
    QVERIFY(toasts.at(2)->isHidden());
    QCOMPARE(column.slotOf(toasts.at(1)), 1);
    QCOMPARE(column.slotOf(toasts.at(2)), 2);
}

void TestWySimpleToastColumn::hoveringTheOldestWhileAYoungerOneEndsIsSafe()
{
    Column column;
    const Toasts toasts = showSome(column, 2);
    send(toasts.at(0), QEvent::Enter);
    fadeOut(toasts.at(1), 20);
    QTRY_VERIFY(!toasts.at(0));
    QVERIFY(toasts.at(1));
    QVERIFY(toasts.at(1)->isHidden());
    QCOMPARE(count(), 1);
}

void TestWySimpleToastColumn::aFadeOutWithoutDurationIsSafe()
{
    Column column;
    QPointer<WySimpleToast> toast = column.make();
    toast->setHideDuration(0);
    toast->setDuration(0);
    toast->show();
    QTRY_VERIFY(!toast);
}

void TestWySimpleToastColumn::twoToastsEndInOnePass_data()
{
    QTest::addColumn<bool>("oldestFirst");
    QTest::newRow("oldest first") << true;
    QTest::newRow("youngest first") << false;
}

void TestWySimpleToastColumn::twoToastsEndInOnePass()
{
    QFETCH(bool, oldestFirst);
    Column column;
    const Toasts toasts = showSome(column, 3);
    // Equal fades that start together end in one tick of the animation clock, in the order of their start.
    fadeOut(toasts.at(oldestFirst ? 0 : 1), 20);
    fadeOut(toasts.at(oldestFirst ? 1 : 0), 20);
    if (oldestFirst) {
        QTRY_VERIFY(!toasts.at(1));
        QCOMPARE(count(), 1);
        QCOMPARE(column.slotOf(toasts.at(2)), 1);
    } else {
        // The end of the younger one deletes the oldest with its own end pending.
        QTRY_VERIFY(!toasts.at(0));
        QVERIFY(toasts.at(1)->isHidden());
        QCOMPARE(count(), 2);
        QCOMPARE(column.slotOf(toasts.at(2)), 2);
    }
    QVERIFY(!toasts.at(0));
    QVERIFY(toasts.at(2)->isVisible());
}

void TestWySimpleToastColumn::manyToastsEndInOnePass()
{
    Column column;
    const Toasts toasts = showSome(column, 30);
    for (const QPointer<WySimpleToast>& toast : toasts)
        fadeOut(toast, 20);
    QTRY_COMPARE(count(), 0);
    for (const QPointer<WySimpleToast>& toast : toasts)
        QVERIFY(!toast);
}

void TestWySimpleToastColumn::aTimerEndsAToastThatIsNotTheOldest()
{
    Column column;
    const Toasts toasts = showSome(column, 2);
    toasts.at(1)->setHideDuration(0);
    displayTimer(toasts.at(1))->start(1);
    QTRY_VERIFY(!toasts.at(0));
    QVERIFY(toasts.at(1)->isHidden());
    QVERIFY(!displayTimer(toasts.at(1))->isActive());
}

void TestWySimpleToastColumn::hideDoesNothingWhileAnythingIsVisible()
{
    Column column;
    const Toasts toasts = showSome(column, 2);
    toasts.at(0)->hide();
    toasts.at(0)->setPopupOpacity(0.001F);
    toasts.at(0)->hide();
    QVERIFY(toasts.at(0)->isVisible());
    QCOMPARE(count(), 2);
    QVERIFY(QMetaObject::invokeMethod(toasts.at(0), "hide"));
    QCOMPARE(count(), 2);
}

void TestWySimpleToastColumn::hideWithAnEmptyColumnOnlyHides()
{
    WySimpleToast toast;
    toast.setPopupOpacity(0.0F);
    toast.QWidget::show();
    toast.hide();
    QVERIFY(toast.isHidden());
    QCOMPARE(count(), 0);
}

void TestWySimpleToastColumn::hideOfAnUnshownTransparentToastRemovesTheOldest()
{
    Column column;
    const Toasts toasts = showSome(column, 2);
    WySimpleToast unshown;
    unshown.hide();
    QCOMPARE(count(), 2);
    unshown.setPopupOpacity(0.0F);
    unshown.hide();
    QVERIFY(!toasts.at(0));
    QCOMPARE(count(), 1);
    QCOMPARE(column.slotOf(toasts.at(1)), 1);
}

void TestWySimpleToastColumn::showingTwiceTakesOneSlot()
{
    Column column;
    QPointer<WySimpleToast> toast = column.show();
    toast->show();
    QCOMPARE(count(), 1);
    QCOMPARE(column.slotOf(toast), 1);
    expire(toast);
    QVERIFY(!toast);
    QCOMPARE(count(), 0);
}

void TestWySimpleToastColumn::showingAgainMakesTheToastTheNewest()
{
    Column column;
    const Toasts toasts = showSome(column, 3);
    toasts.at(0)->show();
    QCOMPARE(count(), 3);
    QCOMPARE(column.slotOf(toasts.at(1)), 1);
    QCOMPARE(column.slotOf(toasts.at(2)), 2);
    QCOMPARE(column.slotOf(toasts.at(0)), 3);
    expire(toasts.at(1));
    QVERIFY(!toasts.at(1));
    QVERIFY(toasts.at(0)->isVisible());
}

void TestWySimpleToastColumn::showingAgainAfterAClickIsSafe()
{
    Column column;
    QPointer<WySimpleToast> toast = column.show();
    QTest::mouseClick(toast, Qt::LeftButton);
    QVERIFY(toast->isHidden());
    toast->show();
    QVERIFY(toast->isVisible());
    QVERIFY(displayTimer(toast)->isActive());
    QCOMPARE(count(), 1);
    expire(toast);
    QVERIFY(!toast);
}

void TestWySimpleToastColumn::showingAgainInTheFadeOutFadesIn()
{
    Column column;
    QPointer<WySimpleToast> toast = column.make();
    toast->setShowDuration(30);
    toast->show();
    fadeOut(toast, kLongMs);
    toast->show();
    QCOMPARE(toast->getPopupOpacity(), 0.0F);
    QTRY_COMPARE(toast->getPopupOpacity(), 1.0F);
    QVERIFY(toast->isVisible());
    QCOMPARE(count(), 1);
}

void TestWySimpleToastColumn::showingAgainInAFadeOutCutShortIsSafe()
{
    Column column;
    QPointer<WySimpleToast> toast = column.make();
    toast->setShowDuration(kLongMs);
    toast->show();
    fadeOut(toast, kLongMs);
    fadeOut(toast, 0); // to its end already, but that is told with the next tick only
    QCOMPARE(toast->getPopupOpacity(), 0.0F);
    toast->show();
    QVERIFY(toast);
    QVERIFY(toast->isVisible());
    QVERIFY(displayTimer(toast)->isActive());
    QCOMPARE(count(), 1);
}

void TestWySimpleToastColumn::aDeletedToastDropsOutAndClosesTheGap()
{
    Column column;
    const Toasts toasts = showSome(column, 4);
    delete toasts.at(1);
    QCOMPARE(count(), 3);
    QCOMPARE(column.slotOf(toasts.at(0)), 1);
    QCOMPARE(column.slotOf(toasts.at(2)), 2);
    QCOMPARE(column.slotOf(toasts.at(3)), 3);
    delete toasts.at(3);
    delete toasts.at(0);
    QCOMPARE(count(), 1);
    QCOMPARE(column.slotOf(toasts.at(2)), 1);
    // A toast that was never shown has nothing to give back.
    delete column.make();
    QCOMPARE(count(), 1);
}

void TestWySimpleToastColumn::deletionInTheMiddleOfAFadeIsSafe()
{
    Column column;
    WySimpleToast* fadingIn = column.make();
    fadingIn->setShowDuration(kLongMs);
    fadingIn->show();
    QPointer<WySimpleToast> fadingOut = column.show();
    fadeOut(fadingOut, kLongMs);
    QCoreApplication::processEvents();
    delete fadingIn;
    delete fadingOut;
    QCOMPARE(count(), 0);
    QCoreApplication::processEvents();
}

void TestWySimpleToastColumn::aDyingParentTakesItsToastsAlong()
{
    Toasts toasts;
    {
        QWidget window;
        window.setGeometry(0, 0, 500, 500);
        auto* child = new QWidget(&window);
        for (QWidget* parent : {&window, child, &window}) {
            auto* toast = new WySimpleToast(parent);
            toast->show();
            toasts += toast;
        }
        fadeOut(toasts.at(1), 100);
        QCOMPARE(count(), 3);
    }
    for (const QPointer<WySimpleToast>& toast : toasts)
        QVERIFY(!toast);
    QCOMPARE(count(), 0);
    QCoreApplication::processEvents();
}

void TestWySimpleToastColumn::aDyingParentLeavesTheOthersAlone()
{
    Column column;
    auto* window = new QWidget;
    (new WySimpleToast(window))->show();
    QPointer<WySimpleToast> stays = column.show();
    (new WySimpleToast(window))->show();
    QPointer<WySimpleToast> ends = column.show();
    fadeOut(ends, 20);
    QCOMPARE(column.slotOf(stays), 2);
    delete window;
    QCOMPARE(count(), 2);
    QCOMPARE(column.slotOf(stays), 1);
    QTRY_VERIFY(!stays);
    QVERIFY(ends->isHidden());
    QCOMPARE(count(), 1);
}

void TestWySimpleToastColumn::deletionInSlotsOfOtherToastsIsSafe()
{
    Column column;
    const Toasts toasts = showSome(column, 4);
    onDestroyed(toasts.at(0), [&] { delete toasts.at(1); });
    onDestroyed(toasts.at(1), [&] { delete toasts.at(3); });
    expire(toasts.at(0));
    QVERIFY(!toasts.at(1));
    QVERIFY(!toasts.at(3));
    QCOMPARE(count(), 1);
    QCOMPARE(column.slotOf(toasts.at(2)), 1);

    // Also when the one that goes is not the one that has faded, and its end takes the faded one along.
    const Toasts others = showSome(column, 2);
    onDestroyed(toasts.at(2), [&] { delete others.at(0); });
    expire(others.at(0));
    QVERIFY(!toasts.at(2));
    QVERIFY(!others.at(0));
    QCOMPARE(count(), 1);
    QCOMPARE(column.slotOf(others.at(1)), 1);
}

void TestWySimpleToastColumn::showingInASlotOfADyingToastIsSafe()
{
    Column column;
    const Toasts toasts = showSome(column, 2);
    QPointer<WySimpleToast> successor;
    onDestroyed(toasts.at(0), [&] { successor = column.show(); });
    expire(toasts.at(0));
    QVERIFY(successor);
    QCOMPARE(count(), 2);
    QCOMPARE(column.slotOf(toasts.at(1)), 1);
    QCOMPARE(column.slotOf(successor), 2);
}

void TestWySimpleToastColumn::deletionWhileShowingIsSafe()
{
    Column column;
    QPointer<WySimpleToast> toast = column.make();
    const OnEvent deleter(toast, QEvent::ShowToParent, [toast] { delete toast; });
    toast->show();
    QVERIFY(!toast);
    QCOMPARE(count(), 0);
}

void TestWySimpleToastColumn::deletionWhileItIsPlacedIsSafe()
{
    Column column;
    QPointer<WySimpleToast> toast = column.make();
    const OnEvent deleter(toast, QEvent::ToolTipChange, [toast] { delete toast; });
    toast->show();
    QVERIFY(!toast);
    QCOMPARE(count(), 0);
}

void TestWySimpleToastColumn::deletionWhileItsIconAppearsIsSafe()
{
    const std::function<void(WySimpleToast*)> causes[] = {
        [](WySimpleToast* toast) { toast->setStyle(WySimpleToast::TOASTR_INFO); },
        [](WySimpleToast* toast) { toast->setIcon(QPixmap(3, 3)); },
    };
    for (const auto& cause : causes) {
        QPointer<WySimpleToast> toast = new WySimpleToast;
        auto* icon = toast->findChild<QLabel*>(QStringLiteral("iconLabel"));
        icon->hide();
        const OnEvent deleter(icon, QEvent::ShowToParent, [toast] { delete toast; });
        cause(toast);
        QVERIFY(!toast);
    }
}

void TestWySimpleToastColumn::deletionWhileTheGapClosesIsSafe()
{
    Column column;
    const Toasts toasts = showSome(column, 2);
    const OnEvent deleter(toasts.at(1), QEvent::Move, [&] { delete toasts.at(0); });
    toasts.at(0)->show(); // to the end of the column: the other one moves up
    QVERIFY(!toasts.at(0));
    QCOMPARE(count(), 1);
    QCOMPARE(column.slotOf(toasts.at(1)), 1);
}

void TestWySimpleToastColumn::showingWhileTheGapClosesTakesOneSlot()
{
    Column column;
    const Toasts toasts = showSome(column, 2);
    const OnEvent shower(toasts.at(1), QEvent::Move, [&] { toasts.at(0)->show(); });
    toasts.at(0)->show();
    QCOMPARE(count(), 2);
    QCOMPARE(column.slotOf(toasts.at(1)), 1);
    QCOMPARE(column.slotOf(toasts.at(0)), 2);
}

void TestWySimpleToastColumn::aHandlerMaySendTheToastAwayAsItAppears()
{
    Column column;
    const Toasts older = showSome(column, 2);
    QPointer<WySimpleToast> toast = column.make();
    const OnEvent sendAway(toast, QEvent::Show, [&] { expire(toast); });
    toast->show();
    // It has ended once: the oldest one is gone, and it waits for its turn.
    QVERIFY(!older.at(0));
    QVERIFY(older.at(1));
    QVERIFY(toast);
    QVERIFY(toast->isHidden());
    QVERIFY(!displayTimer(toast)->isActive());
    QCOMPARE(count(), 2);
}

void TestWySimpleToastColumn::deletionWhileAClickHidesIsSafe()
{
    Column column;
    QPointer<WySimpleToast> toast = column.show();
    send(toast, QEvent::Enter);
    const OnEvent deleter(toast, QEvent::HideToParent, [toast] { delete toast; });
    QTest::mousePress(toast, Qt::LeftButton);
    QVERIFY(!toast);
    QCOMPARE(count(), 0);
}

void TestWySimpleToastColumn::aToastDeletedWhileItHidesTakesNoOtherAlong()
{
    Column column;
    const Toasts toasts = showSome(column, 2);
    const OnEvent deleter(toasts.at(0), QEvent::HideToParent, [&] { delete toasts.at(0); });
    expire(toasts.at(0));
    QVERIFY(!toasts.at(0));
    QVERIFY(toasts.at(1));
    QVERIFY(toasts.at(1)->isVisible());
    QCOMPARE(count(), 1);
    QCOMPARE(column.slotOf(toasts.at(1)), 1);
}

void TestWySimpleToastColumn::deleteOnCloseIsSafe()
{
    Column column;
    const Toasts toasts = showSome(column, 2);
    toasts.at(0)->setAttribute(Qt::WA_DeleteOnClose);
    QTest::mouseClick(toasts.at(0), Qt::LeftButton);
    QTRY_VERIFY(!toasts.at(0));
    QCOMPARE(count(), 1);
    QCOMPARE(column.slotOf(toasts.at(1)), 1);
}

void TestWySimpleToastColumn::anyOrderOfEventsLeavesTheColumnConsistent_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestWySimpleToastColumn::anyOrderOfEventsLeavesTheColumnConsistent()
{
    QFETCH(uint, seed);
    QRandomGenerator random(seed);
    Column column;
    // What a plain list of the column would hold, oldest first.
    Toasts model;
    const auto anyOf = [&] {
        return random.bounded(model.size());
    };
    for (int round = 0; round < 400; ++round) {
        // The window system tells a visible toast its place later; a hidden one would take that for news.
        QCoreApplication::processEvents();
        const int action = model.isEmpty() ? 0 : random.bounded(7);
        if (action <= 1) {
            if (model.size() < 12)
                model += column.show();
        } else if (action == 2) {
            expire(model.at(anyOf()));
            model.removeFirst();
        } else if (action == 3) {
            delete model.takeAt(anyOf());
        } else if (action == 4) {
            QTest::mouseClick(model.at(anyOf()), Qt::LeftButton);
        } else if (action == 5) {
            send(model.at(anyOf()), random.bounded(2) == 0 ? QEvent::Enter : QEvent::Leave);
        } else {
            model += model.takeAt(anyOf());
            model.last()->show();
        }
        QCOMPARE(count(), model.size());
        for (int i = 0; i < model.size(); ++i) {
            QVERIFY(model.at(i));
            QCOMPARE(column.slotOf(model.at(i)), i + 1);
        }
    }
}

QTEST_MAIN(TestWySimpleToastColumn)
#include "tst_wysimpletoast_column.moc"
