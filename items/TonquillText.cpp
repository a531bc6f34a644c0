#include "TonquillText.h"

#include "DrawingText.h"
#include "PaperPainting.h"
#include "Records.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>

TonquillText::TonquillText(bool adding, QGraphicsItem *parent)
    : QGraphicsTextItem(parent)
    , m_itemStatus(adding ? ItemStatus::Adding : ItemStatus::Placed)
    , m_frame(this)
{
    setFlags(ItemIsMovable | ItemIsSelectable);
    setZValue(symbolZValue);
    m_frame.setZValue(0.0);
    setSelected(true);
    setData(ItemData::keyword, Records::textKeyword());
}

void TonquillText::updateFrame()
{
    m_frame.addAnchor(boundingRect().bottomLeft());
}

void TonquillText::moveAnchorToCorner()
{
    m_frame.parentBoundsAboutToChange();
    m_frame.setAnchors({boundingRect().bottomLeft()});
}

QString TonquillText::getParamStr()
{
    const QRectF bounds = boundingRect();
    return Records::format(
        Records::Text{truncatedToInt(x()), truncatedToInt(y()), truncatedToInt(bounds.width()),
                      truncatedToInt(bounds.height()), toPlainText(), font().family(),
                      font().pointSize(), defaultTextColor().rgb(), rotation()},
        ItemModel::keywordOf(*this));
}

void TonquillText::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    if (PaperPainting::isPrinter(*painter) || DrawingText::isNeeded(*painter, *document()))
        PaperPainting::drawText(painter, *this, option->exposedRect);
    else
        QGraphicsTextItem::paint(painter, option, widget);
}

void TonquillText::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (ItemModel::onlyLeftButtonHeld(*event) && m_itemStatus == ItemStatus::Placed) {
        ItemModel::takeMouseGrab(this);
        m_itemStatus = ItemStatus::Moving;
        m_lastPointer = event->scenePos();
    }
    // Last, for the menu that answers runs until it is closed, and a document that arrives
    // meanwhile takes this item away.
    if (ItemModel::onlyRightButtonHeld(*event))
        Q_EMIT showTextItemMenu(this);
}

void TonquillText::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_itemStatus == ItemStatus::Adding)
        setPos(event->scenePos());
    else if (m_itemStatus == ItemStatus::Moving && ItemModel::onlyLeftButtonHeld(*event))
        ItemModel::dragBy(this, *event, m_lastPointer);
}

void TonquillText::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    const bool busy = m_itemStatus == ItemStatus::Adding || m_itemStatus == ItemStatus::Moving;
    if (event->button() != Qt::LeftButton || !busy)
        return;
    ItemModel::releaseMouseGrab(this);
    m_itemStatus = ItemStatus::Placed;
}

QVariant TonquillText::itemChange(GraphicsItemChange change, const QVariant &value)
{
    ItemModel::announceToScene(change, this, this, m_itemStatus);
    return QGraphicsTextItem::itemChange(change, value);
}
