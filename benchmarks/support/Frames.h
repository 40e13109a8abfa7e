#pragma once

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <QWidget>

namespace WyBenchmark {

/// Times painting the widget into a picture of its size; `prepare` runs before each frame. A widget that
/// paints nothing is not measured: its time would flatter it.
template <typename Prepare>
void paintFrames(benchmark::State& state, QWidget& widget, Prepare prepare)
{
    QImage target(widget.size(), QImage::Format_ARGB32_Premultiplied);
    target.fill(Qt::transparent);
    const QImage blank = target.copy();
    const auto paint = [&] {
        prepare();
        widget.render(&target, QPoint(), QRegion(), QWidget::DrawChildren);
    };
    paint();
    if (target == blank) {
        state.SkipWithError("paints nothing");
        return;
    }
    for (auto _ : state) {
        paint();
        benchmark::DoNotOptimize(target.constBits());
    }
}

/// A widget that paints itself by copying a picture of its size: the least that painting a widget can cost.
class BlitWidget : public QWidget
{
public:
    explicit BlitWidget(QSize size) : m_picture(size)
    {
        resize(size);
        m_picture.fill(QColor(43, 163, 211, 194));
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, m_picture); }

private:
    QPixmap m_picture;
};

} // namespace WyBenchmark
