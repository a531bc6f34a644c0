#include "GlyphDrawings.h"
#include "ItemModel.h"
#include "PrintedPage.h"
#include "ScenePointer.h"
#include "SelectionFrame.h"
#include "SymbolTable.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QSignalSpy>
#include <QStyleOptionGraphicsItem>

namespace
{
QPixmap pixmap(int width, int height, const QColor &color = Qt::black)
{
    QPixmap result(width, height);
    result.fill(color);
    return result;
}

bool isInverted(TonquillBitmap &item)
{
    return item.getParamStr().endsWith(" 1\n");
}

SelectionFrame *frameOf(const TonquillBitmap &item)
{
    return qgraphicsitem_cast<SelectionFrame *>(item.childItems().value(0));
}

/** Does the steps one after the other: L and R are buttons, + presses, - releases, M moves. */
void act(ScenePointer &pointer, const QString &steps, QPointF at)
{
    for (const QString &step : steps.split(u' ')) {
        const Qt::MouseButton button = step[0] == u'R' ? Qt::RightButton : Qt::LeftButton;
        if (step == "M")
            pointer.moveTo(at);
        else if (step.endsWith(u'+'))
            pointer.press(at, button);
        else
            pointer.release(at, button);
    }
}

constexpr QPointF spot(300, 300);
} // namespace

/** The glyph item. */
class BitmapTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isCentredOnItsPosition_data();
    void isCentredOnItsPosition();
    void isMadeAsTheModelSays();
    void addingDecidesStatusAndSelection_data();
    void addingDecidesStatusAndSelection();
    void wholeRectangleIsHit();
    void anchorIsTheTopLeftCorner();
    void setInvertedShowsTheOtherPixmap();
    void invertedKeepsTheOffsetOfTheNormal();
    void newGlyphIsInverted_data();
    void newGlyphIsInverted();
    void glyphWithoutInvertedFormNeverChanges_data();
    void glyphWithoutInvertedFormNeverChanges();
    void waitingGlyphFollowsThePointer();
    void dragMovesByThePointersWay();
    void pressWithTwoButtonsStartsNoMove();
    void movedGlyphIsFoundAtItsNewPlace();
    void invertedGlyphIsFoundInItsNewBounds();
    void recordHoldsWholeCoordinates_data();
    void recordHoldsWholeCoordinates();
    void unknownSymbolKeepsItsRecord_data();
    void unknownSymbolKeepsItsRecord();
    void unknownSymbolHasNoPicture();
    void selectionShowsOnScreenOnly();
    void theDrawingIsAsFineAsTheZoomAsksFor_data();
    void theDrawingIsAsFineAsTheZoomAsksFor();
    void neverEmitsItemChanged();
};

void BitmapTest::isCentredOnItsPosition_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPointF>("offset");
    QTest::newRow("odd") << QSize(15, 21) << QPointF(-7, -10);
    QTest::newRow("even") << QSize(16, 20) << QPointF(-8, -10);
    QTest::newRow("one pixel") << QSize(1, 1) << QPointF(0, 0);
    QTest::newRow("none") << QSize(0, 0) << QPointF(0, 0);
}

void BitmapTest::isCentredOnItsPosition()
{
    QFETCH(QSize, size);
    QFETCH(QPointF, offset);
    const QPixmap picture = size.isEmpty() ? QPixmap() : pixmap(size.width(), size.height());
    const TonquillBitmap item(picture, 2, false, QPixmap());
    QCOMPARE(item.offset(), offset);
}

void BitmapTest::isMadeAsTheModelSays()
{
    TonquillBitmap item(pixmap(15, 21), 17, false, QPixmap());
    QCOMPARE(item.type(), 65536);
    QCOMPARE(int(item.flags()), 3);
    QCOMPARE(item.zValue(), 10.0);
    QCOMPARE(item.shapeMode(), QGraphicsPixmapItem::BoundingRectShape);
    QCOMPARE(item.data(256), QVariant(17));
    QCOMPARE(item.data(257), QVariant(QString("tonquill_bitmap")));
    QVERIFY(frameOf(item));
    QCOMPARE(frameOf(item)->zValue(), 0.0);
    QVERIFY(!isInverted(item));
}

void BitmapTest::addingDecidesStatusAndSelection_data()
{
    QTest::addColumn<bool>("adding");
    QTest::newRow("from a record") << false;
    QTest::newRow("from the palette") << true;
}

void BitmapTest::addingDecidesStatusAndSelection()
{
    QFETCH(bool, adding);
    const TonquillBitmap item(pixmap(15, 21), 2, adding, QPixmap());
    QCOMPARE(item.property("itemStatus"), QVariant(adding ? 1 : 0));
    QCOMPARE(item.isSelected(), adding);
}

