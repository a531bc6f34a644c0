#include "TonquillVectorTriplet.h"

#include "PaperPainting.h"
#include "Records.h"
#include "VectorShapes.h"

#include <QPainter>

const FigureKind &TonquillVectorTriplet::figure()
{
    static const FigureKind kind{Type, Records::tripletKeyword(), QPointF(100, 0),
                                 FigureKind::Anchors::AtCornersOfItsBounds,
                                 makeFigure<TonquillVectorTriplet>};
    return kind;
}

TonquillVectorTriplet::TonquillVectorTriplet(bool adding, QPointF start, QPointF end,
                                             QGraphicsItem *parent)
    : TonquillVectorItem(figure(), adding, start, end, parent)
{}

void TonquillVectorTriplet::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const VectorShapes::Triplet shape = VectorShapes::triplet(startPoint(), endPoint());
    painter->setPen(PaperPainting::linePen(*painter));
    painter->setFont(PaperPainting::inSceneUnits(painter->font()));
    painter->drawText(shape.numeral, QStringLiteral("3"));
    painter->drawLines(shape.lines);
}
