#include "WyWidgets/wycontrol/WyTipWidget.h"

#include "support/AnimationClock.h"
#include "support/Contract.h"
#include "support/FreedMemory.h"

#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QLabel>
#include <QParallelAnimationGroup>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QSequentialAnimationGroup>
#include <QTimer>
#include <QtTest>

using WyWidgets::WyTipWidget;

namespace {

QLabel* labelOf(const QWidget* tip)
{
    return tip->findChild<QLabel*>(QStringLiteral("label_text"));
}

QList<QPushButton*> linksOf(const QWidget* tip)
{
    return tip->findChildren<QPushButton*>(QStringLiteral("button_link_underline"));
}

QTimer* timerOf(const QWidget* tip)
{
    return tip->findChild<QTimer*>();
}

qreal opacityOf(const QWidget* tip)
{
    return qobject_cast<QGraphicsOpacityEffect*>(tip->graphicsEffect())->opacity();
}

void enter(QWidget* tip)
{
    QEnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(tip, &event);
}

void leave(QWidget* tip)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(tip, &event);
}

void deleteWhatIsDue()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class TestWyTipWidget : public QObject
{
    Q_OBJECT

private slots:
    void registersItsTwoSignals();
    void isAnAlmostInvisibleChild();
    void laysOutATextAndTwoLinks();
    void takesTheSizeOfItsTexts();
    void setsItsText();
    void anEmptyLinkTextHidesTheLinkAndKeepsItsText();
    void aClickReportsAndThenDeletes_data();
    void aClickReportsAndThenDeletes();
    void theRightLinkAloneStaysClickable();
    void clicksAreConnectedByName();
    void aSlotMayDeleteTheTipFirst_data();
    void aSlotMayDeleteTheTipFirst();
    void theShowAnimationFadesInANewEffect();
    void theShowAnimationStartsTheTimer();
    void theShowAnimationDeletesItselfAtItsEnd();
    void aSecondShowAnimationStartsAfresh();
    void theTimerIsMadeOnceAndKeepsItsTime();
    void negativeTimesStartNoTimer();
    void theTimerDeletesTheTip();
    void hoveringStopsTheTimerAndLeavingStartsTwoSeconds();
    void leavingWithoutHavingEnteredKeepsARunningTimer();
    void survivesTheLossOfItsPartsAndEffect();
    void survivesItsParentInMidFade();
    void survivesItsDeletionWithinAStepOfTheFade_data();
    void survivesItsDeletionWithinAStepOfTheFade();
    void makesAnotherTimerWhenItsOwnIsDeleted();
};

void TestWyTipWidget::registersItsTwoSignals()
{
    WY_COMPARE_CONTRACT(WyTipWidget, {"SignalClickedLeftLink()", "SignalClickedRightLink()"}, {}, {});
}

void TestWyTipWidget::isAnAlmostInvisibleChild()
{
    QWidget parent;
    WyTipWidget tip(&parent);
    QCOMPARE(tip.parentWidget(), &parent);
    QVERIFY(!tip.isWindow());
    QCOMPARE(tip.windowFlags(), QWidget(&parent).windowFlags());
    QVERIFY(tip.testAttribute(Qt::WA_StyledBackground));
    QVERIFY(qobject_cast<QGraphicsOpacityEffect*>(tip.graphicsEffect()));
    QCOMPARE(opacityOf(&tip), 0.1);
    QVERIFY(!timerOf(&tip));
}

void TestWyTipWidget::laysOutATextAndTwoLinks()
{
    WyTipWidget tip;
    auto* layout = qobject_cast<QHBoxLayout*>(tip.layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), QStringLiteral("main_layout"));
    QCOMPARE(layout->contentsMargins(), QMargins(8, 8, 8, 8));
    QCOMPARE(layout->spacing(), 8);
    QCOMPARE(layout->sizeConstraint(), QLayout::SetFixedSize);
    QLabel* label = labelOf(&tip);
    QVERIFY(label);
    QVERIFY(!label->wordWrap());
    QCOMPARE(label->size(), label->sizeHint()); // as small as no text, before the layout cares for it
    QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    const QList<QPushButton*> links = linksOf(&tip);
    QCOMPARE(links.size(), 2);
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->itemAt(0)->widget(), label);
    QCOMPARE(layout->itemAt(1)->widget(), links.at(0));
    QCOMPARE(layout->itemAt(2)->widget(), links.at(1));
}

