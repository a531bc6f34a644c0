#include "DocumentMirror.h"
#include "RandomDocument.h"
#include "ScenePointer.h"
#include "SoloTestMain.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"
#include "TonquillTimeSig.h"
#include "TonquillVectorNoteTie.h"

#include <QTextCursor>

/** The document as it is kept up to date, beside the document as it is written anew. */
class DocumentMirrorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void holdsWhatWasThereBefore();
    void changesOnlyWhenItIsRefreshed();
    void anEditOfOneItemKeepsTheOtherLines();
    void anItemThatWaitedLiesWhereItCame();
    void aDroppedItemIsForgotten();
    void itemsComeToLieBelowOthers();
    void itemsChangeTheirHeight();
    void followsMassesOfChanges_data();
    void followsMassesOfChanges();
    void paperAndPagesAreKept();
    void tellsTheLinesOfItems();
    void selectsTheItemsOfLines();
    void theLatestMirrorIsTold();
    void followsWhateverIsDone_data();
    void followsWhateverIsDone();

private:
    QByteArrayList lines();
    bool isTrue();
    TonquillTimeSig *add(int numerator);

    std::unique_ptr<TonquillMainWin> m_window;
    std::unique_ptr<DocumentMirror> m_mirror;
};

void DocumentMirrorTest::init()
{
    m_window = std::make_unique<TonquillMainWin>(TonquillMainWin::HostConnection::Later);
    m_mirror = std::make_unique<DocumentMirror>(*m_window);
}

void DocumentMirrorTest::cleanup()
{
    m_mirror.reset();
    m_window.reset();
}

/** The refreshed lines. */
QByteArrayList DocumentMirrorTest::lines()
{
    m_mirror->refresh();
    return m_mirror->document().items.toList();
}

/** True if the refreshed mirror is what the window shows, line by line and item by item. */
bool DocumentMirrorTest::isTrue()
{
    m_mirror->refresh();
    QList<QGraphicsItem *> items;
    const DocumentSnapshot shown = DocumentSnapshot::capture(*m_window, &items);
    if (m_mirror->document() != shown)
        return false;
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (m_mirror->itemAt(i) != items[i] || m_mirror->indexOf(items[i]) != i)
            return false;
    }
    return true;
}

/** A time signature, whose line names its numerator. */
TonquillTimeSig *DocumentMirrorTest::add(int numerator)
{
    auto *item = new TonquillTimeSig(numerator, 4, false);
    m_window->scene->addNewItem(item);
    return item;
}

void DocumentMirrorTest::holdsWhatWasThereBefore()
{
    m_mirror.reset();
    add(3);
    m_mirror = std::make_unique<DocumentMirror>(*m_window);
    QCOMPARE(m_mirror->document().items.toList(), QByteArrayList{"tonquill_timesig 0 0 3 4"});
    add(5)->setPos(1, 2);
    QCOMPARE(lines(), (QByteArrayList{"tonquill_timesig 0 0 3 4", "tonquill_timesig 1 2 5 4"}));
}

void DocumentMirrorTest::changesOnlyWhenItIsRefreshed()
{
    TonquillTimeSig *item = add(3);
    QVERIFY(isTrue());
    const DocumentSnapshot before = m_mirror->document();
    item->setPos(5, 6);
    add(4);
    QCOMPARE(m_mirror->document(), before);
    QCOMPARE(lines(), (QByteArrayList{"tonquill_timesig 5 6 3 4", "tonquill_timesig 0 0 4 4"}));
    delete item;
    QCOMPARE(lines(), QByteArrayList{"tonquill_timesig 0 0 4 4"});
}

/** Two lists that share their chunks hold the very same lines. */
void DocumentMirrorTest::anEditOfOneItemKeepsTheOtherLines()
{
    QGraphicsItem *first = add(1);
    for (int i = 0; i < 2000; ++i)
        add(3);
    m_mirror->readAll();
    const LineList before = m_mirror->document().items;
    first->moveBy(3, 0);
    m_mirror->refresh();
    const LineList after = m_mirror->document().items;
    QCOMPARE(after[0], "tonquill_timesig 3 0 1 4");
    for (qsizetype i = 64; i < after.size(); ++i)
        QCOMPARE(&after[i], &before[i]);
    // So do those that were read anew and are no other.
    m_mirror->readAll();
    for (qsizetype i = 0; i < after.size(); ++i)
        QCOMPARE(&m_mirror->document().items[i], &after[i]);
}

