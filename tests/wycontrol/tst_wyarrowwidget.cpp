#include "WyWidgets/wycontrol/WyArrowWidget.h"

#include "support/ArrowPlate.h"
#include "support/Contract.h"
#include "support/Events.h"
#include "support/LastWindow.h"
#include "support/Painting.h"

#include <QGraphicsDropShadowEffect>
#include <QLabel>
#include <QLayout>
#include <QRandomGenerator>
#include <QtTest>

#include <limits>

using WyTest::ArrowPlate;
using WyWidgets::WyArrowWidget;

namespace {

constexpr int kInt = std::numeric_limits<int>::max();

const QString kLongText =
    QStringLiteral("A text that is long enough to wrap into quite a few lines, so that the "
                   "panel grows well beyond the size that it has when it is new.");

QLabel* labelOf(const WyArrowWidget& arrow)
{
    return arrow.findChild<QLabel*>();
}

/// A picture of the plate alone: without the shadow and with no text on it.
QImage platePicture(WyArrowWidget& arrow, qreal devicePixelRatio = 1.0)
{
    arrow.graphicsEffect()->setEnabled(false);
    return WyTest::picture(&arrow, devicePixelRatio);
}

QImage expectedPlate(const WyArrowWidget& arrow, int startPos, int width, int height, int side,
                     qreal devicePixelRatio = 1.0)
{
    const ArrowPlate plate{labelOf(arrow)->geometry(), startPos, width, height, side, 5.0};
    return WyTest::painted(
        arrow.size(), [&](QPainter& painter) { plate.paint(painter, Qt::white); }, devicePixelRatio);
}

} // namespace

class TestWyArrowWidget : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void numbersItsSides();
    void isAFramelessTranslucentPanel();
    void isAChildOfItsParent();
    void hasASoftGreyShadow();
    void hasAWordWrappedLabelWithRoomAroundIt();
    void drawsItsArrowOnTheLeftAtFirst();
    void drawsTheArrowOnEachSide_data();
    void drawsTheArrowOnEachSide();
    void paintsGeneratedShapesAsABoxAndATriangleInOnePath();
    void castsItsShadowAroundThePlate();
    void onlyTheStartPositionRepaintsAtOnce();
    void keepsItsTextAndTakesItsSize();
    void movesItsTipToThePoint_data();
    void movesItsTipToThePoint();
    void movesGeneratedShapesByTheirTip();
    void movesItsTipToThePointBeforeTheFirstShow();
    void anUnknownSideNeitherDrawsAnArrowNorMoves();
    void closesOnAClickWithoutBeingDeleted();
    void isNoWindowThatTheApplicationWaitsFor();
    void takesCarelessNumbers();
    void survivesTheLossOfItsLabelEffectAndLayout();
};

void TestWyArrowWidget::registersNothing()
{
    WY_COMPARE_CONTRACT(WyArrowWidget, {}, {}, {});
    QCOMPARE(WyArrowWidget::staticMetaObject.enumeratorCount(), QWidget::staticMetaObject.enumeratorCount());
}

void TestWyArrowWidget::numbersItsSides()
{
    QCOMPARE(int(WyArrowWidget::Left), 0);
    QCOMPARE(int(WyArrowWidget::Right), 1);
    QCOMPARE(int(WyArrowWidget::Top), 2);
    QCOMPARE(int(WyArrowWidget::Bottom), 3);
}

