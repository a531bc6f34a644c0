#pragma once

#include "TonquillVectorItem.h"

/** A grand staff: one staff of five lines, or two once its end is dragged far enough down. */
class TonquillVectorGrandstaff : public TonquillVectorItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 4 };

    /** The properties of this figure. */
    static const FigureKind &figure();

    TonquillVectorGrandstaff(bool adding, QPointF start, QPointF end,
                             QGraphicsItem *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
};
