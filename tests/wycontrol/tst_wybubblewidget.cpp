#include "WyWidgets/wycontrol/WyBubbleWidget.h"

#include "support/ArrowPlate.h"
#include "support/Contract.h"
#include "support/Events.h"
#include "support/Painting.h"

#include <QGraphicsDropShadowEffect>
#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QRandomGenerator>
#include <QtTest>

#include <limits>

using WyTest::ArrowPlate;
using WyWidgets::WyBubbleWidget;

namespace {

constexpr int kInt = std::numeric_limits<int>::max();

/// Content that paints nothing and always has the same size.
QWidget* contentOf(QSize size)
{
    auto* content = new QWidget;
    content->setFixedSize(size);
    return content;
}

QImage expectedBubble(const WyBubbleWidget& bubble, const ArrowPlate& plate, const QColor& color,
                      qreal devicePixelRatio = 1.0)
{
    return WyTest::painted(
        bubble.size(), [&](QPainter& painter) { plate.paint(painter, color); }, devicePixelRatio);
}

} // namespace

class TestWyBubbleWidget : public QObject
{
    Q_OBJECT

private slots:
    void registersItsTwoColors();
    void numbersItsSides();
    void isAHiddenFramelessToolTip();
    void withoutShadowItHasNarrowerMargins();
    void withShadowItHasAnEffectAndWiderMargins();
    void theShadowColorReachesTheShadow();
    void withoutShadowTheShadowColorIsOnlyStored();
    void theBubbleColorOnlyRepaints();
    void aStyleSheetSetsBothColors();
    void withoutAColorItIsBlack();
    void withoutContentItIsATriangleAtTheOrigin();
    void drawsItsArrowOnTheLeftAtFirst();
    void drawsTheArrowOnEachSide_data();
    void drawsTheArrowOnEachSide();
    void paintsGeneratedShapesAsABoxAndATriangleInOnePath();
    void repaintingPaintsTheSameAgainOverAnyGround();
    void everySettingShowsInTheNextPainting();
    void onlyTheStartPositionRepaintsAtOnce();
    void takesContentAndItsSize();
    void movesItsTipToThePoint_data();
    void movesItsTipToThePoint();
    void movesGeneratedShapesByTheStoredPosition();
    void movesItsTipToThePointBeforeTheFirstShow();
    void movingKeepsASizeThatSomebodyHasGiven();
    void movingSurvivesContentThatRebuildsItself();
    void anUnknownSideNeitherDrawsAnArrowNorMoves();
    void contentThatDiedCountsAsNone();
    void laterContentTakesTheArrow();
    void survivesTheLossOfItsEffectAndLayout();
    void ownsContentAlsoWithoutItsLayout();
    void takesCarelessNumbers();
    void paintsItsBoxWhateverTheArrow();
    void passesClicksOn();
};

void TestWyBubbleWidget::registersItsTwoColors()
{
    WY_COMPARE_CONTRACT(WyBubbleWidget, {}, {}, {"QColor bubbleColor", "QColor shadowColor"});
    QCOMPARE(WyBubbleWidget::staticMetaObject.enumeratorCount(), QWidget::staticMetaObject.enumeratorCount());
}

void TestWyBubbleWidget::numbersItsSides()
{
    QCOMPARE(int(WyBubbleWidget::Left), 0);
    QCOMPARE(int(WyBubbleWidget::Right), 1);
    QCOMPARE(int(WyBubbleWidget::Top), 2);
    QCOMPARE(int(WyBubbleWidget::Bottom), 3);
}

void TestWyBubbleWidget::isAHiddenFramelessToolTip()
{
    QWidget parent;
    WyBubbleWidget bubble(false, &parent);
    QCOMPARE(bubble.parentWidget(), &parent);
    QVERIFY(bubble.isWindow());
    QVERIFY(bubble.isHidden());
    QCOMPARE(bubble.windowFlags(), Qt::ToolTip | Qt::FramelessWindowHint);
    QVERIFY(bubble.testAttribute(Qt::WA_TranslucentBackground));
}

