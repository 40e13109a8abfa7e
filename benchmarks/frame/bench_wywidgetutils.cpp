#include "WyWidgets/frame/WyWidgetUtils.h"

#include "support/WrapTexts.h"

#include <QToolTip>

using WyWidgets::WyWidgetUtils;

namespace {

using Text = QString (*)(int length);

void ToolTipWrap(benchmark::State& state, Text text)
{
    const QString wrapped = text(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(WyWidgetUtils::ToolTipWrap(wrapped, WyBenchmark::kWrapWidthPx));
}

void ToolTipFloor(benchmark::State& state, Text text)
{
    WyBenchmark::wrapWithTextLayout(state, text(int(state.range(0))), QToolTip::font());
}

} // namespace

BENCHMARK_CAPTURE(ToolTipWrap, Latin, WyBenchmark::latin)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ToolTipFloor, Latin, WyBenchmark::latin)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ToolTipWrap, Cyrillic, WyBenchmark::cyrillic)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ToolTipFloor, Cyrillic, WyBenchmark::cyrillic)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ToolTipWrap, Han, WyBenchmark::han)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ToolTipFloor, Han, WyBenchmark::han)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ToolTipWrap, Arabic, WyBenchmark::arabic)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ToolTipFloor, Arabic, WyBenchmark::arabic)->Arg(10000)->Unit(benchmark::kMicrosecond);
