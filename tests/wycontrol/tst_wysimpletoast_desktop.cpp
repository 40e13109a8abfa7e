#include "WyWidgets/wycontrol/WySimpleToast.h"

#include "support/RealInput.h"
#include "wycontrol/SimpleToasts.h"

#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QToolTip>
#include <QtTest>

using SimpleToasts::Column;
using SimpleToasts::count;
using SimpleToasts::displayTimer;
using SimpleToasts::kLongMs;
using WyWidgets::WySimpleToast;
namespace RealInput = WyTest::RealInput;

namespace {

constexpr QPoint kFarAway(600, 700);
constexpr int kPatientMs = 20000;

/// A toast on the screen's left side that the window manager has mapped.
QPointer<WySimpleToast> showMapped(Column& column)
{
    QPointer<WySimpleToast> toast = column.show();
    [[maybe_unused]] const bool exposed = QTest::qWaitForWindowExposed(toast);
    return toast;
}

} // namespace

/// The simple toast under a real pointer and window manager.
class TestWySimpleToastDesktop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void standsWhereItIsPlaced();
    void withoutAParentTheWholeDesktopIsTheArea();
    void takesNoActivation();
    void staysAboveItsWindow();
    void hoveringStopsTheTime();
    void hoveringTheOldestWhileAYoungerOneEnds();
    void aClickHidesTheToastAndLaterFreesItsSlot();
    void aClippedTextShowsAsTooltip();
    void aColumnComesAndGoes();
};

void TestWySimpleToastDesktop::initTestCase()
{
    QVERIFY(RealInput::isAvailable());
    // A window manager that has just started places its first windows itself.
    QWidget window;
    QVERIFY(RealInput::showAndActivate(&window));
}

void TestWySimpleToastDesktop::init()
{
    RealInput::movePointer(kFarAway);
}

void TestWySimpleToastDesktop::cleanup()
{
    QCOMPARE(count(), 0);
}

void TestWySimpleToastDesktop::standsWhereItIsPlaced()
{
    Column column(QRect(100, 50, 1000, 700));
    const QPointer<WySimpleToast> toast = showMapped(column);
    QTRY_COMPARE(toast->frameGeometry(), QRect(136, 116, 180, 56));
    QCOMPARE(toast->mapToGlobal(QPoint(0, 0)), QPoint(136, 116));
}

void TestWySimpleToastDesktop::withoutAParentTheWholeDesktopIsTheArea()
{
    const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
    WySimpleToast toast;
    toast.setShowDuration(0);
    toast.setOrientation(WySimpleToast::TOASTR_TOP_RIGHT);
    toast.show();
    QVERIFY(QTest::qWaitForWindowExposed(&toast));
    QTRY_COMPARE(toast.frameGeometry(), QRect(desktop.width() - 180 - 36, 66, 180, 56));
}

void TestWySimpleToastDesktop::takesNoActivation()
{
    Column column;
    QLineEdit edit(&column.window());
    edit.setFocus();
    QVERIFY(RealInput::showAndActivate(&column.window()));
    QVERIFY(showMapped(column));
    RealInput::tapKey("a");
    RealInput::tapKey("b");
    QTRY_COMPARE(edit.text(), QStringLiteral("ab"));
    QCOMPARE(QApplication::activeWindow(), &column.window());
}

void TestWySimpleToastDesktop::staysAboveItsWindow()
{
    Column column;
    QVERIFY(RealInput::showAndActivate(&column.window()));
    const QPointer<WySimpleToast> toast = showMapped(column);
    RealInput::click(column.window().geometry().center());
    column.window().raise();
    column.window().activateWindow();
    QTRY_COMPARE(QApplication::topLevelAt(toast->geometry().center()), toast);
}

void TestWySimpleToastDesktop::hoveringStopsTheTime()
{
    Column column;
    const QPointer<WySimpleToast> toast = showMapped(column);
    QVERIFY(displayTimer(toast)->isActive());
    RealInput::movePointer(toast->geometry().center());
    QTRY_VERIFY(!displayTimer(toast)->isActive());
    RealInput::movePointer(kFarAway);
    QTRY_VERIFY(displayTimer(toast)->isActive());
    QCOMPARE(displayTimer(toast)->interval(), kLongMs);
}

void TestWySimpleToastDesktop::hoveringTheOldestWhileAYoungerOneEnds()
{
    Column column;
    const QPointer<WySimpleToast> oldest = showMapped(column);
    const QPointer<WySimpleToast> younger = showMapped(column);
    RealInput::movePointer(oldest->geometry().center());
    QTRY_VERIFY(!displayTimer(oldest)->isActive());
    younger->setHideDuration(20);
    younger->hideAnimation();
    QTRY_VERIFY(!oldest);
    QVERIFY(younger->isHidden());
    QCOMPARE(count(), 1);
    RealInput::movePointer(kFarAway);
}

void TestWySimpleToastDesktop::aClickHidesTheToastAndLaterFreesItsSlot()
{
    Column column;
    const QPointer<WySimpleToast> toast = showMapped(column);
    RealInput::click(toast->geometry().center());
    QTRY_VERIFY(toast->isHidden());
    QCOMPARE(count(), 1);
    QTRY_VERIFY(displayTimer(toast)->isActive());
    toast->setHideDuration(20);
    displayTimer(toast)->start(1);
    QTRY_VERIFY(!toast);
}

void TestWySimpleToastDesktop::aClippedTextShowsAsTooltip()
{
    const QString text = QStringLiteral("The document has been saved on the server");
    Column column;
    const QPointer<WySimpleToast> toast = showMapped(column);
    toast->setText(text);
    RealInput::movePointer(toast->geometry().center());
    RealInput::movePointer(toast->geometry().center() + QPoint(20, 3));
    QTRY_VERIFY_WITH_TIMEOUT(QToolTip::isVisible(), kPatientMs);
    QCOMPARE(QToolTip::text(), text);
    QToolTip::hideText();
}

void TestWySimpleToastDesktop::aColumnComesAndGoes()
{
    Column column;
    column.make()->setDuration(150);
    QVector<QPointer<WySimpleToast>> toasts;
    for (int i = 0; i < 4; ++i) {
        auto* toast = new WySimpleToast(&column.window());
        toast->setHideDuration(60);
        toast->setText(QString::number(i));
        toast->show();
        toasts += toast;
        QTest::qWait(40);
    }
    for (const QPointer<WySimpleToast>& toast : toasts)
        QTRY_VERIFY_WITH_TIMEOUT(!toast, kPatientMs);
    QCOMPARE(count(), 0);
}

QTEST_MAIN(TestWySimpleToastDesktop)
#include "tst_wysimpletoast_desktop.moc"
