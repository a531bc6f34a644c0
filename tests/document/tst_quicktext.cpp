#include "EditorWindow.h"
#include "TestMain.h"
#include "TonquillTextBlock.h"

#include <QKeyEvent>
#include <QTextDocument>

namespace
{
constexpr QPointF emptySpace(600, 600);

void sendLetter(QObject &receiver, char letter)
{
    QKeyEvent press(QEvent::KeyPress, letter - 'a' + Qt::Key_A, Qt::NoModifier, QString(letter));
    QCoreApplication::sendEvent(&receiver, &press);
    QKeyEvent release(QEvent::KeyRelease, press.key(), Qt::NoModifier, press.text());
    QCoreApplication::sendEvent(&receiver, &release);
}
} // namespace

/** The block that opens where somebody types in quick text mode. */
class QuickTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newBlockIsAsLargeAsItsText();
    void followsThePointerInQuickTextModeOnly();
    void endedModeForgetsIt();
    void otherButtonsLeaveIt_data();
    void otherButtonsLeaveIt();
    void leftPressEndsItsEditing_data();
    void leftPressEndsItsEditing();

private:
    TonquillTextBlock *typeALetter(EditorWindow &editor);
};

/** Types into a document without a text; the block of the letter stands at the pointer. */
TonquillTextBlock *QuickTextTest::typeALetter(EditorWindow &editor)
{
    QTest::keyClick(&editor.view(), Qt::Key_F5);
    editor.putCursorOnPage();
    sendLetter(editor.view(), 'd');
    return qgraphicsitem_cast<TonquillTextBlock *>(ItemProbe::onlyItem(editor.scene()));
}

/** The letter, which would fit the block to itself, goes to an item that has grabbed the keys. */
void QuickTextTest::newBlockIsAsLargeAsItsText()
{
    EditorWindow editor;
    QGraphicsItem *grabber = editor.scene().addRect(QRectF(0, 0, 9, 9));
    grabber->grabKeyboard();
    editor.window.onQuickTextAction(true);
    sendLetter(editor.scene(), 'd');
    const QList<QGraphicsItem *> all = ItemProbe::documentItems(editor.scene());
    QCOMPARE(all.size(), 2);
    auto *block = qgraphicsitem_cast<TonquillTextBlock *>(all.constFirst());
    QVERIFY(block);
    QCOMPARE(block->toPlainText(), QString(" "));

    QGraphicsTextItem blank;
    blank.setFont(block->font());
    blank.setPlainText(" ");
    blank.adjustSize();
    QCOMPARE(block->textWidth(), blank.textWidth());
    QCOMPARE(block->boundingRect(), blank.boundingRect());
    QPointF anchor;
    QCOMPARE(ItemProbe::frameOf(*block)->getAnchor(block->boundingRect().topLeft(), anchor), 0);
    QCOMPARE(anchor, blank.boundingRect().topLeft());
    QCOMPARE(ItemProbe::frameOf(*block)->getAnchor(block->boundingRect().bottomRight(), anchor), 1);
    QCOMPARE(anchor, blank.boundingRect().bottomRight());
}

/** The menu entry ends the mode without forgetting the block, as F5 does. */
void QuickTextTest::followsThePointerInQuickTextModeOnly()
{
    EditorWindow editor;
    const TonquillTextBlock *block = typeALetter(editor);
    editor.pointer.moveTo(QPointF(300, 310));
    QCOMPARE(block->pos(), QPointF(300, 310));
    editor.window.onQuickTextAction(false);
    editor.pointer.moveTo(QPointF(10, 20));
    QCOMPARE(block->pos(), QPointF(300, 310));
    editor.window.onQuickTextAction(true);
    editor.pointer.moveTo(QPointF(40, 50));
    QCOMPARE(block->pos(), QPointF(40, 50));
}

void QuickTextTest::endedModeForgetsIt()
{
    EditorWindow editor;
    const TonquillTextBlock *block = typeALetter(editor);
    editor.pointer.moveTo(QPointF(300, 310));
    QTest::keyClick(&editor.view(), Qt::Key_F5);
    editor.pointer.moveTo(QPointF(10, 20));
    QCOMPARE(block->pos(), QPointF(300, 310));
    editor.window.onQuickTextAction(true);
    editor.pointer.moveTo(QPointF(10, 20));
    QCOMPARE(block->pos(), QPointF(300, 310));
}

void QuickTextTest::otherButtonsLeaveIt_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void QuickTextTest::otherButtonsLeaveIt()
{
    QFETCH(Qt::MouseButton, button);
    EditorWindow editor;
    const TonquillTextBlock *block = typeALetter(editor);
    editor.pointer.press(emptySpace, button);
    editor.pointer.release(emptySpace, button);
    editor.pointer.moveTo(QPointF(300, 310));
    QCOMPARE(block->pos(), QPointF(300, 310));
}

void QuickTextTest::leftPressEndsItsEditing_data()
{
    QTest::addColumn<bool>("onIt");
    QTest::addColumn<bool>("isSelected");
    QTest::newRow("on it") << true << true;
    QTest::newRow("on it, not selected") << true << false;
    QTest::newRow("elsewhere") << false << true;
    QTest::newRow("elsewhere, not selected") << false << false;
}

/** On it too: it is dragged from there, not edited on. */
void QuickTextTest::leftPressEndsItsEditing()
{
    QFETCH(bool, onIt);
    QFETCH(bool, isSelected);
    EditorWindow editor;
    TonquillTextBlock *block = typeALetter(editor);
    block->setSelected(isSelected);
    const QPointF point = onIt ? block->sceneBoundingRect().center() : emptySpace;
    editor.pointer.press(point);
    QCOMPARE(block->textInteractionFlags(), Qt::NoTextInteraction);
    QCOMPARE(block->itemStatus(), onIt ? 2 : 0);
    editor.pointer.release(point);
    const QPointF place = block->pos();
    editor.pointer.moveTo(QPointF(300, 310));
    QCOMPARE(block->pos(), place);
}

TONQUILL_TEST_MAIN(QuickTextTest)
#include "tst_quicktext.moc"
