#include "EditorWindow.h"
#include "ModalAnswer.h"
#include "TestHost.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillSimpleTextDlg.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

namespace
{
const QString text = QStringLiteral("tonquill_text 100 100 70 20 Allegro Arial 12 ff000000 0\n");
const QString block =
    QStringLiteral("tonquill_textblock_begin 80 400 240 60\nabc\ntonquill_textblock_end\n");
const QString figure = QStringLiteral("tonquill_interactiveline 300 200 0 0 100 80\n");
const QString glyph = QStringLiteral("tonquill_bitmap 2 120 300 0\n");
const QString hostsGlyph = QStringLiteral("tonquill_bitmap 3 700 50 0\n");
constexpr QPointF onBlock(200, 430);
constexpr QPointF blockCorner(80 + 241, 400 + 60);
constexpr QPointF elsewhere(500, 600);
} // namespace

/** A document that arrives while the user is in the middle of something. */
class InterruptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void whileDragging_data();
    void whileDragging();
    void whileAdding_data();
    void whileAdding();
    void whileStretchingANewFigure();
    void whileDraggingARubberBand();
    void whileEditingABlock();
    void whileTypingQuickText();
    void whileTheBlockIsBeingResized();
    void whileTheBlockIsReleasedAfterAResize();
    void whileTheContextMenuIsOpen_data();
    void whileTheContextMenuIsOpen();
    void whileTheEditDialogIsOpen_data();
    void whileTheEditDialogIsOpen();
    void whileTheSizeMenuIsOpen_data();
    void whileTheSizeMenuIsOpen();
    void whileTheInsertDialogIsOpen();

private:
    void hostSendsItsDocument();
    void verifyOnlyTheHostsDocument();
    void goOn();
    QPointF onFrameOf(QGraphicsItem *item) const;
    QLineEdit *lineEditOf(const TonquillSimpleTextDlg &dialog)
    {
        return dialog.findChild<QLineEdit *>("le_text");
    }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<EditorWindow> m_editor;
};

void InterruptionsTest::init()
{
    m_host = std::make_unique<TestHost>();
    m_editor = std::make_unique<EditorWindow>();
    QTRY_COMPARE(m_host->messages.size(), 1);
    m_host->messages.clear();
}

void InterruptionsTest::cleanup()
{
    m_editor.reset();
    m_host.reset();
}

/** Over the socket, in whatever loop is running. */
void InterruptionsTest::hostSendsItsDocument()
{
    m_host->send(hostsGlyph.toLatin1());
    QTRY_COMPARE(m_editor->records(), QStringList{hostsGlyph});
}

void InterruptionsTest::verifyOnlyTheHostsDocument()
{
    QCOMPARE(m_editor->records(), QStringList{hostsGlyph});
}

/** What the user does next works as ever: the pointer, keys and a new item. */
void InterruptionsTest::goOn()
{
    m_editor->pointer.moveTo(elsewhere + QPointF(5, 5));
    m_editor->pointer.release(elsewhere + QPointF(5, 5));
    for (const int key : {int(Qt::Key_Left), int(Qt::Key_A), int(Qt::Key_Space)})
        QTest::keyClick(&m_editor->view(), static_cast<Qt::Key>(key));
    m_editor->scene().clearScene();
    m_editor->window.InsertBitmapSymbol(2, true, false);
    m_editor->pointer.click(elsewhere);
    QCOMPARE(m_editor->records(), QStringList{"tonquill_bitmap 2 500 600 0\n"});
    m_editor->window.notifyTW();
    QTRY_VERIFY(m_host->messages.join("").endsWith("tonquill_bitmap 2 500 600 0\n"));
}

/** A point of the item that its frame covers. */
QPointF InterruptionsTest::onFrameOf(QGraphicsItem *item) const
{
    return item->mapToScene(item->boundingRect().center());
}

void InterruptionsTest::whileDragging_data()
{
    QTest::addColumn<QString>("record");
    QTest::newRow("glyph") << glyph;
    QTest::newRow("time signature") << "tonquill_timesig 200 200 3 4\n";
    QTest::newRow("text") << text;
    QTest::newRow("block") << block;
    QTest::newRow("figure") << figure;
}

