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
 * Finds out what the user's edits are, and takes them back.
 *
 * The editor reports finished pointer edits and deletions only, so after everything that can end
 * an edit the document is compared with the last known state: the editor's messages, the release of
 * a key or button, a closed menu or dialog, a change of focus. A run of typing in one block is
 * one step, and so is a key that is held down.
 *
 * What is selected is no edit, but is kept with each state: undo and redo select what was selected
 * when the document was last like that.
 */
class EditWatcher : public QObject
{
    Q_OBJECT

public:
    /** Watches `window`, which outlives the watcher. */
    explicit EditWatcher(TonquillMainWin &window);

    /** Begins anew with what the window shows; no steps. */
    void reset();

    /** The document after the last finished edit. */
    const DocumentSnapshot &document() const { return m_history.current(); }

    /** The document as it is now, in the middle of an edit or not. */
    const DocumentSnapshot &documentNow();

    /** Goes one step back or forward; false if there is none. */
    bool undo();
    bool redo();

public Q_SLOTS:
    /** Records what has changed, unless the pointer is holding an item. */
    void check();

    /** Checks as soon as the events at hand are dealt with. */
    void checkSoon();

Q_SIGNALS:
    /** The document is another one: after an edit, undo, redo or reset. */
    void documentChanged();

    /** The user did something that may become an edit. */
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
    QPointer<QObject> m_typedIn; ///< the block that the last step typed in
    QElapsedTimer m_sinceTyped;
    std::optional<ItemSelection> m_noted; ///< in the current state, later than the history knows
    bool m_selectionChanged = false;      ///< since it was noted or remembered
};
