#include "WyWidgets/wycontrol/WyPopupWidget.h"

#include "support/Contract.h"
#include "support/LastWindow.h"
#include "support/Painting.h"
#include "support/PopupPanel.h"

#include <QCloseEvent>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

using WyWidgets::WyPopupWidget;

namespace {

/// What a host's own popup sees of its base.
class FilledPopup : public WyPopupWidget
{
public:
    QWidget* content() const { return m_contentWidget; }
};

void send(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

QTimer* closeTimer(const WyPopupWidget& popup)
{
    return popup.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
}

/// Notes in which order widgets are hidden and deactivated.
class Recorder : public QObject
{
public:
    QStringList events;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QString who = watched->objectName();
        if (event->type() == QEvent::WindowDeactivate)
            events += who + QStringLiteral(" deactivated");
        else if (event->type() == QEvent::Hide)
            events += who + QStringLiteral(" hidden");
        return false;
    }
};

} // namespace

class TestWyPopupWidget : public QObject
{
    Q_OBJECT

private slots:
    void registersOnlyTheCloseSignal();
    void startsAsAHiddenPopupWindow();
    void holdsOneEmptyPanelWithoutMargins();
    void derivedClassesReachThePanel();
    void paintsNothingItself();
    void aSecondPanelSharesTheLayout();

    void setPopupReplacesAllWindowFlags();
    void setPopupHidesAVisibleWindow();
    void aPopupNeverGetsATimer();
    void stopTimerAndEnteringAreHarmlessWithoutATimer();
    void theTimerIsASingleShotConnectedByName();
    void aRunningTimerKeepsItsTime();
    void aNegativeTimeStartsNothing();
    void stopTimerStopsIt();
    void becomingAPopupStopsTheTimer();

    void leavingClosesAToolTipWindowAfter200Ms();
    void leavingTwiceDoesNotRestartTheTimer();
    void leavingAHiddenWindowStartsNothing();
    void comingBackKeepsTheWindowOpen();
    void theTimeOutHidesAndReports();

    void aCloseRequestIsIgnoredHidesAndReportsOnce();
    void everyCloseRequestReports();
    void closingCancelsAPendingClose();
    void closingNeverDeletes();
    void closingIsNotTheLastWindow();
    void theSignalComesWhenTheWindowIsHidden();
    void deactivationStopsTheTimerAndCloses();
    void deactivationClosesBeforeTheBaseHandler();
    void aDeactivationByQtHidesAtOnceAndReportsOnce();
    void otherEventsReachTheBaseHandler();

    void deletionInTheSignalIsSafe_data();
    void deletionInTheSignalIsSafe();
    void aDeletedPanelCountsAsNone();
    void makesAnotherTimerWhenItsOwnIsDeleted();
};

void TestWyPopupWidget::registersOnlyTheCloseSignal()
{
    WY_COMPARE_CONTRACT(WyPopupWidget, {"SignalPopupClose()"}, {}, {});
}

