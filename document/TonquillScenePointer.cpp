#include "SelectionFrame.h"
#include "TonquillScene.h"
#include "TonquillSimpleTextDlg.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"

#include <QCursor>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QMenu>
#include <QPainterPath>

namespace
{
/** The selection frame that `item` is, or null. */
SelectionFrame *asFrame(QGraphicsItem *item)
{
    return qgraphicsitem_cast<SelectionFrame *>(item);
}

bool isOnAnchor(const SelectionFrame &frame, QPointF scenePos)
{
    return frame.isAnchor(frame.mapFromScene(scenePos));
}

/** The block that `item` is while it is edited in place, or null. */
TonquillTextBlock *asEditedBlock(QGraphicsItem *item)
{
    auto *block = qgraphicsitem_cast<TonquillTextBlock *>(item);
    return block && TonquillTextBlock::isEdited(*block) ? block : nullptr;
}
} // namespace

/** The topmost item at a point, by the view's own transform so that it is right at any zoom. */
QGraphicsItem *TonquillScene::itemUnder(QPointF scenePos) const
{
    return itemAt(scenePos, views().isEmpty() ? QTransform() : views().constFirst()->transform());
}

TonquillTextBlock *TonquillScene::editedBlockAt(QPointF scenePos) const
{
    for (QGraphicsItem *item : selectedItems()) {
        TonquillTextBlock *block = asEditedBlock(item);
        if (block && block->sceneBoundingRect().contains(scenePos))
            return block;
    }
    return nullptr;
}

void TonquillScene::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_quickTextBlock) {
        m_quickTextBlock->setTextInteractionFlags(Qt::NoTextInteraction);
        m_quickTextBlock.clear();
    }
    if (leaveOrKeepTextBlock(event))
        return;
    if (event->button() == Qt::LeftButton) {
        pressLeft(event);
    } else if (event->button() == Qt::RightButton) {
        if (SelectionFrame *frame = asFrame(itemUnder(event->scenePos())))
            forward(frame->parentItem(), event);
    }
}

/** True if the press went to a text block that is being edited; others end their editing. */
bool TonquillScene::leaveOrKeepTextBlock(QGraphicsSceneMouseEvent *event)
{
    if (TonquillTextBlock *block = editedBlockAt(event->scenePos())) {
        // A block dragged earlier keeps Qt's grab and would get the press instead.
        if (mouseGrabberItem() && mouseGrabberItem() != block)
            mouseGrabberItem()->ungrabMouse();
        QGraphicsScene::mousePressEvent(event);
        return true;
    }
    for (QGraphicsItem *item : selectedItems()) {
        if (TonquillTextBlock *block = asEditedBlock(item))
            block->setTextInteractionFlags(Qt::NoTextInteraction);
    }
    return false;
}

void TonquillScene::pressLeft(QGraphicsSceneMouseEvent *event)
{
    QGraphicsItem *under = itemUnder(event->scenePos());
    if (!under) {
        startRubberBand(event->scenePos());
        return;
    }
    if (SelectionFrame *frame = asFrame(under)) {
        QGraphicsItem *owner = frame->parentItem();
        owner->setSelected(true);
        setFocusItem(owner, Qt::OtherFocusReason);
        if (isOnAnchor(*frame, event->scenePos())) {
            forward(owner, event);
            return;
        }
    }
    forwardToSelection(event);
}

void TonquillScene::startRubberBand(QPointF scenePos)
{
    clearSelection();
    m_rubberBandVisible = true;
    m_rubberBand = QRectF(scenePos, QSizeF(0, 0));
}

void TonquillScene::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_rubberBandVisible) {
        // The size may be negative, which works for drawing and selecting.
        m_rubberBand.setSize(QSizeF(event->scenePos().x() - m_rubberBand.x(),
                                    event->scenePos().y() - m_rubberBand.y()));
        update();
        return;
    }
    moveQuickTextBlock(event->scenePos());
    if (editedBlockAt(event->scenePos())) {
        QGraphicsScene::mouseMoveEvent(event);
        return;
    }
    SelectionFrame *frame = asFrame(itemUnder(event->scenePos()));
    if (frame && isOnAnchor(*frame, event->scenePos()))
        forward(frame->parentItem(), event);
    else
        forwardToSelection(event);
}

