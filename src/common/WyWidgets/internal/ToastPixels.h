#pragma once

#include <QPoint>
#include <QSize>
#include <QWidget>

namespace WyWidgets {

/// Pixels of the toast's arithmetic: its settings may be any integers, and their sums fit here.
using Px = qint64;

/// As an integer that widgets can take.
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
