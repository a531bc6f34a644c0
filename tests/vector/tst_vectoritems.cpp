#include "ItemProbe.h"
#include "PaintRecorder.h"
#include "ScenePointer.h"
#include "TestMain.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillVectorGrandstaff.h"
#include "TonquillVectorInteractiveLine.h"
#include "TonquillVectorLineTab.h"
#include "TonquillVectorNoteTie.h"
#include "TonquillVectorTriplet.h"
#include "VectorShapes.h"

#include <QKeyEvent>
#include <QSignalSpy>

namespace
{
using Maker = TonquillVectorItem *(*)(bool adding, QPointF start, QPointF end);

template <typename Item>
TonquillVectorItem *make(bool adding, QPointF start, QPointF end)
{
    return new Item(adding, start, end);
}

/** How the five kinds differ. */
struct Kind
{
    const char *keyword;
    int type;
    QPointF newEnd;
    bool anchorsAtPoints; ///< else at the corners of the bounds
    Maker maker;
};

const std::array kinds{
    Kind{"tonquill_grandstaff", 65536 + 4, QPointF(70, 70), true, make<TonquillVectorGrandstaff>},
    Kind{"tonquill_interactiveline", 65536 + 5, QPointF(100, 0), false,
         make<TonquillVectorInteractiveLine>},
    Kind{"tonquill_linetab", 65536 + 6, QPointF(70, 70), false, make<TonquillVectorLineTab>},
    Kind{"tonquill_notetie", 65536 + 7, QPointF(100, 0), true, make<TonquillVectorNoteTie>},
    Kind{"tonquill_triplet", 65536 + 8, QPointF(100, 0), false, make<TonquillVectorTriplet>},
};

bool isTie(const Kind &kind)
{
    return kind.type == TonquillVectorNoteTie::Type;
}

/** The anchors that the frame holds at these points, in order; a point without one is left out. */
QList<QPointF> anchorsAt(const QGraphicsItem &item, const QList<QPointF> &points)
{
    QList<QPointF> anchors;
    for (const QPointF &point : points) {
        QPointF anchor;
        if (ItemProbe::frameOf(item)->getAnchor(point, anchor) == anchors.size())
            anchors.append(anchor);
    }
    return anchors;
}
} // namespace

/** What the five items between two points share, and the values in which they differ. */
class VectorItemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window.scene->clearScene(); }
    void startsAsItsKind_data() { addKinds(); }
    void startsAsItsKind();
    void newItemsIgnoreTheirPoints_data() { addKinds(); }
    void newItemsIgnoreTheirPoints();
    void anchorsOfCrossedPoints_data() { addKinds(); }
    void anchorsOfCrossedPoints();
    void boundsAreTheSpannedRectangle_data() { addKinds(); }
    void boundsAreTheSpannedRectangle();
    void tieHasItsBoundsBeforeItIsPainted();
    void isPlacedInTwoClicks_data() { addKinds(); }
    void isPlacedInTwoClicks();
    void secondStageIsNotDropped_data() { addKinds(); }
    void secondStageIsNotDropped();
    void anchorsCrossAndSwapSides_data() { addKinds(); }
    void anchorsCrossAndSwapSides();
    void overlappingAnchorsDragTheStart_data() { addKinds(); }
    void overlappingAnchorsDragTheStart();
    void recordTruncatesTowardsZero_data() { addKinds(); }
    void recordTruncatesTowardsZero();
    void spaceGivesACopyWithTheDefaultPoints_data() { addKinds(); }
    void spaceGivesACopyWithTheDefaultPoints();
    void degenerateFiguresArePainted_data();
    void degenerateFiguresArePainted();
    void onlyWhatIsSeenOfAHighTablatureIsPainted_data();
    void onlyWhatIsSeenOfAHighTablatureIsPainted();
    void aTablatureSeenInPartLooksTheSame_data();
    void aTablatureSeenInPartLooksTheSame();

private:
    static void addKinds();
    TonquillVectorItem *place(const Kind &kind, QPointF start, QPointF end);

    TonquillMainWin m_window;
};

void VectorItemsTest::addKinds()
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < kinds.size(); ++i)
        QTest::newRow(kinds[i].keyword) << static_cast<int>(i);
}

/** A selected item at (200, 300) that is not being added. */
TonquillVectorItem *VectorItemsTest::place(const Kind &kind, QPointF start, QPointF end)
{
    TonquillVectorItem *item = kind.maker(false, start, end);
    m_window.scene->addNewItem(item);
    item->setPos(200, 300);
    item->setSelected(true);
    return item;
}

