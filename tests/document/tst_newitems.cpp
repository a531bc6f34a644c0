#include "PaperDocument.h"
#include "ProbeItems.h"
#include "ScenePointer.h"
#include "TestMain.h"
#include "TonquillVectorInteractiveLine.h"

namespace
{
QGraphicsObject *newLine()
{
    return new TonquillVectorInteractiveLine(true, QPointF(0, 0), QPointF(0, 0));
}

TonquillBitmap *newGlyph()
{
    QPixmap picture(10, 10);
    picture.fill(Qt::black);
    return new TonquillBitmap(picture, 2, true, QPixmap());
}
} // namespace

/** Items that wait to be placed, and what becomes of those that are dropped instead. */
class NewItemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingWaitsOnAnEmptyScene();
    void waitingItemIsDroppedAndLives();
    void placedItemsStay();
    void halfPlacedFigureStays();
    void itemAddedByOthersIsDroppedToo();
    void onlyTheTopmostIsDropped_data();
    void onlyTheTopmostIsDropped();
    void paletteLeavesOneWaitingItem();
    void droppedItemsGoWithTheScene();
    void droppedItemMayBeDestroyedByOthers();
    void droppedItemMayComeBack();
    void clearedSceneHasNothingWaiting();
    void buildingAsksNoItemForItsStatus();
    void largeDocumentIsBuiltWhole();
};

void NewItemsTest::nothingWaitsOnAnEmptyScene()
{
    PaperDocument document;
    QVERIFY(!document.scene->isNewItemIsAdding());
    QVERIFY(document.scene->items().isEmpty());
}

void NewItemsTest::waitingItemIsDroppedAndLives()
{
    PaperDocument document;
    const QPointer<TonquillBitmap> item = newGlyph();
    document.scene->addNewItem(item);
    QVERIFY(!document.scene->isNewItemIsAdding());
    QVERIFY(item);
    QVERIFY(!item->scene());
    QVERIFY(document.scene->items().isEmpty());
    QVERIFY(document.scene->selectedItems().isEmpty());
    QVERIFY(!document.scene->isNewItemIsAdding());
}

void NewItemsTest::placedItemsStay()
{
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    const TonquillBitmap *built = document.addGlyph(QPointF(100, 100));
    TonquillBitmap *placed = newGlyph();
    document.scene->addNewItem(placed);
    pointer.click(QPointF(300, 300));
    QVERIFY(!document.scene->isNewItemIsAdding());
    QCOMPARE(built->scene(), document.scene.get());
    QCOMPARE(placed->scene(), document.scene.get());
}

void NewItemsTest::halfPlacedFigureStays()
{
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    QGraphicsObject *line = newLine();
    document.scene->addNewItem(line);
    pointer.click(QPointF(300, 300));
    QCOMPARE(line->property("itemStatus").toInt(), 4);
    QVERIFY(!document.scene->isNewItemIsAdding());
    QCOMPARE(line->scene(), document.scene.get());
}

void NewItemsTest::itemAddedByOthersIsDroppedToo()
{
    PaperDocument document;
    const TonquillBitmap *item = newGlyph();
    document.scene->addItem(newGlyph());
    document.scene->addItem(const_cast<TonquillBitmap *>(item));
    QVERIFY(!document.scene->isNewItemIsAdding());
    QVERIFY(!item->scene());
}

void NewItemsTest::onlyTheTopmostIsDropped_data()
{
    QTest::addColumn<bool>("firstIsGlyph");
    QTest::addColumn<bool>("secondIsGlyph");
    QTest::addColumn<bool>("firstIsDropped");
    // Glyphs lie above figures; of items at one height the later lies above.
    QTest::newRow("two glyphs") << true << true << false;
    QTest::newRow("two figures") << false << false << false;
    QTest::newRow("glyph, then figure") << true << false << true;
    QTest::newRow("figure, then glyph") << false << true << false;
}

void NewItemsTest::onlyTheTopmostIsDropped()
{
    QFETCH(bool, firstIsGlyph);
    QFETCH(bool, secondIsGlyph);
    QFETCH(bool, firstIsDropped);
    PaperDocument document;
    QGraphicsItem *first = firstIsGlyph ? static_cast<QGraphicsItem *>(newGlyph()) : newLine();
    QGraphicsItem *second = secondIsGlyph ? static_cast<QGraphicsItem *>(newGlyph()) : newLine();
    document.scene->addNewItem(first);
    document.scene->addNewItem(second);
    QVERIFY(!document.scene->isNewItemIsAdding());
    QCOMPARE(first->scene() == nullptr, firstIsDropped);
    QCOMPARE(second->scene() == nullptr, !firstIsDropped);
    QVERIFY(!document.scene->isNewItemIsAdding());
    QVERIFY(!first->scene() && !second->scene());
}

