#pragma once

#include <benchmark/benchmark.h>

#include <QFont>
#include <QString>

/// Texts of several scripts to wrap, and the wrapping of Qt's own to compare with.
namespace WyBenchmark {

constexpr int kWrapWidthPx = 400;

/// Words of one to ten letters, at random, so that few words come twice.
QString latin(int length);
QString cyrillic(int length);
QString han(int length);
QString arabic(int length);

void wrapWithTextLayout(benchmark::State& state, const QString& text, const QFont& font);

} // namespace WyBenchmark
