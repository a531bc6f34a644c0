#include "PaperDocument.h"
#include "TestMain.h"

#include <QGraphicsLineItem>
#include <QGraphicsRectItem>
#include <QPen>

namespace
{
// Letter, in scene units.
constexpr double width = 748;
constexpr double height = 990;
constexpr double gap = 49.5;
constexpr double pitch = 1039.5;

enum class Insertion { AtBeginning, BeforePage2, AfterPage1, AfterPage2, AtEnd };

void insert(TonquillScene &scene, Insertion where)
{
    switch (where) {
    case Insertion::AtBeginning:
        scene.addPageAtBegining();
        break;
    case Insertion::BeforePage2:
        scene.addPageBeforeCurPage(2);
        break;
    case Insertion::AfterPage1:
        scene.addPageAfterCurPage(1);
        break;
    case Insertion::AfterPage2:
        scene.addPageAfterCurPage(2);
        break;
    case Insertion::AtEnd:
        scene.addPageAtEnd();
        break;
    }
}

/** Expects where an item is afterwards; gone is where no item is. */
constexpr QPointF gone(-12345, -12345);

QPointF placeOf(const QPointer<TonquillBitmap> &item)
{
    return item ? item->pos() : gone;
}
} // namespace

Q_DECLARE_METATYPE(Insertion)

/** Adding, inserting, deleting and clearing pages, and what becomes of the items on them. */
class PagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addingAPageMovesNothing();
    void settingTheNumberOfPagesMovesNothing();
    void insertionMovesWhatLiesBelow_data();
    void insertionMovesWhatLiesBelow();
    void insertionMovesWhatReachesIntoThePage_data();
    void insertionMovesWhatReachesIntoThePage();
    void itemsCountByTheirShape_data();
    void itemsCountByTheirShape();
    void childrenMoveWithTheirParentsOnly();
    void deletionTakesThePageWithItsItems_data();
    void deletionTakesThePageWithItsItems();
    void deletingTheOnlyPageEmptiesIt();
    void insertionAndDeletionAreNotSymmetrical();
    void clearingLeavesOnePage();
    void clearingASinglePageKeepsTheSceneRect();
    void nextPageOperationRestoresTheHeight();
    void clearingTakesEveryItem();
    void manyItemsGoAtOnce_data();
    void manyItemsGoAtOnce();
};

void PagesTest::addingAPageMovesNothing()
{
    PaperDocument document;
    const TonquillBitmap *item = document.addGlyph(QPointF(100, 500));
    document.scene->addPage();
    QCOMPARE(document.window.pageCount, 2);
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, width, 2 * pitch));
    QCOMPARE(item->pos(), QPointF(100, 500));
}

void PagesTest::settingTheNumberOfPagesMovesNothing()
{
    PaperDocument document;
    const TonquillBitmap *item = document.addGlyph(QPointF(100, 5000));
    document.scene->setPageNum(7);
    QCOMPARE(document.window.pageCount, 7);
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, width, 7 * pitch));
    document.scene->setPageNum(2);
    QCOMPARE(document.window.pageCount, 2);
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, width, 2 * pitch));
    QCOMPARE(item->pos(), QPointF(100, 5000));
}

void PagesTest::insertionMovesWhatLiesBelow_data()
{
    QTest::addColumn<Insertion>("where");
    QTest::addColumn<bool>("movesFirst");
    QTest::addColumn<bool>("movesSecond");
    QTest::newRow("at the beginning") << Insertion::AtBeginning << true << true;
    QTest::newRow("before page 2") << Insertion::BeforePage2 << false << true;
    QTest::newRow("after page 1") << Insertion::AfterPage1 << false << true;
    QTest::newRow("after page 2") << Insertion::AfterPage2 << false << false;
    QTest::newRow("at the end") << Insertion::AtEnd << false << false;
}

