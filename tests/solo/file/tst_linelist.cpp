#include "LineList.h"

#include <QtTest>

#include <random>

/** Lists that share their chunks, beside plain lists of the same values. */
class LineListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAListOfItsValues_data();
    void isAListOfItsValues();
    void aCopyKeepsItsValues();
    void copiesShareWhatWasNotChanged();
    void whatBecomesAnotherSharesWithWhatItWas();
    void findsThePlaceInASortedList();
    void tellsTheWayBetweenTwoLists_data();
    void tellsTheWayBetweenTwoLists();
    void staysEqualToAPlainListWhateverIsEdited();
};

namespace
{
using Changes = QList<LineList::Change>;

QByteArrayList numbers(int count)
{
    QByteArrayList lines;
    for (int i = 0; i < count; ++i)
        lines.append(QByteArray::number(i));
    return lines;
}

/** How many values of `a` are the very ones of `b`, at the same index. */
int sharedValues(const LineList &a, const LineList &b)
{
    int shared = 0;
    for (qsizetype i = 0; i < qMin(a.size(), b.size()); ++i)
        shared += &a[i] == &b[i];
    return shared;
}
} // namespace

void LineListTest::isAListOfItsValues_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, 31, 32, 33, 64, 65, 1000})
        QTest::addRow("%d", count) << count;
}

void LineListTest::isAListOfItsValues()
{
    QFETCH(int, count);
    const QByteArrayList plain = numbers(count);
    const LineList list = plain;
    QCOMPARE(list.size(), qsizetype(count));
    QCOMPARE(list.isEmpty(), count == 0);
    QCOMPARE(list.toList(), plain);
    QCOMPARE(QByteArrayList(list.begin(), list.end()), plain);
    QCOMPARE(list, LineList(plain));
    QVERIFY(list != LineList(plain + QByteArrayList{"more"}));
    LineList appended;
    for (const QByteArray &line : plain)
        appended.append(line);
    QCOMPARE(appended, list);
    if (count == 0)
        return;
    QCOMPARE(list[count - 1], QByteArray::number(count - 1));
    QCOMPARE(list.constLast(), QByteArray::number(count - 1));
    QVERIFY(list.contains("0"));
    QVERIFY(!list.contains("none"));
    QCOMPARE(list.sliced(count / 2, count - count / 2), plain.sliced(count / 2));
    appended.set(count / 2, "another");
    QVERIFY(appended != list);
}

void LineListTest::aCopyKeepsItsValues()
{
    const QByteArrayList plain = numbers(600);
    LineList list = plain;
    const LineList copy = list;
    list.set(300, "changed");
    list.remove(0);
    list.insert(500, "new");
    QCOMPARE(copy.toList(), plain);
    QCOMPARE(list.size(), qsizetype(600));
    QCOMPARE(list[299], QByteArray("changed"));
    QCOMPARE(list[500], QByteArray("new"));
}

