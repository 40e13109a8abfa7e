#include "WyWidgets/internal/painting/RoundedBar.h"

#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace WyWidgets {

namespace {

constexpr int kWidestPicture = 4096;
constexpr QImage::Format kFormat = QImage::Format_ARGB32_Premultiplied;

void paintPlainly(QPainter* painter, const RoundedBar::Form& form, qreal length, const QBrush& brush)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(brush);
    painter->drawRoundedRect(QRectF(form.rect.topLeft(), QSizeF(length, form.rect.height())), form.radius,
                             form.radius, Qt::AbsoluteSize);
}

bool keepsShape(const QTransform& transform)
{
    return transform.type() <= QTransform::TxScale && transform.m11() > 0.0 &&
           transform.m11() == transform.m22();
}

/// The left top corner of the pixel that a point lies in.
QPointF pixelOf(QPointF point)
{
    return QPointF(std::floor(point.x()), std::floor(point.y()));
}

/// Draws a part of the picture, pixel upon pixel, at a place in device pixels.
void drawPixels(QPainter* painter, const QTransform& toDevice, QPointF place, const QImage& picture,
                const QRectF& part)
{
    if (toDevice.type() <= QTransform::TxTranslate) {
        painter->drawImage(place - QPointF(toDevice.dx(), toDevice.dy()), picture, part);
        return;
    }
    const QTransform world = painter->worldTransform();
    painter->setWorldTransform(toDevice.inverted() * world);
    painter->drawImage(place, picture, part);
    painter->setWorldTransform(world);
}

const QRgb* row(const QImage& image, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

/// Multiplies a premultiplied colour by a coverage of 0 to 255 and rounds as the raster engine does.
QRgb covered(QRgb color, int coverage)
{
    const auto channel = [coverage](int value) {
        const int product = value * coverage;
        return (product + (product >> 8) + 0x80) >> 8;
    };
    return qRgba(channel(qRed(color)), channel(qGreen(color)), channel(qBlue(color)), channel(qAlpha(color)));
}

} // namespace

void RoundedBar::paint(QPainter* painter, const Form& form, qreal length)
{
    if (copy(painter, form, length))
        return;
    painter->save();
    paintPlainly(painter, form, length, form.brush(form.brushSize));
    painter->restore();
}

bool RoundedBar::copy(QPainter* painter, const Form& form, qreal length)
{
    const QTransform& toDevice = painter->deviceTransform();
    if (painter->paintEngine()->type() != QPaintEngine::Raster || !keepsShape(toDevice))
        return false;
    const QPointF origin(toDevice.dx(), toDevice.dy());
    const QPointF firstPixel = pixelOf(origin);
    if (!recall(form, toDevice.m11(), origin - firstPixel))
        return false;

    const qreal end = endOnGrid(length) - m_part.left();
    if (end < 2 * endColumns() || end > m_part.width() || end != std::floor(end))
        return false;
    endAt(int(end), length);
    drawPixels(painter, toDevice, firstPixel + m_part.topLeft(), m_ended, QRectF(0, 0, end, m_part.height()));
    return true;
}

bool RoundedBar::recall(const Form& form, qreal scale, QPointF offset)
{
    // A bar that changes with every frame, as while a window is resized, is not worth its pictures.
    if (!(form == m_form) || scale != m_scale || offset != m_offset) {
        *this = RoundedBar();
        m_form = form;
        m_scale = scale;
        m_offset = offset;
        return false;
    }
    if (m_endless.isNull())
        paintPictures();
    return !m_endless.isNull();
}

qreal RoundedBar::gridX(qreal x) const
{
    return x * m_scale + m_offset.x();
}

qreal RoundedBar::gridY(qreal y) const
{
    return y * m_scale + m_offset.y();
}

qreal RoundedBar::endOnGrid(qreal length) const
{
    return gridX(m_form.rect.left() + length);
}

