#include "KeysInEditor.h"
#include "TestMain.h"
#include "TonquillText.h"

#include <QAction>
#include <QTextCursor>
#include <QTextDocument>

/** The keys, as the view and as the scene get them. */
class KeyboardTest : public QObject, KeysInEditor
{
    Q_OBJECT

private Q_SLOTS:
    void init() { openEditor(); }
    void cleanup() { closeEditor(); }
    void ctrlShowsRestsWhileItIsHeld_data();
    void ctrlShowsRestsWhileItIsHeld();
    void ctrlIsLetGoWithTheFocus();
    void arrowsMoveTheSelection_data();
    void arrowsMoveTheSelection();
    void heldArrowStepsWithEachRepeat();
    void arrowMovesTheTextCursorOfAnEditedBlock();
    void deletingNothingTellsNobody_data();
    void deletingNothingTellsNobody();
    void deletingTellsTheHostOnce_data();
    void deletingTellsTheHostOnce();
    void aHeldDeleteTellsTheHostOnce();
    void deleteActsOnRelease();
    void backspaceInABlockDeletesALetter();
    void spaceWithoutALastItemDoesNothing();
    void spaceRepeatsTheLastItem();
    void spaceRepeatsTheLastItemOfADocument();
    void spaceNeverRepeatsADeletedItem_data();
    void spaceNeverRepeatsADeletedItem();
    void spaceTypesIntoAnEditedBlock();
    void f5SwitchesQuickText();
    void firstLetterOpensABlockAtThePointer();
    void keysThatStartQuickText_data();
    void keysThatStartQuickText();
    void lettersOpenNothingOutsideQuickText();
    void quickTextBlockFollowsThePointerUntilAPress();
    void f5ForgetsTheQuickTextBlock();
    void nudgesPasteAndTypingTellTheHostNothing();
    void otherKeysAreLeftToQt();
};

void KeyboardTest::ctrlShowsRestsWhileItIsHeld_data()
{
    QTest::addColumn<bool>("throughView");
    QTest::newRow("view") << true;
    QTest::newRow("scene") << false;
}

void KeyboardTest::ctrlShowsRestsWhileItIsHeld()
{
    QFETCH(const bool, throughView);
    QObject &receiver = throughView ? static_cast<QObject &>(m_editor->view()) : m_editor->scene();
    const auto icon = [this] { return m_editor->window.actions[0x10f]->icon().cacheKey(); };
    const qint64 before = icon();
    sendKey(receiver, QEvent::KeyPress, Qt::Key_Control);
    QVERIFY(m_editor->window.restMode);
    QVERIFY(icon() != before);
    sendKey(receiver, QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier, {}, true);
    QVERIFY(m_editor->window.restMode);
    sendKey(receiver, QEvent::KeyRelease, Qt::Key_Control);
    QVERIFY(!m_editor->window.restMode);
    QCOMPARE(icon(), before);
}

void KeyboardTest::ctrlIsLetGoWithTheFocus()
{
    keyPress(Qt::Key_Control);
    QFocusEvent focusOut(QEvent::FocusOut);
    QCoreApplication::sendEvent(&m_editor->scene(), &focusOut);
    QVERIFY(!m_editor->window.restMode);
}

void KeyboardTest::arrowsMoveTheSelection_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QPointF>("step");
    QTest::newRow("left") << int(Qt::Key_Left) << QPointF(-1, 0);
    QTest::newRow("right") << int(Qt::Key_Right) << QPointF(1, 0);
    QTest::newRow("up") << int(Qt::Key_Up) << QPointF(0, -1);
    QTest::newRow("down") << int(Qt::Key_Down) << QPointF(0, 1);
}

void KeyboardTest::arrowsMoveTheSelection()
{
    QFETCH(const int, key);
    QFETCH(const QPointF, step);
    QGraphicsItem *still = m_editor->build<TonquillTextBlock>(block);
    QGraphicsItem *item = selectedGlyph();
    item->setPos(120.5, 300.25);
    keyClick(key);
    QCOMPARE(item->pos(), QPointF(120.5, 300.25) + step);
    sendKey(m_editor->scene(), QEvent::KeyPress, key);
    sendKey(m_editor->scene(), QEvent::KeyRelease, key);
    QCOMPARE(item->pos(), QPointF(120.5, 300.25) + 2 * step);
    QCOMPARE(still->pos(), QPointF(80, 400));
}

