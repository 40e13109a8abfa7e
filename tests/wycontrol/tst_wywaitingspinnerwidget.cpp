#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include "support/Contract.h"
#include "support/Events.h"
#include "support/Painting.h"
#include "support/UnseenSteps.h"

#include <QAccessible>
#include <QPainter>
#include <QRandomGenerator>
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
    const double alpha =
        stepsBehind > threshold ? floor : full - (full - floor) / (threshold + 1) * stepsBehind;
    return qBound(0.0, alpha, 1.0);
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

/// Paints a ring at every frame anew: what a spinner must look like.
class PlainRing : public QWidget
{
public:
    explicit PlainRing(const Settings& settings) : m_settings(settings)
    {
        const int side = 2 * (settings.innerRadius + settings.lineLength);
        setFixedSize(side, side);
    }
    void setHead(int head) { m_head = head; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        paintRing(painter, m_settings, m_head);
    }

private:
    Settings m_settings;
    int m_head = 0;
};

Settings randomSettings(QRandomGenerator& random)
{
    const auto percent = [&random] {
        return random.bounded(140.0) - 20.0;
    };
    Settings settings;
    settings.color = QColor::fromRgba(random.generate());
    settings.roundness = qBound(0.0, percent(), 100.0);
    settings.minimumTrailOpacity = percent();
    settings.trailFadePercentage = percent();
    settings.lines = random.bounded(1, 26);
    settings.lineLength = random.bounded(1, 20);
    settings.lineWidth = random.bounded(1, 9);
    settings.innerRadius = random.bounded(0, 16);
    return settings;
}

/// A picture of whatever the parent shows below (noise, opaque or not) with its child at the given place.
QImage over(const QImage& ground, QWidget* child, QPoint position, qreal devicePixelRatio)
{
    QImage image = ground.copy();
    image.setDevicePixelRatio(devicePixelRatio);
    child->render(&image, position, QRegion(), QWidget::DrawChildren);
    return image;
}

QImage noise(QRandomGenerator& random, QSize size, QImage::Format format)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qPremultiply(random.generate()));
    }
    return image.convertToFormat(format);
}

} // namespace

class TestWyWaitingSpinnerWidget : public QObject
{
    Q_OBJECT

private slots:
    void registersItsSlotsOnly();
    void tellsThatItIsAnAnimation();
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
    void withoutAParentNothingIsDisabled();
    void stopHidesAndEnablesTheParentAlsoWhenNeverStarted();
    void startingAgainKeepsTheHeadWhereItIs();
    void stoppingPutsTheHeadBack();
    void theHeadGoesRound();
    void everyFrameEqualsPlainPainting_data();
    void everyFrameEqualsPlainPainting();
    void everySettingShowsInTheNextFrame();
    void settingsOfTheLookWaitForTheNextStep();
    void everyPlaceOnTheDeviceHasItsOwnFrames();
    void linesOfAnyWidthEqualPlainPainting();
    void aRingTooLargeToKeepIsPaintedPlainly();
    void aPainterThatNoPictureFitsPaintsPlainly();
    void devicesOfAnotherDepthArePaintedPlainly_data();
    void devicesOfAnotherDepthArePaintedPlainly();
    void aStepPaintsNothingThatNobodySees();
    void theTimerDrivesTheHead();
    void changingTheNumberOfLinesPutsTheHeadBack();
    void withoutLinesNothingIsPainted();
    void aCarelessNumberOfLinesPaintsNothing();
    void eachHalfOfTheCentreIsTruncated();
    void staysWhereItIsWithoutCentring();
    void paintingCentresAgain();
    void deletingWhileSpinningEnablesTheParent();
    void survivesAParentThatDies();
    void survivesBeingDeletedByItsParentsHandler();
    void restsWhenItsTimerIsDeleted();
    void aHandlerOfTheParentMayStopItAgain_data();
    void aHandlerOfTheParentMayStopItAgain();
    void aHandlerOfTheParentMayStartItAgain();
};

void TestWyWaitingSpinnerWidget::registersItsSlotsOnly()
{
    WY_COMPARE_CONTRACT(WyWaitingSpinnerWidget, {}, {"start()", "stop()", "rotate()"}, {});
}

