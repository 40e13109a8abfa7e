#include "WyWidgets/wycontrol/WyCheckBox.h"

#include "support/WrapTexts.h"

using WyWidgets::WyCheckBox;

namespace {

using Text = QString (*)(int length);

/// Wraps to two widths in turn, as every resize does; the same width again would find nothing to change.
void WrapLines(benchmark::State& state, Text text)
{
    WyCheckBox box(text(int(state.range(0))));
    int width = WyBenchmark::kWrapWidthPx;
    for (auto _ : state) {
        width = 2 * WyBenchmark::kWrapWidthPx - 1 - width;
        box.wrapLines(width);
    }
}

void WrapLinesFloor(benchmark::State& state, Text text)
{
    WyBenchmark::wrapWithTextLayout(state, text(int(state.range(0))), WyCheckBox(QString()).font());
}

} // namespace

BENCHMARK_CAPTURE(WrapLines, Latin, WyBenchmark::latin)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(WrapLinesFloor, Latin, WyBenchmark::latin)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(WrapLines, Cyrillic, WyBenchmark::cyrillic)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(WrapLinesFloor, Cyrillic, WyBenchmark::cyrillic)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(WrapLines, Han, WyBenchmark::han)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(WrapLinesFloor, Han, WyBenchmark::han)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(WrapLines, Arabic, WyBenchmark::arabic)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(WrapLinesFloor, Arabic, WyBenchmark::arabic)->Arg(10000)->Unit(benchmark::kMicrosecond);
