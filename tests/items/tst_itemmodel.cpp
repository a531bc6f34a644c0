#include "ItemProbe.h"
#include "ScenePointer.h"
#include "SelectionFrame.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"
#include "TonquillTimeSig.h"
#include "TonquillVectorGrandstaff.h"
#include "TonquillVectorInteractiveLine.h"
#include "TonquillVectorLineTab.h"
#include "TonquillVectorNoteTie.h"
#include "TonquillVectorTriplet.h"

#include <QMetaProperty>

namespace
{
using Maker = QGraphicsItem *(*)(bool adding);

template <typename Vector>
QGraphicsItem *makeVector(bool adding)
{
    return new Vector(adding, QPointF(0, 0), QPointF(200, 100));
}

QGraphicsItem *makeBitmap(bool adding)
{
    QPixmap picture(60, 60);
    picture.fill(Qt::black);
    return new TonquillBitmap(picture, 2, adding, QPixmap());
}

QGraphicsItem *makeText(bool adding)
{
    auto *text = new TonquillText(adding);
    text->setPlainText("Allegro");
    return text;
}

QGraphicsItem *makeTextBlock(bool adding)
{
    return new TonquillTextBlock(adding, "Some text", QRectF(0, 0, 200, 100));
}

QGraphicsItem *makeTimeSig(bool adding)
{
    return new TonquillTimeSig(3, 4, adding);
}

QObject *asObject(QGraphicsItem *item)
{
    return dynamic_cast<QObject *>(item);
}

int statusOf(QGraphicsItem *item)
{
    return asObject(item)->property("itemStatus").toInt();
}

void addItemRows()
{
    QTest::addColumn<void *>("maker");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<double>("z");
    const auto row = [](const char *name, Maker maker, int type, const char *keyword, double z) {
        QTest::newRow(name) << reinterpret_cast<void *>(maker) << 65536 + type
                            << QString::fromLatin1(keyword) << z;
    };
    row("glyph", makeBitmap, 0, "tonquill_bitmap", 10);
    row("text", makeText, 1, "tonquill_text", 10);
    row("text block", makeTextBlock, 2, "tonquill_textblock_begin", 10);
    row("time signature", makeTimeSig, 3, "tonquill_timesig", 10);
    row("grand staff", makeVector<TonquillVectorGrandstaff>, 4, "tonquill_grandstaff", 0);
    row("line", makeVector<TonquillVectorInteractiveLine>, 5, "tonquill_interactiveline", 0);
    row("tablature", makeVector<TonquillVectorLineTab>, 6, "tonquill_linetab", 0);
    row("tie", makeVector<TonquillVectorNoteTie>, 7, "tonquill_notetie", 0);
    row("triplet", makeVector<TonquillVectorTriplet>, 8, "tonquill_triplet", 0);
}

QGraphicsItem *makeFromRow(bool adding)
{
    QFETCH(void *, maker);
    return reinterpret_cast<Maker>(maker)(adding);
}

/** A point of the item, in scene coordinates, that lies on none of its anchors. */
QPointF bodyOf(QGraphicsItem *item)
{
    return item->mapToScene(item->boundingRect().center());
}
/** An item of the row on the scene of a window, and the pointer there. */
struct ItemOnScene
{
    explicit ItemOnScene(bool adding)
        : pointer(*window.scene)
        , item(makeFromRow(adding))
    {
        window.scene->addNewItem(item);
        item->setPos(300, 300);
    }

    TonquillMainWin window;
    ScenePointer pointer;
    QGraphicsItem *item; ///< the scene owns it
};
} // namespace

