#include "WyWidgets/frame/WyMoveableFrame.h"

#include "support/Contract.h"
#include "support/Painting.h"

#include <QDialog>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QPainter>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>

using WyWidgets::WyMoveableFrame;

using LossOfRelease = void (*)(WyMoveableFrame&);
Q_DECLARE_METATYPE(LossOfRelease)

namespace {

void send(QWidget* widget, QEvent::Type type, QPointF position, Qt::MouseButton button = Qt::LeftButton)
{
    const bool isMove = type == QEvent::MouseMove;
    const bool isHeld = type != QEvent::MouseButtonRelease;
    QMouseEvent event(type, position, isMove ? Qt::NoButton : button, isHeld ? button : Qt::NoButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void press(QWidget* widget, QPointF position, Qt::MouseButton button = Qt::LeftButton)
{
    send(widget, QEvent::MouseButtonPress, position, button);
}

void move(QWidget* widget, QPointF position)
{
    send(widget, QEvent::MouseMove, position);
}

void release(QWidget* widget, QPointF position, Qt::MouseButton button = Qt::LeftButton)
{
    send(widget, QEvent::MouseButtonRelease, position, button);
}

/// A frame with room on all sides of it.
struct Stage
{
    Stage()
    {
        parent.resize(400, 300);
        frame.setGeometry(100, 90, 50, 10);
    }

    QWidget parent;
    WyMoveableFrame frame{WyMoveableFrame::kDirection_H, &parent};
};

/// A dashed line between two points as the frame paints it.
QImage dashedLine(QSize size, QPoint from, QPoint to, qreal ratio)
{
    return WyTest::painted(
        size,
        [=](QPainter& painter) {
            QPen pen(QColor("#07BE8B"));
            pen.setWidthF(2.0);
            pen.setStyle(Qt::DashLine);
            pen.setCapStyle(Qt::SquareCap);
            pen.setJoinStyle(Qt::BevelJoin);
            painter.setPen(pen);
            painter.drawLine(from, to);
        },
        ratio);
}

} // namespace

class TestWyMoveableFrame : public QObject
{
    Q_OBJECT

private slots:
    void registersItsSignalAndDirections();
    void startsTrackingTheMouseWithASplitCursor();
    void passesItsWindowFlagsOn();
    void hasAnAccessibleName();
    void paintsOneDashedLine_data();
    void paintsOneDashedLine();
    void paintsTheFrameOverTheLine();
    void onlyTheLeftButtonClicks_data();
    void onlyTheLeftButtonClicks();
    void movesWithThePressPointUnderThePointer();
    void bothAxesMoveWhateverTheDirection();
    void roundsToTheNearestPixels();
    void staysInsideItsParent_data();
    void staysInsideItsParent();
    void aFrameLargerThanItsParentStaysAtZero();
    void withoutAParentNothingHoldsIt();
    void aWindowIsNotHeldByItsParent();
    void doesNotMoveWithoutAPress();
    void anotherButtonEndsTheDrag();
    void onlyTheLeftReleaseEndsTheDrag();
    void movesThatLeaveTheButtonsOutDragAsWell();
    void aReleaseThatGetsLostEndsTheDrag_data();
    void aReleaseThatGetsLostEndsTheDrag();
    void passesMouseEventsOnToItsParent();
    void mayBeDeletedWhenClicked();
    void generatedDragsFollowTheModel();
};

void TestWyMoveableFrame::registersItsSignalAndDirections()
{
    WY_COMPARE_CONTRACT(WyMoveableFrame, {"SignalFrameClickeded()"}, {}, {});
    const QMetaEnum directions = QMetaEnum::fromType<WyMoveableFrame::FrameDirection>();
    QCOMPARE(QByteArray(directions.scope()), QByteArray("WyWidgets::WyMoveableFrame"));
    QCOMPARE(directions.keyCount(), 2);
    QCOMPARE(directions.keyToValue("kDirection_H"), 0);
    QCOMPARE(directions.keyToValue("kDirection_V"), 1);
}

void TestWyMoveableFrame::startsTrackingTheMouseWithASplitCursor()
{
    const WyMoveableFrame horizontal(WyMoveableFrame::kDirection_H);
    const WyMoveableFrame vertical(WyMoveableFrame::kDirection_V);
    QVERIFY(horizontal.hasMouseTracking());
    QVERIFY(vertical.hasMouseTracking());
    QCOMPARE(horizontal.cursor().shape(), Qt::SplitVCursor);
    QCOMPARE(vertical.cursor().shape(), Qt::SplitHCursor);
}

void TestWyMoveableFrame::passesItsWindowFlagsOn()
{
    QWidget parent;
    const WyMoveableFrame child(WyMoveableFrame::kDirection_H, &parent);
    QVERIFY(!child.isWindow());
    const WyMoveableFrame tool(WyMoveableFrame::kDirection_H, &parent, Qt::Tool | Qt::FramelessWindowHint);
    QCOMPARE(tool.windowType(), Qt::Tool);
    QVERIFY(tool.windowFlags().testFlag(Qt::FramelessWindowHint));
}

void TestWyMoveableFrame::hasAnAccessibleName()
{
    QCOMPARE(WyMoveableFrame(WyMoveableFrame::kDirection_H).accessibleName(), QStringLiteral("Divider"));
}

void TestWyMoveableFrame::paintsOneDashedLine_data()
{
    QTest::addColumn<WyMoveableFrame::FrameDirection>("direction");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    const auto horizontal = WyMoveableFrame::kDirection_H;
    const auto vertical = WyMoveableFrame::kDirection_V;
    QTest::newRow("horizontal, odd height") << horizontal << QSize(100, 9) << QPoint(0, 5) << QPoint(99, 5);
    QTest::newRow("horizontal, even height") << horizontal << QSize(60, 10) << QPoint(0, 5) << QPoint(59, 5);
    QTest::newRow("vertical, odd width") << vertical << QSize(7, 80) << QPoint(4, 0) << QPoint(4, 79);
    QTest::newRow("vertical, even width") << vertical << QSize(8, 81) << QPoint(4, 0) << QPoint(4, 80);
    QTest::newRow("one pixel") << horizontal << QSize(1, 1) << QPoint(0, 1) << QPoint(0, 1);
}

void TestWyMoveableFrame::paintsOneDashedLine()
{
    QFETCH(WyMoveableFrame::FrameDirection, direction);
    QFETCH(QSize, size);
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    WyMoveableFrame frame(direction);
    frame.resize(size);
    for (const qreal ratio : {1.0, 1.5, 2.0})
        WY_COMPARE_PICTURES(WyTest::picture(&frame, ratio), dashedLine(size, from, to, ratio));
}

void TestWyMoveableFrame::paintsTheFrameOverTheLine()
{
    WyMoveableFrame frame(WyMoveableFrame::kDirection_H);
    QFrame plain;
    for (QFrame* widget : {static_cast<QFrame*>(&frame), &plain}) {
        widget->setFrameStyle(QFrame::Box | QFrame::Plain);
        widget->setLineWidth(2);
        widget->resize(40, 11);
    }
    QImage expected = dashedLine(frame.size(), QPoint(0, 6), QPoint(39, 6), 1.0);
    QPainter(&expected).drawImage(0, 0, WyTest::picture(&plain));
    WY_COMPARE_PICTURES(WyTest::picture(&frame), expected);
}

void TestWyMoveableFrame::onlyTheLeftButtonClicks_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("clicks");
    QTest::newRow("left") << int(Qt::LeftButton) << 1;
    QTest::newRow("right") << int(Qt::RightButton) << 0;
    QTest::newRow("middle") << int(Qt::MiddleButton) << 0;
    QTest::newRow("back") << int(Qt::BackButton) << 0;
}

void TestWyMoveableFrame::onlyTheLeftButtonClicks()
{
    QFETCH(int, button);
    QFETCH(int, clicks);
    QWidget parent;
    WyMoveableFrame frame(WyMoveableFrame::kDirection_H, &parent);
    const QSignalSpy spy(&frame, &WyMoveableFrame::SignalFrameClickeded);
    press(&frame, QPointF(1, 1), Qt::MouseButton(button));
    QCOMPARE(spy.count(), clicks);
    release(&frame, QPointF(1, 1), Qt::MouseButton(button));
    QCOMPARE(spy.count(), clicks);
}

void TestWyMoveableFrame::movesWithThePressPointUnderThePointer()
{
    QWidget parent;
    parent.resize(400, 300);
    WyMoveableFrame frame(WyMoveableFrame::kDirection_H, &parent);
    frame.setGeometry(100, 80, 50, 6);
    press(&frame, QPointF(10, 3));
    move(&frame, QPointF(30, 43));
    QCOMPARE(frame.geometry(), QRect(120, 120, 50, 6));
    move(&frame, QPointF(5, 3)); // local to the moved frame
    QCOMPARE(frame.geometry(), QRect(115, 120, 50, 6));
}

void TestWyMoveableFrame::bothAxesMoveWhateverTheDirection()
{
    QWidget parent;
    parent.resize(400, 300);
    for (const auto direction : {WyMoveableFrame::kDirection_H, WyMoveableFrame::kDirection_V}) {
        WyMoveableFrame frame(direction, &parent);
        frame.setGeometry(50, 60, 20, 20);
        press(&frame, QPointF(0, 0));
        move(&frame, QPointF(7, 9));
        QCOMPARE(frame.pos(), QPoint(57, 69));
    }
}

void TestWyMoveableFrame::roundsToTheNearestPixels()
{
    QWidget parent;
    parent.resize(400, 300);
    WyMoveableFrame frame(WyMoveableFrame::kDirection_V, &parent);
    frame.setGeometry(50, 60, 20, 20);
    press(&frame, QPointF(2.5, 2.4));  // counts as (3, 2)
    move(&frame, QPointF(10.4, 10.6)); // counts as (10, 11)
    QCOMPARE(frame.pos(), QPoint(57, 69));
}

void TestWyMoveableFrame::staysInsideItsParent_data()
{
    QTest::addColumn<QPointF>("by");
    QTest::addColumn<QPoint>("position");
    QTest::newRow("beyond the left edge") << QPointF(-1000, 0) << QPoint(0, 90);
    QTest::newRow("beyond the top edge") << QPointF(0, -1000) << QPoint(100, 0);
    QTest::newRow("beyond the right edge") << QPointF(1000, 0) << QPoint(350, 90);
    QTest::newRow("beyond the bottom edge") << QPointF(0, 1000) << QPoint(100, 290);
    QTest::newRow("onto the right edge") << QPointF(250, 0) << QPoint(350, 90);
    QTest::newRow("a pixel short of it") << QPointF(249, 0) << QPoint(349, 90);
    QTest::newRow("into a corner") << QPointF(-1000, 1000) << QPoint(0, 290);
}

void TestWyMoveableFrame::staysInsideItsParent()
{
    QFETCH(QPointF, by);
    QFETCH(QPoint, position);
    Stage stage;
    press(&stage.frame, QPointF(4, 4));
    move(&stage.frame, QPointF(4, 4) + by);
    QCOMPARE(stage.frame.geometry(), QRect(position, QSize(50, 10)));
}

void TestWyMoveableFrame::aFrameLargerThanItsParentStaysAtZero()
{
    QWidget parent;
    parent.resize(100, 300);
    WyMoveableFrame frame(WyMoveableFrame::kDirection_H, &parent);
    frame.setGeometry(-40, 90, 150, 10);
    press(&frame, QPointF(50, 4));
    move(&frame, QPointF(60, 14));
    QCOMPARE(frame.geometry(), QRect(0, 100, 150, 10));
    move(&frame, QPointF(-500, 4));
    QCOMPARE(frame.geometry(), QRect(0, 100, 150, 10));
}

void TestWyMoveableFrame::withoutAParentNothingHoldsIt()
{
    WyMoveableFrame frame(WyMoveableFrame::kDirection_H);
    frame.setGeometry(100, 90, 50, 10);
    press(&frame, QPointF(0, 0));
    move(&frame, QPointF(-1100, 5000));
    QCOMPARE(frame.geometry(), QRect(-1000, 5090, 50, 10));
}

void TestWyMoveableFrame::aWindowIsNotHeldByItsParent()
{
    QWidget parent;
    parent.resize(100, 100);
    WyMoveableFrame frame(WyMoveableFrame::kDirection_H, &parent, Qt::Tool);
    frame.setGeometry(300, 300, 50, 10);
    press(&frame, QPointF(0, 0));
    move(&frame, QPointF(40, 30));
    QCOMPARE(frame.geometry(), QRect(340, 330, 50, 10));
}

void TestWyMoveableFrame::doesNotMoveWithoutAPress()
{
    Stage stage;
    move(&stage.frame, QPointF(30, 30));
    QCOMPARE(stage.frame.pos(), QPoint(100, 90));
    press(&stage.frame, QPointF(1, 1));
    release(&stage.frame, QPointF(1, 1));
    move(&stage.frame, QPointF(30, 30));
    QCOMPARE(stage.frame.pos(), QPoint(100, 90));
}

void TestWyMoveableFrame::anotherButtonEndsTheDrag()
{
    Stage stage;
    press(&stage.frame, QPointF(1, 1));
    press(&stage.frame, QPointF(1, 1), Qt::RightButton);
    move(&stage.frame, QPointF(30, 30));
    QCOMPARE(stage.frame.pos(), QPoint(100, 90));
}

void TestWyMoveableFrame::onlyTheLeftReleaseEndsTheDrag()
{
    Stage stage;
    press(&stage.frame, QPointF(1, 1));
    release(&stage.frame, QPointF(1, 1), Qt::RightButton);
    move(&stage.frame, QPointF(3, 1));
    QCOMPARE(stage.frame.pos(), QPoint(102, 90));
    release(&stage.frame, QPointF(1, 1));
    move(&stage.frame, QPointF(30, 30));
    QCOMPARE(stage.frame.pos(), QPoint(102, 90));
}

void TestWyMoveableFrame::movesThatLeaveTheButtonsOutDragAsWell()
{
    Stage stage;
    stage.parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stage.parent));
    press(&stage.frame, QPointF(10, 5));
    // From the window system, which saw no press.
    QTest::mouseMove(stage.parent.windowHandle(), QPoint(130, 98));
    QCOMPARE(stage.frame.pos(), QPoint(120, 93));
}

