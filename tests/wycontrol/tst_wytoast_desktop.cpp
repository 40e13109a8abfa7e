#include "WyWidgets/wycontrol/WyToast.h"

#include "WyWidgets/wycontrol/WyToastWidget.h"
#include "support/LastWindow.h"
#include "support/RealInput.h"
#include "wycontrol/ToastSupport.h"

#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QtTest>

using WyTest::centreOf;
using WyTest::ToastParts;
using WyWidgets::WyToast;
using WyWidgets::WyToastWidget;
namespace RealInput = WyTest::RealInput;

namespace {

constexpr QPoint kFarAway(900, 900);
constexpr QSize kBody(300, 80);
constexpr int kLongMs = 60000;
constexpr int kPatientMs = 20000;

/// A window that takes keys; it becomes the active one.
struct Host
{
    Host()
    {
        window.setGeometry(300, 200, 500, 400);
        edit.setFocus();
    }

    bool activate() { return RealInput::showAndActivate(&window); }

    QWidget window;
    QLineEdit edit{&window};
};

/// A toast that stays, fades quickly and is on screen for good.
QPointer<WyToast> showMapped(QWidget* parent, int durationMs = 0)
{
    QPointer<WyToast> toast = new WyToast(parent);
    toast->setTitle(QStringLiteral("Title"));
    toast->setFixedSize(kBody);
    toast->setDuration(durationMs);
    toast->setFadeInDuration(20);
    toast->setFadeOutDuration(20);
    toast->show();
    [[maybe_unused]] const bool exposed = QTest::qWaitForWindowExposed(toast);
    return toast;
}

} // namespace

/// The toast under a real pointer, keyboard and window manager.
class TestWyToastDesktop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { RealInput::movePointer(kFarAway); }
    void cleanup() { WyTest::resetToasts(); }

    void standsWhereItBelongs();
    void stacksUpwards();
    void takesNoFocus_data();
    void takesNoFocus();
    void staysAboveOtherWindows();
    void hoveringStopsTheTimeAndLeavingStartsItAnew();
    void withoutResetHoveringChangesNothing();
    void theCloseButtonEndsIt();
    void escapeEndsIt();
    void theWindowManagerMayCloseIt();
    void aQueueComesAndGoes();
    void isNoLastWindow();
    void aTextToastStandsAtItsPoint();
};

void TestWyToastDesktop::initTestCase()
{
    QVERIFY(RealInput::isAvailable());
    // A window manager that has just started places its first windows itself.
    Host host;
    QVERIFY(host.activate());
}

void TestWyToastDesktop::standsWhereItBelongs()
{
    Host host;
    QVERIFY(host.activate());
    const QPointer<WyToast> toast = showMapped(&host.window);
    QTRY_COMPARE(toast->frameGeometry(), QRect(1595, 950, 310, 90));
    QTRY_COMPARE(toast->mapToGlobal(QPoint()), QPoint(1595, 950));
    // The X server agrees: that is where the pointer finds it.
    QVERIFY(RealInput::hover(QPoint(1600, 955)));
    QVERIFY(RealInput::hover(QPoint(1899, 1034)));
}

void TestWyToastDesktop::stacksUpwards()
{
    const QPointer<WyToast> first = showMapped(nullptr);
    const QPointer<WyToast> second = showMapped(nullptr);
    const QPointer<WyToast> third = showMapped(nullptr);
    QTRY_COMPARE(second->mapToGlobal(QPoint()), QPoint(1595, 860));
    QTRY_COMPARE(third->mapToGlobal(QPoint()), QPoint(1595, 770));
    QSignalSpy closed(second, &WyToast::closed);
    second->hide();
    QTRY_COMPARE(third->mapToGlobal(QPoint()), QPoint(1595, 860));
    QCOMPARE(closed.count(), 1);
    QTRY_VERIFY(!second);
}

void TestWyToastDesktop::takesNoFocus_data()
{
    QTest::addColumn<bool>("hasParent");
    QTest::newRow("with a parent") << true;
    QTest::newRow("without one") << false;
}

void TestWyToastDesktop::takesNoFocus()
{
    QFETCH(const bool, hasParent);
    Host host;
    QVERIFY(host.activate());
    for (int i = 0; i < 3; ++i)
        QVERIFY(showMapped(hasParent ? &host.window : nullptr));
    RealInput::tapKey("a");
    RealInput::tapKey("b");
    QTRY_COMPARE(host.edit.text(), QStringLiteral("ab"));
    QCOMPARE(QApplication::activeWindow(), &host.window);
}

void TestWyToastDesktop::staysAboveOtherWindows()
{
    Host host;
    host.window.setGeometry(1000, 600, 900, 450);
    QVERIFY(host.activate());
    const QPointer<WyToast> toast = showMapped(nullptr);
    RealInput::click(QPoint(1100, 800));
    host.window.raise();
    host.window.activateWindow();
    QTRY_VERIFY(host.window.isActiveWindow());
    QVERIFY(RealInput::hover(centreOf(toast)));
    QTRY_VERIFY(toast->underMouse());
    RealInput::movePointer(kFarAway);
}