/** In quick text mode the block that is being typed follows the pointer. */
void TonquillScene::moveQuickTextBlock(QPointF scenePos)
{
    if (m_quickTextBlock && m_context->isQuickTextOn())
        m_quickTextBlock->setPos(scenePos);
}

void TonquillScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_rubberBandVisible) {
        selectByRubberBand();
        return;
    }
    // Events that Qt delivers to the mouse grabber are not forwarded to the same item again: a
    // release would open a block's size menu twice.
    ItemReference served;
    if (editedBlockAt(event->scenePos())) {
        served = ItemReference(mouseGrabberItem());
        QGraphicsScene::mouseReleaseEvent(event);
    }
    if (event->button() == Qt::LeftButton) {
        releaseLeft(event, served.get(this));
    } else if (event->button() == Qt::RightButton) {
        SelectionFrame *frame = asFrame(itemUnder(event->scenePos()));
        if (frame && frame->parentItem() != served.get(this))
            forward(frame->parentItem(), event);
    }
}

void TonquillScene::selectByRubberBand()
{
    setFocusItem(nullptr);
    m_rubberBandVisible = false;
    QPainterPath path;
    path.addRect(m_rubberBand);
    setSelectionArea(path, Qt::ReplaceSelection, Qt::ContainsItemBoundingRect,
                     views().isEmpty() ? QTransform() : views().constFirst()->transform());
    m_rubberBand = QRectF(0, 0, 0, 0);
    update();
}

void TonquillScene::releaseLeft(QGraphicsSceneMouseEvent *event, QGraphicsItem *served)
{
    SelectionFrame *frame = asFrame(itemUnder(event->scenePos()));
    if (!frame || !isOnAnchor(*frame, event->scenePos())) {
        forwardToSelection(event, served);
        m_context->editFinished();
        return;
    }
    const ItemReference owner(frame->parentItem());
    if (frame->parentItem() != served)
        forward(frame->parentItem(), event);
    if (owner.object() && owner.object()->property("itemStatus").toInt() == 0)
        m_context->editFinished();
}

void TonquillScene::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    QGraphicsItem *under = itemUnder(event->scenePos());
    if (!under) {
        startRubberBand(event->scenePos());
    } else if (SelectionFrame *frame = asFrame(under)) {
        QGraphicsItem *owner = frame->parentItem();
        forward(owner, event);
        setFocusItem(owner, Qt::OtherFocusReason);
    }
}

/** Sends the item a copy of the event with positions relative to the item. */
void TonquillScene::forward(QGraphicsItem *item, QGraphicsSceneMouseEvent *event)
{
    event->setPos(item->mapFromScene(event->scenePos()));
    event->setLastPos(item->mapFromScene(event->lastScenePos()));
    const Qt::MouseButtons concerned = event->buttons() | event->button();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (concerned.testFlag(button))
            event->setButtonDownPos(button, item->mapFromScene(event->buttonDownScenePos(button)));
    }
    sendEvent(item, event);
}

/**
 * Forwards an event to each selected item. Handling it may run an event loop in which a document
 * arrives and deletes items, so they are guarded by references.
 */
void TonquillScene::forwardToSelection(QGraphicsSceneMouseEvent *event, QGraphicsItem *except)
{
    QList<ItemReference> targets;
    for (QGraphicsItem *item : selectedItems())
        targets.append(ItemReference(item));
    for (const ItemReference &target : std::as_const(targets)) {
        QGraphicsItem *item = target.get(this);
        if (item && item != except)
            forward(item, event);
    }
}

void TonquillScene::onTextItemContextMenu(TonquillText *item)
{
    m_contextText = item;
    QMenu menu;
    menu.addAction(QStringLiteral("Edit..."), this, SLOT(onEditTextItem()));
    menu.exec(QCursor::pos());
}

void TonquillScene::onEditTextItem()
{
    if (!m_contextText)
        return;
    TonquillSimpleTextDlg dialog(views().isEmpty() ? nullptr : views().constFirst()->window());
    dialog.fillFrom(*m_contextText);
    // A document from the host may have deleted the text while the dialog was open.
    if (dialog.exec() != QDialog::Accepted || !m_contextText)
        return;
    dialog.applyTo(*m_contextText);
    m_contextText->setRotation(dialog.angle());
    m_contextText->moveAnchorToCorner();
    m_context->editFinished();
}