void TestWyTipWidget::takesTheSizeOfItsTexts()
{
    WyTipWidget tip;
    tip.SetText(QStringLiteral("text"));
    tip.SetLinkText(QStringLiteral("one"), QStringLiteral("two"));
    tip.show();
    QCOMPARE(tip.size(), tip.layout()->totalSizeHint());
    const int width = tip.width();
    tip.SetText(QString(80, QLatin1Char('x')));
    QTRY_VERIFY(tip.width() > width + 80);
    QVERIFY(labelOf(&tip)->width() >= labelOf(&tip)->sizeHint().width());
}

void TestWyTipWidget::setsItsText()
{
    WyTipWidget tip;
    for (const QString& text : {QStringLiteral("plain"), QStringLiteral("<i>rich</i>"), QString(),
                                QStringLiteral("\u05E9\u05DC\u05D5\u05DD \U0001F600")}) {
        tip.SetText(text);
        QCOMPARE(labelOf(&tip)->text(), text);
    }
}

void TestWyTipWidget::anEmptyLinkTextHidesTheLinkAndKeepsItsText()
{
    WyTipWidget tip;
    QPushButton* left = linksOf(&tip).at(0);
    QPushButton* right = linksOf(&tip).at(1);
    tip.SetLinkText(QStringLiteral("left"), QStringLiteral("right"));
    QCOMPARE(left->text(), QStringLiteral("left"));
    QCOMPARE(right->text(), QStringLiteral("right"));
    tip.show();
    QVERIFY(left->isVisible());
    tip.SetLinkText(QString(), QStringLiteral("other"));
    QVERIFY(left->isHidden());
    QCOMPARE(left->text(), QStringLiteral("left"));
    QVERIFY(!right->isHidden());
    QCOMPARE(right->text(), QStringLiteral("other"));
    tip.SetLinkText(QStringLiteral("back"), QStringLiteral(""));
    QVERIFY(left->isHidden()); // a text does not bring the link back
    QCOMPARE(left->text(), QStringLiteral("back"));
    QVERIFY(right->isHidden());
    QCOMPARE(right->text(), QStringLiteral("other"));
}

void TestWyTipWidget::aClickReportsAndThenDeletes_data()
{
    QTest::addColumn<int>("link");
    QTest::newRow("left") << 0;
    QTest::newRow("right") << 1;
}

void TestWyTipWidget::aClickReportsAndThenDeletes()
{
    QFETCH(int, link);
    QPointer<WyTipWidget> tip = new WyTipWidget;
    QSignalSpy left(tip, SIGNAL(SignalClickedLeftLink()));
    QSignalSpy right(tip, SIGNAL(SignalClickedRightLink()));
    bool aliveInTheSlot = false;
    const auto note = [&] {
        deleteWhatIsDue();
        aliveInTheSlot = !tip.isNull();
    };
    connect(tip, &WyTipWidget::SignalClickedLeftLink, note);
    connect(tip, &WyTipWidget::SignalClickedRightLink, note);
    tip->show();
    QTest::mouseClick(linksOf(tip).at(link), Qt::LeftButton);
    QCOMPARE(left.count(), link == 0 ? 1 : 0);
    QCOMPARE(right.count(), link == 1 ? 1 : 0);
    QVERIFY(aliveInTheSlot);
    QVERIFY(tip);
    deleteWhatIsDue();
    QVERIFY(!tip);
}

void TestWyTipWidget::theRightLinkAloneStaysClickable()
{
    QPointer<WyTipWidget> tip = new WyTipWidget;
    QSignalSpy right(tip, SIGNAL(SignalClickedRightLink()));
    tip->SetLinkText(QString(), QStringLiteral("right"));
    tip->show();
    QTest::mouseClick(linksOf(tip).at(1), Qt::LeftButton);
    QCOMPARE(right.count(), 1);
    deleteWhatIsDue();
    QVERIFY(!tip);
}

void TestWyTipWidget::clicksAreConnectedByName()
{
    WyTipWidget tip;
    QPushButton* left = linksOf(&tip).at(0);
    QPushButton* right = linksOf(&tip).at(1);
    QVERIFY(disconnect(left, SIGNAL(clicked()), &tip, SIGNAL(SignalClickedLeftLink())));
    QVERIFY(disconnect(left, SIGNAL(clicked()), &tip, SLOT(deleteLater())));
    QVERIFY(disconnect(right, SIGNAL(clicked()), &tip, SIGNAL(SignalClickedRightLink())));
    QVERIFY(disconnect(right, SIGNAL(clicked()), &tip, SLOT(deleteLater())));
}

