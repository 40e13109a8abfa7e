#include "WyWidgets/layout/WySelectFrame.h"

#include "SelectFrameModel.h"
#include "support/Contract.h"
#include "support/Events.h"
#include "support/Painting.h"

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QWindow>
#include <QtTest>

using WyWidgets::WySelectFrame;

using LossOfRelease = void (*)(WySelectFrame*);
Q_DECLARE_METATYPE(LossOfRelease)

namespace {

/// A frame on a parent, and a hand that sends it mouse events.
struct Stage
{
    explicit Stage(WySelectFrame::FrameType type = WySelectFrame::kType_Points, QSize size = QSize(800, 600))
    {
        area.resize(size);
        frame = new WySelectFrame(type, &area);
        frame->setGeometry(100, 100, 200, 150);
        area.show();
    }

    void send(QEvent::Type type, QPointF local, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        const QPointF global = QPointF(frame->mapToGlobal(QPoint(0, 0))) + local;
        QMouseEvent event(type, local, frame->mapTo(&area, QPoint(0, 0)) + local, global, button, buttons,
                          {});
        QCoreApplication::sendEvent(frame, &event);
    }
    void press(QPointF local) { send(QEvent::MouseButtonPress, local, Qt::LeftButton, Qt::LeftButton); }
    void drag(QPointF local) { send(QEvent::MouseMove, local, Qt::NoButton, Qt::LeftButton); }
    void release(QPointF local) { send(QEvent::MouseButtonRelease, local, Qt::LeftButton, Qt::NoButton); }
    void hover(QPointF local) { send(QEvent::MouseMove, local, Qt::NoButton, Qt::NoButton); }
    /// Drags the frame-local point to a point of the parent.
    void dragTo(QPointF inParent) { drag(inParent - QPointF(frame->pos())); }

    QWidget area;
    QPointer<WySelectFrame> frame;
};

/// A cell of the grid as a line of text, which a failing comparison can show.
QString cell(const char* name, QSize size, int row, int column, Qt::Alignment alignment)
{
    return QStringLiteral("%1 %2 x %3 at (%4, %5) aligned 0x%6")
        .arg(QLatin1String(name))
        .arg(size.width())
        .arg(size.height())
        .arg(row)
        .arg(column)
        .arg(int(alignment), 0, 16);
}

QStringList cellsOf(const WySelectFrame& frame)
{
    QStringList cells;
    auto* grid = qobject_cast<QGridLayout*>(frame.layout());
    for (int i = 0; grid && i < grid->count(); ++i) {
        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
        const QWidget* widget = grid->itemAt(i)->widget();
        cells +=
            cell(qPrintable(widget->objectName()), widget->size(), row, column, grid->itemAt(i)->alignment());
    }
    return cells;
}

QStringList pointCells(bool withClose)
{
    const QSize point(5, 5);
    QStringList cells = {cell("label_point", point, 0, 0, Qt::AlignLeft | Qt::AlignTop),
                         cell("label_point", point, 0, 1, Qt::AlignHCenter | Qt::AlignTop),
                         cell("label_point", point, 0, 2, Qt::AlignRight | Qt::AlignTop)};
    if (withClose)
        cells += cell("button_close", QSize(16, 16), 0, 2, Qt::AlignRight | Qt::AlignTop);
    cells += cell("label_point", point, 1, 0, Qt::AlignLeft | Qt::AlignVCenter);
    cells += cell("label_point", point, 1, 2, Qt::AlignRight | Qt::AlignVCenter);
    cells += cell("label_point", point, 2, 0, Qt::AlignLeft | Qt::AlignBottom);
    cells += cell("label_point", point, 2, 1, Qt::AlignHCenter | Qt::AlignBottom);
    cells += cell("label_point", point, 2, 2, Qt::AlignRight | Qt::AlignBottom);
    return cells;
}

} // namespace

class TestWySelectFrame : public QObject
{
    Q_OBJECT

private slots:
    void registersTwoSignals();
    void enumerationsKeepTheirValues();
    void tracksTheMouse();
    void pointsAreInTheirCells();
    void theCloseTypeLaysItsButtonOverTheTopRightPoint();
    void theCornersTypeHasBracketsAndAMoveHandle();
    void anUnknownTypeHasAnEmptyGrid();
    void aSecondInitViewChangesNothing();
    void handlesLetTheMouseThrough();
    void theCloseButtonIsNamedAndForwardsItsClick();
    void theMoveHandleIsShownAndHidden();
    void accessorsStoreAndRepaint();
    void aChangeAsksForAPaint();
    void zones_data();
    void zones();
    void edgeZonesIgnoreTheOtherCoordinate();
    void aSmallFrameGivesTheFirstZone();
    void validRects_data();
    void validRects();
    void withoutAParentAnyRectIsValid();
    void onlyTheLeftButtonStartsADrag();
    void aDisabledFrameIgnoresTheMouse();
    void disablingEndsADrag();
    void hoveringChangesTheCursorOnly();
    void movingStopsAtTheBorders();
    void aFrameWiderThanItsParentGetsANegativePosition();
    void aMoveIsReportedAsOne();
    void aTopEdgeDraggedAcrossTheBottomCarriesTheOvershoot();
    void aBottomEdgeDraggedAcrossTheTopContinuesWithoutAJump();
    void aPressForgetsTheOvershoot();
    void aZeroSizeIsNoFlip();
    void aCornerTurnedOverBothWaysEndsAsItsHorizontalMirror();
    void theCursorFollowsAFlip();
    void theSignalCarriesTheComputedRectangle();
    void aRatioKeepsTheFrameAtLeast160By120();
    void aRatioDragAcrossTheBorderIsRefusedAsAWhole();
    void aBottomLeftRatioDragIsRefusedWhileTheRightEdgeIsOutside();
    void aRefusedMoveLeavesThePressPoint();
    void aRatioWithAZeroSideIsNoRatio();
    void hugeRatiosDoNotOverflow();
    void hugeMousePositionsDoNotOverflow();
    void withoutAParentMovesAreIgnored();
    void aParentLostInMidDragEndsTheMoves();
    void aSlotMayDeleteTheFrame();
    void itMayBeDeletedWhenItsCursorChanges();
    void itMayBeDeletedWhenTheMoveHandleGoes();
    void mouseEventsReachTheParent();
    void aDragOfTheWindowSystemMovesTheFrame();
    void movesThatLeaveTheButtonsOutDragAsWell();
    void aReleaseThatGetsLostEndsTheDrag_data();
    void aReleaseThatGetsLostEndsTheDrag();
    void aDragByTheMoveHandleOutlivesIt_data();
    void aDragByTheMoveHandleOutlivesIt();
    void aReleaseEndsTheDrag();
    void aRightReleaseDoesNot();
    void generatedDragsAgreeWithTheModel_data();
    void generatedDragsAgreeWithTheModel();
    void paintsTheStatedShapes_data();
    void paintsTheStatedShapes();
    void paintsTheFrameOverTheShapes();
    void generatedZonesAgreeWithTheModel();
};

