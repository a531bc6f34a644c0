#pragma once

class QGraphicsItem;
class QGraphicsScene;

/** A change of an item of the document. */
enum class ItemEvent {
    Awaited,   ///< it was added to the scene, topmost of its z value, and waits to be placed
    Added,     ///< it is on the scene and placed, so it is now part of the document
    Removed,   ///< it leaves the scene or is deleted; only its address may be used
    Moved,     ///< its position changed
    Restacked, ///< its z value changed
    Altered    ///< anything else changed: shape, text, appearance
};

/** Receives all changes of the document's items. */
class ItemObserver
{
public:
    virtual ~ItemObserver() = default;

    /** Called immediately, possibly also for items that wait to be placed. */
    virtual void itemChanged(QGraphicsItem &item, ItemEvent event) = 0;

    /** `item` moved directly below `above`, which has the same z value, if it was above it. */
    virtual void itemStackedBelow(QGraphicsItem &item, const QGraphicsItem &above) = 0;
};

/** The interface of a scene that items report to. */
class ItemRegistry
{
public:
    /** `scene` as a registry, or null if it is not one. */
    static ItemRegistry *of(const QGraphicsScene &scene);

    /** Called when `item` was added while in ItemStatus::Adding. */
    virtual void itemAwaitsPlacing(QGraphicsItem *item) = 0;

    /** The observer of the document; not owned, null for none. */
    ItemObserver *observer() const { return m_observer; }
    virtual void setItemObserver(ItemObserver *observer) { m_observer = observer; }

protected:
    explicit ItemRegistry(const QGraphicsScene &scene);
    virtual ~ItemRegistry();

private:
    ItemRegistry(const ItemRegistry &) = delete;
    ItemRegistry &operator=(const ItemRegistry &) = delete;

    const QGraphicsScene &m_scene;
    ItemObserver *m_observer = nullptr;
};
