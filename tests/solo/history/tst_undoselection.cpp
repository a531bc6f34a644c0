#include "EditWatcher.h"
#include "RandomDocument.h"
#include "SoloTestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"

namespace
{
using Indices = QList<qsizetype>;

/** From this many replaced items on, a document is built anew. */
constexpr int manyItems = 33;

/** What a window shows: the document, and which of its items are selected. */
struct Sight
{
    DocumentSnapshot document;
    Indices selected;

    static Sight of(const TonquillMainWin &window)
    {
        Sight sight{DocumentSnapshot::capture(window), {}};
        const QList<QGraphicsItem *> items = DocumentSnapshot::itemsOf(window);
        for (qsizetype i = 0; i < items.size(); ++i) {
            if (items[i]->isSelected())
                sight.selected.append(i);
        }
        return sight;
    }
};
} // namespace

/** Undo and redo select what was selected when the document was last as it is then. */
class UndoSelectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void undoingAPasteSelectsWhatWasCopied_data();
    void undoingAPasteSelectsWhatWasCopied();
    void undoingADeletionSelectsWhatWasDeleted_data();
    void undoingADeletionSelectsWhatWasDeleted();
    void undoingADragSelectsWhatWasDragged();
    void redoSelectsWhatWasSelectedAfterwards();
    void aSelectionMadeLaterBelongsToTheState();
    void everyStateComesBackWithItsSelection_data();
    void everyStateComesBackWithItsSelection();

private:
    void select(const Indices &indices);
    void selectSome(RandomDocument &random);
    void edit(RandomDocument &random);
    void type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    Indices selected() const { return Sight::of(*m_window).selected; }

    std::unique_ptr<TonquillMainWin> m_window;
    std::unique_ptr<EditWatcher> m_edits;
};

void UndoSelectionTest::init()
{
    m_window = std::make_unique<TonquillMainWin>(TonquillMainWin::HostConnection::Later);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_window->view()->setFocus();
    m_edits = std::make_unique<EditWatcher>(*m_window);
}

void UndoSelectionTest::cleanup()
{
    m_edits.reset();
    m_window.reset();
}

void UndoSelectionTest::select(const Indices &indices)
{
    const QList<QGraphicsItem *> items = DocumentSnapshot::itemsOf(*m_window);
    for (qsizetype i = 0; i < items.size(); ++i)
        items[i]->setSelected(indices.contains(i));
    m_edits->check();
}

void UndoSelectionTest::selectSome(RandomDocument &random)
{
    const int oneOf = 1 + random.below(4);
    for (QGraphicsItem *item : DocumentSnapshot::itemsOf(*m_window))
        item->setSelected(random.below(oneOf) == 0);
    m_edits->check();
}

void UndoSelectionTest::type(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(m_window->view(), key, modifiers);
    m_edits->check();
}

/** Items of every kind, of both heights, so that new ones come to lie between older ones. */
void UndoSelectionTest::undoingAPasteSelectsWhatWasCopied_data()
{
    QTest::addColumn<int>("kinds");
    QTest::addColumn<int>("rounds");
    for (int kind = 0; kind < 9; ++kind)
        QTest::addRow("kind %d", kind) << kind << 1;
    QTest::newRow("all kinds") << -1 << 1;
    QTest::newRow("many") << -1 << 5;
}

void UndoSelectionTest::undoingAPasteSelectsWhatWasCopied()
{
    QFETCH(int, kinds);
    QFETCH(int, rounds);
    RandomDocument random(1);
    for (int round = 0; round < rounds; ++round) {
        for (int kind = 0; kind < 9; ++kind)
            m_window->scene->buildItem(random.item(kinds < 0 ? kind : kinds));
    }
    m_edits->reset();
    const int count = 9 * rounds;
    Indices wanted;
    for (int i = 0; i < count; i += i % 4 == 0 ? 1 : 2)
        wanted.append(i);
    select(wanted);
    const QByteArrayList lines = m_edits->document().items.toList();
    type(Qt::Key_C, Qt::ControlModifier);
    type(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_edits->document().items.size(), lines.size() + wanted.size());

    QVERIFY(m_edits->undo());

    QCOMPARE(m_edits->document().items.toList(), lines);
    QCOMPARE(selected(), wanted);
}

void UndoSelectionTest::undoingADeletionSelectsWhatWasDeleted_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("a few, in place") << 9;
    QTest::newRow("many, built anew") << 5 * manyItems;
}

void UndoSelectionTest::undoingADeletionSelectsWhatWasDeleted()
{
    QFETCH(int, count);
    RandomDocument random(2);
    random.fill(*m_window, count);
    m_edits->reset();
    Indices wanted;
    for (int i = 1; i < count; i += 2)
        wanted.append(i);
    // As one does who selects and then types: nobody asked between the two.
    for (const qsizetype index : wanted)
        DocumentSnapshot::itemsOf(*m_window)[index]->setSelected(true);
    type(Qt::Key_Delete);
    QCOMPARE(m_edits->document().items.size(), count - wanted.size());
    QCOMPARE(selected(), Indices());

    QVERIFY(m_edits->undo());
    QCOMPARE(selected(), wanted);
    QVERIFY(m_edits->redo());
    QCOMPARE(selected(), Indices());
}

