#include "WyWidgets/wycontrol/WyWaitingBar.h"

#include "support/Frames.h"

#include <QProgressBar>

namespace {

constexpr QSize kBarSizePx(400, 12);

void WaitingBarFrame(benchmark::State& state)
{
    WyWidgets::WyWaitingBar bar;
    bar.resize(kBarSizePx);
    WyBenchmark::paintFrames(state, bar, [&bar] { bar.SlotTimeout(); });
}
BENCHMARK(WaitingBarFrame);

void WaitingBarBlit(benchmark::State& state)
{
    WyBenchmark::BlitWidget widget(kBarSizePx);
    WyBenchmark::paintFrames(state, widget, [] {});
}
BENCHMARK(WaitingBarBlit);

void BusyProgressBarFrame(benchmark::State& state)
{
    QProgressBar bar;
    bar.setRange(0, 0);
    bar.resize(kBarSizePx);
    WyBenchmark::paintFrames(state, bar, [] {});
}
BENCHMARK(BusyProgressBarFrame);

} // namespace
