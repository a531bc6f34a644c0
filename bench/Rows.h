#pragma once

/** The rows of the table, by topic. */
namespace Rows
{
void addDocument();    ///< receiving, clearing
void addKinds();       ///< building and writing an item of each kind
void addEditing();     ///< finishing an edit, deleting, selecting, moving
void addPages();       ///< inserting and deleting a page
void addPainting();    ///< repainting the view
void addPrinting();    ///< printing to PDF
void addMemory();      ///< resident memory of an item
void addStart();       ///< from exec to the first painted frame
void addSolo();        ///< undo, opening and exporting of the program of its own
void addSoloEditing(); ///< finding out what was edited, in the program of its own
} // namespace Rows
