#pragma once

#include "DocumentSnapshot.h"
#include "ItemSelection.h"

#include <QList>

/**
 * The states that a document went through, each with the selection that it had last. A step keeps
 * only the lines that it changed, and those are shared with the states on both sides of it. Pure
 * values: no window, no scene.
 */
class UndoHistory
{
public:
    /** At most this many bytes are kept in steps; the oldest steps go first. */
    static constexpr qsizetype defaultBound = 256 * 1024 * 1024;

    /** Lines from the index `at` on, and those that replaced them. */
    struct Hunk
    {
        qsizetype at = 0;
        QList<QByteArray> older;
        QList<QByteArray> newer;
    };

    explicit UndoHistory(qsizetype bound = defaultBound)
        : m_bound(bound)
    {}

    /** Begins anew with this state; no steps, and nothing selected. */
    void reset(const DocumentSnapshot &state);

    /** The state that the document is in. */
    const DocumentSnapshot &current() const { return m_current; }

    /** What is selected in the current state, as far as it was told. */
    const ItemSelection &selection() const { return m_selection; }

    /** Tells what is selected in the current state. */
    void select(const ItemSelection &selection) { m_selection = selection; }

    /**
     * Takes over the state after an edit; false if it is no other than the current one. With
     * `sameGesture` it joins the last step, if there is one and nothing was undone since. What
     * is selected in the new state remains to be told.
     */
    bool record(const DocumentSnapshot &state, bool sameGesture = false);

    /** Takes this for the current state, without a step, if it has as many items. */
    void adopt(const DocumentSnapshot &state);

    bool canUndo() const { return !m_undo.isEmpty(); }
    bool canRedo() const { return !m_redo.isEmpty(); }

    /** Goes a step back. Callers check that there is one. */
    void undo();
    /** Goes a step forward again. Callers check that there is one. */
    void redo();

    /**
     * What the last undo() or redo() replaced: several hunks with as many newer lines as older
     * ones and other lines between them, or a single one.
     */
    const QList<Hunk> &lastHunks() const { return m_lastApplied.hunks; }

    /** The bytes that the steps hold. */
    qsizetype cost() const { return m_cost; }

private:
    /**
     * The way between two neighbouring states: one hunk if lines came or went, otherwise one for
     * each run of lines that changed.
     */
    struct Step
    {
        int olderPageCount = 0;
        int newerPageCount = 0;
        QList<Hunk> hunks;
        ItemSelection selection; ///< of the state that the step leads to, back or forward
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
    Step m_lastApplied; ///< as it was gone through, from `older` to `newer`
};
