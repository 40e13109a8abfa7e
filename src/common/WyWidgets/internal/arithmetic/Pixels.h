#pragma once

#include <QPoint>
#include <QSize>
#include <QWidget>

namespace WyWidgets {

/// Pixels for arithmetic with settings that may be any integers: their sums fit here.
using Px = qint64;

/// As a length or coordinate that widgets can take: beyond, Qt's rectangles overflow.
inline int toInt(Px value)
{
    return static_cast<int>(qBound<Px>(-QWIDGETSIZE_MAX, value, QWIDGETSIZE_MAX));
}

inline QPoint toPoint(Px x, Px y)
{
    return {toInt(x), toInt(y)};
}

inline QSize toSize(Px width, Px height)
{
    return {toInt(qMax<Px>(0, width)), toInt(qMax<Px>(0, height))};
}

} // namespace WyWidgets
