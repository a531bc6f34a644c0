#pragma once

#include "TonquillVectorItem.h"
#include "VectorShapes.h"

/** A tie: an arc of 45 degrees through both points. */
class TonquillVectorNoteTie : public TonquillVectorItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 7 };

    /** The properties of this figure. */
    static const FigureKind &figure();

    TonquillVectorNoteTie(bool adding, QPointF start, QPointF end, QGraphicsItem *parent = nullptr);

    /** The arc's rectangle, which also covers the item's origin. */
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    void pointsChanged() override;

private:
    VectorShapes::Tie m_shape;
};