void TestWyBubbleWidget::withoutShadowItHasNarrowerMargins()
{
    WyBubbleWidget bubble(false, nullptr);
    QVERIFY(!bubble.graphicsEffect());
    QVERIFY(qobject_cast<QHBoxLayout*>(bubble.layout()));
    QCOMPARE(bubble.layout()->contentsMargins(), QMargins(16, 8, 16, 8));
}

void TestWyBubbleWidget::withShadowItHasAnEffectAndWiderMargins()
{
    WyBubbleWidget bubble(true, nullptr);
    auto* shadow = qobject_cast<QGraphicsDropShadowEffect*>(bubble.graphicsEffect());
    QVERIFY(shadow);
    QCOMPARE(shadow->offset(), QPointF(0, 0));
    QCOMPARE(shadow->blurRadius(), 12.0);
    QVERIFY(!shadow->color().isValid());
    QVERIFY(qobject_cast<QHBoxLayout*>(bubble.layout()));
    QCOMPARE(bubble.layout()->contentsMargins(), QMargins(12, 20, 12, 12));
}

void TestWyBubbleWidget::theShadowColorReachesTheShadow()
{
    WyBubbleWidget bubble(true, nullptr);
    QVERIFY(!bubble.shadowColor().isValid());
    bubble.setShadowColor(QColor(1, 2, 3, 4));
    auto* shadow = static_cast<QGraphicsDropShadowEffect*>(bubble.graphicsEffect());
    QCOMPARE(shadow->color(), QColor(1, 2, 3, 4));
    QVERIFY(bubble.setProperty("shadowColor", QColor(Qt::blue)));
    QCOMPARE(shadow->color(), QColor(Qt::blue));
    QCOMPARE(bubble.property("shadowColor").value<QColor>(), QColor(Qt::blue));
}

void TestWyBubbleWidget::withoutShadowTheShadowColorIsOnlyStored()
{
    WyBubbleWidget bubble(false, nullptr);
    bubble.setShadowColor(Qt::red);
    QCOMPARE(bubble.shadowColor(), QColor(Qt::red));
    QVERIFY(!bubble.graphicsEffect());
}

void TestWyBubbleWidget::theBubbleColorOnlyRepaints()
{
    WyBubbleWidget bubble(false, nullptr);
    bubble.SetContentWidget(contentOf(QSize(80, 40)), QPoint(16, 8));
    bubble.move(30, 40);
    bubble.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bubble));
    QCoreApplication::processEvents();
    WyTest::EventCounter paints(&bubble, QEvent::Paint);
    const QRect geometry = bubble.geometry();
    QVERIFY(bubble.setProperty("bubbleColor", QColor(Qt::green)));
    QCOMPARE(paints.count(), 0); // at leisure, not at once
    QTRY_COMPARE(paints.count(), 1);
    QCOMPARE(bubble.geometry(), geometry);
    QCOMPARE(bubble.bubbleColor(), QColor(Qt::green));
    QVERIFY(!bubble.shadowColor().isValid());
    const ArrowPlate plate{QRect(16, 8, 80, 40), 48, 16, 8, 0, 8.0};
    WY_COMPARE_PICTURES(WyTest::picture(&bubble), expectedBubble(bubble, plate, Qt::green));
}

void TestWyBubbleWidget::aStyleSheetSetsBothColors()
{
    WyBubbleWidget bubble(true, nullptr);
    bubble.setStyleSheet(QStringLiteral("WyWidgets--WyBubbleWidget { qproperty-bubbleColor: #102030; "
                                        "qproperty-shadowColor: #405060; }"));
    bubble.ensurePolished();
    QCOMPARE(bubble.bubbleColor(), QColor(0x10, 0x20, 0x30));
    QCOMPARE(bubble.shadowColor(), QColor(0x40, 0x50, 0x60));
    QCOMPARE(static_cast<QGraphicsDropShadowEffect*>(bubble.graphicsEffect())->color(),
             QColor(0x40, 0x50, 0x60));
}

