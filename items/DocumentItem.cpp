#include "DocumentItem.h"

#include <QAbstractTextDocumentLayout>
#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QTextDocument>

void DocumentItem::announce(ItemEvent event)
{
    QGraphicsItem &item = graphicsItem();
    const ItemRegistry *registry = item.scene() ? ItemRegistry::of(*item.scene()) : nullptr;
    if (registry && registry->observer())
        registry->observer()->itemChanged(item, event);
}

void DocumentItem::setObserved(bool observed)
{
    graphicsItem().setFlag(QGraphicsItem::ItemSendsGeometryChanges, observed);
}

/** The scene keeps a list of waiting items: searching all items for each new one is too slow. */
void DocumentItem::joinScene()
{
    QGraphicsItem &item = graphicsItem();
    ItemRegistry *registry = item.scene() ? ItemRegistry::of(*item.scene()) : nullptr;
    if (!registry)
        return;
    if (registry->observer())
        setObserved(true);
    announce(isWaiting() ? ItemEvent::Awaited : ItemEvent::Added);
    if (isWaiting())
        registry->itemAwaitsPlacing(&item);
}

void DocumentItem::announceChange(QGraphicsItem::GraphicsItemChange change)
{
    switch (change) {
    case QGraphicsItem::ItemSceneChange:
        announce(ItemEvent::Removed);
        break;
    case QGraphicsItem::ItemSceneHasChanged:
        joinScene();
        break;
    case QGraphicsItem::ItemPositionHasChanged:
        announce(ItemEvent::Moved);
        break;
    case QGraphicsItem::ItemZValueHasChanged:
        announce(ItemEvent::Restacked);
        break;
    case QGraphicsItem::ItemRotationHasChanged:
        announce(ItemEvent::Altered);
        break;
    default:
        break;
    }
}

void DocumentItem::announceChangesOf(const QTextDocument &text)
{
    QObject::connect(text.documentLayout(), &QAbstractTextDocumentLayout::update,
                     graphicsItem().toGraphicsObject(), [this] { announce(ItemEvent::Altered); });
}

int DocumentItem::resizingAnchorAt(QPointF) const
{
    return -1;
}

void DocumentItem::dragAnchorTo(int, QPointF) {}

void DocumentItem::press(const QGraphicsSceneMouseEvent &event)
{
    if (!ItemModel::onlyLeftButtonHeld(event))
        return;
    const bool isPlaced = m_status == ItemStatus::Placed;
    if (isPlaced || manners().notesEveryPress)
        m_lastPointer = event.scenePos();
    if (!isPlaced)
        return;
    if (manners().grab != PointerManners::Grab::Never)
        takeMouseGrab();
    const int anchor = resizingAnchorAt(graphicsItem().mapFromScene(event.scenePos()));
    m_status = anchor >= 0 ? ItemStatus::Resizing : ItemStatus::Moving;
    if (anchor >= 0)
        m_activeAnchor = anchor;
}

void DocumentItem::move(const QGraphicsSceneMouseEvent &event)
{
    QGraphicsItem &item = graphicsItem();
    const QPointF pointer = event.scenePos();
    switch (m_status) {
    case ItemStatus::Placed:
        break;
    case ItemStatus::Adding:
        if (manners().followsWithButtonsHeld || event.buttons() == Qt::NoButton)
            item.setPos(pointer);
        break;
    case ItemStatus::Moving:
        if (manners().dragsWithAnyButton || ItemModel::onlyLeftButtonHeld(event))
            item.setPos(item.pos() + pointer - std::exchange(m_lastPointer, pointer));
        break;
    case ItemStatus::Resizing:
        if (ItemModel::onlyLeftButtonHeld(event))
            dragAnchorTo(m_activeAnchor, item.mapFromScene(pointer));
        break;
    case ItemStatus::Stretching:
        dragAnchorTo(m_activeAnchor, item.mapFromScene(pointer));
        break;
    }
}

void DocumentItem::release(const QGraphicsSceneMouseEvent &event)
{
    if (event.button() != Qt::LeftButton)
        return;
    switch (m_status) {
    case ItemStatus::Placed:
        break;
    case ItemStatus::Adding:
        if (manners().isStretchedOnceLaid) {
            m_status = ItemStatus::Stretching;
            break;
        }
        [[fallthrough]];
    case ItemStatus::Moving:
    case ItemStatus::Resizing:
    case ItemStatus::Stretching:
        endDrag();
        break;
    }
}

void DocumentItem::endDrag()
{
    const bool wasWaiting = isWaiting();
    const bool wasResized = m_status == ItemStatus::Resizing;
    if (manners().grab == PointerManners::Grab::WhileDragged)
        releaseMouseGrab();
    m_status = ItemStatus::Placed;
    if (wasWaiting)
        announce(ItemEvent::Added);
    if (wasResized)
        resized();
}

/**
 * A text block keeps its grab after a drag. Qt would refuse a second grab, so it is released first.
 */
void DocumentItem::takeMouseGrab()
{
    QGraphicsItem &item = graphicsItem();
    QGraphicsScene *scene = item.scene();
    if (!scene || scene->mouseGrabberItem() == &item)
        return;
    if (QGraphicsItem *other = scene->mouseGrabberItem())
        other->ungrabMouse();
    item.grabMouse();
}

void DocumentItem::releaseMouseGrab()
{
    QGraphicsItem &item = graphicsItem();
    if (item.scene() && item.scene()->mouseGrabberItem() == &item)
        item.ungrabMouse();
}