void TestWySelectFrame::registersTwoSignals()
{
    WY_COMPARE_CONTRACT(WySelectFrame,
                        {"SignalWindowMoved(QRect rect, bool bCenter)", "SignalClickedClose()"}, {}, {});
}

void TestWySelectFrame::enumerationsKeepTheirValues()
{
    QCOMPARE(int(WySelectFrame::kType_Points), 0);
    QCOMPARE(int(WySelectFrame::kType_Corners), 1);
    QCOMPARE(int(WySelectFrame::kType_Close), 2);
    QCOMPARE(int(WySelectFrame::kDirect_None), 0);
    QCOMPARE(int(WySelectFrame::kDirect_Top), 1);
    QCOMPARE(int(WySelectFrame::kDirect_Bottom), 2);
    QCOMPARE(int(WySelectFrame::kDirect_Left), 3);
    QCOMPARE(int(WySelectFrame::kDirect_Right), 4);
    QCOMPARE(int(WySelectFrame::kDirect_TopLeft), 5);
    QCOMPARE(int(WySelectFrame::kDirect_BottomLeft), 6);
    QCOMPARE(int(WySelectFrame::kDirect_BottomRight), 7);
    QCOMPARE(int(WySelectFrame::kDirect_TopRight), 8);
}

void TestWySelectFrame::tracksTheMouse()
{
    WySelectFrame frame(WySelectFrame::kType_Points, nullptr, Qt::Tool);
    QVERIFY(frame.hasMouseTracking());
    QVERIFY(frame.windowFlags() & Qt::Tool);
}

