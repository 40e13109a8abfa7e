#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include "support/Contract.h"
#include "support/Painting.h"

#include <QPainter>
#include <QTimer>
#include <QtTest>

#include <cmath>
#include <limits>

using WyWidgets::WyWaitingSpinnerWidget;

namespace {

/// What a spinner is set to, with its defaults; the tests paint the ring from these numbers.
struct Settings
{
    QColor color = Qt::black;
    double roundness = 100.0;
    double minimumTrailOpacity = 3.141592653589793;
    double trailFadePercentage = 80.0;
    int lines = 20;
    int lineLength = 10;
    int lineWidth = 2;
    int innerRadius = 10;
};

double trailAlpha(const Settings& settings, int stepsBehind)
{
    const double floor = settings.minimumTrailOpacity / 100.0;
    const int threshold = int(std::ceil((settings.lines - 1) * settings.trailFadePercentage / 100.0));
    const double full = settings.color.alphaF();
    if (stepsBehind > threshold)
        return floor;
    return qBound(0.0, full - (full - floor) / (threshold + 1) * stepsBehind, 1.0);
}

void paintRing(QPainter& painter, const Settings& settings, int head)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const int centre = settings.innerRadius + settings.lineLength;
    for (int line = 0; line < settings.lines; ++line) {
        const int stepsBehind = (head - line + settings.lines) % settings.lines;
        QColor color = settings.color;
        if (stepsBehind > 0)
            color.setAlphaF(trailAlpha(settings, stepsBehind));
        painter.save();
        painter.translate(centre, centre);
        painter.rotate(line * 360 / double(settings.lines));
        painter.translate(settings.innerRadius, 0);
        painter.setBrush(color);
        painter.drawRoundedRect(QRectF(0, -(settings.lineWidth / 2), settings.lineLength, settings.lineWidth),
                                settings.roundness, settings.roundness, Qt::RelativeSize);
        painter.restore();
    }
}

QImage ring(const Settings& settings, int head, qreal devicePixelRatio = 1.0)
{
    const int side = 2 * (settings.innerRadius + settings.lineLength);
    return WyTest::painted(
        QSize(side, side), [&](QPainter& painter) { paintRing(painter, settings, head); }, devicePixelRatio);
}

void apply(WyWaitingSpinnerWidget& spinner, const Settings& settings)
{
    spinner.setColor(settings.color);
    spinner.setRoundness(settings.roundness);
    spinner.setMinimumTrailOpacity(settings.minimumTrailOpacity);
    spinner.setTrailFadePercentage(settings.trailFadePercentage);
    spinner.setNumberOfLines(settings.lines);
    spinner.setLineLength(settings.lineLength);
    spinner.setLineWidth(settings.lineWidth);
    spinner.setInnerRadius(settings.innerRadius);
}

QTimer* timerOf(const WyWaitingSpinnerWidget& spinner)
{
    return spinner.findChild<QTimer*>();
}

} // namespace

class TestWyWaitingSpinnerWidget : public QObject
{
    Q_OBJECT

private slots:
    void registersItsSlotsOnly();
    void startsHiddenStoppedAndWithTheDefaults();
    void theSecondConstructorMakesAFramelessModalWindow();
    void settersStoreTheirValues();
    void roundnessStaysWithinAHundredPercent_data();
    void roundnessStaysWithinAHundredPercent();
    void theSizeFollowsRadiusAndLength_data();
    void theSizeFollowsRadiusAndLength();
    void theIntervalFollowsLinesAndRate_data();
    void theIntervalFollowsLinesAndRate();
    void ratesThatMeanNothingKeepTheLastInterval();
    void startShowsSpinsAndDisablesTheParentIfAsked();
    void stopHidesAndEnablesTheParentAlsoWhenNeverStarted();
    void startingAgainKeepsTheHeadWhereItIs();
    void stoppingPutsTheHeadBack();
    void theHeadGoesRound();
    void theTimerDrivesTheHead();
    void changingTheNumberOfLinesPutsTheHeadBack();
    void withoutLinesNothingIsPainted();
    void eachHalfOfTheCentreIsTruncated();
    void staysWhereItIsWithoutCentring();
    void paintingCentresAgain();
    void deletingWhileSpinningEnablesTheParent();
    void survivesAParentThatDies();
    void survivesBeingDeletedByItsParentsHandler();
};

void TestWyWaitingSpinnerWidget::registersItsSlotsOnly()
{
    WY_COMPARE_CONTRACT(WyWaitingSpinnerWidget, {}, {"start()", "stop()", "rotate()"}, {});
}

