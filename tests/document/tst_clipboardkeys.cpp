#include "KeysInEditor.h"
#include "TestMain.h"

#include <QTextCursor>

/** The keys that copy and paste. */
class ClipboardKeysTest : public QObject, KeysInEditor
{
    Q_OBJECT

private Q_SLOTS:
    void init() { openEditor(); }
    void cleanup() { closeEditor(); }
    void copyingTwiceMakesTwoOfEach();
    void pasteStandsBesideTheRecordedPlace_data();
    void pasteStandsBesideTheRecordedPlace();
    void copyAndPasteActOnRelease();
    void copyAndPasteWhenCtrlGoesFirst();
    void letterAloneDoesNotPaste_data();
    void letterAloneDoesNotPaste();
    void heldPasteEndsWithCtrl();
    void copyAndPasteInABlockActOnItsText();
    void copyLeavesOutItemsWithoutARecord();
    void pastingNothingDoesNothing();
};

void ClipboardKeysTest::copyingTwiceMakesTwoOfEach()
{
    selectedGlyph();
    m_editor->build<TonquillTextBlock>(block)->setSelected(true);
    keyClick(Qt::Key_C, Qt::ControlModifier);
    keyClick(Qt::Key_C, Qt::ControlModifier);
    keyClick(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(items().size(), 2 + 2 * 2);
    // Nothing empties the buffer: all four come again.
    keyClick(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(items().size(), 2 + 2 * 2 * 2);
}

void ClipboardKeysTest::pasteStandsBesideTheRecordedPlace_data()
{
    QTest::addColumn<QString>("record");
    QTest::addColumn<QPointF>("expected");
    QTest::newRow("glyph") << glyph << QPointF(150, 330);
    QTest::newRow("block") << block << QPointF(110, 430);
    QTest::newRow("text, twice the way") << "tonquill_text 5 6 70 20 Allegro Arial 12 ff000000 0\n"
                                         << QPointF(65, 66);
}

void ClipboardKeysTest::pasteStandsBesideTheRecordedPlace()
{
    QFETCH(const QString, record);
    QFETCH(const QPointF, expected);
    m_editor->scene().constructItem(record, false, 0);
    QGraphicsItem *original = ItemProbe::onlyItem(m_editor->scene());
    original->setSelected(true);
    keyClick(Qt::Key_C, Qt::ControlModifier);
    original->setPos(0, 0); // copied is what it was
    keyClick(Qt::Key_V, Qt::ControlModifier);
    QList<QGraphicsItem *> all = items();
    QVERIFY(all.removeOne(original));
    QCOMPARE(all.size(), 1);
    QCOMPARE(all.constFirst()->pos(), expected);
    QCOMPARE(ItemProbe::statusOf(all.constFirst()), 0);
}

void ClipboardKeysTest::copyAndPasteActOnRelease()
{
    selectedGlyph();
    keyPress(Qt::Key_C, Qt::ControlModifier);
    m_editor->scene().onPaste();
    QCOMPARE(items().size(), 1);
    keyRelease(Qt::Key_C, Qt::ControlModifier);
    keyPress(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(items().size(), 1);
    keyRelease(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(items().size(), 2);
}

void ClipboardKeysTest::copyAndPasteWhenCtrlGoesFirst()
{
    selectedGlyph();
    keyPress(Qt::Key_C, Qt::ControlModifier);
    keyRelease(Qt::Key_C);
    for (int pasted = 1; pasted <= 3; ++pasted) {
        keyPress(Qt::Key_V, Qt::ControlModifier);
        keyRelease(Qt::Key_V);
        QCOMPARE(items().size(), 1 + pasted);
    }
    // Both held at once, each acts for itself, and with Ctrl still held not twice.
    keyPress(Qt::Key_C, Qt::ControlModifier);
    keyPress(Qt::Key_V, Qt::ControlModifier);
    keyRelease(Qt::Key_C, Qt::ControlModifier);
    keyRelease(Qt::Key_V);
    QCOMPARE(items().size(), 4 + 2);
}

void ClipboardKeysTest::letterAloneDoesNotPaste_data()
{
    QTest::addColumn<QString>("before");
    QTest::newRow("nothing") << "";
    QTest::newRow("a whole paste") << "paste";
    QTest::newRow("a paste whose release was lost") << "press";
    QTest::newRow("a paste that lost the keyboard") << "focus";
}

void ClipboardKeysTest::letterAloneDoesNotPaste()
{
    QFETCH(const QString, before);
    selectedGlyph();
    keyClick(Qt::Key_C, Qt::ControlModifier);
    if (!before.isEmpty())
        keyPress(Qt::Key_V, Qt::ControlModifier);
    if (before == "paste")
        keyRelease(Qt::Key_V);
    const qsizetype count = items().size();
    if (before == "focus") {
        QFocusEvent focusOut(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QCoreApplication::sendEvent(&m_editor->scene(), &focusOut);
    } else {
        keyPress(Qt::Key_V);
    }
    keyRelease(Qt::Key_V);
    QCOMPARE(items().size(), count);
}

/** Each repeat with Ctrl pastes; of those without, only the one that Ctrl began. */
void ClipboardKeysTest::heldPasteEndsWithCtrl()
{
    selectedGlyph();
    keyClick(Qt::Key_C, Qt::ControlModifier);
    const auto send = [this](QEvent::Type type, Qt::KeyboardModifiers modifiers, bool repeat) {
        sendKey(m_editor->view(), type, Qt::Key_V, modifiers, {}, repeat);
    };
    send(QEvent::KeyPress, Qt::ControlModifier, false);
    for (int i = 0; i < 2; ++i) {
        send(QEvent::KeyRelease, Qt::ControlModifier, true);
        send(QEvent::KeyPress, Qt::ControlModifier, true);
    }
    QCOMPARE(items().size(), 1 + 2);
    for (int i = 0; i < 5; ++i) {
        send(QEvent::KeyRelease, Qt::NoModifier, true);
        send(QEvent::KeyPress, Qt::NoModifier, true);
    }
    send(QEvent::KeyRelease, Qt::NoModifier, false);
    QCOMPARE(items().size(), 1 + 3);
}

void ClipboardKeysTest::copyAndPasteInABlockActOnItsText()
{
    selectedGlyph();
    keyClick(Qt::Key_C, Qt::ControlModifier);
    m_editor->scene().clearSelection();
    TonquillTextBlock *item = editedBlock();
    QTextCursor cursor = item->textCursor();
    cursor.setPosition(0);
    cursor.setPosition(3, QTextCursor::KeepAnchor);
    item->setTextCursor(cursor);
    keyClick(Qt::Key_C, Qt::ControlModifier);
    cursor.setPosition(0);
    item->setTextCursor(cursor);
    keyClick(Qt::Key_V, Qt::ControlModifier);
    keyPress(Qt::Key_V, Qt::ControlModifier);
    keyRelease(Qt::Key_V);
    QCOMPARE(item->toPlainText().trimmed(), QString("abcabcabc"));
    QCOMPARE(items().size(), 2);
    // The block itself was not copied either.
    m_editor->pointer.click(QPointF(600, 600));
    keyClick(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(items().size(), 2 + 1);
}

void ClipboardKeysTest::copyLeavesOutItemsWithoutARecord()
{
    QGraphicsItem *plain = m_editor->scene().addPixmap(QPixmap(3, 3));
    plain->setFlag(QGraphicsItem::ItemIsSelectable);
    plain->setSelected(true);
    QGraphicsItem *object = m_editor->scene().addText("an object without a record");
    object->setFlag(QGraphicsItem::ItemIsSelectable);
    object->setSelected(true);
    keyClick(Qt::Key_C, Qt::ControlModifier);
    keyClick(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(items().size(), 2);
}

void ClipboardKeysTest::pastingNothingDoesNothing()
{
    keyClick(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(items().isEmpty());
}

TONQUILL_TEST_MAIN(ClipboardKeysTest)
#include "tst_clipboardkeys.moc"
