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
    void followsItemsThroughAStep_data();
    void followsItemsThroughAStep();
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

void UndoHistoryTest::followsItemsThroughAStep_data()
{
    using Indices = QList<qsizetype>;
    QTest::addColumn<QByteArrayList>("before");
    QTest::addColumn<QByteArrayList>("after");
    QTest::addColumn<Indices>("selected");
    QTest::addColumn<Indices>("expected");
    // The step is undone: from `after` to `before`.
    QTest::newRow("moved item") << QByteArrayList{"a", "b"} << QByteArrayList{"a", "B"}
                                << Indices{0, 1} << Indices{0, 1};
    QTest::newRow("new item") << QByteArrayList{"a", "c"} << QByteArrayList{"a", "b", "c"}
                              << Indices{0, 1, 2} << Indices{0, 1};
    QTest::newRow("deleted item") << QByteArrayList{"a", "b", "c"} << QByteArrayList{"a", "c"}
                                  << Indices{1} << Indices{2};
}

void UndoHistoryTest::followsItemsThroughAStep()
{
    QFETCH(QByteArrayList, before);
    QFETCH(QByteArrayList, after);
    QFETCH(QList<qsizetype>, selected);
    QFETCH(QList<qsizetype>, expected);
    UndoHistory history;
    history.reset(state(before));
    history.record(state(after));
    history.undo();
    QCOMPARE(history.followed(selected), expected);
}

QTEST_GUILESS_MAIN(UndoHistoryTest)
#include "tst_undohistory.moc"
