#include "WyWidgets/frame/WyWidgetUtils.h"

#include <benchmark/benchmark.h>

#include <QRandomGenerator>
#include <QTextLayout>
#include <QToolTip>

using WyWidgets::WyWidgetUtils;

namespace {

constexpr int kWidthPx = 400;

/// Sentences of made-up words; no word list, so that few words come twice.
QString prose(int length)
{
    const QString letters =
        QStringLiteral("eeeeeetttttaaaaooooiiiinnnnsssshhhrrrdddlllccuummwwffggyyppbbvkjxqz");
    QRandomGenerator random(20240501);
    QString text;
    bool sentenceStarts = true;
    while (text.size() < length) {
        QString word;
        for (int letter = 1 + int(random.bounded(10)); letter > 0; --letter)
            word += letters.at(random.bounded(letters.size()));
        if (sentenceStarts)
            word[0] = word.at(0).toUpper();
        sentenceStarts = random.bounded(12) == 0;
        text += word + (sentenceStarts ? QStringLiteral(". ") : QStringLiteral(" "));
    }
    text.truncate(length);
    return text;
}

void ToolTipWrap(benchmark::State& state)
{
    const QString text = prose(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(WyWidgetUtils::ToolTipWrap(text, kWidthPx));
}

void TextLayoutWrap(benchmark::State& state)
{
    const QString text = prose(int(state.range(0)));
    for (auto _ : state) {
        QTextLayout layout(text, QToolTip::font());
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
            line.setLineWidth(kWidthPx);
        layout.endLayout();
        benchmark::DoNotOptimize(layout.lineCount());
    }
}

} // namespace

BENCHMARK(ToolTipWrap)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(TextLayoutWrap)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMicrosecond);
