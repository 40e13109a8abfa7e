#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include "support/Events.h"
#include "support/RealInput.h"

#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace WyTest;
using WyWidgets::WyWaitingSpinnerWidget;

/// The spinner over real windows, with a real pointer.
class TestWyWaitingSpinnerWidgetDesktop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void aDisabledParentTakesNoClicksUntilTheSpinnerStops();
    void aModalSpinnerKeepsClicksFromItsParent();
    void staysCentredWhenItsWindowIsResized();
    void aMinimisedWindowIsNotPaintedWhileTheSpinnerTicks();

private:
    QScopedPointer<QWidget> m_window;
    QPushButton* m_button = nullptr;
};

void TestWyWaitingSpinnerWidgetDesktop::initTestCase()
{
    if (!RealInput::isAvailable())
        QSKIP("needs an X server with the test extension");
}

void TestWyWaitingSpinnerWidgetDesktop::init()
{
    RealInput::movePointer(QPoint(1700, 1000));
    m_window.reset(new QWidget);
    m_window->setGeometry(600, 400, 300, 200);
    m_button = new QPushButton(QStringLiteral("Save"), m_window.data());
    m_button->setGeometry(10, 10, 100, 40);
    QVERIFY(RealInput::showAndActivate(m_window.data()));
}

void TestWyWaitingSpinnerWidgetDesktop::aDisabledParentTakesNoClicksUntilTheSpinnerStops()
{
    QSignalSpy clicks(m_button, &QPushButton::clicked);
    WyWaitingSpinnerWidget spinner(m_window.data(), true, true);
    spinner.start();
    QVERIFY(spinner.isVisible());
    QCOMPARE(spinner.pos(), QPoint(130, 80));
    const QPoint target = m_button->mapToGlobal(QPoint(50, 20));
    RealInput::click(target);
    QTest::qWait(50); // a click that would arrive late
    QCOMPARE(clicks.count(), 0);
    spinner.stop();
    RealInput::click(target);
    QTRY_COMPARE(clicks.count(), 1);
}

void TestWyWaitingSpinnerWidgetDesktop::aModalSpinnerKeepsClicksFromItsParent()
{
    QSignalSpy clicks(m_button, &QPushButton::clicked);
    WyWaitingSpinnerWidget spinner(Qt::WindowModal, m_window.data());
    spinner.start();
    QVERIFY(QTest::qWaitForWindowExposed(&spinner));
    const QPoint target = m_button->mapToGlobal(QPoint(50, 20));
    RealInput::click(target);
    QTest::qWait(50);
    QCOMPARE(clicks.count(), 0);
    spinner.stop();
    QTRY_VERIFY(m_window->isActiveWindow());
    RealInput::click(target);
    QTRY_COMPARE(clicks.count(), 1);
}

void TestWyWaitingSpinnerWidgetDesktop::staysCentredWhenItsWindowIsResized()
{
    WyWaitingSpinnerWidget spinner(m_window.data());
    spinner.start();
    m_window->resize(501, 401);
    QTRY_COMPARE(spinner.pos(), QPoint(250 - 20, 200 - 20));
}

void TestWyWaitingSpinnerWidgetDesktop::aMinimisedWindowIsNotPaintedWhileTheSpinnerTicks()
{
    WyWaitingSpinnerWidget spinner(m_window.data());
    spinner.start();
    EventCounter paints(&spinner, QEvent::Paint);
    QTRY_VERIFY(paints.count() > 2);
    m_window->showMinimized();
    QTRY_VERIFY(m_window->isMinimized());
    QCoreApplication::processEvents();
    auto* timer = spinner.findChild<QTimer*>();
    QSignalSpy ticks(timer, &QTimer::timeout);
    paints.reset();
    QTRY_VERIFY(ticks.count() >= 10);
    QCOMPARE(paints.count(), 0);
    m_window->showNormal();
    QTRY_VERIFY(paints.count() > 2);
}

QTEST_MAIN(TestWyWaitingSpinnerWidgetDesktop)
#include "tst_wywaitingspinnerwidget_desktop.moc"
