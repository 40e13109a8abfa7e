#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

#include <algorithm>
#include <cmath>

/// The rules of a selection frame told case by case, as a second opinion to the class.
struct SelectFrameModel
{
    enum { Move, Top, Bottom, Left, Right, TopLeft, BottomLeft, BottomRight, TopRight };

    int x = 0, y = 0, w = 0, h = 0;
    int parentW = 0, parentH = 0;
    int direction = Move;
    double pressX = 0, pressY = 0;
    int carryV = 0, carryH = 0;
    bool keep = false;
    int ratioW = 0, ratioH = 0;

    // Filled by drag().
    bool moved = false;
    QRect emitted;

    static int zone(QPoint p, int w, int h)
    {
        const int r = w - 1;
        const int b = h - 1;
        const auto in = [](int v, int lo, int hi) {
            return v >= lo && v <= hi;
        };
        if (in(p.x(), 0, 12) && in(p.y(), 0, 12))
            return TopLeft;
        if (in(p.x(), r - 12, r) && in(p.y(), b - 12, b))
            return BottomRight;
        if (in(p.x(), 0, 12) && in(p.y(), b - 12, b))
            return BottomLeft;
        if (in(p.x(), r - 12, r) && in(p.y(), 0, 12))
            return TopRight;
        if (in(p.x(), 0, 6))
            return Left;
        if (in(p.x(), r - 6, r))
            return Right;
        if (in(p.y(), 0, 6))
            return Top;
        if (in(p.y(), b - 6, b))
            return Bottom;
        return Move;
    }

    void press(QPointF local)
    {
        const QPoint p(int(std::lround(local.x())), int(std::lround(local.y())));
        direction = zone(p, w, h);
        carryV = carryH = 0;
        pressX = p.x();
        pressY = p.y();
    }

    void drag(QPointF local)
    {
        moved = false;
        const int lx = int(std::lround(local.x()));
        const int ly = int(std::lround(local.y()));
        const int started = direction;
        const int usedV = carryV;
        const int usedH = carryH;
        int nx = x, ny = y, nw = w, nh = h;
        const bool ratio = keep && ratioW > 0 && ratioH > 0;
        if (direction == Move) {
            nx = int(x - pressX + lx);
            ny = int(y - pressY + ly);
            if (nx < 0)
                nx = 0;
            else if (nx + w > parentW)
                nx = parentW - w;
            if (ny < 0)
                ny = 0;
            else if (ny + h > parentH)
                ny = parentH - h;
            finish(QRect(nx, ny, w, h));
            return;
        }
        if (ratio) {
            if (!dragRatio(lx, ly, nx, ny, nw, nh))
                return;
        } else {
            dragFree(lx, ly, nx, ny, nw, nh);
        }

        // Cut off at the parent.
        const int left = nx >= 1 ? nx : 0;
        const int top = ny >= 1 ? ny : 0;
        const int right = nx + std::min(nw, parentW - nx) - 1;
        const int bottom = ny + std::min(nh, parentH - ny) - 1;
        QRect r(QPoint(left, top), QPoint(right, bottom));
        carryV = carryH = 0;
        if (started != Left && started != Right && r.height() < 0) {
            carryV = r.height();
            r.setBottom(r.top() - 1);
            switch (started) {
            case Top:
                direction = Bottom;
                break;
            case Bottom:
                direction = Top;
                break;
            case TopLeft:
                direction = BottomLeft;
                break;
            case BottomLeft:
                direction = TopLeft;
                break;
            case TopRight:
                direction = BottomRight;
                break;
            case BottomRight:
                direction = TopRight;
                break;
            }
        }
        if (started != Top && started != Bottom && r.width() < 0) {
            carryH = r.width();
            r.setRight(r.left() - 1);
            switch (started) {
            case Left:
                direction = Right;
                break;
            case Right:
                direction = Left;
                break;
            case TopLeft:
                direction = TopRight;
                break;
            case TopRight:
                direction = TopLeft;
                break;
            case BottomLeft:
                direction = BottomRight;
                break;
            case BottomRight:
                direction = BottomLeft;
                break;
            }
        }
        const double newLocalX = local.x() - (r.x() - x);
        const double newLocalY = local.y() - (r.y() - y);
        // A top or left edge that has used up a carry is that much nearer to the pointer from now on.
        if (!ratio && (started == Top || started == TopLeft || started == TopRight))
            pressY -= usedV;
        if (!ratio && (started == Left || started == TopLeft || started == BottomLeft))
            pressX -= usedH;
        switch (started) {
        case Bottom:
        case Right:
        case BottomRight:
            pressX = newLocalX;
            pressY = newLocalY;
            break;
        case BottomLeft:
            if (!ratio)
                pressY = newLocalY;
            break;
        case TopRight:
            if (!ratio)
                pressX = newLocalX;
            break;
        }
        finish(r);
    }

private:
    void finish(const QRect& r)
    {
        moved = true;
        emitted = r;
        x = r.x();
        y = r.y();
        w = std::max(0, r.width());
        h = std::max(0, r.height());
    }

    void dragFree(int lx, int ly, int& nx, int& ny, int& nw, int& nh) const
    {
        if (direction == Top || direction == TopLeft || direction == TopRight) {
            const int d = int(pressY - ly - carryV);
            ny = y - d;
            nh = h + d;
        }
        if (direction == Bottom || direction == BottomLeft || direction == BottomRight) {
            nh = h - int(carryV + pressY - ly);
            ny = y + carryV;
        }
        if (direction == Left || direction == TopLeft || direction == BottomLeft) {
            const int d = int(pressX - lx - carryH);
            nx = x - d;
            nw = w + d;
        }
        if (direction == Right || direction == TopRight || direction == BottomRight) {
            nw = w - int(carryH + pressX - lx);
            nx = x + carryH;
        }
    }

    bool dragRatio(int lx, int ly, int& nx, int& ny, int& nw, int& nh) const
    {
        const int right = x + w;
        const int bottom = y + h;
        switch (direction) {
        case Top:
        case TopRight: {
            const int d = int(pressY - ly);
            nh = h + d;
            ny = y - d;
            nw = int(qint64(ratioW) * nh / ratioH);
            break;
        }
        case Bottom:
        case BottomRight:
            nh = h - int(pressY - ly);
            nw = int(qint64(ratioW) * nh / ratioH);
            break;
        case Left:
        case BottomLeft: {
            const int d = int(pressX - lx);
            nw = w + d;
            nx = x - d;
            nh = int(qint64(ratioH) * nw / ratioW);
            break;
        }
        case Right:
            nw = w - int(pressX - lx);
            nh = int(qint64(ratioH) * nw / ratioW);
            break;
        case TopLeft:
            nw = w + int(pressX - lx);
            nh = int(qint64(ratioH) * nw / ratioW);
            nx = right - nw;
            ny = bottom - nh;
            break;
        }
        if (nw < 120 || nh < 120)
            return false;
        switch (direction) {
        case Top:
            return !(ny < 0 || nx + nw > parentW);
        case Bottom:
            return !(ny + nh > parentH || nx + nw > parentW);
        case Left:
            return !(nx < 0 || ny < 0 || ny + nh > parentH);
        case Right:
            return !(ny + nh > parentH || nx + nw > parentW);
        case TopLeft:
            return !(nx < 0 || ny < 0);
        case BottomLeft:
            return !(nx < 0 || ny + nh > parentH || right > parentW);
        case BottomRight:
            return !(ny + nh > parentH || nx + nw > parentW);
        default:
            return !(nx < 0 || ny < 0 || nx + nw > parentW);
        }
    }
};
