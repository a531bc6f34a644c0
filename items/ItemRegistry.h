#pragma once

class QGraphicsItem;
class QGraphicsScene;

/** What became of an item of the document. */
enum class ItemEvent {
    Awaited,   ///< it is on the scene, on top of all of its height, and waits to be placed
    Added,     ///< it is on the scene and placed: from now on it is a part of the document
    Removed,   ///< it leaves the scene or is deleted; only its address may be used
    Moved,     ///< its position is another one
    Restacked, ///< its height (z) is another one
    Altered    ///< something else about it is another: shape, text, look
};

/** Somebody who wants to know of every change of the document. */
class ItemObserver
{
public:
    virtual ~ItemObserver() = default;

    /** Told at once. An item that waits to be placed may be told of, too. */
    virtual void itemChanged(QGraphicsItem &item, ItemEvent event) = 0;

    /** If `item` lay above `above`, which is of the same height (z), it lies right below it now. */
    virtual void itemStackedBelow(QGraphicsItem &item, const QGraphicsItem &above) = 0;
};

/** A scene's side of what items tell it. */
class ItemRegistry
{
public:
    /** The registry that this scene is, or null. */
    static ItemRegistry *of(const QGraphicsScene &scene);

    /** `item` was added while in ItemStatus::Adding. */
    virtual void itemAwaitsPlacing(QGraphicsItem *item) = 0;

    /** Whoever observes the document; null for nobody. Not owned. */
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
