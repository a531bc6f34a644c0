#pragma once

#include <limits>

/**
 * The whole part of a coordinate, towards zero: 12.9 is 12, -0.5 is 0. What no int can hold is
 * clamped to the nearest int, and a NaN is 0, so that every double has a defined answer.
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
