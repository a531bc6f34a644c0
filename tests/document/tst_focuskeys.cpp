#include "EditorWindow.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"

#include <QGraphicsRectItem>
#include <QKeyEvent>

namespace
{
const QString glyph = QStringLiteral("tonquill_bitmap 2 120 300 0\n");
const QStringList neither;
const QStringList onlyPress{"press"};
const QStringList onlyRelease{"release"};
const QStringList both{"press", "release"};

/** An item that writes down which key events reach it. */
template <typename Base>
class KeyProbe : public Base
{
public:
    using Base::Base;

    QStringList keys;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        keys << "press";
        Base::keyPressEvent(event);
    }
    void keyReleaseEvent(QKeyEvent *event) override
    {
        keys << "release";
        Base::keyReleaseEvent(event);
    }
};

using FocusProbe = KeyProbe<QGraphicsRectItem>;
using TextProbe = KeyProbe<QGraphicsTextItem>;

/** Adds an item that can have the keyboard, and gives it. */
template <typename Probe>
Probe *addFocused(TonquillScene &scene)
{
    auto *probe = new Probe;
    probe->setFlags(QGraphicsItem::ItemIsFocusable | QGraphicsItem::ItemIsSelectable);
    scene.addItem(probe);
    probe->setPos(400, 100);
    probe->setFocus();
    return probe;
}

/** A text of each kind that may be edited on a page. */
QGraphicsTextItem *makeText(const QString &kind)
{
    if (kind == "block")
        return new TonquillTextBlock(false, "abc", QRectF(0, 0, 100, 40));
    if (kind == "simple text")
        return new TonquillText(false);
    return new QGraphicsTextItem("a text of the embedding program");
}

void addTextRows()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("hasFocus");
    const int editing = Qt::TextEditorInteraction;
    for (const char *kind : {"block", "simple text", "other text"}) {
        QTest::addRow("%s", kind) << kind << editing << true;
        QTest::addRow("%s without the focus", kind) << kind << editing << false;
    }
    QTest::newRow("selectable by mouse") << "block" << int(Qt::TextSelectableByMouse) << false;
    QTest::newRow("selectable by keys") << "block" << int(Qt::TextSelectableByKeyboard) << false;
    QTest::newRow("editable") << "block" << int(Qt::TextEditable) << false;
}
} // namespace

/** Which keys the item with the focus gets, and what a text that is edited changes about them. */
class FocusKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_editor = std::make_unique<EditorWindow>(); }
    void cleanup() { m_editor.reset(); }
    void whatTheItemWithTheFocusGets_data();
    void whatTheItemWithTheFocusGets();
    void whatAnEditedTextGets_data();
    void whatAnEditedTextGets();
    void editedTextKeepsItselfAndOthersFromKeys_data();
    void editedTextKeepsItselfAndOthersFromKeys();
    void arrowsLookAtSelectedTextsOnly_data() { addTextRows(); }
    void arrowsLookAtSelectedTextsOnly();
    void deletingLooksAtSelectedTextsOnly_data() { addTextRows(); }
    void deletingLooksAtSelectedTextsOnly();
    void spaceLooksAtAnyText_data() { addTextRows(); }
    void spaceLooksAtAnyText();
    void quickTextLooksAtAnyText_data() { addTextRows(); }
    void quickTextLooksAtAnyText();

private:
    void keyClick(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QGraphicsTextItem *addTextOfRow();
    TonquillBitmap *selectedGlyph();
    qsizetype itemCount() { return ItemProbe::documentItems(m_editor->scene()).size(); }

    std::unique_ptr<EditorWindow> m_editor;
};

/** One press and one release, without those of the modifiers. */
void FocusKeysTest::keyClick(int key, Qt::KeyboardModifiers modifiers)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers);
        QCoreApplication::sendEvent(&m_editor->view(), &event);
    }
}

TonquillBitmap *FocusKeysTest::selectedGlyph()
{
    auto *item = m_editor->build<TonquillBitmap>(glyph);
    item->setSelected(true);
    return item;
}

/** The row's text, edited but not selected. */
QGraphicsTextItem *FocusKeysTest::addTextOfRow()
{
    QFETCH(QString, kind);
    QFETCH(int, flags);
    QFETCH(bool, hasFocus);
    QGraphicsTextItem *text = makeText(kind);
    m_editor->scene().addItem(text);
    text->setPos(400, 400);
    text->setSelected(false);
    text->setTextInteractionFlags(Qt::TextInteractionFlags(flags));
    if (hasFocus)
        text->setFocus();
    return text;
}