void KeyboardTest::heldArrowStepsWithEachRepeat()
{
    QGraphicsItem *item = selectedGlyph();
    for (int i = 0; i < 5; ++i)
        sendKey(m_editor->view(), QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, {}, i > 0);
    sendKey(m_editor->view(), QEvent::KeyRelease, Qt::Key_Right);
    QCOMPARE(item->pos(), QPointF(125, 300));
}

void KeyboardTest::arrowMovesTheTextCursorOfAnEditedBlock()
{
    TonquillTextBlock *item = editedBlock();
    QTextCursor cursor = item->textCursor();
    cursor.setPosition(1);
    item->setTextCursor(cursor);
    keyClick(Qt::Key_Right);
    QCOMPARE(item->textCursor().position(), 2);
    keyClick(Qt::Key_Left);
    keyClick(Qt::Key_Left);
    QCOMPARE(item->textCursor().position(), 0);
    QCOMPARE(item->pos(), QPointF(80, 400));
}

void KeyboardTest::deletingNothingTellsNobody_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Delete") << int(Qt::Key_Delete);
    QTest::newRow("Backspace") << int(Qt::Key_Backspace);
}

void KeyboardTest::deletingNothingTellsNobody()
{
    QFETCH(const int, key);
    m_editor->build<TonquillBitmap>(glyph);
    keyClick(key);
    QCOMPARE(items().size(), 1);
    // The next message is the next one: nothing came before it.
    m_editor->window.OnToolBar1ButtonUndo();
    QTRY_COMPARE(m_host->messages.join(QString()), QString("tonquill2tw command:undo"));
}

void KeyboardTest::deletingTellsTheHostOnce_data()
{
    deletingNothingTellsNobody_data();
}

void KeyboardTest::deletingTellsTheHostOnce()
{
    QFETCH(const int, key);
    for (int i = 0; i < 3; ++i)
        selectedGlyph();
    m_editor->build<TonquillTextBlock>(block);
    const QString left = m_editor->records().constFirst();
    keyClick(key);
    QCOMPARE(m_editor->records(), QStringList{left});
    const QString document = "tonquill2tw tonquill_pagecount 1\n" + left;
    m_editor->window.OnToolBar1ButtonUndo();
    QTRY_COMPARE(m_host->messages.join(QString()), document + "tonquill2tw command:undo");
}

/** While a key is held, the desktop reports it as let go and pressed again, over and over. */
void KeyboardTest::aHeldDeleteTellsTheHostOnce()
{
    for (int i = 0; i < 3; ++i)
        selectedGlyph();
    m_editor->build<TonquillTextBlock>(block);
    const QString left = m_editor->records().constFirst();
    for (int i = 0; i < 5; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(), i > 0);
        QCoreApplication::sendEvent(&m_editor->view(), &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Delete, Qt::NoModifier, QString(), i < 4);
        QCoreApplication::sendEvent(&m_editor->view(), &release);
        QCOMPARE(m_editor->records(), QStringList{left});
    }
    const QString document = "tonquill2tw tonquill_pagecount 1\n" + left;
    m_editor->window.OnToolBar1ButtonUndo();
    QTRY_COMPARE(m_host->messages.join(QString()), document + "tonquill2tw command:undo");
}

void KeyboardTest::deleteActsOnRelease()
{
    selectedGlyph();
    keyPress(Qt::Key_Delete);
    QCOMPARE(items().size(), 1);
    keyRelease(Qt::Key_Delete);
    QCOMPARE(items().size(), 0);
}

void KeyboardTest::backspaceInABlockDeletesALetter()
{
    TonquillTextBlock *item = editedBlock();
    QTextCursor cursor = item->textCursor();
    cursor.setPosition(3);
    item->setTextCursor(cursor);
    keyClick(Qt::Key_Backspace);
    QCOMPARE(item->toPlainText(), QString("ab\n"));
    keyClick(Qt::Key_Delete); // the line break behind the cursor
    QCOMPARE(item->toPlainText(), QString("ab"));
    QCOMPARE(items().size(), 1);
}

