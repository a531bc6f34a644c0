#pragma once

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QPointer>

/**
 * A reference to an item that may be deleted or removed from its scene at any time. It never yields
 * a dangling pointer: get() is null once the item is gone. Items of the document are QObjects and
 * tracked as such; a plain item of an embedding program is searched for in the scene at each call.
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

    /** The item if it still exists and is on `scene`, else null. */
    QGraphicsItem *get(const QGraphicsScene *scene) const
    {
        if (m_isWatched)
            return m_object && m_item->scene() == scene ? m_item : nullptr;
        return m_item && scene && scene->items().contains(m_item) ? m_item : nullptr;
    }

    /** The item as a QObject; null if it was deleted or is not a QObject. */
    QObject *object() const { return m_object; }

    /** The item as a QObject, or null if it is not one. */
    static QObject *objectOf(QGraphicsItem *item);

private:
    QGraphicsItem *m_item = nullptr;
    QPointer<QObject> m_object;
    bool m_isWatched = false;
};
