#include "UndoHistory.h"

#include <algorithm>

namespace
{
qsizetype costOf(const QList<QByteArray> &lines)
{
    qsizetype sum = 0;
    for (const QByteArray &line : lines)
        sum += qsizetype(sizeof line) + line.capacity();
    return sum;
}
} // namespace

qsizetype UndoHistory::Step::cost() const
{
    qsizetype sum = qsizetype(sizeof *this) + selection.cost();
    for (const Hunk &hunk : hunks)
        sum += qsizetype(sizeof hunk) + costOf(hunk.older) + costOf(hunk.newer);
    return sum;
}

void UndoHistory::reset(const DocumentSnapshot &state)
{
    m_undo.clear();
    m_redo.clear();
    m_cost = 0;
    m_lastApplied = Step();
    m_current = state;
    m_selection = ItemSelection();
}

bool UndoHistory::record(const DocumentSnapshot &state, bool sameGesture)
{
    if (state == m_current)
        return false;
    DocumentSnapshot before = m_current;
    if (sameGesture && !m_undo.isEmpty() && m_redo.isEmpty()) {
        const Step last = m_undo.takeLast();
        m_cost -= last.cost();
        applyBackward(last);
        before = m_current;
        m_selection = last.selection;
    }
    dropRedo();
    m_current = state;
    if (state != before) {
        Step step = difference(before, state);
        step.selection = m_selection;
        push(step);
    }
    m_selection = ItemSelection();
    return true;
}

void UndoHistory::adopt(const DocumentSnapshot &state)
{
    if (state.items.size() == m_current.items.size())
        m_current = state;
}

void UndoHistory::push(const Step &step)
{
    m_undo.append(step);
    m_cost += step.cost();
    while (m_cost > m_bound && !m_undo.isEmpty())
        m_cost -= m_undo.takeFirst().cost();
}

void UndoHistory::dropRedo()
{
    for (const Step &step : std::as_const(m_redo))
        m_cost -= step.cost();
    m_redo.clear();
}

/** The selection of the state that is left is kept for coming back. */
void UndoHistory::exchangeSelection(Step &step)
{
    m_cost -= step.cost();
    std::swap(m_selection, step.selection);
    m_cost += step.cost();
}

void UndoHistory::undo()
{
    Step step = m_undo.takeLast();
    applyBackward(step);
    exchangeSelection(step);
    m_redo.append(step);
    m_lastApplied = step;
    for (Hunk &hunk : m_lastApplied.hunks)
        std::swap(hunk.older, hunk.newer);
}

void UndoHistory::redo()
{
    Step step = m_redo.takeLast();
    applyForward(step);
    exchangeSelection(step);
    m_undo.append(step);
    m_lastApplied = step;
}

UndoHistory::Step UndoHistory::difference(const DocumentSnapshot &older,
                                          const DocumentSnapshot &newer)
{
    Step step{older.pageCount, newer.pageCount, {}, {}};
    if (older.items.size() == newer.items.size())
        appendChangedRuns(step, older.items, newer.items);
    else
        step.hunks.append(replacedMiddle(older.items, newer.items));
    return step;
}

/** For lists of equal length: a hunk for each run of lines that differ. */
void UndoHistory::appendChangedRuns(Step &step, const QList<QByteArray> &older,
                                    const QList<QByteArray> &newer)
{
    for (qsizetype i = 0; i < older.size(); ++i) {
        const qsizetype begin = i;
        while (i < older.size() && older[i] != newer[i])
            ++i;
        if (i > begin)
            step.hunks.append(
                {begin, older.sliced(begin, i - begin), newer.sliced(begin, i - begin)});
    }
}

/** One hunk: what is left between the lines that both lists begin with and end with. */
UndoHistory::Hunk UndoHistory::replacedMiddle(const QList<QByteArray> &older,
                                              const QList<QByteArray> &newer)
{
    const auto [oldFrom, newFrom] =
        std::mismatch(older.cbegin(), older.cend(), newer.cbegin(), newer.cend());
    const qsizetype begin = oldFrom - older.cbegin();
    qsizetype end = 0;
    const qsizetype most = qMin(older.size(), newer.size()) - begin;
    while (end < most && older[older.size() - 1 - end] == newer[newer.size() - 1 - end])
        ++end;
    return {begin, older.sliced(begin, older.size() - begin - end),
            newer.sliced(begin, newer.size() - begin - end)};
}

void UndoHistory::replace(qsizetype at, qsizetype count, const QList<QByteArray> &lines)
{
    QList<QByteArray> &items = m_current.items;
    if (count > lines.size())
        items.remove(at, count - lines.size());
    else if (count < lines.size())
        items.insert(at, lines.size() - count, QByteArray());
    std::copy(lines.cbegin(), lines.cend(), items.begin() + at);
}

void UndoHistory::applyBackward(const Step &step)
{
    for (const Hunk &hunk : step.hunks)
        replace(hunk.at, hunk.newer.size(), hunk.older);
    m_current.pageCount = step.olderPageCount;
}

void UndoHistory::applyForward(const Step &step)
{
    for (const Hunk &hunk : step.hunks)
        replace(hunk.at, hunk.older.size(), hunk.newer);
    m_current.pageCount = step.newerPageCount;
}
