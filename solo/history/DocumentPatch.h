#pragma once

#include "UndoHistory.h"

class DocumentMirror;
class TonquillMainWin;

/**
 * Changes one state of the document to another by replacing only the items whose lines differ. Of
 * the others, only the selection changes.
 */
namespace DocumentPatch
{
/**
 * Replaces the items of the hunks' older lines with items of the newer ones, which turns the
 * window's document into `wanted`, and selects exactly the items of the selection. Updates the
 * mirror, which maps lines to items.
 *
 * Returns false and changes nothing if there is too much to replace, if an item is being placed,
 * moved or edited, or if the window does not show the older lines. DocumentSnapshot::restore()
 * always works.
 */
bool apply(TonquillMainWin &window, DocumentMirror &mirror, const QList<UndoHistory::Hunk> &hunks,
           const DocumentSnapshot &wanted, const ItemSelection &selection);
} // namespace DocumentPatch
