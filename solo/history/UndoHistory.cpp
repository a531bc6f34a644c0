#include "UndoHistory.h"

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
    Step step = difference(before, state);
    const bool leadsBack =
        step.hunks.isEmpty() && before.pageCount == state.pageCount && before.paper == state.paper;
    if (!leadsBack) {
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
    for (const LineList::Change &change : LineList::changes(older.items, newer.items))
        step.hunks.append({change.at, older.items.sliced(change.at, change.olderCount),
                           newer.items.sliced(change.at, change.newerCount)});
    return step;
}

void UndoHistory::applyBackward(const Step &step)
{
    for (const Hunk &hunk : step.hunks)
        m_current.items.replace(hunk.at, hunk.newer.size(), hunk.older);
    m_current.pageCount = step.olderPageCount;
}

void UndoHistory::applyForward(const Step &step)
{
    for (const Hunk &hunk : step.hunks)
        m_current.items.replace(hunk.at, hunk.older.size(), hunk.newer);
    m_current.pageCount = step.newerPageCount;
}
