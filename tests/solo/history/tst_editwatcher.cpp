#include "EditWatcher.h"
#include "SoloTestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillTextBlock.h"
#include "TonquillView.h"

#include <QSignalSpy>

/** What is an edit of its own, and what is a part of another or none. */
class EditWatcherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aHeldArrowKeyIsOneStep();
    void aHeldDeleteIsOneStep();
    void eachTapOfAnArrowKeyIsAStep();
    void aReleaseThatChangedNothingIsNoStep();
    void pasteIsAStep();
    void deletionIsAStep();
    void aRunOfTypingIsOneStep();
    void aBlocksSizeOfTypeIsAStep();
    void pagesAreSteps();
    void anItemThatWaitsToBePlacedIsNoEdit();
    void undoKeepsTheSelectionOfWhatIsStillThere();
    void undoLeavesTheViewWhereItIs();
    void aStepReplacesOnlyWhatItChanged();
    void aStepOfManyItemsGoesBackAsWell();
    void anItemOfAnEmbeddingProgramIsNoPartOfTheDocument();

private:
    int stepsBack();
    TonquillTextBlock *addEditedBlock();

    std::unique_ptr<TonquillMainWin> m_window;
    std::unique_ptr<EditWatcher> m_edits;
};

void EditWatcherTest::init()
{
    m_window = std::make_unique<TonquillMainWin>(TonquillMainWin::HostConnection::Later);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_window->InsertBitmapSymbol(19, false, true)->setPos(200, 200);
    m_edits = std::make_unique<EditWatcher>(*m_window);
    m_window->view()->setFocus();
    m_window->scene->items().constFirst()->topLevelItem()->setSelected(true);
}

void EditWatcherTest::cleanup()
{
    m_edits.reset();
    m_window.reset();
}

/** How many steps can be undone. */
int EditWatcherTest::stepsBack()
{
    QCoreApplication::processEvents();
    int steps = 0;
    while (m_edits->undo())
        ++steps;
    return steps;
}

TonquillTextBlock *EditWatcherTest::addEditedBlock()
{
    auto *block = new TonquillTextBlock(false, QStringLiteral("la"), QRectF(0, 0, 200, 60));
    m_window->scene->addNewItem(block);
    m_edits->reset();
    block->setSelected(true);
    block->setTextInteractionFlags(Qt::TextEditorInteraction);
    block->setFocus();
    return block;
}

void EditWatcherTest::aHeldArrowKeyIsOneStep()
{
    QWidget *viewport = m_window->view();
    for (int i = 0; i < 20; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), i > 0);
        QCoreApplication::sendEvent(viewport, &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier, QString(), i < 19);
        QCoreApplication::sendEvent(viewport, &release);
        QCoreApplication::processEvents();
    }
    QVERIFY(m_edits->document().items.contains("tonquill_bitmap 220 200 19"));
    QCOMPARE(stepsBack(), 1);
    QVERIFY(m_edits->document().items.contains("tonquill_bitmap 200 200 19"));
}

void EditWatcherTest::aHeldDeleteIsOneStep()
{
    for (int i = 0; i < 3; ++i) {
        TonquillBitmap *glyph = m_window->InsertBitmapSymbol(22, false, true);
        glyph->setPos(300, 100 * i);
        glyph->setSelected(true);
    }
    m_edits->reset();
    const QByteArrayList before = m_edits->document().items.toList();
    QCOMPARE(before.size(), 4);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(), i > 0);
        QCoreApplication::sendEvent(m_window->view(), &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Delete, Qt::NoModifier, QString(), i < 2);
        QCoreApplication::sendEvent(m_window->view(), &release);
        QCoreApplication::processEvents();
        // Everything goes with the first report, not an item with each.
        QVERIFY(DocumentSnapshot::capture(*m_window).items.isEmpty());
    }
    QCOMPARE(stepsBack(), 1);
    QCOMPARE(m_edits->document().items.toList(), before);
}

void EditWatcherTest::eachTapOfAnArrowKeyIsAStep()
{
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(m_window->view(), Qt::Key_Down);
        QCoreApplication::processEvents();
    }
    QCOMPARE(stepsBack(), 3);
}

