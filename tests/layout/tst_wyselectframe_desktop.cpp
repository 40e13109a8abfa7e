#include "WyWidgets/layout/WySelectFrame.h"

#include "support/RealInput.h"

#include <QDialog>
#include <QSignalSpy>
#include <QtTest>

using WyWidgets::WySelectFrame;
namespace RealInput = WyTest::RealInput;

/// A frame dragged with the real pointer.
class TestWySelectFrameDesktop : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theRealPointerMovesTheFrame();
    void theRealPointerResizesByACornerHandle();
    void theMoveHandleMovesTheFrame();
    void aHiddenMoveHandleMovesTheFrameOn();
    void hoveringAHandleShowsItsCursor();
    void aRealDragTurnsTheFrameOver();
    void aDialogThatOpensDuringADragEndsIt();

private:
    void create(WySelectFrame::FrameType type);
    QPoint global(QPoint inFrame) const { return m_frame->mapToGlobal(inFrame); }

    QScopedPointer<QWidget> m_area;
    WySelectFrame* m_frame = nullptr;
};

void TestWySelectFrameDesktop::init()
{
    QVERIFY(RealInput::isAvailable());
}

void TestWySelectFrameDesktop::cleanup()
{
    m_area.reset();
}

void TestWySelectFrameDesktop::create(WySelectFrame::FrameType type)
{
    m_area.reset(new QWidget);
    m_area->setGeometry(60, 60, 600, 400);
    m_frame = new WySelectFrame(type, m_area.data());
    m_frame->setGeometry(100, 100, 200, 150);
    QVERIFY(RealInput::showAndActivate(m_area.data()));
}

void TestWySelectFrameDesktop::theRealPointerMovesTheFrame()
{
    create(WySelectFrame::kType_Points);
    QSignalSpy spy(m_frame, &WySelectFrame::SignalWindowMoved);
    RealInput::dragPointer(global(QPoint(100, 75)), global(QPoint(150, 95)));
    QTRY_COMPARE(m_frame->geometry(), QRect(150, 120, 200, 150));
    QVERIFY(spy.size() > 1);
    QCOMPARE(spy.last().at(0).toRect(), QRect(150, 120, 200, 150));
}

void TestWySelectFrameDesktop::theRealPointerResizesByACornerHandle()
{
    create(WySelectFrame::kType_Points);
    RealInput::dragPointer(global(QPoint(198, 148)), global(QPoint(248, 188)));
    QTRY_COMPARE(m_frame->geometry(), QRect(100, 100, 250, 190));
}

void TestWySelectFrameDesktop::theMoveHandleMovesTheFrame()
{
    create(WySelectFrame::kType_Corners);
    RealInput::dragPointer(global(QPoint(100, 75)), global(QPoint(60, 55)));
    QTRY_COMPARE(m_frame->geometry(), QRect(60, 80, 200, 150));
}

void TestWySelectFrameDesktop::aHiddenMoveHandleMovesTheFrameOn()
{
    create(WySelectFrame::kType_Corners);
    connect(m_frame, &WySelectFrame::SignalWindowMoved, m_frame,
            [this] { m_frame->SetMoveHandleVisible(false); });
    RealInput::dragPointer(global(QPoint(100, 75)), global(QPoint(60, 55)));
    QTRY_COMPARE(m_frame->geometry(), QRect(60, 80, 200, 150));
    QVERIFY(RealInput::movePointerAndWait(global(QPoint(120, 95))));
    QCOMPARE(m_frame->geometry(), QRect(60, 80, 200, 150));
}

void TestWySelectFrameDesktop::hoveringAHandleShowsItsCursor()
{
    create(WySelectFrame::kType_Points);
    RealInput::movePointer(global(QPoint(100, 75)));
    QTRY_COMPARE(m_frame->cursor().shape(), Qt::SizeAllCursor);
    RealInput::movePointer(global(QPoint(2, 2)));
    QTRY_COMPARE(m_frame->cursor().shape(), Qt::SizeFDiagCursor);
    RealInput::movePointer(global(QPoint(198, 75)));
    QTRY_COMPARE(m_frame->cursor().shape(), Qt::SizeHorCursor);
}

void TestWySelectFrameDesktop::aRealDragTurnsTheFrameOver()
{
    create(WySelectFrame::kType_Points);
    const QPoint from = global(QPoint(100, 1));
    RealInput::dragPointer(from, from + QPoint(0, 200), 40);
    // The top edge went 50 px past the bottom edge at 250, which is the top edge now.
    QTRY_COMPARE(m_frame->geometry(), QRect(100, 250, 200, 50));
}

void TestWySelectFrameDesktop::aDialogThatOpensDuringADragEndsIt()
{
    create(WySelectFrame::kType_Points);
    QDialog dialog(m_area.data());
    connect(m_frame, &WySelectFrame::SignalWindowMoved, &dialog, &QDialog::open);
    const QPoint from = global(QPoint(100, 75));
    RealInput::dragPointer(from, from + QPoint(20, 10));
    QTRY_VERIFY(dialog.isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.close();
    const QRect geometry = m_frame->geometry();
    QVERIFY(RealInput::hover(global(QPoint(60, 40))));
    QVERIFY(RealInput::movePointerAndWait(global(QPoint(80, 50))));
    QCOMPARE(m_frame->geometry(), geometry);
}

QTEST_MAIN(TestWySelectFrameDesktop)
#include "tst_wyselectframe_desktop.moc"
