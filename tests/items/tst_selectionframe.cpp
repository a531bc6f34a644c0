#include "PrintedPage.h"
#include "SelectionFrame.h"
#include "TestMain.h"

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QStyleOptionGraphicsItem>

namespace
{
/** An item of exactly the given bounds, with a frame. */
struct FramedItem
{
    explicit FramedItem(const QRectF &bounds = QRectF(0, 0, 100, 50))
        : item(bounds)
        , frame(&item)
    {
        item.setPen(Qt::NoPen);
        item.setFlag(QGraphicsItem::ItemIsSelectable);
    }

    QGraphicsRectItem item;
    SelectionFrame frame;
};

QImage painted(SelectionFrame &frame)
{
    QImage image(120, 70, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    const QStyleOptionGraphicsItem option;
    frame.paint(&painter, &option, nullptr);
    return image;
}

QImage blank()
{
    SelectionFrame orphan(nullptr);
    return painted(orphan);
}
} // namespace

/** The frame's hit tests, bounds and painting. */
class SelectionFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasItsOwnType();
    void emptyFrameHitsAndPaintsNothing();
    void anchorSquareReachesFiveToEachSide_data();
    void anchorSquareReachesFiveToEachSide();
    void lowestIndexWins_data();
    void lowestIndexWins();
    void missLeavesTheAnchorArgumentAlone();
    void addAnchorAppends();
    void setAnchorMovesOne();
    void setAnchorsReplacesAll();
    void settingTheSameAnchorsChangesNothing();
    void boundsReachFiveBeyondTheParent_data();
    void boundsReachFiveBeyondTheParent();
    void orphanHasNoBounds();
    void boundsFollowTheParent();
    void selectedItemShowsGreenSquares();
    void unselectedItemShowsNoSquares();
    void nothingIsPrinted();
    void pressAndMoveDoNothing_data();
    void pressAndMoveDoNothing();
};

void SelectionFrameTest::hasItsOwnType()
{
    const FramedItem framed;
    QCOMPARE(framed.frame.type(), 65536 + 0x555);
}

void SelectionFrameTest::emptyFrameHitsAndPaintsNothing()
{
    FramedItem framed;
    framed.item.setSelected(true);
    QPointF anchor;
    QCOMPARE(framed.frame.getAnchor(QPointF(-1, -1), anchor), -1);
    QVERIFY(!framed.frame.isAnchor(QPointF(0, 0)));
    QCOMPARE(painted(framed.frame), blank());
}

void SelectionFrameTest::anchorSquareReachesFiveToEachSide_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<bool>("hit");
    // The anchor at (10, 20) has the square from (5, 15) to (15, 25).
    QTest::newRow("centre") << QPointF(10, 20) << true;
    QTest::newRow("right edge") << QPointF(15, 20) << true;
    QTest::newRow("left edge") << QPointF(5, 20) << true;
    QTest::newRow("top edge") << QPointF(10, 15) << true;
    QTest::newRow("bottom edge") << QPointF(10, 25) << true;
    QTest::newRow("top-left corner") << QPointF(5, 15) << true;
    QTest::newRow("bottom-right corner") << QPointF(15, 25) << true;
    QTest::newRow("right of it") << QPointF(15.001, 20) << false;
    QTest::newRow("left of it") << QPointF(4.999, 20) << false;
    QTest::newRow("above it") << QPointF(10, 14.999) << false;
    QTest::newRow("below it") << QPointF(10, 25.001) << false;
}

void SelectionFrameTest::anchorSquareReachesFiveToEachSide()
{
    QFETCH(QPointF, point);
    QFETCH(bool, hit);
    FramedItem framed;
    framed.frame.addAnchor(QPointF(10, 20));
    QPointF anchor;
    QCOMPARE(framed.frame.getAnchor(point, anchor), hit ? 0 : -1);
    QCOMPARE(framed.frame.isAnchor(point), hit);
    QCOMPARE(anchor, hit ? QPointF(10, 20) : QPointF());
}

