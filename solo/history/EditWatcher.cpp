#include "EditWatcher.h"

#include "DocumentPatch.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillTextBlock.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSet>
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

/** True if an edit may be complete once this event is dealt with. */
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

/** True if this event may change the document, which it has not done yet. */
bool beginsEdit(const QEvent &event)
{
    return event.type() == QEvent::MouseButtonPress ||
           (event.type() == QEvent::KeyPress && !isAutoRepeat(event));
}

/** True if no item came or went, and those that are another way now are all selected. */
bool isEditOfSelection(const DocumentSnapshot &older, const DocumentSnapshot &newer,
                       const QList<QGraphicsItem *> &items)
{
    if (older.items.size() != newer.items.size() || older.pageCount != newer.pageCount)
        return false;
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (!items[i]->isSelected() && older.items[i] != newer.items[i])
            return false;
    }
    return true;
}

ItemSelection selectionAmong(const QList<QGraphicsItem *> &items,
                             const QList<QGraphicsItem *> &selected)
{
    const QSet<QGraphicsItem *> wanted(selected.cbegin(), selected.cend());
    ItemSelection result;
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (wanted.contains(items[i]))
            result.append(i);
    }
    return result;
}
} // namespace

EditWatcher::EditWatcher(TonquillMainWin &window)
    : m_window(window)
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
    QList<QGraphicsItem *> items;
    m_history.reset(DocumentSnapshot::capture(m_window, &items));
    remember(items);
    Q_EMIT documentChanged();
}

/** What is selected while the document is still as it was at the last check. */
void EditWatcher::noteSelection()
{
    if (!m_selectionChanged || m_soon.isActive())
        return;
    m_noted = m_window.scene->selectedItems();
    m_selectionChanged = false;
}

/** These are the items of the current state, and those of them that are selected its selection. */
void EditWatcher::remember(const QList<QGraphicsItem *> &items)
{
    m_items = items;
    m_history.select(ItemSelection::of(items));
    m_noted.reset();
    m_selectionChanged = false;
}

void EditWatcher::check()
{
    if (DocumentSnapshot::isItemHeld(m_window))
        return;
    QList<QGraphicsItem *> items;
    const DocumentSnapshot now = DocumentSnapshot::capture(m_window, &items);
    if (now == m_history.current()) {
        m_items = items;
        // To ask every item would make a key that changes nothing slower.
        if (m_selectionChanged || m_noted)
            remember(items);
        return;
    }
    // A drag often begins with the press that selects what it moves, and nobody saw that alone.
    if (isEditOfSelection(m_history.current(), now, items))
        m_history.select(ItemSelection::of(items));
    else if (m_noted)
        m_history.select(selectionAmong(m_items, *m_noted));
    m_history.record(now, continuesTyping());
    remember(items);
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
    // What Qt tells differently after rebuilding, such as formatted text, is no edit.
    const DocumentSnapshot wanted = m_history.current();
    const ItemSelection selection = m_history.selection();
    if (const auto shown =
            DocumentPatch::apply(m_window, m_history.lastHunks(), wanted, selection)) {
        m_history.adopt(shown->document);
        remember(shown->items);
    } else {
        wanted.restore(m_window, selection);
        QList<QGraphicsItem *> items;
        m_history.adopt(DocumentSnapshot::capture(m_window, &items));
        remember(items);
    }
    Q_EMIT documentChanged();
}
