#pragma once

/** The rows of the table, by topic. */
namespace Rows
{
void addDocument();    ///< receiving, clearing
void addKinds();       ///< building and writing items of each kind
void addEditing();     ///< finishing an edit, deleting, selecting, moving
void addPages();       ///< inserting and deleting a page
void addPainting();    ///< repainting the view
void addPrinting();    ///< printing to PDF
void addMemory();      ///< resident memory per item
void addStart();       ///< from exec to the first painted frame
void addSolo();        ///< undo, opening and exporting in tonquill-solo
void addSoloEditing(); ///< detecting edits in tonquill-solo
} // namespace Rows
