#pragma once

#include <QGraphicsItem>
#include <QList>
#include <QVarLengthArray>

/**
 * The anchors of one document item: a member of that item and its child on the scene.
 *
 * All points are in the parent item's coordinates. While the parent is selected each anchor is
 * drawn as a green square of 10 by 10, but never on paper. The scene finds the item under the
 * pointer by this frame, which extends 5 beyond the parent's bounds on every side.
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
     * Returns the index of the first anchor whose square, edges included, contains `point`, and
     * stores its position in `anchor`. If squares overlap the lowest index wins. Without a hit,
     * returns -1 and leaves `anchor` unchanged.
     */
    int getAnchor(QPointF point, QPointF &anchor) const;

    /** True if any anchor's square contains `point`. */
    bool isAnchor(QPointF point) const;

    /**
     * To be called by the parent before its bounds change, because the frame's bounds depend on
     * them.
     */
    void parentBoundsAboutToChange();

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
    int type() const override { return Type; }

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    /** The misspelt name is intentional: it does not override Qt's handling of releases. */
    void mouseRelaseEvent(QGraphicsSceneMouseEvent *event);

private:
    /** Stored inline: no item has more than two anchors, and there are as many frames as items. */
    QVarLengthArray<QPointF, 2> m_anchors;
};
