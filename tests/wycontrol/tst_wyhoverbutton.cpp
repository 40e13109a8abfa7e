#include "WyWidgets/wycontrol/WyHoverButton.h"

#include "support/Contract.h"

#include <QEnterEvent>
#include <QtTest>

using WyWidgets::WyHoverButton;

namespace {

/// Sends what Qt sends when the pointer comes in or goes.
void sendEnter(QWidget* widget)
{
    QEnterEvent event(QPointF(3, 3), QPointF(3, 3), QPointF(3, 3));
    QCoreApplication::sendEvent(widget, &event);
}

void sendLeave(QWidget* widget)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

class TestWyHoverButton : public QObject
{
    Q_OBJECT

private slots:
    void registersItsSignals();
    void enteringEmitsTheEnterSignal();
    void leavingEmitsTheLeaveSignal();
    void aDisabledButtonReportsToo();
    void staysAPlainButton();
    void mayBeDeletedInItsSignals_data();
    void mayBeDeletedInItsSignals();
};

void TestWyHoverButton::registersItsSignals()
{
    WY_COMPARE_CONTRACT(WyHoverButton, {"SignalEnterEvent()", "SignalLeaveEvent()"}, {}, {});
}

void TestWyHoverButton::enteringEmitsTheEnterSignal()
{
    WyHoverButton button;
    QSignalSpy entered(&button, &WyHoverButton::SignalEnterEvent);
    QSignalSpy left(&button, &WyHoverButton::SignalLeaveEvent);
    sendEnter(&button);
    QCOMPARE(entered.count(), 1);
    QCOMPARE(left.count(), 0);
}

void TestWyHoverButton::leavingEmitsTheLeaveSignal()
{
    WyHoverButton button;
    QSignalSpy entered(&button, &WyHoverButton::SignalEnterEvent);
    QSignalSpy left(&button, &WyHoverButton::SignalLeaveEvent);
    sendLeave(&button);
    QCOMPARE(entered.count(), 0);
    QCOMPARE(left.count(), 1);
}

void TestWyHoverButton::aDisabledButtonReportsToo()
{
    WyHoverButton button;
    button.setEnabled(false);
    QSignalSpy entered(&button, &WyHoverButton::SignalEnterEvent);
    sendEnter(&button);
    QCOMPARE(entered.count(), 1);
}

void TestWyHoverButton::staysAPlainButton()
{
    QWidget parent;
    WyHoverButton button(&parent);
    QCOMPARE(button.parentWidget(), &parent);
    QCOMPARE(button.text(), QString());
    QVERIFY(button.children().isEmpty());
    QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
}

void TestWyHoverButton::mayBeDeletedInItsSignals_data()
{
    QTest::addColumn<bool>("onEnter");
    QTest::newRow("enter") << true;
    QTest::newRow("leave") << false;
}

void TestWyHoverButton::mayBeDeletedInItsSignals()
{
    QFETCH(bool, onEnter);
    QPointer<WyHoverButton> button = new WyHoverButton;
    connect(button, onEnter ? &WyHoverButton::SignalEnterEvent : &WyHoverButton::SignalLeaveEvent, this,
            [button] { delete button; });
    onEnter ? sendEnter(button) : sendLeave(button);
    QVERIFY(!button);
}

QTEST_MAIN(TestWyHoverButton)
#include "tst_wyhoverbutton.moc"