void TestWyToastDesktop::hoveringStopsTheTimeAndLeavingStartsItAnew()
{
    const QPointer<WyToast> toast = showMapped(nullptr, kLongMs);
    const ToastParts parts(toast);
    QVERIFY(parts.durationTimer->isActive());
    QTRY_VERIFY(parts.chunk->width() < kBody.width());
    QVERIFY(RealInput::hover(centreOf(parts.title)));
    QTRY_VERIFY(!parts.durationTimer->isActive());
    QVERIFY(!parts.barTimer->isActive());
    QCOMPARE(parts.chunk->width(), kBody.width());
    // From one part of the toast to another the time does not run.
    QVERIFY(RealInput::hover(centreOf(parts.closeButton)));
    QVERIFY(!parts.durationTimer->isActive());
    RealInput::movePointer(kFarAway);
    QTRY_VERIFY(parts.durationTimer->isActive());
    QCOMPARE(parts.durationTimer->interval(), kLongMs);
    QVERIFY(parts.barTimer->isActive());
}

void TestWyToastDesktop::withoutResetHoveringChangesNothing()
{
    QPointer<WyToast> toast = new WyToast;
    toast->setFixedSize(kBody);
    toast->setResetDurationOnHover(false);
    toast->setFadeOutDuration(20);
    toast->setDuration(1500);
    toast->show();
    QVERIFY(QTest::qWaitForWindowExposed(toast));
    QSignalSpy closed(toast, &WyToast::closed);
    QVERIFY(RealInput::hover(centreOf(toast)));
    // It ends under the pointer.
    QTRY_COMPARE_WITH_TIMEOUT(closed.count(), 1, kPatientMs);
}

void TestWyToastDesktop::theCloseButtonEndsIt()
{
    Host host;
    QVERIFY(host.activate());
    const QPointer<WyToast> toast = showMapped(&host.window, kLongMs);
    QSignalSpy closed(toast, &WyToast::closed);
    const QPoint button = centreOf(ToastParts(toast).closeButton);
    QVERIFY(RealInput::hover(button));
    RealInput::click(button);
    QTRY_VERIFY(!toast);
    QCOMPARE(closed.count(), 1);
    QCOMPARE(WyToast::getCount(), 0);
    // The keys still go to the window.
    QTRY_VERIFY(host.window.isActiveWindow());
    RealInput::tapKey("c");
    QTRY_COMPARE(host.edit.text(), QStringLiteral("c"));
}

void TestWyToastDesktop::escapeEndsIt()
{
    const QPointer<WyToast> toast = showMapped(nullptr, kLongMs);
    QSignalSpy closed(toast, &WyToast::closed);
    toast->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(toast));
    RealInput::tapKey("Escape");
    QTRY_VERIFY(!toast);
    QCOMPARE(closed.count(), 1);
    QCOMPARE(WyToast::getCount(), 0);
}

void TestWyToastDesktop::theWindowManagerMayCloseIt()
{
    Host host;
    QVERIFY(host.activate());
    const QPointer<WyToast> toast = showMapped(&host.window, kLongMs);
    const QPointer<WyToast> other = showMapped(&host.window, kLongMs);
    QSignalSpy closed(toast, &WyToast::closed);
    toast->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(toast));
    RealInput::key("Alt_L", true);
    RealInput::tapKey("F4");
    RealInput::key("Alt_L", false);
    QTRY_VERIFY(!toast);
    QCOMPARE(closed.count(), 1);
    QCOMPARE(WyToast::getVisibleCount(), 1);
    QVERIFY(other->isVisible());
    QTRY_COMPARE(other->mapToGlobal(QPoint()), QPoint(1595, 950));
}

void TestWyToastDesktop::aQueueComesAndGoes()
{
    QStringList closed;
    QVector<QPointer<WyToast>> toasts;
    for (int i = 0; i < 7; ++i) {
        auto* toast = new WyToast;
        const QString name = QString::number(i);
        toast->setTitle(name);
        toast->setDuration(60);
        toast->setFadeInDuration(20);
        toast->setFadeOutDuration(20);
        connect(toast, &WyToast::closed, this, [&closed, name] { closed += name; });
        toast->show();
        toasts += toast;
    }
    QCOMPARE(WyToast::getVisibleCount(), 3);
    QCOMPARE(WyToast::getQueuedCount(), 4);
    for (const QPointer<WyToast>& toast : toasts)
        QTRY_VERIFY_WITH_TIMEOUT(!toast, kPatientMs);
    QCOMPARE(closed.size(), 7);
    QCOMPARE(closed.removeDuplicates(), 0);
    QCOMPARE(WyToast::getCount(), 0);
}

void TestWyToastDesktop::isNoLastWindow()
{
    qApp->setQuitOnLastWindowClosed(false);
    const auto restore = qScopeGuard([] { qApp->setQuitOnLastWindowClosed(true); });
    QCOMPARE(WyTest::lastWindowClosings([] {
                 const QPointer<WyToast> toast = showMapped(nullptr);
                 toast->hide();
                 QTRY_VERIFY(!toast);
             }),
             0);
    // With a toast on screen, the window beside it is still the last one.
    QVERIFY(WyTest::lastWindowClosings([] {
                Host host;
                QVERIFY(host.activate());
                QVERIFY(showMapped(nullptr));
                host.window.close();
            }) > 0);
}

void TestWyToastDesktop::aTextToastStandsAtItsPoint()
{
    const QPoint point(400, 300);
    WyToastWidget::ShowToastText(point, QStringLiteral("Copied"), 1500);
    QPointer<QWidget> toast;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (qobject_cast<WyToastWidget*>(window))
            toast = window;
    }
    QVERIFY(toast);
    QVERIFY(QTest::qWaitForWindowExposed(toast));
    QCOMPARE(toast->frameGeometry().topLeft(), point);
    QVERIFY(RealInput::hover(point + QPoint(1, 1)));
    QTRY_VERIFY(!toast);
}

QTEST_MAIN(TestWyToastDesktop)
#include "tst_wytoast_desktop.moc"