void KeyboardTest::spaceWithoutALastItemDoesNothing()
{
    keyClick(Qt::Key_Space);
    QVERIFY(items().isEmpty());
}

void KeyboardTest::spaceRepeatsTheLastItem()
{
    m_editor->scene().constructItem("tonquill_bitmap 13 120 300 1\n", false, 0);
    const QPointF cursor = m_editor->putCursorOnPage();
    keyPress(Qt::Key_Space);
    QCOMPARE(items().size(), 1);
    keyRelease(Qt::Key_Space);
    QCOMPARE(ItemProbe::waitingItems(m_editor->scene()), 1);
    QGraphicsItem *copy = items().constFirst();
    QCOMPARE(copy->pos(), cursor);
    m_editor->pointer.moveTo(QPointF(400, 200));
    QCOMPARE(ItemProbe::recordOf(copy), QString("tonquill_bitmap 13 400 200 1\n"));
    m_editor->pointer.click(QPointF(410, 210));
    QCOMPARE(ItemProbe::statusOf(copy), 0);
    QCOMPARE(ItemProbe::recordOf(copy), QString("tonquill_bitmap 13 410 210 1\n"));
}

void KeyboardTest::spaceRepeatsTheLastItemOfADocument()
{
    selectedGlyph();
    m_editor->window.twMsg("tonquill_bitmap 13 120 300 1\n|tonquill_timesig 200 300 3 4\n|");
    QCOMPARE(items().size(), 2);
    keyClick(Qt::Key_Space);
    QCOMPARE(items().size(), 3);
    m_editor->pointer.click(QPointF(410, 210));
    QVERIFY(m_editor->records().contains("tonquill_timesig 410 210 3 4\n"));
}

void KeyboardTest::spaceNeverRepeatsADeletedItem_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"key", "page", "document", "half-placed"})
        QTest::newRow(how) << how;
}

void KeyboardTest::spaceNeverRepeatsADeletedItem()
{
    QFETCH(const QString, how);
    selectedGlyph();
    if (how == "key")
        keyClick(Qt::Key_Delete);
    else if (how == "page")
        m_editor->scene().deletePage(1);
    else if (how == "document")
        m_editor->window.twMsg(QString());
    else {
        m_editor->scene().clearScene();
        m_editor->window.InsertBitmapSymbol(2, true, false);
        m_editor->scene().isNewItemIsAdding();
    }
    QVERIFY(items().isEmpty());
    keyClick(Qt::Key_Space);
    QVERIFY(items().isEmpty());
}

void KeyboardTest::spaceTypesIntoAnEditedBlock()
{
    TonquillTextBlock *item = editedBlock();
    QTextCursor cursor = item->textCursor();
    cursor.setPosition(1);
    item->setTextCursor(cursor);
    type(u' ');
    QCOMPARE(item->toPlainText(), QString("a bc\n"));
    QCOMPARE(items().size(), 1);
}

void KeyboardTest::f5SwitchesQuickText()
{
    keyClick(Qt::Key_F5);
    QVERIFY(m_editor->window.quickText);
    keyClick(Qt::Key_F5);
    QVERIFY(!m_editor->window.quickText);
}

void KeyboardTest::firstLetterOpensABlockAtThePointer()
{
    keyClick(Qt::Key_F5);
    const QPointF cursor = m_editor->putCursorOnPage();
    type(u'd');
    auto *item = qgraphicsitem_cast<TonquillTextBlock *>(ItemProbe::onlyItem(m_editor->scene()));
    QVERIFY(item);
    QCOMPARE(item->pos(), cursor);
    QVERIFY(item->isSelected());
    QVERIFY(item->hasFocus());
    QVERIFY(TonquillTextBlock::isEdited(*item));
    QCOMPARE(ItemProbe::statusOf(item), 0);
    type(u'o');
    type(u' ');
    type(u'7');
    QCOMPARE(ItemProbe::onlyItem(m_editor->scene()), item);
    // What is typed stands before the one blank with which the block began.
    QCOMPARE(item->toPlainText(), QString("do 7 "));
    QCOMPARE(item->boundingRect(), item->QGraphicsTextItem::boundingRect());
}

