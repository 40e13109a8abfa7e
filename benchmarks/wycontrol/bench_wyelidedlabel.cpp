#include "WyWidgets/wycontrol/WyElidedLabel.h"

#include "support/Frames.h"

#ifdef WY_PEER_KDE
#include <KSqueezedTextLabel>
#endif

using WyBenchmark::paintFrames;
using WyWidgets::WyElidedLabel;

namespace {

constexpr QSize kSizePx(160, 24);

// A path, as labels that elide often show: much longer than the label is wide.
const char* const kLongText =
    "/Users/somebody/Documents/Projects/Quarterly report/Figures and tables/Third draft/"
    "Comparison of all regions with the year before, corrected after review.pages";
const char* const kFittingText = "Third draft.pages";

template <typename Label>
void repaint(benchmark::State& state, const char* text)
{
    Label label;
    label.setText(QString::fromLatin1(text));
    label.resize(kSizePx);
    paintFrames(state, label, [] {});
}

void RepaintElided(benchmark::State& state)
{
    repaint<WyElidedLabel>(state, kLongText);
}
void RepaintElidedPeer(benchmark::State& state)
{
    repaint<QLabel>(state, kLongText);
}
#ifdef WY_PEER_KDE
void RepaintElidedKde(benchmark::State& state)
{
    repaint<KSqueezedTextLabel>(state, kLongText);
}
#endif
void RepaintFitting(benchmark::State& state)
{
    repaint<WyElidedLabel>(state, kFittingText);
}
void RepaintFittingPeer(benchmark::State& state)
{
    repaint<QLabel>(state, kFittingText);
}

} // namespace

BENCHMARK(RepaintElided);
BENCHMARK(RepaintElidedPeer);
#ifdef WY_PEER_KDE
BENCHMARK(RepaintElidedKde);
#endif
BENCHMARK(RepaintFitting);
BENCHMARK(RepaintFittingPeer);
