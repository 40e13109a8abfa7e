#include "WyWidgets/wycontrol/WyWaitingBar.h"

#include "support/Contract.h"
#include "support/Events.h"
#include "support/Painting.h"
#include "support/UnseenSteps.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRandomGenerator>
#include <QTimer>
#include <QtTest>

#include <functional>

using WyTest::OnEvent;
using WyWidgets::WyWaitingBar;

namespace {

/// Where the highlight is after so many steps of a single-precision 0.05, added up.
double positionAfter(int steps)
{
    double position = 0.0;
    for (int step = 0; step < steps % 20; ++step)
        position += 0.05000000074505806;
    return position;
}

void paintPlate(QPainter& painter, QSize size, int steps)
{
    QLinearGradient gradient(0, size.height() / 2, size.width(), size.height() / 2);
    gradient.setColorAt(0.0, QColor(43, 163, 211, 194));
    gradient.setColorAt(positionAfter(steps), QColor(80, 199, 98, 194));
    gradient.setColorAt(1.0, QColor(43, 163, 211, 194));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(QRectF(QPointF(), size), 6.0, 6.0);
}

QImage plate(QSize size, int steps, qreal devicePixelRatio = 1.0)
{
    return WyTest::painted(
        size, [=](QPainter& painter) { paintPlate(painter, size, steps); }, devicePixelRatio);
}

QTimer* timerOf(const WyWaitingBar& bar)
{
    return bar.findChild<QTimer*>();
}

void takeSteps(WyWaitingBar& bar, int steps)
{
    for (int step = 0; step < steps; ++step)
        bar.SlotTimeout();
}

} // namespace

class TestWyWaitingBar : public QObject
{
    Q_OBJECT

private slots:
    void registersItsSlotsOnly();
    void startsWithoutATimer();
    void hasASensibleSize();
    void startMakesTheTimerShowsAndRuns();
    void startingARunningBarKeepsTheHighlight();
    void stoppingHidesAndPutsTheHighlightBack();
    void stoppingABarThatNeverRanOnlyHides();
    void aSweepTakesTwentySteps();
    void aStepThatComesByHandIsKeptByAStopWithoutTimer();
    void paintsThePlateAtEveryStep_data();
    void paintsThePlateAtEveryStep();
    void paintsGeneratedSizesAsAPlateMadeAnew();
    void thePlateOverOpaqueGround();
    void thePlateUnderAPainterOfAnyScale();
    void theFixedLookIgnoresItsSetters();
    void aStepPaintsNothingThatNobodySees();
    void theTimerDrivesTheHighlight();
    void stopsWhileItIsStillABar();
    void survivesItsParent();
    void survivesBeingDeletedWhenShownOrHidden();
    void makesAnotherTimerWhenItsOwnIsDeleted();
};

void TestWyWaitingBar::registersItsSlotsOnly()
{
    WY_COMPARE_CONTRACT(WyWaitingBar, {}, {"start()", "stop()", "SlotTimeout()"}, {});
}

