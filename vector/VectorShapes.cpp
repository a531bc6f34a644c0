#include "VectorShapes.h"

#include "ArcValuesFromPoints.h"
#include "Truncation.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
constexpr double pi = 3.141592653589793;

constexpr int staffLines = 5;
constexpr double staffLineSpacing = 8.0;
constexpr double staffHeight = (staffLines - 1) * staffLineSpacing;
constexpr double secondStaffFrom = 80.0;

constexpr double tablatureSpacing = 14.0;
/** More lines than any page shows; an absurd height from a host must not exhaust the memory. */
constexpr int mostTablatureLines = 100000;

constexpr double tripletHook = 10.0;
constexpr double tripletHalfGap = 10.0;
constexpr int tripletNumeralDrop = 7;

constexpr float tieAngle = 45.0F;

QLine wholeLine(double x1, double y1, double x2, double y2)
{
    return QLine(truncatedToInt(x1), truncatedToInt(y1), truncatedToInt(x2), truncatedToInt(y2));
}

void appendStaffLines(QList<QLine> &lines, double left, double right, double top)
{
    for (int i = 0; i < staffLines; ++i) {
        const double y = top + i * staffLineSpacing;
        lines.append(wholeLine(left, y, right, y));
    }
}

/** Absurd points from a host must not overflow the edges of a rectangle. */
int boundedInt(double value)
{
    constexpr int farAway = 1 << 29;
    return qBound(-farAway, truncatedToInt(value), farAway);
}

/** Removes rounding noise, which could change a truncated coordinate by a whole unit. */
double withoutNoise(double value)
{
    constexpr double noise = 1e-4;
    const double nearest = std::round(value);
    return std::fabs(value - nearest) < noise ? nearest : value;
}

/** The middle of a triplet bracket, and the inner ends of its arms. */
struct TripletPoints
{
    QPointF middle;
    QPointF firstArm;
    QPointF secondArm;
};

/** The direction of a bracket in degrees, y down; NaN for coinciding points. */
float tripletAngle(QPointF way)
{
    const float slope = static_cast<float>(std::atan(way.y() / way.x()) * 180 / pi);
    if (way.x() < 0)
        return slope + 180.0F;
    return way.y() < 0 ? slope + 360.0F : slope;
}

/** True for horizontal and vertical brackets, and for those without a direction. */
bool isAlongAxis(float angle)
{
    return std::isnan(angle) || std::fmod(angle, 90.0F) == 0.0F;
}

/** Coinciding points count as drawn to the right. */
TripletPoints straightTriplet(QPointF start, QPointF end)
{
    const QPointF way = end - start;
    const double length = std::hypot(way.x(), way.y());
    const QPointF direction = length > 0 ? way / length : QPointF(1, 0);
    const double half = length * 0.5;
    const auto exact = [](QPointF point) {
        return QPointF(withoutNoise(point.x()), withoutNoise(point.y()));
    };
    return {exact(start + direction * half), exact(start + direction * (half - tripletHalfGap)),
            exact(end - direction * (half - tripletHalfGap))};
}

/**
 * Single precision is intentional for slanted brackets: where a point lies on a whole coordinate,
 * rounding decides the truncated value, and it must stay the same so that existing documents do not
 * change by a unit.
 */
TripletPoints slantedTriplet(QPointF start, QPointF end, float angle)
{
    const QPointF way = end - start;
    const float half = static_cast<float>(std::sqrt(way.x() * way.x() + way.y() * way.y())) * 0.5F;
    const float arm = half - static_cast<float>(tripletHalfGap);
    const float c = static_cast<float>(std::cos(angle * pi / 180));
    const float s = static_cast<float>(std::sin(angle * pi / 180));
    const QPointF armWay(c * arm, s * arm);
    return {start + QPointF(c * half, s * half), start + armWay, end - armWay};
}
} // namespace

QList<QLine> VectorShapes::grandstaff(QPointF start, QPointF end)
{
    QList<QLine> lines;
    lines.reserve(2 * (staffLines + 2));
    lines.append(wholeLine(start.x(), start.y(), start.x(), start.y() + staffHeight));
    appendStaffLines(lines, start.x(), end.x(), start.y());
    lines.append(wholeLine(end.x(), start.y(), end.x(), start.y() + staffHeight));
    if (end.y() - start.y() > secondStaffFrom) {
        lines.append(wholeLine(start.x(), start.y(), start.x(), end.y()));
        appendStaffLines(lines, start.x(), end.x(), end.y() - staffHeight);
        lines.append(wholeLine(end.x(), start.y(), end.x(), end.y()));
    }
    return lines;
}

