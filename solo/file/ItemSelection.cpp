#include "ItemSelection.h"

#include <QGraphicsItem>

ItemSelection ItemSelection::of(const QList<QGraphicsItem *> &items)
{
    ItemSelection result;
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (items[i]->isSelected())
            result.append(i);
    }
    return result;
}

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

void ItemSelection::apply(const QList<QGraphicsItem *> &items) const
{
    const QBitArray selected = toBits(items.size());
    for (qsizetype i = 0; i < items.size(); ++i)
        items[i]->setSelected(selected.testBit(i));
}