void InterruptionsTest::whileDragging()
{
    QFETCH(const QString, record);
    m_editor->scene().constructItem(record, false, 0);
    QGraphicsItem *item = ItemProbe::onlyItem(m_editor->scene());
    const QPointF start = onFrameOf(item);
    m_editor->pointer.press(start);
    m_editor->pointer.moveTo(start + QPointF(20, 20));
    QVERIFY(ItemProbe::statusOf(item) != 0);
    hostSendsItsDocument();
    m_editor->pointer.moveTo(start + QPointF(40, 40));
    verifyOnlyTheHostsDocument();
    m_editor->pointer.release(start + QPointF(40, 40));
    verifyOnlyTheHostsDocument();
    goOn();
}

void InterruptionsTest::whileAdding_data()
{
    whileDragging_data();
}

void InterruptionsTest::whileAdding()
{
    QFETCH(const QString, record);
    m_editor->scene().constructItem(record, true, 0);
    m_editor->pointer.moveTo(elsewhere);
    QCOMPARE(ItemProbe::waitingItems(m_editor->scene()), 1);
    hostSendsItsDocument();
    QVERIFY(!m_editor->scene().isNewItemIsAdding());
    m_editor->pointer.click(elsewhere);
    verifyOnlyTheHostsDocument();
    goOn();
}

void InterruptionsTest::whileStretchingANewFigure()
{
    m_editor->window.OnToolBar3ButtonInteractiveLine();
    m_editor->pointer.click(QPointF(300, 300));
    m_editor->pointer.moveTo(QPointF(350, 320));
    QCOMPARE(ItemProbe::statusOf(ItemProbe::onlyItem(m_editor->scene())), 4);
    hostSendsItsDocument();
    m_editor->pointer.click(elsewhere);
    verifyOnlyTheHostsDocument();
    goOn();
}

void InterruptionsTest::whileDraggingARubberBand()
{
    m_editor->pointer.press(QPointF(600, 10));
    m_editor->pointer.moveTo(QPointF(700, 100));
    hostSendsItsDocument();
    // The band goes on, over what the host has sent.
    m_editor->pointer.moveTo(QPointF(790, 150));
    m_editor->pointer.release(QPointF(790, 150));
    QVERIFY(ItemProbe::onlyItem(m_editor->scene())->isSelected());
    goOn();
}

void InterruptionsTest::whileEditingABlock()
{
    auto *item = m_editor->build<TonquillTextBlock>(block);
    m_editor->pointer.click(onBlock);
    m_editor->pointer.doubleClick(onBlock);
    QVERIFY(TonquillTextBlock::isEdited(*item));
    QTest::keyClick(&m_editor->view(), Qt::Key_X);
    hostSendsItsDocument();
    QTest::keyClick(&m_editor->view(), Qt::Key_Y);
    QTest::keyClick(&m_editor->view(), Qt::Key_Backspace);
    m_editor->pointer.press(onBlock);
    verifyOnlyTheHostsDocument();
    goOn();
}

void InterruptionsTest::whileTypingQuickText()
{
    QTest::keyClick(&m_editor->view(), Qt::Key_F5);
    m_editor->putCursorOnPage();
    QTest::keyClick(&m_editor->view(), Qt::Key_X);
    QVERIFY(ItemProbe::onlyItem(m_editor->scene()));
    hostSendsItsDocument();
    m_editor->pointer.moveTo(elsewhere);
    verifyOnlyTheHostsDocument();
    // The next letter opens a block of its own.
    QTest::keyClick(&m_editor->view(), Qt::Key_Y);
    QCOMPARE(m_editor->records().size(), 2);
    QTest::keyClick(&m_editor->view(), Qt::Key_F5);
    goOn();
}

/** A resize handles pending events in its middle; the document is read there. */
void InterruptionsTest::whileTheBlockIsBeingResized()
{
    const QPointer<TonquillTextBlock> item = m_editor->build<TonquillTextBlock>(block);
    item->setSelected(true);
    m_editor->pointer.press(blockCorner);
    QCOMPARE(item->itemStatus(), 3);
    m_editor->pointer.moveTo(blockCorner + QPointF(10, 10));
    m_host->send(hostsGlyph.toLatin1());
    m_editor->pointer.moveTo(blockCorner + QPointF(20, 20));
    QVERIFY(!item);
    verifyOnlyTheHostsDocument();
    m_editor->pointer.release(blockCorner + QPointF(20, 20));
    verifyOnlyTheHostsDocument();
    goOn();
}

