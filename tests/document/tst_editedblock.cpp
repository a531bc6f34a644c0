#include "EditorWindow.h"
#include "ProbeItems.h"
#include "TestMain.h"
#include "TonquillTextBlock.h"

#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QTextCursor>

namespace
{
// The block covers (100, 200) to (341, 260); its text begins 4 units inside, behind an edge by
// which Qt lets a text be moved.
constexpr QPointF placeOfBlock(100, 200);
constexpr QPointF startOfText(105, 212);
constexpr QPointF behindText(320, 212);
constexpr QPointF beyondBlock(450, 212);
constexpr QPointF placeOfProbe(500, 400);
constexpr QPointF emptySpace(600, 100);
} // namespace

/** What the pointer and the keys do while a block is edited, with another item selected too. */
class EditedBlockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pressInsideGoesToTheEditorOnly();
    void moveInsideGoesToTheEditorOnly();
    void releaseInsideReachesTheEditor();
    void dragOutOfTheBlockMarksItsText_data();
    void dragOutOfTheBlockMarksItsText();
    void pressElsewhereEndsEditing_data();
    void pressElsewhereEndsEditing();
    void pressedKeyFitsTheBlock();
    void releasedKeyFitsTheBlock();

private:
    void sendKey(QEvent::Type type);
    void isFitted();

    EventLog m_log;
    std::unique_ptr<EditorWindow> m_editor;
    TonquillTextBlock *m_block = nullptr;
};

void EditedBlockTest::init()
{
    m_editor = std::make_unique<EditorWindow>();
    m_block = new TonquillTextBlock(false, "verse", QRectF(0, 0, 240, 60));
    m_editor->scene().addNewItem(m_block);
    m_block->setPos(placeOfBlock);
    m_block->setSelected(true);
    m_editor->pointer.doubleClick(behindText);
    QVERIFY(TonquillTextBlock::isEdited(*m_block));
    // A press on the word that the double click marked would begin to drag the word.
    QTextCursor cursor = m_block->textCursor();
    cursor.clearSelection();
    m_block->setTextCursor(cursor);
    auto *probe = new FramedProbe(m_log, "probe");
    m_editor->scene().addItem(probe);
    probe->setPos(placeOfProbe);
    probe->setSelected(true);
    m_log.lines.clear();
}

/** The items go before the log that they write. */
void EditedBlockTest::cleanup()
{
    m_editor->scene().clearScene();
    m_editor.reset();
}

void EditedBlockTest::pressInsideGoesToTheEditorOnly()
{
    m_editor->pointer.press(startOfText);
    QCOMPARE(m_block->textCursor().position(), 0);
    m_editor->pointer.press(behindText);
    QCOMPARE(m_block->textCursor().position(), 5);
    QCOMPARE(m_log.takeAll(), QStringList());
    QCOMPARE(m_block->itemStatus(), 0);
    QVERIFY(TonquillTextBlock::isEdited(*m_block));
}

void EditedBlockTest::moveInsideGoesToTheEditorOnly()
{
    m_editor->pointer.press(startOfText);
    m_editor->pointer.moveTo(behindText);
    QCOMPARE(m_block->textCursor().selectedText(), QString("verse"));
    QCOMPARE(m_log.takeAll(), QStringList());
    m_editor->pointer.moveTo(beyondBlock);
    QCOMPARE(m_log.takeAll(), QStringList{"probe move"});
}

void EditedBlockTest::releaseInsideReachesTheEditor()
{
    m_editor->pointer.press(startOfText);
    QCOMPARE(m_editor->scene().mouseGrabberItem(), m_block);
    m_editor->pointer.release(startOfText);
    QCOMPARE(m_editor->scene().mouseGrabberItem(), nullptr);
    QCOMPARE(m_log.takeAll(), QStringList{"probe release"});
}

void EditedBlockTest::dragOutOfTheBlockMarksItsText_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::newRow("beyond the right edge") << startOfText << beyondBlock;
    QTest::newRow("beyond the left edge") << behindText << startOfText - QPointF(60, 0);
    QTest::newRow("above") << behindText << startOfText - QPointF(0, 90);
    QTest::newRow("below") << startOfText << behindText + QPointF(0, 90);
}

void EditedBlockTest::dragOutOfTheBlockMarksItsText()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    m_editor->pointer.drag(from, to);
    QCOMPARE(m_block->textCursor().selectedText(), QString("verse"));
    QCOMPARE(m_block->pos(), placeOfBlock);
    QCOMPARE(m_block->itemStatus(), 0);
    QVERIFY(TonquillTextBlock::isEdited(*m_block));
}

void EditedBlockTest::pressElsewhereEndsEditing_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("paper") << emptySpace << Qt::LeftButton;
    QTest::newRow("another item") << placeOfProbe << Qt::LeftButton;
    QTest::newRow("paper, right button") << emptySpace << Qt::RightButton;
    QTest::newRow("paper, middle button") << emptySpace << Qt::MiddleButton;
}

void EditedBlockTest::pressElsewhereEndsEditing()
{
    QFETCH(QPointF, point);
    QFETCH(Qt::MouseButton, button);
    m_editor->pointer.press(point, button);
    QCOMPARE(m_block->textInteractionFlags(), Qt::NoTextInteraction);
}

void EditedBlockTest::sendKey(QEvent::Type type)
{
    QKeyEvent event(type, Qt::Key_W, Qt::NoModifier, "w");
    QCoreApplication::sendEvent(&m_editor->scene(), &event);
}

/** The block is as large as its text, and its frame's lower right anchor is in its corner. */
void EditedBlockTest::isFitted()
{
    const QRectF text = m_block->QGraphicsTextItem::boundingRect();
    QCOMPARE(m_block->boundingRect(), text);
    QPointF anchor;
    QCOMPARE(ItemProbe::frameOf(*m_block)->getAnchor(text.bottomRight(), anchor), 1);
    QCOMPARE(anchor, text.bottomRight());
}

void EditedBlockTest::pressedKeyFitsTheBlock()
{
    sendKey(QEvent::KeyPress);
    isFitted();
    const double narrow = m_block->boundingRect().width();
    sendKey(QEvent::KeyPress);
    QVERIFY(m_block->boundingRect().width() > narrow);
    isFitted();
}

void EditedBlockTest::releasedKeyFitsTheBlock()
{
    QCOMPARE(m_block->boundingRect(), QRectF(0, 0, 241, 60));
    sendKey(QEvent::KeyRelease);
    QCOMPARE(m_block->toPlainText(), QString("verse"));
    isFitted();
}

TONQUILL_TEST_MAIN(EditedBlockTest)
#include "tst_editedblock.moc"