void TestWyWaitingSpinnerWidget::tellsThatItIsAnAnimation()
{
    WyWaitingSpinnerWidget spinner;
    QCOMPARE(QAccessible::queryAccessibleInterface(&spinner)->role(), QAccessible::Animation);
}

void TestWyWaitingSpinnerWidget::startsHiddenStoppedAndWithTheDefaults()
{
    QWidget parent;
    WyWaitingSpinnerWidget spinner(&parent);
    QVERIFY(spinner.isHidden());
    QVERIFY(!spinner.isWindow());
    QVERIFY(!spinner.isSpinning());
    QCOMPARE(spinner.accessibleName(), QStringLiteral("Busy"));
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

void TestWyWaitingSpinnerWidget::withoutAParentNothingIsDisabled()
{
    WyWaitingSpinnerWidget spinner(nullptr, true, true);
    spinner.start();
    QVERIFY(spinner.isSpinning());
    QVERIFY(spinner.isEnabled());
    spinner.stop();
    QVERIFY(!spinner.isSpinning());
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
    for (int step = 0; step < 19 + 3; ++step) // round once more, unseen
        spinner.rotate();
    WY_COMPARE_PICTURES(WyTest::picture(&spinner), ring(Settings(), 3));
}

void TestWyWaitingSpinnerWidget::everyFrameEqualsPlainPainting_data()
{
    QTest::addColumn<qreal>("devicePixelRatio");
    QTest::addColumn<QImage::Format>("format");
    for (qreal ratio : {1.0, 1.25, 1.5, 2.0}) {
        QTest::addRow("%g, translucent", ratio) << ratio << QImage::Format_ARGB32_Premultiplied;
        QTest::addRow("%g, opaque", ratio) << ratio << QImage::Format_RGB32;
    }
}

void TestWyWaitingSpinnerWidget::everyFrameEqualsPlainPainting()
{
    QFETCH(qreal, devicePixelRatio);
    QFETCH(QImage::Format, format);
    QRandomGenerator random(20);
    const QImage ground = noise(random, QSize(76, 76) * devicePixelRatio, format);
    for (int round = 0; round < 25; ++round) {
        const Settings settings = randomSettings(random);
        // Away from the origin Qt's own coordinates are rounded elsewhere: the edge of a bar may differ by
        // that.
        const QPoint position = QPoint(random.bounded(4), random.bounded(4)) * (round % 2);
        const int tolerance = position.isNull() ? 0 : 8;
        WyWaitingSpinnerWidget spinner;
        apply(spinner, settings);
        PlainRing plain(settings);
        // The second turn shows the frames that the first has left behind.
        for (int step = 0; step < 2 * settings.lines; ++step) {
            plain.setHead(step % settings.lines);
            const QString different =
                WyTest::difference(over(ground, &spinner, position, devicePixelRatio),
                                   over(ground, &plain, position, devicePixelRatio), tolerance);
            QVERIFY2(different.isEmpty(), qPrintable(different));
            spinner.rotate();
        }
    }
}

void TestWyWaitingSpinnerWidget::everySettingShowsInTheNextFrame()
{
    WyWaitingSpinnerWidget spinner;
    Settings settings;
    const auto compare = [&](qreal ratio) {
        WY_COMPARE_PICTURES(WyTest::picture(&spinner, ratio), ring(settings, 0, ratio));
    };
    compare(1.0);
    spinner.setColor(settings.color = QColor(200, 30, 40, 180));
    compare(1.0);
    spinner.setRoundness(settings.roundness = 20.0);
    compare(1.0);
    spinner.setMinimumTrailOpacity(settings.minimumTrailOpacity = 40.0);
    compare(1.0);
    spinner.setTrailFadePercentage(settings.trailFadePercentage = 30.0);
    compare(1.0);
    spinner.setNumberOfLines(settings.lines = 15);
    compare(1.0);
    spinner.setLineWidth(settings.lineWidth = 4);
    compare(1.0);
    spinner.setLineLength(settings.lineLength = 8);
    spinner.setInnerRadius(settings.innerRadius = 12); // the same size as before
    compare(1.0);
    spinner.setColor(settings.color = Qt::white); // with pixels of nothing but ones
    compare(1.0);
    compare(2.0);
    compare(1.0);
}

void TestWyWaitingSpinnerWidget::settingsOfTheLookWaitForTheNextStep()
{
    WyWaitingSpinnerWidget spinner;
    spinner.start();
    timerOf(spinner)->stop();
    QVERIFY(QTest::qWaitForWindowExposed(&spinner));
    QCoreApplication::processEvents();
    const WyTest::EventCounter paints(&spinner, QEvent::Paint);
    spinner.setColor(Qt::red);
    spinner.setRoundness(10.0);
    spinner.setMinimumTrailOpacity(50.0);
    spinner.setTrailFadePercentage(20.0);
    spinner.setLineWidth(5);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count(), 0);
    spinner.rotate();
    QTRY_COMPARE(paints.count(), 1);
}

