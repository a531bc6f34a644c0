#pragma once

#include "Truncation.h"

#include <QFont>
#include <QGraphicsItem>

class QGraphicsSceneMouseEvent;

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

/** What the items' classes share. */
namespace ItemModel
{
/** True while the left button, and no other, is held. */
bool onlyLeftButtonHeld(const QGraphicsSceneMouseEvent &event);

/** True while the right button, and no other, is held. */
bool onlyRightButtonHeld(const QGraphicsSceneMouseEvent &event);

/** The keyword with which the item's record begins, as it stands in the item's data. */
QString keywordOf(const QGraphicsItem &item);

/** Bold, 23 points: the font that figures and time signatures carry. Shared by all of them. */
QFont largeBoldFont();
} // namespace ItemModel
