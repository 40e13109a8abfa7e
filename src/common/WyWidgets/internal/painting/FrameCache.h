#pragma once

#include <QHash>
#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QSize>
#include <QTransform>
#include <QVector>

#include <functional>
#include <optional>

namespace WyWidgets {

/// Paints one shape of a frame (antialiased and without an outline, as the painter is set) and returns a
/// rectangle, in device coordinates, outside which the shape left no pixel.
using PaintShape = std::function<QRectF(QPainter&, int shape)>;

/// Pictures of painted frames, each drawn again whenever its step comes round.
///
/// Drawing a frame leaves the very pixels that painting its shapes one after another would leave, whatever
/// lies below. One picture cannot promise that where shapes overlap, for blending rounds: a frame keeps as
/// many pictures as shapes share a pixel, each cut to where it is needed. (The shapes are painted as at the
/// origin of the device. Away from it floating point rounds the corners of slanting shapes elsewhere, by a
/// hundredth of a pixel.)
///
/// The pictures belong to one scale (device pixel ratio), one fraction of a device pixel at which the widget
/// begins, and one size; others start the cache afresh. It holds 8 MiB at most: what does not fit, and what a
/// picture cannot stand for (printing, rotated or half-transparent painting), is painted.
class FrameStore
{
public:
    /// Draws a frame that fits into `size`, counted from the painter's origin.
    void draw(QPainter& painter, double step, QSize size, int shapeCount, const PaintShape& paintShape);
    void clear();

private:
    struct Layer
    {
        QPoint position;
        QImage picture;
    };
    using Frame = QVector<Layer>;

    /// Where the widget's origin lies on the device, apart from whole device pixels.
    struct Placement
    {
        explicit Placement(const QTransform& toDevice);
        bool operator==(const Placement& other) const;
        QTransform transform() const;

        QSizeF scale;
        QPointF phase;
    };

    const Frame* frame(double step, int shapeCount, const PaintShape& paintShape);
    std::optional<Frame> paintFrame(int shapeCount, const PaintShape& paintShape) const;

    Placement m_placement = Placement(QTransform());
    QSize m_size;
    QHash<double, Frame> m_frames;
    qint64 m_bytes = 0;
    bool m_full = false;
};

/// A FrameStore for one look: everything besides the step that the shapes depend on. Another look starts the
/// cache afresh.
template <typename Look>
class FrameCache
{
public:
    void draw(QPainter& painter, const Look& look, double step, QSize size, int shapeCount,
              const PaintShape& paintShape)
    {
        if (!(m_look == look)) {
            m_store.clear();
            m_look = look;
        }
        m_store.draw(painter, step, size, shapeCount, paintShape);
    }

    void clear() { m_store.clear(); }

private:
    Look m_look = Look();
    FrameStore m_store;
};

} // namespace WyWidgets
