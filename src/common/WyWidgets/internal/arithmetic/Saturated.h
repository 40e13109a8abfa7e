#pragma once

#include <QtGlobal>

#include <cmath>
#include <limits>

namespace WyWidgets {

// What the integer type cannot hold becomes the nearest value that it can.

/// Converts toward zero; not-a-number becomes 0.
template <typename Integer>
Integer saturated(double value)
{
    constexpr double end =
        -static_cast<double>(std::numeric_limits<Integer>::lowest()); // one beyond the greatest
    if (std::isnan(value))
        return 0;
    if (value >= end)
        return std::numeric_limits<Integer>::max();
    if (value <= -end)
        return std::numeric_limits<Integer>::lowest();
    return static_cast<Integer>(value);
}

template <typename Integer>
constexpr Integer saturated(qint64 value)
{
    using Limits = std::numeric_limits<Integer>;
    return static_cast<Integer>(qBound<qint64>(Limits::min(), value, Limits::max()));
}

} // namespace WyWidgets
