#include "ItemProbe.h"
#include "PlacedBlock.h"
#include "ScenePointer.h"
#include "TestMain.h"
#include "TonquillMainWin.h"

#include <QKeyEvent>
#include <QTextCursor>
#include <QTextDocument>

namespace
{
void sendKey(QGraphicsScene *scene, QEvent::Type type, int key, const QString &text)
{
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(scene, &event);
}

void typeKey(QGraphicsScene *scene, int key, const QString &text)
{
    sendKey(scene, QEvent::KeyPress, key, text);
    sendKey(scene, QEvent::KeyRelease, key, text);
}
} // namespace

/** A block of text on the page while its text is edited there, and what begins and ends that. */
class TextBlockEditingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window.scene->clearScene(); }
    void doubleClickEditsUntilFocusIsLost();
    void leavingDeselectsItsText();
    void doubleClickPutsTheTextCursor();
    void doubleClickLeavesAnyPartOfEditing_data();
    void doubleClickLeavesAnyPartOfEditing();
    void frameFollowsTyping();
    void keysAreIgnoredAtRest_data();
    void keysAreIgnoredAtRest();
    void keysFitTheBlockWithAnyPartOfEditing_data();
    void keysFitTheBlockWithAnyPartOfEditing();
    void pressWhileEditedMovesNothing();
    void dragWhileEditedSelectsText();
    void clickIntoSelectedTextDeselects();
    void newBlockThatIsEditedDoesNotFollow();

private:
    TonquillTextBlock *place(const QString &text = QStringLiteral("verse"))
    {
        return placeBlock(*m_window.scene, text);
    }
    void edit(TonquillTextBlock *block);

    TonquillMainWin m_window;
};

/** Double-clicks the block, on a scene that has the keyboard. */
void TextBlockEditingTest::edit(TonquillTextBlock *block)
{
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(m_window.scene, &activate);
    m_window.scene->setFocus();
    ScenePointer(*m_window.scene).doubleClick(block->mapToScene(QPointF(30, 10)));
    QCOMPARE(block->textInteractionFlags(), Qt::TextEditorInteraction);
    QVERIFY(block->hasFocus());
}

void TextBlockEditingTest::doubleClickEditsUntilFocusIsLost()
{
    TonquillTextBlock *block = place();
    edit(block);
    m_window.scene->setFocusItem(nullptr);
    QCOMPARE(block->textInteractionFlags(), Qt::NoTextInteraction);
    QCOMPARE(block->itemStatus(), 0);
}

void TextBlockEditingTest::leavingDeselectsItsText()
{
    TonquillTextBlock *block = place();
    edit(block);
    QTextCursor all(block->document());
    all.select(QTextCursor::Document);
    block->setTextCursor(all);
    m_window.scene->setFocusItem(nullptr);
    QVERIFY(!block->textCursor().hasSelection());
}

/** On the second of two lines; as everywhere, a double click selects the word. */
void TextBlockEditingTest::doubleClickPutsTheTextCursor()
{
    TonquillTextBlock *block = place("one\ntwo");
    const qreal margin = block->document()->documentMargin();
    const qreal lineHeight = (block->document()->size().height() - 2 * margin) / 2;
    ScenePointer(*m_window.scene).doubleClick(QPointF(100 + 10, 200 + margin + 1.5 * lineHeight));
    QCOMPARE(block->textCursor().selectedText(), QString("two"));
}

void TextBlockEditingTest::doubleClickLeavesAnyPartOfEditing_data()
{
    QTest::addColumn<int>("flags");
    for (const int flags : {int(Qt::TextSelectableByMouse), int(Qt::TextSelectableByKeyboard),
                            int(Qt::TextEditable), int(Qt::TextBrowserInteraction)})
        QTest::addRow("%d", flags) << flags;
}

void TextBlockEditingTest::doubleClickLeavesAnyPartOfEditing()
{
    QFETCH(int, flags);
    TonquillTextBlock *block = place();
    block->setTextInteractionFlags(Qt::TextInteractionFlags(flags));
    ScenePointer(*m_window.scene).pressTwice(QPointF(130, 210));
    QCOMPARE(int(block->textInteractionFlags()), flags);
}

void TextBlockEditingTest::frameFollowsTyping()
{
    TonquillTextBlock *block = place();
    edit(block);
    typeKey(m_window.scene, Qt::Key_End, QString());
    // From the first key on the block is as large as its text, not as the mouse made it.
    const QRectF before = block->boundingRect();
    QVERIFY(before.height() < 80);
    for (int i = 0; i < 20; ++i)
        typeKey(m_window.scene, Qt::Key_W, "w");
    QCOMPARE(block->toPlainText(), "verse" + QString(20, 'w'));
    const QRectF widened = block->boundingRect();
    QVERIFY(widened.width() > before.width());
    QPointF anchor;
    QCOMPARE(ItemProbe::frameOf(*block)->getAnchor(widened.bottomRight(), anchor), 1);
    QCOMPARE(anchor, widened.bottomRight());

    typeKey(m_window.scene, Qt::Key_Return, "\r");
    QVERIFY(block->boundingRect().height() > widened.height());
}