/** 10,000 lines in chunks of at most 64 each: a change costs the sharing of its own chunk. */
void LineListTest::copiesShareWhatWasNotChanged()
{
    LineList list = numbers(10'000);
    const LineList before = list;
    QCOMPARE(sharedValues(list, before), 10'000);
    list.set(5'000, "changed");
    QVERIFY(sharedValues(list, before) >= 10'000 - 64);
    QVERIFY(sharedValues(list, before) < 10'000);
    // What lies before an inserted line keeps its index as well.
    list.insert(9'000, "new");
    QVERIFY(sharedValues(list, before) >= 9'000 - 2 * 64);
}

void LineListTest::whatBecomesAnotherSharesWithWhatItWas()
{
    QByteArrayList plain = numbers(10'000);
    LineList list = plain;
    const LineList before = list;
    plain[1'000] = "changed";
    plain[8'000] = "changed";
    list.become(plain);
    QCOMPARE(list.toList(), plain);
    QVERIFY(sharedValues(list, before) >= 10'000 - 2 * 64);
    plain.remove(9'000, 10);
    list.become(plain);
    QCOMPARE(list.toList(), plain);
    QVERIFY(sharedValues(list, before) >= 9'000 - 3 * 64);
    list.become({});
    QVERIFY(list.isEmpty());
}

void LineListTest::findsThePlaceInASortedList()
{
    ChunkedList<int> list;
    const auto placeOf = [&list](int wanted) {
        return list.partitionPoint([wanted](int each) { return each < wanted; });
    };
    QCOMPARE(placeOf(5), 0);
    for (int i = 0; i < 1000; ++i)
        list.append(2 * i);
    for (int i = 0; i < 1000; ++i) {
        QCOMPARE(placeOf(2 * i), i);
        QCOMPARE(placeOf(2 * i + 1), i + 1);
    }
}

void LineListTest::tellsTheWayBetweenTwoLists_data()
{
    QTest::addColumn<QByteArrayList>("older");
    QTest::addColumn<QByteArrayList>("newer");
    QTest::addColumn<Changes>("wanted");
    const auto row = [](const char *name, const char *older, const char *newer,
                        const Changes &wanted) {
        const auto letters = [](const QByteArray &text) {
            QByteArrayList lines;
            for (const char letter : text)
                lines.append(QByteArray(1, letter));
            return lines;
        };
        QTest::newRow(name) << letters(older) << letters(newer) << wanted;
    };
    row("nothing", "abc", "abc", {});
    row("empty", "", "", {});
    row("first", "", "a", {{0, 0, 1}});
    row("everything gone", "ab", "", {{0, 2, 0}});
    row("one in the middle", "abc", "aBc", {{1, 1, 1}});
    row("two runs", "abcde", "AbCDe", {{0, 1, 1}, {2, 2, 2}});
    row("inserted", "ad", "abcd", {{1, 0, 2}});
    row("removed", "abcd", "ad", {{1, 2, 0}});
    row("equal ones", "aaa", "aa", {{2, 1, 0}});
    row("changed and removed", "abcd", "aXd", {{1, 2, 1}});
}

void LineListTest::tellsTheWayBetweenTwoLists()
{
    QFETCH(QByteArrayList, older);
    QFETCH(QByteArrayList, newer);
    QFETCH(Changes, wanted);
    QCOMPARE(LineList::changes(older, newer), wanted);
    // The same behind and before many chunks that both share.
    LineList longOlder = numbers(1000);
    LineList longNewer = longOlder;
    longOlder.replace(500, 0, older);
    longNewer.replace(500, 0, newer);
    for (LineList::Change &change : wanted)
        change.at += 500;
    QCOMPARE(LineList::changes(longOlder, longNewer), wanted);
}

/** Random edits of a list and its copies; each way between two states leads to the other. */
void LineListTest::staysEqualToAPlainListWhateverIsEdited()
{
    std::mt19937 random(1);
    const auto below = [&random](qsizetype end) {
        return std::uniform_int_distribution<qsizetype>(0, end - 1)(random);
    };
    QByteArrayList plain = numbers(700);
    LineList list = plain;
    for (int step = 0; step < 3000; ++step) {
        const QByteArrayList plainBefore = plain;
        const LineList before = list;
        const qsizetype at = below(plain.size() + 1);
        const QByteArray line = QByteArray::number(below(5));
        switch (below(6)) {
        case 0:
            plain.insert(at, line);
            list.insert(at, line);
            break;
        case 1:
        case 2:
            if (at < plain.size()) {
                plain[at] = line;
                list.set(at, line);
            }
            break;
        case 3:
            if (at < plain.size()) {
                plain.remove(at);
                list.remove(at);
            }
            break;
        case 4:
            plain.append(line);
            list.append(line);
            break;
        default: {
            // Now and then most of the list, so that its chunks become few and many again.
            const qsizetype count = below(plain.size() - at + 1);
            const QByteArrayList lines(below(600), line);
            plain = plain.first(at) + lines + plain.sliced(at + count);
            list.replace(at, count, lines);
        }
        }
        QCOMPARE(list.toList(), plain);
        QCOMPARE(list == before, plain == plainBefore);
        QCOMPARE(LineList::changes(before, list), LineList::changes(plainBefore, plain));
        LineList way = before;
        way.become(list);
        QCOMPARE(way.toList(), plain);
    }
}

QTEST_GUILESS_MAIN(LineListTest)
#include "tst_linelist.moc"
