#include "EditWatcher.h"

#include "DocumentPatch.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillTextBlock.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace
{
/** A pause of this many milliseconds ends a run of typing. */
constexpr qint64 pauseInTyping = 2000;

/** The block that is being edited in place, or null. */
TonquillTextBlock *editedBlock(const TonquillScene &scene)
{
    auto *block = qgraphicsitem_cast<TonquillTextBlock *>(scene.focusItem());
    return block && TonquillTextBlock::isEdited(*block) ? block : nullptr;
}

bool isAutoRepeat(const QEvent &event)
{
    return static_cast<const QKeyEvent &>(event).isAutoRepeat();
}

/** True if an edit may be complete once this event has been handled. */
bool endsEdit(const QObject &watched, const QEvent &event)
{
    switch (event.type()) {
    case QEvent::KeyRelease:
        return !isAutoRepeat(event);
    case QEvent::MouseButtonRelease:
    case QEvent::FocusOut:
    case QEvent::WindowDeactivate:
        return true;
    case QEvent::Hide: // a menu, a dialog
        return watched.isWidgetType() && static_cast<const QWidget &>(watched).isWindow();
    default:
        return false;
    }
}

bool isInput(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
        return true;
    case QEvent::MouseMove:
        return static_cast<const QMouseEvent &>(event).buttons() != Qt::NoButton;
    default:
        return false;
    }
}

/** True if this event, not yet handled, may change the document. */
bool beginsEdit(const QEvent &event)
{
    return event.type() == QEvent::MouseButtonPress ||
           (event.type() == QEvent::KeyPress && !isAutoRepeat(event));
}
} // namespace

EditWatcher::EditWatcher(TonquillMainWin &window)
    : m_window(window)
    , m_mirror(window)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &EditWatcher::check);
    connect(window.scene, &QGraphicsScene::selectionChanged, this,
            [this] { m_selectionChanged = true; });
    QCoreApplication::instance()->installEventFilter(this);
    reset();
}

bool EditWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (beginsEdit(*event))
        noteSelection();
    if (endsEdit(*watched, *event))
        checkSoon();
    if (isInput(*event))
        Q_EMIT touched();
    return false;
}

void EditWatcher::checkSoon()
{
    m_soon.start();
}

void EditWatcher::reset()
{
    m_soon.stop();
    m_typedIn.clear();
    m_mirror.readAll();
    m_history.reset(m_mirror.document());
    rememberSelection();
    Q_EMIT documentChanged();
}

const DocumentSnapshot &EditWatcher::documentNow()
{
    m_mirror.refresh();
    return m_mirror.document();
}

/** The current selection, in indices of the mirror's document. */
ItemSelection EditWatcher::selection() const
{
    return m_mirror.selectionOf(m_window.scene->selectedItems());
}

/** Notes the selection while the document is unchanged since the last check. */
void EditWatcher::noteSelection()
{
    if (!m_selectionChanged || m_soon.isActive())
        return;
    m_noted = selection();
    m_selectionChanged = false;
}

/** Stores the current selection with the current state. */
void EditWatcher::rememberSelection()
{
    m_history.select(selection());
    m_noted.reset();
    m_selectionChanged = false;
}

/** True if no items were added or removed and all changed ones are selected. */
bool EditWatcher::isEditOfSelection() const
{
    const DocumentSnapshot &older = m_history.current();
    const DocumentSnapshot &newer = m_mirror.document();
    if (older.items.size() != newer.items.size() || older.pageCount != newer.pageCount)
        return false;
    for (const LineList::Change &change : LineList::changes(older.items, newer.items)) {
        for (qsizetype i = change.at; i < change.at + change.newerCount; ++i) {
            if (!m_mirror.itemAt(i)->isSelected())
                return false;
        }
    }
    return true;
}

void EditWatcher::check()
{
    if (DocumentSnapshot::isItemHeld(m_window))
        return;
    if (documentNow() == m_history.current()) {
        // Query the selection only if needed: this also runs for keys that change nothing.
        if (m_selectionChanged || m_noted)
            rememberSelection();
        return;
    }
    // A drag often begins with the press that selects its items; take that selection.
    if (isEditOfSelection())
        m_history.select(selection());
    else if (m_noted)
        m_history.select(*m_noted);
    m_history.record(m_mirror.document(), continuesTyping());
    rememberSelection();
    m_typedIn = editedBlock(*m_window.scene);
    m_sinceTyped.start();
    Q_EMIT documentChanged();
}

bool EditWatcher::continuesTyping()
{
    const TonquillTextBlock *block = editedBlock(*m_window.scene);
    return block && block == m_typedIn && !m_sinceTyped.hasExpired(pauseInTyping);
}

bool EditWatcher::undo()
{
    check();
    if (!m_history.canUndo())
        return false;
    m_history.undo();
    showCurrent();
    return true;
}

bool EditWatcher::redo()
{
    check();
    if (!m_history.canRedo())
        return false;
    m_history.redo();
    showCurrent();
    return true;
}

void EditWatcher::showCurrent()
{
    m_typedIn.clear();
    const DocumentSnapshot wanted = m_history.current();
    const ItemSelection selected = m_history.selection();
    if (!DocumentPatch::apply(m_window, m_mirror, m_history.lastHunks(), wanted, selected))
        wanted.restore(m_window, selected);
    // Differences after rebuilding, such as in Qt's formatted text, are not edits.
    m_history.adopt(documentNow());
    rememberSelection();
    Q_EMIT documentChanged();
}
