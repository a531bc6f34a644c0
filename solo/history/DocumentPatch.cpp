#include "DocumentPatch.h"

#include "DocumentMirror.h"
#include "ItemKinds.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillTextBlock.h"
#include "TonquillView.h"

#include <algorithm>
#include <optional>

namespace
{
using Hunks = QList<UndoHistory::Hunk>;

/** Stacking an item below others searches all items; for more than this, rebuilding is faster. */
constexpr qsizetype mostItems = 32;

bool isSmall(const Hunks &hunks)
{
    qsizetype replaced = 0;
    for (const UndoHistory::Hunk &hunk : hunks)
        replaced += qMax(hunk.older.size(), hunk.newer.size());
    return replaced <= mostItems;
}

/** True while the user drags an item or edits a text, which a restored document would interrupt. */
bool isBusy(const TonquillMainWin &window)
{
    const auto *block = qgraphicsitem_cast<TonquillTextBlock *>(window.scene->focusItem());
    return DocumentSnapshot::isItemHeld(window) || (block && TonquillTextBlock::isEdited(*block));
}

/** True if the mirror has the older lines of the hunks, and as many lines as before them. */
bool matches(const DocumentMirror &mirror, const Hunks &hunks, qsizetype newerCount)
{
    const LineList &lines = mirror.document().items;
    qsizetype olderCount = newerCount;
    for (const UndoHistory::Hunk &hunk : hunks)
        olderCount += hunk.older.size() - hunk.newer.size();
    if (mirror.isItemWaiting() || lines.size() != olderCount)
        return false;
    return std::all_of(hunks.cbegin(), hunks.cend(), [&lines](const UndoHistory::Hunk &hunk) {
        return lines.sliced(hunk.at, hunk.older.size()) == hunk.older;
    });
}

/** The states of all newer lines, hunk by hunk; nullopt if one cannot be read. */
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
} // namespace

bool DocumentPatch::apply(TonquillMainWin &window, DocumentMirror &mirror, const Hunks &hunks,
                          const DocumentSnapshot &wanted, const ItemSelection &selection)
{
    if (!isSmall(hunks) || isBusy(window) || wanted.paper != DocumentSnapshot::paperOf(window))
        return false;
    mirror.refresh();
    const auto states = newStates(hunks);
    if (!states || !matches(mirror, hunks, wanted.items.size()))
        return false;

    // Look up all items before adding the first one.
    QList<QGraphicsItem *> replaced;
    QList<QGraphicsItem *> following;
    for (const UndoHistory::Hunk &hunk : hunks) {
        const qsizetype end = hunk.at + hunk.older.size();
        for (qsizetype i = hunk.at; i < end; ++i)
            replaced.append(mirror.itemAt(i));
        following.append(end < mirror.document().items.size() ? mirror.itemAt(end) : nullptr);
    }
    auto state = states->cbegin();
    for (qsizetype i = 0; i < hunks.size(); ++i) {
        for (qsizetype n = 0; n < hunks[i].newer.size(); ++n) {
            QGraphicsItem *item = window.scene->buildItem(*state++);
            // It is the topmost of its z value.
            if (following[i] && following[i]->zValue() == item->zValue())
                window.scene->stackBelow(*item, *following[i]);
        }
    }
    window.scene->destroyItems(replaced);
    window.scene->setPageNum(wanted.pageCount);
    window.onViewScroll(window.view()->curScenePos());
    mirror.refresh();
    mirror.select(selection);
    return true;
}
