#include "WyWidgets/internal/painting/ArrowShape.h"

#include "WyWidgets/internal/arithmetic/Pixels.h"
#include "WyWidgets/internal/arithmetic/Saturated.h"

#include <QWidget>

#include <tuple>

namespace WyWidgets {

bool ArrowShape::operator==(const ArrowShape& other) const
{
    const auto parts = [](const ArrowShape& s) {
        return std::tie(s.box, s.startPos, s.triangleWidth, s.triangleHeight, s.side);
    };
    return parts(*this) == parts(other);
}

QPainterPath ArrowShape::outline(qreal cornerRadius) const
{
    QPainterPath path;
    path.addRoundedRect(box, cornerRadius, cornerRadius);
    path.addPolygon(triangle());
    return path;
}

QPolygonF ArrowShape::triangle() const
{
    const double left = box.x();
    const double top = box.y();
    const double right = left + box.width();
    const double bottom = top + box.height();
    const double start = startPos;
    const int half = triangleWidth / 2; // a whole number of pixels
    const double middle = start + half;
    const double end = start + triangleWidth;
    switch (side) {
    case ArrowSide::Left:
        return QPolygonF({{left, top + start}, {left - triangleHeight, top + middle}, {left, top + end}});
    case ArrowSide::Right:
        return QPolygonF({{right, top + start}, {right + triangleHeight, top + middle}, {right, top + end}});
    case ArrowSide::Top:
        return QPolygonF({{left + start, top}, {left + end, top}, {left + middle, top - triangleHeight}});
    case ArrowSide::Bottom:
        return QPolygonF(
            {{left + start, bottom}, {left + middle, bottom + triangleHeight}, {left + end, bottom}});
    }
    return {};
}

void ArrowShape::moveTipTo(QPoint target, QWidget* widget) const
{
    const QPolygonF corners = triangle();
    if (corners.isEmpty())
        return;
    const QPointF tip = corners.at(side == ArrowSide::Top ? 2 : 1);
    widget->move(toPoint(saturated<Px>(target.x() - tip.x()), saturated<Px>(target.y() - tip.y())));
}

} // namespace WyWidgets
