#include "ScenePointer.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"

#include <QDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>

namespace
{
using Removal = void (*)(TonquillScene &scene, QGraphicsItem *item);

void type(TonquillScene &scene, QEvent::Type type, int key, const QString &text = QString())
{
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&scene, &event);
}

void byDeleteKey(TonquillScene &scene, QGraphicsItem *item)
{
    if (QGraphicsObject *object = item->toGraphicsObject()) {
        // A text that is edited would take the key for itself.
        if (auto *text = qobject_cast<QGraphicsTextItem *>(object))
            text->setTextInteractionFlags(Qt::NoTextInteraction);
    }
    scene.clearSelection();
    item->setSelected(true);
    type(scene, QEvent::KeyRelease, Qt::Key_Delete);
}

void byClearing(TonquillScene &scene, QGraphicsItem *)
{
    scene.clearScene();
}

void byDeletingThePage(TonquillScene &scene, QGraphicsItem *item)
{
    item->setPos(200, 200);
    scene.deletePage(1);
}

void byADocument(TonquillScene &, QGraphicsItem *)
{
    g_pMainWin->twMsg(QString());
}

void byItsDestruction(TonquillScene &, QGraphicsItem *item)
{
    delete item;
}

void byTakingItAway(TonquillScene &scene, QGraphicsItem *item)
{
    scene.removeItem(item);
    delete item;
}

void addRemovalRows()
{
    QTest::addColumn<Removal>("remove");
    QTest::newRow("delete key") << Removal(byDeleteKey);
    QTest::newRow("clearing") << Removal(byClearing);
    QTest::newRow("deletion of the page") << Removal(byDeletingThePage);
    QTest::newRow("document of the host") << Removal(byADocument);
    QTest::newRow("destruction") << Removal(byItsDestruction);
    QTest::newRow("taken away") << Removal(byTakingItAway);
}

/** Opens and closes the context menu of a text. */
void openMenuOf(TonquillScene &scene, TonquillText *text)
{
    QTimer::singleShot(0, [] {
        if (QWidget *menu = QApplication::activePopupWidget())
            menu->close();
    });
    scene.onTextItemContextMenu(text);
}

/** Edits the text whose menu was open, and tells whether a dialog came up. */
bool editOpensADialog(TonquillScene &scene)
{
    bool opened = false;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [&opened] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            opened = true;
            dialog->reject();
        }
    });
    closer.start(1);
    scene.onEditTextItem();
    return opened;
}
} // namespace

Q_DECLARE_METATYPE(Removal)

/** An item that goes, whichever way, is forgotten by all who remembered it. */
class ForgettingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spaceRepeatsTheLastAddedItem();
    void lastAddedItemIsForgotten_data() { addRemovalRows(); }
    void lastAddedItemIsForgotten();
    void lastAddedItemIsForgottenWhenDropped();
    void waitingItemIsForgotten_data() { addRemovalRows(); }
    void waitingItemIsForgotten();
    void movedItemIsForgotten_data() { addRemovalRows(); }
    void movedItemIsForgotten();
    void contextTextIsEdited();
    void contextTextIsForgotten_data() { addRemovalRows(); }
    void contextTextIsForgotten();
    void contextTextIsForgottenWhenDropped();
    void quickTextBlockIsForgotten_data() { addRemovalRows(); }
    void quickTextBlockIsForgotten();
};

void ForgettingTest::spaceRepeatsTheLastAddedItem()
{
    TonquillMainWin window;
    window.InsertBitmapSymbol(2, false, false);
    type(*window.scene, QEvent::KeyRelease, Qt::Key_Space);
    QCOMPARE(window.scene->items().size(), 4);
}

void ForgettingTest::lastAddedItemIsForgotten()
{
    QFETCH(Removal, remove);
    TonquillMainWin window;
    remove(*window.scene, window.InsertBitmapSymbol(2, false, false));
    QVERIFY(window.scene->items().isEmpty());
    type(*window.scene, QEvent::KeyRelease, Qt::Key_Space);
    QVERIFY(window.scene->items().isEmpty());
}

void ForgettingTest::lastAddedItemIsForgottenWhenDropped()
{
    TonquillMainWin window;
    window.InsertBitmapSymbol(2, true, false);
    window.scene->isNewItemIsAdding();
    type(*window.scene, QEvent::KeyRelease, Qt::Key_Space);
    QVERIFY(window.scene->items().isEmpty());
}

void ForgettingTest::waitingItemIsForgotten()
{
    QFETCH(Removal, remove);
    TonquillMainWin window;
    ScenePointer pointer(*window.scene);
    remove(*window.scene, window.InsertBitmapSymbol(2, true, false));
    QVERIFY(!window.scene->isNewItemIsAdding());
    pointer.click(QPointF(300, 300));
    QVERIFY(window.scene->items().isEmpty());
}

void ForgettingTest::movedItemIsForgotten()
{
    QFETCH(Removal, remove);
    TonquillMainWin window;
    ScenePointer pointer(*window.scene);
    auto *text = new TonquillText(false);
    text->setPlainText("Allegro");
    window.scene->addNewItem(text);
    text->setPos(200, 200);
    pointer.press(text->sceneBoundingRect().center());
    QCOMPARE(text->property("itemStatus").toInt(), 2);
    remove(*window.scene, text);
    pointer.moveTo(QPointF(300, 300));
    pointer.release(QPointF(300, 300));
    QVERIFY(window.scene->items().isEmpty());
    QVERIFY(!window.scene->mouseGrabberItem());
}

void ForgettingTest::contextTextIsEdited()
{
    TonquillMainWin window;
    auto *text = new TonquillText(false);
    window.scene->addNewItem(text);
    openMenuOf(*window.scene, text);
    QVERIFY(editOpensADialog(*window.scene));
}

void ForgettingTest::contextTextIsForgotten()
{
    QFETCH(Removal, remove);
    TonquillMainWin window;
    auto *text = new TonquillText(false);
    text->setPlainText("Allegro");
    window.scene->addNewItem(text);
    openMenuOf(*window.scene, text);
    remove(*window.scene, text);
    QVERIFY(window.scene->items().isEmpty());
    QVERIFY(!editOpensADialog(*window.scene));
}

void ForgettingTest::contextTextIsForgottenWhenDropped()
{
    TonquillMainWin window;
    auto *text = new TonquillText(true);
    window.scene->addNewItem(text);
    openMenuOf(*window.scene, text);
    window.scene->isNewItemIsAdding();
    QVERIFY(!editOpensADialog(*window.scene));
}

void ForgettingTest::quickTextBlockIsForgotten()
{
    QFETCH(Removal, remove);
    TonquillMainWin window;
    ScenePointer pointer(*window.scene);
    window.quickText = true;
    type(*window.scene, QEvent::KeyPress, Qt::Key_A, "a");
    QCOMPARE(window.scene->items().size(), 2);
    pointer.moveTo(QPointF(200, 200));
    auto *block = qgraphicsitem_cast<TonquillTextBlock *>(window.scene->selectedItems().value(0));
    QVERIFY(block);
    QCOMPARE(block->pos(), QPointF(200, 200));
    remove(*window.scene, block);
    QVERIFY(window.scene->items().isEmpty());
    pointer.moveTo(QPointF(300, 300));
    pointer.click(QPointF(300, 300));
    type(*window.scene, QEvent::KeyPress, Qt::Key_B, "b");
    QCOMPARE(window.scene->items().size(), 2);
}

TONQUILL_TEST_MAIN(ForgettingTest)
#include "tst_forgetting.moc"