void VectorItemsTest::startsAsItsKind()
{
    QFETCH(int, index);
    const Kind &kind = kinds[index];
    const std::unique_ptr<TonquillVectorItem> item(
        kind.maker(false, QPointF(10, 20), QPointF(90, 60)));
    QCOMPARE(item->type(), kind.type);
    QCOMPARE(item->data(257).toString(), QString(kind.keyword));
    QVERIFY(!item->data(256).isValid());
    QCOMPARE(int(item->flags()), 3);
    QCOMPARE(item->zValue(), 0.0);
    QCOMPARE(item->property("itemStatus"), QVariant(0));
    QVERIFY(!item->isSelected());
    const QList<QPointF> points{QPointF(10, 20), QPointF(90, 60)};
    QCOMPARE(anchorsAt(*item, points), points);
}

void VectorItemsTest::newItemsIgnoreTheirPoints()
{
    QFETCH(int, index);
    const Kind &kind = kinds[index];
    const std::unique_ptr<TonquillVectorItem> item(
        kind.maker(true, QPointF(10, 20), QPointF(30, 40)));
    QCOMPARE(item->property("itemStatus"), QVariant(1));
    QVERIFY(item->isSelected());
    const QList<QPointF> points{QPointF(0, 0), kind.newEnd};
    QCOMPARE(anchorsAt(*item, points), points);
    QCOMPARE(item->getParamStr(), QString("%1 0 0 0 0 %2 %3\n")
                                      .arg(kind.keyword)
                                      .arg(int(kind.newEnd.x()))
                                      .arg(int(kind.newEnd.y())));
}

/** The end lies left of and above the start: three kinds have their anchors at the corners. */
void VectorItemsTest::anchorsOfCrossedPoints()
{
    QFETCH(int, index);
    const Kind &kind = kinds[index];
    const QPointF start(90, 60);
    const QPointF end(10, 20);
    const std::unique_ptr<TonquillVectorItem> item(kind.maker(false, start, end));
    const QList<QPointF> expected =
        kind.anchorsAtPoints ? QList<QPointF>{start, end} : QList<QPointF>{end, start};
    QCOMPARE(anchorsAt(*item, expected), expected);
}

void VectorItemsTest::boundsAreTheSpannedRectangle()
{
    QFETCH(int, index);
    const Kind &kind = kinds[index];
    if (isTie(kind)) {
        // Its bounds are those of its arc, which bulges out of the rectangle of its points.
        const std::unique_ptr<TonquillVectorItem> tie(
            kind.maker(false, QPointF(0, 0), QPointF(100, 0)));
        QVERIFY(tie->boundingRect().top() < -9);
        return;
    }
    const std::unique_ptr<TonquillVectorItem> item(
        kind.maker(false, QPointF(90, 20), QPointF(10, 60)));
    QCOMPARE(item->boundingRect(), QRectF(10, 20, 80, 40));
    const std::unique_ptr<TonquillVectorItem> level(
        kind.maker(false, QPointF(0, 5), QPointF(50, 5)));
    QCOMPARE(level->boundingRect(), QRectF(0, 5, 50, 0));
}

void VectorItemsTest::tieHasItsBoundsBeforeItIsPainted()
{
    TonquillVectorNoteTie tie(false, QPointF(0, 0), QPointF(100, 0));
    // 100 wide, and 50 / sin 22.5 - 50 / tan 22.5 = 9.95 high.
    const QRectF bounds = tie.boundingRect();
    QVERIFY(std::abs(bounds.width() - 100) < 0.2);
    QVERIFY(std::abs(bounds.height() - 9.95) < 0.1);
}

void VectorItemsTest::isPlacedInTwoClicks()
{
    QFETCH(int, index);
    const Kind &kind = kinds[index];
    TonquillVectorItem *item = kind.maker(true, QPointF(), QPointF());
    m_window.scene->addNewItem(item);
    ScenePointer pointer(*m_window.scene);
    pointer.moveTo(QPointF(150, 250));
    QCOMPARE(item->pos(), QPointF(150, 250));

    pointer.press(QPointF(150, 250));
    QCOMPARE(item->itemStatus(), 1);
    pointer.release(QPointF(150, 250));
    QCOMPARE(item->itemStatus(), 4);

    pointer.moveTo(QPointF(330, 300));
    pointer.moveTo(QPointF(350, 290));
    QCOMPARE(item->pos(), QPointF(150, 250));
    pointer.press(QPointF(350, 290));
    QCOMPARE(item->itemStatus(), 4);
    pointer.release(QPointF(350, 290));
    QCOMPARE(item->itemStatus(), 0);
    QCOMPARE(item->getParamStr(), QString("%1 150 250 0 0 200 40\n").arg(kind.keyword));
}

