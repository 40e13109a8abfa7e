#include "WyWidgets/internal/toast/ToastResources.h"

#include "WyWidgets/internal/painting/PictureFile.h"
#include "WyWidgets/internal/platform/ReadOnce.h"
#include "WyWidgets/internal/toast/ToastIconEngine.h"
#include "WyWidgets/wycontrol/WyToast.h"

#include <QCache>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

#include <limits>
#include <tuple>

namespace WyWidgets::ToastResources {

namespace {

constexpr int kMaximumStyleSheets = 8;
constexpr int kMaximumPicturesKib = 4096;
// What is larger is no style sheet, but would hold the application up or take its memory.
constexpr qint64 kLargestStyleSheetBytes = 16LL * 1024 * 1024;

struct RecolorKey
{
    qint64 icon;
    QSize size;
    QRgb color;
    qreal ratio;

    bool operator==(const RecolorKey& other) const
    {
        return std::tie(icon, size, color, ratio) ==
               std::tie(other.icon, other.size, other.color, other.ratio);
    }
};

uint qHash(const RecolorKey& key, uint seed)
{
    return ::qHash(key.icon, seed) ^ ::qHash(key.color, seed) ^
           ::qHash(qMakePair(key.size.width(), key.size.height()), seed);
}

/// Pixmaps must not outlive the application, so the caches end with it.
struct Caches
{
    QCache<QString, ReadFile<QString>> styleSheets{kMaximumStyleSheets};
    QCache<QString, ReadFile<QPixmap>> pictures{kMaximumPicturesKib};
    QCache<qint64, QIcon> plainIcons{kMaximumPicturesKib};
    QCache<RecolorKey, QIcon> recoloredIcons{kMaximumPicturesKib};
};

Caches* currentCaches = nullptr;

Caches& caches()
{
    if (!currentCaches) {
        currentCaches = new Caches;
        qAddPostRoutine([] {
            delete currentCaches;
            currentCaches = nullptr;
        });
    }
    return *currentCaches;
}

int costOf(const QString&)
{
    return 1;
}

int costOf(const QPixmap& picture)
{
    const qint64 kib = qint64(picture.width()) * picture.height() * 4 / 1024 + 1;
    return static_cast<int>(qMin<qint64>(kib, std::numeric_limits<int>::max()));
}

template <typename Content, typename Read>
Content readFile(QCache<QString, ReadFile<Content>>& cache, const QString& path, Read read)
{
    const QFileInfo file(path);
    // Pipes and devices may never end.
    if (!file.isFile())
        return Content();
    return readOnce(cache, file, read, [](const Content& content) { return costOf(content); });
}

QString readText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLargestStyleSheetBytes)
        return QString();
    const QByteArray bytes = file.readAll();
    // Files may be padded with NULs: nothing counts after the first.
    return QString::fromUtf8(bytes.constData(), static_cast<int>(qstrlen(bytes.constData())));
}

/// Pixels for each point of an icon.
qreal iconDensity()
{
    return qMax(1.0, qGuiApp->devicePixelRatio());
}

QPixmap silhouette(const QPixmap& picture, const QColor& color)
{
    return QPixmap::fromImage(WyToast::recolorImage(picture.toImage(), color));
}

QPixmap withPixels(QPixmap picture)
{
    picture.setDevicePixelRatio(1);
    return picture;
}

/// `picture` is the icon's pixmap at this size.
QIcon makeRecoloredIcon(const QIcon& icon, const QPixmap& picture, const QSize& size, const QColor& color)
{
    const qreal density = iconDensity();
    if (density <= 1 || picture.isNull())
        return silhouette(picture, color);
    if (!QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps))
        return QIcon(
            new ToastIconEngine(silhouette(picture, color), silhouette(icon.pixmap(size * density), color)));
    // Here the picture is dense, and Qt chooses among the pixmaps of an icon by the pixels it needs.
    const QPixmap dense = silhouette(withPixels(picture), color);
    const QSize points = picture.size() / picture.devicePixelRatio();
    QIcon both(dense);
    both.addPixmap(dense.scaled(points, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return both;
}

} // namespace

QString styleSheet(const QString& path)
{
    return readFile(caches().styleSheets, path, [&path] { return readText(path); });
}

QPixmap picture(const QString& path)
{
    // Not by QPixmap's own loader: it takes a file that changes within a second for the old one.
    return readFile(caches().pictures, path, [&path] { return readPicture(path); });
}

QIcon plainIcon(const QPixmap& picture)
{
    if (picture.isNull())
        return QIcon();
    QCache<qint64, QIcon>& cache = caches().plainIcons;
    if (const QIcon* known = cache.object(picture.cacheKey()))
        return *known;
    QIcon icon(picture);
    cache.insert(picture.cacheKey(), new QIcon(icon), costOf(picture));
    return icon;
}

QIcon recoloredIcon(const QIcon& icon, const QSize& size, const QColor& color)
{
    QCache<RecolorKey, QIcon>& cache = caches().recoloredIcons;
    const RecolorKey key{icon.cacheKey(), size, color.rgb(), iconDensity()};
    if (const QIcon* known = cache.object(key))
        return *known;
    const QPixmap picture = icon.pixmap(size);
    QIcon recolored = makeRecoloredIcon(icon, picture, size, color);
    cache.insert(key, new QIcon(recolored), costOf(picture));
    return recolored;
}

} // namespace WyWidgets::ToastResources
