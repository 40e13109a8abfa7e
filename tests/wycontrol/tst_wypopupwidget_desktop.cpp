#include "WyWidgets/wycontrol/WyPopupBox.h"
#include "WyWidgets/wycontrol/WyPopupWidget.h"

#include "support/RealInput.h"

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

using WyWidgets::WyPopupBox;
using WyWidgets::WyPopupWidget;
namespace RealInput = WyTest::RealInput;

namespace {

constexpr QRect kPopupArea(300, 300, 200, 120);
constexpr QPoint kOutside(900, 700);

bool showAt(QWidget& popup, const QRect& area)
{
    popup.setGeometry(area);
    popup.show();
    return QTest::qWaitForWindowExposed(&popup);
}

QTimer* closeTimer(const WyPopupWidget& popup)
{
    return popup.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

/// Popups among real windows, under a real pointer.
class TestWyPopupWidgetDesktop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void aClickOutsideClosesAPopupAndReportsOnce();
    void aClickInsideDoesNot();
    void aClickOutsideHidesABox();
    void escapeClosesAPopup();
    void leavingAToolTipWindowClosesIt();
    void comingBackInTimeKeepsItOpen();
    void deactivationClosesAToolTipWindow();
    void closingUnderThePointerReportsOnce();
    void deletionAfterAClickOutsideIsSafe();

private:
    QWidget m_host;
};

void TestWyPopupWidgetDesktop::initTestCase()
{
    QVERIFY(RealInput::isAvailable());
    m_host.setGeometry(100, 100, 1000, 700);
    QVERIFY(RealInput::showAndActivate(&m_host));
}

void TestWyPopupWidgetDesktop::init()
{
    RealInput::movePointer(kOutside);
}

void TestWyPopupWidgetDesktop::aClickOutsideClosesAPopupAndReportsOnce()
{
    WyPopupWidget popup(&m_host);
    QSignalSpy closed(&popup, &WyPopupWidget::SignalPopupClose);
    for (int round = 1; round <= 2; ++round) {
        QVERIFY(showAt(popup, kPopupArea));
        RealInput::click(kOutside);
        QTRY_COMPARE(closed.count(), round);
        QVERIFY(popup.isHidden());
    }
    QVERIFY(!QApplication::activePopupWidget());
    QCoreApplication::processEvents();
    QCOMPARE(closed.count(), 2);
}

void TestWyPopupWidgetDesktop::aClickInsideDoesNot()
{
    WyPopupWidget popup(&m_host);
    auto* button = new QPushButton(popup.findChild<QWidget*>(QStringLiteral("widget_content")));
    button->setGeometry(20, 20, 100, 40);
    QSignalSpy clicked(button, &QPushButton::clicked);
    QVERIFY(showAt(popup, kPopupArea));
    RealInput::click(kPopupArea.topLeft() + QPoint(70, 40));
    QTRY_COMPARE(clicked.count(), 1);
    RealInput::click(kPopupArea.topLeft() + QPoint(150, 100));
    QVERIFY(popup.isVisible());
}

void TestWyPopupWidgetDesktop::aClickOutsideHidesABox()
{
    WyPopupBox box(&m_host);
    QVERIFY(showAt(box, kPopupArea));
    RealInput::click(kPopupArea.center());
    QVERIFY(box.isVisible());
    RealInput::click(kOutside);
    QTRY_VERIFY(box.isHidden());
}

void TestWyPopupWidgetDesktop::escapeClosesAPopup()
{
    WyPopupWidget popup(&m_host);
    QSignalSpy closed(&popup, &WyPopupWidget::SignalPopupClose);
    QVERIFY(showAt(popup, kPopupArea));
    RealInput::tapKey("Escape");
    QTRY_COMPARE(closed.count(), 1);
    QVERIFY(popup.isHidden());
}

void TestWyPopupWidgetDesktop::leavingAToolTipWindowClosesIt()
{
    WyPopupWidget popup(&m_host);
    popup.setPopup(false);
    QSignalSpy closed(&popup, &WyPopupWidget::SignalPopupClose);
    QVERIFY(showAt(popup, kPopupArea));
    RealInput::movePointer(kPopupArea.center());
    RealInput::movePointer(kOutside);
    QTRY_COMPARE(closed.count(), 1);
    QVERIFY(popup.isHidden());
}

void TestWyPopupWidgetDesktop::comingBackInTimeKeepsItOpen()
{
    WyPopupWidget popup(&m_host);
    popup.setPopup(false);
    QVERIFY(showAt(popup, kPopupArea));
    // A running timer keeps its time when the pointer leaves: there is enough of it to come back.
    RealInput::movePointer(kPopupArea.center());
    QTRY_VERIFY(popup.underMouse());
    popup.StartTimer(60000);
    RealInput::movePointer(kOutside);
    QTRY_VERIFY(!popup.underMouse());
    QVERIFY(closeTimer(popup)->isActive());
    RealInput::movePointer(kPopupArea.center());
    QTRY_VERIFY(!closeTimer(popup)->isActive());
    QVERIFY(popup.isVisible());
}

void TestWyPopupWidgetDesktop::deactivationClosesAToolTipWindow()
{
    WyPopupWidget popup(&m_host);
    popup.setPopup(false);
    QSignalSpy closed(&popup, &WyPopupWidget::SignalPopupClose);
    QVERIFY(showAt(popup, kPopupArea));
    popup.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&popup));
    m_host.activateWindow();
    QTRY_COMPARE(closed.count(), 1);
    QVERIFY(popup.isHidden());
}

void TestWyPopupWidgetDesktop::closingUnderThePointerReportsOnce()
{
    WyPopupWidget popup(&m_host);
    popup.setPopup(false);
    QSignalSpy closed(&popup, &WyPopupWidget::SignalPopupClose);
    QVERIFY(showAt(popup, kPopupArea));
    RealInput::movePointer(kPopupArea.center());
    QTRY_VERIFY(popup.underMouse());
    popup.close();
    QTRY_VERIFY(!popup.underMouse());
    QVERIFY(!closeTimer(popup) || !closeTimer(popup)->isActive());
    QCOMPARE(closed.count(), 1);
}

void TestWyPopupWidgetDesktop::deletionAfterAClickOutsideIsSafe()
{
    QPointer<WyPopupWidget> popup = new WyPopupWidget(&m_host);
    connect(popup, &WyPopupWidget::SignalPopupClose, this, [&] { delete popup; });
    QVERIFY(showAt(*popup, kPopupArea));
    RealInput::click(kOutside);
    QTRY_VERIFY(!popup);
}

QTEST_MAIN(TestWyPopupWidgetDesktop)
#include "tst_wypopupwidget_desktop.moc"
