#pragma once

#include <QBitArray>
#include <QList>

/**
 * Which items of a document are selected, by their index from the lowest to the topmost. Kept as
 * runs of neighbours, so that a selection of everything is as small as one of a single item.
 */
class ItemSelection
{
public:
    /** Adds an index, which is larger than those before. */
    void append(qsizetype index);

    /** A bit for each of `count` items, set for the selected ones. */
    QBitArray toBits(qsizetype count) const;

    /** The indices, in order. */
    QList<qsizetype> indices() const;

    /** The bytes that the runs hold. */
    qsizetype cost() const { return m_runs.size() * qsizetype(sizeof(Run)); }

    bool operator==(const ItemSelection &) const = default;

private:
    struct Run
    {
        qsizetype first = 0;
        qsizetype count = 0;
        bool operator==(const Run &) const = default;
    };

    QList<Run> m_runs;
};
