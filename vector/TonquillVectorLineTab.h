#pragma once

#include "TonquillVectorItem.h"

/** Tablature lines: as many strings as fit between the two points. */
class TonquillVectorLineTab : public TonquillVectorItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 6 };

    /** The properties of this figure. */
    static const FigureKind &figure();

    TonquillVectorLineTab(bool adding, QPointF start, QPointF end, QGraphicsItem *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
};
