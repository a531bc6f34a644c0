#include "ItemRecords.h"
#include "QuotedFields.h"
#include "RandomDocument.h"

#include <QtTest>

using namespace ItemState;

Q_DECLARE_METATYPE(ItemState::Any)

/** The document file's records, written and read. */
class ItemRecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesEachKindOnOneLine_data();
    void writesEachKindOnOneLine();
    void readsBackWhatItWrote();
    void quotingKeepsEveryCharacter_data();
    void quotingKeepsEveryCharacter();
    void rejectsWhatIsNoRecord_data();
    void rejectsWhatIsNoRecord();
};

namespace
{
Font times(double size)
{
    Font font;
    font.family = "Times New Roman";
    font.size = size;
    return font;
}
} // namespace

void ItemRecordsTest::writesEachKindOnOneLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<Any>("state");
    QTest::newRow("glyph") << QByteArray("tonquill_bitmap 12.5 -3 19")
                           << Any(Glyph{{12.5, -3}, 19, false});
    QTest::newRow("inverted glyph")
        << QByteArray("tonquill_bitmap 1 2 22 inverted=1") << Any(Glyph{{1, 2}, 22, true});
    QTest::newRow("time signature")
        << QByteArray("tonquill_timesig 40 0.1 12 8") << Any(TimeSignature{{40, 0.1}, 12, 8});
    QTest::newRow("tie") << QByteArray("tonquill_notetie 5 6 0 0 60.25 -4")
                         << Any(Figure{{5, 6}, "tonquill_notetie", {0, 0}, {60.25, -4}, {}});
    QTest::newRow("line with its own anchors")
        << QByteArray("tonquill_interactiveline 0 0 0 0 9 -5 anchors=\"0 -5 9 -5\"")
        << Any(Figure{{0, 0},
                      "tonquill_interactiveline",
                      {0, 0},
                      {9, -5},
                      Figure::Anchors({0, -5}, {9, -5})});
    Font bold = times(18);
    bold.weight = QFont::Bold;
    bold.style = QFont::StyleItalic;
    bold.underline = true;
    QTest::newRow("text") << QByteArray("tonquill_text 1 2 text=\"Allegro moderato\" "
                                        "font=\"Times New Roman\" size=18 weight=700 italic=1 "
                                        "underline=1 color=#ff0000 rotation=12.5")
                          << Any(Text{{1, 2}, "Allegro moderato", bold, QColor(255, 0, 0), 12.5});
    QTest::newRow("text block")
        << QByteArray("tonquill_textblock 1 2 0 0 101 50 wrap=100 font=\"Times New Roman\" "
                      "size=9 text=\"two\\nlines\"")
        << Any(TextBlock{{1, 2}, {0, 0}, {101, 50}, 100, times(9), "two\nlines", false});
}

void ItemRecordsTest::writesEachKindOnOneLine()
{
    QFETCH(QByteArray, line);
    QFETCH(Any, state);
    QCOMPARE(ItemRecords::format(state), line);
    QVERIFY(ItemRecords::parse(QString::fromUtf8(line)) == state);
}

void ItemRecordsTest::readsBackWhatItWrote()
{
    RandomDocument random(1);
    for (int i = 0; i < 2000; ++i) {
        const Any state = random.item();
        const QByteArray line = ItemRecords::format(state);
        QVERIFY2(!line.contains('\n'), line);
        QVERIFY2(ItemRecords::parse(QString::fromUtf8(line)) == state, line);
    }
}

void ItemRecordsTest::quotingKeepsEveryCharacter_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("quoted");
    QTest::newRow("empty") << ""
                           << "\"\"";
    QTest::newRow("quotation marks") << "a \"b\""
                                     << "\"a \\\"b\\\"\"";
    QTest::newRow("backslash") << "\\n"
                               << "\"\\\\n\"";
    QTest::newRow("line break") << "a\nb"
                                << "\"a\\nb\"";
    QTest::newRow("line separator") << QString(QChar(0x2028)) << "\"\\u2028\"";
    QTest::newRow("hard blank") << QString(QChar(0xa0)) << "\"\\u00a0\"";
    QTest::newRow("nul") << QString(QChar(0)) << "\"\\u0000\"";
    QTest::newRow("half a pair") << QString(QChar(0xd834)) << "\"\\ud834\"";
    QTest::newRow("a whole pair") << "𝄞"
                                  << "\"𝄞\"";
}

void ItemRecordsTest::quotingKeepsEveryCharacter()
{
    QFETCH(QString, text);
    QFETCH(QString, quoted);
    QCOMPARE(QuotedFields::quoted(text), quoted);
    const auto fields = QuotedFields::parse("x value=" + quoted);
    QVERIFY(fields.has_value());
    QCOMPARE(fields->value("value"), text);
}

void ItemRecordsTest::rejectsWhatIsNoRecord_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("unknown keyword") << "tonquill_harp 1 2 3";
    QTest::newRow("too few fields") << "tonquill_bitmap 1 2";
    QTest::newRow("no number") << "tonquill_bitmap 1 two 3";
    QTest::newRow("no finite number") << "tonquill_bitmap nan inf 3";
    QTest::newRow("no text") << "tonquill_text 1 2 font=Arial size=9 color=#000000";
    QTest::newRow("no colour") << "tonquill_text 1 2 text=a font=Arial size=9 color=#00";
    QTest::newRow("no size") << "tonquill_text 1 2 text=a font=Arial size=0 color=#000000";
    QTest::newRow("absurd weight")
        << "tonquill_text 1 2 text=a font=Arial size=9 weight=5000 color=#000000";
    QTest::newRow("open quotation") << "tonquill_text 1 2 text=\"a font=Arial size=9 color=#000000";
    QTest::newRow("broken escape")
        << "tonquill_text 1 2 text=\"\\u12\" font=Arial size=9 color=#000000";
    QTest::newRow("three numbers for two anchors")
        << "tonquill_linetab 0 0 0 0 1 1 anchors=\"1 2 3\"";
}

void ItemRecordsTest::rejectsWhatIsNoRecord()
{
    QFETCH(QString, line);
    QVERIFY(!ItemRecords::parse(line).has_value());
}

QTEST_GUILESS_MAIN(ItemRecordsTest)
#include "tst_itemrecords.moc"
