#include "TonquillVectorGrandstaff.h"

#include "PaperPainting.h"
#include "Records.h"
#include "VectorShapes.h"

#include <QPainter>

TonquillVectorGrandstaff::TonquillVectorGrandstaff(bool adding, QPointF start, QPointF end,
                                                   QGraphicsItem *parent)
    : TonquillVectorItem({Type, Records::grandstaffKeyword(), QPointF(70, 70), Anchors::AtPoints},
                         adding, start, end, parent)
{}

void TonquillVectorGrandstaff::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setPen(PaperPainting::linePen(*painter));
    painter->drawLines(VectorShapes::grandstaffDrawnOnce(startPoint(), endPoint()));
}