void TestWyBubbleWidget::withoutAColorItIsBlack()
{
    WyBubbleWidget bubble(false, nullptr);
    QVERIFY(!bubble.bubbleColor().isValid());
    bubble.SetContentWidget(contentOf(QSize(80, 70)), QPoint(16, 8));
    bubble.show();
    const ArrowPlate plate{QRect(16, 8, 80, 70), 48, 16, 8, 0, 8.0};
    WY_COMPARE_PICTURES(WyTest::picture(&bubble), expectedBubble(bubble, plate, Qt::black));
    QCOMPARE(WyTest::picture(&bubble).pixelColor(50, 40), QColor(0, 0, 0, 255));
}

void TestWyBubbleWidget::withoutContentItIsATriangleAtTheOrigin()
{
    WyBubbleWidget bubble(false, nullptr);
    bubble.setBubbleColor(Qt::red);
    bubble.resize(60, 80);
    for (int side = 0; side < 4; ++side) {
        bubble.setDerection(WyBubbleWidget::Derection(side));
        bubble.setStartPos(20);
        const ArrowPlate plate{QRect(0, 0, 0, 0), 20, 16, 8, side, 8.0};
        WY_COMPARE_PICTURES(WyTest::picture(&bubble), expectedBubble(bubble, plate, Qt::red));
        bubble.myMove(200, 300);
        QCOMPARE(bubble.pos() + plate.tip(), QPoint(200, 300));
    }
}

void TestWyBubbleWidget::drawsItsArrowOnTheLeftAtFirst()
{
    WyBubbleWidget bubble(true, nullptr);
    bubble.setBubbleColor(QColor(10, 120, 200, 150));
    bubble.SetContentWidget(contentOf(QSize(80, 90)), QPoint(12, 20));
    bubble.show();
    bubble.graphicsEffect()->setEnabled(false);
    const ArrowPlate plate{QRect(12, 20, 80, 90), 48, 16, 8, 0, 8.0};
    for (qreal ratio : {1.0, 1.5, 2.0}) {
        WY_COMPARE_PICTURES(WyTest::picture(&bubble, ratio),
                            expectedBubble(bubble, plate, QColor(10, 120, 200, 150), ratio));
    }
}

void TestWyBubbleWidget::drawsTheArrowOnEachSide_data()
{
    QTest::addColumn<int>("side");
    QTest::newRow("left") << int(WyBubbleWidget::Left);
    QTest::newRow("right") << int(WyBubbleWidget::Right);
    QTest::newRow("top") << int(WyBubbleWidget::Top);
    QTest::newRow("bottom") << int(WyBubbleWidget::Bottom);
}

void TestWyBubbleWidget::drawsTheArrowOnEachSide()
{
    QFETCH(int, side);
    WyBubbleWidget bubble(false, nullptr);
    bubble.setBubbleColor(QColor(200, 120, 10));
    bubble.SetContentWidget(contentOf(QSize(90, 60)), QPoint(1, 2));
    bubble.setDerection(WyBubbleWidget::Derection(side));
    bubble.setTriangleInfo(19, 7);
    bubble.setStartPos(15);
    bubble.show();
    // Painted where the content lies, not where it was said to lie.
    const ArrowPlate plate{QRect(16, 8, 90, 60), 15, 19, 7, side, 8.0};
    for (qreal ratio : {1.0, 1.5, 2.0}) {
        WY_COMPARE_PICTURES(WyTest::picture(&bubble, ratio),
                            expectedBubble(bubble, plate, QColor(200, 120, 10), ratio));
    }
}

