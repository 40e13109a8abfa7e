#pragma once

#include <QPoint>
#include <Qt>

class QWidget;

namespace QWK {

/// The edges that a drag from this position of the window moves: none inside, one on a side, two on a corner.
/// Only a window in its normal state has borders, and only along the axes whose size is not fixed.
Qt::Edges resizableEdgesAt(const QWidget* window, QPoint pos);

/// The pointer over these edges.
Qt::CursorShape resizeCursorShape(Qt::Edges edges);

} // namespace QWK
