#pragma once

#include "ItemState.h"

#include <QGraphicsItem>

class TonquillMainWin;

/** Reads the state of items on the scene, and builds items of a state. */
namespace SceneItems
{
/** The state of a document item; nothing for a frame, or an item that waits to be placed. */
std::optional<ItemState::Any> stateOf(const QGraphicsItem *item);

/** True if stateOf() has an answer. */
bool hasState(const QGraphicsItem *item);

/** True while the pointer moves or resizes this item. */
bool isHeld(const QGraphicsItem *item);

/** Builds the item on the window's scene, which owns it, and returns it. */
QGraphicsItem *build(TonquillMainWin &window, const ItemState::Any &state);
} // namespace SceneItems
