#include "DocumentMirror.h"

#include "DocumentItem.h"
#include "ItemReference.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace
{
/** Up to so many changes are followed one by one, even where there are hardly more items. */
constexpr qsizetype fewChanges = 1000;

/** If more than a part of all items has changed, reading all of them costs no more. */
constexpr qsizetype partOfAll = 8;
} // namespace

DocumentMirror::DocumentMirror(TonquillMainWin &window)
    : m_window(window)
{
    window.scene->setItemObserver(this);
    readAll();
}

DocumentMirror::~DocumentMirror()
{
    if (m_window.scene->observer() == this)
        m_window.scene->setItemObserver(nullptr);
}

void DocumentMirror::readAll()
{
    m_known.clear();
    m_marked.clear();
    m_gone.clear();
    m_isAllToBeRead = false;
    m_topmost = 0;
    QList<QByteArray> lines;
    QList<Place> places;
    const QList<QGraphicsItem *> items = DocumentSnapshot::itemsOf(m_window);
    m_known.reserve(items.size());
    for (QGraphicsItem *item : items) {
        const QByteArray line = DocumentSnapshot::lineOf(item);
        if (!DocumentItem::of(item))
            continue;
        const Height height{item->zValue(), ++m_topmost};
        m_known.insert(item, {height, !line.isEmpty(), false});
        if (line.isEmpty())
            continue;
        lines.append(line);
        places.append({height, item});
    }
    m_places = places;
    m_document.items.become(lines);
    m_document.paper = DocumentSnapshot::paperOf(m_window);
    m_document.pageCount = m_window.pageCount;
}

void DocumentMirror::refresh()
{
    if (m_isAllToBeRead)
        readAll();
    else
        applyMarks();
    m_document.paper = DocumentSnapshot::paperOf(m_window);
    m_document.pageCount = m_window.pageCount;
#ifndef NDEBUG
    compareWithScene();
#endif
}

void DocumentMirror::itemChanged(QGraphicsItem &item, ItemEvent event)
{
    // Nobody tells where among the items of its new height an item lies; it hardly ever gets one.
    m_isAllToBeRead = m_isAllToBeRead || event == ItemEvent::Restacked;
    if (m_isAllToBeRead)
        return;
    auto known = m_known.find(&item);
    const bool isNew = event == ItemEvent::Awaited || event == ItemEvent::Added;
    if (known == m_known.end() && isNew && !item.parentItem())
        known = m_known.insert(&item, {{item.zValue(), ++m_topmost}, false, false});
    if (known == m_known.end())
        return;
    if (event == ItemEvent::Removed) {
        takeLine(*known);
        m_known.erase(known);
    } else {
        mark(&item, *known);
    }
    countOnReadingAll();
}

/** The line that an item has is no longer where its height says. */
void DocumentMirror::takeLine(Known &known)
{
    if (std::exchange(known.hasLine, false))
        m_gone.append(known.height);
}

void DocumentMirror::mark(QGraphicsItem *item, Known &known)
{
    if (!std::exchange(known.isMarked, true))
        m_marked.append(item);
}

void DocumentMirror::countOnReadingAll()
{
    m_isAllToBeRead =
        m_marked.size() + m_gone.size() > qMax(fewChanges, m_places.size() / partOfAll);
}

void DocumentMirror::itemStackedBelow(QGraphicsItem &item, const QGraphicsItem &above)
{
    if (m_isAllToBeRead)
        return;
    applyMarks();
    const qsizetype at = indexOf(&item);
    const qsizetype next = indexOf(&above);
    // Nobody has told where an item without a line lies.
    m_isAllToBeRead = isItemWaiting() || next < 0 || at < 0;
    if (m_isAllToBeRead || at < next)
        return;
    const Height upper = m_places[next].height;
    const bool isLowest = next == 0 || m_places[next - 1].height.z != upper.z;
    const double lower = isLowest ? upper.order - 1 : m_places[next - 1].height.order;
    const double between = lower + (upper.order - lower) / 2;
    m_isAllToBeRead = between <= lower || between >= upper.order;
    Known &known = m_known[&item];
    takeLine(known);
    known.height.order = between;
    mark(&item, known);
}

void DocumentMirror::applyMarks()
{
    for (const Height &height : std::exchange(m_gone, {})) {
        const qsizetype index = indexOf(height);
        m_places.remove(index);
        m_document.items.remove(index);
    }
    for (QGraphicsItem *item : std::exchange(m_marked, {})) {
        const auto known = m_known.find(item);
        if (known != m_known.end() && std::exchange(known->isMarked, false))
            bringUpToDate(item, *known);
    }
}

void DocumentMirror::bringUpToDate(QGraphicsItem *item, Known &known)
{
    const QByteArray line = DocumentSnapshot::lineOf(item);
    const qsizetype index = indexOf(known.height);
    if (known.hasLine && line.isEmpty()) {
        m_places.remove(index);
        m_document.items.remove(index);
    } else if (known.hasLine && m_document.items[index] != line) {
        m_document.items.set(index, line);
    } else if (!known.hasLine && !line.isEmpty()) {
        m_places.insert(index, {known.height, item});
        m_document.items.insert(index, line);
    }
    known.hasLine = !line.isEmpty();
}

/** The index of the place of this height, or where it would be. */
qsizetype DocumentMirror::indexOf(const Height &height) const
{
    return m_places.partitionPoint([&height](const Place &place) { return place.height < height; });
}

qsizetype DocumentMirror::indexOf(const QGraphicsItem *item) const
{
    const auto known = m_known.constFind(item);
    return known != m_known.cend() && known->hasLine ? indexOf(known->height) : -1;
}

ItemSelection DocumentMirror::selectionOf(const QList<QGraphicsItem *> &items) const
{
    QList<qsizetype> indices;
    for (const QGraphicsItem *item : items)
        indices.append(indexOf(item));
    std::sort(indices.begin(), indices.end());
    ItemSelection selection;
    for (const qsizetype index : std::as_const(indices)) {
        if (index >= 0)
            selection.append(index);
    }
    return selection;
}

void DocumentMirror::select(const ItemSelection &selection) const
{
    QSet<QGraphicsItem *> wanted;
    for (const qsizetype index : selection.indices()) {
        if (index < m_places.size())
            wanted.insert(itemAt(index));
    }
    for (QGraphicsItem *item : m_window.scene->selectedItems())
        item->setSelected(wanted.contains(item));
    for (QGraphicsItem *item : std::as_const(wanted))
        item->setSelected(true);
}

#ifndef NDEBUG
/**
 * An edit that nobody announced would not be undone, nor kept for recovery: where the program is
 * built to be tested, it ends here.
 */
void DocumentMirror::compareWithScene() const
{
    QList<QGraphicsItem *> items;
    const DocumentSnapshot seen = DocumentSnapshot::capture(m_window, &items);
    for (qsizetype i = 0; i < qMax(items.size(), m_places.size()); ++i) {
        const QByteArray told = i < m_places.size() ? m_document.items[i] : QByteArray("nothing");
        const QByteArray shown = i < items.size() ? seen.items[i] : QByteArray("nothing");
        const bool isSameItem =
            i < m_places.size() && i < items.size() && items[i] == m_places[i].item;
        if (told == shown && isSameItem)
            continue;
        const QObject *object = i < items.size() ? ItemReference::objectOf(items[i]) : nullptr;
        qFatal("An edit was not announced (%s): line %d of %d is\n  %s\nand was announced as\n  %s",
               object ? object->metaObject()->className() : "an item went", int(i),
               int(items.size()), shown.constData(), told.constData());
    }
}
#endif
