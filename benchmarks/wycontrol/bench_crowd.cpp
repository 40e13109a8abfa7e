// What many running indicators cost while nothing else happens: processor time of half a second of wall time,
// beside a core that never rests.

#include "WyWidgets/layout/WyFlowLayout.h"
#include "WyWidgets/wycontrol/WyToast.h"
#include "WyWidgets/wycontrol/WyWaitingBar.h"
#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <QVector>

#include <ctime>

namespace {

constexpr int kSpinners = 100;
constexpr int kBars = 20;
constexpr int kToasts = 3;
constexpr int kLookMs = 500;
constexpr int kToastMs = 600000;
constexpr QSize kWindowSizePx(900, 700);
constexpr QSize kBarSizePx(160, 12);

/// A window of running spinners and bars, with running toasts over it.
class Crowd
{
public:
    Crowd()
    {
        m_window.resize(kWindowSizePx);
        auto* layout = new WyWidgets::WyFlowLayout(&m_window);
        m_window.show();
        for (int i = 0; i < kSpinners; ++i) {
            auto* spinner = new WyWidgets::WyWaitingSpinnerWidget(&m_window, false, false);
            layout->addWidget(spinner);
            spinner->start();
        }
        for (int i = 0; i < kBars; ++i) {
            auto* bar = new WyWidgets::WyWaitingBar(&m_window);
            bar->setFixedSize(kBarSizePx);
            layout->addWidget(bar);
            bar->start();
        }
        for (int i = 0; i < kToasts; ++i) {
            auto* toast = new WyWidgets::WyToast(&m_window);
            toast->setTitle(QStringLiteral("Upload"));
            toast->setText(QStringLiteral("The report is on its way."));
            toast->setDuration(kToastMs);
            toast->show();
            m_toasts.append(toast);
        }
    }

    void hide()
    {
        m_window.hide();
        for (QWidget* toast : qAsConst(m_toasts))
            toast->hide();
    }
    void minimize()
    {
        m_window.showMinimized();
        for (QWidget* toast : qAsConst(m_toasts))
            toast->showMinimized();
    }

private:
    QWidget m_window;
    QVector<QWidget*> m_toasts;
};

void runEventLoop()
{
    QEventLoop loop;
    QTimer::singleShot(kLookMs, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void watch(benchmark::State& state)
{
    runEventLoop(); // what appearing and fading in cost is not asked
    for (auto _ : state)
        runEventLoop();
}

void CrowdVisible(benchmark::State& state)
{
    Crowd crowd;
    watch(state);
}
BENCHMARK(CrowdVisible)->Iterations(1)->MeasureProcessCPUTime();

void CrowdHidden(benchmark::State& state)
{
    Crowd crowd;
    crowd.hide();
    watch(state);
}
BENCHMARK(CrowdHidden)->Iterations(1)->MeasureProcessCPUTime();

void CrowdMinimized(benchmark::State& state)
{
    Crowd crowd;
    crowd.minimize();
    watch(state);
}
BENCHMARK(CrowdMinimized)->Iterations(1)->MeasureProcessCPUTime();

void BusyCore(benchmark::State& state)
{
    for (auto _ : state) {
        // As much processor time as a core of its own would give it, also on a busy machine.
        const std::clock_t end = std::clock() + kLookMs * CLOCKS_PER_SEC / 1000;
        while (std::clock() < end)
            continue;
    }
}
BENCHMARK(BusyCore)->Iterations(1)->MeasureProcessCPUTime();

} // namespace
