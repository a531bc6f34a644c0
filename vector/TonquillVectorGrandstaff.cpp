#include "TonquillVectorGrandstaff.h"

#include "PaperPainting.h"
#include "Records.h"
#include "VectorShapes.h"

#include <QPainter>

const FigureKind &TonquillVectorGrandstaff::figure()
{
    static const FigureKind kind{Type, Records::grandstaffKeyword(), QPointF(70, 70),
                                 FigureKind::Anchors::AtPoints,
                                 makeFigure<TonquillVectorGrandstaff>};
    return kind;
}

TonquillVectorGrandstaff::TonquillVectorGrandstaff(bool adding, QPointF start, QPointF end,
                                                   QGraphicsItem *parent)
    : TonquillVectorItem(figure(), adding, start, end, parent)
{}

void TonquillVectorGrandstaff::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setPen(PaperPainting::linePen(*painter));
    painter->drawLines(VectorShapes::grandstaffDrawnOnce(startPoint(), endPoint()));
}