/** What all items have in common. */
class ItemModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typeKeywordAndStacking_data() { addItemRows(); }
    void typeKeywordAndStacking();
    void flagsOfPicturesAndTexts_data();
    void flagsOfPicturesAndTexts();
    void statusIsAReadOnlyInt_data() { addItemRows(); }
    void statusIsAReadOnlyInt();
    void addingMeansWaiting_data() { addItemRows(); }
    void addingMeansWaiting();
    void selectionAtConstruction_data();
    void selectionAtConstruction();
    void recordIsAskedForByName_data() { addItemRows(); }
    void recordIsAskedForByName();
    void recordBeginsWithTheKeywordOfTheItem_data() { addItemRows(); }
    void recordBeginsWithTheKeywordOfTheItem();
    void recordOfAGlyphHasTheSymbolOfTheItem();
    void frameIsNoObjectAndHasNoKeyword_data() { addItemRows(); }
    void frameIsNoObjectAndHasNoKeyword();
    void waitingItemFollowsAndIgnoresThePress_data() { addItemRows(); }
    void waitingItemFollowsAndIgnoresThePress();
    void builtItemNeverFollows_data() { addItemRows(); }
    void builtItemNeverFollows();
    void dragMovesAndReleasePlaces_data() { addItemRows(); }
    void dragMovesAndReleasePlaces();
    void twoButtonsStartNothing_data() { addItemRows(); }
    void twoButtonsStartNothing();
};

void ItemModelTest::typeKeywordAndStacking()
{
    QFETCH(int, type);
    QFETCH(QString, keyword);
    QFETCH(double, z);
    const std::unique_ptr<QGraphicsItem> item(makeFromRow(false));
    QCOMPARE(item->type(), type);
    QCOMPARE(item->data(257), QVariant(keyword));
    QCOMPARE(item->zValue(), z);
    QCOMPARE(item->childItems().size(), 1);
    QCOMPARE(item->childItems().constFirst()->zValue(), 0.0);
}

void ItemModelTest::flagsOfPicturesAndTexts_data()
{
    QTest::addColumn<void *>("maker");
    QTest::newRow("glyph") << reinterpret_cast<void *>(&makeBitmap);
    QTest::newRow("text") << reinterpret_cast<void *>(&makeText);
    QTest::newRow("text block") << reinterpret_cast<void *>(&makeTextBlock);
}

void ItemModelTest::flagsOfPicturesAndTexts()
{
    const std::unique_ptr<QGraphicsItem> item(makeFromRow(false));
    // Movable is 1, selectable is 2.
    QCOMPARE(int(item->flags()), 3);
}

void ItemModelTest::statusIsAReadOnlyInt()
{
    const std::unique_ptr<QGraphicsItem> item(makeFromRow(false));
    QObject *object = asObject(item.get());
    QVERIFY(object);
    const QMetaObject *meta = object->metaObject();
    const QMetaProperty status = meta->property(meta->indexOfProperty("itemStatus"));
    QVERIFY(status.isReadable());
    QVERIFY(!status.isWritable());
    QCOMPARE(status.metaType(), QMetaType::fromType<int>());
    QVERIFY(object->property("itemStatus").isValid());
    QVERIFY(!object->setProperty("itemStatus", 2));
    QCOMPARE(statusOf(item.get()), 0);
}

void ItemModelTest::addingMeansWaiting()
{
    const std::unique_ptr<QGraphicsItem> waiting(makeFromRow(true));
    const std::unique_ptr<QGraphicsItem> built(makeFromRow(false));
    QCOMPARE(statusOf(waiting.get()), 1);
    QCOMPARE(statusOf(built.get()), 0);
}

void ItemModelTest::selectionAtConstruction_data()
{
    QTest::addColumn<void *>("maker");
    QTest::addColumn<bool>("adding");
    QTest::addColumn<bool>("selected");
    const auto row = [](const char *name, Maker maker, bool adding, bool selected) {
        QTest::newRow(name) << reinterpret_cast<void *>(maker) << adding << selected;
    };
    row("new glyph", makeBitmap, true, true);
    row("built glyph", makeBitmap, false, false);
    row("new text block", makeTextBlock, true, true);
    row("built text block", makeTextBlock, false, false);
    row("new text", makeText, true, true);
    row("built text", makeText, false, true);
}

void ItemModelTest::selectionAtConstruction()
{
    QFETCH(bool, adding);
    QFETCH(bool, selected);
    const std::unique_ptr<QGraphicsItem> item(makeFromRow(adding));
    QCOMPARE(item->isSelected(), selected);
}

