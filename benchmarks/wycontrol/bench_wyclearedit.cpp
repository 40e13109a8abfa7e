#include "WyWidgets/wycontrol/WyClearEdit.h"

#include <benchmark/benchmark.h>

using WyWidgets::WyClearEdit;

namespace {

template <typename Edit>
void construct(benchmark::State& state)
{
    QWidget parent;
    for (auto _ : state) {
        Edit edit(&parent);
        benchmark::DoNotOptimize(&edit);
    }
}

void ConstructClearEdit(benchmark::State& state)
{
    construct<WyClearEdit>(state);
}
void ConstructClearEditFloor(benchmark::State& state)
{
    construct<QLineEdit>(state);
}

} // namespace

BENCHMARK(ConstructClearEdit);
BENCHMARK(ConstructClearEditFloor);
