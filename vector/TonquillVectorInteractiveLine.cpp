#include "TonquillVectorInteractiveLine.h"

#include "PaperPainting.h"
#include "Records.h"
#include "VectorShapes.h"

#include <QPainter>

TonquillVectorInteractiveLine::TonquillVectorInteractiveLine(bool adding, QPointF start,
                                                             QPointF end, QGraphicsItem *parent)
    : TonquillVectorItem(
          {Type, Records::interactivelineKeyword(), QPointF(100, 0), Anchors::AtCornersOfItsBounds},
          adding, start, end, parent)
{}

void TonquillVectorInteractiveLine::paint(QPainter *painter, const QStyleOptionGraphicsItem *,
                                          QWidget *)
{
    painter->setPen(PaperPainting::linePen(*painter));
    painter->drawLines(VectorShapes::line(startPoint(), endPoint()));
}