void TestWySelectFrame::pointsAreInTheirCells()
{
    WySelectFrame frame(WySelectFrame::kType_Points);
    QCOMPARE(cellsOf(frame), pointCells(false));
    QCOMPARE(frame.layout()->spacing(), 0);
    QCOMPARE(frame.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
}

void TestWySelectFrame::theCloseTypeLaysItsButtonOverTheTopRightPoint()
{
    WySelectFrame frame(WySelectFrame::kType_Close);
    QCOMPARE(cellsOf(frame), pointCells(true));
}

void TestWySelectFrame::theCornersTypeHasBracketsAndAMoveHandle()
{
    WySelectFrame frame(WySelectFrame::kType_Corners);
    const QStringList expected = {cell("label_point", {24, 4}, 0, 0, Qt::AlignLeft | Qt::AlignTop),
                                  cell("label_point", {24, 4}, 0, 2, Qt::AlignRight | Qt::AlignTop),
                                  cell("label_point", {4, 21}, 1, 0, Qt::AlignLeft | Qt::AlignTop),
                                  cell("label_point", {4, 21}, 1, 2, Qt::AlignRight | Qt::AlignTop),
                                  cell("label_move", {48, 48}, 2, 1, Qt::AlignCenter),
                                  cell("label_point", {4, 21}, 3, 0, Qt::AlignLeft | Qt::AlignBottom),
                                  cell("label_point", {4, 21}, 3, 2, Qt::AlignRight | Qt::AlignBottom),
                                  cell("label_point", {24, 4}, 4, 0, Qt::AlignLeft | Qt::AlignBottom),
                                  cell("label_point", {24, 4}, 4, 2, Qt::AlignRight | Qt::AlignBottom)};
    QCOMPARE(cellsOf(frame), expected);
    auto* grid = qobject_cast<QGridLayout*>(frame.layout());
    QCOMPARE(grid->rowStretch(2), 1);
    auto* handle = frame.findChild<QLabel*>(QStringLiteral("label_move"));
    QCOMPARE(handle->parent(), &frame);
    QCOMPARE(handle->cursor().shape(), Qt::SizeAllCursor);
    QVERIFY(!handle->accessibleName().isEmpty());
}

void TestWySelectFrame::anUnknownTypeHasAnEmptyGrid()
{
    WySelectFrame frame(static_cast<WySelectFrame::FrameType>(7));
    QVERIFY(qobject_cast<QGridLayout*>(frame.layout()));
    QCOMPARE(frame.layout()->count(), 0);
    QVERIFY(frame.findChildren<QWidget*>().isEmpty());
}

void TestWySelectFrame::aSecondInitViewChangesNothing()
{
    WySelectFrame frame(WySelectFrame::kType_Close);
    frame.InitView();
    QCOMPARE(cellsOf(frame), pointCells(true));
}

void TestWySelectFrame::handlesLetTheMouseThrough()
{
    WySelectFrame frame(WySelectFrame::kType_Corners);
    const auto handles = frame.findChildren<QLabel*>(QStringLiteral("label_point"));
    QCOMPARE(handles.size(), 8);
    for (QLabel* handle : handles)
        QVERIFY(handle->testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(!frame.findChild<QLabel*>(QStringLiteral("label_move"))
                 ->testAttribute(Qt::WA_TransparentForMouseEvents));
}

void TestWySelectFrame::theCloseButtonIsNamedAndForwardsItsClick()
{
    Stage stage(WySelectFrame::kType_Close);
    auto* button = stage.frame->findChild<QPushButton*>(QStringLiteral("button_close"));
    QVERIFY(button);
    QCOMPARE(button->cursor().shape(), Qt::PointingHandCursor);
    QVERIFY(!button->accessibleName().isEmpty());
    QVERIFY(!button->toolTip().isEmpty());
    QSignalSpy spy(stage.frame, &WySelectFrame::SignalClickedClose);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(spy.size(), 1);
    connect(stage.frame, &WySelectFrame::SignalClickedClose, stage.frame, [&] { delete stage.frame; });
    button->click();
    QVERIFY(!stage.frame);
}

void TestWySelectFrame::theMoveHandleIsShownAndHidden()
{
    Stage stage(WySelectFrame::kType_Corners);
    auto* handle = stage.frame->findChild<QLabel*>(QStringLiteral("label_move"));
    stage.frame->SetMoveHandleVisible(false);
    QVERIFY(!handle->isVisible());
    stage.press(QPointF(100, 75));
    stage.frame->SetMoveHandleVisible(true);
    QVERIFY(handle->isVisible());
    QVERIFY(!QWidget::mouseGrabber());
    delete handle;
    stage.frame->SetMoveHandleVisible(true);
    Stage points(WySelectFrame::kType_Points);
    points.frame->SetMoveHandleVisible(true);
    QVERIFY(!points.frame->findChild<QLabel*>(QStringLiteral("label_move")));
}

void TestWySelectFrame::accessorsStoreAndRepaint()
{
    Stage stage;
    QVERIFY(!stage.frame->FrameColor().isValid());
    QVERIFY(stage.frame->Text().isEmpty());
    QVERIFY(stage.frame->IsFrameEnabled());
    const QImage plain = WyTest::picture(stage.frame);
    stage.frame->SetFrameColor(Qt::red);
    QCOMPARE(stage.frame->FrameColor(), QColor(Qt::red));
    const QImage red = WyTest::picture(stage.frame);
    QVERIFY(red != plain);
    stage.frame->SetText(QStringLiteral("200 x 150"));
    QCOMPARE(stage.frame->Text(), QStringLiteral("200 x 150"));
    QVERIFY(WyTest::picture(stage.frame) != red);
    stage.frame->SetFrameEnabled(false);
    QVERIFY(!stage.frame->IsFrameEnabled());
}

void TestWySelectFrame::aChangeAsksForAPaint()
{
    Stage stage;
    QVERIFY(QTest::qWaitForWindowExposed(&stage.area));
    QCoreApplication::processEvents();
    WyTest::EventCounter paints(stage.frame, QEvent::Paint);
    stage.frame->SetFrameColor(Qt::red);
    QTRY_COMPARE(paints.count(), 1);
    stage.frame->SetText(QStringLiteral("200 x 150"));
    QTRY_COMPARE(paints.count(), 2);
    stage.frame->SetFrameEnabled(false);
    QTRY_COMPARE(paints.count(), 3);
}

void TestWySelectFrame::zones_data()
{
    QTest::addColumn<QPoint>("local");
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("cursor");
    // The frame is 200 x 150: its last pixel is (199, 149).
    QTest::newRow("top-left, first pixel") << QPoint(0, 0) << 5 << int(Qt::SizeFDiagCursor);
    QTest::newRow("top-left, last pixel") << QPoint(12, 12) << 5 << int(Qt::SizeFDiagCursor);
    QTest::newRow("beyond the corner zone") << QPoint(13, 13) << 0 << int(Qt::SizeAllCursor);
    QTest::newRow("bottom-right, first pixel") << QPoint(187, 137) << 7 << int(Qt::SizeFDiagCursor);
    QTest::newRow("bottom-right, last pixel") << QPoint(199, 149) << 7 << int(Qt::SizeFDiagCursor);
    QTest::newRow("outside the bottom right") << QPoint(200, 150) << 0 << int(Qt::SizeAllCursor);
    QTest::newRow("before the corner zone") << QPoint(186, 136) << 0 << int(Qt::SizeAllCursor);
    QTest::newRow("bottom-left") << QPoint(12, 137) << 6 << int(Qt::SizeBDiagCursor);
    QTest::newRow("top-right") << QPoint(187, 12) << 8 << int(Qt::SizeBDiagCursor);
    QTest::newRow("left") << QPoint(6, 70) << 3 << int(Qt::SizeHorCursor);
    QTest::newRow("beyond left") << QPoint(7, 70) << 0 << int(Qt::SizeAllCursor);
    QTest::newRow("right") << QPoint(193, 70) << 4 << int(Qt::SizeHorCursor);
    QTest::newRow("before right") << QPoint(192, 70) << 0 << int(Qt::SizeAllCursor);
    QTest::newRow("top") << QPoint(100, 6) << 1 << int(Qt::SizeVerCursor);
    QTest::newRow("beyond top") << QPoint(100, 7) << 0 << int(Qt::SizeAllCursor);
    QTest::newRow("bottom") << QPoint(100, 143) << 2 << int(Qt::SizeVerCursor);
    QTest::newRow("before bottom") << QPoint(100, 142) << 0 << int(Qt::SizeAllCursor);
    QTest::newRow("interior") << QPoint(100, 75) << 0 << int(Qt::SizeAllCursor);
}

void TestWySelectFrame::zones()
{
    QFETCH(QPoint, local);
    QFETCH(int, direction);
    QFETCH(int, cursor);
    Stage stage;
    QCOMPARE(stage.frame->GetCursorDirect(stage.frame->mapToGlobal(local)), direction);
    QCOMPARE(int(stage.frame->cursor().shape()), cursor);
}

void TestWySelectFrame::edgeZonesIgnoreTheOtherCoordinate()
{
    Stage stage;
    QCOMPARE(stage.frame->GetCursorDirect(stage.frame->mapToGlobal(QPoint(3, -500))), 3);
    QCOMPARE(stage.frame->GetCursorDirect(stage.frame->mapToGlobal(QPoint(900, 3))), 1);
}

void TestWySelectFrame::aSmallFrameGivesTheFirstZone()
{
    Stage stage;
    stage.frame->resize(16, 16);
    QCOMPARE(stage.frame->GetCursorDirect(stage.frame->mapToGlobal(QPoint(12, 12))), 5);
    QCOMPARE(stage.frame->GetCursorDirect(stage.frame->mapToGlobal(QPoint(13, 13))), 7);
    QCOMPARE(stage.frame->GetCursorDirect(stage.frame->mapToGlobal(QPoint(2, 13))), 6);
    QCOMPARE(stage.frame->GetCursorDirect(stage.frame->mapToGlobal(QPoint(13, 2))), 8);
}

void TestWySelectFrame::generatedZonesAgreeWithTheModel()
{
    QRandomGenerator random(30);
    Stage stage;
    for (int i = 0; i < 20000; ++i) {
        const QSize size(random.bounded(0, 60), random.bounded(0, 60));
        stage.frame->resize(size);
        const QPoint p(random.bounded(-5, 65), random.bounded(-5, 65));
        QCOMPARE(stage.frame->GetCursorDirect(stage.frame->mapToGlobal(p)),
                 SelectFrameModel::zone(p, stage.frame->width(), stage.frame->height()));
    }
}

void TestWySelectFrame::validRects_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("valid");
    // The parent is 800 x 600.
    QTest::newRow("inside") << QRect(10, 20, 30, 40) << QRect(10, 20, 30, 40);
    QTest::newRow("at the origin") << QRect(0, 0, 30, 40) << QRect(0, 0, 30, 40);
    QTest::newRow("past the left: shrinks") << QRect(-10, 20, 30, 40) << QRect(0, 20, 20, 40);
    QTest::newRow("past the top: shrinks") << QRect(10, -15, 30, 40) << QRect(10, 0, 30, 25);
    QTest::newRow("past the right") << QRect(790, 20, 30, 40) << QRect(790, 20, 10, 40);
    QTest::newRow("past the bottom") << QRect(10, 590, 30, 40) << QRect(10, 590, 30, 10);
    QTest::newRow("larger than the parent") << QRect(-5, -5, 900, 900) << QRect(0, 0, 800, 600);
    QTest::newRow("wholly outside") << QRect(-50, 0, 20, 40) << QRect(QPoint(0, 0), QPoint(-31, 39));
    QTest::newRow("negative height") << QRect(10, 50, 30, -20) << QRect(10, 50, 30, -20);
    QTest::newRow("largest numbers") << QRect(QPoint(INT_MIN, INT_MIN), QPoint(INT_MAX, INT_MAX))
                                     << QRect(QPoint(0, 0), QPoint(799, 599));
}

void TestWySelectFrame::validRects()
{
    QFETCH(QRect, rect);
    QFETCH(QRect, valid);
    Stage stage;
    QCOMPARE(stage.frame->GetRectVaild(rect), valid);
}

void TestWySelectFrame::withoutAParentAnyRectIsValid()
{
    WySelectFrame frame(WySelectFrame::kType_Points);
    QCOMPARE(frame.GetRectVaild(QRect(-5, -5, 5000, 5000)), QRect(-5, -5, 5000, 5000));
}

void TestWySelectFrame::onlyTheLeftButtonStartsADrag()
{
    Stage stage;
    QSignalSpy spy(stage.frame, &WySelectFrame::SignalWindowMoved);
    stage.send(QEvent::MouseButtonPress, QPointF(100, 75), Qt::RightButton, Qt::RightButton);
    stage.send(QEvent::MouseMove, QPointF(150, 75), Qt::NoButton, Qt::RightButton);
    QCOMPARE(stage.frame->geometry(), QRect(100, 100, 200, 150));
    QCOMPARE(spy.size(), 0);
}

void TestWySelectFrame::aDisabledFrameIgnoresTheMouse()
{
    Stage stage;
    stage.frame->SetFrameEnabled(false);
    stage.frame->setCursor(Qt::CrossCursor);
    QSignalSpy spy(stage.frame, &WySelectFrame::SignalWindowMoved);
    stage.hover(QPointF(1, 1));
    stage.press(QPointF(100, 75));
    stage.drag(QPointF(150, 75));
    stage.release(QPointF(150, 75));
    QCOMPARE(stage.frame->cursor().shape(), Qt::CrossCursor);
    QCOMPARE(stage.frame->geometry(), QRect(100, 100, 200, 150));
    QCOMPARE(spy.size(), 0);
}

void TestWySelectFrame::disablingEndsADrag()
{
    Stage stage;
    stage.press(QPointF(100, 75));
    stage.frame->SetFrameEnabled(false);
    stage.frame->SetFrameEnabled(true);
    stage.drag(QPointF(150, 75));
    QCOMPARE(stage.frame->geometry(), QRect(100, 100, 200, 150));
}

void TestWySelectFrame::hoveringChangesTheCursorOnly()
{
    Stage stage;
    QSignalSpy spy(stage.frame, &WySelectFrame::SignalWindowMoved);
    stage.hover(QPointF(1, 75));
    QCOMPARE(stage.frame->cursor().shape(), Qt::SizeHorCursor);
    stage.hover(QPointF(199.4, 75));
    QCOMPARE(stage.frame->cursor().shape(), Qt::SizeHorCursor);
    stage.hover(QPointF(100, 75));
    QCOMPARE(stage.frame->cursor().shape(), Qt::SizeAllCursor);
    QCOMPARE(spy.size(), 0);
    QCOMPARE(stage.frame->geometry(), QRect(100, 100, 200, 150));
}

void TestWySelectFrame::movingStopsAtTheBorders()
{
    Stage stage;
    stage.press(QPointF(100, 75));
    stage.dragTo(QPointF(-500, -500));
    QCOMPARE(stage.frame->geometry(), QRect(0, 0, 200, 150));
    stage.dragTo(QPointF(5000, 5000));
    QCOMPARE(stage.frame->geometry(), QRect(600, 450, 200, 150));
}

void TestWySelectFrame::aFrameWiderThanItsParentGetsANegativePosition()
{
    Stage stage;
    stage.frame->setGeometry(0, 0, 1000, 100);
    stage.press(QPointF(100, 50));
    stage.drag(QPointF(130, 50));
    QCOMPARE(stage.frame->geometry(), QRect(-200, 0, 1000, 100));
}

void TestWySelectFrame::aMoveIsReportedAsOne()
{
    Stage stage;
    QSignalSpy spy(stage.frame, &WySelectFrame::SignalWindowMoved);
    stage.press(QPointF(100, 75));
    stage.drag(QPointF(110, 80));
    stage.release(QPointF(100, 75));
    stage.press(QPointF(100, 2));
    stage.drag(QPointF(100, 12));
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.at(0).at(0).toRect(), QRect(110, 105, 200, 150));
    QCOMPARE(spy.at(0).at(1).toBool(), true);
    QCOMPARE(spy.at(1).at(0).toRect(), QRect(110, 115, 200, 140));
    QCOMPARE(spy.at(1).at(1).toBool(), false);
}