void SelectionFrameTest::lowestIndexWins_data()
{
    QTest::addColumn<QPointF>("start");
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<int>("index");
    QTest::newRow("coinciding") << QPointF(0, 0) << QPointF(0, 0) << QPointF(1, 1) << 0;
    QTest::newRow("overlapping") << QPointF(0, 0) << QPointF(8, 0) << QPointF(4, 0) << 0;
    QTest::newRow("shared edge") << QPointF(0, 0) << QPointF(10, 0) << QPointF(5, 0) << 0;
    QTest::newRow("beyond the first") << QPointF(0, 0) << QPointF(8, 0) << QPointF(6, 0) << 1;
}

void SelectionFrameTest::lowestIndexWins()
{
    QFETCH(QPointF, start);
    QFETCH(QPointF, end);
    QFETCH(QPointF, point);
    QFETCH(int, index);
    FramedItem framed;
    QList<QPointF> anchors{start, end};
    framed.frame.setAnchors(anchors);
    QPointF anchor;
    QCOMPARE(framed.frame.getAnchor(point, anchor), index);
    QCOMPARE(anchor, anchors[index]);
}

void SelectionFrameTest::missLeavesTheAnchorArgumentAlone()
{
    FramedItem framed;
    framed.frame.addAnchor(QPointF(10, 20));
    QPointF anchor(7, 9);
    QCOMPARE(framed.frame.getAnchor(QPointF(100, 100), anchor), -1);
    QCOMPARE(anchor, QPointF(7, 9));
}

void SelectionFrameTest::addAnchorAppends()
{
    FramedItem framed;
    framed.frame.addAnchor(QPointF(0, 0));
    framed.frame.addAnchor(QPointF(50, 0));
    QPointF anchor;
    QCOMPARE(framed.frame.getAnchor(QPointF(0, 0), anchor), 0);
    QCOMPARE(framed.frame.getAnchor(QPointF(50, 0), anchor), 1);
}

void SelectionFrameTest::setAnchorMovesOne()
{
    FramedItem framed;
    framed.frame.setAnchors({QPointF(0, 0), QPointF(50, 0)});
    framed.frame.setAnchor(1, QPointF(50, 40));
    QVERIFY(framed.frame.isAnchor(QPointF(0, 0)));
    QVERIFY(!framed.frame.isAnchor(QPointF(50, 0)));
    QVERIFY(framed.frame.isAnchor(QPointF(50, 40)));
}

void SelectionFrameTest::setAnchorsReplacesAll()
{
    FramedItem framed;
    framed.frame.setAnchors({QPointF(0, 0), QPointF(50, 0)});
    framed.frame.setAnchors({QPointF(25, 25)});
    QVERIFY(!framed.frame.isAnchor(QPointF(0, 0)));
    QVERIFY(!framed.frame.isAnchor(QPointF(50, 0)));
    QVERIFY(framed.frame.isAnchor(QPointF(25, 25)));
}

void SelectionFrameTest::settingTheSameAnchorsChangesNothing()
{
    FramedItem framed;
    framed.item.setSelected(true);
    QList<QPointF> anchors{QPointF(20, 20), QPointF(60, 30)};
    framed.frame.setAnchors(anchors);
    const QImage before = painted(framed.frame);
    framed.frame.setAnchors(anchors);
    QCOMPARE(painted(framed.frame), before);
    QPointF anchor;
    QCOMPARE(framed.frame.getAnchor(QPointF(20, 20), anchor), 0);
    QCOMPARE(framed.frame.getAnchor(QPointF(60, 30), anchor), 1);
}

void SelectionFrameTest::boundsReachFiveBeyondTheParent_data()
{
    QTest::addColumn<QRectF>("parent");
    QTest::addColumn<QRectF>("frame");
    QTest::newRow("at its origin") << QRectF(0, 0, 100, 50) << QRectF(-5, -5, 110, 60);
    QTest::newRow("centred") << QRectF(-10, -20, 20, 40) << QRectF(-15, -25, 30, 50);
    QTest::newRow("without a size") << QRectF(3, 4, 0, 0) << QRectF(-2, -1, 10, 10);
}

