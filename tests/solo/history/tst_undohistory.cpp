#include "UndoHistory.h"

#include <QtTest>

/** Steps between states, as plain values. */
class UndoHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesBackAndForth_data();
    void goesBackAndForth();
    void anUnchangedStateIsNoStep();
    void aNewEditEndsRedo();
    void editsOfOneGestureAreOneStep();
    void aGestureThatEndsWhereItBeganIsNoStep();
    void dropsTheOldestStepsBeyondItsBound();
    void eachStateKeepsItsSelection();
    void aGestureKeepsTheSelectionFromBeforeIt();
    void selectionsCostWhatTheirRunsHold();
    void aSelectionIsItsIndices_data();
    void aSelectionIsItsIndices();
};

namespace
{
DocumentSnapshot state(const QByteArrayList &items, int pages = 1)
{
    return DocumentSnapshot{Paper(), pages, items};
}
} // namespace

void UndoHistoryTest::goesBackAndForth_data()
{
    QTest::addColumn<QByteArrayList>("before");
    QTest::addColumn<QByteArrayList>("after");
    QTest::newRow("first item") << QByteArrayList{} << QByteArrayList{"a"};
    QTest::newRow("item on top") << QByteArrayList{"a"} << QByteArrayList{"a", "b"};
    QTest::newRow("item below") << QByteArrayList{"b"} << QByteArrayList{"a", "b"};
    QTest::newRow("equal items") << QByteArrayList{"a", "a"} << QByteArrayList{"a", "a", "a"};
    QTest::newRow("deleted from the middle")
        << QByteArrayList{"a", "b", "c", "d"} << QByteArrayList{"a", "d"};
    QTest::newRow("changed in two places")
        << QByteArrayList{"a", "b", "c", "d"} << QByteArrayList{"A", "b", "C", "D"};
    QTest::newRow("everything gone") << QByteArrayList{"a", "b"} << QByteArrayList{};
}

void UndoHistoryTest::goesBackAndForth()
{
    QFETCH(QByteArrayList, before);
    QFETCH(QByteArrayList, after);
    UndoHistory history;
    history.reset(state(before, 2));
    QVERIFY(history.record(state(after, 3)));
    history.undo();
    QCOMPARE(history.current(), state(before, 2));
    QVERIFY(!history.canUndo());
    history.redo();
    QCOMPARE(history.current(), state(after, 3));
    QVERIFY(!history.canRedo());
}

void UndoHistoryTest::anUnchangedStateIsNoStep()
{
    UndoHistory history;
    history.reset(state({"a"}));
    QVERIFY(!history.record(state({"a"})));
    QVERIFY(!history.canUndo());
}

void UndoHistoryTest::aNewEditEndsRedo()
{
    UndoHistory history;
    history.reset(state({}));
    history.record(state({"a"}));
    history.undo();
    history.record(state({"b"}));
    QVERIFY(!history.canRedo());
    history.undo();
    QCOMPARE(history.current(), state({}));
    QVERIFY(!history.canUndo());
}

void UndoHistoryTest::editsOfOneGestureAreOneStep()
{
    UndoHistory history;
    history.reset(state({}));
    history.record(state({"a"}));
    history.record(state({"ab"}), true);
    history.record(state({"abc"}), true);
    history.undo();
    QCOMPARE(history.current(), state({}));
    history.redo();
    QCOMPARE(history.current(), state({"abc"}));
}

void UndoHistoryTest::aGestureThatEndsWhereItBeganIsNoStep()
{
    UndoHistory history;
    history.reset(state({}));
    history.record(state({"a"}));
    history.record(state({}), true);
    QVERIFY(!history.canUndo());
    QCOMPARE(history.current(), state({}));
}

