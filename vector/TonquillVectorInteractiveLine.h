#pragma once

#include "TonquillVectorItem.h"

/** A free straight line. */
class TonquillVectorInteractiveLine : public TonquillVectorItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 5 };

    /** The properties of this figure. */
    static const FigureKind &figure();

    TonquillVectorInteractiveLine(bool adding, QPointF start, QPointF end,
                                  QGraphicsItem *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
};
