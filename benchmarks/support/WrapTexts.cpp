#include "support/WrapTexts.h"

#include <QRandomGenerator>
#include <QTextLayout>

namespace WyBenchmark {

namespace {

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

} // namespace

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

void wrapWithTextLayout(benchmark::State& state, const QString& text, const QFont& font)
{
    for (auto _ : state) {
        QTextLayout layout(text, font);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
            line.setLineWidth(kWrapWidthPx);
        layout.endLayout();
        benchmark::DoNotOptimize(layout.lineCount());
    }
}

} // namespace WyBenchmark