void NewItemsTest::paletteLeavesOneWaitingItem()
{
    TonquillMainWin window;
    window.OnToolBar2ButtonNote4();
    window.OnToolBar2ButtonNote8();
    window.OnToolBar3ButtonInteractiveLine();
    window.OnToolBar2ButtonRepeatB();
    // One item and its frame.
    QCOMPARE(window.scene->items().size(), 2);
    QCOMPARE(window.scene->notifyTW(), QString("tonquill_pagecount 1\ntonquill_bitmap 7 0 0 0\n"));
}

void NewItemsTest::droppedItemsGoWithTheScene()
{
    PaperDocument document;
    QList<QPointer<TonquillBitmap>> items;
    for (int i = 0; i < 3; ++i) {
        items << newGlyph();
        document.scene->addNewItem(items.last());
        document.scene->isNewItemIsAdding();
    }
    QCOMPARE(items.count(QPointer<TonquillBitmap>()), 0);
    document.scene.reset();
    QCOMPARE(items.count(QPointer<TonquillBitmap>()), 3);
}

void NewItemsTest::droppedItemMayBeDestroyedByOthers()
{
    PaperDocument document;
    TonquillBitmap *item = newGlyph();
    document.scene->addNewItem(item);
    document.scene->isNewItemIsAdding();
    delete item;
    QVERIFY(!document.scene->isNewItemIsAdding());
    document.scene.reset();
    QVERIFY(!document.scene);
}

void NewItemsTest::droppedItemMayComeBack()
{
    PaperDocument document;
    const QPointer<TonquillBitmap> item = newGlyph();
    document.scene->addNewItem(item);
    document.scene->isNewItemIsAdding();
    document.scene->addItem(item);
    QVERIFY(!document.scene->isNewItemIsAdding());
    QVERIFY(item && !item->scene());
    document.scene->addItem(item);
    document.scene.reset();
    QVERIFY(!item);
}

void NewItemsTest::clearedSceneHasNothingWaiting()
{
    PaperDocument document;
    document.scene->addNewItem(newGlyph());
    document.scene->clearScene();
    QVERIFY(!document.scene->isNewItemIsAdding());
    const TonquillBitmap *item = document.addGlyph(QPointF(100, 100));
    QVERIFY(!document.scene->isNewItemIsAdding());
    QCOMPARE(item->scene(), document.scene.get());
}

/** Else building a document of many glyphs would cost the square of their number. */
void NewItemsTest::buildingAsksNoItemForItsStatus()
{
    EventLog log;
    TonquillMainWin window;
    QList<FramedProbe *> probes;
    for (int i = 0; i < 500; ++i) {
        probes << new FramedProbe(log, QString::number(i));
        window.scene->addItem(probes.last());
    }
    for (int i = 0; i < 100; ++i)
        window.scene->constructItem("tonquill_bitmap 2 10 10 0", false, 0);
    int reads = 0;
    for (const FramedProbe *probe : std::as_const(probes))
        reads += probe->statusReads;
    QCOMPARE(reads, 0);
    window.scene->clearScene();
}

void NewItemsTest::largeDocumentIsBuiltWhole()
{
    constexpr int count = 20000;
    QStringList records;
    for (int i = 0; i < count; ++i)
        records << QString("tonquill_bitmap %1 %2 %3 0\n").arg(i % 37).arg(i % 700).arg(i / 20);
    TonquillMainWin window;
    window.twMsg(records.join('|'));
    QCOMPARE(window.scene->items().size(), 2 * count);
    // The records come back topmost first, which is the last built.
    QStringList written = window.scene->notifyTW().split('\n');
    QCOMPARE(written.size(), count + 2);
    QCOMPARE(written[1] + '\n', records.constLast());
    QCOMPARE(written[count] + '\n', records.constFirst());
    window.twMsg(QString());
    QVERIFY(window.scene->items().isEmpty());
}

TONQUILL_TEST_MAIN(NewItemsTest)
#include "tst_newitems.moc"
