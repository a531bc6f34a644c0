#pragma once

#include "UndoHistory.h"

class DocumentMirror;
class TonquillMainWin;

/**
 * Goes from one state of the document to the next by replacing only the items whose lines differ.
 * The others stay as they are but for being selected or not.
 */
namespace DocumentPatch
{
/**
 * Replaces the items of the hunks' older lines by items of the newer ones, which makes the
 * window's document `wanted`, and selects exactly the items of the selection. The mirror, which
 * tells the items of lines, is up to date then.
 *
 * False if nothing was changed: there is too much to replace, something is being placed, moved or
 * typed, or the window does not show the older lines. DocumentSnapshot::restore() is always
 * possible.
 */
bool apply(TonquillMainWin &window, DocumentMirror &mirror, const QList<UndoHistory::Hunk> &hunks,
           const DocumentSnapshot &wanted, const ItemSelection &selection);
} // namespace DocumentPatch