void TestWyPopupWidget::startsAsAHiddenPopupWindow()
{
    QWidget parent;
    const WyPopupWidget popup(&parent);
    QCOMPARE(popup.parentWidget(), &parent);
    QVERIFY(popup.isWindow());
    QCOMPARE(popup.windowType(), Qt::Popup);
    QVERIFY(popup.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(popup.isHidden());
    QVERIFY(!closeTimer(popup));
}

void TestWyPopupWidget::holdsOneEmptyPanelWithoutMargins()
{
    WyTest::comparePopupPanel(WyPopupWidget());
}

void TestWyPopupWidget::derivedClassesReachThePanel()
{
    const FilledPopup popup;
    QVERIFY(popup.content());
    QCOMPARE(popup.content(), popup.findChild<QWidget*>(QStringLiteral("widget_content")));
}

void TestWyPopupWidget::paintsNothingItself()
{
    WyPopupWidget popup;
    popup.resize(40, 30);
    popup.setStyleSheet(QStringLiteral("WyWidgets--WyPopupWidget { background: red; }"));
    WY_COMPARE_PICTURES(WyTest::picture(&popup), WyTest::painted(popup.size(), [](QPainter&) {}));
}

void TestWyPopupWidget::aSecondPanelSharesTheLayout()
{
    FilledPopup popup;
    QWidget* first = popup.content();
    QWidget* second = popup.CreateContent();
    QVERIFY(second != first);
    QCOMPARE(popup.layout()->count(), 2);
    QCOMPARE(popup.layout()->itemAt(1)->widget(), second);
    QCOMPARE(popup.content(), first);
}

void TestWyPopupWidget::setPopupReplacesAllWindowFlags()
{
    WyPopupWidget popup;
    popup.setWindowFlag(Qt::WindowStaysOnTopHint);
    popup.setPopup(false);
    QCOMPARE(popup.windowType(), Qt::ToolTip);
    QCOMPARE(popup.windowFlags(), QWidget(nullptr, Qt::ToolTip).windowFlags());
    popup.setPopup(true);
    QCOMPARE(popup.windowFlags(), QWidget(nullptr, Qt::Popup).windowFlags());
}

void TestWyPopupWidget::setPopupHidesAVisibleWindow()
{
    WyPopupWidget popup;
    const QSignalSpy closed(&popup, &WyPopupWidget::SignalPopupClose);
    popup.show();
    QVERIFY(popup.isVisible());
    popup.setPopup(false);
    QVERIFY(!popup.isVisible());
    QCOMPARE(closed.count(), 0);
    popup.show();
    QVERIFY(popup.isVisible());
}

void TestWyPopupWidget::aPopupNeverGetsATimer()
{
    WyPopupWidget popup;
    popup.StartTimer(1);
    send(&popup, QEvent::Leave);
    QVERIFY(!closeTimer(popup));
}

void TestWyPopupWidget::stopTimerAndEnteringAreHarmlessWithoutATimer()
{
    WyPopupWidget popup;
    popup.StopTimer();
    send(&popup, QEvent::Enter);
    send(&popup, QEvent::WindowDeactivate);
    QVERIFY(!closeTimer(popup));
}

void TestWyPopupWidget::theTimerIsASingleShotConnectedByName()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    popup.StartTimer(60000);
    QTimer* timer = closeTimer(popup);
    QVERIFY(timer);
    QCOMPARE(timer->parent(), &popup);
    QVERIFY(timer->isSingleShot());
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 60000);
    QVERIFY(disconnect(timer, SIGNAL(timeout()), &popup, SLOT(close())));
    QVERIFY(!disconnect(timer, SIGNAL(timeout()), nullptr, nullptr));
}

void TestWyPopupWidget::aRunningTimerKeepsItsTime()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    popup.StartTimer(60000);
    QTimer* timer = closeTimer(popup);
    popup.StartTimer(1);
    QCOMPARE(timer->interval(), 60000);
    popup.StopTimer();
    popup.StartTimer(50000);
    QCOMPARE(closeTimer(popup), timer);
    QCOMPARE(timer->interval(), 50000);
    QCOMPARE(popup.findChildren<QTimer*>().size(), 1);
}

void TestWyPopupWidget::aNegativeTimeStartsNothing()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    popup.StartTimer(-1);
    QVERIFY(!closeTimer(popup) || !closeTimer(popup)->isActive());
    popup.StartTimer(INT_MAX);
    QVERIFY(closeTimer(popup)->isActive());
}

void TestWyPopupWidget::stopTimerStopsIt()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    popup.StartTimer(60000);
    popup.StopTimer();
    QVERIFY(!closeTimer(popup)->isActive());
    popup.StopTimer();
    QVERIFY(!closeTimer(popup)->isActive());
}

void TestWyPopupWidget::becomingAPopupStopsTheTimer()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    popup.StartTimer(60000);
    popup.setPopup(false);
    QVERIFY(closeTimer(popup)->isActive());
    popup.setPopup(true);
    QVERIFY(!closeTimer(popup)->isActive());
}

void TestWyPopupWidget::leavingClosesAToolTipWindowAfter200Ms()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    send(&popup, QEvent::Leave);
    QVERIFY(closeTimer(popup));
    QVERIFY(closeTimer(popup)->isActive());
    QCOMPARE(closeTimer(popup)->interval(), 200);
}

void TestWyPopupWidget::leavingTwiceDoesNotRestartTheTimer()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    send(&popup, QEvent::Leave);
    // A start would set the interval anew.
    closeTimer(popup)->setInterval(60000);
    send(&popup, QEvent::Leave);
    QCOMPARE(closeTimer(popup)->interval(), 60000);
}

