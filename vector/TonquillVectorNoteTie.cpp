#include "TonquillVectorNoteTie.h"

#include "PaperPainting.h"
#include "Records.h"

#include <QPainter>

const FigureKind &TonquillVectorNoteTie::figure()
{
    static const FigureKind kind{Type, Records::notetieKeyword(), QPointF(100, 0),
                                 FigureKind::Anchors::AtPoints, makeFigure<TonquillVectorNoteTie>};
    return kind;
}

TonquillVectorNoteTie::TonquillVectorNoteTie(bool adding, QPointF start, QPointF end,
                                             QGraphicsItem *parent)
    : TonquillVectorItem(figure(), adding, start, end, parent)
    , m_shape(VectorShapes::tie(startPoint(), endPoint()))
{}

QRectF TonquillVectorNoteTie::boundingRect() const
{
    return m_shape.bounds;
}

void TonquillVectorNoteTie::pointsChanged()
{
    m_shape = VectorShapes::tie(startPoint(), endPoint());
}

void TonquillVectorNoteTie::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setPen(PaperPainting::linePen(*painter));
    painter->drawArc(m_shape.rect, m_shape.startAngle, m_shape.spanAngle);
}
