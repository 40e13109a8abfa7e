#include "WyWidgets/wycontrol/WyCheckBox.h"

#include <benchmark/benchmark.h>

#include <QRandomGenerator>
#include <QTextLayout>

using WyWidgets::WyCheckBox;

namespace {

constexpr int kWidthPx = 400;

/// Words of one to ten letters, at random, so that few words come twice.
QString words(const QString& letters, int length)
{
    QRandomGenerator random(20240617);
    QString text;
    while (text.size() < length) {
        for (int letter = 1 + random.bounded(10); letter > 0; --letter)
            text += letters.at(random.bounded(letters.size()));
        text += QLatin1Char(' ');
    }
    text.truncate(length);
    return text;
}

QString latin(int length)
{
    return words(QStringLiteral("eeeeeetttttaaaaooooiiiinnnnsssshhhrrrdddlllccuummwwffggyyppbbvkjxqz"),
                 length);
}

QString cyrillic(int length)
{
    return words(QStringLiteral("ооооеееааииннттссррввллккммддппууяыьгзб"), length);
}

QString han(int length)
{
    return words(QStringLiteral("漢字仮名交文章書体字形"), length);
}

QString arabic(int length)
{
    return words(QStringLiteral("ابتثجحخدذرزسشصضطعغفقكلمنهوي"), length);
}

/// Wraps to two widths in turn, as every resize does; the same width again would find nothing to change.
void wrapCheckBox(benchmark::State& state, const QString& text)
{
    WyCheckBox box(text);
    int width = kWidthPx;
    for (auto _ : state) {
        width = 2 * kWidthPx - 1 - width;
        box.wrapLines(width);
    }
}

void wrapLayout(benchmark::State& state, const QString& text)
{
    const QFont font = WyCheckBox(QString()).font();
    for (auto _ : state) {
        QTextLayout layout(text, font);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
            line.setLineWidth(kWidthPx);
        layout.endLayout();
        benchmark::DoNotOptimize(layout.lineCount());
    }
}

void WrapLines(benchmark::State& state)
{
    wrapCheckBox(state, latin(int(state.range(0))));
}
void WrapLinesFloor(benchmark::State& state)
{
    wrapLayout(state, latin(int(state.range(0))));
}
void WrapLinesCyrillic(benchmark::State& state)
{
    wrapCheckBox(state, cyrillic(int(state.range(0))));
}
void WrapLinesCyrillicFloor(benchmark::State& state)
{
    wrapLayout(state, cyrillic(int(state.range(0))));
}
void WrapLinesHan(benchmark::State& state)
{
    wrapCheckBox(state, han(int(state.range(0))));
}
void WrapLinesHanFloor(benchmark::State& state)
{
    wrapLayout(state, han(int(state.range(0))));
}
void WrapLinesArabic(benchmark::State& state)
{
    wrapCheckBox(state, arabic(int(state.range(0))));
}
void WrapLinesArabicFloor(benchmark::State& state)
{
    wrapLayout(state, arabic(int(state.range(0))));
}

} // namespace

BENCHMARK(WrapLines)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(WrapLinesFloor)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(WrapLinesCyrillic)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(WrapLinesCyrillicFloor)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(WrapLinesHan)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(WrapLinesHanFloor)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(WrapLinesArabic)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(WrapLinesArabicFloor)->Arg(10000)->Unit(benchmark::kMicrosecond);