/** One press selects the note and begins to move it. */
void UndoSelectionTest::undoingADragSelectsWhatWasDragged()
{
    QWidget *viewport = m_window->view()->viewport();
    m_window->InsertBitmapSymbol(19, false, true)->setPos(100, 100);
    m_window->InsertBitmapSymbol(19, false, true)->setPos(200, 100);
    m_edits->reset();
    const QGraphicsItem *second = DocumentSnapshot::itemsOf(*m_window)[1];
    const QPoint place = m_window->view()->mapFromScene(second->sceneBoundingRect().center());
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, place);
    QMouseEvent move(QEvent::MouseMove, place + QPoint(40, 30),
                     viewport->mapToGlobal(place + QPoint(40, 30)), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &move);
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, place + QPoint(40, 30));
    m_edits->check();
    QCOMPARE(m_edits->document().items.toList(),
             QByteArrayList({"tonquill_bitmap 100 100 19", "tonquill_bitmap 240 130 19"}));
    select({0});

    QVERIFY(m_edits->undo());

    QCOMPARE(m_edits->document().items.toList(),
             QByteArrayList({"tonquill_bitmap 100 100 19", "tonquill_bitmap 200 100 19"}));
    QCOMPARE(selected(), Indices{1});
}

void UndoSelectionTest::redoSelectsWhatWasSelectedAfterwards()
{
    RandomDocument random(3);
    random.fill(*m_window, 6);
    m_edits->reset();
    select({1, 2});
    type(Qt::Key_Right);
    select({0, 5});
    QVERIFY(m_edits->undo());
    QCOMPARE(selected(), (Indices{1, 2}));
    QVERIFY(m_edits->redo());
    QCOMPARE(selected(), (Indices{0, 5}));
}

void UndoSelectionTest::aSelectionMadeLaterBelongsToTheState()
{
    RandomDocument random(4);
    random.fill(*m_window, 6);
    m_edits->reset();
    select({1, 2});
    type(Qt::Key_Right);
    QVERIFY(m_edits->undo());
    select({3});
    QVERIFY(m_edits->redo());
    QCOMPARE(selected(), (Indices{1, 2}));
    QVERIFY(m_edits->undo());
    QCOMPARE(selected(), Indices{3});
}

/** An edit of any sort: of the selection, of other items, of the pages. */
void UndoSelectionTest::edit(RandomDocument &random)
{
    const auto some = [&random] { return random.below(4) ? 1 + random.below(4) : manyItems; };
    switch (random.below(5)) {
    case 0:
        random.fill(*m_window, some());
        break;
    case 1:
        m_window->scene->destroyItems(m_window->scene->selectedItems());
        break;
    case 2:
        for (QGraphicsItem *item : m_window->scene->selectedItems())
            item->moveBy(1 + random.below(20), -1);
        break;
    case 3:
        for (QGraphicsItem *item : DocumentSnapshot::itemsOf(*m_window)) {
            if (!item->isSelected() && random.below(3) == 0)
                item->moveBy(2, 2);
        }
        break;
    case 4:
        m_window->scene->addPageBeforeCurPage(1 + random.below(2));
        break;
    }
    m_edits->check();
}

void UndoSelectionTest::everyStateComesBackWithItsSelection_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void UndoSelectionTest::everyStateComesBackWithItsSelection()
{
    QFETCH(quint32, seed);
    RandomDocument random(seed);
    random.fill(*m_window, random.below(2) ? 8 : 2 * manyItems);
    m_edits->reset();
    QList<Sight> states{Sight::of(*m_window)};
    qsizetype at = 0;
    for (int action = 0; action < 50; ++action) {
        const int kind = random.below(4);
        if (kind == 0 && at > 0) {
            QVERIFY(m_edits->undo());
            --at;
        } else if (kind == 1 && at + 1 < states.size()) {
            QVERIFY(m_edits->redo());
            ++at;
        } else if (kind == 2) {
            selectSome(random);
            states[at].selected = selected();
        } else {
            edit(random);
            const Sight now = Sight::of(*m_window);
            if (now.document == states[at].document)
                continue; // such as a move of nothing
            states.resize(++at);
            states.append(now);
        }
        QCOMPARE(m_window->pageCount, states[at].document.pageCount);
        QCOMPARE(Sight::of(*m_window).document.items.toList(), states[at].document.items.toList());
        QCOMPARE(selected(), states[at].selected);
    }
    QVERIFY(states.size() > 2);
}

TONQUILL_SOLO_TEST_MAIN(UndoSelectionTest)
#include "tst_undoselection.moc"
