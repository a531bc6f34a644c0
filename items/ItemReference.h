#pragma once

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QPointer>

/**
 * A reference to an item that may be deleted or taken off its scene at any time, by anybody.
 * It never yields a dangling pointer: get() is null once the item is gone. Items that are not
 * QObjects cannot be watched and are never held.
 */
class ItemReference
{
public:
    ItemReference() = default;
    explicit ItemReference(QGraphicsItem *item)
        : m_item(item)
        , m_object(objectOf(item))
    {}

    /** The item if it is alive and stands on `scene`, else null. */
    QGraphicsItem *get(const QGraphicsScene *scene) const
    {
        return m_object && m_item->scene() == scene ? m_item : nullptr;
    }

    /** The item as a QObject while it is alive, else null. */
    QObject *object() const { return m_object; }

    /** An item as the QObject that it also is, or null. */
    static QObject *objectOf(QGraphicsItem *item) { return dynamic_cast<QObject *>(item); }

private:
    QGraphicsItem *m_item = nullptr;
    QPointer<QObject> m_object;
};
