#include "VectorShapes.h"

#include "ArcValuesFromPoints.h"
#include "Truncation.h"

#include <QPainterPath>

#include <cmath>

namespace
{
constexpr int staffLines = 5;
constexpr double staffLineSpacing = 8.0;
constexpr double staffHeight = (staffLines - 1) * staffLineSpacing;
constexpr double secondStaffFrom = 80.0;

constexpr double tablatureSpacing = 14.0;
/** More lines than any page shows; a host's absurd height must not fill the memory. */
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

/** A host's absurd points must not make a rectangle with an edge that no int holds. */
int boundedInt(double value)
{
    constexpr int farAway = 1 << 29;
    return qBound(-farAway, truncatedToInt(value), farAway);
}

/** Rounding noise must not cost a truncated coordinate a whole unit. */
double withoutNoise(double value)
{
    constexpr double noise = 1e-4;
    const double nearest = std::round(value);
    return std::fabs(value - nearest) < noise ? nearest : value;
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
    const int spacings = truncatedToInt((end.y() - start.y()) / tablatureSpacing);
    const int count = qBound(2, spacings, mostTablatureLines);
    QList<QLine> lines;
    lines.reserve(count + 1);
    lines.append(
        wholeLine(start.x(), start.y(), start.x(), start.y() + (count - 1) * tablatureSpacing));
    for (int i = 0; i < count; ++i) {
        const double y = start.y() + i * tablatureSpacing;
        lines.append(wholeLine(start.x(), y, end.x(), y));
    }
    return lines;
}

VectorShapes::Triplet VectorShapes::triplet(QPointF start, QPointF end)
{
    // The bracket's direction: the cosine and sine of its angle. Coinciding points have none and
    // count as drawn to the right.
    const double width = end.x() - start.x();
    const double height = end.y() - start.y();
    const double length = std::hypot(width, height);
    const double c = length > 0 ? width / length : 1.0;
    const double s = length > 0 ? height / length : 0.0;
    // The hooks point down for a bracket drawn left to right, up for one drawn right to left.
    const double hook = start.x() > end.x() ? -tripletHook : tripletHook;
    const double half = length * 0.5;
    const double arm = half - tripletHalfGap;
    const auto along = [](QPointF from, double dx, double dy) {
        return QPointF(withoutNoise(from.x() + dx), withoutNoise(from.y() + dy));
    };
    const QPointF middle = along(start, c * half, s * half);
    const QPointF firstArm = along(start, c * arm, s * arm);
    const QPointF secondArm = along(end, -c * arm, -s * arm);

    Triplet result;
    result.numeral = QPoint(truncatedToInt(middle.x()),
                            truncatedToInt(std::trunc(middle.y()) + tripletNumeralDrop));
    result.lines = {
        wholeLine(start.x(), start.y() + hook, start.x(), start.y()),
        wholeLine(start.x(), start.y(), firstArm.x(), firstArm.y()),
        wholeLine(secondArm.x(), secondArm.y(), end.x(), end.y()),
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
    // An empty path begins at the item's origin, so the bounds reach to it.
    QPainterPath path;
    path.arcTo(QRectF(left, top, size, size), endAngle, tieAngle);

    Tie result;
    result.rect = QRect(boundedInt(left), boundedInt(top), boundedInt(size), boundedInt(size));
    result.startAngle = truncatedToInt(endAngle * 16.0);
    result.spanAngle = static_cast<int>(tieAngle) * 16;
    result.bounds = path.boundingRect();
    return result;
}