void TestWyWaitingSpinnerWidget::startsHiddenStoppedAndWithTheDefaults()
{
    QWidget parent;
    WyWaitingSpinnerWidget spinner(&parent);
    QVERIFY(spinner.isHidden());
    QVERIFY(!spinner.isWindow());
    QVERIFY(!spinner.isSpinning());
    QCOMPARE(spinner.color(), QColor(Qt::black));
    QCOMPARE(spinner.roundness(), 100.0);
    QCOMPARE(spinner.minimumTrailOpacity(), 3.141592653589793);
    QCOMPARE(spinner.trailFadePercentage(), 80.0);
    QCOMPARE(spinner.revolutionsPersSecond(), 1.5707963267948966);
    QCOMPARE(spinner.numberOfLines(), 20);
    QCOMPARE(spinner.lineLength(), 10);
    QCOMPARE(spinner.lineWidth(), 2);
    QCOMPARE(spinner.innerRadius(), 10);
    QCOMPARE(spinner.size(), QSize(40, 40));
    QCOMPARE(spinner.minimumSize(), spinner.maximumSize());
    QTimer* timer = timerOf(spinner);
    QVERIFY(timer);
    QVERIFY(!timer->isActive());
    QCOMPARE(timer->interval(), 31);
}

void TestWyWaitingSpinnerWidget::theSecondConstructorMakesAFramelessModalWindow()
{
    QWidget parent;
    parent.resize(400, 300);
    WyWaitingSpinnerWidget spinner(Qt::WindowModal, &parent);
    QVERIFY(spinner.isWindow());
    QCOMPARE(spinner.windowType(), Qt::Dialog);
    QVERIFY(spinner.windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(spinner.windowModality(), Qt::WindowModal);
    QVERIFY(spinner.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(spinner.isHidden());
    spinner.start();
    QCOMPARE(spinner.pos(), QPoint(180, 130)); // a child's numbers, taken as screen coordinates
    QVERIFY(parent.isEnabled());
}

void TestWyWaitingSpinnerWidget::settersStoreTheirValues()
{
    WyWaitingSpinnerWidget spinner;
    const Settings settings{QColor(1, 2, 3, 4), 12.5, -7.0, 250.0, 7, 8, 9, 11};
    apply(spinner, settings);
    spinner.setRevolutionsPerSecond(-2.5);
    QCOMPARE(spinner.color(), settings.color);
    QCOMPARE(spinner.roundness(), settings.roundness);
    QCOMPARE(spinner.minimumTrailOpacity(), settings.minimumTrailOpacity);
    QCOMPARE(spinner.trailFadePercentage(), settings.trailFadePercentage);
    QCOMPARE(spinner.revolutionsPersSecond(), -2.5);
    QCOMPARE(spinner.numberOfLines(), settings.lines);
    QCOMPARE(spinner.lineLength(), settings.lineLength);
    QCOMPARE(spinner.lineWidth(), settings.lineWidth);
    QCOMPARE(spinner.innerRadius(), settings.innerRadius);
}

void TestWyWaitingSpinnerWidget::roundnessStaysWithinAHundredPercent_data()
{
    QTest::addColumn<double>("asked");
    QTest::addColumn<double>("stored");
    QTest::newRow("above") << 150.0 << 100.0;
    QTest::newRow("below") << -5.0 << 0.0;
    QTest::newRow("upper end") << 100.0 << 100.0;
    QTest::newRow("lower end") << 0.0 << 0.0;
    QTest::newRow("within") << 33.3 << 33.3;
}

void TestWyWaitingSpinnerWidget::roundnessStaysWithinAHundredPercent()
{
    QFETCH(double, asked);
    WyWaitingSpinnerWidget spinner;
    spinner.setRoundness(asked);
    QTEST(spinner.roundness(), "stored");
}

void TestWyWaitingSpinnerWidget::theSizeFollowsRadiusAndLength_data()
{
    QTest::addColumn<int>("innerRadius");
    QTest::addColumn<int>("lineLength");
    QTest::addColumn<int>("side");
    QTest::newRow("larger") << 20 << 15 << 70;
    QTest::newRow("no radius") << 0 << 7 << 14;
    QTest::newRow("nothing") << 0 << 0 << 0;
    QTest::newRow("less than nothing") << -20 << 5 << 0;
    QTest::newRow("more than a widget can be")
        << std::numeric_limits<int>::max() << std::numeric_limits<int>::max() << QWIDGETSIZE_MAX - 1;
}

void TestWyWaitingSpinnerWidget::theSizeFollowsRadiusAndLength()
{
    QFETCH(int, innerRadius);
    QFETCH(int, lineLength);
    QFETCH(int, side);
    WyWaitingSpinnerWidget spinner;
    spinner.setInnerRadius(innerRadius);
    spinner.setLineLength(lineLength);
    spinner.setLineWidth(1000);
    QCOMPARE(spinner.minimumSize(), QSize(side, side));
    QCOMPARE(spinner.maximumSize(), QSize(side, side));
}

void TestWyWaitingSpinnerWidget::theIntervalFollowsLinesAndRate_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("interval");
    QTest::newRow("truncated") << 12 << 1.5707963267948966 << 53;
    QTest::newRow("one a second") << 1 << 1.0 << 1000;
    QTest::newRow("faster than a millisecond") << 2000 << 1.0 << 0;
    QTest::newRow("slower than an int holds") << 1 << 1e-9 << std::numeric_limits<int>::max();
    QTest::newRow("both negative") << -10 << -1.0 << 100;
    QTest::newRow("endless") << 10 << std::numeric_limits<double>::infinity() << 0;
}

void TestWyWaitingSpinnerWidget::theIntervalFollowsLinesAndRate()
{
    QFETCH(int, lines);
    QFETCH(double, rate);
    WyWaitingSpinnerWidget spinner;
    spinner.start();
    spinner.setNumberOfLines(lines);
    spinner.setRevolutionsPerSecond(rate);
    QTEST(timerOf(spinner)->interval(), "interval");
    QVERIFY(timerOf(spinner)->isActive());
}

void TestWyWaitingSpinnerWidget::ratesThatMeanNothingKeepTheLastInterval()
{
    WyWaitingSpinnerWidget spinner;
    spinner.setNumberOfLines(0);
    QCOMPARE(timerOf(spinner)->interval(), 31);
    spinner.setNumberOfLines(10);
    spinner.setRevolutionsPerSecond(1.0);
    for (double rate : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        spinner.setRevolutionsPerSecond(rate);
        QCOMPARE(timerOf(spinner)->interval(), 100);
    }
    spinner.setRevolutionsPerSecond(2.0);
    spinner.setNumberOfLines(-10);
    QCOMPARE(timerOf(spinner)->interval(), 50);
}

void TestWyWaitingSpinnerWidget::startShowsSpinsAndDisablesTheParentIfAsked()
{
    QWidget parent;
    WyWaitingSpinnerWidget plain(&parent, true, false);
    plain.start();
    QVERIFY(parent.isEnabled());
    WyWaitingSpinnerWidget spinner(&parent, true, true);
    spinner.start();
    QVERIFY(!parent.isEnabled());
    QVERIFY(!spinner.isHidden());
    QVERIFY(spinner.isSpinning());
    QVERIFY(timerOf(spinner)->isActive());
}

void TestWyWaitingSpinnerWidget::stopHidesAndEnablesTheParentAlsoWhenNeverStarted()
{
    QWidget parent;
    parent.setEnabled(false);
    WyWaitingSpinnerWidget plain(&parent, true, false);
    plain.show();
    plain.stop();
    QVERIFY(plain.isHidden());
    QVERIFY(!parent.isEnabled());
    WyWaitingSpinnerWidget spinner(&parent, true, true);
    spinner.show();
    spinner.stop();
    QVERIFY(spinner.isHidden());
    QVERIFY(parent.isEnabled());
    spinner.start();
    spinner.stop();
    QVERIFY(!spinner.isSpinning());
    QVERIFY(!timerOf(spinner)->isActive());
    QVERIFY(parent.isEnabled());
}

void TestWyWaitingSpinnerWidget::startingAgainKeepsTheHeadWhereItIs()
{
    WyWaitingSpinnerWidget spinner;
    spinner.start();
    spinner.rotate();
    spinner.start();
    WY_COMPARE_PICTURES(WyTest::picture(&spinner), ring(Settings(), 1));
}

void TestWyWaitingSpinnerWidget::stoppingPutsTheHeadBack()
{
    WyWaitingSpinnerWidget spinner;
    spinner.rotate();
    spinner.rotate();
    spinner.stop(); // never started: the head stays
    WY_COMPARE_PICTURES(WyTest::picture(&spinner), ring(Settings(), 2));
    spinner.start(); // a start puts it back too
    WY_COMPARE_PICTURES(WyTest::picture(&spinner), ring(Settings(), 0));
    spinner.rotate();
    spinner.stop();
    WY_COMPARE_PICTURES(WyTest::picture(&spinner), ring(Settings(), 0));
}

void TestWyWaitingSpinnerWidget::theHeadGoesRound()
{
    WyWaitingSpinnerWidget spinner;
    for (int step = 0; step <= 20; ++step) {
        WY_COMPARE_PICTURES(WyTest::picture(&spinner), ring(Settings(), step % 20));
        spinner.rotate();
    }
}

void TestWyWaitingSpinnerWidget::theTimerDrivesTheHead()
{
    WyWaitingSpinnerWidget spinner;
    spinner.start();
    timerOf(spinner)->setInterval(0);
    const QImage atRest = ring(Settings(), 0);
    QTRY_VERIFY(!WyTest::difference(WyTest::picture(&spinner), atRest).isEmpty());
    QVERIFY(QObject::disconnect(timerOf(spinner), SIGNAL(timeout()), &spinner, SLOT(rotate())));
}

void TestWyWaitingSpinnerWidget::changingTheNumberOfLinesPutsTheHeadBack()
{
    WyWaitingSpinnerWidget spinner;
    spinner.rotate();
    spinner.setNumberOfLines(20);
    WY_COMPARE_PICTURES(WyTest::picture(&spinner), ring(Settings(), 0));
}

void TestWyWaitingSpinnerWidget::withoutLinesNothingIsPainted()
{
    for (int lines : {0, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        WyWaitingSpinnerWidget spinner;
        spinner.setNumberOfLines(lines);
        WY_COMPARE_PICTURES(WyTest::picture(&spinner), WyTest::painted(QSize(40, 40), [](QPainter&) {}));
        if (lines > 0)
            continue;
        spinner.rotate();
        spinner.rotate();
        WY_COMPARE_PICTURES(WyTest::picture(&spinner), WyTest::painted(QSize(40, 40), [](QPainter&) {}));
    }
}

void TestWyWaitingSpinnerWidget::eachHalfOfTheCentreIsTruncated()
{
    QWidget parent;
    parent.resize(101, 61);
    WyWaitingSpinnerWidget spinner(&parent);
    spinner.setInnerRadius(4);
    spinner.setLineLength(3);
    spinner.start();
    QCOMPARE(spinner.pos(), QPoint(50 - 7, 30 - 7));
    spinner.stop();
    spinner.setFixedSize(15, 15);
    spinner.start();
    QCOMPARE(spinner.pos(), QPoint(50 - 7, 30 - 7)); // (101 - 15) / 2 is 43, (61 - 15) / 2 is 23
    spinner.setFixedSize(15, 16);
    parent.resize(100, 60);
    spinner.start();
    QCOMPARE(spinner.pos(), QPoint(50 - 7, 30 - 8)); // (100 - 15) / 2 would be 42
}

void TestWyWaitingSpinnerWidget::staysWhereItIsWithoutCentring()
{
    QWidget parent;
    parent.resize(200, 200);
    WyWaitingSpinnerWidget spinner(&parent, false);
    spinner.move(3, 5);
    spinner.start();
    WyTest::picture(&spinner);
    QCOMPARE(spinner.pos(), QPoint(3, 5));
    WyWaitingSpinnerWidget window;
    window.move(7, 9);
    window.start();
    WyTest::picture(&window);
    QCOMPARE(window.pos(), QPoint(7, 9));
}

void TestWyWaitingSpinnerWidget::paintingCentresAgain()
{
    QWidget parent;
    parent.resize(200, 100);
    WyWaitingSpinnerWidget spinner(&parent);
    spinner.start();
    QCOMPARE(spinner.pos(), QPoint(80, 30));
    parent.resize(300, 200);
    QCOMPARE(spinner.pos(), QPoint(80, 30));
    WyTest::picture(&spinner);
    QCOMPARE(spinner.pos(), QPoint(130, 80));
}

void TestWyWaitingSpinnerWidget::deletingWhileSpinningEnablesTheParent()
{
    QWidget parent;
    auto* spinner = new WyWaitingSpinnerWidget(&parent, true, true);
    spinner->start();
    delete spinner;
    QVERIFY(parent.isEnabled());
    parent.setEnabled(false);
    delete new WyWaitingSpinnerWidget(&parent, true, true); // one that does not spin leaves the parent alone
    QVERIFY(!parent.isEnabled());
}

void TestWyWaitingSpinnerWidget::survivesAParentThatDies()
{
    auto* parent = new QWidget;
    (new WyWaitingSpinnerWidget(parent, true, true))->start();
    QPointer<WyWaitingSpinnerWidget> window = new WyWaitingSpinnerWidget(Qt::WindowModal, parent, true, true);
    window->start();
    delete parent;
    QVERIFY(!window);
}

void TestWyWaitingSpinnerWidget::survivesBeingDeletedByItsParentsHandler()
{
    struct Parent : QWidget
    {
        WyWaitingSpinnerWidget* spinner = nullptr;
        void changeEvent(QEvent* event) override
        {
            if (event->type() == QEvent::EnabledChange)
                delete std::exchange(spinner, nullptr);
        }
    };
    for (bool stopIt : {false, true}) {
        Parent parent;
        parent.spinner = new WyWaitingSpinnerWidget(&parent, true, true);
        if (stopIt)
            parent.setAttribute(Qt::WA_Disabled);
        stopIt ? parent.spinner->stop() : parent.spinner->start();
        QVERIFY(!parent.spinner);
    }
}

QTEST_MAIN(TestWyWaitingSpinnerWidget)
#include "tst_wywaitingspinnerwidget.moc"