void EditWatcherTest::aReleaseThatChangedNothingIsNoStep()
{
    QTest::keyClick(m_window->view(), Qt::Key_Home);
    QTest::mouseClick(m_window->view()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QCOMPARE(stepsBack(), 0);
}

void EditWatcherTest::pasteIsAStep()
{
    QTest::keyClick(m_window->view(), Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(m_window->view(), Qt::Key_V, Qt::ControlModifier);
    QTRY_VERIFY(m_edits->document().items.contains("tonquill_bitmap 230 230 19"));
    QCOMPARE(stepsBack(), 1);
}

void EditWatcherTest::deletionIsAStep()
{
    QTest::keyClick(m_window->view(), Qt::Key_Delete);
    QTRY_VERIFY(m_edits->document().items.isEmpty());
    QCOMPARE(stepsBack(), 1);
    QCOMPARE(m_edits->document().items.toList(), QByteArrayList{"tonquill_bitmap 200 200 19"});
}

void EditWatcherTest::aRunOfTypingIsOneStep()
{
    const TonquillTextBlock *block = addEditedBlock();
    for (const char letter : QByteArray("lalala")) {
        QTest::keyClick(m_window->view(), letter);
        QCoreApplication::processEvents();
    }
    QCOMPARE(block->toPlainText(), QString("lalalala"));
    QCOMPARE(stepsBack(), 1);
}

void EditWatcherTest::aBlocksSizeOfTypeIsAStep()
{
    auto *block = addEditedBlock();
    QFont font = block->font();
    font.setPointSize(30);
    block->setFont(font);
    m_edits->check();
    QVERIFY(m_edits->document().items.constLast().contains("size=30"));
    QCOMPARE(stepsBack(), 1);
}

void EditWatcherTest::pagesAreSteps()
{
    m_window->OnMenuAddPageEnd();
    m_edits->check();
    m_window->OnMenuAddPageBeginning();
    m_edits->check();
    QCOMPARE(m_window->pageCount, 3);
    QCOMPARE(stepsBack(), 2);
    QCOMPARE(m_window->pageCount, 1);
    QCOMPARE(m_edits->document().items.toList(), QByteArrayList{"tonquill_bitmap 200 200 19"});
}

void EditWatcherTest::anItemThatWaitsToBePlacedIsNoEdit()
{
    m_window->InsertBitmapSymbol(22, true, true);
    m_edits->check();
    QCOMPARE(stepsBack(), 0);
}

void EditWatcherTest::undoKeepsTheSelectionOfWhatIsStillThere()
{
    QTest::keyClick(m_window->view(), Qt::Key_Right);
    QVERIFY(m_edits->undo());
    const QList<QGraphicsItem *> selected = m_window->scene->selectedItems();
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.constFirst()->pos(), QPointF(200, 200));
}

void EditWatcherTest::undoLeavesTheViewWhereItIs()
{
    m_window->scene->setPageNum(5);
    m_edits->reset();
    m_window->OnSetCurPage(4);
    const QPointF place = m_window->view()->curScenePos();
    m_window->InsertBitmapSymbol(22, false, true)->setPos(100, 3600);
    QVERIFY(m_edits->undo());
    QCOMPARE(m_window->view()->curScenePos(), place);
}

/** Three glyphs on one another; the middle one is moved, so that it has to come between them again.
 */
void EditWatcherTest::aStepReplacesOnlyWhatItChanged()
{
    QList<QPointer<TonquillBitmap>> glyphs;
    for (const int id : {20, 21, 22}) {
        glyphs.append(m_window->InsertBitmapSymbol(id, false, true));
        glyphs.constLast()->setPos(300, 300);
    }
    m_edits->reset();
    const QByteArrayList before = m_edits->document().items.toList();
    glyphs[1]->moveBy(50, 0);
    m_edits->check();

    QVERIFY(m_edits->undo());

    QVERIFY(glyphs[0] && !glyphs[1] && glyphs[2]);
    QCOMPARE(DocumentSnapshot::capture(*m_window).items.toList(), before);
    QCOMPARE(m_edits->document().items.toList(), before);
    QVERIFY(m_edits->redo());
    QCOMPARE(DocumentSnapshot::capture(*m_window).items.toList(),
             QByteArrayList({"tonquill_bitmap 200 200 19", "tonquill_bitmap 300 300 20",
                             "tonquill_bitmap 350 300 21", "tonquill_bitmap 300 300 22"}));
}

void EditWatcherTest::aStepOfManyItemsGoesBackAsWell()
{
    for (int i = 0; i < 200; ++i)
        m_window->InsertBitmapSymbol(22, false, true)->setPos(i, 400);
    m_edits->reset();
    const QByteArrayList before = m_edits->document().items.toList();
    for (QGraphicsItem *item : DocumentSnapshot::itemsOf(*m_window)) {
        item->setSelected(true);
        item->moveBy(0, 7);
    }
    m_edits->check();

    QVERIFY(m_edits->undo());

    QCOMPARE(DocumentSnapshot::capture(*m_window).items.toList(), before);
    QCOMPARE(m_window->scene->selectedItems().size(), 201);
}

/** An item that has Qt's default type, which is that of a glyph. */
class EmbeddedItem : public QGraphicsItem
{
public:
    QRectF boundingRect() const override { return QRectF(0, 0, 10, 10); }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override {}
};

void EditWatcherTest::anItemOfAnEmbeddingProgramIsNoPartOfTheDocument()
{
    auto *embedded = new EmbeddedItem;
    QCOMPARE(embedded->type(), int(TonquillBitmap::Type));
    m_window->scene->addItem(embedded);
    m_edits->check();
    QCOMPARE(m_edits->document().items.toList(), QByteArrayList{"tonquill_bitmap 200 200 19"});
    QVERIFY(!DocumentSnapshot::isItemHeld(*m_window));
}

TONQUILL_SOLO_TEST_MAIN(EditWatcherTest)
#include "tst_editwatcher.moc"