void DocumentMirrorTest::anItemThatWaitedLiesWhereItCame()
{
    auto *waiting = new TonquillTimeSig(3, 4, true);
    m_window->scene->addNewItem(waiting);
    m_mirror->refresh();
    QVERIFY(m_mirror->isItemWaiting());
    QCOMPARE(m_mirror->indexOf(waiting), -1);
    add(6)->setPos(300, 300);
    QCOMPARE(lines(), QByteArrayList{"tonquill_timesig 300 300 6 4"});
    ScenePointer(*m_window->scene).click(QPointF(100, 100));
    QCOMPARE(lines(),
             (QByteArrayList{"tonquill_timesig 100 100 3 4", "tonquill_timesig 300 300 6 4"}));
    QVERIFY(!m_mirror->isItemWaiting());
}

void DocumentMirrorTest::aDroppedItemIsForgotten()
{
    m_window->InsertBitmapSymbol(19, true, true);
    m_window->InsertBitmapSymbol(20, false, true);
    QVERIFY(isTrue());
    QVERIFY(!m_mirror->isItemWaiting());
    QCOMPARE(lines(), QByteArrayList{"tonquill_bitmap 0 0 20"});
}

void DocumentMirrorTest::itemsComeToLieBelowOthers()
{
    TonquillTimeSig *first = add(1);
    add(2);
    const TonquillTimeSig *third = add(3);
    m_window->scene->stackBelow(*add(4), *third);
    m_window->scene->stackBelow(*add(5), *third);
    m_window->scene->stackBelow(*add(6), *first);
    QVERIFY(isTrue());
    QByteArray numerators;
    for (const QByteArray &line : lines())
        numerators += line.split(' ').at(3);
    QCOMPARE(numerators, "612453");
    // Between the same two again and again, until there is no number left between theirs.
    for (int i = 0; i < 200; ++i)
        m_window->scene->stackBelow(*add(7), *third);
    QVERIFY(isTrue());
    // What lies below already stays where it is.
    const qsizetype before = m_mirror->indexOf(first);
    m_window->scene->stackBelow(*first, *third);
    QVERIFY(isTrue());
    QCOMPARE(m_mirror->indexOf(first), before);
}

void DocumentMirrorTest::itemsChangeTheirHeight()
{
    TonquillTimeSig *first = add(1);
    add(2);
    m_mirror->refresh();
    first->setZValue(11);
    QVERIFY(isTrue());
    QCOMPARE(m_mirror->indexOf(first), 1);
    first->setZValue(symbolZValue);
    QVERIFY(isTrue());
    QCOMPARE(m_mirror->indexOf(first), 0);
}

void DocumentMirrorTest::followsMassesOfChanges_data()
{
    using Change = std::function<void(TonquillMainWin &)>;
    QTest::addColumn<Change>("change");
    QTest::newRow("everything goes") << Change([](auto &window) { window.scene->clearScene(); });
    QTest::newRow("everything is another")
        << Change([](auto &window) { window.twMsg(QStringLiteral("tonquill_timesig 1 2 3 4")); });
    QTest::newRow("everything moves")
        << Change([](auto &window) { window.scene->addPageAtBegining(); });
    QTest::newRow("a page goes") << Change([](auto &window) { window.scene->deletePage(1); });
    QTest::newRow("many come") << Change(
        [](auto &window) { RandomDocument(2).fill(window, 1200); });
    QTest::newRow("many go and others come") << Change([](auto &window) {
        window.scene->destroyItems(DocumentSnapshot::itemsOf(window).first(1100));
        RandomDocument(3).fill(window, 500);
    });
}

