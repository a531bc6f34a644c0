#pragma once

#include "ItemModel.h"
#include "ItemRegistry.h"
#include "SelectionFrame.h"

#include <QGraphicsItem>
#include <QGraphicsSceneMouseEvent>

#include <utility>

class QTextDocument;

/** In what the kinds of items differ while the pointer acts on them. */
struct PointerManners
{
    /** When a dragged item holds the scene's mouse grab. */
    enum class Grab {
        Never,
        WhileDragged,
        UntilOthersTakeIt ///< from its first drag on
    };

    Grab grab = Grab::Never;
    bool followsWithButtonsHeld = true; ///< a new item follows the pointer whatever is pressed
    bool dragsWithAnyButton = false;    ///< once a drag has begun, other buttons do not halt it
    bool notesEveryPress = false;       ///< a press in the middle of a drag begins its way anew
    bool isStretchedOnceLaid = false;   ///< its first click lays it, the second one ends it
};

/**
 * What every item of the document is beside the graphics item that it derives from: something that
 * the pointer lays, moves and resizes, with a SelectionFrame, and that tells the scene what becomes
 * of it. Classes derive from DocumentItemOf.
 */
class DocumentItem
{
public:
    /** The document item that `item` is, or null. */
    static DocumentItem *of(QGraphicsItem *item) { return dynamic_cast<DocumentItem *>(item); }
    static const DocumentItem *of(const QGraphicsItem *item)
    {
        return dynamic_cast<const DocumentItem *>(item);
    }

    virtual QGraphicsItem &graphicsItem() = 0;

    ItemStatus status() const { return m_status; }
    int itemStatus() const { return static_cast<int>(m_status); }

    /** True for a new item until it is placed. Until then it is no part of the document. */
    bool isWaiting() const
    {
        return m_status == ItemStatus::Adding || m_status == ItemStatus::Stretching;
    }

    /** True while the pointer moves or resizes an item that was placed before. */
    bool isHeld() const
    {
        return m_status == ItemStatus::Moving || m_status == ItemStatus::Resizing;
    }

    /** Its anchors; owned by the item. */
    SelectionFrame &frame() { return m_frame; }
    const SelectionFrame &frame() const { return m_frame; }

    /** Tells whoever observes the scene, if there is one and the item stands on it. */
    void announce(ItemEvent event);

    /** Has Qt tell of moves from now on, which costs each move a little; or not any more. */
    void setObserved(bool observed);

protected:
    /** A new item waits to be placed if it is `adding`. */
    DocumentItem(QGraphicsItem *item, bool adding)
        : m_status(adding ? ItemStatus::Adding : ItemStatus::Placed)
        , m_frame(item)
    {}
    virtual ~DocumentItem() = default;

    virtual const PointerManners &manners() const = 0;

    /** The anchor by which a press at this point, in item coordinates, resizes the item; or -1. */
    virtual int resizingAnchorAt(QPointF point) const;

    /** Moves the anchor's corner or end to the point, in item coordinates. */
    virtual void dragAnchorTo(int anchor, QPointF point);

    /** The last step of a resize. Whatever it runs may take the item away. */
    virtual void resized() {}

    // The steps of the pointer cycle, to be called from the item's handlers of mouse events.
    void press(const QGraphicsSceneMouseEvent &event);
    void move(const QGraphicsSceneMouseEvent &event);
    void release(const QGraphicsSceneMouseEvent &event);

    /**
     * To be called by an item that shows this text, which it owns: words, formats, font and width
     * may be changed by many, but none of it without laying out the text anew.
     */
    void announceChangesOf(const QTextDocument &text);

    /** To be called from the item's itemChange(). */
    void announceChange(QGraphicsItem::GraphicsItemChange change);

private:
    Q_DISABLE_COPY_MOVE(DocumentItem)

    void joinScene();
    void endDrag();
    void takeMouseGrab();
    void releaseMouseGrab();

    ItemStatus m_status;
    int m_activeAnchor = 1; ///< the one that is dragged; of a new item its end
    QPointF m_lastPointer;  ///< scene coordinates
    SelectionFrame m_frame;
};

/** A graphics item of Qt with all that a DocumentItem needs of it. */
template <typename QtItem>
class DocumentItemOf : public QtItem, public DocumentItem
{
public:
    QGraphicsItem &graphicsItem() override { return *this; }

protected:
    /** The arguments behind `adding` go to the constructor of the Qt class. */
    template <typename... Arguments>
    explicit DocumentItemOf(bool adding, Arguments &&...arguments)
        : QtItem(std::forward<Arguments>(arguments)...)
        , DocumentItem(this, adding)
    {
        QtItem::setFlags(QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable);
    }
    ~DocumentItemOf() override { announce(ItemEvent::Removed); }

    void mousePressEvent(QGraphicsSceneMouseEvent *event) override { press(*event); }
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override { move(*event); }
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override { release(*event); }
    QVariant itemChange(QGraphicsItem::GraphicsItemChange change, const QVariant &value) override
    {
        announceChange(change);
        return QtItem::itemChange(change, value);
    }
};