void TestWySelectFrame::aTopEdgeDraggedAcrossTheBottomCarriesTheOvershoot()
{
    Stage stage;
    QSignalSpy spy(stage.frame, &WySelectFrame::SignalWindowMoved);
    stage.press(QPointF(100, 0));
    stage.drag(QPointF(100, 180)); // 30 px below the bottom edge at 150
    QCOMPARE(spy.last().at(0).toRect(), QRect(100, 280, 200, 0));
    QCOMPARE(stage.frame->y(), 280);
    stage.drag(QPointF(100, 10)); // 10 px further down
    QCOMPARE(spy.last().at(0).toRect(), QRect(100, 250, 200, 40));
    stage.dragTo(QPointF(200, 300));
    QCOMPARE(stage.frame->geometry(), QRect(100, 250, 200, 50));
}

void TestWySelectFrame::aBottomEdgeDraggedAcrossTheTopContinuesWithoutAJump()
{
    Stage stage;
    stage.press(QPointF(100, 149));
    stage.dragTo(QPointF(200, 69)); // the edge is to be 30 px above the top at 100
    QCOMPARE(stage.frame->geometry(), QRect(100, 100, 200, 0));
    stage.dragTo(QPointF(200, 68));
    QCOMPARE(stage.frame->geometry(), QRect(100, 69, 200, 31));
    stage.dragTo(QPointF(200, 58));
    QCOMPARE(stage.frame->geometry(), QRect(100, 59, 200, 41));
}

