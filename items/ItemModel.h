#pragma once

#include "Truncation.h"

#include <QFont>
#include <QGraphicsItem>

class QGraphicsSceneMouseEvent;
class QObject;

/** What an item is doing with the pointer; the number behind its `itemStatus` property. */
enum class ItemStatus : int {
    Placed = 0,     ///< at rest on its page
    Adding = 1,     ///< just made by an insertion command, follows the pointer
    Moving = 2,     ///< dragged with the left button
    Resizing = 3,   ///< one of its anchors is dragged with the left button
    Stretching = 4, ///< a new vector item whose end point follows the pointer
};

/** The item data keys by which the scene recognises and writes items. */
namespace ItemData
{
inline constexpr int symbolId = 256; ///< a glyph's symbol id (int)
inline constexpr int keyword = 257;  ///< the first word of the item's record (QString)
} // namespace ItemData

/** Glyphs, texts and time signatures lie above the vector items, which keep z 0. */
inline constexpr qreal symbolZValue = 10.0;

/** A scene that wants to know which of its items wait to be placed. */
class ItemRegistry
{
public:
    virtual ~ItemRegistry() = default;

    /** `item` (and `object`, the same item as a QObject) was added while in ItemStatus::Adding. */
    virtual void itemAwaitsPlacing(QGraphicsItem *item, QObject *object) = 0;
};

/** Steps of the pointer cycle that all items share. */
namespace ItemModel
{
/**
 * To be called from an item's itemChange(): tells the scene when a waiting item arrives on it.
 * The scene keeps such items at hand because a walk over all items for each new one would make
 * building a document quadratic.
 */
void announceToScene(QGraphicsItem::GraphicsItemChange change, QGraphicsItem *item, QObject *object,
                     ItemStatus status);

/** True while the left button, and no other, is held. */
bool onlyLeftButtonHeld(const QGraphicsSceneMouseEvent &event);

/** True while the right button, and no other, is held. */
bool onlyRightButtonHeld(const QGraphicsSceneMouseEvent &event);

/** Moves `item` by the way from `lastPointer` to the event (scene units) and stores the event's. */
void dragBy(QGraphicsItem *item, const QGraphicsSceneMouseEvent &event, QPointF &lastPointer);

/** The keyword with which the item's record begins, as it stands in the item's data. */
QString keywordOf(const QGraphicsItem &item);

/** Bold, 23 points: the font that figures and time signatures carry. Shared by all of them. */
QFont largeBoldFont();

/**
 * Makes `item` the scene's mouse grabber. A text block keeps its grab after a drag, so the grab
 * of another item is taken away first: Qt would refuse the new one.
 */
void takeMouseGrab(QGraphicsItem *item);

/** Gives the grab back if `item` has it. */
void releaseMouseGrab(QGraphicsItem *item);
} // namespace ItemModel
