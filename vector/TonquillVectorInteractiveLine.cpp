#include "TonquillVectorInteractiveLine.h"

#include "PaperPainting.h"
#include "Records.h"
#include "VectorShapes.h"

#include <QPainter>

const FigureKind &TonquillVectorInteractiveLine::figure()
{
    static const FigureKind kind{Type, Records::interactivelineKeyword(), QPointF(100, 0),
                                 FigureKind::Anchors::AtCornersOfItsBounds,
                                 makeFigure<TonquillVectorInteractiveLine>};
    return kind;
}

TonquillVectorInteractiveLine::TonquillVectorInteractiveLine(bool adding, QPointF start,
                                                             QPointF end, QGraphicsItem *parent)
    : TonquillVectorItem(figure(), adding, start, end, parent)
{}

void TonquillVectorInteractiveLine::paint(QPainter *painter, const QStyleOptionGraphicsItem *,
                                          QWidget *)
{
    painter->setPen(PaperPainting::linePen(*painter));
    painter->drawLines(VectorShapes::line(startPoint(), endPoint()));
}