void TestWyArrowWidget::isAFramelessTranslucentPanel()
{
    WyArrowWidget arrow;
    QVERIFY(arrow.isWindow());
    QVERIFY(arrow.isHidden());
    QVERIFY(arrow.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(arrow.testAttribute(Qt::WA_TranslucentBackground));
}

void TestWyArrowWidget::isAChildOfItsParent()
{
    QWidget parent;
    WyArrowWidget arrow(&parent);
    QCOMPARE(arrow.parentWidget(), &parent);
    QVERIFY(!arrow.isWindow());
    QCOMPARE(arrow.windowFlags(), Qt::WindowFlags(Qt::FramelessWindowHint));
}

void TestWyArrowWidget::hasASoftGreyShadow()
{
    WyArrowWidget arrow;
    auto* shadow = qobject_cast<QGraphicsDropShadowEffect*>(arrow.graphicsEffect());
    QVERIFY(shadow);
    QCOMPARE(shadow->offset(), QPointF(0, 0));
    QCOMPARE(shadow->color(), QColor(Qt::gray));
    QCOMPARE(shadow->blurRadius(), 15.0);
}

void TestWyArrowWidget::hasAWordWrappedLabelWithRoomAroundIt()
{
    WyArrowWidget arrow;
    QCOMPARE(arrow.findChildren<QWidget*>().size(), 1);
    QLabel* label = labelOf(arrow);
    QVERIFY(label);
    QCOMPARE(label->property("class"), QVariant(QStringLiteral("font14px")));
    QVERIFY(label->wordWrap());
    QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignTop));
    QCOMPARE(label->minimumWidth(), 150);
    QCOMPARE(label->maximumWidth(), 150);
    QCOMPARE(label->styleSheet(), QStringLiteral("padding: 16px 16px 16px 16px;"));
    QVERIFY(qobject_cast<QHBoxLayout*>(arrow.layout()));
    QCOMPARE(arrow.layout()->contentsMargins(), QMargins(15, 25, 15, 15));
    QCOMPARE(arrow.layout()->itemAt(0)->widget(), label);
    arrow.show();
    QCOMPARE(label->geometry().topLeft(), QPoint(15, 25));
    QCOMPARE(arrow.width(), 15 + 150 + 15);
}

void TestWyArrowWidget::drawsItsArrowOnTheLeftAtFirst()
{
    WyArrowWidget arrow;
    arrow.show();
    labelOf(arrow)->setFixedHeight(90);
    arrow.adjustSize();
    for (qreal ratio : {1.0, 1.5, 2.0})
        WY_COMPARE_PICTURES(platePicture(arrow, ratio), expectedPlate(arrow, 50, 15, 10, 0, ratio));
}

void TestWyArrowWidget::drawsTheArrowOnEachSide_data()
{
    QTest::addColumn<int>("side");
    QTest::newRow("left") << int(WyArrowWidget::Left);
    QTest::newRow("right") << int(WyArrowWidget::Right);
    QTest::newRow("top") << int(WyArrowWidget::Top);
    QTest::newRow("bottom") << int(WyArrowWidget::Bottom);
}

void TestWyArrowWidget::drawsTheArrowOnEachSide()
{
    QFETCH(int, side);
    WyArrowWidget arrow;
    arrow.setDerection(WyArrowWidget::Derection(side));
    arrow.setTriangleInfo(21, 13);
    arrow.setStartPos(17);
    arrow.show();
    labelOf(arrow)->setFixedHeight(70);
    arrow.adjustSize();
    for (qreal ratio : {1.0, 1.5, 2.0})
        WY_COMPARE_PICTURES(platePicture(arrow, ratio), expectedPlate(arrow, 17, 21, 13, side, ratio));
}

void TestWyArrowWidget::paintsGeneratedShapesAsABoxAndATriangleInOnePath()
{
    QRandomGenerator random(11);
    WyArrowWidget arrow;
    arrow.show();
    arrow.resize(200, 120);
    for (int round = 0; round < 1000; ++round) {
        const int side = random.bounded(5);
        // Negative numbers turn the triangle into the box, where it leaves a hole.
        const int start = random.bounded(-40, 160);
        const int width = random.bounded(-30, 60);
        const int height = random.bounded(-30, 40);
        arrow.setDerection(WyArrowWidget::Derection(side));
        arrow.setTriangleInfo(width, height);
        arrow.setStartPos(start);
        WY_COMPARE_PICTURES(platePicture(arrow), expectedPlate(arrow, start, width, height, side));
    }
}

void TestWyArrowWidget::castsItsShadowAroundThePlate()
{
    WyArrowWidget arrow;
    arrow.setDerection(WyArrowWidget::Derection(4));
    arrow.show();
    const QPoint outside = labelOf(arrow)->geometry().bottomLeft() + QPoint(40, 4);
    const auto alphaOutside = [&] {
        const QPixmap shot = arrow.grab();
        return shot.toImage().pixelColor(outside * shot.devicePixelRatio()).alpha();
    };
    QVERIFY(alphaOutside() > 0);
    arrow.graphicsEffect()->setEnabled(false);
    QCOMPARE(alphaOutside(), 0);
}

