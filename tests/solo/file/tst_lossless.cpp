#include "DocumentFile.h"
#include "EditWatcher.h"
#include "FigureState.h"
#include "ItemKinds.h"
#include "RandomDocument.h"
#include "SoloTestMain.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillTextBlock.h"
#include "TonquillVectorInteractiveLine.h"

#include <QGraphicsTextItem>

/** Opening, undo and redo give back exactly what was on the pages. */
class LosslessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savingAndOpeningChangesNothing_data();
    void savingAndOpeningChangesNothing();
    void formattedTextSurvives();
    void figuresKeepTheirAnchors();
    void undoAllAndRedoAllPassTheSameStates();

private:
    static void editAtRandom(TonquillMainWin &window, RandomDocument &random);
};

namespace
{
Paper paper(const TonquillMainWin &window)
{
    return DocumentSnapshot::paperOf(window);
}

/** The document's items that are no frames. */
QList<QGraphicsItem *> itemsOf(const TonquillMainWin &window)
{
    QList<QGraphicsItem *> items = window.scene->items(Qt::AscendingOrder);
    items.removeIf([](const QGraphicsItem *item) { return item->parentItem() != nullptr; });
    return items;
}
} // namespace

void LosslessTest::savingAndOpeningChangesNothing_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 12; ++seed)
        QTest::addRow("document %u", seed) << seed;
}

void LosslessTest::savingAndOpeningChangesNothing()
{
    QFETCH(quint32, seed);
    TonquillMainWin window(TonquillMainWin::HostConnection::Later);
    RandomDocument random(seed);
    random.fill(window, 60);
    window.scene->setPageNum(1 + random.below(3));

    const QByteArray saved = DocumentFile::format(DocumentSnapshot::capture(window));
    const QList<QImage> pictures = RandomDocument::pictures(window);
    const DocumentFile::Reading reading = DocumentFile::parse(saved, paper(window));
    QCOMPARE(reading.problemText(), QString());
    window.scene->clearScene();
    reading.document.restore(window);

    QCOMPARE(DocumentFile::format(DocumentSnapshot::capture(window)), saved);
    QVERIFY(RandomDocument::pictures(window) == pictures);
}

void LosslessTest::formattedTextSurvives()
{
    TonquillMainWin window(TonquillMainWin::HostConnection::Later);
    auto *block = new TonquillTextBlock(false, QStringLiteral("x"), QRectF(0, 0, 200, 80));
    window.scene->addNewItem(block);
    block->setHtml(QStringLiteral("<p>plain <b>bold</b> <span style='color:#ff0000'>red</span>"));
    const DocumentSnapshot before = DocumentSnapshot::capture(window);
    const QList<QImage> pictures = RandomDocument::pictures(window);
    before.restore(window);
    QVERIFY(RandomDocument::pictures(window) == pictures);
    // From the second time on the very text is the same as well.
    const DocumentSnapshot once = DocumentSnapshot::capture(window);
    once.restore(window);
    QCOMPARE(DocumentSnapshot::capture(window), once);
}

void LosslessTest::figuresKeepTheirAnchors()
{
    TonquillMainWin window(TonquillMainWin::HostConnection::Later);
    const FigureState resized{{100, 100},
                              &TonquillVectorInteractiveLine::figure(),
                              {0, 0},
                              {80, -50},
                              FigureState::Anchors({0, -50}, {80, -50})};
    window.scene->buildItem(resized);
    DocumentSnapshot::capture(window).restore(window);
    const QGraphicsItem &shown = *itemsOf(window).constFirst();
    QVERIFY(ItemKinds::catalogue().ofItem(shown)->stateOf(shown) == ItemState(resized));
}

/** One edit of any kind that a user can make. */
void LosslessTest::editAtRandom(TonquillMainWin &window, RandomDocument &random)
{
    const QList<QGraphicsItem *> items = itemsOf(window);
    QGraphicsItem *item = items.isEmpty() ? nullptr : items[random.below(int(items.size()))];
    const int choice = random.below(8);
    if (!item || choice < 3) {
        window.scene->buildItem(random.item());
    } else if (choice == 3) {
        window.scene->destroyItems({item});
    } else if (choice == 4) {
        window.scene->addPageAtBegining();
    } else if (choice == 5) {
        window.scene->deletePage(1 + random.below(window.pageCount));
    } else if (auto *text = dynamic_cast<QGraphicsTextItem *>(item); text && choice == 6) {
        QFont font = text->font();
        font.setPointSize(8 + random.below(20));
        text->setFont(font);
    } else {
        item->moveBy(0.25 + random.below(40), 1);
    }
}

void LosslessTest::undoAllAndRedoAllPassTheSameStates()
{
    constexpr int steps = 200;
    constexpr int pictureEvery = 20;
    TonquillMainWin window(TonquillMainWin::HostConnection::Later);
    RandomDocument random(7);
    random.fill(window, 12);
    EditWatcher edits(window);
    QList<QByteArray> states{DocumentFile::format(edits.document())};
    QHash<int, QList<QImage>> pictures{{0, RandomDocument::pictures(window)}};
    while (states.size() <= steps) {
        editAtRandom(window, random);
        edits.check();
        const QByteArray now = DocumentFile::format(edits.document());
        if (now == states.constLast())
            continue;
        states.append(now);
        const int step = int(states.size()) - 1;
        if (step % pictureEvery == 0)
            pictures.insert(step, RandomDocument::pictures(window));
    }
    const auto isAt = [&](int step) {
        return DocumentFile::format(DocumentSnapshot::capture(window)) == states[step] &&
               (step % pictureEvery != 0 ||
                RandomDocument::pictures(window) == pictures.value(step));
    };
    for (int step = steps - 1; step >= 0; --step) {
        QVERIFY(edits.undo());
        QVERIFY2(isAt(step), qPrintable(QString::number(step)));
    }
    QVERIFY(!edits.undo());
    for (int step = 1; step <= steps; ++step) {
        QVERIFY(edits.redo());
        QVERIFY2(isAt(step), qPrintable(QString::number(step)));
    }
    QVERIFY(!edits.redo());
}

TONQUILL_SOLO_TEST_MAIN(LosslessTest)
#include "tst_lossless.moc"