void TestWyBubbleWidget::paintsGeneratedShapesAsABoxAndATriangleInOnePath()
{
    QRandomGenerator random(33);
    WyBubbleWidget bubble(false, nullptr);
    QWidget* content = contentOf(QSize(100, 60));
    bubble.SetContentWidget(content, QPoint());
    bubble.show();
    for (int round = 0; round < 1000; ++round) {
        const qreal ratio = QVector<qreal>{1.0, 1.5, 2.0}.at(random.bounded(3));
        const QColor color = QColor::fromRgba(random.generate());
        ArrowPlate plate{QRect(16, 8, 20 + random.bounded(100), 20 + random.bounded(80)),
                         random.bounded(-40, 160),
                         random.bounded(-30, 60),
                         random.bounded(-30, 40),
                         random.bounded(5),
                         8.0};
        content->setFixedSize(plate.box.size());
        bubble.adjustSize();
        bubble.setBubbleColor(color);
        bubble.setDerection(WyBubbleWidget::Derection(plate.side));
        bubble.setTriangleInfo(plate.triangleWidth, plate.triangleHeight);
        bubble.setStartPos(plate.startPos);
        plate.box = content->geometry();
        WY_COMPARE_PICTURES(WyTest::picture(&bubble, ratio), expectedBubble(bubble, plate, color, ratio));
    }
}

void TestWyBubbleWidget::repaintingPaintsTheSameAgainOverAnyGround()
{
    WyBubbleWidget bubble(false, nullptr);
    bubble.setBubbleColor(QColor(10, 120, 200, 150));
    bubble.SetContentWidget(contentOf(QSize(80, 60)), QPoint());
    bubble.show();
    const ArrowPlate plate{QRect(16, 8, 80, 60), 48, 16, 8, 0, 8.0};
    WyTest::PlateWidget plain(plate, bubble.bubbleColor(), bubble.size());
    for (QImage::Format format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied}) {
        for (QRgb ground : {0xffa0b0c0U, 0x00000000U, 0xff102030U}) {
            QImage actual(bubble.size(), format);
            actual.fill(ground);
            QImage expected = actual;
            bubble.render(&actual, QPoint(), QRegion(), QWidget::DrawChildren);
            plain.render(&expected, QPoint(), QRegion(), QWidget::DrawChildren);
            WY_COMPARE_PICTURES(actual, expected);
        }
    }
}

void TestWyBubbleWidget::everySettingShowsInTheNextPainting()
{
    WyBubbleWidget bubble(false, nullptr);
    QWidget* content = contentOf(QSize(100, 90));
    bubble.SetContentWidget(content, QPoint());
    bubble.show();
    bubble.resize(140, 120); // large enough for all that follows
    ArrowPlate plate{content->geometry(), 48, 16, 8, 0, 8.0};
    QColor color(Qt::black);
    const auto compare = [&](qreal ratio) {
        WY_COMPARE_PICTURES(WyTest::picture(&bubble, ratio), expectedBubble(bubble, plate, color, ratio));
    };
    compare(1.0);
    bubble.setStartPos(plate.startPos = 30);
    compare(1.0);
    bubble.setTriangleInfo(plate.triangleWidth = 20, plate.triangleHeight);
    compare(1.0);
    bubble.setTriangleInfo(plate.triangleWidth, plate.triangleHeight = 12);
    compare(1.0);
    bubble.setDerection(WyBubbleWidget::Derection(plate.side = 1));
    compare(1.0);
    bubble.setBubbleColor(color = QColor(200, 100, 50, 128));
    compare(1.0);
    content->move(20, 10);
    plate.box = content->geometry();
    compare(1.0);
    compare(2.0);
    compare(1.0);
}

void TestWyBubbleWidget::onlyTheStartPositionRepaintsAtOnce()
{
    WyBubbleWidget bubble(false, nullptr);
    bubble.SetContentWidget(contentOf(QSize(80, 90)), QPoint());
    bubble.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bubble));
    QCoreApplication::processEvents();
    WyTest::EventCounter paints(&bubble, QEvent::Paint);
    bubble.setDerection(WyBubbleWidget::Top);
    bubble.setTriangleInfo(30, 20);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count(), 0);
    bubble.setStartPos(20);
    QCOMPARE(paints.count(), 1);
}

