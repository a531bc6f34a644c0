#include "Logging.h"
#include "TonquillScene.h"
#include "TonquillTextBlock.h"

#include <QGraphicsTextItem>
#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>

namespace
{
constexpr qreal nudge = 1.0;
constexpr int pasteOffset = 30;

/** Letters, digits and punctuation; letters have the key codes of their upper-case forms. */
bool startsQuickText(int key)
{
    return key >= Qt::Key_Space && key <= Qt::Key_Z;
}

QPointF nudgeBy(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return QPointF(-nudge, 0);
    case Qt::Key_Right:
        return QPointF(nudge, 0);
    case Qt::Key_Up:
        return QPointF(0, -nudge);
    case Qt::Key_Down:
        return QPointF(0, nudge);
    default:
        return QPointF();
    }
}

/**
 * Whether Ctrl is held when the focus arrives for this reason. Within the window the last event
 * tells; coming from a menu or another window, the keyboard has to be queried.
 */
bool isCtrlHeld(Qt::FocusReason reason)
{
    const bool cameFromOutside =
        reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
    const Qt::KeyboardModifiers held = cameFromOutside ? QGuiApplication::queryKeyboardModifiers()
                                                       : QGuiApplication::keyboardModifiers();
    return held.testFlag(Qt::ControlModifier);
}

bool isTextBeingEdited(const QGraphicsItem *item)
{
    // In two steps, which are fast for the many items that are not texts.
    const QGraphicsObject *object = item ? item->toGraphicsObject() : nullptr;
    const auto *text = qobject_cast<const QGraphicsTextItem *>(object);
    return text && TonquillTextBlock::isEdited(*text);
}
} // namespace

void TonquillScene::keyPressEvent(QKeyEvent *event)
{
    qCDebug(lcPointer) << "key press" << event->key() << event->isAutoRepeat();
    m_clipboardKeys.press(*event);
    if (event->key() == Qt::Key_Control) {
        m_context->setRestMode(true);
        return;
    }
    if (m_context->isQuickTextOn() && startsQuickText(event->key())) {
        if (!isAnyItemEdited())
            startQuickTextBlock();
        QGraphicsScene::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_F5) {
        m_context->setQuickText(!m_context->isQuickTextOn());
        if (!m_context->isQuickTextOn())
            m_quickTextBlock.clear();
        return;
    }
    const QPointF step = nudgeBy(event->key());
    if (!step.isNull()) {
        if (isSelectedItemEdited()) {
            // The arrow keys move the text cursor of the edited item.
            QGraphicsScene::keyReleaseEvent(event);
            return;
        }
        for (QGraphicsItem *item : selectedItems())
            item->setPos(item->pos() + step);
    }
    QGraphicsScene::keyPressEvent(event);
}

/** For changes of Ctrl without a key event. */
void TonquillScene::adjustRestMode(bool isCtrlHeld)
{
    if (m_context->isRestModeOn() != isCtrlHeld)
        m_context->setRestMode(isCtrlHeld);
}

/** Adds the block that receives the typed text at the pointer. It begins with one space. */
void TonquillScene::startQuickTextBlock()
{
    auto *block = new TonquillTextBlock(false, QStringLiteral(" "), QRectF(0, 0, 0, 0));
    m_quickTextBlock = block;
    addNewItem(block);
    block->setPos(cursorPosition());
    block->setSelected(true);
    block->setTextInteractionFlags(Qt::TextEditorInteraction);
    block->setFocus();
    block->adjustSize();
    block->updateFrame();
}

void TonquillScene::keyReleaseEvent(QKeyEvent *event)
{
    qCDebug(lcPointer) << "key release" << event->key() << event->isAutoRepeat();
    const int key = event->key();
    const QKeySequence::StandardKey clipboardCommand = m_clipboardKeys.release(*event);
    bool isDone = false;
    if (key == Qt::Key_Delete || key == Qt::Key_Backspace) {
        isDone = deleteSelection();
    } else if (clipboardCommand == QKeySequence::Copy) {
        isDone = copySelection();
    } else if (clipboardCommand == QKeySequence::Paste) {
        isDone = pasteCopies();
    } else if (key == Qt::Key_Space) {
        isDone = addSameItem();
    } else if (key == Qt::Key_Control) {
        m_context->setRestMode(false);
        isDone = true;
    }
    // An edited text has already handled copy or paste when the key was pressed.
    if (!isDone)
        QGraphicsScene::keyReleaseEvent(event);
}

/** The focus returns. Ctrl may have been pressed or released elsewhere in the meantime. */
void TonquillScene::focusInEvent(QFocusEvent *event)
{
    adjustRestMode(isCtrlHeld(event->reason()));
    QGraphicsScene::focusInEvent(event);
}

/** The focus is lost, and with it the release of Ctrl. After a menu it returns. */
void TonquillScene::focusOutEvent(QFocusEvent *event)
{
    m_clipboardKeys.forgetPresses();
    if (event->reason() != Qt::PopupFocusReason)
        adjustRestMode(false);
    QGraphicsScene::focusOutEvent(event);
}

/** Checks the likely items first: while text is typed, it is one of them. */
bool TonquillScene::isAnyItemEdited() const
{
    if (isTextBeingEdited(focusItem()) || isSelectedItemEdited())
        return true;
    const QList<QGraphicsItem *> all = items();
    return std::any_of(all.cbegin(), all.cend(), isTextBeingEdited);
}

bool TonquillScene::isSelectedItemEdited() const
{
    const QList<QGraphicsItem *> selected = selectedItems();
    return std::any_of(selected.cbegin(), selected.cend(), isTextBeingEdited);
}

bool TonquillScene::deleteSelection()
{
    if (isSelectedItemEdited())
        return false;
    const QList<QGraphicsItem *> selected = selectedItems();
    if (!selected.isEmpty()) {
        destroyItems(selected);
        m_context->editFinished();
    }
    return true;
}

/** The copy buffer is never emptied: a paste adds everything that was copied so far. */
bool TonquillScene::copySelection()
{
    if (isAnyItemEdited())
        return false;
    qCDebug(lcTonquill) << "copy items";
    for (QGraphicsItem *item : selectedItems()) {
        if (QObject *object = ItemReference::objectOf(item))
            m_copyBuffer.append(recordOf(object));
    }
    return true;
}

bool TonquillScene::pasteCopies()
{
    if (isAnyItemEdited())
        return false;
    onPaste();
    return true;
}

void TonquillScene::onPaste()
{
    qCDebug(lcTonquill) << "paste items";
    const QStringList records = m_copyBuffer;
    for (const QString &record : records)
        constructItem(record, false, pasteOffset);
}

/** Adds another item like the last one, which follows the pointer. */
bool TonquillScene::addSameItem()
{
    if (isAnyItemEdited())
        return false;
    if (m_lastAdded.get(this)) {
        const QString record = recordOf(m_lastAdded.object());
        qCDebug(lcRecords) << "params=" << record;
        constructItem(record, true, atCursor);
    }
    return true;
}