void TestWySelectFrame::aPressForgetsTheOvershoot()
{
    Stage stage;
    stage.press(QPointF(100, 0));
    stage.drag(QPointF(100, 180)); // carries 30 px on
    QCOMPARE(stage.frame->geometry(), QRect(100, 280, 200, 0));
    stage.press(QPointF(100, 0));
    stage.drag(QPointF(100, -10));
    QCOMPARE(stage.frame->geometry(), QRect(100, 270, 200, 10));
    // And likewise from left to right.
    stage.frame->setGeometry(100, 100, 200, 150);
    stage.press(QPointF(0, 70));
    stage.drag(QPointF(230, 70));
    QCOMPARE(stage.frame->geometry(), QRect(330, 100, 0, 150));
    stage.press(QPointF(0, 70));
    stage.drag(QPointF(-10, 70));
    QCOMPARE(stage.frame->geometry(), QRect(320, 100, 10, 150));
}

void TestWySelectFrame::aZeroSizeIsNoFlip()
{
    Stage stage;
    stage.press(QPointF(100, 0));
    stage.drag(QPointF(100, 150));
    QCOMPARE(stage.frame->geometry(), QRect(100, 250, 200, 0));
    QCOMPARE(stage.frame->cursor().shape(), Qt::SizeVerCursor);
    stage.dragTo(QPointF(200, 240));
    QCOMPARE(stage.frame->geometry(), QRect(100, 240, 200, 10));
}

void TestWySelectFrame::aCornerTurnedOverBothWaysEndsAsItsHorizontalMirror()
{
    Stage stage;
    stage.press(QPointF(0, 0));
    stage.drag(QPointF(230, 180));
    QCOMPARE(stage.frame->geometry(), QRect(330, 280, 0, 0));
    // Now it is the top-right corner: the cursor says so.
    QCOMPARE(stage.frame->cursor().shape(), Qt::SizeBDiagCursor);
}

void TestWySelectFrame::theCursorFollowsAFlip()
{
    Stage stage;
    stage.press(QPointF(0, 0));
    QCOMPARE(stage.frame->cursor().shape(), Qt::SizeFDiagCursor);
    stage.drag(QPointF(10, 180));
    QCOMPARE(stage.frame->cursor().shape(), Qt::SizeBDiagCursor);
}

void TestWySelectFrame::theSignalCarriesTheComputedRectangle()
{
    Stage stage;
    stage.frame->setMinimumHeight(50);
    QSignalSpy spy(stage.frame, &WySelectFrame::SignalWindowMoved);
    stage.press(QPointF(100, 149));
    stage.drag(QPointF(100, 20));
    QCOMPARE(spy.last().at(0).toRect().height(), 21);
    QCOMPARE(stage.frame->height(), 50);
}

void TestWySelectFrame::aRatioKeepsTheFrameAtLeast160By120()
{
    Stage stage;
    stage.frame->SetFrameScale(QSize(4, 3), true);
    stage.frame->setGeometry(100, 100, 200, 150);
    stage.press(QPointF(100, 149));
    for (int y = 148; y > 40; --y)
        stage.dragTo(QPointF(200, 100 + y));
    QCOMPARE(stage.frame->size(), QSize(160, 120));
}

void TestWySelectFrame::aRatioDragAcrossTheBorderIsRefusedAsAWhole()
{
    Stage stage;
    stage.frame->SetFrameScale(QSize(4, 3), true);
    QSignalSpy spy(stage.frame, &WySelectFrame::SignalWindowMoved);
    stage.press(QPointF(100, 149));
    stage.dragTo(QPointF(200, 700));
    QCOMPARE(spy.size(), 0);
    QCOMPARE(stage.frame->geometry(), QRect(100, 100, 200, 150));
    stage.dragTo(QPointF(200, 309));
    QCOMPARE(stage.frame->geometry(), QRect(100, 100, 280, 210));
}

