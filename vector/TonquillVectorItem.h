#pragma once

#include "DocumentItem.h"
#include "FigureKind.h"

#include <QFont>
#include <QGraphicsObject>

/**
 * Base of the five figures between two points: their points and anchors, placing with two clicks,
 * moving, resizing, and their record. Derived classes add a FigureKind and paint().
 *
 * The points are in item coordinates (scene units, y down). The start point of a new item follows
 * the pointer until a click; then its end point follows until a second click.
 */
class TonquillVectorItem : public DocumentItemOf<QGraphicsObject>
{
    Q_OBJECT
    Q_PROPERTY(int itemStatus READ itemStatus)

public:
    const FigureKind &kind() const { return m_kind; }

    QPointF startPoint() const { return m_start; }
    QPointF endPoint() const { return m_end; }

    /** The rectangle spanned by the two points, never negative and without a margin. */
    QRectF boundingRect() const override;
    int type() const override { return m_kind.type; }

public Q_SLOTS:
    /** The item's record. */
    QString getParamStr();

protected:
    /**
     * With `adding` the two points are ignored: a new item has those of `kind`, which outlives it.
     */
    TonquillVectorItem(const FigureKind &kind, bool adding, QPointF start, QPointF end,
                       QGraphicsItem *parent);

    /** Called after a point has moved, between prepareGeometryChange() and the repaint. */
    virtual void pointsChanged() {}

    const PointerManners &manners() const override;
    int resizingAnchorAt(QPointF point) const override;
    void dragAnchorTo(int anchor, QPointF point) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    QRectF spannedRect() const;

    const FigureKind &m_kind;
    QFont m_font; ///< bold, 23 points; painting uses the painter's font
    QPointF m_start;
    QPointF m_end;
};