void TestWyPopupWidget::leavingAHiddenWindowStartsNothing()
{
    // Hiding a window under the pointer brings it a late leave event.
    WyPopupWidget popup;
    popup.setPopup(false);
    popup.show();
    popup.close();
    send(&popup, QEvent::Leave);
    QVERIFY(!closeTimer(popup));
    popup.show();
    popup.hide();
    send(&popup, QEvent::Leave);
    QVERIFY(!closeTimer(popup));
    popup.show();
    send(&popup, QEvent::Leave);
    QVERIFY(closeTimer(popup)->isActive());
}

void TestWyPopupWidget::comingBackKeepsTheWindowOpen()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    popup.show();
    send(&popup, QEvent::Leave);
    send(&popup, QEvent::Enter);
    QVERIFY(!closeTimer(popup)->isActive());
    QVERIFY(popup.isVisible());
}

void TestWyPopupWidget::theTimeOutHidesAndReports()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    const QSignalSpy closed(&popup, &WyPopupWidget::SignalPopupClose);
    popup.show();
    popup.StartTimer(1);
    QTRY_COMPARE(closed.count(), 1);
    QVERIFY(popup.isHidden());
    QVERIFY(!closeTimer(popup)->isActive());
}

void TestWyPopupWidget::aCloseRequestIsIgnoredHidesAndReportsOnce()
{
    WyPopupWidget popup;
    const QSignalSpy closed(&popup, &WyPopupWidget::SignalPopupClose);
    popup.show();
    QCloseEvent request;
    QCoreApplication::sendEvent(&popup, &request);
    QVERIFY(!request.isAccepted());
    QVERIFY(popup.isHidden());
    QCOMPARE(closed.count(), 1);

    popup.show();
    QVERIFY(!popup.close());
    QVERIFY(popup.isHidden());
    QCOMPARE(closed.count(), 2);
}

void TestWyPopupWidget::everyCloseRequestReports()
{
    WyPopupWidget popup;
    const QSignalSpy closed(&popup, &WyPopupWidget::SignalPopupClose);
    popup.close();
    popup.close();
    QCOMPARE(closed.count(), 2);
}

void TestWyPopupWidget::closingCancelsAPendingClose()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    popup.show();
    popup.StartTimer(60000);
    popup.close();
    QVERIFY(!closeTimer(popup)->isActive());
}

void TestWyPopupWidget::closingNeverDeletes()
{
    QPointer<WyPopupWidget> popup = new WyPopupWidget;
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->show();
    popup->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(popup);
    delete popup;
}

void TestWyPopupWidget::closingIsNotTheLastWindow()
{
    for (const bool asPopup : {true, false}) {
        QCOMPARE(WyTest::lastWindowClosings([asPopup] {
                     WyPopupWidget popup;
                     popup.setPopup(asPopup);
                     popup.show();
                     popup.close();
                 }),
                 0);
    }
}

void TestWyPopupWidget::theSignalComesWhenTheWindowIsHidden()
{
    WyPopupWidget popup;
    popup.show();
    bool hidden = false;
    connect(&popup, &WyPopupWidget::SignalPopupClose, &popup, [&] { hidden = popup.isHidden(); });
    popup.close();
    QVERIFY(hidden);
}

void TestWyPopupWidget::deactivationStopsTheTimerAndCloses()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    const QSignalSpy closed(&popup, &WyPopupWidget::SignalPopupClose);
    popup.show();
    popup.StartTimer(60000);
    send(&popup, QEvent::WindowDeactivate);
    QVERIFY(!closeTimer(popup)->isActive());
    QVERIFY(popup.isHidden());
    QCOMPARE(closed.count(), 1);

    popup.setPopup(true);
    popup.show();
    send(&popup, QEvent::WindowDeactivate);
    QVERIFY(popup.isHidden());
    QCOMPARE(closed.count(), 2);
}