void DocumentMirrorTest::followsMassesOfChanges()
{
    QFETCH(std::function<void(TonquillMainWin &)>, change);
    RandomDocument(1).fill(*m_window, 1200);
    QVERIFY(isTrue());
    change(*m_window);
    QVERIFY(isTrue());
    add(3);
    QVERIFY(isTrue());
}

void DocumentMirrorTest::paperAndPagesAreKept()
{
    m_window->scene->addPageAtEnd();
    m_window->scene->paperRect.setSize(QSizeF(500, 700));
    m_mirror->refresh();
    QCOMPARE(m_mirror->document().pageCount, 2);
    QCOMPARE(m_mirror->document().paper.size, QSizeF(500, 700));
}

void DocumentMirrorTest::tellsTheLinesOfItems()
{
    const QList<QGraphicsItem *> items{add(1), add(2), add(3), add(4)};
    TonquillTimeSig foreign(1, 1, false);
    m_mirror->refresh();
    ItemSelection expected;
    expected.append(1);
    expected.append(3);
    QCOMPARE(m_mirror->selectionOf({items[3], &foreign, items[1]}), expected);
}

void DocumentMirrorTest::selectsTheItemsOfLines()
{
    const QList<QGraphicsItem *> items{add(1), add(2), add(3), add(4)};
    items[0]->setSelected(true);
    items[1]->setSelected(true);
    m_mirror->refresh();
    ItemSelection wanted;
    wanted.append(1);
    wanted.append(3);
    m_mirror->select(wanted);
    const QList<QGraphicsItem *> selected = m_window->scene->selectedItems();
    QCOMPARE(QSet(selected.cbegin(), selected.cend()), QSet({items[1], items[3]}));
}

void DocumentMirrorTest::theLatestMirrorIsTold()
{
    auto later = std::make_unique<DocumentMirror>(*m_window);
    m_mirror = std::move(later);
    add(3);
    QVERIFY(isTrue());
}

void DocumentMirrorTest::followsWhateverIsDone_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 6; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

namespace
{
/** Changes something about the item that its line holds. */
void change(QGraphicsItem *item, RandomDocument &random)
{
    if (auto *text = qgraphicsitem_cast<TonquillText *>(item)) {
        text->setDefaultTextColor(QColor::fromRgb(QRgb(random.below(1 << 24))));
        text->setRotation(random.below(360));
    } else if (auto *block = qgraphicsitem_cast<TonquillTextBlock *>(item)) {
        QTextCursor(block->document()).insertHtml(QStringLiteral("<b>%1</b>").arg(random.below(9)));
        block->updateFrame();
    } else {
        item->moveBy(random.below(5), random.below(5));
    }
}
} // namespace

void DocumentMirrorTest::followsWhateverIsDone()
{
    QFETCH(quint32, seed);
    RandomDocument random(seed);
    TonquillScene &scene = *m_window->scene;
    random.fill(*m_window, 300);
    for (int step = 0; step < 300; ++step) {
        const QList<QGraphicsItem *> items = DocumentSnapshot::itemsOf(*m_window);
        const auto anyItem = [&] { return items[random.below(int(items.size()))]; };
        const int kind = items.isEmpty() ? 0 : random.below(6);
        if (kind == 0)
            random.fill(*m_window, 1 + random.below(20));
        else if (kind == 1)
            scene.destroyItems({anyItem()});
        else if (kind == 2)
            scene.destroyItems(items.first(random.below(int(items.size()))));
        else if (kind == 3)
            anyItem()->setZValue(random.below(2) * symbolZValue);
        else
            change(anyItem(), random);
        const QList<QGraphicsItem *> left = DocumentSnapshot::itemsOf(*m_window);
        if (random.below(3) == 0 && left.size() > 1) {
            QGraphicsItem *above = left[random.below(int(left.size()) - 1)];
            if (above->zValue() == left.constLast()->zValue())
                scene.stackBelow(*left.constLast(), *above);
        }
        if (random.below(3) == 0)
            QVERIFY(isTrue());
    }
    QVERIFY(isTrue());
}

TONQUILL_SOLO_TEST_MAIN(DocumentMirrorTest)
#include "tst_documentmirror.moc"
