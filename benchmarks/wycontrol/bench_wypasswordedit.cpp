#include "WyWidgets/wycontrol/WyPasswordEdit.h"

#include <benchmark/benchmark.h>

using WyWidgets::WyPasswordEdit;

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

void ConstructPasswordEdit(benchmark::State& state)
{
    construct<WyPasswordEdit>(state);
}
void ConstructPasswordEditFloor(benchmark::State& state)
{
    construct<QLineEdit>(state);
}

} // namespace

BENCHMARK(ConstructPasswordEdit);
BENCHMARK(ConstructPasswordEditFloor);
