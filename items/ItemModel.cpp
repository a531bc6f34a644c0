#include "ItemModel.h"

#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>

void ItemModel::announceToScene(QGraphicsItem::GraphicsItemChange change, QGraphicsItem *item,
                                QObject *object, ItemStatus status)
{
    if (change != QGraphicsItem::ItemSceneHasChanged || status != ItemStatus::Adding)
        return;
    if (auto *registry = dynamic_cast<ItemRegistry *>(item->scene()))
        registry->itemAwaitsPlacing(item, object);
}

bool ItemModel::onlyLeftButtonHeld(const QGraphicsSceneMouseEvent &event)
{
    return event.buttons() == Qt::LeftButton;
}

bool ItemModel::onlyRightButtonHeld(const QGraphicsSceneMouseEvent &event)
{
    return event.buttons() == Qt::RightButton;
}

void ItemModel::dragBy(QGraphicsItem *item, const QGraphicsSceneMouseEvent &event,
                       QPointF &lastPointer)
{
    item->setPos(item->pos() + event.scenePos() - lastPointer);
    lastPointer = event.scenePos();
}

QString ItemModel::keywordOf(const QGraphicsItem &item)
{
    return item.data(ItemData::keyword).toString();
}

QFont ItemModel::largeBoldFont()
{
    static const QFont font = [] {
        QFont large;
        large.setWeight(QFont::Bold);
        large.setPointSize(23);
        return large;
    }();
    return font;
}

void ItemModel::takeMouseGrab(QGraphicsItem *item)
{
    QGraphicsScene *scene = item->scene();
    if (!scene || scene->mouseGrabberItem() == item)
        return;
    if (QGraphicsItem *other = scene->mouseGrabberItem())
        other->ungrabMouse();
    item->grabMouse();
}

void ItemModel::releaseMouseGrab(QGraphicsItem *item)
{
    if (item->scene() && item->scene()->mouseGrabberItem() == item)
        item->ungrabMouse();
}