void TestWyWaitingSpinnerWidget::everyPlaceOnTheDeviceHasItsOwnFrames()
{
    const Settings settings;
    WyWaitingSpinnerWidget spinner;
    PlainRing plain(settings);
    const QImage ground(QSize(66, 66), QImage::Format_ARGB32_Premultiplied);
    // At this ratio every second place begins in the middle of a device pixel.
    for (int place : {0, 1, 2, 1, 0, 3}) {
        QImage clear = ground;
        clear.fill(Qt::transparent);
        const QPoint position(place, 0);
        const QString different =
            WyTest::difference(over(clear, &spinner, position, 1.5), over(clear, &plain, position, 1.5), 8);
        QVERIFY2(different.isEmpty(), qPrintable(different));
    }
}

void TestWyWaitingSpinnerWidget::linesOfAnyWidthEqualPlainPainting()
{
    Settings settings;
    WyWaitingSpinnerWidget spinner;
    for (int width : {0, -1, -2, -9, 1000, std::numeric_limits<int>::max()}) {
        spinner.setLineWidth(settings.lineWidth = width);
        for (qreal ratio : {1.0, 1.5, 2.0})
            WY_COMPARE_PICTURES(WyTest::picture(&spinner, ratio), ring(settings, 0, ratio));
    }
}

void TestWyWaitingSpinnerWidget::aRingTooLargeToKeepIsPaintedPlainly()
{
    Settings settings;
    settings.innerRadius = 300;
    settings.lineLength = 240;
    settings.lines = 8;
    WyWaitingSpinnerWidget spinner;
    apply(spinner, settings);
    for (int step = 0; step < 2 * settings.lines; ++step) {
        WY_COMPARE_PICTURES(WyTest::picture(&spinner), ring(settings, step % settings.lines));
        spinner.rotate();
    }
}

void TestWyWaitingSpinnerWidget::aPainterThatNoPictureFitsPaintsPlainly()
{
    Settings settings;
    settings.innerRadius = 2; // with bars that overlap
    settings.lineWidth = 5;
    WyWaitingSpinnerWidget spinner;
    apply(spinner, settings);
    PlainRing plain(settings);
    const QVector<std::function<void(QPainter&)>> setUps = {
        [](QPainter& painter) { painter.setOpacity(0.5); },
        [](QPainter& painter) { painter.setCompositionMode(QPainter::CompositionMode_Plus); },
        [](QPainter& painter) { painter.rotate(30); },
        [](QPainter& painter) { painter.scale(-1.0, 1.0); },
        [](QPainter& painter) { painter.shear(0.5, 0); },
    };
    for (const auto& setUp : setUps) {
        const auto drawn = [&setUp](QWidget* widget) {
            return WyTest::painted(QSize(100, 100), [&](QPainter& painter) {
                painter.fillRect(0, 0, 100, 100, QColor(60, 80, 100));
                painter.translate(50, 20);
                setUp(painter);
                widget->render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
            });
        };
        WY_COMPARE_PICTURES(drawn(&spinner), drawn(&plain));
    }
}

void TestWyWaitingSpinnerWidget::devicesOfAnotherDepthArePaintedPlainly_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::newRow("16 bits") << QImage::Format_RGB16;
    QTest::newRow("24 bits") << QImage::Format_RGB888;
    QTest::newRow("64 bits") << QImage::Format_RGBA64_Premultiplied;
}

