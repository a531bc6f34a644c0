#include "EditorWindow.h"
#include "ModalAnswer.h"
#include "PaintRecorder.h"
#include "ProbeItems.h"
#include "TestHost.h"
#include "TestMain.h"
#include "TonquillTextBlock.h"

#include <QKeyEvent>
#include <QTextCursor>

namespace
{
// The block is 241 by 60. Its text begins 4 units inside, its second anchor is its lower right.
const QString block =
    QStringLiteral("tonquill_textblock_begin 80 400 240 60\nabc\ntonquill_textblock_end\n");
constexpr QPointF inside(180, 430);
constexpr QPointF leftOfText(84.2, 410);
constexpr QPointF rightOfText(200, 410);
constexpr QPointF onItsAnchor(319, 458);
constexpr QPointF emptySpace(600, 600);
constexpr QPointF placeOfOther(500, 100);

constexpr int partsOfEditing[] = {Qt::TextSelectableByMouse, Qt::TextSelectableByKeyboard,
                                  Qt::TextEditable};
} // namespace

/**
 * The pointer and the keys while a block is edited on the page and another item is selected too:
 * inside the block the pointer belongs to the editor.
 */
class EditedTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pressInsideGoesToNothingElse_data();
    void pressInsideGoesToNothingElse();
    void pressInsidePutsTheTextCursor_data();
    void pressInsidePutsTheTextCursor();
    void pressElsewhereEndsEditing_data();
    void pressElsewhereEndsEditing();
    void moveInsideGoesToTheEditorAlone();
    void moveElsewhereGoesToAllSelected();
    void dragOutOfTheBlockMarksItsText_data();
    void dragOutOfTheBlockMarksItsText();
    void releaseInsideGoesToTheEditorAndThenOn_data();
    void releaseInsideGoesToTheEditorAndThenOn();
    void rightReleaseInsideOpensOneMenu_data();
    void rightReleaseInsideOpensOneMenu();
    void blockThatIsNotSelectedIsLikeAnyItem();
    void pressedKeyFitsTheBlock();
    void releasedKeyFitsTheBlock();

private:
    void sendKey(QEvent::Type type);
    void isFitted();
    bool isRubberBandShown();
    int documentsSent();

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<EditorWindow> m_editor;
    EventLog m_log;
    TonquillTextBlock *m_block = nullptr; ///< selected, and edited after a double click
    FramedProbe *m_other = nullptr;       ///< selected as well
};

void EditedTextTest::init()
{
    m_host = std::make_unique<TestHost>();
    m_editor = std::make_unique<EditorWindow>();
    QTRY_COMPARE(m_host->messages.size(), 1);
    m_block = m_editor->build<TonquillTextBlock>(block);
    m_block->setSelected(true); // by no click, with which it would keep a grab
    m_editor->pointer.doubleClick(inside);
    QCOMPARE(m_block->textInteractionFlags(), Qt::TextEditorInteraction);
    QVERIFY(m_block->hasFocus());
    m_other = new FramedProbe(m_log, "other");
    m_editor->scene().addItem(m_other);
    m_other->setPos(placeOfOther);
    m_other->setSelected(true);
    documentsSent();
    m_log.lines.clear();
}

/** The items go before the log that they write. */
void EditedTextTest::cleanup()
{
    m_editor.reset();
    m_host.reset();
}

bool EditedTextTest::isRubberBandShown()
{
    RecordingScreen screen(800, 800, QImage::Format_RGB32);
    QPainter painter(&screen);
    m_editor->scene().drawForeground(&painter, QRectF());
    return !screen.recorder().rects.isEmpty();
}

/** The documents that the host got since it was last asked; -1 if it gets nothing any more. */
int EditedTextTest::documentsSent()
{
    m_editor->window.OnToolBar1ButtonUndo();
    const bool cameAll =
        QTest::qWaitFor([this] { return m_host->messages.join("").endsWith("command:undo"); });
    const auto documents = m_host->messages.join("").count("tonquill2tw tonquill_pagecount");
    m_host->messages.clear();
    return cameAll ? int(documents) : -1;
}

