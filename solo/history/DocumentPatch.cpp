#include "DocumentPatch.h"

#include "ItemKinds.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillTextBlock.h"
#include "TonquillView.h"

namespace
{
using Hunks = QList<UndoHistory::Hunk>;

/** Putting an item below others takes a walk over all of them; from here on building anew wins. */
constexpr qsizetype mostItems = 32;

bool isSmall(const Hunks &hunks)
{
    qsizetype replaced = 0;
    for (const UndoHistory::Hunk &hunk : hunks)
        replaced += qMax(hunk.older.size(), hunk.newer.size());
    return replaced <= mostItems;
}

/** True while the user is in the middle of something, which a document taken anew would end. */
bool isBusy(const TonquillMainWin &window)
{
    const auto *block = qgraphicsitem_cast<TonquillTextBlock *>(window.scene->focusItem());
    return DocumentSnapshot::isItemHeld(window) || (block && TonquillTextBlock::isEdited(*block));
}

/** True if `items` are those that the lines were written of, as far as the hunks tell. */
bool matches(const QList<QGraphicsItem *> &items, const Hunks &hunks, qsizetype newerCount)
{
    qsizetype olderCount = newerCount;
    for (const UndoHistory::Hunk &hunk : hunks)
        olderCount += hunk.older.size() - hunk.newer.size();
    // An item that waits to be placed has no line, and would be one too many.
    if (items.size() != olderCount)
        return false;
    for (const UndoHistory::Hunk &hunk : hunks) {
        for (qsizetype i = 0; i < hunk.older.size(); ++i) {
            if (DocumentSnapshot::lineOf(items[hunk.at + i]) != hunk.older[i])
                return false;
        }
    }
    return true;
}

/** The states of all newer lines, hunk by hunk; nothing if one cannot be read. */
std::optional<QList<ItemState>> newStates(const Hunks &hunks)
{
    QList<ItemState> states;
    for (const UndoHistory::Hunk &hunk : hunks) {
        for (const QByteArray &line : hunk.newer) {
            const auto state = ItemKinds::catalogue().readLine(QString::fromUtf8(line));
            if (!state)
                return std::nullopt;
            states.append(*state);
        }
    }
    return states;
}

/** Puts a new item, which is on top of all of its height, right below the one that follows it. */
void putBelow(QGraphicsItem *item, const QGraphicsItem *above)
{
    if (above && above->zValue() == item->zValue())
        item->stackBefore(above);
}
} // namespace

std::optional<DocumentPatch::Shown> DocumentPatch::apply(TonquillMainWin &window,
                                                         const Hunks &hunks,
                                                         const DocumentSnapshot &wanted,
                                                         const ItemSelection &selection)
{
    if (!isSmall(hunks) || isBusy(window) || wanted.paper != DocumentSnapshot::paperOf(window))
        return std::nullopt;
    const QList<QGraphicsItem *> items = DocumentSnapshot::itemsOf(window);
    const auto states = newStates(hunks);
    if (!states || !matches(items, hunks, wanted.items.size()))
        return std::nullopt;

    Shown shown{wanted, {}};
    QList<QGraphicsItem *> replaced;
    qsizetype next = 0;
    auto state = states->cbegin();
    for (const UndoHistory::Hunk &hunk : hunks) {
        shown.items += items.sliced(next, hunk.at - next);
        next = hunk.at + hunk.older.size();
        const QGraphicsItem *above = items.value(next);
        for (qsizetype i = hunk.at; i < hunk.at + hunk.newer.size(); ++i) {
            QGraphicsItem *item = window.scene->buildItem(*state++);
            putBelow(item, above);
            shown.items.append(item);
            shown.document.items.set(i, DocumentSnapshot::lineOf(item));
        }
        replaced += items.sliced(hunk.at, hunk.older.size());
    }
    shown.items += items.sliced(next);
    window.scene->destroyItems(replaced);
    selection.apply(shown.items);
    window.scene->setPageNum(wanted.pageCount);
    window.onViewScroll(window.view()->curScenePos());
    return shown;
}
