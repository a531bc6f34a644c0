#include "ItemSelection.h"

void ItemSelection::append(qsizetype index)
{
    if (!m_runs.isEmpty() && m_runs.constLast().first + m_runs.constLast().count == index)
        ++m_runs.last().count;
    else
        m_runs.append({index, 1});
}

QBitArray ItemSelection::toBits(qsizetype count) const
{
    QBitArray bits(count);
    for (const Run &run : m_runs)
        bits.fill(true, qMin(run.first, count), qMin(run.first + run.count, count));
    return bits;
}

QList<qsizetype> ItemSelection::indices() const
{
    QList<qsizetype> indices;
    for (const Run &run : m_runs) {
        for (qsizetype i = 0; i < run.count; ++i)
            indices.append(run.first + i);
    }
    return indices;
}
