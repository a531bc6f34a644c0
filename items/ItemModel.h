#pragma once

#include "Truncation.h"

#include <QFont>
#include <QGraphicsItem>

class QGraphicsSceneMouseEvent;

/** The state of an item in the pointer cycle; the value of its `itemStatus` property. */
enum class ItemStatus : int {
    Placed = 0,     ///< at rest on its page
    Adding = 1,     ///< newly inserted, follows the pointer
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

/** Glyphs, texts and time signatures are above the vector items, which have z 0. */
inline constexpr qreal symbolZValue = 10.0;

/** Helpers shared by the item classes. */
namespace ItemModel
{
/** True while only the left button is held. */
bool onlyLeftButtonHeld(const QGraphicsSceneMouseEvent &event);

/** True while only the right button is held. */
bool onlyRightButtonHeld(const QGraphicsSceneMouseEvent &event);

/** The keyword of the item's record, from the item's data; empty if it has none. */
QString keywordOf(const QGraphicsItem &item);

/** Bold, 23 points: the font of figures and time signatures, implicitly shared. */
QFont largeBoldFont();
} // namespace ItemModel