/** Only an item in its first stage is dropped when another one is made. */
void VectorItemsTest::secondStageIsNotDropped()
{
    QFETCH(int, index);
    TonquillVectorItem *item = kinds[index].maker(true, QPointF(), QPointF());
    m_window.scene->addNewItem(item);
    ScenePointer(*m_window.scene).click(QPointF(150, 250));
    QCOMPARE(item->itemStatus(), 4);
    QVERIFY(!m_window.scene->isNewItemIsAdding());
    QCOMPARE(item->scene(), m_window.scene);
}

void VectorItemsTest::anchorsCrossAndSwapSides()
{
    QFETCH(int, index);
    const Kind &kind = kinds[index];
    TonquillVectorItem *item = place(kind, QPointF(0, 0), QPointF(100, 50));
    ScenePointer pointer(*m_window.scene);
    // The end goes from (100, 50) to (-80, -30), across the start.
    pointer.drag(QPointF(300, 350), QPointF(120, 270));
    QCOMPARE(item->pos(), QPointF(200, 300));
    QCOMPARE(item->itemStatus(), 0);
    QCOMPARE(item->getParamStr(), QString("%1 200 300 0 0 -80 -30\n").arg(kind.keyword));
    const QList<QPointF> points{QPointF(0, 0), QPointF(-80, -30)};
    QCOMPARE(anchorsAt(*item, points), points);
    QVERIFY(item->boundingRect().width() > 0);
    QVERIFY(item->boundingRect().height() > 0);
    if (!isTie(kind))
        QCOMPARE(item->boundingRect(), QRectF(-80, -30, 80, 30));
}

void VectorItemsTest::overlappingAnchorsDragTheStart()
{
    QFETCH(int, index);
    const Kind &kind = kinds[index];
    // 5 apart: the press at (203, 300) is within 5 of both anchors.
    TonquillVectorItem *item = place(kind, QPointF(0, 0), QPointF(5, 0));
    ScenePointer pointer(*m_window.scene);
    pointer.drag(QPointF(203, 300), QPointF(160, 330));
    QCOMPARE(item->getParamStr(), QString("%1 200 300 -40 30 5 0\n").arg(kind.keyword));
}

void VectorItemsTest::recordTruncatesTowardsZero()
{
    QFETCH(int, index);
    const Kind &kind = kinds[index];
    TonquillVectorItem *item = place(kind, QPointF(0.9, -0.9), QPointF(60.7, -12.2));
    item->setPos(10.7, -3.2);
    QCOMPARE(item->getParamStr(), QString("%1 10 -3 0 0 60 -12\n").arg(kind.keyword));
}

void VectorItemsTest::spaceGivesACopyWithTheDefaultPoints()
{
    QFETCH(int, index);
    const Kind &kind = kinds[index];
    TonquillVectorItem *item = place(kind, QPointF(3, 4), QPointF(200, 150));
    QKeyEvent space(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.scene, &space);

    QList<QGraphicsItem *> items = ItemProbe::documentItems(*m_window.scene);
    QCOMPARE(items.size(), 2);
    items.removeOne(item);
    QCOMPARE(ItemProbe::statusOf(items.constFirst()), 1);
    QVERIFY(ItemProbe::recordOf(items.constFirst())
                .endsWith(QString(" 0 0 %1 %2\n").arg(kind.newEnd.x()).arg(kind.newEnd.y())));
}

void VectorItemsTest::degenerateFiguresArePainted_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QPointF>("end");
    const QList<std::pair<const char *, QPointF>> ends{
        {"coinciding points", {0, 0}}, {"same x", {0, 60}},       {"same x, upwards", {0, -60}},
        {"same y", {60, 0}},           {"to the left", {-60, 0}}, {"80 high", {60, 80}},
        {"80.5 high", {60, 80.5}},     {"84 high", {60, 84}},
    };
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        for (const auto &[name, end] : ends)
            QTest::addRow("%s, %s", kinds[i].keyword, name) << static_cast<int>(i) << end;
    }
}

