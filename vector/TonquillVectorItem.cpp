#include "TonquillVectorItem.h"

#include "Logging.h"
#include "Records.h"

#include <QGraphicsSceneMouseEvent>

TonquillVectorItem::TonquillVectorItem(const Kind &kind, bool adding, QPointF start, QPointF end,
                                       QGraphicsItem *parent)
    : QGraphicsObject(parent)
    , m_kind(kind)
    , m_font(ItemModel::largeBoldFont())
    , m_itemStatus(adding ? ItemStatus::Adding : ItemStatus::Placed)
    , m_start(adding ? QPointF(0, 0) : start)
    , m_end(adding ? kind.newEndPoint : end)
    , m_frame(this)
{
    setFlags(ItemIsMovable | ItemIsSelectable);
    setSelected(adding);
    m_font.setWeight(QFont::Bold);
    m_font.setPointSize(23);
    m_frame.setAnchors(kind.anchors == Anchors::AtPoints
                           ? QList<QPointF>{m_start, m_end}
                           : QList<QPointF>{spannedRect().topLeft(), spannedRect().bottomRight()});
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

void TonquillVectorItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    qCDebug(lcPointer) << "mouse press " << event->buttons();
    if (!ItemModel::onlyLeftButtonHeld(*event) || m_itemStatus != ItemStatus::Placed)
        return;
    m_lastPointer = event->scenePos();
    QPointF anchor;
    const int hit = m_frame.getAnchor(mapFromScene(event->scenePos()), anchor);
    if (hit >= 0) {
        m_itemStatus = ItemStatus::Resizing;
        m_activeAnchor = hit;
    } else {
        m_itemStatus = ItemStatus::Moving;
    }
}

void TonquillVectorItem::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    qCDebug(lcPointer) << "mouse move " << event->buttons();
    const bool leftHeld = ItemModel::onlyLeftButtonHeld(*event);
    if (m_itemStatus == ItemStatus::Adding && event->buttons() == Qt::NoButton)
        setPos(event->scenePos());
    else if (m_itemStatus == ItemStatus::Moving && leftHeld)
        ItemModel::dragBy(this, *event, m_lastPointer);
    else if ((m_itemStatus == ItemStatus::Resizing && leftHeld) ||
             m_itemStatus == ItemStatus::Stretching)
        dragActiveAnchorTo(mapFromScene(event->scenePos()));
}

void TonquillVectorItem::dragActiveAnchorTo(QPointF point)
{
    prepareGeometryChange();
    m_frame.parentBoundsAboutToChange();
    (m_activeAnchor == 0 ? m_start : m_end) = point;
    m_frame.setAnchor(m_activeAnchor, point);
    pointsChanged();
    update();
}

void TonquillVectorItem::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    qCDebug(lcPointer) << "mouse release " << event->button();
    if (event->button() != Qt::LeftButton)
        return;
    switch (m_itemStatus) {
    case ItemStatus::Adding:
        m_itemStatus = ItemStatus::Stretching;
        break;
    case ItemStatus::Moving:
    case ItemStatus::Resizing:
    case ItemStatus::Stretching:
        m_itemStatus = ItemStatus::Placed;
        break;
    case ItemStatus::Placed:
        break;
    }
}

QVariant TonquillVectorItem::itemChange(GraphicsItemChange change, const QVariant &value)
{
    ItemModel::announceToScene(change, this, this, m_itemStatus);
    return QGraphicsObject::itemChange(change, value);
}
