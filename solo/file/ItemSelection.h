#pragma once

#include <QBitArray>
#include <QList>

/**
 * The selected items of a document, by their index from the bottommost to the topmost. Stored as
 * runs of consecutive indices, so that selecting everything takes as little memory as a single
 * item.
 */
class ItemSelection
{
public:
    /** Adds an index, which must be larger than all before. */
    void append(qsizetype index);

    /** One bit for each of `count` items, set for the selected ones. */
    QBitArray toBits(qsizetype count) const;

    /** The indices, in order. */
    QList<qsizetype> indices() const;

    /** The memory of the runs, in bytes. */
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
