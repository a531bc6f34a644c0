#pragma once

#include "ClipboardKeys.h"
#include "DocumentContext.h"
#include "ItemReference.h"
#include "ItemRegistry.h"
#include "Records.h"

#include <QGraphicsScene>
#include <QPointer>
#include <QStringList>

class ItemState;
struct ItemKind;
class QGraphicsTextItem;
class TonquillBitmap;
class TonquillText;
class TonquillTextBlock;

/**
 * The document: a vertical stack of equal pages and every item on them.
 *
 * There is no page object; a page is a band of scene coordinates. The number of pages is kept by
 * the main window. The scene writes the document as records and builds items from them, and it is
 * the dispatcher of every pointer and key event: events go to the selected items, which act by
 * their itemStatus. It owns its items, including those that were dropped before they were placed.
 */
class TonquillScene : public QGraphicsScene, public ItemRegistry
{
    Q_OBJECT

public:
    /** The offset with which constructItem() puts the item at the mouse cursor. */
    static constexpr int atCursor = -65535;

    /** Lays the pages out on the context's paper and adds the first one. */
    explicit TonquillScene(DocumentContext &context, QObject *parent = nullptr);

    /** The same with the current context. Without one the pages have no size. */
    explicit TonquillScene(QObject *parent = nullptr);
    ~TonquillScene() override;

    /** Detaches the context; to be called before it is destroyed, if the scene lives longer. */
    void leaveContext();

    // Pages. Numbers begin at 1 and are not range-checked.

    /**
     * Lays the pages out on this sheet with this printable area, both of the first page and in
     * scene units. The scene's rectangle follows with the next setPageNum().
     */
    void setPaper(const QRectF &paper, const QRectF &frame);

    QRectF paperRect;       ///< the outer sheet of the first page, scene units
    QRectF pageRect;        ///< its printable area inside the margins, scene units
    double pageSpacing = 0; ///< the empty band between two pages, scene units

    /** From the top of one page to the top of the next, scene units. */
    double pagePitch() const { return paperRect.height() + pageSpacing; }

    /** The number of pages. */
    int pageCount() const { return m_context->pages(); }
    /** The printed part of page `index`, counted from 0: its printable area with its outline. */
    QRectF printedArea(int index) const;
    /** One more page at the end, without touching items. */
    void addPage();
    /** Sets the number of pages, without touching items. */
    void setPageNum(int n);
    /** The scene y of the top of page `n`. */
    float getCoordByPageNum(int n) const;
    /** The page at a point; the lowest quarter of a page and the gap count as the next one. */
    int getPageAt(QPointF p) const;
    void addPageBeforeCurPage(int cur);
    void addPageAfterCurPage(int cur);
    void addPageAtBegining();
    void addPageAtEnd();
    /**
     * Deletes the page with its items; the last page is only emptied. Everything below moves up by
     * two gaps less than a page's pitch.
     */
    void deletePage(int page);
    /** The same, but everything below moves up by this many scene units. */
    void deletePage(int page, double way);
    /** Deletes every item and all pages but one. */
    void clearScene();
    /** Outlines page `index`, counted from 0, and its printable area. */
    void DrawPageBoundary(QPainter *painter, int index);
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;

    // Records

    /** The whole document: the page-count line and a record for each item. */
    QString notifyTW();

    /** The first line of it alone. */
    QString pageCountLine() const;

    /**
     * Builds one item from a record, or nothing if the record is none. The item stands `offset`
     * right of and below its recorded position (a simple text twice that), or at the mouse cursor
     * for `atCursor`. With `adding` it follows the pointer until it is placed.
     */
    void constructItem(const QString &record, bool adding, int offset);

    /**
     * Builds an item from each of the records, which are separated by "|", and returns the last
     * item, or none if nothing was built. An item that waits to be placed goes on waiting.
     */
    ItemReference constructDocument(QStringView records);

    // Items

    /** Builds an item of this state, which the scene then owns. */
    QGraphicsItem *buildItem(const ItemState &state);

    /** Adds an item that the program itself has made, and sees to whatever it may ask for. */
    void addOwnItem(QGraphicsItem *item);

    /** Adds the item, which the scene then owns, and remembers it as the last added one. */
    void addNewItem(QGraphicsItem *item);