void InterruptionsTest::whileTheBlockIsReleasedAfterAResize()
{
    const QPointer<TonquillTextBlock> item = m_editor->build<TonquillTextBlock>(block);
    item->setSelected(true);
    m_editor->pointer.press(blockCorner);
    m_editor->pointer.moveTo(blockCorner + QPointF(10, 10));
    m_host->send(hostsGlyph.toLatin1());
    m_editor->pointer.release(blockCorner + QPointF(10, 10));
    QVERIFY(!item);
    verifyOnlyTheHostsDocument();
    goOn();
}

void InterruptionsTest::whileTheContextMenuIsOpen_data()
{
    QTest::addColumn<bool>("choosesEdit");
    QTest::newRow("closed") << false;
    QTest::newRow("Edit... chosen") << true;
}

void InterruptionsTest::whileTheContextMenuIsOpen()
{
    QFETCH(const bool, choosesEdit);
    auto *item = m_editor->build<TonquillText>(text);
    item->setSelected(true);
    bool opened = false;
    ModalAnswer::whenOpen<QMenu>([&](QMenu &menu) {
        opened = true;
        hostSendsItsDocument();
        if (choosesEdit)
            ModalAnswer::choose(menu, 0);
    });
    m_editor->pointer.press(onFrameOf(item), Qt::RightButton);
    QVERIFY(opened);
    m_editor->pointer.release(onFrameOf(ItemProbe::onlyItem(m_editor->scene())), Qt::RightButton);
    verifyOnlyTheHostsDocument();
    goOn();
}

void InterruptionsTest::whileTheEditDialogIsOpen_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("accepted") << QByteArray("pb_ok");
    QTest::newRow("rejected") << QByteArray("pb_cancel");
}

void InterruptionsTest::whileTheEditDialogIsOpen()
{
    QFETCH(const QByteArray, button);
    auto *item = m_editor->build<TonquillText>(text);
    bool opened = false;
    ModalAnswer::whenOpen<QMenu>([&](QMenu &menu) {
        ModalAnswer::whenOpen<TonquillSimpleTextDlg>([&](TonquillSimpleTextDlg &dialog) {
            opened = true;
            lineEditOf(dialog)->setText("Presto");
            hostSendsItsDocument();
            ModalAnswer::clickButton(dialog, button);
        });
        ModalAnswer::choose(menu, 0);
    });
    m_editor->pointer.press(onFrameOf(item), Qt::RightButton);
    QVERIFY(opened);
    verifyOnlyTheHostsDocument();
    // Nothing was edited, so nothing is told.
    m_editor->window.OnToolBar1ButtonUndo();
    QTRY_COMPARE(m_host->messages.join(""), QString("tonquill2tw command:undo"));
    m_editor->pointer.release(elsewhere, Qt::RightButton);
    goOn();
}

void InterruptionsTest::whileTheSizeMenuIsOpen_data()
{
    QTest::addColumn<int>("entry");
    QTest::newRow("closed") << -1;
    QTest::newRow("size chosen") << 6;
}

void InterruptionsTest::whileTheSizeMenuIsOpen()
{
    QFETCH(const int, entry);
    auto *item = m_editor->build<TonquillTextBlock>(block);
    item->setSelected(true);
    bool opened = false;
    QPointer<QMenu> menuOfTheBlock;
    ModalAnswer::whenOpen<QMenu>([&](QMenu &menu) {
        opened = true;
        menuOfTheBlock = &menu;
        hostSendsItsDocument();
        if (menuOfTheBlock && entry >= 0)
            ModalAnswer::choose(menu, entry);
    });
    m_editor->pointer.click(onBlock, Qt::RightButton);
    QVERIFY(opened);
    verifyOnlyTheHostsDocument();
    goOn();
}

/** The new text belongs to the document that is there when the dialog is accepted. */
void InterruptionsTest::whileTheInsertDialogIsOpen()
{
    m_editor->scene().constructItem(glyph, false, 0);
    bool opened = false;
    ModalAnswer::whenOpen<TonquillSimpleTextDlg>([&](TonquillSimpleTextDlg &dialog) {
        opened = true;
        lineEditOf(dialog)->setText("Presto");
        hostSendsItsDocument();
        ModalAnswer::clickButton(dialog, "pb_ok");
    });
    m_editor->window.OnToolBar2ButtonText();
    QVERIFY(opened);
    QCOMPARE(ItemProbe::waitingItems(m_editor->scene()), 1);
    QCOMPARE(m_editor->records().size(), 2);
    QVERIFY(m_editor->records().contains(hostsGlyph));
    goOn();
}

TONQUILL_TEST_MAIN(InterruptionsTest)
#include "tst_interruptions.moc"