void PagesTest::insertionMovesWhatLiesBelow()
{
    QFETCH(Insertion, where);
    QFETCH(bool, movesFirst);
    QFETCH(bool, movesSecond);
    PaperDocument document(QPageSize::Letter, 2);
    const TonquillBitmap *first = document.addGlyph(QPointF(300, 100));
    const TonquillBitmap *second = document.addGlyph(QPointF(200, 1100));
    insert(*document.scene, where);
    QCOMPARE(document.window.pageCount, 3);
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, width, 3 * pitch));
    QCOMPARE(first->pos(), QPointF(300, movesFirst ? 100 + 1039.5 : 100));
    QCOMPARE(second->pos(), QPointF(200, movesSecond ? 1100 + 1039.5 : 1100));
}

void PagesTest::insertionMovesWhatReachesIntoThePage_data()
{
    QTest::addColumn<QPointF>("centre");
    QTest::addColumn<bool>("moves");
    // Before page 2 of 2: from y = 1039, the whole part of 1039.5, for 2 x 1039.5 downwards.
    QTest::newRow("straddles the top") << QPointF(300, 1037) << true;
    QTest::newRow("reaches into the cut fraction") << QPointF(300, 1034.2) << true;
    QTest::newRow("ends above the top") << QPointF(300, 1033) << false;
    QTest::newRow("last reached") << QPointF(300, 3120) << true;
    QTest::newRow("below the area") << QPointF(300, 3130) << false;
    QTest::newRow("straddles the left edge") << QPointF(-4, 1500) << true;
    QTest::newRow("left of the page") << QPointF(-6, 1500) << false;
    QTest::newRow("straddles the right edge") << QPointF(752, 1500) << true;
    QTest::newRow("right of the page") << QPointF(754, 1500) << false;
}

void PagesTest::insertionMovesWhatReachesIntoThePage()
{
    QFETCH(QPointF, centre);
    QFETCH(bool, moves);
    PaperDocument document(QPageSize::Letter, 2);
    const TonquillBitmap *item = document.addGlyph(centre);
    document.scene->addPageBeforeCurPage(2);
    QCOMPARE(item->pos(), moves ? centre + QPointF(0, pitch) : centre);
}

void PagesTest::itemsCountByTheirShape_data()
{
    QTest::addColumn<QLineF>("line");
    QTest::addColumn<bool>("isReached");
    // The areas begin at (0, 1039). At x = 0 the first line is at 1100 - 60 x 100 / 80 = 1025, and
    // left of the areas further down; the second is at 1100 - 60 x 100 / 120 = 1050.
    QTest::newRow("only the bounds reach the page") << QLineF(-60, 1100, 20, 1000) << false;
    QTest::newRow("the line reaches the page") << QLineF(-60, 1100, 60, 1000) << true;
}

void PagesTest::itemsCountByTheirShape()
{
    QFETCH(QLineF, line);
    QFETCH(bool, isReached);
    PaperDocument document(QPageSize::Letter, 2);
    QVERIFY(QRectF(line.p1(), line.p2()).normalized().intersects(QRectF(0, 1039, 748, 990)));
    const QGraphicsLineItem *item = document.scene->addLine(line, QPen(Qt::black, 0));
    document.scene->addPageBeforeCurPage(2);
    QCOMPARE(item->pos(), isReached ? QPointF(0, pitch) : QPointF(0, 0));

    auto *other = document.scene->addLine(line, QPen(Qt::black, 0));
    document.scene->deletePage(1);
    QCOMPARE(other->pos(), isReached ? QPointF(0, -940.5) : QPointF(0, 0));

    other->setPos(0, 0);
    const qsizetype before = document.scene->items().size();
    document.scene->deletePage(2);
    // Both lie there, the first at most 1039.5 - 940.5 = 99 further down.
    QCOMPARE(before - document.scene->items().size(), isReached ? 2 : 0);
}

void PagesTest::childrenMoveWithTheirParentsOnly()
{
    PaperDocument document(QPageSize::Letter, 2);
    auto *parent = new QGraphicsRectItem(0, 0, 20, 20);
    auto *child = new QGraphicsRectItem(0, 0, 20, 20, parent);
    child->setPos(5, 5);
    document.scene->addItem(parent);
    parent->setPos(300, 1500);
    document.scene->addPageAtBegining();
    QCOMPARE(parent->pos(), QPointF(300, 1500 + pitch));
    QCOMPARE(child->pos(), QPointF(5, 5));
    document.scene->deletePage(1);
    QCOMPARE(child->pos(), QPointF(5, 5));
}