void EditedTextTest::pressInsideGoesToNothingElse_data()
{
    QTest::addColumn<int>("flags");
    QTest::newRow("all of editing") << int(Qt::TextEditorInteraction);
    for (const int part : partsOfEditing)
        QTest::addRow("only %d of it", part) << part;
}

void EditedTextTest::pressInsideGoesToNothingElse()
{
    QFETCH(int, flags);
    m_block->setTextInteractionFlags(Qt::TextInteractionFlags(flags));
    m_editor->pointer.press(inside);
    QCOMPARE(m_log.takeAll(), QStringList());
    QCOMPARE(int(m_block->textInteractionFlags()), flags);
    QVERIFY(m_block->isSelected());
    QVERIFY(m_other->isSelected());
    QVERIFY(!isRubberBandShown());
}

void EditedTextTest::pressInsidePutsTheTextCursor_data()
{
    QTest::addColumn<bool>("otherHasGrab");
    QTest::newRow("at once") << false;
    QTest::newRow("after another block was dragged, which keeps the grab") << true;
}

void EditedTextTest::pressInsidePutsTheTextCursor()
{
    QFETCH(bool, otherHasGrab);
    if (otherHasGrab) {
        auto *dragged = new TonquillTextBlock(false, "la", QRectF(0, 0, 50, 50));
        m_editor->scene().addNewItem(dragged);
        dragged->grabMouse();
    }
    QTextCursor cursor = m_block->textCursor();
    cursor.setPosition(3);
    m_block->setTextCursor(cursor);
    m_editor->pointer.press(leftOfText);
    QCOMPARE(m_block->textCursor().position(), 0);
    m_editor->pointer.press(rightOfText);
    QCOMPARE(m_block->textCursor().position(), 3);
    QCOMPARE(m_log.takeAll(), QStringList());
    QCOMPARE(m_block->itemStatus(), 0);
    QVERIFY(TonquillTextBlock::isEdited(*m_block));
}

void EditedTextTest::pressElsewhereEndsEditing_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QPointF>("point");
    const int editing = Qt::TextEditorInteraction;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        QTest::addRow("button %d on the page", button) << editing << button << emptySpace;
        QTest::addRow("button %d on an item", button) << editing << button << placeOfOther;
        // Its frame is 5 units wider than the block.
        QTest::addRow("button %d on its frame", button) << editing << button << QPointF(78, 420);
    }
    for (const int part : partsOfEditing)
        QTest::addRow("only %d of editing", part) << part << Qt::RightButton << emptySpace;
}

void EditedTextTest::pressElsewhereEndsEditing()
{
    QFETCH(int, flags);
    QFETCH(Qt::MouseButton, button);
    QFETCH(QPointF, point);
    m_block->setTextInteractionFlags(Qt::TextInteractionFlags(flags));
    m_editor->pointer.press(point, button);
    QCOMPARE(int(m_block->textInteractionFlags()), int(Qt::NoTextInteraction));
}

/** Dragging across the letters selects them, and drags nothing. */
void EditedTextTest::moveInsideGoesToTheEditorAlone()
{
    m_editor->pointer.press(leftOfText);
    m_editor->pointer.moveTo(rightOfText);
    QCOMPARE(m_block->textCursor().selectedText(), QString("abc"));
    QCOMPARE(m_block->pos(), QPointF(80, 400));
    QCOMPARE(m_log.takeAll(), QStringList());
}

void EditedTextTest::moveElsewhereGoesToAllSelected()
{
    m_editor->pointer.press(leftOfText);
    m_editor->pointer.moveTo(emptySpace);
    QCOMPARE(m_log.takeAll(), QStringList{"other move"});
    QCOMPARE(m_block->pos(), QPointF(80, 400));
}

void EditedTextTest::dragOutOfTheBlockMarksItsText_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<QString>("marked");
    QTest::newRow("beyond the right edge") << leftOfText << QPointF(430, 410) << "abc";
    QTest::newRow("beyond the left edge") << rightOfText << leftOfText - QPointF(60, 0) << "abc";
    QTest::newRow("above") << rightOfText << leftOfText - QPointF(0, 90) << "abc";
    // The record has given the text a line break at its end.
    QTest::newRow("below") << leftOfText << rightOfText + QPointF(0, 90)
                           << QString("abc") + QChar(QChar::ParagraphSeparator);
}

