#include "WyWidgets/internal/painting/PictureFile.h"

#include <QFileInfo>
#include <QImageReader>

namespace WyWidgets {

namespace {

// What is larger is no icon, but would hold the application up or take its memory.
constexpr qint64 kMostPixels = 4096LL * 4096;

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
    const QFileInfo info(path);
    if (!info.exists() || info.isDir())
        return false;
    return !info.isFile() || isTooLarge(QImageReader(path));
}

} // namespace WyWidgets
