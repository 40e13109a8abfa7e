#include "WyWidgets/wycontrol/WyBubbleWidget.h"

#include "support/Frames.h"

#ifdef WY_PEER_DEEPIN
#include <DArrowRectangle>
#endif

namespace {

/// Content that paints nothing.
QWidget* makeContent()
{
    auto* content = new QWidget;
    content->setFixedSize(240, 120);
    return content;
}

void setUp(WyWidgets::WyBubbleWidget& bubble)
{
    bubble.setBubbleColor(QColor(43, 163, 211));
    bubble.SetContentWidget(makeContent(), QPoint(16, 8));
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

void BubbleWithShadowFrame(benchmark::State& state)
{
    QWidget host; // Qt renders no graphics effect of a window itself
    WyWidgets::WyBubbleWidget bubble(true, &host);
    bubble.setWindowFlags(Qt::Widget);
    setUp(bubble);
    host.resize(bubble.size());
    WyBenchmark::paintFrames(state, host, [] {});
}
BENCHMARK(BubbleWithShadowFrame);

#ifdef WY_PEER_DEEPIN
void BubbleDeepin(benchmark::State& state)
{
    using Dtk::Widget::DArrowRectangle;
    DArrowRectangle bubble(DArrowRectangle::ArrowTop, DArrowRectangle::FloatWidget);
    bubble.setContent(makeContent());
    bubble.resizeWithContent();
    WyBenchmark::paintFrames(state, bubble, [] {});
}
BENCHMARK(BubbleDeepin);
#endif

} // namespace
