#pragma once

#include "ItemSelection.h"
#include "LineList.h"

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QSizeF>

class QGraphicsItem;
class TonquillMainWin;

/** The paper of a document, in scene units. */
struct Paper
{
    QSizeF size;
    QRectF frame; ///< the printable area

    Paper inInches() const;
    bool operator==(const Paper &) const = default;
};

/**
 * The state of a document: paper, number of pages, and a line of the file for each item, from the
 * bottommost to the topmost. Copies share their lines.
 */
struct DocumentSnapshot
{
    Paper paper;
    int pageCount = 1;
    LineList items;

    bool operator==(const DocumentSnapshot &) const = default;

    /**
     * Captures the window's document, without items that wait to be placed. If `read` is not null,
     * the items of the lines are appended to it.
     */
    static DocumentSnapshot capture(const TonquillMainWin &window,
                                    QList<QGraphicsItem *> *read = nullptr);

    /**
     * Replaces the window's document with this one. The view keeps its scroll position, and exactly
     * the items of `selection` are selected.
     */
    void restore(TonquillMainWin &window, const ItemSelection &selection = {}) const;

    /** The top-level items on the window's pages, from the bottommost to the topmost. */
    static QList<QGraphicsItem *> itemsOf(const TonquillMainWin &window);

    /**
     * The line of an item; empty for one that waits to be placed and for one of unknown kind, which
     * is logged if it belongs to the document.
     */
    static QByteArray lineOf(const QGraphicsItem *item);

    /** The window's paper. */
    static Paper paperOf(const TonquillMainWin &window);

    /**
     * Sets the window's printer to the window's paper, discarding the user's previous page setup.
     */
    static void setPrinterPaper(TonquillMainWin &window);

    /** True while the pointer moves or resizes an item of the window. */
    static bool isItemHeld(const TonquillMainWin &window);
};
