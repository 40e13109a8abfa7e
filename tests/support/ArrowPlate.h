#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QPolygon>
#include <QRect>
#include <QWidget>

namespace WyTest {

/// A rounded box with a triangle, as the arrow panels must show it, told in plain numbers.
struct ArrowPlate
{
    QRect box;
    int startPos;
    int triangleWidth;
    int triangleHeight;
    int side; // 0 left, 1 right, 2 top, 3 bottom
    qreal radius;

    void paint(QPainter& painter, const QColor& color) const
    {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        QPainterPath path;
        path.addRoundedRect(QRectF(box), radius, radius);
        path.addPolygon(QPolygonF(triangle()));
        painter.drawPath(path);
    }

    QPolygon triangle() const
    {
        const int x = box.x();
        const int y = box.y();
        const int w = box.width();
        const int h = box.height();
        const int s = startPos;
        const int tw = triangleWidth;
        const int th = triangleHeight;
        switch (side) {
        case 0:
            return QPolygon({QPoint(x, y + s), QPoint(x - th, y + s + tw / 2), QPoint(x, y + s + tw)});
        case 1:
            return QPolygon(
                {QPoint(x + w, y + s), QPoint(x + w + th, y + s + tw / 2), QPoint(x + w, y + s + tw)});
        case 2:
            return QPolygon({QPoint(x + s, y), QPoint(x + s + tw, y), QPoint(x + s + tw / 2, y - th)});
        case 3:
            return QPolygon(
                {QPoint(x + s, y + h), QPoint(x + s + tw / 2, y + h + th), QPoint(x + s + tw, y + h)});
        default:
            return QPolygon();
        }
    }

    QPoint tip() const { return triangle().at(side == 2 ? 2 : 1); }
};

/// Paints an ArrowPlate and nothing else.
class PlateWidget : public QWidget
{
public:
    PlateWidget(const ArrowPlate& plate, const QColor& color, QSize size) : m_plate(plate), m_color(color)
    {
        resize(size);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        m_plate.paint(painter, m_color);
    }

private:
    ArrowPlate m_plate;
    QColor m_color;
};

} // namespace WyTest
