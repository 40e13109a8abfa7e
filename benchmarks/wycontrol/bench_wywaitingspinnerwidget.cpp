#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include "support/Frames.h"

#ifdef WY_PEER_DEEPIN
#include <DSpinner>
#endif

namespace {

using WyWidgets::WyWaitingSpinnerWidget;

// "Overlapping" bars share pixels at the centre, so that a frame is more than one copy.
void setUp(WyWaitingSpinnerWidget& spinner, bool overlapping)
{
    if (!overlapping)
        return;
    spinner.setInnerRadius(6);
    spinner.setLineLength(14);
    spinner.setLineWidth(4);
    spinner.setRoundness(60);
}

void spinnerFrames(benchmark::State& state, bool overlapping)
{
    WyWaitingSpinnerWidget spinner;
    setUp(spinner, overlapping);
    WyBenchmark::paintFrames(state, spinner, [&spinner] { spinner.rotate(); });
}

void SpinnerFrame(benchmark::State& state)
{
    spinnerFrames(state, false);
}
BENCHMARK(SpinnerFrame);

void SpinnerFrameOverlapping(benchmark::State& state)
{
    spinnerFrames(state, true);
}
BENCHMARK(SpinnerFrameOverlapping);

void SpinnerBlit(benchmark::State& state)
{
    WyBenchmark::BlitWidget widget(WyWaitingSpinnerWidget().size());
    WyBenchmark::paintFrames(state, widget, [] {});
}
BENCHMARK(SpinnerBlit);

#ifdef WY_PEER_DEEPIN
/// A frame at the default size of ours; running, it shows the state of its time.
void SpinnerDeepin(benchmark::State& state)
{
    Dtk::Widget::DSpinner spinner;
    spinner.setFixedSize(WyWaitingSpinnerWidget().size());
    spinner.show();
    spinner.start();
    WyBenchmark::paintFrames(state, spinner, [] {});
}
BENCHMARK(SpinnerDeepin);
#endif

} // namespace
