#pragma once

#include "ItemModel.h"
#include "ItemRegistry.h"
#include "SelectionFrame.h"

#include <QGraphicsItem>
#include <QGraphicsSceneMouseEvent>

#include <utility>

class QTextDocument;

/** How the kinds of items differ in handling the pointer. */
struct PointerManners
{
    /** When a dragged item takes the scene's mouse grab. */
    enum class Grab {
        Never,
        WhileDragged,
        UntilOthersTakeIt ///< from its first drag on
    };

    Grab grab = Grab::Never;
    bool followsWithButtonsHeld = true; ///< a new item follows the pointer with any button held
    bool dragsWithAnyButton = false;    ///< other buttons do not interrupt a drag
    bool notesEveryPress = false;       ///< a press during a drag restarts it from there
    bool isStretchedOnceLaid = false;   ///< the first click sets its start, the second its end
};

/**
 * Base of every item of the document, beside Qt's graphics item: handles placing, moving and
 * resizing with the pointer, owns a SelectionFrame, and announces changes to the scene. Classes
 * derive from DocumentItemOf.
 */
class DocumentItem
{
public:
    /** `item` as a document item; null if it is none. */
    static DocumentItem *of(QGraphicsItem *item) { return dynamic_cast<DocumentItem *>(item); }
    static const DocumentItem *of(const QGraphicsItem *item)
    {
        return dynamic_cast<const DocumentItem *>(item);
    }

    virtual QGraphicsItem &graphicsItem() = 0;

    ItemStatus status() const { return m_status; }
    int itemStatus() const { return static_cast<int>(m_status); }

    /** True for a new item until it is placed. Until then it is not part of the document. */
    bool isWaiting() const
    {
        return m_status == ItemStatus::Adding || m_status == ItemStatus::Stretching;
    }

    /** True while the pointer moves or resizes a placed item. */
    bool isHeld() const
    {
        return m_status == ItemStatus::Moving || m_status == ItemStatus::Resizing;
    }

    /** The item's anchors; owned by the item. */
    SelectionFrame &frame() { return m_frame; }
    const SelectionFrame &frame() const { return m_frame; }

    /** Notifies the scene's observer; does nothing without a scene or an observer. */
    void announce(ItemEvent event);

    /** Enables or disables Qt's notifications of moves, which make each move a little slower. */
    void setObserved(bool observed);

protected:
    /** With `adding` the item waits to be placed. */
    DocumentItem(QGraphicsItem *item, bool adding)
        : m_status(adding ? ItemStatus::Adding : ItemStatus::Placed)
        , m_frame(item)
    {}
    virtual ~DocumentItem() = default;

    virtual const PointerManners &manners() const = 0;

    /**
     * The anchor that resizes the item when pressed at this point, in item coordinates; -1 if none.
     */
    virtual int resizingAnchorAt(QPointF point) const;

    /** Moves the anchor's corner or end to the point, in item coordinates. */
    virtual void dragAnchorTo(int anchor, QPointF point);

    /** The last step of a resize. The item may be deleted when it returns. */
    virtual void resized() {}

    // The steps of the pointer cycle, called by the item's mouse event handlers.
    void press(const QGraphicsSceneMouseEvent &event);
    void move(const QGraphicsSceneMouseEvent &event);
    void release(const QGraphicsSceneMouseEvent &event);

    /**
     * Announces all changes of `text`, which the item shows and owns. Every change of its content,
     * formats, font or width causes a new layout, whoever makes it.
     */
    void announceChangesOf(const QTextDocument &text);

    /** Called by the item's itemChange(). */
    void announceChange(QGraphicsItem::GraphicsItemChange change);

private:
    Q_DISABLE_COPY_MOVE(DocumentItem)

    void joinScene();
    void endDrag();
    void takeMouseGrab();
    void releaseMouseGrab();

    ItemStatus m_status;
    int m_activeAnchor = 1; ///< the dragged one; for a new item its end point
    QPointF m_lastPointer;  ///< scene coordinates
    SelectionFrame m_frame;
};

/** A graphics item of Qt combined with DocumentItem. */
template <typename QtItem>
class DocumentItemOf : public QtItem, public DocumentItem
{
public:
    QGraphicsItem &graphicsItem() override { return *this; }

protected:
    /** The arguments after `adding` are passed to the constructor of the Qt class. */
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
