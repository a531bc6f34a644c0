#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>

class QGraphicsItem;

/** The values in which the figures between two points differ. */
struct FigureKind
{
    /** Where a figure's anchors are until the first resize moves one onto the pointer. */
    enum class Anchors {
        AtPoints,            ///< on the start and the end point
        AtCornersOfItsBounds ///< on the top-left and the bottom-right corner
    };

    int type;            ///< QGraphicsItem::type()
    QString keyword;     ///< the first word of its records and lines
    QPointF newEndPoint; ///< end point of an item that is being added
    Anchors anchors;

    /** A new figure of these points, which the caller owns. */
    QGraphicsItem *(*make)(bool adding, QPointF start, QPointF end);

    /** Where a new figure of these points has its anchors. */
    QList<QPointF> anchorsAt(QPointF start, QPointF end) const
    {
        const QRectF span = QRectF(start, end).normalized();
        return anchors == Anchors::AtPoints ? QList<QPointF>{start, end}
                                            : QList<QPointF>{span.topLeft(), span.bottomRight()};
    }
};

/** What FigureKind::make is for a class. */
template <typename Figure>
QGraphicsItem *makeFigure(bool adding, QPointF start, QPointF end)
{
    return new Figure(adding, start, end);
}
