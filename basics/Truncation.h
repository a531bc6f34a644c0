#pragma once

#include <limits>

/**
 * Truncates a coordinate towards zero: 12.9 gives 12, -0.5 gives 0. Values outside the range of int
 * are clamped and NaN gives 0, so the result is defined for every double.
 */
constexpr int truncatedToInt(double value)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    if (value != value)
        return 0;
    if (value <= lowest)
        return std::numeric_limits<int>::min();
    if (value >= highest)
        return std::numeric_limits<int>::max();
    return static_cast<int>(value);
}