void TestWyTipWidget::aSlotMayDeleteTheTipFirst_data()
{
    aClickReportsAndThenDeletes_data();
}

void TestWyTipWidget::aSlotMayDeleteTheTipFirst()
{
    QFETCH(int, link);
    QPointer<WyTipWidget> tip = new WyTipWidget;
    connect(tip, &WyTipWidget::SignalClickedLeftLink, [&] { delete tip; });
    connect(tip, &WyTipWidget::SignalClickedRightLink, [&] { delete tip; });
    tip->show();
    tip->StartShowAnimation();
    QTest::mouseClick(linksOf(tip).at(link), Qt::LeftButton);
    QVERIFY(!tip);
    deleteWhatIsDue();
}

void TestWyTipWidget::theShowAnimationFadesInANewEffect()
{
    WyTipWidget tip;
    QPointer<QGraphicsEffect> first = tip.graphicsEffect();
    tip.StartShowAnimation();
    QVERIFY(!first);
    auto* group = tip.findChild<QParallelAnimationGroup*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(group);
    QCOMPARE(group->state(), QAbstractAnimation::Running);
    QCOMPARE(group->direction(), QAbstractAnimation::Forward);
    QCOMPARE(group->loopCount(), 1);
    QCOMPARE(group->animationCount(), 1);
    auto* sequence = qobject_cast<QSequentialAnimationGroup*>(group->animationAt(0));
    QVERIFY(sequence);
    QCOMPARE(sequence->animationCount(), 1);
    auto* fade = qobject_cast<QPropertyAnimation*>(sequence->animationAt(0));
    QVERIFY(fade);
    QCOMPARE(fade->targetObject(), tip.graphicsEffect());
    QCOMPARE(fade->propertyName(), QByteArray("opacity"));
    QCOMPARE(fade->duration(), 500);
    QCOMPARE(fade->startValue(), QVariant(0.1));
    QCOMPARE(fade->endValue(), QVariant(1.0));
    QCOMPARE(fade->easingCurve(), QEasingCurve(QEasingCurve::OutQuad));
    QCOMPARE(opacityOf(&tip), 0.1);
    group->setCurrentTime(250);
    QCOMPARE(opacityOf(&tip), 0.1 + 0.9 * 0.75);
    group->setCurrentTime(500);
    QCOMPARE(opacityOf(&tip), 1.0);
}

void TestWyTipWidget::theShowAnimationStartsTheTimer()
{
    WyTipWidget tip;
    tip.StartShowAnimation();
    QTimer* timer = timerOf(&tip);
    QVERIFY(timer);
    QVERIFY(timer->isActive());
    QVERIFY(timer->isSingleShot());
    QCOMPARE(timer->interval(), 3500);
}

void TestWyTipWidget::theShowAnimationDeletesItselfAtItsEnd()
{
    WyTipWidget tip;
    tip.StartShowAnimation();
    QPointer<QParallelAnimationGroup> group = tip.findChild<QParallelAnimationGroup*>();
    QVERIFY(disconnect(group, SIGNAL(finished()), group, SLOT(deleteLater())));
    connect(group, SIGNAL(finished()), group, SLOT(deleteLater()));
    group->setCurrentTime(500);
    deleteWhatIsDue();
    QVERIFY(!group);
    QVERIFY(tip.findChildren<QAbstractAnimation*>().isEmpty());
}

void TestWyTipWidget::aSecondShowAnimationStartsAfresh()
{
    WyTipWidget tip;
    tip.StartShowAnimation();
    QParallelAnimationGroup* first = tip.findChild<QParallelAnimationGroup*>();
    first->setCurrentTime(400);
    tip.StartShowAnimation();
    QCOMPARE(opacityOf(&tip), 0.1);
    const auto groups = tip.findChildren<QParallelAnimationGroup*>();
    for (QParallelAnimationGroup* group : groups)
        group->setCurrentTime(500);
    QCOMPARE(opacityOf(&tip), 1.0);
    deleteWhatIsDue();
    QVERIFY(tip.findChildren<QAbstractAnimation*>().isEmpty());
}