void PagesTest::deletionTakesThePageWithItsItems_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QPointF>("before");
    QTest::addColumn<QPointF>("after");
    // Items below go up by 990 - 49.5 = 940.5, two gaps less than a page's pitch.
    QTest::newRow("on page 1") << 1 << QPointF(300, 100) << gone;
    QTest::newRow("on page 2 of a deleted page 1")
        << 1 << QPointF(300, pitch + 10) << QPointF(300, pitch + 10 + gap - height);
    QTest::newRow("on page 3 of a deleted page 1")
        << 1 << QPointF(300, 2 * pitch + 10) << QPointF(300, 2 * pitch + 10 - 940.5);
    QTest::newRow("in the gap behind the page") << 1 << QPointF(300, 1010) << QPointF(300, 1010);
    QTest::newRow("straddles the gap's top") << 1 << QPointF(300, 994) << gone;
    QTest::newRow("straddles page 2's top")
        << 1 << QPointF(300, 1037) << QPointF(300, 1037 - 940.5);
    // The areas begin at whole units, at 1039 instead of 1039.5; a glyph reaches 5 up and down.
    QTest::newRow("reaches into the cut fraction above the deleted page")
        << 2 << QPointF(300, 1034.2) << gone;
    QTest::newRow("ends above the cut fraction")
        << 2 << QPointF(300, 1033.5) << QPointF(300, 1033.5);
    // 1039 + 990 = 2029.
    QTest::newRow("reaches the end of the deleted page") << 2 << QPointF(300, 2033.8) << gone;
    QTest::newRow("begins in the fraction that is cut off the deleted page's end")
        << 2 << QPointF(300, 2034.3) << QPointF(300, 2034.3);
    QTest::newRow("reaches into the cut fraction above what moves")
        << 1 << QPointF(300, 1034.2) << QPointF(300, 1034.2 - 940.5);
    QTest::newRow("ends above the cut fraction of what moves")
        << 1 << QPointF(300, 1033.5) << QPointF(300, 1033.5);
    // What moves is as high as the three pages were: 1039 + 3 x 1039.5 = 4157.5.
    QTest::newRow("reaches the end of what moves")
        << 1 << QPointF(300, 4162) << QPointF(300, 4162 - 940.5);
    QTest::newRow("just beyond what moves") << 1 << QPointF(300, 4163) << QPointF(300, 4163);
    QTest::newRow("left of the page") << 1 << QPointF(-6, 100) << QPointF(-6, 100);
    QTest::newRow("right of the next page") << 1 << QPointF(754, 1500) << QPointF(754, 1500);
    QTest::newRow("on page 1 of a deleted page 2") << 2 << QPointF(300, 100) << QPointF(300, 100);
    QTest::newRow("on page 2") << 2 << QPointF(300, 1500) << gone;
    QTest::newRow("on page 3 of a deleted page 2")
        << 2 << QPointF(300, 2500) << QPointF(300, 2500 - 940.5);
    // Page 2 ends at 1039 + 990 = 2029, page 3's area begins at 2079.
    QTest::newRow("in the second gap") << 2 << QPointF(300, 2050) << QPointF(300, 2050);
    QTest::newRow("straddles page 1 and 2") << 2 << QPointF(300, 1037) << gone;
    QTest::newRow("on page 3") << 3 << QPointF(300, 2500) << gone;
    // Of page 0 nothing is deleted, and all below it, page 1 first, goes up.
    QTest::newRow("below a page before the first")
        << 0 << QPointF(300, 1500) << QPointF(300, 1500 - 940.5);
    QTest::newRow("above a page behind the last") << 4 << QPointF(300, 1500) << QPointF(300, 1500);
    QTest::newRow("above a page far behind the last")
        << 100 << QPointF(300, 1500) << QPointF(300, 1500);
}

