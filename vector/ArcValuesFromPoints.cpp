#include "ArcValuesFromPoints.h"

#include <cmath>

namespace
{
constexpr double pi = 3.141592653589793;

/** From this slope on, a radius counts as vertical. */
constexpr float verticalSlope = 100000.0F;

/** The slope of a radius that leaves the centre at `angle` degrees, y down. */
float slopeOfRadius(float angle)
{
    return static_cast<float>(std::tan(-angle * pi / 180));
}
} // namespace

void ArcValuesFromPoints(float x1, float y1, float x2, float y2, float angle, float *radius,
                         float *startAngle, float *endAngle, float *centreX, float *centreY)
{
    const bool coinciding = x1 == x2 && y1 == y2;
    const double slope = (y2 - y1) / (x2 - x1);
    const double chord = coinciding ? 0.0 : std::atan(slope);
    const float towardsCentre = static_cast<float>(chord * 180 / pi - 90);
    float start = -(angle * -0.5F + towardsCentre);
    float end = -(towardsCentre + angle * 0.5F);
    if (x1 > x2) {
        start += 180.0F;
        end += 180.0F;
    }

    const float m1 = slopeOfRadius(start);
    const float m2 = slopeOfRadius(end);
    const float b1 = y1 - x1 * m1;
    const float x = (y2 - x2 * m2 - b1) / (m1 - m2);
    // Compared as a float: the slope of a radius of exactly 90 degrees overflows an int.
    const float y =
        std::trunc(std::fabs(m1)) >= verticalSlope ? y2 - x2 * m2 + m2 * x : b1 + m1 * x;

    *radius = std::sqrt((x1 - x) * (x1 - x) + (y1 - y) * (y1 - y));
    *startAngle = start;
    *endAngle = end;
    *centreX = x;
    *centreY = y;
}