void TextBlockEditingTest::keysAreIgnoredAtRest_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("press") << int(QEvent::KeyPress);
    QTest::newRow("release") << int(QEvent::KeyRelease);
}

void TextBlockEditingTest::keysAreIgnoredAtRest()
{
    QFETCH(int, type);
    TonquillTextBlock *block = place();
    QKeyEvent event(static_cast<QEvent::Type>(type), Qt::Key_W, Qt::NoModifier, "w");
    m_window.scene->sendEvent(block, &event);
    QVERIFY(!event.isAccepted());
    QCOMPARE(block->toPlainText(), QString("verse"));
    QCOMPARE(block->boundingRect(), QRectF(0, 0, 121, 80));
}

void TextBlockEditingTest::keysFitTheBlockWithAnyPartOfEditing_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("flags");
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        for (const int flags : {int(Qt::TextSelectableByMouse), int(Qt::TextSelectableByKeyboard),
                                int(Qt::TextEditable), int(Qt::TextEditorInteraction)})
            QTest::addRow("event %d, flags %d", int(type), flags) << int(type) << flags;
    }
}

/** Its size is then that of the text, which is as wide as Qt likes it, and so are its anchors. */
void TextBlockEditingTest::keysFitTheBlockWithAnyPartOfEditing()
{
    QFETCH(int, type);
    QFETCH(int, flags);
    TonquillTextBlock *block = place();
    block->setTextInteractionFlags(Qt::TextInteractionFlags(flags));
    QKeyEvent event(static_cast<QEvent::Type>(type), Qt::Key_Shift, Qt::ShiftModifier);
    m_window.scene->sendEvent(block, &event);
    QGraphicsTextItem text("verse");
    text.setFont(block->font());
    text.adjustSize();
    QCOMPARE(block->boundingRect(), text.boundingRect());
    QPointF anchor;
    QCOMPARE(ItemProbe::frameOf(*block)->getAnchor(text.boundingRect().bottomRight(), anchor), 1);
    QCOMPARE(anchor, text.boundingRect().bottomRight());
}

void TextBlockEditingTest::pressWhileEditedMovesNothing()
{
    TonquillTextBlock *block = place();
    edit(block);
    block->setTextCursor(QTextCursor(block->document()));
    ScenePointer pointer(*m_window.scene);
    pointer.press(QPointF(130, 210));
    QCOMPARE(block->itemStatus(), 0);
    pointer.moveTo(QPointF(170, 230));
    QCOMPARE(block->itemStatus(), 0);
    pointer.moveTo(QPointF(500, 600));
    QCOMPARE(block->itemStatus(), 0);
    pointer.release(QPointF(500, 600));
    QCOMPARE(block->pos(), QPointF(100, 200));
    QCOMPARE(block->boundingRect(), QRectF(0, 0, 121, 80));
    QCOMPARE(block->itemStatus(), 0);
    QCOMPARE(block->textInteractionFlags(), Qt::TextEditorInteraction);
}

/** Left of the text to right of it, all inside the block. */
void TextBlockEditingTest::dragWhileEditedSelectsText()
{
    TonquillTextBlock *block = place();
    edit(block);
    block->setTextCursor(QTextCursor(block->document())); // nothing is selected by the double click
    ScenePointer(*m_window.scene).drag(QPointF(104.2, 210), QPointF(200, 210));
    QCOMPARE(block->textCursor().selectedText(), QString("verse"));
    QCOMPARE(block->pos(), QPointF(100, 200));
}

/** It might have begun a drag of the text, so it is the release that deselects. */
void TextBlockEditingTest::clickIntoSelectedTextDeselects()
{
    TonquillTextBlock *block = place("verse");
    edit(block);
    QTextCursor all(block->document());
    all.select(QTextCursor::Document);
    block->setTextCursor(all);
    ScenePointer pointer(*m_window.scene);
    pointer.press(QPointF(110, 210));
    QCOMPARE(block->textCursor().selectedText(), QString("verse"));
    pointer.release(QPointF(110, 210));
    QCOMPARE(block->textCursor().selectedText(), QString());
}

/** A new block that a double click opens stays where it is, and the release places it. */
void TextBlockEditingTest::newBlockThatIsEditedDoesNotFollow()
{
    auto *block = new TonquillTextBlock(true, "verse", QRectF(0, 0, 120, 80));
    m_window.scene->addNewItem(block);
    ScenePointer pointer(*m_window.scene);
    pointer.moveTo(QPointF(100, 200));
    pointer.pressTwice(QPointF(130, 210));
    QCOMPARE(block->textInteractionFlags(), Qt::TextEditorInteraction);
    for (const QPointF point : {QPointF(150, 220), QPointF(500, 600)}) {
        pointer.moveTo(point);
        QCOMPARE(block->pos(), QPointF(100, 200));
        QCOMPARE(block->itemStatus(), 1);
    }
    pointer.release(QPointF(150, 220));
    QCOMPARE(block->itemStatus(), 0);
}

TONQUILL_TEST_MAIN(TextBlockEditingTest)
#include "tst_textblockediting.moc"