void PagesTest::deletionTakesThePageWithItsItems()
{
    QFETCH(int, page);
    QFETCH(QPointF, before);
    QFETCH(QPointF, after);
    PaperDocument document(QPageSize::Letter, 3);
    const QPointer<TonquillBitmap> item = document.addGlyph(before);
    document.scene->deletePage(page);
    QCOMPARE(placeOf(item), after);
    QCOMPARE(document.window.pageCount, 2);
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, width, 2 * pitch));
}

void PagesTest::deletingTheOnlyPageEmptiesIt()
{
    PaperDocument document;
    const QPointer<TonquillBitmap> onPage = document.addGlyph(QPointF(300, 100));
    const QPointer<TonquillBitmap> below = document.addGlyph(QPointF(300, 1500));
    document.scene->deletePage(1);
    QVERIFY(!onPage);
    QCOMPARE(placeOf(below), QPointF(300, 1500));
    QCOMPARE(document.window.pageCount, 1);
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, width, pitch));
}

void PagesTest::insertionAndDeletionAreNotSymmetrical()
{
    PaperDocument document;
    const TonquillBitmap *item = document.addGlyph(QPointF(300, 100));
    document.scene->addPageAtBegining();
    document.scene->deletePage(1);
    // 100 + 1039.5 - 940.5.
    QCOMPARE(item->pos(), QPointF(300, 199));
    QCOMPARE(document.window.pageCount, 1);
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, width, pitch));
}

void PagesTest::clearingLeavesOnePage()
{
    PaperDocument document(QPageSize::Letter, 3);
    document.scene->clearScene();
    QCOMPARE(document.window.pageCount, 1);
    // One gap less than a page, 990 - 49.5.
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, width, 940.5));
}

void PagesTest::clearingASinglePageKeepsTheSceneRect()
{
    PaperDocument document;
    document.scene->setSceneRect(0, 0, 500, 600);
    document.scene->clearScene();
    QCOMPARE(document.window.pageCount, 1);
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, 500, 600));
}

void PagesTest::nextPageOperationRestoresTheHeight()
{
    PaperDocument document(QPageSize::Letter, 3);
    document.scene->clearScene();
    document.scene->addPage();
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, width, 2 * pitch));
    document.scene->clearScene();
    document.scene->setPageNum(1);
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, width, pitch));
}

void PagesTest::clearingTakesEveryItem()
{
    PaperDocument document;
    const QPointer<TonquillBitmap> onPage = document.addGlyph(QPointF(300, 100));
    const QPointer<TonquillBitmap> beside = document.addGlyph(QPointF(-900, -700));
    const QPointer<TonquillBitmap> hidden = document.addGlyph(QPointF(300, 300));
    hidden->setVisible(false);
    document.scene->addItem(new QGraphicsRectItem(0, 0, 20, 20));
    onPage->setSelected(true);
    document.scene->clearScene();
    QVERIFY(!onPage && !beside && !hidden);
    QVERIFY(document.scene->items().isEmpty());
    QVERIFY(document.scene->selectedItems().isEmpty());
}

void PagesTest::manyItemsGoAtOnce_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("one") << 1;
    QTest::newRow("few") << 31;
    QTest::newRow("some") << 32;
    QTest::newRow("many") << 5000;
}

/** Whatever the way in which they are removed, all go and the others stay as they are. */
void PagesTest::manyItemsGoAtOnce()
{
    QFETCH(int, count);
    PaperDocument document(QPageSize::Letter, 2);
    QList<QPointer<TonquillBitmap>> doomed;
    QList<QPointer<TonquillBitmap>> others;
    for (int i = 0; i < count; ++i) {
        doomed.append(document.addGlyph(QPointF(10 + i % 700, 10 + i % 900)));
        others.append(document.addGlyph(QPointF(10 + i % 700, 1100 + i % 900)));
    }
    document.scene->deletePage(1);
    QCOMPARE(doomed.count(QPointer<TonquillBitmap>()), count);
    QCOMPARE(others.count(QPointer<TonquillBitmap>()), 0);
    QCOMPARE(others.constLast()->pos(),
             QPointF(10 + (count - 1) % 700, 1100 + (count - 1) % 900 - 940.5));
    QCOMPARE(others.constLast()->zValue(), 10.0);
}

TONQUILL_TEST_MAIN(PagesTest)
#include "tst_pages.moc"