void TestWyMoveableFrame::aReleaseThatGetsLostEndsTheDrag_data()
{
    QTest::addColumn<LossOfRelease>("lose");
    QTest::newRow("to a dialog") << LossOfRelease([](WyMoveableFrame& frame) {
        QDialog dialog(frame.window());
        dialog.open();
    });
    QTest::newRow("hidden") << LossOfRelease([](WyMoveableFrame& frame) {
        frame.hide();
        frame.show();
    });
    QTest::newRow("disabled") << LossOfRelease([](WyMoveableFrame& frame) {
        frame.setEnabled(false);
        frame.setEnabled(true);
    });
}

void TestWyMoveableFrame::aReleaseThatGetsLostEndsTheDrag()
{
    QFETCH(LossOfRelease, lose);
    Stage stage;
    stage.parent.show();
    press(&stage.frame, QPointF(1, 1));
    lose(stage.frame);
    move(&stage.frame, QPointF(30, 30));
    QCOMPARE(stage.frame.pos(), QPoint(100, 90));
}

void TestWyMoveableFrame::passesMouseEventsOnToItsParent()
{
    // A plain frame leaves mouse events to its parent, and so does this one.
    QWidget parent;
    WyMoveableFrame frame(WyMoveableFrame::kDirection_H, &parent);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        event.accept();
        static_cast<QObject&>(frame).event(&event);
        QVERIFY(!event.isAccepted());
    }
}