void ItemModelTest::recordIsAskedForByName()
{
    QFETCH(QString, keyword);
    const std::unique_ptr<QGraphicsItem> item(makeFromRow(false));
    item->setPos(120.9, -0.5);
    QString record;
    QVERIFY(QMetaObject::invokeMethod(asObject(item.get()), "getParamStr", Qt::DirectConnection,
                                      Q_RETURN_ARG(QString, record)));
    QVERIFY2(record.endsWith('\n'), qPrintable(record));
    // A glyph's first field is its symbol, 2 here.
    const QString first = keyword == "tonquill_bitmap" ? " 2 120 0 " : " 120 0 ";
    QVERIFY2(record.startsWith(keyword + first), qPrintable(record));
}

/** The keyword is read from the item's data, where an embedding program may have put another. */
void ItemModelTest::recordBeginsWithTheKeywordOfTheItem()
{
    QFETCH(QString, keyword);
    const std::unique_ptr<QGraphicsItem> item(makeFromRow(false));
    const QString before = ItemProbe::recordOf(item.get());
    QVERIFY(before.startsWith(keyword + ' '));
    item->setData(257, QString("other_keyword"));
    QCOMPARE(ItemProbe::recordOf(item.get()), "other_keyword" + before.mid(keyword.size()));
}

void ItemModelTest::recordOfAGlyphHasTheSymbolOfTheItem()
{
    const std::unique_ptr<QGraphicsItem> item(makeBitmap(false));
    QCOMPARE(item->data(256), QVariant(2));
    item->setData(256, 13);
    QCOMPARE(ItemProbe::recordOf(item.get()), QString("tonquill_bitmap 13 0 0 0\n"));
}

void ItemModelTest::frameIsNoObjectAndHasNoKeyword()
{
    const std::unique_ptr<QGraphicsItem> item(makeFromRow(false));
    QGraphicsItem *frame = item->childItems().constFirst();
    QCOMPARE(frame->type(), 66901);
    QVERIFY(!asObject(frame));
    QVERIFY(!frame->data(257).isValid());
}

void ItemModelTest::waitingItemFollowsAndIgnoresThePress()
{
    ItemOnScene scene(true);
    auto &[window, pointer, item] = scene;
    item->setSelected(true);
    pointer.moveTo(QPointF(300, 400));
    QCOMPARE(item->pos(), QPointF(300, 400));
    pointer.press(QPointF(300, 400));
    QCOMPARE(statusOf(item), 1);
    QCOMPARE(item->pos(), QPointF(300, 400));
    pointer.release(QPointF(300, 400));
    // A figure has its end point to be placed yet.
    const bool isFigure = item->type() >= QGraphicsItem::UserType + 4;
    QCOMPARE(statusOf(item), isFigure ? 4 : 0);
    pointer.moveTo(QPointF(500, 500));
    QCOMPARE(item->pos(), QPointF(300, 400));
}

void ItemModelTest::builtItemNeverFollows()
{
    ItemOnScene scene(false);
    auto &[window, pointer, item] = scene;
    item->setSelected(true);
    pointer.moveTo(bodyOf(item));
    pointer.moveTo(QPointF(10, 10));
    QCOMPARE(item->pos(), QPointF(300, 300));
    pointer.press(bodyOf(item));
    QCOMPARE(statusOf(item), 2);
}

void ItemModelTest::dragMovesAndReleasePlaces()
{
    ItemOnScene scene(false);
    auto &[window, pointer, item] = scene;
    const QPointF from = bodyOf(item);
    pointer.press(from);
    pointer.moveTo(from + QPointF(7, 9));
    QCOMPARE(item->pos(), QPointF(307, 309));
    pointer.moveTo(from + QPointF(-20, 40));
    QCOMPARE(item->pos(), QPointF(280, 340));
    pointer.release(from + QPointF(-20, 40));
    QCOMPARE(statusOf(item), 0);
    pointer.moveTo(QPointF(0, 0));
    QCOMPARE(item->pos(), QPointF(280, 340));
}

void ItemModelTest::twoButtonsStartNothing()
{
    ItemOnScene scene(false);
    auto &[window, pointer, item] = scene;
    item->setSelected(true);
    pointer.press(QPointF(10, 10), Qt::MiddleButton);
    pointer.press(bodyOf(item), Qt::LeftButton);
    QCOMPARE(statusOf(item), 0);
    pointer.moveTo(bodyOf(item) + QPointF(10, 10));
    QCOMPARE(item->pos(), QPointF(300, 300));
}

TONQUILL_TEST_MAIN(ItemModelTest)
#include "tst_itemmodel.moc"