void TestWySelectFrame::aBottomLeftRatioDragIsRefusedWhileTheRightEdgeIsOutside()
{
    Stage stage;
    stage.frame->SetFrameScale(QSize(1, 1), true);
    stage.frame->setGeometry(601, 100, 200, 200);
    stage.press(QPointF(2, 198));
    stage.drag(QPointF(12, 198));
    QCOMPARE(stage.frame->geometry(), QRect(601, 100, 200, 200));
    stage.release(QPointF(12, 198));
    stage.frame->setGeometry(600, 100, 200, 200);
    stage.press(QPointF(2, 198));
    stage.drag(QPointF(12, 198));
    QCOMPARE(stage.frame->geometry(), QRect(610, 100, 190, 190));
}

void TestWySelectFrame::aRefusedMoveLeavesThePressPoint()
{
    Stage stage;
    stage.frame->SetFrameScale(QSize(1, 1), true);
    stage.frame->setGeometry(100, 100, 200, 200);
    stage.press(QPointF(199, 100));
    stage.dragTo(QPointF(5000, 200));
    stage.dragTo(QPointF(309, 200));
    QCOMPARE(stage.frame->geometry(), QRect(100, 100, 210, 210));
}

void TestWySelectFrame::aRatioWithAZeroSideIsNoRatio()
{
    for (const QSize ratio : {QSize(0, 3), QSize(4, 0), QSize(-1, -1), QSize(4, -3)}) {
        Stage stage;
        stage.frame->SetFrameScale(ratio, true);
        stage.press(QPointF(100, 149));
        stage.drag(QPointF(100, 49));
        QCOMPARE(stage.frame->geometry(), QRect(100, 100, 200, 50));
    }
}

void TestWySelectFrame::hugeRatiosDoNotOverflow()
{
    Stage stage;
    stage.frame->SetFrameScale(QSize(INT_MAX, INT_MAX), true);
    stage.frame->setGeometry(100, 100, 200, 200);
    stage.press(QPointF(100, 199));
    stage.drag(QPointF(100, 209));
    QCOMPARE(stage.frame->geometry(), QRect(100, 100, 210, 210));
    stage.frame->SetFrameScale(QSize(INT_MAX, 1), true);
    stage.drag(QPointF(100, 229));
    QCOMPARE(stage.frame->geometry(), QRect(100, 100, 210, 210));
}

void TestWySelectFrame::hugeMousePositionsDoNotOverflow()
{
    for (const QPointF where : {QPointF(0, 0), QPointF(199, 149), QPointF(100, 75), QPointF(0, 149)}) {
        Stage stage;
        stage.press(where);
        stage.drag(QPointF(2e9, 2e9));
        stage.drag(QPointF(-2e9, -2e9));
        stage.drag(QPointF(2e9, -2e9));
        stage.release(QPointF(0, 0));
        stage.frame->setGeometry(100, 100, 200, 150);
        stage.press(QPointF(100, 75));
        stage.drag(QPointF(110, 75));
        QCOMPARE(stage.frame->geometry(), QRect(110, 100, 200, 150));
    }
}

void TestWySelectFrame::withoutAParentMovesAreIgnored()
{
    WySelectFrame frame(WySelectFrame::kType_Points);
    frame.setGeometry(10, 10, 100, 100);
    frame.show();
    QSignalSpy spy(&frame, &WySelectFrame::SignalWindowMoved);
    QTest::mousePress(&frame, Qt::LeftButton, {}, QPoint(50, 50));
    QMouseEvent move(QEvent::MouseMove, QPointF(70, 50), QPointF(70, 50), frame.mapToGlobal(QPoint(70, 50)),
                     Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&frame, &move);
    QCOMPARE(spy.size(), 0);
}

void TestWySelectFrame::aParentLostInMidDragEndsTheMoves()
{
    Stage stage;
    stage.press(QPointF(100, 75));
    stage.frame->setParent(nullptr);
    const QRect geometry = stage.frame->geometry();
    QMouseEvent move(QEvent::MouseMove, QPointF(120, 75), QPointF(120, 75), QPointF(220, 175), Qt::NoButton,
                     Qt::LeftButton, {});
    QCoreApplication::sendEvent(stage.frame, &move);
    QCOMPARE(stage.frame->geometry(), geometry);
    delete stage.frame;
}

void TestWySelectFrame::aSlotMayDeleteTheFrame()
{
    for (const QPointF where : {QPointF(100, 75), QPointF(100, 0)}) {
        Stage stage;
        connect(stage.frame, &WySelectFrame::SignalWindowMoved, &stage.area, [&] { delete stage.frame; });
        stage.press(where);
        stage.drag(where + QPointF(10, 10));
        QVERIFY(!stage.frame);
    }
}

void TestWySelectFrame::itMayBeDeletedWhenItsCursorChanges()
{
    const auto deletionDuring = [](bool isPressed, void (*act)(Stage&)) {
        Stage stage;
        if (isPressed)
            stage.press(QPointF(100, 0));
        const WyTest::OnEvent deleter(stage.frame, QEvent::CursorChange, [&] { delete stage.frame; });
        act(stage);
        QVERIFY(!stage.frame);
    };
    deletionDuring(false, [](Stage& stage) { stage.hover(QPointF(1, 75)); });
    deletionDuring(false, [](Stage& stage) { stage.press(QPointF(1, 75)); });
    deletionDuring(true, [](Stage& stage) { stage.drag(QPointF(100, 180)); }); // turns over
}

void TestWySelectFrame::itMayBeDeletedWhenTheMoveHandleGoes()
{
    Stage stage(WySelectFrame::kType_Corners);
    auto* handle = stage.frame->findChild<QLabel*>(QStringLiteral("label_move"));
    const WyTest::OnEvent deleter(handle, QEvent::HideToParent, [&] { delete stage.frame; });
    stage.press(QPointF(100, 75));
    stage.frame->SetMoveHandleVisible(false);
    QVERIFY(!stage.frame);
}

