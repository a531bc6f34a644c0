#include "ItemRegistry.h"

#include <QList>

#include <algorithm>

namespace
{
/** There are few scenes; a cast between base classes for every item is too slow. */
QList<ItemRegistry *> &registries()
{
    static QList<ItemRegistry *> all;
    return all;
}
} // namespace

ItemRegistry::ItemRegistry(const QGraphicsScene &scene)
    : m_scene(scene)
{
    registries().prepend(this);
}

ItemRegistry::~ItemRegistry()
{
    registries().removeOne(this);
}

ItemRegistry *ItemRegistry::of(const QGraphicsScene &scene)
{
    const QList<ItemRegistry *> &all = registries();
    const auto found = std::find_if(all.cbegin(), all.cend(), [&scene](const ItemRegistry *one) {
        return &one->m_scene == &scene;
    });
    return found == all.cend() ? nullptr : *found;
}
