#include "ScenePointer.h"
#include "SelectionFrame.h"
#include "TestMain.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

/**
 * An item that says when its bounds change is found where it now is. One that does not is found
 * only where the scene once entered it.
 */
class GeometryNoticeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resizedItemIsFoundInItsNewBounds_data();
    void resizedItemIsFoundInItsNewBounds();
    void resizedBlockIsFoundInItsNewBounds();
};

void GeometryNoticeTest::resizedItemIsFoundInItsNewBounds_data()
{
    QTest::addColumn<QString>("record");
    QTest::newRow("grand staff") << "tonquill_grandstaff 100 100 0 0 60 50\n";
    QTest::newRow("line") << "tonquill_interactiveline 100 100 0 0 60 50\n";
    QTest::newRow("tablature") << "tonquill_linetab 100 100 0 0 60 50\n";
    QTest::newRow("tie") << "tonquill_notetie 100 100 0 0 60 50\n";
    QTest::newRow("triplet") << "tonquill_triplet 100 100 0 0 60 50\n";
}

void GeometryNoticeTest::resizedItemIsFoundInItsNewBounds()
{
    QFETCH(QString, record);
    TonquillMainWin window;
    ScenePointer pointer(*window.scene);
    window.scene->constructItem(record, false, 0);
    const QList<QGraphicsItem *> found = window.scene->items(QPointF(130, 125));
    QCOMPARE(found.size(), 2);
    QVERIFY(window.scene->items(QPointF(500, 600)).isEmpty());
    // The scene enters items when it is idle.
    QCoreApplication::processEvents();
    pointer.drag(QPointF(160, 150), QPointF(700, 900));
    QCOMPARE(window.scene->items(QPointF(500, 600)), found);
    const QList<QGraphicsItem *> inMargin = window.scene->items(QPointF(704, 904));
    QCOMPARE(inMargin.size(), 1);
    QCOMPARE(inMargin.constFirst()->type(), int(SelectionFrame::Type));
}

/** A block is taken by its text alone, so here its bounds are asked for. */
void GeometryNoticeTest::resizedBlockIsFoundInItsNewBounds()
{
    TonquillMainWin window;
    ScenePointer pointer(*window.scene);
    const auto itemsAt = [&window](QPointF point) {
        return window.scene->items(point, Qt::IntersectsItemBoundingRect);
    };
    // One unit wider than recorded: (100, 100) to (160, 150).
    window.scene->constructItem(
        "tonquill_textblock_begin 100 100 59 50\nla\ntonquill_textblock_end\n", false, 0);
    const QList<QGraphicsItem *> found = itemsAt(QPointF(130, 125));
    QCOMPARE(found.size(), 2);
    QVERIFY(itemsAt(QPointF(500, 600)).isEmpty());
    QCoreApplication::processEvents();
    pointer.drag(QPointF(160, 150), QPointF(700, 900));
    QCOMPARE(itemsAt(QPointF(500, 600)), found);
    const QList<QGraphicsItem *> inMargin = itemsAt(QPointF(704, 904));
    QCOMPARE(inMargin.size(), 1);
    QCOMPARE(inMargin.constFirst()->type(), int(SelectionFrame::Type));
}

TONQUILL_TEST_MAIN(GeometryNoticeTest)
#include "tst_geometrynotice.moc"