void UndoHistoryTest::dropsTheOldestStepsBeyondItsBound()
{
    constexpr qsizetype bound = 100'000;
    UndoHistory history(bound);
    history.reset(state({}));
    QByteArrayList items;
    for (int i = 0; i < 50; ++i) {
        items.append(QByteArray(10'000, char('a' + i % 26)));
        history.record(state(items));
        QVERIFY(history.cost() <= bound);
    }
    QCOMPARE(history.current(), state(items));
    int steps = 0;
    for (; history.canUndo(); ++steps)
        history.undo();
    // Each step holds one line of 10,000 bytes and some more, so nine of them fit.
    QCOMPARE(steps, 9);
    QCOMPARE(history.current(), state(items.first(50 - 9)));
}

namespace
{
ItemSelection selection(const QList<qsizetype> &indices)
{
    ItemSelection result;
    for (const qsizetype index : indices)
        result.append(index);
    return result;
}
} // namespace

/** What is selected belongs to the state in which it was, however often one comes back to it. */
void UndoHistoryTest::eachStateKeepsItsSelection()
{
    UndoHistory history;
    history.reset(state({"a", "b"}));
    QCOMPARE(history.selection(), selection({}));
    history.select(selection({0, 1}));
    history.record(state({"a", "b", "c"}));
    history.select(selection({2}));
    history.record(state({"A", "b", "c"}));
    history.select(selection({0, 2}));

    history.undo();
    QCOMPARE(history.selection(), selection({2}));
    history.undo();
    QCOMPARE(history.selection(), selection({0, 1}));
    history.select(selection({1}));
    history.redo();
    QCOMPARE(history.selection(), selection({2}));
    history.select(selection({}));
    history.redo();
    QCOMPARE(history.selection(), selection({0, 2}));
    history.undo();
    QCOMPARE(history.selection(), selection({}));
    history.undo();
    QCOMPARE(history.selection(), selection({1}));
}

void UndoHistoryTest::aGestureKeepsTheSelectionFromBeforeIt()
{
    UndoHistory history;
    history.reset(state({"a", "b"}));
    history.select(selection({1}));
    history.record(state({"aa", "b"}));
    history.select(selection({0}));
    history.record(state({"aaa", "b"}), true);
    history.select(selection({0, 1}));
    history.undo();
    QCOMPARE(history.selection(), selection({1}));
    history.redo();
    QCOMPARE(history.selection(), selection({0, 1}));
}

/** The cost is that of the selections that wait in steps, which undo exchanges for others. */
void UndoHistoryTest::selectionsCostWhatTheirRunsHold()
{
    QByteArrayList items;
    ItemSelection everything;
    ItemSelection everySecond;
    for (qsizetype i = 0; i < 1000; ++i) {
        items.append("x");
        everything.append(i);
        if (i % 2 == 0)
            everySecond.append(i);
    }
    QCOMPARE(everything.cost(), 2 * qsizetype(sizeof(qsizetype)));
    QCOMPARE(everySecond.cost(), 500 * everything.cost());

    UndoHistory history;
    history.reset(state(items));
    history.record(state(items, 2));
    const qsizetype bare = history.cost();
    history.undo();
    history.select(everySecond);
    history.redo();
    QCOMPARE(history.cost(), bare + everySecond.cost());
    history.select(everything);
    history.undo();
    QCOMPARE(history.selection(), everySecond);
    QCOMPARE(history.cost(), bare + everything.cost());
    history.record(state(items, 3));
    history.undo();
    history.record(state(items, 4));
    QCOMPARE(history.cost(), bare + everySecond.cost());
}

void UndoHistoryTest::aSelectionIsItsIndices_data()
{
    QTest::addColumn<QList<qsizetype>>("indices");
    QTest::newRow("none") << QList<qsizetype>{};
    QTest::newRow("first") << QList<qsizetype>{0};
    QTest::newRow("last") << QList<qsizetype>{9};
    QTest::newRow("all") << QList<qsizetype>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    QTest::newRow("runs") << QList<qsizetype>{0, 1, 3, 4, 5, 7, 9};
}

void UndoHistoryTest::aSelectionIsItsIndices()
{
    QFETCH(QList<qsizetype>, indices);
    const QBitArray bits = selection(indices).toBits(10);
    QCOMPARE(bits.size(), qsizetype(10));
    for (qsizetype i = 0; i < 10; ++i)
        QCOMPARE(bits.testBit(i), indices.contains(i));
}

QTEST_GUILESS_MAIN(UndoHistoryTest)
#include "tst_undohistory.moc"
