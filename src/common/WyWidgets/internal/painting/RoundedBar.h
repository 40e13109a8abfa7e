#pragma once

#include <QBrush>
#include <QHash>
#include <QImage>
#include <QRectF>

class QPainter;

namespace WyWidgets {

/// A horizontal bar with rounded ends that starts at a fixed place and has any length: painted once, then
/// copied.
///
/// Pixel by pixel it looks as QPainter::drawRoundedRect() paints it, antialiased and without an outline, when
/// the painter's origin is that of the device. (Away from there floating point rounds the corners elsewhere,
/// by a hundredth of a pixel.) Where copying cannot achieve that, it is painted so: while it ends within a
/// device pixel or is hardly longer than its round ends, on rotated painters, with other engines than the
/// raster engine, and beyond 4096 device pixels.
class RoundedBar
{
public:
    struct Form
    {
        QRectF rect; ///< the bar at its greatest length
        qreal radius = 0.0;
        /// Makes the bar's brush, which may vary in horizontal direction, for something of that size.
        QBrush (*brush)(QSize) = nullptr;
        QSize brushSize;

        bool operator==(const Form& other) const
        {
            return rect == other.rect && radius == other.radius && brush == other.brush &&
                   brushSize == other.brushSize;
        }
    };

    /// Paints the first `length` of the form. The bar keeps the pictures of one form at one scale; it paints
    /// them when both come the second time.
    void paint(QPainter* painter, const Form& form, qreal length);

private:
    bool copy(QPainter* painter, const Form& form, qreal length);
    bool recall(const Form& form, qreal scale, QPointF offset);
    qreal gridX(qreal x) const;
    qreal gridY(qreal y) const;
    qreal endOnGrid(qreal length) const;
    int endColumns() const;
    int magnitudes(qreal length) const;
    void paintPictures();
    QImage paintBar(QSize canvas, qreal length, const QBrush& brush) const;
    QImage paintInk(QSize canvas) const;
    const QImage& mask(qreal length);
    void endAt(int column, qreal length);

    Form m_form;
    // The grid of device pixels, beginning with the pixel that the painter's origin lies in.
    qreal m_scale = 0.0;
    QPointF m_offset;           ///< of the origin within its pixel
    QRect m_part;               ///< what the pictures show of the grid
    QImage m_endless;           ///< the bar without its right end
    QImage m_ended;             ///< the same with the right end of the last painting
    int m_end = 0;              ///< the column of m_ended behind that end
    QImage m_ink;               ///< the colours of the bar as if it filled its pixels
    QHash<int, QImage> m_masks; ///< coverage of the last columns, by magnitudes()
};

} // namespace WyWidgets
