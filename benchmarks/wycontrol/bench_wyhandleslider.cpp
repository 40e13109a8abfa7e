#include "WyWidgets/wycontrol/WyHandleSlider.h"

#include "support/Frames.h"

#include <QApplication>
#include <QSlider>
#include <QStyle>
#include <QStyleFactory>

using WyBenchmark::paintFrames;
using WyWidgets::WyHandleSlider;

namespace {

constexpr QSize kSizePx(216, 16);
constexpr int kStep = 7; // so that a hundred frames visit a hundred positions

/// Hovered, so that the bar is thick and the handle, which a style sheet would paint, shows.
void paintSlider(benchmark::State& state, int step)
{
    WyHandleSlider slider;
    slider.resize(kSizePx);
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&slider, &enter);
    int pos = 40;
    paintFrames(state, slider, [&] {
        pos = (pos + step) % 100;
        slider.SetSliderPos(pos);
    });
}

void paintQSlider(benchmark::State& state, int step)
{
    QStyle* fusion = QStyleFactory::create(QStringLiteral("Fusion"));
    QSlider slider(Qt::Horizontal);
    fusion->setParent(&slider);
    slider.setStyle(fusion);
    slider.resize(kSizePx);
    int pos = 40;
    paintFrames(state, slider, [&] {
        pos = (pos + step) % 100;
        slider.setValue(pos);
    });
}

void PaintSlider(benchmark::State& state)
{
    paintSlider(state, 0);
}
void PaintSliderPeer(benchmark::State& state)
{
    paintQSlider(state, 0);
}
void PaintMovingSlider(benchmark::State& state)
{
    paintSlider(state, kStep);
}
void PaintMovingSliderPeer(benchmark::State& state)
{
    paintQSlider(state, kStep);
}

} // namespace

BENCHMARK(PaintSlider);
BENCHMARK(PaintSliderPeer);
BENCHMARK(PaintMovingSlider);
BENCHMARK(PaintMovingSliderPeer);