void FocusKeysTest::whatTheItemWithTheFocusGets_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, Qt::Key key, const QStringList &expected,
                        Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::newRow(name) << int(key) << modifiers << expected;
    };
    row("Home", Qt::Key_Home, both);
    row("Escape", Qt::Key_Escape, both);
    row("a letter", Qt::Key_A, both);
    row("Shift", Qt::Key_Shift, both, Qt::ShiftModifier);
    row("Alt", Qt::Key_Alt, both, Qt::AltModifier);
    row("Left", Qt::Key_Left, both);
    row("Down", Qt::Key_Down, both);
    // These are spent when they are let go.
    row("Delete", Qt::Key_Delete, onlyPress);
    row("Backspace", Qt::Key_Backspace, onlyPress);
    row("Space", Qt::Key_Space, onlyPress);
    row("Copy", Qt::Key_C, onlyPress, Qt::ControlModifier);
    row("Paste", Qt::Key_V, onlyPress, Qt::ControlModifier);
    // These are spent when they are pressed, Ctrl both times.
    row("F5", Qt::Key_F5, onlyRelease);
    row("Ctrl", Qt::Key_Control, neither, Qt::ControlModifier);
}

void FocusKeysTest::whatTheItemWithTheFocusGets()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QStringList, expected);
    auto *probe = addFocused<FocusProbe>(m_editor->scene());
    keyClick(key, modifiers);
    QCOMPARE(probe->keys, expected);
}

void FocusKeysTest::whatAnEditedTextGets_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("quickText");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, Qt::Key key, bool quickText,
                        const QStringList &expected) {
        QTest::newRow(name) << int(key) << quickText << expected;
    };
    row("Delete", Qt::Key_Delete, false, both);
    row("Backspace", Qt::Key_Backspace, false, both);
    row("Space", Qt::Key_Space, false, both);
    row("Left", Qt::Key_Left, false, both);
    row("Right", Qt::Key_Right, false, both);
    row("Up", Qt::Key_Up, false, both);
    row("Down", Qt::Key_Down, false, both);
    row("Home", Qt::Key_Home, false, both);
    row("a letter", Qt::Key_A, false, both);
    row("a letter as quick text", Qt::Key_A, true, both);
    row("Space as quick text", Qt::Key_Space, true, both);
    row("Left as quick text", Qt::Key_Left, true, both);
    row("Delete as quick text", Qt::Key_Delete, true, both);
}

/** Each event reaches the text once. */
void FocusKeysTest::whatAnEditedTextGets()
{
    QFETCH(int, key);
    QFETCH(bool, quickText);
    QFETCH(QStringList, expected);
    auto *text = addFocused<TextProbe>(m_editor->scene());
    text->setTextInteractionFlags(Qt::TextEditorInteraction);
    text->setSelected(true);
    m_editor->window.onQuickTextAction(quickText);
    keyClick(key);
    QCOMPARE(text->keys, expected);
}

void FocusKeysTest::editedTextKeepsItselfAndOthersFromKeys_data()
{
    QTest::addColumn<int>("key");
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Delete,
                              Qt::Key_Backspace, Qt::Key_Space})
        QTest::addRow("%x", int(key)) << int(key);
}

/** While one of the selected items is a text that is edited, none is moved, deleted or repeated. */
void FocusKeysTest::editedTextKeepsItselfAndOthersFromKeys()
{
    QFETCH(int, key);
    const TonquillBitmap *other = selectedGlyph();
    auto *text = addFocused<TextProbe>(m_editor->scene());
    text->setTextInteractionFlags(Qt::TextEditorInteraction);
    text->setSelected(true);
    keyClick(key);
    QCOMPARE(itemCount(), 2);
    QCOMPARE(other->pos(), QPointF(120, 300));
    QCOMPARE(text->pos(), QPointF(400, 100));
}

void FocusKeysTest::arrowsLookAtSelectedTextsOnly()
{
    const QGraphicsTextItem *text = addTextOfRow();
    const TonquillBitmap *item = selectedGlyph();
    keyClick(Qt::Key_Right);
    QCOMPARE(item->pos(), QPointF(120 + 1, 300));
    keyClick(Qt::Key_Up);
    QCOMPARE(item->pos(), QPointF(120 + 1, 300 - 1));
    QCOMPARE(text->pos(), QPointF(400, 400));
}

void FocusKeysTest::deletingLooksAtSelectedTextsOnly()
{
    QGraphicsTextItem *text = addTextOfRow();
    for (const int key : {Qt::Key_Delete, Qt::Key_Backspace}) {
        selectedGlyph();
        QCOMPARE(itemCount(), 2);
        keyClick(key);
        QCOMPARE(ItemProbe::onlyItem(m_editor->scene()), text);
    }
}

void FocusKeysTest::spaceLooksAtAnyText()
{
    addTextOfRow();
    selectedGlyph();
    keyClick(Qt::Key_Space);
    QCOMPARE(itemCount(), 2);
}

void FocusKeysTest::quickTextLooksAtAnyText()
{
    addTextOfRow();
    selectedGlyph();
    m_editor->window.onQuickTextAction(true);
    keyClick(Qt::Key_A);
    QCOMPARE(itemCount(), 2);
}

TONQUILL_TEST_MAIN(FocusKeysTest)
#include "tst_focuskeys.moc"
