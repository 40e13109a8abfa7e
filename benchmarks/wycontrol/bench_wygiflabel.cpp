#include "WyWidgets/wycontrol/WyGifLabel.h"

#include "support/Frames.h"

#include <QTemporaryDir>

namespace {

constexpr QSize kLabelSizePx(32, 32);
constexpr int kFrames = 12;

QString fileName(int frame)
{
    return QStringLiteral("loading_%1.png").arg(frame, 2, 10, QLatin1Char('0'));
}

QPixmap picture(int frame)
{
    QPixmap pixmap(kLabelSizePx);
    pixmap.fill(QColor::fromHsv(frame * 360 / (kFrames + 1), 200, 220, 180));
    return pixmap;
}

void GifLabelFrame(benchmark::State& state)
{
    QTemporaryDir folder;
    for (int frame = 1; frame <= kFrames; ++frame)
        picture(frame).save(folder.filePath(fileName(frame)));
    WyWidgets::WyGifLabel label;
    label.resize(kLabelSizePx);
    label.SetGif(folder.path() + QLatin1Char('/'), kFrames);
    WyBenchmark::paintFrames(state, label, [&label] { label.slotTimeOut(); });
}
BENCHMARK(GifLabelFrame);

void PixmapLabelFrame(benchmark::State& state)
{
    QVector<QPixmap> pictures;
    for (int frame = 1; frame <= kFrames; ++frame)
        pictures += picture(frame);
    QLabel label;
    label.resize(kLabelSizePx);
    int next = 0;
    WyBenchmark::paintFrames(state, label, [&] {
        label.setPixmap(pictures.at(next));
        next = (next + 1) % kFrames;
    });
}
BENCHMARK(PixmapLabelFrame);

} // namespace
