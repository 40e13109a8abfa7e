#pragma once

#include <cmath>
#include <limits>

namespace WyWidgets {

/// Converts toward zero. What the integer type cannot hold becomes the nearest value that it can;
/// not-a-number becomes 0.
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

} // namespace WyWidgets