void TestWyTipWidget::theTimerIsMadeOnceAndKeepsItsTime()
{
    WyTipWidget tip;
    tip.StopTimer(); // there is none yet
    QVERIFY(!timerOf(&tip));
    tip.StartTimer(60000);
    QTimer* timer = timerOf(&tip);
    QCOMPARE(timer->parent(), &tip);
    QVERIFY(timer->isSingleShot());
    tip.StartTimer(70000);
    QCOMPARE(timer->interval(), 60000);
    tip.StopTimer();
    QVERIFY(!timer->isActive());
    tip.StopTimer();
    tip.StartTimer(70000);
    QCOMPARE(timer->interval(), 70000);
    QVERIFY(timer->isActive());
    QCOMPARE(tip.findChildren<QTimer*>(), {timer});
    QVERIFY(disconnect(timer, SIGNAL(timeout()), &tip, SLOT(deleteLater())));
}

void TestWyTipWidget::negativeTimesStartNoTimer()
{
    WyTipWidget tip;
    tip.StartTimer(-1);
    QVERIFY(!timerOf(&tip)->isActive());
}

void TestWyTipWidget::theTimerDeletesTheTip()
{
    QPointer<WyTipWidget> tip = new WyTipWidget;
    tip->StartTimer(0);
    QTRY_VERIFY(!tip);
}

void TestWyTipWidget::hoveringStopsTheTimerAndLeavingStartsTwoSeconds()
{
    WyTipWidget tip;
    tip.StartShowAnimation();
    QTimer* timer = timerOf(&tip);
    enter(&tip);
    QVERIFY(!timer->isActive());
    leave(&tip);
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 2000);
    enter(&tip);
    QVERIFY(!timer->isActive());
    leave(&tip);
    QVERIFY(timer->isActive());
}

void TestWyTipWidget::leavingWithoutHavingEnteredKeepsARunningTimer()
{
    WyTipWidget tip;
    leave(&tip);
    QCOMPARE(timerOf(&tip)->interval(), 2000);
    tip.StopTimer();
    tip.StartTimer(3500);
    leave(&tip);
    QCOMPARE(timerOf(&tip)->interval(), 3500);
}

void TestWyTipWidget::survivesTheLossOfItsPartsAndEffect()
{
    WyTipWidget tip;
    delete labelOf(&tip);
    qDeleteAll(linksOf(&tip));
    tip.SetText(QStringLiteral("text"));
    tip.SetLinkText(QStringLiteral("left"), QString());
    tip.setGraphicsEffect(nullptr);
    tip.StartShowAnimation();
    tip.setGraphicsEffect(nullptr); // in mid-fade
    QTRY_VERIFY(tip.findChildren<QAbstractAnimation*>().isEmpty());
}

void TestWyTipWidget::survivesItsParentInMidFade()
{
    auto* parent = new QWidget;
    QPointer<WyTipWidget> tip = new WyTipWidget(parent);
    parent->show();
    tip->StartShowAnimation();
    QCoreApplication::processEvents();
    delete parent;
    QVERIFY(!tip);
}

void TestWyTipWidget::survivesItsDeletionWithinAStepOfTheFade_data()
{
    QTest::addColumn<double>("from");
    QTest::newRow("first") << 0.0;
    QTest::newRow("in the middle") << 0.5;
    QTest::newRow("last") << 1.0;
}

void TestWyTipWidget::survivesItsDeletionWithinAStepOfTheFade()
{
    QFETCH(const double, from);
    WyTest::AnimationClock clock;
    const QPointer<WyTipWidget> tip = new WyTipWidget;
    tip->StartShowAnimation();
    auto* effect = qobject_cast<QGraphicsOpacityEffect*>(tip->graphicsEffect());
    connect(effect, &QGraphicsOpacityEffect::opacityChanged, this, [&](qreal opacity) {
        if (opacity >= from) {
            delete tip;
            WyTest::overwriteFreedMemory();
        }
    });
    for (int step = 0; step < 60; ++step)
        clock.pass(10);
    QVERIFY(!tip);
}

void TestWyTipWidget::makesAnotherTimerWhenItsOwnIsDeleted()
{
    WyTipWidget tip;
    tip.StartTimer(60000);
    delete timerOf(&tip);
    tip.StopTimer();
    tip.StartTimer(50000);
    QVERIFY(timerOf(&tip));
    QCOMPARE(timerOf(&tip)->interval(), 50000);
}

QTEST_MAIN(TestWyTipWidget)
#include "tst_wytipwidget.moc"