int RoundedBar::endColumns() const
{
    return int(std::ceil(m_form.radius * m_scale)) + 1; // the corners, and one column that is surely inside
}

int RoundedBar::magnitudes(qreal length) const
{
    // The corners begin and end on boundaries of pixels, where the last bit of a number decides about
    // coverage. Lengths whose corners lie between the same powers of two, before and after scaling, are
    // alike.
    int key = 0;
    for (qreal corner : {length, length - m_form.radius}) {
        key = key * 32 + std::ilogb(m_form.rect.left() + corner);
        key = key * 32 + std::ilogb(endOnGrid(corner));
    }
    return key;
}

void RoundedBar::paintPictures()
{
    const QRectF rect = m_form.rect;
    const QPointF topLeft(std::floor(gridX(rect.left())), std::floor(gridY(rect.top())));
    const QPointF bottomRight(std::ceil(gridX(rect.right())), std::ceil(gridY(rect.bottom())));
    if (rect.width() <= 0.0 || topLeft.x() < 0.0 || topLeft.y() < 0.0 || bottomRight.x() > kWidestPicture)
        return;
    m_part = QRectF(topLeft, bottomRight).toRect();
    const QSize canvas(m_part.right() + 1, m_part.bottom() + 1);
    const qreal beyond = rect.width() + 2 * m_form.radius + 2; // the right end is off the picture
    m_endless = paintBar(canvas, beyond, m_form.brush(m_form.brushSize)).copy(m_part);
    m_ended = m_endless;
    m_end = endColumns();
    m_ink = paintInk(canvas).copy(m_part);
}

QImage RoundedBar::paintBar(QSize canvas, qreal length, const QBrush& brush) const
{
    QImage picture(canvas, kFormat);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.translate(m_offset);
    painter.scale(m_scale, m_scale);
    paintPlainly(&painter, m_form, length, brush);
    return picture;
}

QImage RoundedBar::paintInk(QSize canvas) const
{
    QImage ink(canvas, kFormat);
    ink.fill(Qt::transparent);
    const QImage coverage = paintBar(canvas, m_form.rect.width(), Qt::black);
    QBrush brush = m_form.brush(m_form.brushSize);
    brush.setTransform(QTransform(m_scale, 0, 0, m_scale, m_offset.x(), m_offset.y()));
    QPainter painter(&ink);
    for (int y = 0; y < ink.height(); ++y) {
        // The raster engine adds up the rounded steps of a gradient, so it matters where a row begins.
        const QRgb* parts = row(coverage, y);
        const auto first = std::find_if(parts, parts + ink.width(), [](QRgb part) { return part != 0; });
        const int left = int(first - parts);
        painter.fillRect(left, y, ink.width() - left, 1, brush);
    }
    return ink;
}

const QImage& RoundedBar::mask(qreal length)
{
    QImage& mask = m_masks[magnitudes(length)];
    if (mask.isNull()) {
        const int end = int(endOnGrid(length));
        const QRect columns(end - endColumns(), m_part.top(), endColumns(), m_part.height());
        mask = paintBar(QSize(end, m_part.bottom() + 1), length, Qt::black).copy(columns);
    }
    return mask;
}

void RoundedBar::endAt(int column, qreal length)
{
    if (column == m_end)
        return;
    const QImage& coverage = mask(length);
    const int columns = endColumns();
    const int first = column - columns;
    const int oldFirst = m_end - columns;
    for (int y = 0; y < m_ended.height(); ++y) {
        auto* ended = reinterpret_cast<QRgb*>(m_ended.scanLine(y));
        std::copy_n(row(m_endless, y) + oldFirst, columns, ended + oldFirst);
        const QRgb* ink = row(m_ink, y) + first;
        const QRgb* parts = row(coverage, y);
        for (int x = 0; x < columns; ++x)
            ended[first + x] = covered(ink[x], qAlpha(parts[x]));
    }
    m_end = column;
}

} // namespace WyWidgets
