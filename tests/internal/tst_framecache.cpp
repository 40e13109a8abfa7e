#include "WyWidgets/internal/painting/FrameCache.h"

#include <QtTest>

using WyWidgets::FrameStore;

namespace {

/// A store of frames that counts how often one is painted. What the pictures look like is tested with the
/// widgets that have them.
class Frames
{
public:
    void draw(double step, QSize size)
    {
        QImage device(size, QImage::Format_ARGB32_Premultiplied);
        device.fill(Qt::transparent);
        QPainter painter(&device);
        m_store.draw(painter, step, size, 1, [this](QPainter& shapePainter, int) {
            ++paintings;
            const QRectF square(1, 1, 4, 4);
            shapePainter.fillRect(square, Qt::red);
            return shapePainter.deviceTransform().mapRect(square);
        });
    }
    void clear() { m_store.clear(); }

    int paintings = 0;

private:
    FrameStore m_store;
};

constexpr QSize kSmall(20, 20);
constexpr QSize kTooLarge(2000, 2000); // 16 MB

} // namespace

class TestFrameCache : public QObject
{
    Q_OBJECT

private slots:
    void everyFrameIsPaintedOnce();
    void aClearedStorePaintsAfresh();
    void anotherSizeStartsAfresh();
    void framesTooLargeToKeepArePaintedEachTime();
    void aStoreThatWasFullKeepsSmallerFrames();
};

void TestFrameCache::everyFrameIsPaintedOnce()
{
    Frames frames;
    for (int round = 0; round < 3; ++round) {
        for (const double step : {0.0, 1.0, 1.5})
            frames.draw(step, kSmall);
    }
    QCOMPARE(frames.paintings, 3);
}

void TestFrameCache::aClearedStorePaintsAfresh()
{
    Frames frames;
    frames.draw(0, kSmall);
    frames.clear();
    frames.draw(0, kSmall);
    frames.draw(0, kSmall);
    QCOMPARE(frames.paintings, 2);
}

void TestFrameCache::anotherSizeStartsAfresh()
{
    Frames frames;
    for (const QSize& size : {kSmall, kSmall * 2, kSmall})
        frames.draw(0, size);
    QCOMPARE(frames.paintings, 3);
}

void TestFrameCache::framesTooLargeToKeepArePaintedEachTime()
{
    Frames frames;
    frames.draw(0, kTooLarge);
    frames.draw(0, kTooLarge);
    QCOMPARE(frames.paintings, 2);
}

void TestFrameCache::aStoreThatWasFullKeepsSmallerFrames()
{
    Frames frames;
    frames.draw(0, kTooLarge);
    frames.paintings = 0;
    frames.draw(0, kSmall);
    frames.draw(0, kSmall);
    QCOMPARE(frames.paintings, 1);
}

QTEST_MAIN(TestFrameCache)
#include "tst_framecache.moc"
