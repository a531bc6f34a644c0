#include "TestMain.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QKeyEvent>

/** What the scene does in another way once there are very many items. */
class ManyItemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deletingVeryManyLeavesTheOthers();
    void spaceRepeatsTheLastItemOfADocument();
    void theIndexGrowsWithTheDocument();

private:
    static QString glyphs(int count, int x);
};

/** Records of quarter notes that stand on one another. */
QString ManyItemsTest::glyphs(int count, int x)
{
    return QStringList(count, QStringLiteral("tonquill_bitmap 19 %1 100 0").arg(x)).join(u'|');
}

void ManyItemsTest::deletingVeryManyLeavesTheOthers()
{
    TonquillMainWin window;
    TonquillScene &scene = *window.scene;
    scene.constructDocument(glyphs(3, 50) + u'|' + glyphs(20000, 100) + u'|' + glyphs(4, 150));
    QList<QGraphicsItem *> doomed = scene.items(QPointF(100, 100));
    doomed.removeIf([](QGraphicsItem *item) { return item->parentItem() != nullptr; });
    QCOMPARE(doomed.size(), 20000);

    scene.destroyItems(doomed);

    // Seven glyphs, each with its frame.
    QCOMPARE(scene.items().size(), 2 * (3 + 4));
    QCOMPARE(scene.items(QPointF(50, 100)).size(), 2 * 3);
    QCOMPARE(scene.items(QPointF(150, 100)).size(), 2 * 4);
    QVERIFY(scene.items(QPointF(100, 100)).isEmpty());
    QCOMPARE(scene.itemIndexMethod(), QGraphicsScene::BspTreeIndex);
}

void ManyItemsTest::spaceRepeatsTheLastItemOfADocument()
{
    TonquillMainWin window;
    TonquillScene &scene = *window.scene;
    scene.constructDocument(u"tonquill_bitmap 2 50 100 0|tonquill_timesig 90 100 3 4");
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(&scene, &release);
    const QString document = scene.notifyTW();
    QCOMPARE(document.count(QStringLiteral("tonquill_timesig")), 2);
    QCOMPARE(document.count(QStringLiteral("tonquill_bitmap")), 1);
}

void ManyItemsTest::theIndexGrowsWithTheDocument()
{
    TonquillMainWin window;
    TonquillScene &scene = *window.scene;
    const auto depthOnceUsed = [&scene] {
        scene.itemAt(QPointF(), QTransform());
        return scene.bspTreeDepth();
    };
    scene.constructDocument(glyphs(5, 100));
    const int ofFew = depthOnceUsed();

    // Built over the small document, as a paste or a host's extension does it. Each level halves
    // the search: below the tenth, 4096 glyphs and as many frames are eight in each place.
    scene.constructDocument(glyphs(4096, 100));
    const int ofMany = depthOnceUsed();
    QVERIFY2(ofFew < 10 && ofMany >= 10,
             qPrintable(QStringLiteral("%1 %2").arg(ofFew).arg(ofMany)));

    scene.clearScene();
    scene.constructDocument(glyphs(5, 100));
    QCOMPARE(depthOnceUsed(), ofFew);
}

TONQUILL_TEST_MAIN(ManyItemsTest)
#include "tst_manyitems.moc"