/** The painter warns of a NaN, and a warning fails this test. */
void VectorItemsTest::degenerateFiguresArePainted()
{
    QFETCH(int, index);
    QFETCH(QPointF, end);
    const TonquillVectorItem *item = place(kinds[index], QPointF(0, 0), end);
    const QRectF bounds = item->boundingRect();
    QVERIFY(std::isfinite(bounds.width()) && std::isfinite(bounds.height()));
    QVERIFY(std::isfinite(bounds.x()) && std::isfinite(bounds.y()));

    QTest::failOnWarning(QRegularExpression(".*"));
    const QImage picture = ItemProbe::pictureOf(*m_window.scene, QRectF(100, 200, 200, 200));
    // A line or a tie between coinciding points has no length.
    const bool isLine = item->type() == TonquillVectorInteractiveLine::Type;
    if (!end.isNull() || !(isLine || isTie(kinds[index])))
        QVERIFY(ItemProbe::pixelsOf(picture, Qt::black) >= 1);
}

void VectorItemsTest::onlyWhatIsSeenOfAHighTablatureIsPainted_data()
{
    QTest::addColumn<bool>("isClipped");
    QTest::newRow("a device") << false;
    QTest::newRow("a part of a device") << true;
}

/** A host may say that it is a billion high; that is kept, and costs no more than a window full. */
void VectorItemsTest::onlyWhatIsSeenOfAHighTablatureIsPainted()
{
    QFETCH(bool, isClipped);
    m_window.scene->constructItem("tonquill_linetab 10 20 0 0 300 1000000000\n", false, 0);
    QGraphicsItem *item = ItemProbe::onlyItem(*m_window.scene);
    QVERIFY(item);
    QCOMPARE(item->boundingRect(), QRectF(0, 0, 300, 1e9));
    QCOMPARE(ItemProbe::recordOf(item), "tonquill_linetab 10 20 0 0 300 1000000000\n");

    RecordingScreen screen(700, 1400, QImage::Format_RGB32);
    QPainter painter(&screen);
    painter.translate(item->pos());
    painter.translate(0, -5e8);
    if (isClipped)
        painter.setClipRect(QRectF(0, 5e8, 300, 140));
    item->paint(&painter, nullptr, nullptr);
    painter.end();
    // 140 / 14 lines and one more on either side, where it is clipped. The device counts thrice.
    const qsizetype most = isClipped ? 140 / 14 + 4 : 3 * 1400 / 14 + 4;
    const QList<QLineF> lines = screen.recorder().lines;
    QVERIFY2(lines.size() <= most, qPrintable(QString::number(lines.size())));
    QVERIFY(lines.size() > (isClipped ? 140 : 1400) / 14);
}

void VectorItemsTest::aTablatureSeenInPartLooksTheSame_data()
{
    QTest::addColumn<QRectF>("area");
    QTest::addColumn<double>("zoom");
    QTest::newRow("upper end") << QRectF(150, 250, 300, 200) << 1.0;
    QTest::newRow("middle") << QRectF(150, 2003, 300, 200) << 1.0;
    QTest::newRow("lower end") << QRectF(150, 5200, 300, 200) << 1.0;
    QTest::newRow("middle, small") << QRectF(150, 2003, 900, 800) << 0.4;
    QTest::newRow("middle, large") << QRectF(195, 2003.3, 60, 40) << 8.0;
}

void VectorItemsTest::aTablatureSeenInPartLooksTheSame()
{
    QFETCH(QRectF, area);
    QFETCH(double, zoom);
    const QPointF end(180, 5003);
    m_window.scene->constructItem("tonquill_linetab 200 300 0 0 180 5003\n", false, 0);
    const QImage seen = ItemProbe::pictureOf(*m_window.scene, area, zoom);

    QImage whole(seen.size(), QImage::Format_RGB32);
    whole.fill(Qt::white);
    QPainter painter(&whole);
    painter.scale(zoom, zoom);
    painter.translate(-area.topLeft());
    painter.translate(200, 300);
    painter.setPen(QPen(Qt::black, 0));
    painter.drawLines(VectorShapes::tablature(QPointF(0, 0), end));
    painter.end();
    QCOMPARE(seen, whole);
    QVERIFY(ItemProbe::pixelsOf(seen, Qt::black) > 0);
}

TONQUILL_TEST_MAIN(VectorItemsTest)
#include "tst_vectoritems.moc"
