#pragma once

#include "ItemModel.h"
#include "SelectionFrame.h"

#include <QFont>
#include <QGraphicsObject>

/**
 * What the five figures stretched between two points share: their points and anchors, placing in
 * two clicks, moving and resizing, and their record. What differs is a Kind and one paint().
 *
 * The points are in item coordinates (scene units, y down). A new item follows the pointer by its
 * start point until a click fixes that; then its end point follows until a second click.
 */
class TonquillVectorItem : public QGraphicsObject
{
    Q_OBJECT
    Q_PROPERTY(int itemStatus READ itemStatus)

public:
    int itemStatus() const { return static_cast<int>(m_itemStatus); }

    QPointF startPoint() const { return m_start; }
    QPointF endPoint() const { return m_end; }

    /** The rectangle that the two points span, never negative and without a margin. */
    QRectF boundingRect() const override;
    int type() const override { return m_kind.type; }

public Q_SLOTS:
    /** The item's record. */
    QString getParamStr();

protected:
    /** Where a figure's anchors are until the first resize moves one onto the pointer. */
    enum class Anchors {
        AtPoints,            ///< on the start and the end point
        AtCornersOfItsBounds ///< on the top-left and the bottom-right corner
    };

    /** The values in which the figures differ. */
    struct Kind
    {
        int type;            ///< QGraphicsItem::type()
        QString keyword;     ///< the first word of the record
        QPointF newEndPoint; ///< end point of an item that is being added
        Anchors anchors;
    };

    /** With `adding` the two points are ignored: a new item has the kind's own. */
    TonquillVectorItem(const Kind &kind, bool adding, QPointF start, QPointF end,
                       QGraphicsItem *parent);

    /** Called after a point moved, between the notice of new bounds and the repaint. */
    virtual void pointsChanged() {}

    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;

private:
    QRectF spannedRect() const;
    void dragActiveAnchorTo(QPointF point);

    Kind m_kind;
    QFont m_font; ///< bold, 23 points; the figures are drawn in the painter's own font
    ItemStatus m_itemStatus;
    QPointF m_start;
    QPointF m_end;
    QPointF m_lastPointer;
    SelectionFrame m_frame;
    int m_activeAnchor = 1; ///< 0 drags the start point, any other the end point
};