void BitmapTest::wholeRectangleIsHit()
{
    const TonquillBitmap item(pixmap(15, 21, Qt::transparent), 2, false, QPixmap());
    QVERIFY(item.contains(QPointF(0, 0)));
    QVERIFY(item.contains(QPointF(-6, -9)));
}

void BitmapTest::anchorIsTheTopLeftCorner()
{
    const TonquillBitmap item(pixmap(40, 60), 2, false, QPixmap());
    // 40 by 60 round the origin: the corner is (-20, -30), its square 10 by 10 round that.
    QVERIFY(frameOf(item)->isAnchor(item.boundingRect().topLeft()));
    QVERIFY(frameOf(item)->isAnchor(QPointF(-16, -26)));
    QVERIFY(!frameOf(item)->isAnchor(QPointF(-14, -24)));
    QVERIFY(!frameOf(item)->isAnchor(QPointF(20, 30)));
}

void BitmapTest::setInvertedShowsTheOtherPixmap()
{
    const QPixmap normal = pixmap(15, 21);
    const QPixmap inverted = pixmap(15, 21, Qt::red);
    TonquillBitmap item(normal, 2, false, inverted);
    QCOMPARE(item.pixmap().cacheKey(), normal.cacheKey());
    item.setInverted(true);
    QCOMPARE(item.pixmap().cacheKey(), inverted.cacheKey());
    QVERIFY(isInverted(item));
    item.setInverted(true); // which it is
    QCOMPARE(item.pixmap().cacheKey(), inverted.cacheKey());
    item.setInverted(false);
    QCOMPARE(item.pixmap().cacheKey(), normal.cacheKey());
    QVERIFY(!isInverted(item));
}

void BitmapTest::invertedKeepsTheOffsetOfTheNormal()
{
    TonquillBitmap item(pixmap(15, 21), 2, false, pixmap(31, 61));
    item.setInverted(true);
    QCOMPARE(item.offset(), QPointF(-7, -10));
}

void BitmapTest::newGlyphIsInverted_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("inverted");
    QTest::newRow("right held") << "R+" << 1 << true;
    QTest::newRow("right held and moved") << "R+ M" << 1 << true;
    QTest::newRow("right click") << "R+ R-" << 1 << false;
    QTest::newRow("right click twice, held") << "R+ R- R+" << 1 << true;
    QTest::newRow("left click") << "L+ L-" << 0 << false;
    QTest::newRow("left pressed") << "L+" << 1 << false;
    QTest::newRow("left click while right is held") << "R+ L+ L- R-" << 0 << true;
    QTest::newRow("right let go before left") << "R+ L+ R- L-" << 0 << true;
    QTest::newRow("right pressed while left is held") << "L+ R+ L- R-" << 0 << false;
    QTest::newRow("right clicked while left is held") << "L+ R+ R- L-" << 0 << false;
    QTest::newRow("right click on a placed glyph") << "L+ L- R+ R-" << 0 << false;
    QTest::newRow("right held on a placed glyph") << "L+ L- R+" << 0 << false;
    QTest::newRow("right pressed while moving") << "L+ L- L+ R+" << 2 << false;
    QTest::newRow("right clicked while moving") << "L+ L- L+ R+ R- L-" << 0 << false;
    QTest::newRow("placed inverted, then right clicked") << "R+ L+ L- R- R+ R-" << 0 << true;
}

void BitmapTest::newGlyphIsInverted()
{
    QFETCH(QString, steps);
    QFETCH(int, status);
    QFETCH(bool, inverted);
    TonquillMainWin window;
    ScenePointer pointer(*window.scene);
    const int quarter = SymbolTable::note(2);
    TonquillBitmap *item = window.InsertBitmapSymbol(quarter, true, true);
    pointer.moveTo(spot);
    act(pointer, steps, spot);
    QCOMPARE(item->property("itemStatus").toInt(), status);
    QCOMPARE(isInverted(*item), inverted);
    QCOMPARE(item->pixmap().cacheKey(),
             window.symbols.value(inverted ? quarter + 1 : quarter).cacheKey());
}

void BitmapTest::glyphWithoutInvertedFormNeverChanges_data()
{
    QTest::addColumn<QString>("steps");
    QTest::newRow("right held") << "R+";
    QTest::newRow("right click") << "R+ R-";
    QTest::newRow("left click while right is held") << "R+ L+ L- R-";
    QTest::newRow("right click once placed") << "L+ L- R+ R-";
}

