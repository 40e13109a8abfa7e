#include "WyWidgets/layout/WySelectFrame.h"

#include "support/Frames.h"

#include <QCoreApplication>
#include <QMouseEvent>

using WyWidgets::WySelectFrame;

namespace {

/// Sends a mouse event at a place of the parent, as the window system would.
void sendMouse(QWidget& widget, QEvent::Type type, QPoint inParent, Qt::MouseButton button)
{
    const QPointF local = inParent - widget.pos();
    QMouseEvent event(type, local, inParent, inParent, button, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

/// A plain frame that follows the mouse: the least that a drag costs.
class DraggedFrame : public QFrame
{
public:
    using QFrame::QFrame;

protected:
    void mousePressEvent(QMouseEvent* event) override { m_press = event->pos(); }
    void mouseMoveEvent(QMouseEvent* event) override { move(pos() + event->pos() - m_press); }

private:
    QPoint m_press;
};

template <typename Frame>
void dragSteps(benchmark::State& state, Frame& frame, QWidget& area)
{
    frame.setGeometry(100, 100, 320, 240);
    area.resize(1000, 800);
    area.show();
    sendMouse(frame, QEvent::MouseButtonPress, QPoint(250, 220), Qt::LeftButton);
    int step = 0;
    for (auto _ : state) {
        step = (step + 1) % 100;
        sendMouse(frame, QEvent::MouseMove, QPoint(250 + step, 220 + step), Qt::NoButton);
    }
}

void SelectFrameDragStep(benchmark::State& state)
{
    QWidget area;
    WySelectFrame frame(WySelectFrame::kType_Points, &area);
    dragSteps(state, frame, area);
}

void PlainFrameDragStep(benchmark::State& state)
{
    QWidget area;
    DraggedFrame frame(&area);
    dragSteps(state, frame, area);
}

constexpr QSize kPaintSizePx(320, 240);

void SelectFramePaint(benchmark::State& state)
{
    WySelectFrame frame(WySelectFrame::kType_Close);
    qDeleteAll(frame.findChildren<QWidget*>());
    frame.SetFrameColor(QColor(7, 190, 139));
    frame.resize(kPaintSizePx);
    WyBenchmark::paintFrames(state, frame, [] {});
}

/// The fill and the outline alone.
class FillAndOutline : public QFrame
{
protected:
    void paintEvent(QPaintEvent* event) override
    {
        {
            QPainter painter(this);
            const QRect outline(QPoint(0, 0), QPoint(width() - 2, height() - 2));
            painter.fillRect(outline, QColor(0, 0, 0, 100));
            painter.setPen(QPen(QColor(7, 190, 139), 1, Qt::DashLine));
            painter.drawRect(outline);
        }
        QFrame::paintEvent(event);
    }
};

void FillAndOutlinePaint(benchmark::State& state)
{
    FillAndOutline frame;
    frame.resize(kPaintSizePx);
    WyBenchmark::paintFrames(state, frame, [] {});
}

} // namespace

BENCHMARK(SelectFrameDragStep);
BENCHMARK(PlainFrameDragStep);
BENCHMARK(SelectFramePaint);
BENCHMARK(FillAndOutlinePaint);
