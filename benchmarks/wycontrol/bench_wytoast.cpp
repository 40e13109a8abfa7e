#include "WyWidgets/wycontrol/WyToast.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

using WyWidgets::ToastPreset;
using WyWidgets::WyToast;

namespace {

const QString kTitle = QStringLiteral("Upload finished");
const QString kText = QStringLiteral("All 24 files are on the server now.");

// A private member may be named where a template is instantiated: this gives access to the toast's geometry
// pass alone, because show() also makes a window and starts animations.
template <typename Tag, typename Tag::Function function>
struct PrivateAccess
{
    friend typename Tag::Function functionOf(Tag) { return function; }
};
struct SetupUI
{
    using Function = void (WyToast::*)();
    friend Function functionOf(SetupUI);
};
template struct PrivateAccess<SetupUI, &WyToast::setupUI>;

void layOut(WyToast& toast)
{
    (toast.*functionOf(SetupUI()))();
}

QString words(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += QString('a' + i % 26).repeated(3 + i * 7 % 8) + ' ';
    return text;
}

void ToastSetUp(benchmark::State& state)
{
    int preset = 0;
    for (auto _ : state) {
        WyToast toast;
        toast.setTitle(kTitle);
        toast.setText(kText);
        toast.applyPreset(ToastPreset(preset++ % 8));
        layOut(toast);
        benchmark::DoNotOptimize(toast.width());
    }
}
BENCHMARK(ToastSetUp)->Unit(benchmark::kMicrosecond);

void DialogSetUp(benchmark::State& state)
{
    for (auto _ : state) {
        QDialog dialog;
        QVBoxLayout layout(&dialog);
        layout.addWidget(new QLabel(kTitle, &dialog));
        layout.addWidget(new QLabel(kText, &dialog));
        layout.addWidget(new QLabel(QStringLiteral("icon"), &dialog));
        dialog.adjustSize();
        benchmark::DoNotOptimize(dialog.width());
    }
}
BENCHMARK(DialogSetUp)->Unit(benchmark::kMicrosecond);

/// A toast of 180 words, laid out with this minimum height.
void longToast(benchmark::State& state, int minimumHeight)
{
    const QString text = words(180);
    for (auto _ : state) {
        WyToast toast;
        toast.setTitle(kTitle);
        toast.setText(text);
        toast.setMinimumHeight(minimumHeight);
        layOut(toast);
        benchmark::DoNotOptimize(toast.width());
    }
}

void ToastOfWords(benchmark::State& state)
{
    longToast(state, 0);
}
BENCHMARK(ToastOfWords)->Unit(benchmark::kMicrosecond);

void ToastOfWordsWithMinimumHeight(benchmark::State& state)
{
    longToast(state, static_cast<int>(state.range(0)));
}
BENCHMARK(ToastOfWordsWithMinimumHeight)->Arg(100)->Arg(300)->Unit(benchmark::kMicrosecond);

} // namespace
