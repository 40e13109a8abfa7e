#include "WyWidgets/internal/painting/FrameCache.h"

#include <QPaintEngine>

#include <algorithm>
#include <cmath>

namespace WyWidgets {

namespace {

constexpr qint64 kMostBytes = 8LL * 1024 * 1024;
constexpr int kBytesPerPixel = 4;

/// True if pictures of 32 bits a pixel, copied pixel by pixel, are as good as painting with this painter.
bool canDrawPictures(const QPainter& painter, const QTransform& toDevice)
{
    const QPaintEngine* engine = painter.paintEngine();
    return engine && engine->type() == QPaintEngine::Raster && engine->paintDevice() &&
           engine->paintDevice()->depth() == 8 * kBytesPerPixel && toDevice.type() <= QTransform::TxScale &&
           toDevice.m11() > 0 && toDevice.m22() > 0 && painter.opacity() == 1.0 &&
           painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

void setUp(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
}

QPointF wholePixels(QPointF position)
{
    return QPointF(std::floor(position.x()), std::floor(position.y()));
}

QImage transparentPicture(QSize size)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    return picture;
}

const QRgb* pixels(const QImage& picture, int y)
{
    return reinterpret_cast<const QRgb*>(picture.constScanLine(y));
}

void clearPixels(QImage& picture, const QRect& rect)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        std::fill(row + rect.left(), row + rect.right() + 1, 0);
    }
}

QRect usedPart(const QImage& picture)
{
    QRect used;
    for (int y = 0; y < picture.height(); ++y) {
        const QRgb* begin = pixels(picture, y);
        const QRgb* end = begin + picture.width();
        const QRgb* first = std::find_if(begin, end, [](QRgb pixel) { return pixel != 0; });
        if (first == end)
            continue;
        while (end[-1] == 0)
            --end;
        used |= QRect(QPoint(int(first - begin), y), QPoint(int(end - begin) - 1, y));
    }
    return used;
}

/// Puts each pixel of the shape into the lowest layer that is free there; false if that takes too many
/// layers.
bool addShape(QVector<QImage>& layers, const QImage& shape, const QRect& bounds, int mostLayers)
{
    for (int y = bounds.top(); y <= bounds.bottom(); ++y) {
        const QRgb* row = pixels(shape, y);
        for (int x = bounds.left(); x <= bounds.right(); ++x) {
            if (row[x] == 0)
                continue;
            const auto isFree = [x, y](const QImage& layer) {
                return pixels(layer, y)[x] == 0;
            };
            auto layer = std::find_if(layers.begin(), layers.end(), isFree);
            if (layer == layers.end()) {
                if (layers.size() == mostLayers)
                    return false;
                layers.append(transparentPicture(shape.size()));
                layer = layers.end() - 1;
            }
            reinterpret_cast<QRgb*>(layer->scanLine(y))[x] = row[x];
        }
    }
    return true;
}

} // namespace

FrameStore::Placement::Placement(const QTransform& toDevice)
    : scale(toDevice.m11(), toDevice.m22()),
      phase(QPointF(toDevice.dx(), toDevice.dy()) - wholePixels(QPointF(toDevice.dx(), toDevice.dy())))
{
}

bool FrameStore::Placement::operator==(const Placement& other) const
{
    return scale == other.scale && phase == other.phase;
}

QTransform FrameStore::Placement::transform() const
{
    return QTransform(scale.width(), 0, 0, scale.height(), phase.x(), phase.y());
}

void FrameStore::draw(QPainter& painter, double step, QSize size, int shapeCount,
                      const PaintShape& paintShape)
{
    if (size.isEmpty())
        return;
    const QTransform toDevice = painter.deviceTransform();
    const bool drawsPicture = canDrawPictures(painter, toDevice);
    if (drawsPicture && !(m_placement == Placement(toDevice) && m_size == size)) {
        clear();
        m_placement = Placement(toDevice);
        m_size = size;
    }
    const Frame* painted = nullptr;
    if (drawsPicture)
        painted = frame(step, shapeCount, paintShape);
    if (!painted) {
        setUp(painter);
        for (int shape = 0; shape < shapeCount; ++shape)
            paintShape(painter, shape);
        return;
    }
    // On to device pixels, so that the pictures are copied and not scaled.
    const QTransform world = painter.worldTransform();
    painter.scale(1 / m_placement.scale.width(), 1 / m_placement.scale.height());
    for (const Layer& layer : *painted)
        painter.drawImage(layer.position - m_placement.phase, layer.picture);
    painter.setWorldTransform(world);
}

void FrameStore::clear()
{
    m_frames.clear();
    m_bytes = 0;
    m_full = false;
}

const FrameStore::Frame* FrameStore::frame(double step, int shapeCount, const PaintShape& paintShape)
{
    const auto known = m_frames.constFind(step);
    if (known != m_frames.constEnd())
        return &*known;
    if (m_full)
        return nullptr;
    std::optional<Frame> painted = paintFrame(shapeCount, paintShape);
    if (!painted) {
        m_full = true;
        return nullptr;
    }
    for (const Layer& layer : *painted)
        m_bytes += layer.picture.sizeInBytes();
    return &*m_frames.insert(step, *painted);
}

std::optional<FrameStore::Frame> FrameStore::paintFrame(int shapeCount, const PaintShape& paintShape) const
{
    const QTransform transform = m_placement.transform();
    const QRectF room = transform.mapRect(QRectF(QPointF(), QSizeF(m_size)));
    if (qMax(room.width(), room.height()) * kBytesPerPixel > kMostBytes) // maybe more than integers count
        return std::nullopt;
    const QRect area = room.toAlignedRect();
    const qint64 layerBytes = qint64(area.width()) * area.height() * kBytesPerPixel;
    const int mostLayers = int((kMostBytes - m_bytes) / layerBytes);
    if (mostLayers == 0)
        return std::nullopt;

    QImage single = transparentPicture(area.size());
    QPainter painter(&single);
    setUp(painter);
    painter.setTransform(transform);
    QVector<QImage> layers;
    for (int shape = 0; shape < shapeCount; ++shape) {
        const QRectF left = paintShape(painter, shape).normalized().adjusted(-1, -1, 1, 1);
        // Cut in floating point: careless settings make shapes larger than integers count.
        const QRect bounds = (left & single.rect()).toAlignedRect();
        if (!addShape(layers, single, bounds, mostLayers))
            return std::nullopt;
        clearPixels(single, bounds);
    }

    Frame frame;
    for (const QImage& layer : qAsConst(layers)) {
        const QRect used = usedPart(layer);
        frame.append({used.topLeft(), layer.copy(used)});
    }
    return frame;
}

} // namespace WyWidgets