    /**
     * Makes a glyph and adds it. With `withInverted` its inverted form is what SymbolTable names as
     * the symbol's upside-down form, if any. An id without a picture makes an item without one. An
     * item that waits to be placed is dropped first. Null if no item was made.
     */
    TonquillBitmap *insertSymbol(int id, bool adding, bool withInverted);

    /**
     * All items, the topmost first, as items() has them, but quickly also after an item moved:
     * away from its place in Qt's index, it makes the sorting take five times as long.
     */
    QList<QGraphicsItem *> itemsFromTop() const;

    /**
     * Takes the topmost item that waits to be placed off the scene, without destroying it. False
     * in every case: callers ask before they make a new item, so that only one waits.
     */
    bool isNewItemIsAdding();

    void itemAwaitsPlacing(QGraphicsItem *item) override;

    /** Sets the observer of all changes of items; not owned, null for none. */
    void setItemObserver(ItemObserver *observer) override;

    /**
     * Puts an item that lies above another one of the same height (z) right below it; an item that
     * lies below already stays. Neither has a parent.
     */
    void stackBelow(QGraphicsItem &item, const QGraphicsItem &above);

    /** Builds a copy of every record that was copied so far, moved by 30. */
    void onPaste();

    // Commands of keys and menus. They return false and do nothing while a text is edited, which
    // then copies, pastes or deletes a part of itself instead.

    /** Copies the records of the selected items, besides what was copied before. */
    bool copySelection();
    /** As onPaste(). */
    bool pasteCopies();
    /** Deletes the selected items. */
    bool deleteSelection();

    /** Removes and destroys items without a parent, each of which the list names once. */
    void destroyItems(const QList<QGraphicsItem *> &items);

public Q_SLOTS:
    /** Opens the context menu of a simple text at the cursor. */
    void onTextItemContextMenu(TonquillText *item);
    /** Edits the text whose context menu was opened, in the text dialog. */
    void onEditTextItem();

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    // Pages
    void resizeToPages();
    void insertPageAt(double top);
    void moveDown(const QList<QGraphicsItem *> &items, double way);
    QList<QGraphicsItem *> topLevelItemsIn(const QRectF &area) const;

    // Records
    void build(const ItemKind &kind, QStringView record, bool adding, int offset);
    QPointF cursorPosition() const;
    static QString recordOf(QObject *item);

    // Items
    void fitIndexToItems();
    void moveToFrontOfQtsList(const QList<QGraphicsItem *> &items);

    // Pointer
    QGraphicsItem *itemUnder(QPointF scenePos) const;
    bool leaveOrKeepTextBlock(QGraphicsSceneMouseEvent *event);
    TonquillTextBlock *editedBlockAt(QPointF scenePos) const;
    void pressLeft(QGraphicsSceneMouseEvent *event);
    void releaseLeft(QGraphicsSceneMouseEvent *event, QGraphicsItem *served);
    void startRubberBand(QPointF scenePos);
    void selectByRubberBand();
    void forward(QGraphicsItem *item, QGraphicsSceneMouseEvent *event);
    void forwardToSelection(QGraphicsSceneMouseEvent *event, QGraphicsItem *except = nullptr);
    void moveQuickTextBlock(QPointF scenePos);

    // Keyboard
    void adjustRestMode(bool isCtrlHeld);
    void startQuickTextBlock();
    bool isAnyItemEdited() const;
    bool isSelectedItemEdited() const;
    bool addSameItem();

    DocumentContext *m_context; ///< never null
    qsizetype m_addedItems = 0; ///< since the scene was cleared
    qsizetype m_indexFitsUpTo = 0;
    ItemReference m_lastAdded;
    bool m_isBuildingDocument = false;
    QGraphicsItem *m_lastBuilt = nullptr; ///< while a document is built
    QList<ItemReference> m_waiting;       ///< items that were added to be placed
    QList<QPointer<QObject>> m_dropped;   ///< taken off half-placed, still owned
    QPointer<TonquillText> m_contextText; ///< whose context menu is open, or was
    QPointer<TonquillTextBlock> m_quickTextBlock;
    QStringList m_copyBuffer;
    ClipboardKeys m_clipboardKeys;
    bool m_rubberBandVisible = false;
    QRectF m_rubberBand; ///< scene coordinates; its size may be negative
};