void TestWyBubbleWidget::takesContentAndItsSize()
{
    WyBubbleWidget bubble(false, nullptr);
    QPointer<QWidget> content = contentOf(QSize(300, 170));
    bubble.SetContentWidget(content, QPoint(3, 4));
    QCOMPARE(content->parentWidget(), &bubble);
    QCOMPARE(bubble.layout()->indexOf(content), 0);
    QCOMPARE(bubble.size(), QSize(332, 186));
    bubble.SetContentWidget(nullptr, QPoint());
    QCOMPARE(bubble.layout()->count(), 1);
    QVERIFY(content);
}

void TestWyBubbleWidget::movesItsTipToThePoint_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QPoint>("position");
    // Content of 90 x 60, told to lie at (5, 6); the triangle is 19 wide and 7 high, its start is at 15.
    QTest::newRow("left") << 0 << QPoint(400 - 5 + 7, 300 - (6 + 15) - 9);
    QTest::newRow("right") << 1 << QPoint(400 - 90 - (5 + 7), 300 - 9 - (6 + 15));
    QTest::newRow("top") << 2 << QPoint(400 - (5 + 15) - 9, 300 - 6 + 7);
    QTest::newRow("bottom") << 3 << QPoint(400 - (5 + 15) - 9, 300 - 60 - (6 + 7));
}

void TestWyBubbleWidget::movesItsTipToThePoint()
{
    QFETCH(int, side);
    for (bool shadow : {false, true}) {
        WyBubbleWidget bubble(shadow, nullptr);
        bubble.SetContentWidget(contentOf(QSize(90, 60)), QPoint(5, 6));
        bubble.setDerection(WyBubbleWidget::Derection(side));
        bubble.setTriangleInfo(19, 7);
        bubble.setStartPos(15);
        bubble.myMove(400, 300);
        QTEST(bubble.pos(), "position");
    }
}

void TestWyBubbleWidget::movesGeneratedShapesByTheStoredPosition()
{
    QRandomGenerator random(34);
    for (int round = 0; round < 2000; ++round) {
        WyBubbleWidget bubble(random.bounded(2) == 0, nullptr);
        const ArrowPlate plate{QRect(random.bounded(-30, 60), random.bounded(-30, 60), random.bounded(1, 200),
                                     random.bounded(1, 200)),
                               random.bounded(-50, 200),
                               random.bounded(-61, 61),
                               random.bounded(-40, 40),
                               random.bounded(4),
                               8.0};
        const QPoint target(random.bounded(-500, 2000), random.bounded(-500, 2000));
        bubble.SetContentWidget(contentOf(plate.box.size()), plate.box.topLeft());
        bubble.setStartPos(plate.startPos);
        bubble.setTriangleInfo(plate.triangleWidth, plate.triangleHeight);
        bubble.setDerection(WyBubbleWidget::Derection(plate.side));
        bubble.myMove(target.x(), target.y());
        QCOMPARE(bubble.pos() + plate.tip(), target);
    }
}

void TestWyBubbleWidget::movesItsTipToThePointBeforeTheFirstShow()
{
    for (int side = 0; side < 4; ++side) {
        WyBubbleWidget bubble(false, nullptr);
        auto* label = new QLabel(QStringLiteral("short"));
        auto* content = new QWidget;
        (new QHBoxLayout(content))->addWidget(label);
        bubble.SetContentWidget(content, QPoint(16, 8));
        label->setText(QString(40, QLatin1Char('x')) + QStringLiteral("\n\n\n\nmore"));
        label->setStyleSheet(QStringLiteral("font-size: 29px;"));
        bubble.setDerection(WyBubbleWidget::Derection(side));
        bubble.myMove(350, 340);
        const QPoint position = bubble.pos();
        bubble.show();
        QCOMPARE(bubble.pos(), position);
        const ArrowPlate plate{content->geometry(), 48, 16, 8, side, 8.0};
        QCOMPARE(bubble.pos() + plate.tip(), QPoint(350, 340));
    }
}