void BitmapTest::glyphWithoutInvertedFormNeverChanges()
{
    QFETCH(QString, steps);
    TonquillMainWin window;
    ScenePointer pointer(*window.scene);
    TonquillBitmap *item = window.InsertBitmapSymbol(SymbolTable::gClef, true, false);
    pointer.moveTo(spot);
    act(pointer, steps, spot);
    QVERIFY(!isInverted(*item));
    QCOMPARE(item->pixmap().cacheKey(), window.symbols.value(SymbolTable::gClef).cacheKey());
}

void BitmapTest::waitingGlyphFollowsThePointer()
{
    TonquillMainWin window;
    ScenePointer pointer(*window.scene);
    const TonquillBitmap *item = window.InsertBitmapSymbol(SymbolTable::gClef, true, false);
    for (const QPointF place : {QPointF(100, 80), QPointF(700, 900), QPointF(-40, -30)}) {
        pointer.moveTo(place);
        QCOMPARE(item->pos(), place);
    }
    pointer.press(QPointF(-40, -30));
    pointer.moveTo(QPointF(50, 60));
    QCOMPARE(item->pos(), QPointF(50, 60));
    pointer.release(QPointF(50, 60));
    pointer.moveTo(QPointF(10, 10));
    QCOMPARE(item->pos(), QPointF(50, 60));
}

void BitmapTest::dragMovesByThePointersWay()
{
    TonquillMainWin window;
    ScenePointer pointer(*window.scene);
    TonquillBitmap *item = window.InsertBitmapSymbol(SymbolTable::gClef, false, false);
    item->setPos(spot);
    pointer.press(spot + QPointF(2, 3));
    QCOMPARE(item->property("itemStatus").toInt(), 2);
    QCOMPARE(item->pos(), spot);
    pointer.moveTo(spot + QPointF(12, 3));
    QCOMPARE(item->pos(), spot + QPointF(10, 0));
    pointer.moveTo(spot + QPointF(12, -17));
    QCOMPARE(item->pos(), spot + QPointF(10, -20));
    pointer.release(spot + QPointF(12, -17));
    QCOMPARE(item->property("itemStatus").toInt(), 0);
    pointer.moveTo(QPointF(0, 0));
    QCOMPARE(item->pos(), spot + QPointF(10, -20));
}

void BitmapTest::pressWithTwoButtonsStartsNoMove()
{
    TonquillMainWin window;
    ScenePointer pointer(*window.scene);
    TonquillBitmap *item = window.InsertBitmapSymbol(SymbolTable::gClef, false, false);
    item->setPos(spot);
    act(pointer, "R+ L+", spot);
    QCOMPARE(item->property("itemStatus").toInt(), 0);
    pointer.moveTo(spot + QPointF(30, 0));
    QCOMPARE(item->pos(), spot);
}

void BitmapTest::movedGlyphIsFoundAtItsNewPlace()
{
    TonquillMainWin window;
    ScenePointer pointer(*window.scene);
    TonquillBitmap *item = window.InsertBitmapSymbol(SymbolTable::gClef, false, false);
    item->setPos(spot);
    QVERIFY(window.scene->items(spot).contains(item));
    pointer.drag(spot, spot + QPointF(200, 200));
    QVERIFY(!window.scene->items(spot).contains(item));
    QVERIFY(window.scene->items(spot + QPointF(200, 200)).contains(item));
}

void BitmapTest::invertedGlyphIsFoundInItsNewBounds()
{
    QGraphicsScene scene(0, 0, 5000, 5000);
    auto *item = new TonquillBitmap(pixmap(20, 20), 2, false, pixmap(2000, 2000));
    scene.addItem(item);
    item->setPos(100, 100);
    // From (90, 90): 20 wide, then 2000 wide. The frame reaches 5 further.
    const QPointF inside(2080, 2080);
    const QPointF inFrame(2093, 2093);
    QVERIFY(scene.items(inside).isEmpty());
    QTRY_VERIFY(scene.items(QPointF(100, 100)).contains(item));
    QCoreApplication::processEvents();
    item->setInverted(true);
    QVERIFY(scene.items(inside).contains(item));
    QCOMPARE(scene.items(inFrame), QList<QGraphicsItem *>{frameOf(*item)});
}

void BitmapTest::recordHoldsWholeCoordinates_data()
{
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<QString>("record");
    QTest::newRow("truncated towards zero")
        << QPointF(12.9, -3.7) << "tonquill_bitmap 17 12 -3 0\n";
    QTest::newRow("negative fraction") << QPointF(-0.5, 0.5) << "tonquill_bitmap 17 0 0 0\n";
    QTest::newRow("whole") << QPointF(120, 300) << "tonquill_bitmap 17 120 300 0\n";
    QTest::newRow("beyond an int")
        << QPointF(1e12, -1e12) << "tonquill_bitmap 17 2147483647 -2147483648 0\n";
}