void TestWyArrowWidget::onlyTheStartPositionRepaintsAtOnce()
{
    WyArrowWidget arrow;
    arrow.show();
    QVERIFY(QTest::qWaitForWindowExposed(&arrow));
    QCoreApplication::processEvents();
    WyTest::EventCounter paints(&arrow, QEvent::Paint);
    arrow.setDerection(WyArrowWidget::Top);
    arrow.setTriangleInfo(30, 20);
    QCOMPARE(paints.count(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count(), 0);
    arrow.setStartPos(20);
    QCOMPARE(paints.count(), 1);
}

void TestWyArrowWidget::keepsItsTextAndTakesItsSize()
{
    WyArrowWidget arrow;
    QCOMPARE(arrow.text(), QString());
    arrow.setText(QStringLiteral("short"));
    const int height = arrow.height();
    QCOMPARE(arrow.text(), QStringLiteral("short"));
    QCOMPARE(labelOf(arrow)->text(), QStringLiteral("short"));
    arrow.setText(kLongText);
    QVERIFY(arrow.height() > height);
    QCOMPARE(arrow.width(), 180);
    arrow.setText(QStringLiteral("<b>rich</b> \U0001F600 \u05E9\u05DC\u05D5\u05DD"));
    QCOMPARE(arrow.text(), QStringLiteral("<b>rich</b> \U0001F600 \u05E9\u05DC\u05D5\u05DD"));
    QCOMPARE(arrow.height(), height);
    arrow.setText(QString());
    QCOMPARE(arrow.text(), QString());
}

void TestWyArrowWidget::movesItsTipToThePoint_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QPoint>("position");
    // The label is a box of 150 x 70 at (15, 25), the triangle 21 wide and 13 high, its start at 17.
    QTest::newRow("left") << 0 << QPoint(400 + 13 - 15, 300 - 10 - (25 + 17));
    QTest::newRow("right") << 1 << QPoint(400 - 13 - 150 - 15, 300 - 10 - (25 + 17));
    QTest::newRow("top") << 2 << QPoint(400 - 10 - (15 + 17), 300 + 13 - 25);
    QTest::newRow("bottom") << 3 << QPoint(400 - 10 - (15 + 17), 300 - 13 - 70 - 25);
}

void TestWyArrowWidget::movesItsTipToThePoint()
{
    QFETCH(int, side);
    QWidget parent;
    parent.resize(800, 600);
    WyArrowWidget arrow(&parent);
    labelOf(arrow)->setFixedHeight(70);
    arrow.setTriangleInfo(21, 13);
    arrow.setStartPos(17);
    arrow.setDerection(WyArrowWidget::Derection(side));
    parent.show();
    arrow.myMove(400, 300);
    QTEST(arrow.pos(), "position");
}

void TestWyArrowWidget::movesGeneratedShapesByTheirTip()
{
    QRandomGenerator random(12);
    QWidget parent;
    WyArrowWidget arrow(&parent);
    parent.show();
    for (int round = 0; round < 3000; ++round) {
        ArrowPlate plate{QRect(),
                         random.bounded(-50, 200),
                         random.bounded(-61, 61),
                         random.bounded(-40, 40),
                         random.bounded(4),
                         5.0};
        const QPoint target(random.bounded(-500, 2000), random.bounded(-500, 2000));
        if (round % 20 == 0)
            arrow.setText(kLongText.left(random.bounded(kLongText.size())));
        arrow.setStartPos(plate.startPos);
        arrow.setTriangleInfo(plate.triangleWidth, plate.triangleHeight);
        arrow.setDerection(WyArrowWidget::Derection(plate.side));
        arrow.myMove(target.x(), target.y());
        plate.box = labelOf(arrow)->geometry();
        QCOMPARE(arrow.pos() + plate.tip(), target);
    }
}

