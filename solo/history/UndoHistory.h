#pragma once

#include "DocumentSnapshot.h"
#include "ItemSelection.h"

#include <QList>

/**
 * The states of a document, each with its last selection. A step stores only the lines that it
 * changed, shared with the states before and after it. Pure values without windows or scenes.
 */
class UndoHistory
{
public:
    /** The maximum memory of all steps, in bytes; the oldest steps are dropped first. */
    static constexpr qsizetype defaultBound = 256 * 1024 * 1024;

    /** Lines from the index `at` on, and their replacement. */
    struct Hunk
    {
        qsizetype at = 0;
        QList<QByteArray> older;
        QList<QByteArray> newer;
    };

    explicit UndoHistory(qsizetype bound = defaultBound)
        : m_bound(bound)
    {}

    /** Restarts with this state, without steps or selection. */
    void reset(const DocumentSnapshot &state);

    /** The current state of the document. */
    const DocumentSnapshot &current() const { return m_current; }

    /** The selection of the current state, as set by select(). */
    const ItemSelection &selection() const { return m_selection; }

    /** Sets the selection of the current state. */
    void select(const ItemSelection &selection) { m_selection = selection; }

    /**
     * Records the state after an edit; returns false if it equals the current one. With
     * `sameGesture` it is merged into the last step, if there is one and nothing was undone since.
     * The selection of the new state is to be set with select().
     */
    bool record(const DocumentSnapshot &state, bool sameGesture = false);

    /** Replaces the current state without a step, if the number of items is the same. */
    void adopt(const DocumentSnapshot &state);

    bool canUndo() const { return !m_undo.isEmpty(); }
    bool canRedo() const { return !m_redo.isEmpty(); }

    /** Goes one step back. Callers check canUndo(). */
    void undo();
    /** Goes one step forward. Callers check canRedo(). */
    void redo();

    /**
     * The changes of the last undo() or redo(): several separate hunks with equal numbers of older
     * and newer lines, or a single one.
     */
    const QList<Hunk> &lastHunks() const { return m_lastApplied.hunks; }

    /** The memory of all steps, in bytes. */
    qsizetype cost() const { return m_cost; }

private:
    /**
     * The difference between two consecutive states: one hunk if the number of lines differs,
     * otherwise one for each run of changed lines.
     */
    struct Step
    {
        int olderPageCount = 0;
        int newerPageCount = 0;
        QList<Hunk> hunks;
        ItemSelection selection; ///< of the state to which the step leads, back or forward
        qsizetype cost() const;
    };

    static Step difference(const DocumentSnapshot &older, const DocumentSnapshot &newer);
    void applyBackward(const Step &step);
    void applyForward(const Step &step);
    void push(const Step &step);
    void exchangeSelection(Step &step);
    void dropRedo();

    qsizetype m_bound;
    qsizetype m_cost = 0;
    DocumentSnapshot m_current;
    ItemSelection m_selection;
    QList<Step> m_undo;
    QList<Step> m_redo;
    Step m_lastApplied; ///< in the direction in which it was applied, from `older` to `newer`
};
