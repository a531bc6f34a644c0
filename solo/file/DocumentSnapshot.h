#pragma once

#include "ItemSelection.h"
#include "LineList.h"

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QSizeF>

class QGraphicsItem;
class TonquillMainWin;

/** The paper that a document is laid out on, in scene units. */
struct Paper
{
    QSizeF size;
    QRectF frame; ///< the printable area

    Paper inInches() const;
    bool operator==(const Paper &) const = default;
};

/**
 * A document as it is at one moment: paper, number of pages, and a line of the file for each
 * item, from the lowest to the topmost. Copies share their lines.
 */
struct DocumentSnapshot
{
    Paper paper;
    int pageCount = 1;
    LineList items;

    bool operator==(const DocumentSnapshot &) const = default;

    /**
     * Reads the window's document. Items that wait to be placed are no part of it yet. With `read`,
     * the items of the lines are appended to it.
     */
    static DocumentSnapshot capture(const TonquillMainWin &window,
                                    QList<QGraphicsItem *> *read = nullptr);

    /**
     * Replaces the window's document by this one. What the view shows stays where it is, and
     * exactly these items are selected.
     */
    void restore(TonquillMainWin &window, const ItemSelection &selection = {}) const;

    /** The items on the window's pages, from the lowest to the topmost; none that is another's. */
    static QList<QGraphicsItem *> itemsOf(const TonquillMainWin &window);

    /**
     * The line of an item; empty for one that waits to be placed, and for one of no known kind, of
     * which the log is told if it is the document's.
     */
    static QByteArray lineOf(const QGraphicsItem *item);

    /** The window's paper. */
    static Paper paperOf(const TonquillMainWin &window);

    /**
     * Sets the window's printer to the window's paper. A page setup that the user has chosen for
     * the document before is given up.
     */
    static void setPrinterPaper(TonquillMainWin &window);

    /** True while the pointer moves or resizes an item of the window. */
    static bool isItemHeld(const TonquillMainWin &window);
};
