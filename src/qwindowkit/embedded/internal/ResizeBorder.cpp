#include "internal/ResizeBorder.h"

#include "internal/WindowTraits.h"

#include <QWidget>

namespace QWK {

namespace {

constexpr int kBorderWidthPx = 8;

} // namespace

Qt::Edges resizableEdgesAt(const QWidget* window, QPoint pos)
{
    Qt::Edges edges;
    if ((window->windowState() & ~Qt::WindowActive) || !window->rect().contains(pos))
        return edges;
    if (!hasFixedWidth(window)) {
        if (pos.x() < kBorderWidthPx)
            edges |= Qt::LeftEdge;
        else if (pos.x() >= window->width() - kBorderWidthPx)
            edges |= Qt::RightEdge;
    }
    if (!hasFixedHeight(window)) {
        if (pos.y() < kBorderWidthPx)
            edges |= Qt::TopEdge;
        else if (pos.y() >= window->height() - kBorderWidthPx)
            edges |= Qt::BottomEdge;
    }
    return edges;
}

Qt::CursorShape resizeCursorShape(Qt::Edges edges)
{
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        return Qt::SizeBDiagCursor;
    return edges & (Qt::LeftEdge | Qt::RightEdge) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

} // namespace QWK