void TestWySelectFrame::mouseEventsReachTheParent()
{
    // A plain frame leaves mouse events to its parent, and so does this one, whatever it makes of them.
    Stage stage;
    const auto isLeftToTheParent = [&](QEvent::Type type, QPointF local, Qt::MouseButton button) {
        QMouseEvent event(type, local, stage.frame->mapToGlobal(local.toPoint()), button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
        event.accept();
        static_cast<QObject*>(stage.frame)->event(&event);
        return !event.isAccepted();
    };
    for (const bool enabled : {true, false}) {
        stage.frame->SetFrameEnabled(enabled);
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            QVERIFY(isLeftToTheParent(QEvent::MouseMove, QPointF(100, 75), button));
            QVERIFY(isLeftToTheParent(QEvent::MouseButtonPress, QPointF(100, 75), button));
            QVERIFY(isLeftToTheParent(QEvent::MouseMove, QPointF(105, 75), button));
            QVERIFY(isLeftToTheParent(QEvent::MouseButtonRelease, QPointF(105, 75), button));
        }
    }
    // A move that the ratio refuses, too.
    stage.frame->SetFrameEnabled(true);
    stage.frame->SetFrameScale(QSize(4, 3), true);
    const QRect before = stage.frame->geometry();
    stage.press(QPointF(100, 149));
    QVERIFY(isLeftToTheParent(QEvent::MouseMove, QPointF(100, 5000), Qt::LeftButton));
    QCOMPARE(stage.frame->geometry(), before);
}

void TestWySelectFrame::aDragOfTheWindowSystemMovesTheFrame()
{
    Stage stage;
    QVERIFY(QTest::qWaitForWindowExposed(&stage.area));
    QWindow* window = stage.area.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, QPoint(200, 175));
    QTest::mouseMove(window, QPoint(230, 185));
    QCOMPARE(stage.frame->geometry(), QRect(130, 110, 200, 150));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, QPoint(230, 185));
}

void TestWySelectFrame::movesThatLeaveTheButtonsOutDragAsWell()
{
    Stage stage;
    QVERIFY(QTest::qWaitForWindowExposed(&stage.area));
    stage.press(QPointF(100, 75));
    // From the window system, which saw no press.
    QTest::mouseMove(stage.area.windowHandle(), QPoint(240, 195));
    QCOMPARE(stage.frame->geometry(), QRect(140, 120, 200, 150));
}

void TestWySelectFrame::aReleaseThatGetsLostEndsTheDrag_data()
{
    QTest::addColumn<LossOfRelease>("lose");
    QTest::newRow("to a dialog") << LossOfRelease([](WySelectFrame* frame) {
        QDialog dialog(frame->window());
        dialog.open();
    });
    QTest::newRow("hidden") << LossOfRelease([](WySelectFrame* frame) {
        frame->hide();
        frame->show();
    });
    QTest::newRow("disabled") << LossOfRelease([](WySelectFrame* frame) {
        frame->setEnabled(false);
        frame->setEnabled(true);
    });
}

void TestWySelectFrame::aReleaseThatGetsLostEndsTheDrag()
{
    QFETCH(LossOfRelease, lose);
    Stage stage;
    stage.press(QPointF(100, 75));
    lose(stage.frame);
    stage.drag(QPointF(150, 75));
    QCOMPARE(stage.frame->geometry(), QRect(100, 100, 200, 150));
    // It is a hover.
    stage.hover(QPointF(2, 75));
    QCOMPARE(stage.frame->cursor().shape(), Qt::SizeHorCursor);
}

void TestWySelectFrame::aDragByTheMoveHandleOutlivesIt_data()
{
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("hidden") << false;
    QTest::newRow("deleted") << true;
}

void TestWySelectFrame::aDragByTheMoveHandleOutlivesIt()
{
    QFETCH(bool, isDeleted);
    Stage stage(WySelectFrame::kType_Corners);
    QVERIFY(QTest::qWaitForWindowExposed(&stage.area));
    QWindow* window = stage.area.windowHandle();
    connect(stage.frame, &WySelectFrame::SignalWindowMoved, stage.frame, [&] {
        if (isDeleted)
            delete stage.frame->findChild<QLabel*>(QStringLiteral("label_move"));
        else
            stage.frame->SetMoveHandleVisible(false);
    });
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, QPoint(200, 175));
    QTest::mouseMove(window, QPoint(230, 185));
    QTest::mouseMove(window, QPoint(240, 195));
    QCOMPARE(stage.frame->geometry(), QRect(140, 120, 200, 150));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, QPoint(240, 195));
    QTest::mouseMove(window, QPoint(250, 205));
    QCOMPARE(stage.frame->geometry(), QRect(140, 120, 200, 150));
    QVERIFY(!QWidget::mouseGrabber());
}

void TestWySelectFrame::aReleaseEndsTheDrag()
{
    Stage stage;
    stage.press(QPointF(100, 75));
    stage.release(QPointF(100, 75));
    stage.drag(QPointF(150, 75));
    QCOMPARE(stage.frame->geometry(), QRect(100, 100, 200, 150));
}

void TestWySelectFrame::aRightReleaseDoesNot()
{
    Stage stage;
    stage.press(QPointF(100, 75));
    stage.send(QEvent::MouseButtonRelease, QPointF(100, 75), Qt::RightButton, Qt::LeftButton);
    stage.drag(QPointF(150, 75));
    QCOMPARE(stage.frame->geometry(), QRect(150, 100, 200, 150));
}

void TestWySelectFrame::generatedDragsAgreeWithTheModel_data()
{
    QTest::addColumn<bool>("keep");
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 4; ++seed) {
        QTest::addRow("free, seed %u", seed) << false << seed;
        QTest::addRow("ratio, seed %u", seed) << true << seed;
    }
}

