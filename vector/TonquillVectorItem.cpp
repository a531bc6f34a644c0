#include "TonquillVectorItem.h"

#include "Logging.h"
#include "Records.h"

#include <QGraphicsSceneMouseEvent>

TonquillVectorItem::TonquillVectorItem(const FigureKind &kind, bool adding, QPointF start,
                                       QPointF end, QGraphicsItem *parent)
    : DocumentItemOf(adding, parent)
    , m_kind(kind)
    , m_font(ItemModel::largeBoldFont())
    , m_start(adding ? QPointF(0, 0) : start)
    , m_end(adding ? kind.newEndPoint : end)
{
    setSelected(adding);
    frame().setAnchors(kind.anchorsAt(m_start, m_end));
    setData(ItemData::keyword, kind.keyword);
}

QRectF TonquillVectorItem::boundingRect() const
{
    return spannedRect();
}

QRectF TonquillVectorItem::spannedRect() const
{
    return QRectF(m_start, m_end).normalized();
}

QString TonquillVectorItem::getParamStr()
{
    return Records::format(Records::Vector{ItemModel::keywordOf(*this), truncatedToInt(x()),
                                           truncatedToInt(y()), truncatedToInt(m_start.x()),
                                           truncatedToInt(m_start.y()), truncatedToInt(m_end.x()),
                                           truncatedToInt(m_end.y())});
}

const PointerManners &TonquillVectorItem::manners() const
{
    static const PointerManners manners{.followsWithButtonsHeld = false,
                                        .isStretchedOnceLaid = true};
    return manners;
}

int TonquillVectorItem::resizingAnchorAt(QPointF point) const
{
    QPointF anchor;
    return frame().getAnchor(point, anchor);
}

void TonquillVectorItem::dragAnchorTo(int anchor, QPointF point)
{
    prepareGeometryChange();
    frame().parentBoundsAboutToChange();
    (anchor == 0 ? m_start : m_end) = point;
    frame().setAnchor(anchor, point);
    pointsChanged();
    update();
    announce(ItemEvent::Altered);
}

void TonquillVectorItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    qCDebug(lcPointer) << "mouse press " << event->buttons();
    press(*event);
}

void TonquillVectorItem::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    qCDebug(lcPointer) << "mouse move " << event->buttons();
    move(*event);
}

void TonquillVectorItem::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    qCDebug(lcPointer) << "mouse release " << event->button();
    release(*event);
}
