#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include "support/Frames.h"

#ifdef WY_PEER_DEEPIN
#include <DSpinner>
#endif
#ifdef WY_PEER_KDE
#include <KBusyIndicatorWidget>
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

#if defined(WY_PEER_DEEPIN) || defined(WY_PEER_KDE)
/// A frame of another spinner at the default size of ours. Running, each frame shows the state of its time.
template <typename Spinner>
void peerFrames(benchmark::State& state)
{
    Spinner spinner;
    spinner.setFixedSize(WyWaitingSpinnerWidget().size());
    spinner.show();
    spinner.start();
    WyBenchmark::paintFrames(state, spinner, [] {});
}
#endif

#ifdef WY_PEER_DEEPIN
void SpinnerDeepin(benchmark::State& state)
{
    peerFrames<Dtk::Widget::DSpinner>(state);
}
BENCHMARK(SpinnerDeepin);
#endif

#ifdef WY_PEER_KDE
/// It runs whenever it is visible.
class RunningKde : public KBusyIndicatorWidget
{
public:
    void start() {}
};

void SpinnerKde(benchmark::State& state)
{
    peerFrames<RunningKde>(state);
}
BENCHMARK(SpinnerKde);
#endif

} // namespace
