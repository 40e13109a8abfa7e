#include "WyWidgets/wycontrol/WyClearEdit.h"
#include "WyWidgets/wycontrol/WyPasswordEdit.h"
#include "WyWidgets/wycontrol/WyShortcutEdit.h"

#include <benchmark/benchmark.h>

#ifdef WY_PEER_KDE
#include <KPasswordLineEdit>
#endif

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
    construct<WyWidgets::WyClearEdit>(state);
}
BENCHMARK(ConstructClearEdit);

void ConstructPasswordEdit(benchmark::State& state)
{
    construct<WyWidgets::WyPasswordEdit>(state);
}
BENCHMARK(ConstructPasswordEdit);

void ConstructShortcutEdit(benchmark::State& state)
{
    construct<WyWidgets::WyShortcutEdit>(state);
}
BENCHMARK(ConstructShortcutEdit);

void ConstructLineEdit(benchmark::State& state)
{
    construct<QLineEdit>(state);
}
BENCHMARK(ConstructLineEdit);

#ifdef WY_PEER_KDE
void ConstructPasswordEditKde(benchmark::State& state)
{
    construct<KPasswordLineEdit>(state);
}
BENCHMARK(ConstructPasswordEditKde);
#endif

} // namespace