void TestWyWaitingSpinnerWidget::devicesOfAnotherDepthArePaintedPlainly()
{
    QFETCH(QImage::Format, format);
    QRandomGenerator random(16);
    const QImage ground = noise(random, QSize(60, 60), format);
    const Settings settings = randomSettings(random);
    WyWaitingSpinnerWidget spinner;
    apply(spinner, settings);
    PlainRing plain(settings);
    QCOMPARE(over(ground, &spinner, QPoint(), 1.0), over(ground, &plain, QPoint(), 1.0));
}

void TestWyWaitingSpinnerWidget::aStepPaintsNothingThatNobodySees()
{
    QWidget window;
    window.resize(200, 100);
    WyWaitingSpinnerWidget spinner(&window);
    spinner.start();
    timerOf(spinner)->setInterval(60000);
    WyTest::verifyStepsPaintOnlyWhenSeen(spinner, [&spinner] { spinner.rotate(); });
    QVERIFY(timerOf(spinner)->isActive());
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
    for (int lines : {0, -1, std::numeric_limits<int>::min()}) {
        WyWaitingSpinnerWidget spinner;
        spinner.setNumberOfLines(lines);
        WY_COMPARE_PICTURES(WyTest::picture(&spinner), WyTest::painted(QSize(40, 40), [](QPainter&) {}));
        spinner.rotate();
        spinner.rotate();
        WY_COMPARE_PICTURES(WyTest::picture(&spinner), WyTest::painted(QSize(40, 40), [](QPainter&) {}));
    }
}

void TestWyWaitingSpinnerWidget::aCarelessNumberOfLinesPaintsNothing()
{
    WyWaitingSpinnerWidget spinner;
    Settings settings;
    spinner.setNumberOfLines(settings.lines = 10000);
    WY_COMPARE_PICTURES(WyTest::picture(&spinner), ring(settings, 0));
    for (int lines : {10001, std::numeric_limits<int>::max()}) {
        spinner.setNumberOfLines(lines);
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
    parent.resize(100, 60);
    spinner.start();
    QCOMPARE(spinner.pos(), QPoint(50 - 7, 30 - 7)); // (100 - 15) / 2 would be 42, (60 - 15) / 2 22
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
    QVERIFY(parent.isEnabled());
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

void TestWyWaitingSpinnerWidget::restsWhenItsTimerIsDeleted()
{
    QWidget parent;
    WyWaitingSpinnerWidget spinner(&parent, true, true);
    spinner.start();
    delete timerOf(spinner);
    spinner.setNumberOfLines(10);
    spinner.stop();
    QVERIFY(parent.isEnabled());
    spinner.start();
    QVERIFY(!spinner.isHidden());
    QVERIFY(!parent.isEnabled());
}

void TestWyWaitingSpinnerWidget::aHandlerOfTheParentMayStopItAgain_data()
{
    QTest::addColumn<bool>("whenShown");
    QTest::newRow("when it shows") << true;
    QTest::newRow("when it disables the parent") << false;
}

void TestWyWaitingSpinnerWidget::aHandlerOfTheParentMayStopItAgain()
{
    QFETCH(bool, whenShown);
    QWidget parent;
    WyWaitingSpinnerWidget spinner(&parent, true, true);
    const WyTest::OnEvent stopper(whenShown ? static_cast<QWidget*>(&spinner) : &parent,
                                  whenShown ? QEvent::ShowToParent : QEvent::EnabledChange,
                                  [&spinner] { spinner.stop(); });
    spinner.start();
    QVERIFY(!spinner.isSpinning());
    QVERIFY(spinner.isHidden());
    QVERIFY(parent.isEnabled());
    QVERIFY(!timerOf(spinner)->isActive());
}

void TestWyWaitingSpinnerWidget::aHandlerOfTheParentMayStartItAgain()
{
    QWidget parent;
    WyWaitingSpinnerWidget spinner(&parent, true, true);
    spinner.start();
    const WyTest::OnEvent starter(&parent, QEvent::EnabledChange, [&spinner] { spinner.start(); });
    spinner.stop();
    QVERIFY(spinner.isSpinning());
    QVERIFY(!spinner.isHidden());
    QVERIFY(!parent.isEnabled());
    QVERIFY(timerOf(spinner)->isActive());
}

QTEST_MAIN(TestWyWaitingSpinnerWidget)
#include "tst_wywaitingspinnerwidget.moc"