void BitmapTest::recordHoldsWholeCoordinates()
{
    QFETCH(QPointF, pos);
    QFETCH(QString, record);
    TonquillBitmap item(pixmap(15, 21), 17, false, QPixmap());
    item.setPos(pos);
    QCOMPARE(item.getParamStr(), record);
}

void BitmapTest::unknownSymbolKeepsItsRecord_data()
{
    QTest::addColumn<QString>("record");
    QTest::newRow("above the table") << "tonquill_bitmap 37 10 20 0\n";
    QTest::newRow("far above it, inverted") << "tonquill_bitmap 999 10 20 1\n";
    QTest::newRow("negative") << "tonquill_bitmap -1 -10 -20 0\n";
    QTest::newRow("largest") << "tonquill_bitmap 2147483647 10 20 1\n";
    QTest::newRow("smallest") << "tonquill_bitmap -2147483648 10 20 1\n";
    QTest::newRow("last of the table, inverted") << "tonquill_bitmap 36 10 20 1\n";
}

void BitmapTest::unknownSymbolKeepsItsRecord()
{
    QFETCH(QString, record);
    TonquillMainWin window;
    window.scene->constructItem(record, false, 0);
    QCOMPARE(window.scene->notifyTW(), "tonquill_pagecount 1\n" + record);
}

void BitmapTest::unknownSymbolHasNoPicture()
{
    TonquillMainWin window;
    const TonquillBitmap *item = window.InsertBitmapSymbol(37, false, true);
    QVERIFY(item);
    QVERIFY(item->pixmap().isNull());
}

void BitmapTest::selectionShowsOnScreenOnly()
{
    QGraphicsScene scene(0, 0, 100, 100);
    auto *item = new TonquillBitmap(pixmap(40, 40), 2, false, QPixmap());
    scene.addItem(item);
    item->setPos(50, 50);
    const auto onScreen = [&] {
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        scene.render(&painter);
        return image;
    };
    const auto onPaper = [&] {
        return printedPage([&](QPainter &painter) { scene.render(&painter); });
    };
    const QByteArray plainPaper = onPaper();
    // On screen without its anchors, so that the outline is the only mark of the selection.
    frameOf(*item)->setVisible(false);
    const QImage plainScreen = onScreen();
    item->setSelected(true);
    QVERIFY(onScreen() != plainScreen);
    frameOf(*item)->setVisible(true);
    QCOMPARE(onPaper(), plainPaper);
}

void BitmapTest::theDrawingIsAsFineAsTheZoomAsksFor_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<bool>("finer"); // than the pixmap
    QTest::newRow("100 %") << 1.0 << false;
    QTest::newRow("101 %") << 1.01 << true;
    QTest::newRow("200 %") << 2.0 << true;
    QTest::newRow("201 %") << 2.01 << true;
    QTest::newRow("400 %") << 4.0 << true;
    QTest::newRow("401 %") << 4.01 << true;
    QTest::newRow("800 %") << 8.0 << true;
}

/** Across a stem, a unit wide, there are at most two pixels that it covers only in part. */
void BitmapTest::theDrawingIsAsFineAsTheZoomAsksFor()
{
    QFETCH(double, zoom);
    QFETCH(bool, finer);
    const TonquillMainWin window;
    const QPixmap glyph = window.symbols.value(SymbolTable::note(2));
    QImage screen((QSizeF(glyph.size()) * zoom).toSize(), QImage::Format_RGB32);
    screen.fill(Qt::white);
    QPainter painter(&screen);
    painter.scale(zoom, zoom);
    QCOMPARE(GlyphDrawings::paint(painter, glyph, QPointF(0, 0)), finer);
    painter.end();
    // Ten units down there is nothing but the stem.
    int inPart = 0;
    for (int x = 0; x < screen.width(); ++x) {
        const int shade = qGray(screen.pixel(x, int(10 * zoom)));
        inPart += shade > 0 && shade < 255;
    }
    QVERIFY2(inPart <= 2, qPrintable(QString::number(inPart)));
}

void BitmapTest::neverEmitsItemChanged()
{
    TonquillMainWin window;
    ScenePointer pointer(*window.scene);
    TonquillBitmap *item = window.InsertBitmapSymbol(SymbolTable::note(2), true, true);
    const QSignalSpy spy(item, SIGNAL(itemChanged(QString)));
    QVERIFY(spy.isValid());
    pointer.moveTo(spot);
    act(pointer, "R+ L+ L- R- L+ M L-", spot);
    QCOMPARE(spy.count(), 0);
}

TONQUILL_TEST_MAIN(BitmapTest)
#include "tst_bitmap.moc"