void TestWyWaitingBar::startsWithoutATimer()
{
    WyWaitingBar bar;
    QVERIFY(!timerOf(bar));
    QVERIFY(bar.isHidden());
    QVERIFY(bar.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(bar.accessibleName(), QStringLiteral("Busy"));
    QWidget parent;
    WyWaitingBar child(&parent);
    QCOMPARE(child.parentWidget(), &parent);
    parent.show();
    QVERIFY(child.isVisible());
}

void TestWyWaitingBar::hasASensibleSize()
{
    WyWaitingBar bar;
    QCOMPARE(bar.sizeHint(), QSize(200, 12));
    QCOMPARE(bar.minimumSizeHint(), QSize(24, 12));
    QCOMPARE(bar.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(bar.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void TestWyWaitingBar::startMakesTheTimerShowsAndRuns()
{
    WyWaitingBar bar;
    bar.start();
    QVERIFY(bar.isVisible());
    QTimer* timer = timerOf(bar);
    QVERIFY(timer);
    QVERIFY(timer->isActive());
    QVERIFY(!timer->isSingleShot());
    QCOMPARE(timer->interval(), 50);
    bar.stop();
    bar.start();
    QCOMPARE(bar.findChildren<QTimer*>(), {timer});
    QVERIFY(timer->isActive());
}

void TestWyWaitingBar::startingARunningBarKeepsTheHighlight()
{
    WyWaitingBar bar;
    bar.resize(100, 14);
    bar.start();
    takeSteps(bar, 7);
    bar.start();
    WY_COMPARE_PICTURES(WyTest::picture(&bar), plate(bar.size(), 7));
}

void TestWyWaitingBar::stoppingHidesAndPutsTheHighlightBack()
{
    WyWaitingBar bar;
    bar.resize(100, 14);
    bar.start();
    takeSteps(bar, 3);
    bar.stop();
    QVERIFY(bar.isHidden());
    QVERIFY(!timerOf(bar)->isActive());
    WY_COMPARE_PICTURES(WyTest::picture(&bar), plate(bar.size(), 0));
    bar.start();
    takeSteps(bar, 1);
    WY_COMPARE_PICTURES(WyTest::picture(&bar), plate(bar.size(), 1));
}

void TestWyWaitingBar::stoppingABarThatNeverRanOnlyHides()
{
    WyWaitingBar bar;
    bar.show();
    bar.stop();
    QVERIFY(bar.isHidden());
    QVERIFY(!timerOf(bar));
}

void TestWyWaitingBar::aSweepTakesTwentySteps()
{
    QCOMPARE(double(0.05f), 0.05000000074505806);
    QVERIFY(positionAfter(19) < 1.0);
    QVERIFY(positionAfter(19) + 0.05000000074505806 >= 1.0);
    WyWaitingBar bar;
    bar.resize(100, 14);
    takeSteps(bar, 19);
    WY_COMPARE_PICTURES(WyTest::picture(&bar), plate(bar.size(), 19));
    takeSteps(bar, 1);
    WY_COMPARE_PICTURES(WyTest::picture(&bar), plate(bar.size(), 0));
}

void TestWyWaitingBar::aStepThatComesByHandIsKeptByAStopWithoutTimer()
{
    WyWaitingBar bar;
    bar.resize(100, 14);
    takeSteps(bar, 4);
    bar.stop();
    WY_COMPARE_PICTURES(WyTest::picture(&bar), plate(bar.size(), 4));
    bar.start(); // the start of the timer puts it back
    WY_COMPARE_PICTURES(WyTest::picture(&bar), plate(bar.size(), 0));
}

void TestWyWaitingBar::paintsThePlateAtEveryStep_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<qreal>("devicePixelRatio");
    for (qreal ratio : {1.0, 1.5, 2.0}) {
        QTest::addRow("plain at %g", ratio) << QSize(200, 12) << ratio;
        QTest::addRow("odd at %g", ratio) << QSize(133, 17) << ratio;
        QTest::addRow("lower than its corners at %g", ratio) << QSize(60, 5) << ratio;
        QTest::addRow("a point at %g", ratio) << QSize(1, 1) << ratio;
        QTest::addRow("too large to keep at %g", ratio) << QSize(900, 300) << ratio;
    }
}

void TestWyWaitingBar::paintsThePlateAtEveryStep()
{
    QFETCH(QSize, size);
    QFETCH(qreal, devicePixelRatio);
    WyWaitingBar bar;
    bar.resize(size);
    for (int step = 0; step <= 40; ++step) {
        WY_COMPARE_PICTURES(WyTest::picture(&bar, devicePixelRatio), plate(size, step, devicePixelRatio));
        bar.SlotTimeout();
    }
}

void TestWyWaitingBar::paintsGeneratedSizesAsAPlateMadeAnew()
{
    QRandomGenerator random(18);
    WyWaitingBar bar;
    int steps = 0;
    for (int round = 0; round < 500; ++round) {
        const QSize size(random.bounded(1, 120), random.bounded(1, 40));
        const qreal ratio = QVector<qreal>{1.0, 1.5, 2.0}.at(random.bounded(3));
        const int advance = random.bounded(3);
        bar.resize(size);
        takeSteps(bar, advance);
        steps += advance;
        WY_COMPARE_PICTURES(WyTest::picture(&bar, ratio), plate(size, steps, ratio));
    }
}

void TestWyWaitingBar::thePlateOverOpaqueGround()
{
    WyWaitingBar bar;
    bar.resize(90, 20);
    for (int step = 0; step < 40; ++step) {
        QImage actual(bar.size(), QImage::Format_RGB32);
        actual.fill(QColor(250, 240, 180));
        QImage expected = actual;
        bar.render(&actual, QPoint(), QRegion(), QWidget::DrawChildren);
        QPainter painter(&expected);
        paintPlate(painter, bar.size(), step);
        painter.end();
        WY_COMPARE_PICTURES(actual, expected);
        bar.SlotTimeout();
    }
}

void TestWyWaitingBar::thePlateUnderAPainterOfAnyScale()
{
    WyWaitingBar bar;
    bar.resize(100, 40);
    for (qreal scale : {1e-9, 0.1, 1e3, 1e6, 1e9, 1e12}) {
        const auto drawn = [scale](const std::function<void(QPainter&)>& draw) {
            return WyTest::painted(QSize(50, 50), [&](QPainter& painter) {
                painter.scale(scale, scale);
                painter.translate(-50, -20); // an enlarged plate covers the picture
                draw(painter);
            });
        };
        WY_COMPARE_PICTURES(drawn([&bar](QPainter& painter) {
                                bar.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
                            }),
                            drawn([&bar](QPainter& painter) { paintPlate(painter, bar.size(), 0); }));
    }
}

void TestWyWaitingBar::theFixedLookIgnoresItsSetters()
{
    WyWaitingBar bar;
    bar.resize(100, 14);
    bar.setColor(Qt::red, Qt::yellow);
    bar.setRoundness(1.0);
    WY_COMPARE_PICTURES(WyTest::picture(&bar), plate(bar.size(), 0));
}

void TestWyWaitingBar::aStepPaintsNothingThatNobodySees()
{
    QWidget window;
    window.resize(200, 100);
    WyWaitingBar bar(&window);
    bar.start();
    timerOf(bar)->setInterval(60000);
    WyTest::verifyStepsPaintOnlyWhenSeen(bar, [&bar] { bar.SlotTimeout(); });
    QVERIFY(timerOf(bar)->isActive());
}

void TestWyWaitingBar::theTimerDrivesTheHighlight()
{
    WyWaitingBar bar;
    bar.resize(100, 14);
    bar.start();
    timerOf(bar)->setInterval(0);
    const QImage atRest = plate(bar.size(), 0);
    QTRY_VERIFY(!WyTest::difference(WyTest::picture(&bar), atRest).isEmpty());
    QVERIFY(QObject::disconnect(timerOf(bar), SIGNAL(timeout()), &bar, SLOT(SlotTimeout())));
}

void TestWyWaitingBar::stopsWhileItIsStillABar()
{
    auto* bar = new WyWaitingBar;
    QByteArray classAtHide;
    const OnEvent note(bar, QEvent::Hide, [&] { classAtHide = bar->metaObject()->className(); });
    bar->start();
    delete bar;
    QCOMPARE(classAtHide, QByteArray("WyWidgets::WyWaitingBar"));
}

void TestWyWaitingBar::survivesItsParent()
{
    auto* parent = new QWidget;
    QPointer<WyWaitingBar> bar = new WyWaitingBar(parent);
    QPointer<WyWaitingBar> neverStarted = new WyWaitingBar(parent);
    parent->show();
    bar->start();
    delete parent;
    QVERIFY(!bar);
    QVERIFY(!neverStarted);
}

void TestWyWaitingBar::survivesBeingDeletedWhenShownOrHidden()
{
    for (QEvent::Type when : {QEvent::ShowToParent, QEvent::HideToParent}) {
        QPointer<WyWaitingBar> bar = new WyWaitingBar;
        const OnEvent deleter(bar, when, [bar] { delete bar; });
        bar->start();
        if (bar)
            bar->stop();
        QVERIFY(!bar);
    }
}

void TestWyWaitingBar::makesAnotherTimerWhenItsOwnIsDeleted()
{
    WyWaitingBar bar;
    bar.start();
    delete timerOf(bar);
    bar.stop();
    bar.start();
    QVERIFY(timerOf(bar));
    QVERIFY(timerOf(bar)->isActive());
    const WyTest::OnEvent deleter(&bar, QEvent::ShowToParent, [&bar] { delete timerOf(bar); });
    bar.stop();
    bar.start();
    QVERIFY(!timerOf(bar));
}

QTEST_MAIN(TestWyWaitingBar)
#include "tst_wywaitingbar.moc"
