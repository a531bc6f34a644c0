#pragma once

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QPointer>

/**
 * A reference to an item that may be deleted or taken off its scene at any time, by anybody.
 * It never yields a dangling pointer: get() is null once the item is gone. All items of the
 * document are QObjects, which are watched; a plain item of an embedding program cannot be, and
 * is looked up among the scene's items whenever it is asked for.
 */
class ItemReference
{
public:
    ItemReference() = default;
    explicit ItemReference(QGraphicsItem *item)
        : m_item(item)
        , m_object(objectOf(item))
        , m_isWatched(m_object != nullptr)
    {}

    /** The item if it is alive and stands on `scene`, else null. */
    QGraphicsItem *get(const QGraphicsScene *scene) const
    {
        if (m_isWatched)
            return m_object && m_item->scene() == scene ? m_item : nullptr;
        return m_item && scene && scene->items().contains(m_item) ? m_item : nullptr;
    }

    /** The item as a QObject while it is alive, else null. */
    QObject *object() const { return m_object; }

    /** An item as the QObject that it also is, or null. */
    static QObject *objectOf(QGraphicsItem *item);

private:
    QGraphicsItem *m_item = nullptr;
    QPointer<QObject> m_object;
    bool m_isWatched = false;
};