void TestWyPopupWidget::deactivationClosesBeforeTheBaseHandler()
{
    // The base handler passes a deactivation on to visible children: to none once the window is closed, and
    // to this one, which its owner shows again at once.
    FilledPopup popup;
    popup.setObjectName(QStringLiteral("popup"));
    popup.show();
    Recorder recorder;
    popup.installEventFilter(&recorder);
    popup.content()->installEventFilter(&recorder);
    send(&popup, QEvent::WindowDeactivate);
    const QStringList closed{QStringLiteral("popup deactivated"), QStringLiteral("popup hidden"),
                             QStringLiteral("widget_content hidden")};
    QCOMPARE(recorder.events, closed);

    connect(&popup, &WyPopupWidget::SignalPopupClose, &popup, &QWidget::show);
    popup.show();
    recorder.events.clear();
    send(&popup, QEvent::WindowDeactivate);
    QCOMPARE(recorder.events, closed + QStringList{QStringLiteral("widget_content deactivated")});
}

void TestWyPopupWidget::aDeactivationByQtHidesAtOnceAndReportsOnce()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    const QSignalSpy closed(&popup, &WyPopupWidget::SignalPopupClose);
    for (int round = 1; round <= 2; ++round) {
        popup.show();
        QApplication::setActiveWindow(&popup);
        QApplication::setActiveWindow(nullptr);
        QVERIFY(popup.isHidden());
        QTRY_COMPARE(closed.count(), round);
    }
    // Later requests report at once again.
    popup.show();
    popup.close();
    QCOMPARE(closed.count(), 3);
    QCoreApplication::processEvents();
    QCOMPARE(closed.count(), 3);
}

void TestWyPopupWidget::otherEventsReachTheBaseHandler()
{
    WyPopupWidget popup;
    const QSignalSpy closed(&popup, &WyPopupWidget::SignalPopupClose);
    popup.setStatusTip(QStringLiteral("tip"));
    for (const QEvent::Type type : {QEvent::WindowActivate, QEvent::FontChange, QEvent::User})
        send(&popup, type);
    QCOMPARE(closed.count(), 0);
    popup.setFont(QFont(popup.font().family(), 31));
    QCOMPARE(popup.findChild<QWidget*>(QStringLiteral("widget_content"))->font().pointSize(), 31);
}

void TestWyPopupWidget::deletionInTheSignalIsSafe_data()
{
    QTest::addColumn<QString>("cause");
    for (const char* cause :
         {"close", "timer", "deactivation", "deactivation by Qt", "hiding the active window", "leaving"})
        QTest::newRow(cause) << QString::fromLatin1(cause);
}

void TestWyPopupWidget::deletionInTheSignalIsSafe()
{
    QFETCH(QString, cause);
    QPointer<WyPopupWidget> popup = new WyPopupWidget;
    popup->setPopup(cause == QLatin1String("close"));
    popup->show();
    connect(popup, &WyPopupWidget::SignalPopupClose, this, [&] { delete popup; });
    if (cause == QLatin1String("close")) {
        popup->close();
    } else if (cause == QLatin1String("timer")) {
        popup->StartTimer(1);
    } else if (cause == QLatin1String("deactivation")) {
        send(popup, QEvent::WindowDeactivate);
    } else if (cause == QLatin1String("deactivation by Qt")) {
        QApplication::setActiveWindow(popup);
        QApplication::setActiveWindow(nullptr);
    } else if (cause == QLatin1String("hiding the active window")) {
        QApplication::setActiveWindow(popup);
        popup->hide();
    } else {
        send(popup, QEvent::Leave);
        closeTimer(*popup)->start(1);
    }
    QTRY_VERIFY(!popup);
}

void TestWyPopupWidget::aDeletedPanelCountsAsNone()
{
    FilledPopup popup;
    delete popup.content();
    QVERIFY(!popup.content());
    delete popup.layout();
    popup.show();
    popup.close();
    QVERIFY(popup.CreateContent());
    QCOMPARE(popup.layout()->count(), 1);
}

void TestWyPopupWidget::makesAnotherTimerWhenItsOwnIsDeleted()
{
    WyPopupWidget popup;
    popup.setPopup(false);
    popup.StartTimer(60000);
    delete closeTimer(popup);
    popup.close();
    popup.StartTimer(50000);
    QVERIFY(closeTimer(popup));
    QCOMPARE(closeTimer(popup)->interval(), 50000);
}

QTEST_MAIN(TestWyPopupWidget)
#include "tst_wypopupwidget.moc"
