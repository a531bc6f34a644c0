#pragma once

#include <QLine>
#include <QList>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>

/**
 * The figures of the vector items as pure functions of their two points. All coordinates are in
 * item coordinates (scene units, y down); lines run between whole coordinates, truncated towards
 * zero. Every result is finite, whatever the points.
 */
namespace VectorShapes
{
/** One five-line staff, or two joined ones if the end is more than 80 below the start. */
QList<QLine> grandstaff(QPointF start, QPointF end);

/**
 * The lines of a grand staff without the upper staff's edges, which the long ones cover: with
 * antialiasing, lines drawn twice look darker.
 */
QList<QLine> grandstaffDrawnOnce(QPointF start, QPointF end);

/** The straight line between the points. */
QList<QLine> line(QPointF start, QPointF end);

/** Lines 14 apart, as many as whole spacings fit between the points, but at least two. */
QList<QLine> tablature(QPointF start, QPointF end);

/** Only the lines that are visible in `visible`, and the left edge as far as they extend. */
QList<QLine> tablature(QPointF start, QPointF end, const QRectF &visible);

/** A triplet bracket: its lines, and the start of its numeral's baseline. */
struct Triplet
{
    QList<QLine> lines;
    QPoint numeral;
};
Triplet triplet(QPointF start, QPointF end);

/** A tie: an arc of 45 degrees through both points, in QPainter's terms. */
struct Tie
{
    QRect rect;     ///< the circle's square, for QPainter::drawArc
    int startAngle; ///< in sixteenths of a degree
    int spanAngle;  ///< in sixteenths of a degree
    QRectF bounds;  ///< covers the arc and the item's origin
};
Tie tie(QPointF start, QPointF end);
} // namespace VectorShapes
