#pragma once

#include <QGraphicsItem>
#include <QList>
#include <QVarLengthArray>

/**
 * The anchors of one document item, held by that item as a member and shown as its child.
 *
 * All points are in the parent item's coordinates. While the parent is selected each anchor is
 * drawn as a green square of 10 by 10; nothing is ever drawn on paper. The scene finds the item
 * under the pointer by this frame, which reaches 5 beyond the parent's bounds on every side.
 */
class SelectionFrame : public QGraphicsItem
{
public:
    enum { Type = UserType + 0x555 };

    /** The frame of `parent`, with no anchors yet. */
    explicit SelectionFrame(QGraphicsItem *parent);

    QList<QPointF> anchors() const { return QList<QPointF>(m_anchors.cbegin(), m_anchors.cend()); }

    /** Replaces all anchors. */
    void setAnchors(const QList<QPointF> &anchors);

    /** Appends an anchor. */
    void addAnchor(QPointF point);

    /** Moves the anchor at `index`, which must exist. */
    void setAnchor(int index, QPointF point);

    /**
     * The index of the first anchor whose square, edges included, contains `point`; the anchor
     * itself goes to `anchor`. Where squares overlap the lowest index wins. Without a hit the
     * answer is -1 and `anchor` stays as it is.
     */
    int getAnchor(QPointF point, QPointF &anchor) const;

    /** True if any anchor's square contains `point`. */
    bool isAnchor(QPointF point) const;

    /** To be called by the parent before its bounds change, for the frame's change with them. */
    void parentBoundsAboutToChange();

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
    int type() const override { return Type; }

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    /** The name is intentional: releases keep Qt's own handling. */
    void mouseRelaseEvent(QGraphicsSceneMouseEvent *event);

private:
    /** Kept within the frame: no item has more than two, and there are as many frames as items. */
    QVarLengthArray<QPointF, 2> m_anchors;
};
