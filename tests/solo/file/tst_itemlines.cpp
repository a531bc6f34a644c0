#include "FigureState.h"
#include "GlyphState.h"
#include "ItemKinds.h"
#include "QuotedFields.h"
#include "RandomDocument.h"
#include "TextBlockState.h"
#include "TextState.h"
#include "TimeSignatureState.h"
#include "TonquillVectorInteractiveLine.h"
#include "TonquillVectorNoteTie.h"

#include <QtTest>

using Any = std::optional<ItemState>;

Q_DECLARE_METATYPE(Any)

/** The document file's lines, written and read. */
class ItemLinesTest : public QObject
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
FontState times(double size)
{
    FontState font;
    font.family = "Times New Roman";
    font.size = size;
    return font;
}
} // namespace

void ItemLinesTest::writesEachKindOnOneLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<Any>("state");
    QTest::newRow("glyph") << QByteArray("tonquill_bitmap 12.5 -3 19")
                           << Any(GlyphState{{12.5, -3}, 19, false});
    QTest::newRow("inverted glyph")
        << QByteArray("tonquill_bitmap 1 2 22 inverted=1") << Any(GlyphState{{1, 2}, 22, true});
    QTest::newRow("time signature")
        << QByteArray("tonquill_timesig 40 0.1 12 8") << Any(TimeSignatureState{{40, 0.1}, 12, 8});
    QTest::newRow("tie") << QByteArray("tonquill_notetie 5 6 0 0 60.25 -4")
                         << Any(FigureState{
                                {5, 6}, &TonquillVectorNoteTie::figure(), {0, 0}, {60.25, -4}, {}});
    QTest::newRow("line with its own anchors")
        << QByteArray("tonquill_interactiveline 0 0 0 0 9 -5 anchors=\"0 -5 9 -5\"")
        << Any(FigureState{{0, 0},
                           &TonquillVectorInteractiveLine::figure(),
                           {0, 0},
                           {9, -5},
                           FigureState::Anchors({0, -5}, {9, -5})});
    FontState bold = times(18);
    bold.weight = QFont::Bold;
    bold.style = QFont::StyleItalic;
    bold.underline = true;
    QTest::newRow("text") << QByteArray("tonquill_text 1 2 text=\"Allegro moderato\" "
                                        "font=\"Times New Roman\" size=18 weight=700 italic=1 "
                                        "underline=1 color=#ff0000 rotation=12.5")
                          << Any(TextState{
                                 {1, 2}, "Allegro moderato", bold, QColor(255, 0, 0), 12.5});
    QTest::newRow("text block")
        << QByteArray("tonquill_textblock 1 2 0 0 101 50 wrap=100 font=\"Times New Roman\" "
                      "size=9 text=\"two\\nlines\"")
        << Any(TextBlockState{{1, 2}, {0, 0}, {101, 50}, 100, times(9), "two\nlines", false});
}

void ItemLinesTest::writesEachKindOnOneLine()
{
    QFETCH(QByteArray, line);
    QFETCH(Any, state);
    QCOMPARE(state->line(), line);
    QVERIFY(ItemKinds::catalogue().readLine(QString::fromUtf8(line)) == state);
}

void ItemLinesTest::readsBackWhatItWrote()
{
    RandomDocument random(1);
    for (int i = 0; i < 2000; ++i) {
        const Any state = random.item();
        const QByteArray line = state->line();
        QVERIFY2(!line.contains('\n'), line);
        QVERIFY2(ItemKinds::catalogue().readLine(QString::fromUtf8(line)) == state, line);
    }
}

void ItemLinesTest::quotingKeepsEveryCharacter_data()
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

void ItemLinesTest::quotingKeepsEveryCharacter()
{
    QFETCH(QString, text);
    QFETCH(QString, quoted);
    QCOMPARE(QuotedFields::quoted(text), quoted);
    const auto fields = QuotedFields::parse("x value=" + quoted);
    QVERIFY(fields.has_value());
    QCOMPARE(fields->value("value"), text);
}

void ItemLinesTest::rejectsWhatIsNoRecord_data()
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

void ItemLinesTest::rejectsWhatIsNoRecord()
{
    QFETCH(QString, line);
    QVERIFY(!ItemKinds::catalogue().readLine(line).has_value());
}

QTEST_GUILESS_MAIN(ItemLinesTest)
#include "tst_itemlines.moc"