void TestWyBubbleWidget::movingKeepsASizeThatSomebodyHasGiven()
{
    WyBubbleWidget resized(false, nullptr);
    resized.SetContentWidget(contentOf(QSize(30, 40)), QPoint(5, 6));
    resized.resize(300, 200);
    resized.myMove(20, 30);
    QCOMPARE(resized.size(), QSize(300, 200));

    QWidget parent;
    auto* row = new QHBoxLayout(&parent);
    auto* child = new WyBubbleWidget(false, nullptr);
    child->SetContentWidget(contentOf(QSize(30, 40)), QPoint(5, 6));
    row->addWidget(child);
    child->setAttribute(Qt::WA_Resized, false);
    parent.resize(400, 300);
    row->activate();
    const QSize laidOut = child->size();
    QVERIFY(laidOut.width() > child->sizeHint().width());
    child->myMove(20, 30);
    QCOMPARE(child->size(), laidOut);
}

void TestWyBubbleWidget::movingSurvivesContentThatRebuildsItself()
{
    auto* content = contentOf(QSize(300, 100));
    auto* row = new QHBoxLayout(content);
    auto* left = new QWidget;
    const QPointer<QWidget> right = new QWidget;
    row->addWidget(left);
    row->addWidget(right);
    (new QHBoxLayout(right))->addWidget(new QLabel);
    auto* changing = new QLabel(QStringLiteral("short"));
    auto* resized = new QLabel(QStringLiteral("other"));
    (new QHBoxLayout(left))->addWidget(changing);
    left->layout()->addWidget(resized);
    WyBubbleWidget bubble(false, nullptr);
    bubble.SetContentWidget(content, QPoint(5, 6));
    bubble.show();
    QCoreApplication::processEvents();
    const WyTest::OnEvent rebuild(resized, QEvent::Resize, [right] { delete right; });
    changing->setText(QStringLiteral("a text that takes room from its neighbour"));
    bubble.myMove(400, 300);
    QVERIFY(!right);
    QCOMPARE(bubble.pos(), QPoint(400 - 5 + 8, 300 - (6 + 48) - 8));
}

void TestWyBubbleWidget::anUnknownSideNeitherDrawsAnArrowNorMoves()
{
    for (int side : {-1, 4, kInt}) {
        WyBubbleWidget bubble(false, nullptr);
        bubble.SetContentWidget(contentOf(QSize(80, 90)), QPoint(16, 8));
        bubble.setDerection(WyBubbleWidget::Derection(side));
        bubble.move(3, 4);
        bubble.show();
        bubble.myMove(200, 200);
        QCOMPARE(bubble.pos(), QPoint(3, 4));
        const ArrowPlate plate{QRect(16, 8, 80, 90), 48, 16, 8, side, 8.0};
        WY_COMPARE_PICTURES(WyTest::picture(&bubble), expectedBubble(bubble, plate, Qt::black));
    }
}

void TestWyBubbleWidget::contentThatDiedCountsAsNone()
{
    WyBubbleWidget bubble(false, nullptr);
    QWidget* content = contentOf(QSize(80, 90));
    bubble.SetContentWidget(content, QPoint(5, 6));
    bubble.show();
    delete content;
    const ArrowPlate painted{QRect(0, 0, 0, 0), 48, 16, 8, 0, 8.0};
    WY_COMPARE_PICTURES(WyTest::picture(&bubble), expectedBubble(bubble, painted, Qt::black));
    bubble.setDerection(WyBubbleWidget::Right);
    bubble.myMove(200, 300);
    const ArrowPlate told{QRect(5, 6, 0, 0), 48, 16, 8, 1, 8.0};
    QCOMPARE(bubble.pos() + told.tip(), QPoint(200, 300));
}