void TestWySelectFrame::generatedDragsAgreeWithTheModel()
{
    QFETCH(bool, keep);
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    Stage stage;
    QSignalSpy spy(stage.frame, &WySelectFrame::SignalWindowMoved);
    int accepted = 0;
    int flips = 0;
    for (int round = 0; round < 1500; ++round) {
        SelectFrameModel model;
        model.parentW = 300 + int(random.bounded(600));
        model.parentH = 300 + int(random.bounded(600));
        model.keep = keep;
        model.ratioW = 1 + int(random.bounded(20));
        model.ratioH = 1 + int(random.bounded(20));
        stage.area.resize(model.parentW, model.parentH);
        stage.frame->SetFrameScale(QSize(model.ratioW, model.ratioH), keep);
        stage.frame->setGeometry(random.bounded(-20, 300), random.bounded(-20, 300), random.bounded(30, 320),
                                 random.bounded(30, 320));
        model.x = stage.frame->x();
        model.y = stage.frame->y();
        model.w = stage.frame->width();
        model.h = stage.frame->height();
        // Half of the presses hit a border zone.
        QPointF where(random.bounded(model.w) + random.bounded(1.0),
                      random.bounded(model.h) + random.bounded(1.0));
        if (random.bounded(2))
            where.setX(random.bounded(2) ? random.bounded(5) : model.w - 1 - int(random.bounded(5)));
        if (random.bounded(2))
            where.setY(random.bounded(2) ? random.bounded(5) : model.h - 1 - int(random.bounded(5)));
        stage.press(where);
        model.press(where);
        QPointF pointer = where + QPointF(model.x, model.y);
        for (int step = 0; step < 12; ++step) {
            const int reach = keep ? 15 : 120;
            pointer += QPointF(random.bounded(-reach, reach + 1) + random.bounded(1.0),
                               random.bounded(-reach, reach + 1) + random.bounded(1.0));
            const QPointF local = pointer - QPointF(stage.frame->pos());
            spy.clear();
            const int before = model.direction;
            stage.drag(local);
            model.drag(local);
            flips += before != model.direction;
            QCOMPARE(spy.size(), model.moved ? 1 : 0);
            if (model.moved) {
                ++accepted;
                QCOMPARE(spy.at(0).at(0).toRect(), model.emitted);
                QCOMPARE(spy.at(0).at(1).toBool(), model.direction == SelectFrameModel::Move);
            }
            QCOMPARE(stage.frame->geometry(), QRect(model.x, model.y, model.w, model.h));
        }
        stage.release(pointer);
    }
    // The generator reaches what it is to test.
    QVERIFY2(accepted > 3000, qPrintable(QString::number(accepted)));
    QVERIFY2(keep || flips > 500, qPrintable(QString::number(flips)));
}

void TestWySelectFrame::paintsTheStatedShapes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QSize>("size");
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        for (int type = 0; type <= 3; ++type) {
            QTest::addRow("type %d at %g", type, ratio)
                << type << QColor(7, 190, 139) << QString() << ratio << QSize(120, 90);
            QTest::addRow("type %d with text at %g", type, ratio)
                << type << QColor(200, 30, 30, 120) << QStringLiteral("640 x 480") << ratio << QSize(121, 87);
            for (int side = 1; side < 24; ++side)
                QTest::addRow("type %d at %g, %d px", type, ratio, side)
                    << type << QColor(7, 190, 139) << QString() << ratio << QSize(side, 30 - side);
        }
        QTest::addRow("invalid colour at %g", ratio) << 0 << QColor() << QString() << ratio << QSize(50, 60);
    }
}

void TestWySelectFrame::paintsTheStatedShapes()
{
    QFETCH(int, type);
    QFETCH(QColor, color);
    QFETCH(QString, text);
    QFETCH(qreal, ratio);
    QFETCH(QSize, size);
    WySelectFrame frame(static_cast<WySelectFrame::FrameType>(type));
    qDeleteAll(frame.findChildren<QWidget*>());
    frame.resize(size);
    frame.SetFrameColor(color);
    frame.SetText(text);
    const QImage expected = WyTest::painted(
        size,
        [&](QPainter& painter) {
            const int w = size.width();
            const int h = size.height();
            painter.setFont(frame.font());
            QRect outline;
            if (type == 0)
                outline = QRect(QPoint(2, 2), QPoint(w - 4, h - 4));
            else if (type == 1)
                outline = QRect(QPoint(1, 1), QPoint(w - 2, h - 2));
            else
                outline = QRect(QPoint(0, 0), QPoint(w - 2, h - 2));
            painter.setPen(QPen(QColor(0, 0, 0, 1), 10.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
            painter.drawRect(outline);
            if (type == 2) {
                painter.fillRect(outline, QColor(0, 0, 0, 100));
                painter.setPen(QPen(color, 1, Qt::DashLine));
            } else {
                painter.setPen(QPen(color, type == 1 ? 2 : 1));
            }
            painter.drawRect(outline);
            if (!text.isEmpty()) {
                painter.setPen(QColor(255, 255, 255));
                painter.drawText(outline, Qt::AlignHCenter | Qt::AlignVCenter, text);
            }
        },
        ratio);
    WY_COMPARE_PICTURES(WyTest::picture(&frame, ratio), expected);
}

void TestWySelectFrame::paintsTheFrameOverTheShapes()
{
    WySelectFrame frame(static_cast<WySelectFrame::FrameType>(3));
    QFrame plain;
    frame.SetFrameColor(Qt::red);
    frame.resize(60, 40);
    QImage expected = WyTest::picture(&frame);
    for (QFrame* widget : {static_cast<QFrame*>(&frame), &plain}) {
        widget->setFrameStyle(QFrame::Box | QFrame::Plain);
        widget->setLineWidth(2);
        widget->resize(60, 40);
    }
    QPainter(&expected).drawImage(0, 0, WyTest::picture(&plain));
    WY_COMPARE_PICTURES(WyTest::picture(&frame), expected);
}

QTEST_MAIN(TestWySelectFrame)
#include "tst_wyselectframe.moc"