void TestWyMoveableFrame::mayBeDeletedWhenClicked()
{
    QWidget parent;
    QPointer<WyMoveableFrame> frame = new WyMoveableFrame(WyMoveableFrame::kDirection_H, &parent);
    connect(frame.data(), &WyMoveableFrame::SignalFrameClickeded, &parent, [&frame] { delete frame; });
    press(frame, QPointF(1, 1));
    QVERIFY(!frame);
}

void TestWyMoveableFrame::generatedDragsFollowTheModel()
{
    QRandomGenerator random(20240502);
    const auto between = [&random](int lowest, int highest) {
        return lowest + int(random.bounded(highest - lowest + 1));
    };
    const auto nearest = [](double value) {
        return int(std::floor(value + 0.5));
    };
    const auto pinned = [](int value, int size, int room) {
        if (value + size > room)
            value = room - size;
        return value < 0 ? 0 : value;
    };
    for (int run = 0; run < 2000; ++run) {
        QWidget parent;
        parent.resize(between(1, 500), between(1, 500));
        WyMoveableFrame frame(WyMoveableFrame::FrameDirection(run % 2), &parent);
        frame.setGeometry(between(-50, 500), between(-50, 500), between(1, 300), between(1, 300));
        QRect expected = frame.geometry();
        const QPointF pressPoint(between(0, 3000) / 10.0, between(0, 3000) / 10.0);
        press(&frame, pressPoint);
        for (int step = between(1, 5); step > 0; --step) {
            const QPointF position(between(-8000, 8000) / 10.0, between(-8000, 8000) / 10.0);
            move(&frame, position);
            const int x = expected.x() - nearest(pressPoint.x()) + nearest(position.x());
            const int y = expected.y() - nearest(pressPoint.y()) + nearest(position.y());
            expected.moveTo(pinned(x, expected.width(), parent.width()),
                            pinned(y, expected.height(), parent.height()));
            QCOMPARE(frame.geometry(), expected);
        }
    }
}

QTEST_MAIN(TestWyMoveableFrame)
#include "tst_wymoveableframe.moc"