void TestWyBubbleWidget::laterContentTakesTheArrow()
{
    WyBubbleWidget bubble(false, nullptr);
    delete contentOf(QSize(1, 1));
    QWidget* first = contentOf(QSize(80, 90));
    QWidget* second = contentOf(QSize(50, 70));
    bubble.SetContentWidget(first, QPoint(5, 6));
    bubble.SetContentWidget(second, QPoint(7, 8));
    QCOMPARE(bubble.layout()->count(), 2);
    bubble.show();
    const ArrowPlate plate{second->geometry(), 48, 16, 8, 0, 8.0};
    WY_COMPARE_PICTURES(WyTest::picture(&bubble), expectedBubble(bubble, plate, Qt::black));
    delete first;
    bubble.adjustSize();
    QCOMPARE(second->geometry(), QRect(16, 8, 50, 70));
}

void TestWyBubbleWidget::survivesTheLossOfItsEffectAndLayout()
{
    WyBubbleWidget bubble(true, nullptr);
    auto* replacement = new QGraphicsOpacityEffect;
    bubble.setGraphicsEffect(replacement);
    bubble.setShadowColor(Qt::red);
    QCOMPARE(bubble.shadowColor(), QColor(Qt::red));
    QCOMPARE(bubble.graphicsEffect(), replacement);
    delete bubble.layout();
    QScopedPointer<QWidget> content(contentOf(QSize(30, 40)));
    bubble.SetContentWidget(content.data(), QPoint(1, 2));
    bubble.myMove(10, 10);
    bubble.show();
    QVERIFY(!bubble.grab().isNull());
}

void TestWyBubbleWidget::ownsContentAlsoWithoutItsLayout()
{
    WyBubbleWidget bubble(false, nullptr);
    delete bubble.layout();
    QWidget* content = contentOf(QSize(80, 90));
    bubble.SetContentWidget(content, QPoint(5, 6));
    QCOMPARE(content->parentWidget(), &bubble);
}

void TestWyBubbleWidget::takesCarelessNumbers()
{
    for (int value : {kInt, -kInt - 1, 0}) {
        for (int side = 0; side < 4; ++side) {
            WyBubbleWidget bubble(false, nullptr);
            bubble.SetContentWidget(contentOf(QSize(30, 40)), QPoint(value, value));
            bubble.setDerection(WyBubbleWidget::Derection(side));
            bubble.setTriangleInfo(value, value);
            bubble.setStartPos(value);
            WyTest::picture(&bubble);
            bubble.myMove(value, value);
        }
    }
}

void TestWyBubbleWidget::paintsItsBoxWhateverTheArrow()
{
    const QRect box(16, 8, 80, 90);
    for (const ArrowPlate& plate :
         {ArrowPlate{box, -kInt - 1, 16, 8, 0, 8.0}, ArrowPlate{box, 48, 16, kInt, 0, 8.0},
          ArrowPlate{box, 48, 16, kInt, 2, 8.0}, ArrowPlate{box, 48, -kInt - 1, 8, 1, 8.0}}) {
        WyBubbleWidget bubble(false, nullptr);
        bubble.SetContentWidget(contentOf(box.size()), QPoint());
        bubble.setDerection(WyBubbleWidget::Derection(plate.side));
        bubble.setTriangleInfo(plate.triangleWidth, plate.triangleHeight);
        bubble.setStartPos(plate.startPos);
        bubble.show();
        for (qreal ratio : {1.0, 1.5, 2.0})
            WY_COMPARE_PICTURES(WyTest::picture(&bubble, ratio),
                                expectedBubble(bubble, plate, Qt::black, ratio));
    }
}

void TestWyBubbleWidget::passesClicksOn()
{
    WyBubbleWidget bubble(false, nullptr);
    bubble.resize(50, 50);
    bubble.show();
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    press.accept();
    QCoreApplication::sendEvent(&bubble, &press);
    QVERIFY(!press.isAccepted()); // what a plain widget does with it
    QVERIFY(bubble.isVisible());
}

QTEST_MAIN(TestWyBubbleWidget)
#include "tst_wybubblewidget.moc"
