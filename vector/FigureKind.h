#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>

class QGraphicsItem;

/** The properties in which the figures between two points differ. */
struct FigureKind
{
    /** The positions of a figure's anchors until the first resize moves one to the pointer. */
    enum class Anchors {
        AtPoints,            ///< on the start and the end point
        AtCornersOfItsBounds ///< on the top-left and the bottom-right corner
    };

    int type;            ///< QGraphicsItem::type()
    QString keyword;     ///< the first word of its records and lines
    QPointF newEndPoint; ///< end point of a new item, in item coordinates
    Anchors anchors;

    /** Makes a figure with these points in item coordinates; the caller owns it. */
    QGraphicsItem *(*make)(bool adding, QPointF start, QPointF end);

    /** The anchors of a new figure with these points, in item coordinates. */
    QList<QPointF> anchorsAt(QPointF start, QPointF end) const
    {
        const QRectF span = QRectF(start, end).normalized();
        return anchors == Anchors::AtPoints ? QList<QPointF>{start, end}
                                            : QList<QPointF>{span.topLeft(), span.bottomRight()};
    }
};

/** FigureKind::make for a class. */
template <typename Figure>
QGraphicsItem *makeFigure(bool adding, QPointF start, QPointF end)
{
    return new Figure(adding, start, end);
}
