#pragma once

#include <QPainterPath>
#include <QPoint>
#include <QPolygonF>
#include <QRectF>

class QWidget;

namespace WyWidgets {

/// The side of a box that an arrow sits on.
enum class ArrowSide : int { Left = 0, Right = 1, Top = 2, Bottom = 3 };

/// The plate of a panel with an arrow: a rounded box and a triangle on one of its sides. Any other side than
/// the four means no triangle.
struct ArrowShape
{
    /// Of whole numbers, in floating point so that careless ones cannot overflow.
    QRectF box;
    /// Distance of the triangle from the top (left and right side) or left end (top and bottom) of its side.
    int startPos = 0;
    int triangleWidth = 0;
    int triangleHeight = 0;
    ArrowSide side = ArrowSide::Left;

    bool operator==(const ArrowShape& other) const;

    /// Box and triangle in one path. They are no union: a triangle that reaches into the box leaves a hole.
    QPainterPath outline(qreal cornerRadius) const;
    /// The triangle's three corners; empty without a triangle.
    QPolygonF triangle() const;
    /// Moves the widget so that the tip of the shape, which is in the widget's coordinates, comes to lie on
    /// `target`, in the coordinates of move(). Without a triangle the widget stays.
    void moveTipTo(QPoint target, QWidget* widget) const;
};

} // namespace WyWidgets
