#include "WyWidgets/internal/painting/PictureFile.h"

#include "WyWidgets/internal/platform/ReadOnce.h"

#include <QImageReader>

namespace WyWidgets {

namespace {

// What is larger is no icon, but would hold the application up or take its memory.
constexpr qint64 kMostPixels = 4096LL * 4096;
// Image sequences come round to the same files, many times a second.
constexpr int kMostKnownFiles = 256;

/// As the file says, before it is decoded.
bool isTooLarge(const QImageReader& reader)
{
    const QSize size = reader.size();
    return qint64(size.width()) * size.height() > kMostPixels;
}

} // namespace

QPixmap readPicture(const QString& path)
{
    QImageReader reader(path);
    return isTooLarge(reader) ? QPixmap() : QPixmap::fromImage(reader.read());
}

bool isHarmfulPicture(const QString& path)
{
    static QCache<QString, ReadFile<bool>> known(kMostKnownFiles);
    const QFileInfo file(path);
    if (!file.exists() || file.isDir())
        return false;
    if (!file.isFile())
        return true;
    return readOnce(
        known, file, [&path] { return isTooLarge(QImageReader(path)); }, [](bool) { return 1; });
}

} // namespace WyWidgets
