#pragma once

#include "TonquillScene.h"
#include "TonquillTextBlock.h"

/** A new selected block at (100, 200), (0, 0) to (121, 80) in its own coordinates. */
inline TonquillTextBlock *placeBlock(TonquillScene &scene, const QString &text)
{
    auto *block = new TonquillTextBlock(false, text, QRectF(0, 0, 120, 80));
    scene.addNewItem(block);
    block->setPos(100, 200);
    block->setSelected(true);
    return block;
}
