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
} // namespace

EditWatcher::EditWatcher(TonquillMainWin &window)
    : m_window(window)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &EditWatcher::check);
    QCoreApplication::instance()->installEventFilter(this);
    reset();
}

bool EditWatcher::eventFilter(QObject *watched, QEvent *event)
{
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
    m_history.reset(DocumentSnapshot::capture(m_window));
    Q_EMIT documentChanged();
}

void EditWatcher::check()
{
    if (DocumentSnapshot::isItemHeld(m_window))
        return;
    const DocumentSnapshot now = DocumentSnapshot::capture(m_window);
    if (now == m_history.current())
        return;
    m_history.record(now, continuesTyping());
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
    // What the toolkit tells differently after rebuilding, such as formatted text, is no edit.
    if (const auto shown =
            DocumentPatch::apply(m_window, m_history.lastHunks(), m_history.current())) {
        m_history.adopt(*shown);
    } else {
        const QList<qsizetype> selected = DocumentSnapshot::selectionOf(m_window);
        m_history.current().restore(m_window, m_history.followed(selected));
        m_history.adopt(DocumentSnapshot::capture(m_window));
    }
    Q_EMIT documentChanged();
}
