#include "WyWidgets/wycontrol/WyBubbleWidget.h"

#include "support/Frames.h"

namespace {

/// A bubble without a shadow around content that paints nothing.
void setUp(WyWidgets::WyBubbleWidget& bubble)
{
    auto* content = new QWidget;
    content->setFixedSize(240, 120);
    bubble.setBubbleColor(QColor(43, 163, 211));
    bubble.SetContentWidget(content, QPoint(16, 8));
    bubble.show();
}

void BubbleFrame(benchmark::State& state)
{
    WyWidgets::WyBubbleWidget bubble(false, nullptr);
    setUp(bubble);
    WyBenchmark::paintFrames(state, bubble, [] {});
}
BENCHMARK(BubbleFrame);

void BubbleBlit(benchmark::State& state)
{
    WyWidgets::WyBubbleWidget bubble(false, nullptr);
    setUp(bubble);
    WyBenchmark::BlitWidget widget(bubble.size());
    WyBenchmark::paintFrames(state, widget, [] {});
}
BENCHMARK(BubbleBlit);

} // namespace
