#pragma once

#include "TonquillVectorItem.h"

/** A free straight line. */
class TonquillVectorInteractiveLine : public TonquillVectorItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 5 };

    TonquillVectorInteractiveLine(bool adding, QPointF start, QPointF end,
                                  QGraphicsItem *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
};
