#pragma once

#include "TonquillVectorItem.h"

/** A triplet bracket: two arms with hooks, and a 3 between them. */
class TonquillVectorTriplet : public TonquillVectorItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 8 };

    /** The properties of this figure. */
    static const FigureKind &figure();

    TonquillVectorTriplet(bool adding, QPointF start, QPointF end, QGraphicsItem *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
};
