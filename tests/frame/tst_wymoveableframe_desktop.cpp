#include "WyWidgets/frame/WyMoveableFrame.h"

#include "support/RealInput.h"

#include <QSignalSpy>
#include <QtTest>

using WyWidgets::WyMoveableFrame;
namespace RealInput = WyTest::RealInput;

/// A divider in a window, under the real pointer.
class TestWyMoveableFrameDesktop : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aDragMovesTheFrame();
    void aDragBeyondTheParentPinsTheFrame();
    void thePointerAloneMovesNothing();

private:
    QPoint onFrame() const { return m_frame->mapToGlobal(QPoint(20, 6)); }

    QScopedPointer<QWidget> m_window;
    WyMoveableFrame* m_frame = nullptr;
};

void TestWyMoveableFrameDesktop::init()
{
    QVERIFY(RealInput::isAvailable());
    m_window.reset(new QWidget);
    m_window->setGeometry(300, 200, 400, 300);
    m_frame = new WyMoveableFrame(WyMoveableFrame::kDirection_H, m_window.data());
    m_frame->setGeometry(100, 100, 200, 12);
    RealInput::movePointer(QPoint(5, 5));
    QVERIFY(RealInput::showAndActivate(m_window.data()));
    QVERIFY(RealInput::hover(onFrame()));
}

void TestWyMoveableFrameDesktop::cleanup()
{
    RealInput::release();
    m_window.reset();
}

void TestWyMoveableFrameDesktop::aDragMovesTheFrame()
{
    const QSignalSpy clicks(m_frame, &WyMoveableFrame::SignalFrameClickeded);
    RealInput::dragPointer(onFrame(), onFrame() + QPoint(30, 40));
    QTRY_COMPARE(m_frame->geometry(), QRect(130, 140, 200, 12));
    QCOMPARE(clicks.count(), 1);
}

void TestWyMoveableFrameDesktop::aDragBeyondTheParentPinsTheFrame()
{
    RealInput::dragPointer(onFrame(), onFrame() + QPoint(-200, 400), 20);
    QTRY_COMPARE(m_frame->geometry(), QRect(0, 288, 200, 12));
}

void TestWyMoveableFrameDesktop::thePointerAloneMovesNothing()
{
    const QPoint start = onFrame();
    RealInput::dragPointer(start, start + QPoint(8, 2));
    QTRY_COMPARE(m_frame->pos(), QPoint(108, 102));
    QVERIFY(RealInput::movePointerAndWait(start + QPoint(40, 4)));
    QVERIFY(RealInput::movePointerAndWait(start + QPoint(60, 4)));
    QCOMPARE(m_frame->pos(), QPoint(108, 102));
}

QTEST_MAIN(TestWyMoveableFrameDesktop)
#include "tst_wymoveableframe_desktop.moc"