void TestWyArrowWidget::movesItsTipToThePointBeforeTheFirstShow()
{
    for (int side = 0; side < 4; ++side) {
        for (bool isChild : {false, true}) {
            QWidget parent;
            parent.setStyleSheet(QStringLiteral("QLabel { font-size: 31px; }"));
            parent.resize(700, 700);
            parent.show();
            for (bool hasSize : {false, true}) {
                WyArrowWidget arrow(isChild ? &parent : nullptr);
                if (hasSize)
                    arrow.setText(kLongText);
                labelOf(arrow)->setText(kLongText + kLongText); // behind the panel's back
                arrow.setDerection(WyArrowWidget::Derection(side));
                arrow.myMove(350, 340);
                const QPoint position = arrow.pos();
                arrow.show();
                QCOMPARE(arrow.pos(), position);
                const ArrowPlate plate{labelOf(arrow)->geometry(), 50, 15, 10, side, 5.0};
                QCOMPARE(arrow.pos() + plate.tip(), QPoint(350, 340));
            }
        }
    }
}

void TestWyArrowWidget::anUnknownSideNeitherDrawsAnArrowNorMoves()
{
    for (int side : {-1, 4, kInt}) {
        QWidget parent;
        WyArrowWidget arrow(&parent);
        arrow.setDerection(WyArrowWidget::Derection(side));
        parent.show();
        arrow.move(3, 4);
        arrow.myMove(200, 200);
        QCOMPARE(arrow.pos(), QPoint(3, 4));
        WY_COMPARE_PICTURES(platePicture(arrow), expectedPlate(arrow, 50, 15, 10, side));
    }
}

void TestWyArrowWidget::closesOnAClickWithoutBeingDeleted()
{
    QPointer<WyArrowWidget> arrow = new WyArrowWidget;
    arrow->show();
    QTest::mousePress(arrow, Qt::LeftButton);
    QVERIFY(arrow->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(arrow);
    arrow->show();
    QTest::mousePress(labelOf(*arrow), Qt::RightButton); // the text lets clicks through to the panel
    QVERIFY(arrow->isHidden());
    delete arrow;
}

void TestWyArrowWidget::isNoWindowThatTheApplicationWaitsFor()
{
    QCOMPARE(WyTest::lastWindowClosings([] {
                 WyArrowWidget arrow;
                 arrow.show();
                 arrow.close();
             }),
             0);
    QCOMPARE(WyTest::lastWindowClosings([] {
                 WyArrowWidget arrow;
                 QWidget window;
                 arrow.show();
                 window.show();
                 window.close(); // though the panel still shows
             }),
             1);
}

void TestWyArrowWidget::takesCarelessNumbers()
{
    for (int value : {kInt, -kInt - 1, 0}) {
        for (int side = 0; side < 4; ++side) {
            WyArrowWidget arrow;
            arrow.setDerection(WyArrowWidget::Derection(side));
            arrow.setTriangleInfo(value, value);
            arrow.setStartPos(value);
            WyTest::picture(&arrow);
            arrow.myMove(value, value);
            arrow.myMove(-1, -1);
        }
    }
    WyArrowWidget arrow;
    arrow.setStartPos(-kInt - 1);
    arrow.myMove(0, kInt);
    QCOMPARE(arrow.y(), QWIDGETSIZE_MAX); // as far as Qt's rectangles reach
}

void TestWyArrowWidget::survivesTheLossOfItsLabelEffectAndLayout()
{
    WyArrowWidget arrow;
    arrow.resize(180, 100);
    delete labelOf(arrow);
    arrow.setText(kLongText);
    QCOMPARE(arrow.text(), QString());
    arrow.myMove(100, 100);
    const ArrowPlate plate{QRect(0, 0, 0, 0), 50, 15, 10, 0, 5.0};
    QCOMPARE(arrow.pos() + plate.tip(), QPoint(100, 100));
    WY_COMPARE_PICTURES(platePicture(arrow), WyTest::painted(arrow.size(), [&](QPainter& painter) {
                            plate.paint(painter, Qt::white);
                        }));
    arrow.setGraphicsEffect(nullptr);
    delete arrow.layout();
    arrow.myMove(50, 60);
    QCOMPARE(arrow.pos() + plate.tip(), QPoint(50, 60));
    arrow.show();
}

QTEST_MAIN(TestWyArrowWidget)
#include "tst_wyarrowwidget.moc"