QList<QLine> VectorShapes::grandstaffDrawnOnce(QPointF start, QPointF end)
{
    constexpr int leftEdge = 0;
    constexpr int rightEdge = leftEdge + staffLines + 1;
    QList<QLine> lines = grandstaff(start, end);
    if (lines.size() > rightEdge + 1) {
        lines.removeAt(rightEdge);
        lines.removeAt(leftEdge);
    }
    return lines;
}

QList<QLine> VectorShapes::line(QPointF start, QPointF end)
{
    return {wholeLine(start.x(), start.y(), end.x(), end.y())};
}

QList<QLine> VectorShapes::tablature(QPointF start, QPointF end)
{
    const qreal all = std::numeric_limits<qreal>::max() / 2;
    return tablature(start, end, QRectF(QPointF(-all, -all), QPointF(all, all)));
}

QList<QLine> VectorShapes::tablature(QPointF start, QPointF end, const QRectF &visible)
{
    const int spacings = truncatedToInt((end.y() - start.y()) / tablatureSpacing);
    const int last = std::max(2, spacings) - 1;
    const auto lineAt = [&start](double y) {
        return truncatedToInt((y - start.y()) / tablatureSpacing);
    };
    // One more on either side, whose line width may extend into the visible part.
    const int from = std::clamp(lineAt(visible.top() - tablatureSpacing), 0, last);
    const int to = std::clamp(lineAt(visible.bottom() + tablatureSpacing), from,
                              std::min(last, from + std::min(last - from, mostTablatureLines - 1)));
    const auto yOf = [&start](int i) { return start.y() + i * tablatureSpacing; };
    QList<QLine> lines;
    lines.reserve(to - from + 2);
    lines.append(wholeLine(start.x(), yOf(from), start.x(), yOf(to)));
    for (int i = from; i <= to; ++i)
        lines.append(wholeLine(start.x(), yOf(i), end.x(), yOf(i)));
    return lines;
}

VectorShapes::Triplet VectorShapes::triplet(QPointF start, QPointF end)
{
    // The hooks point down for a bracket drawn left to right, up for one drawn right to left.
    const double hook = start.x() > end.x() ? -tripletHook : tripletHook;
    const float angle = tripletAngle(end - start);
    const TripletPoints points =
        isAlongAxis(angle) ? straightTriplet(start, end) : slantedTriplet(start, end, angle);

    Triplet result;
    result.numeral = QPoint(truncatedToInt(points.middle.x()),
                            truncatedToInt(std::trunc(points.middle.y()) + tripletNumeralDrop));
    result.lines = {
        wholeLine(start.x(), start.y() + hook, start.x(), start.y()),
        wholeLine(start.x(), start.y(), points.firstArm.x(), points.firstArm.y()),
        wholeLine(points.secondArm.x(), points.secondArm.y(), end.x(), end.y()),
        wholeLine(end.x(), end.y(), end.x(), end.y() + hook),
    };
    return result;
}

VectorShapes::Tie VectorShapes::tie(QPointF start, QPointF end)
{
    float radius = 0;
    float startAngle = 0;
    float endAngle = 0;
    float centreX = 0;
    float centreY = 0;
    ArcValuesFromPoints(static_cast<float>(start.x()), static_cast<float>(start.y()),
                        static_cast<float>(end.x()), static_cast<float>(end.y()), tieAngle, &radius,
                        &startAngle, &endAngle, &centreX, &centreY);

    const double left = centreX - radius;
    const double top = centreY - radius;
    const double size = 2.0 * radius;
    // An empty path begins at the item's origin, so the bounds include it.
    QPainterPath path;
    path.arcTo(QRectF(left, top, size, size), endAngle, tieAngle);

    Tie result;
    result.rect = QRect(boundedInt(left), boundedInt(top), boundedInt(size), boundedInt(size));
    result.startAngle = truncatedToInt(endAngle * 16.0);
    result.spanAngle = static_cast<int>(tieAngle) * 16;
    result.bounds = path.boundingRect();
    return result;
}
