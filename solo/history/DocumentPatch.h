#pragma once

#include "UndoHistory.h"

#include <optional>

class TonquillMainWin;

/**
 * Goes from one state of the document to the next by replacing only the items whose lines differ.
 * The others stay as they are but for being selected or not.
 */
namespace DocumentPatch
{
/** A document as a window shows it, and the item of each of its lines. */
struct Shown
{
    DocumentSnapshot document;
    QList<QGraphicsItem *> items;
};

/**
 * Replaces the items of the hunks' older lines by items of the newer ones, which makes the
 * window's document `wanted`, and selects exactly the items of the selection. The answer is the
 * document as the window then shows it.
 *
 * Without an answer nothing was changed: there is too much to replace, something is being placed,
 * moved or typed, or the window does not show the older lines. DocumentSnapshot::restore() is
 * always possible.
 */
std::optional<Shown> apply(TonquillMainWin &window, const QList<UndoHistory::Hunk> &hunks,
                           const DocumentSnapshot &wanted, const ItemSelection &selection);
} // namespace DocumentPatch
