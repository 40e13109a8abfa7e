#include "WyWidgets/wycontrol/WyShortcutEdit.h"

#include <benchmark/benchmark.h>

using WyWidgets::WyShortcutEdit;

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

void ConstructShortcutEdit(benchmark::State& state)
{
    construct<WyShortcutEdit>(state);
}
void ConstructShortcutEditFloor(benchmark::State& state)
{
    construct<QLineEdit>(state);
}

} // namespace

BENCHMARK(ConstructShortcutEdit);
BENCHMARK(ConstructShortcutEditFloor);