void SelectionFrameTest::boundsReachFiveBeyondTheParent()
{
    QFETCH(QRectF, parent);
    QFETCH(QRectF, frame);
    const FramedItem framed(parent);
    QCOMPARE(framed.frame.boundingRect(), frame);
}

void SelectionFrameTest::orphanHasNoBounds()
{
    const SelectionFrame orphan(nullptr);
    QCOMPARE(orphan.boundingRect(), QRectF(0, 0, 0, 0));
}

void SelectionFrameTest::boundsFollowTheParent()
{
    FramedItem framed;
    framed.frame.parentBoundsAboutToChange();
    framed.item.setRect(10, 10, 200, 20);
    QCOMPARE(framed.frame.boundingRect(), QRectF(5, 5, 210, 30));
}

void SelectionFrameTest::selectedItemShowsGreenSquares()
{
    FramedItem framed;
    framed.item.setSelected(true);
    framed.frame.setAnchors({QPointF(20, 20), QPointF(60, 30)});
    const QImage image = painted(framed.frame);
    const QColor green(Qt::green);
    const QColor white(Qt::white);
    // (20, 20): from 15 to 25 both ways.
    QCOMPARE(image.pixelColor(20, 20), green);
    QCOMPARE(image.pixelColor(15, 15), green);
    QCOMPARE(image.pixelColor(25, 25), green);
    QCOMPARE(image.pixelColor(14, 20), white);
    QCOMPARE(image.pixelColor(20, 26), white);
    QCOMPARE(image.pixelColor(60, 30), green);
    QCOMPARE(image.pixelColor(40, 25), white);
}

void SelectionFrameTest::unselectedItemShowsNoSquares()
{
    FramedItem framed;
    framed.frame.addAnchor(QPointF(20, 20));
    QCOMPARE(painted(framed.frame), blank());
    QCOMPARE(framed.frame.boundingRect(), QRectF(-5, -5, 110, 60));
}

void SelectionFrameTest::nothingIsPrinted()
{
    FramedItem framed;
    framed.item.setSelected(true);
    framed.frame.addAnchor(QPointF(20, 20));
    const QStyleOptionGraphicsItem option;
    const QByteArray page =
        printedPage([&](QPainter &painter) { framed.frame.paint(&painter, &option, nullptr); });
    QCOMPARE(page, printedPage([](QPainter &) {}));
    QVERIFY(page != printedPage([](QPainter &painter) { painter.drawRect(15, 15, 10, 10); }));
    QCOMPARE(framed.frame.boundingRect(), QRectF(-5, -5, 110, 60));
}

void SelectionFrameTest::pressAndMoveDoNothing_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("press") << int(QEvent::GraphicsSceneMousePress);
    QTest::newRow("move") << int(QEvent::GraphicsSceneMouseMove);
}

void SelectionFrameTest::pressAndMoveDoNothing()
{
    QFETCH(int, type);
    QGraphicsScene scene;
    FramedItem framed;
    framed.item.setFlag(QGraphicsItem::ItemIsMovable);
    framed.frame.setFlags(QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable);
    scene.addItem(&framed.item);
    QGraphicsSceneMouseEvent event(static_cast<QEvent::Type>(type));
    event.setButton(Qt::LeftButton);
    event.setButtons(Qt::LeftButton);
    event.setButtonDownScenePos(Qt::LeftButton, QPointF(0, 0));
    event.setScenePos(QPointF(30, 30));
    scene.sendEvent(&framed.frame, &event);
    QCOMPARE(framed.frame.pos(), QPointF(0, 0));
    QVERIFY(!framed.frame.isSelected());
    QVERIFY(!framed.item.isSelected());
    scene.removeItem(&framed.item);
}

TONQUILL_TEST_MAIN(SelectionFrameTest)
#include "tst_selectionframe.moc"
