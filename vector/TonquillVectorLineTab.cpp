#include "TonquillVectorLineTab.h"

#include "PaperPainting.h"
#include "Records.h"
#include "VectorShapes.h"

#include <QPainter>

TonquillVectorLineTab::TonquillVectorLineTab(bool adding, QPointF start, QPointF end,
                                             QGraphicsItem *parent)
    : TonquillVectorItem(
          {Type, Records::linetabKeyword(), QPointF(70, 70), Anchors::AtCornersOfItsBounds}, adding,
          start, end, parent)
{}

void TonquillVectorLineTab::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setPen(PaperPainting::linePen(*painter));
    painter->drawLines(
        VectorShapes::tablature(startPoint(), endPoint(), PaperPainting::visibleRect(*painter)));
}
