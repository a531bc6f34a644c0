#include "TonquillVectorLineTab.h"

#include "PaperPainting.h"
#include "Records.h"
#include "VectorShapes.h"

#include <QPainter>

const FigureKind &TonquillVectorLineTab::figure()
{
    static const FigureKind kind{Type, Records::linetabKeyword(), QPointF(70, 70),
                                 FigureKind::Anchors::AtCornersOfItsBounds,
                                 makeFigure<TonquillVectorLineTab>};
    return kind;
}

TonquillVectorLineTab::TonquillVectorLineTab(bool adding, QPointF start, QPointF end,
                                             QGraphicsItem *parent)
    : TonquillVectorItem(figure(), adding, start, end, parent)
{}

void TonquillVectorLineTab::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setPen(PaperPainting::linePen(*painter));
    painter->drawLines(
        VectorShapes::tablature(startPoint(), endPoint(), PaperPainting::visibleRect(*painter)));
}
