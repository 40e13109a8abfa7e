#include "WyWidgets/layout/WyFlowLayout.h"

#include <benchmark/benchmark.h>

#include <QPushButton>

using WyWidgets::WyFlowLayout;

namespace {

constexpr int kButtonCount = 10000;
// Two widths in turn, so that every step moves buttons.
constexpr int kWidthsPx[] = {1200, 900};

/// Ten thousand buttons with the style's spacing and the places that the layout gives them at both widths.
struct Stage
{
    Stage()
    {
        layout = new WyFlowLayout(&window);
        for (int i = 0; i < kButtonCount; ++i) {
            buttons.append(new QPushButton(QString::number(i * 37), &window));
            layout->addWidget(buttons.last());
        }
        window.resize(kWidthsPx[0], 900);
        window.show();
        // Without an event loop the region to repaint would grow from step to step and outweigh the placing.
        window.setUpdatesEnabled(false);
        for (int width = 0; width < 2; ++width) {
            layout->setGeometry(QRect(0, 0, kWidthsPx[width], 900));
            for (QPushButton* button : buttons)
                places[width].append(button->geometry());
        }
    }

    /// Alternates also across runs: a step to the places where the buttons already are would cost nothing.
    int nextTurn() { return turn = 1 - turn; }

    QWidget window;
    WyFlowLayout* layout = nullptr;
    QVector<QPushButton*> buttons;
    QVector<QRect> places[2];
    int turn = 1;
};

Stage& stage()
{
    static auto* const instance = new Stage;
    return *instance;
}

void FlowLayoutPlaces10000Buttons(benchmark::State& state)
{
    for (auto _ : state)
        stage().layout->setGeometry(QRect(0, 0, kWidthsPx[stage().nextTurn()], 900));
}

void BareSetGeometryOf10000Buttons(benchmark::State& state)
{
    for (auto _ : state) {
        const QVector<QRect>& places = stage().places[stage().nextTurn()];
        for (int i = 0; i < kButtonCount; ++i)
            stage().buttons[i]->setGeometry(places[i]);
    }
}

void HeightForTheSameWidth(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(stage().layout->heightForWidth(1000));
}

void HeightForWidthOf10000Buttons(benchmark::State& state)
{
    static int width = 1000; // alternates across runs, too
    for (auto _ : state) {
        width = width == 1000 ? 1001 : 1000;
        benchmark::DoNotOptimize(stage().layout->heightForWidth(width));
    }
}

} // namespace

BENCHMARK(FlowLayoutPlaces10000Buttons)->Unit(benchmark::kMicrosecond);
BENCHMARK(BareSetGeometryOf10000Buttons)->Unit(benchmark::kMicrosecond);
BENCHMARK(HeightForTheSameWidth);
BENCHMARK(HeightForWidthOf10000Buttons);