void KeyboardTest::keysThatStartQuickText_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("starts");
    QTest::newRow("Space, the first") << 0x20 << true;
    QTest::newRow("digit") << int(Qt::Key_7) << true;
    QTest::newRow("period") << int(Qt::Key_Period) << true;
    QTest::newRow("A") << int(Qt::Key_A) << true;
    QTest::newRow("Z, the last") << 0x5a << true;
    QTest::newRow("[, just behind") << 0x5b << false;
    QTest::newRow("a with diaeresis") << int(Qt::Key_Adiaeresis) << false;
    QTest::newRow("Return") << int(Qt::Key_Return) << false;
    QTest::newRow("Shift") << int(Qt::Key_Shift) << false;
    QTest::newRow("F1") << int(Qt::Key_F1) << false;
}

void KeyboardTest::keysThatStartQuickText()
{
    QFETCH(const int, key);
    keyClick(Qt::Key_F5);
    sendKey(m_editor->scene(), QEvent::KeyPress, key, Qt::NoModifier, "x");
    QTEST(!items().isEmpty(), "starts");
}

void KeyboardTest::lettersOpenNothingOutsideQuickText()
{
    type(u'd');
    QVERIFY(items().isEmpty());
}

void KeyboardTest::quickTextBlockFollowsThePointerUntilAPress()
{
    keyClick(Qt::Key_F5);
    m_editor->putCursorOnPage();
    type(u'd');
    QGraphicsItem *item = ItemProbe::onlyItem(m_editor->scene());
    m_editor->pointer.moveTo(QPointF(300, 310));
    QCOMPARE(item->pos(), QPointF(300, 310));
    m_editor->pointer.click(QPointF(600, 600));
    m_editor->pointer.moveTo(QPointF(10, 10));
    QVERIFY(item->pos() != QPointF(10, 10));
    // Typing goes on in a new block.
    type(u'e');
    QCOMPARE(items().size(), 2);
}

void KeyboardTest::f5ForgetsTheQuickTextBlock()
{
    keyClick(Qt::Key_F5);
    m_editor->putCursorOnPage();
    type(u'd');
    QGraphicsItem *item = ItemProbe::onlyItem(m_editor->scene());
    const QPointF place = item->pos();
    keyClick(Qt::Key_F5);
    keyClick(Qt::Key_F5);
    m_editor->pointer.moveTo(place + QPointF(300, 310));
    QCOMPARE(item->pos(), place);
}

void KeyboardTest::nudgesPasteAndTypingTellTheHostNothing()
{
    selectedGlyph();
    keyClick(Qt::Key_C, Qt::ControlModifier);
    keyClick(Qt::Key_V, Qt::ControlModifier);
    keyClick(Qt::Key_Down);
    keyClick(Qt::Key_F5);
    type(u'd');
    keyClick(Qt::Key_F5);
    m_editor->window.OnToolBar1ButtonUndo();
    QTRY_COMPARE(m_host->messages.join(QString()), QString("tonquill2tw command:undo"));
    // The next finished edit carries them.
    m_host->messages.clear();
    m_editor->pointer.click(QPointF(700, 500)); // an empty rubber band tells nothing either
    QGraphicsItem *pasted = m_editor->build<TonquillBitmap>(glyph);
    pasted->setSelected(true);
    keyClick(Qt::Key_Delete);
    const QString document = "tonquill2tw tonquill_pagecount 1\n" + m_editor->records().join("");
    QVERIFY(document.contains("tonquill_bitmap 2 120 301 0\n")); // nudged
    QVERIFY(document.contains("tonquill_bitmap 2 150 330 0\n")); // pasted
    QVERIFY(document.contains("\nd \n"));                        // typed
    QTRY_COMPARE(m_host->messages.join(QString()), document);
}

void KeyboardTest::otherKeysAreLeftToQt()
{
    QGraphicsItem *item = selectedGlyph();
    for (const int key :
         {int(Qt::Key_Home), int(Qt::Key_Tab), int(Qt::Key_Escape), int(Qt::Key_F1)})
        keyClick(key);
    QCOMPARE(ItemProbe::onlyItem(m_editor->scene()), item);
    QCOMPARE(item->pos(), QPointF(120, 300));
}

TONQUILL_TEST_MAIN(KeyboardTest)
#include "tst_keyboard.moc"