void EditedTextTest::dragOutOfTheBlockMarksItsText()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    m_editor->pointer.drag(from, to);
    QTEST(m_block->textCursor().selectedText(), "marked");
    QCOMPARE(m_block->pos(), QPointF(80, 400));
    QCOMPARE(m_block->itemStatus(), 0);
    QVERIFY(TonquillTextBlock::isEdited(*m_block));
}

void EditedTextTest::releaseInsideGoesToTheEditorAndThenOn_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QStringList>("forwarded");
    QTest::newRow("its text") << inside << QStringList{"other release"};
    QTest::newRow("its anchor") << onItsAnchor << QStringList();
}

/** The grab that came with the press goes with a release that reaches the editor. */
void EditedTextTest::releaseInsideGoesToTheEditorAndThenOn()
{
    QFETCH(QPointF, point);
    QFETCH(QStringList, forwarded);
    m_editor->pointer.press(inside);
    QCOMPARE(m_editor->scene().mouseGrabberItem(), m_block);
    m_editor->pointer.release(point);
    QCOMPARE(m_editor->scene().mouseGrabberItem(), nullptr);
    QCOMPARE(m_log.takeAll(), forwarded);
    QCOMPARE(documentsSent(), 1);
    QCOMPARE(m_block->textInteractionFlags(), Qt::TextEditorInteraction);
}

void EditedTextTest::rightReleaseInsideOpensOneMenu_data()
{
    QTest::addColumn<bool>("hasGrab");
    QTest::newRow("without the grab") << false;
    QTest::newRow("with the grab of an earlier drag") << true;
}

void EditedTextTest::rightReleaseInsideOpensOneMenu()
{
    QFETCH(bool, hasGrab);
    if (hasGrab)
        m_block->grabMouse();
    const int opened = ModalAnswer::menusDuring([this] {
        m_editor->pointer.press(inside, Qt::RightButton);
        m_editor->pointer.release(inside, Qt::RightButton);
    });
    QCOMPARE(opened, 1);
    QCOMPARE(documentsSent(), 0);
}

void EditedTextTest::blockThatIsNotSelectedIsLikeAnyItem()
{
    m_block->setSelected(false);
    m_editor->pointer.press(inside);
    QVERIFY(m_block->isSelected());
    QCOMPARE(m_log.takeAll(), QStringList{"other press"});

    m_editor->pointer.release(inside);
    m_block->setSelected(false);
    m_editor->pointer.moveTo(inside);
    m_editor->pointer.press(emptySpace);
    QCOMPARE(m_block->textInteractionFlags(), Qt::TextEditorInteraction);
}

void EditedTextTest::sendKey(QEvent::Type type)
{
    QKeyEvent event(type, Qt::Key_W, Qt::NoModifier, "w");
    QCoreApplication::sendEvent(&m_editor->scene(), &event);
}

/** The block is as large as its text, and its frame's lower right anchor is in its corner. */
void EditedTextTest::isFitted()
{
    const QRectF text = m_block->QGraphicsTextItem::boundingRect();
    QCOMPARE(m_block->boundingRect(), text);
    QPointF anchor;
    QCOMPARE(ItemProbe::frameOf(*m_block)->getAnchor(text.bottomRight(), anchor), 1);
    QCOMPARE(anchor, text.bottomRight());
}

void EditedTextTest::pressedKeyFitsTheBlock()
{
    QTextCursor cursor = m_block->textCursor();
    cursor.setPosition(3);
    m_block->setTextCursor(cursor);
    sendKey(QEvent::KeyPress);
    isFitted();
    const double narrow = m_block->boundingRect().width();
    sendKey(QEvent::KeyPress);
    QVERIFY(m_block->boundingRect().width() > narrow);
    isFitted();
}

void EditedTextTest::releasedKeyFitsTheBlock()
{
    QCOMPARE(m_block->boundingRect(), QRectF(0, 0, 241, 60));
    sendKey(QEvent::KeyRelease);
    QCOMPARE(m_block->toPlainText(), QString("abc\n"));
    isFitted();
}

TONQUILL_TEST_MAIN(EditedTextTest)
#include "tst_editedtext.moc"
