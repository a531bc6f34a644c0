#pragma once

#include "DocumentSnapshot.h"
#include "ItemRegistry.h"

#include <QHash>

#include <compare>

class TonquillMainWin;

/**
 * The window's document as lines, kept up to date by what the scene announces: the more changed,
 * the more it costs to look at it, and not the more there is.
 */
class DocumentMirror : public ItemObserver
{
public:
    /** Observes the scene of `window`, which outlives the mirror, in the place of any other. */
    explicit DocumentMirror(TonquillMainWin &window);
    ~DocumentMirror() override;

    /** Reads the whole document anew. */
    void readAll();

    /** Brings document() up to date. */
    void refresh();

    /** The document as it was at the last refresh(). */
    const DocumentSnapshot &document() const { return m_document; }

    /** The item of a line. To be asked right after refresh(): later it may be gone. */
    QGraphicsItem *itemAt(qsizetype index) const { return m_places[index].item; }

    /** The index of the item's line as of the last refresh(), or -1 if it had none. */
    qsizetype indexOf(const QGraphicsItem *item) const;

    /** The lines of these items. */
    ItemSelection selectionOf(const QList<QGraphicsItem *> &items) const;

    /** Selects exactly the items of these lines. To be called right after refresh(). */
    void select(const ItemSelection &selection) const;

    /** True if an item on the scene waits to be placed. As of the last refresh(). */
    bool isItemWaiting() const { return m_known.size() > m_places.size(); }

    void itemChanged(QGraphicsItem &item, ItemEvent event) override;
    void itemStackedBelow(QGraphicsItem &item, const QGraphicsItem &above) override;

private:
    /** What items lie above each other by: their height, then the order in which they came. */
    struct Height
    {
        qreal z = 0;
        double order = 0;
        auto operator<=>(const Height &) const = default;
    };

    /** A line's item; the places are sorted by height, as the lines are. */
    struct Place
    {
        Height height;
        QGraphicsItem *item = nullptr;
    };

    /** What is known of an item on the scene. */
    struct Known
    {
        Height height;
        bool hasLine = false;
        bool isMarked = false; ///< its line is to be looked at
    };

    using KnownItems = QHash<const QGraphicsItem *, Known>;

    void mark(QGraphicsItem *item, Known &known);
    void takeLine(Known &known);
    void countOnReadingAll();
    void applyMarks();
    void bringUpToDate(QGraphicsItem *item, Known &known);
    qsizetype indexOf(const Height &height) const;
    void compareWithScene() const; ///< only in builds with assertions

    TonquillMainWin &m_window;
    DocumentSnapshot m_document;
    ChunkedList<Place> m_places;
    KnownItems m_known;
    QList<QGraphicsItem *> m_marked; ///< may be gone by now, or be named twice
    QList<Height> m_gone;            ///< where lines are to be removed
    double m_topmost = 0;            ///< the order of the latest item
    bool m_isAllToBeRead = false;
};
