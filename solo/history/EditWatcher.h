#pragma once

#include "DocumentMirror.h"
#include "UndoHistory.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <optional>

class TonquillMainWin;

/**
 * Detects the user's edits, and undoes and redoes them.
 *
 * The editor reports finished pointer edits and deletions only, so after everything that can end an
 * edit the document is compared with the last known state: the editor's messages, the release of a
 * key or button, a closed menu or dialog, a change of focus. A run of typing in one block is one
 * step, and so is a key that is held down.
 *
 * Selecting is not an edit, but each state keeps its selection: undo and redo restore the selection
 * that the document last had in that state.
 */
class EditWatcher : public QObject
{
    Q_OBJECT

public:
    /** Watches `window`, which outlives the watcher. */
    explicit EditWatcher(TonquillMainWin &window);

    /** Restarts with the document in the window, without steps. */
    void reset();

    /** The document after the last finished edit. */
    const DocumentSnapshot &document() const { return m_history.current(); }

    /** The current document, including an unfinished edit. */
    const DocumentSnapshot &documentNow();

    /** Goes one step back or forward; false if there is none. */
    bool undo();
    bool redo();

public Q_SLOTS:
    /** Records changes as a step, unless the pointer is holding an item. */
    void check();

    /** Calls check() once the pending events have been handled. */
    void checkSoon();

Q_SIGNALS:
    /** The document changed by an edit, undo, redo or reset. */
    void documentChanged();

    /** There was input that may become an edit. */
    void touched();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showCurrent();
    bool continuesTyping();
    void noteSelection();
    void rememberSelection();
    ItemSelection selection() const;
    bool isEditOfSelection() const;

    TonquillMainWin &m_window;
    DocumentMirror m_mirror;
    UndoHistory m_history;
    QTimer m_soon;
    QPointer<QObject> m_typedIn; ///< the block in which the last step typed
    QElapsedTimer m_sinceTyped;
    std::optional<ItemSelection> m_noted; ///< newer selection of the current state than in the
                                          ///< history
    bool m_selectionChanged = false;      ///< since it was noted or stored
};
