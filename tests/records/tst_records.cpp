#include "Records.h"

#include <QObject>
#include <QRandomGenerator>
#include <QtTest>

using namespace Records;

namespace
{
constexpr int rounds = 2000;

int anyInt(QRandomGenerator &chance)
{
    return static_cast<int>(chance.generate());
}

QString anyVectorKeyword(QRandomGenerator &chance)
{
    const QStringList keywords{grandstaffKeyword(), interactivelineKeyword(), linetabKeyword(),
                               notetieKeyword(), tripletKeyword()};
    return keywords[static_cast<qsizetype>(chance.bounded(keywords.size()))];
}

/** A word that the format can carry: neither a blank nor a "|", and not empty. */
QString anyWord(QRandomGenerator &chance)
{
    static const QString letters = QStringLiteral("aZ09.,-_%1{}\u00e9\u266f");
    QString word;
    for (quint32 length = chance.bounded(1U, 20U); length > 0; --length)
        word += letters[static_cast<qsizetype>(chance.bounded(letters.size()))];
    return word;
}

/** What a kind's records are read as, or null. */
template <typename Kind>
const Kind *as(const Record &record)
{
    return std::get_if<Kind>(&record);
}

bool buildsSomething(const QString &record)
{
    return !std::holds_alternative<std::monostate>(parse(record));
}
} // namespace

/** The text of records: what is written, what is read, and what becomes of damaged ones. */
class RecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writes_data();
    void writes();
    void writtenTwiceIsTheSame();
    void textBlockGainsALineBreak();
    void colorIsReadAsBlack();
    void rotation_data();
    void rotation();
    void laterWordsShiftTheFieldsOfAText();
    void anyNumberButZeroInverts();
    void twoBlanksHaveAnEmptyFieldBetweenThem();
    void hostileNumbersReadAsZero_data();
    void hostileNumbersReadAsZero();
    void cutAtEveryLength_data();
    void cutAtEveryLength();
    void surplusFieldsAreIgnored_data();
    void surplusFieldsAreIgnored();
    void buildsNothing_data();
    void buildsNothing();
    void blockEndsAtTheFirstEndKeyword();
    void keywordIsWhatStandsBeforeTheFirstBlank();
};

void RecordsTest::writes_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("expected");
    QTest::newRow("page count") << pageCountLine(2) << "tonquill_pagecount 2\n";
    QTest::newRow("glyph") << format(Bitmap{17, 120, 300, false})
                           << "tonquill_bitmap 17 120 300 0\n";
    QTest::newRow("inverted glyph")
        << format(Bitmap{-1, -2, 3, true}) << "tonquill_bitmap -1 -2 3 1\n";
    QTest::newRow("time signature")
        << format(TimeSig{10, -3, 12, 8}) << "tonquill_timesig 10 -3 12 8\n";
    QTest::newRow("triplet") << format(Vector{tripletKeyword(), 200, 410, 0, 0, 60, -12})
                             << "tonquill_triplet 200 410 0 0 60 -12\n";
    QTest::newRow("text") << format(Text{5, 6, 70, 20, "Allegro", "Arial", 12, 0xffff0000U, 90.0})
                          << "tonquill_text 5 6 70 20 Allegro Arial 12 ffff0000 90\n";
    QTest::newRow("text with a fractional angle")
        << format(Text{0, 0, 1, 1, "a", "Arial", 12, 0xff0000abU, 12.5})
        << "tonquill_text 0 0 1 1 a Arial 12 ff0000ab 12.5\n";
    QTest::newRow("text with place holders")
        << format(Text{0, 0, 1, 1, "%2%1", "%L4", 12, 0xff000000U, 0.0})
        << "tonquill_text 0 0 1 1 %2%1 %L4 12 ff000000 0\n";
    QTest::newRow("text block")
        << format(TextBlock{80, 900, 240, 60, "two\nlines"})
        << "tonquill_textblock_begin 80 900 240 60\ntwo\nlines\ntonquill_textblock_end\n";
}

void RecordsTest::writes()
{
    QFETCH(const QString, written);
    QTEST(written, "expected");
}

void RecordsTest::writtenTwiceIsTheSame()
{
    QRandomGenerator chance(1);
    for (int i = 0; i < rounds; ++i) {
        const QString glyph =
            format(Bitmap{anyInt(chance), anyInt(chance), anyInt(chance), chance.bounded(2) == 1});
        QCOMPARE(format(*as<Bitmap>(parse(glyph))), glyph);
        const QString signature =
            format(TimeSig{anyInt(chance), anyInt(chance), anyInt(chance), anyInt(chance)});
        QCOMPARE(format(*as<TimeSig>(parse(signature))), signature);
        const QString figure =
            format(Vector{anyVectorKeyword(chance), anyInt(chance), anyInt(chance), anyInt(chance),
                          anyInt(chance), anyInt(chance), anyInt(chance)});
        QCOMPARE(format(*as<Vector>(parse(figure))), figure);
        // Black as it is read, and an angle that six digits hold.
        const QString text = format(Text{anyInt(chance), anyInt(chance), anyInt(chance),
                                         anyInt(chance), anyWord(chance), anyWord(chance),
                                         anyInt(chance), 0, double(chance.bounded(-999, 999))});
        QCOMPARE(format(*as<Text>(parse(text))), text);
    }
}

void RecordsTest::textBlockGainsALineBreak()
{
    const QString written = format(TextBlock{1, 2, 3, 4, "one\ntwo | three  four"});
    const Record read = parse(written);
    const auto *block = as<TextBlock>(read);
    QVERIFY(block);
    QCOMPARE(block->text, QString("one\ntwo | three  four\n"));
    QCOMPARE(format(*block), QString("tonquill_textblock_begin 1 2 3 4\none\ntwo | three  four\n\n"
                                     "tonquill_textblock_end\n"));
}

void RecordsTest::colorIsReadAsBlack()
{
    const Record read = parse(u"tonquill_text 0 0 1 1 a Arial 12 ffff0000 90\n");
    QCOMPARE(as<Text>(read)->color, 0U);
    QCOMPARE(as<Text>(read)->rotation, 90.0);
    // Seven digits do fit.
    QCOMPARE(as<Text>(parse(u"tonquill_text 0 0 1 1 a Arial 12 00ff00 0\n"))->color, 0xff00U);
}

void RecordsTest::rotation_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<double>("expected");
    QTest::newRow("whole") << "359" << 359.0;
    QTest::newRow("negative") << "-45" << -45.0;
    QTest::newRow("fractional") << "12.5" << 0.0;
    QTest::newRow("exponent") << "1e+06" << 0.0;
    QTest::newRow("empty") << "" << 0.0;
}

void RecordsTest::rotation()
{
    QFETCH(const QString, field);
    const Record read = parse("tonquill_text 0 0 1 1 a Arial 12 ff000000 " + field + "\n");
    QVERIFY(as<Text>(read));
    QTEST(as<Text>(read)->rotation, "expected");
}

void RecordsTest::laterWordsShiftTheFieldsOfAText()
{
    // The fields from 4 on: Allegro, moderato, Arial, 12, ff000000, 90.
    const Record read = parse(u"tonquill_text 5 6 70 20 Allegro moderato Arial 12 ff000000 90\n");
    const auto *text = as<Text>(read);
    QVERIFY(text);
    QCOMPARE(text->text, QString("Allegro"));
    QCOMPARE(text->family, QString("moderato"));
    QCOMPARE(text->pointSize, 0);
    QCOMPARE(text->color, 0x12U);
    QCOMPARE(text->rotation, 0.0);
}

void RecordsTest::anyNumberButZeroInverts()
{
    for (const auto *record : {u"tonquill_bitmap 17 1 2 1\n", u"tonquill_bitmap 17 1 2 2\n",
                               u"tonquill_bitmap 17 1 2 -1\n"})
        QCOMPARE(as<Bitmap>(parse(record))->inverted, true);
    for (const auto *record : {u"tonquill_bitmap 17 1 2 0\n", u"tonquill_bitmap 17 1 2 x\n"})
        QCOMPARE(as<Bitmap>(parse(record))->inverted, false);
}

void RecordsTest::twoBlanksHaveAnEmptyFieldBetweenThem()
{
    const Record glyph = parse(u"tonquill_bitmap 17  300 1\n");
    QVERIFY(as<Bitmap>(glyph));
    QCOMPARE(as<Bitmap>(glyph)->x, 0);
    QCOMPARE(as<Bitmap>(glyph)->y, 300);
    QCOMPARE(as<Bitmap>(glyph)->inverted, true);
    const Record text = parse(u"tonquill_text 0 0 1 1  Arial 12 0 0\n");
    QVERIFY(as<Text>(text));
    QCOMPARE(as<Text>(text)->text, QString());
    QCOMPARE(as<Text>(text)->family, QString("Arial"));
}

void RecordsTest::hostileNumbersReadAsZero_data()
{
    QTest::addColumn<QString>("field");
    QTest::newRow("word") << "abc";
    QTest::newRow("fraction") << "1.5";
    QTest::newRow("too large") << "2147483648";
    QTest::newRow("too small") << "-2147483649";
    QTest::newRow("thousand separator") << "1,000";
    QTest::newRow("hexadecimal") << "0x10";
    QTest::newRow("NUL") << QString(QChar(0));
    QTest::newRow("very long") << QString(100000, u'9');
}

void RecordsTest::hostileNumbersReadAsZero()
{
    QFETCH(const QString, field);
    const Record read = parse("tonquill_timesig " + field + " 1 2 3\n");
    QVERIFY(as<TimeSig>(read));
    QCOMPARE(as<TimeSig>(read)->x, 0);
    QCOMPARE(as<TimeSig>(read)->denominator, 3);
}

void RecordsTest::cutAtEveryLength_data()
{
    QTest::addColumn<QString>("record");
    QTest::addColumn<int>("fields");
    QTest::newRow("glyph") << "tonquill_bitmap 17 120 300 0\n" << 4;
    QTest::newRow("time signature") << "tonquill_timesig 10 -3 12 8\n" << 4;
    QTest::newRow("grand staff") << "tonquill_grandstaff 1 2 3 4 5 6\n" << 6;
    QTest::newRow("line") << "tonquill_interactiveline 1 2 3 4 5 6\n" << 6;
    QTest::newRow("tablature") << "tonquill_linetab 1 2 3 4 5 6\n" << 6;
    QTest::newRow("tie") << "tonquill_notetie 1 2 3 4 5 6\n" << 6;
    QTest::newRow("triplet") << "tonquill_triplet 1 2 3 4 5 6\n" << 6;
    QTest::newRow("text") << "tonquill_text 5 6 70 20 Allegro Arial 12 ff000000 90\n" << 9;
}

/** With n fields, of which the last may be empty, n blanks stand in the record. */
void RecordsTest::cutAtEveryLength()
{
    QFETCH(const QString, record);
    QFETCH(const int, fields);
    for (qsizetype length = 0; length <= record.size(); ++length) {
        const QString cut = record.first(length);
        QVERIFY2(buildsSomething(cut) == (cut.count(u' ') >= fields), qPrintable(cut));
    }
}

void RecordsTest::surplusFieldsAreIgnored_data()
{
    cutAtEveryLength_data();
}

void RecordsTest::surplusFieldsAreIgnored()
{
    QFETCH(const QString, record);
    const QString longer = record.chopped(1) + QString(" surplus 7").repeated(50) + '\n';
    QCOMPARE(parse(longer).index(), parse(record).index());
    QVERIFY(buildsSomething(longer));
}

void RecordsTest::buildsNothing_data()
{
    QTest::addColumn<QString>("record");
    QTest::newRow("nothing") << "";
    QTest::newRow("no blank") << "tonquill_bitmap";
    QTest::newRow("blank first") << " tonquill_bitmap 17 120 300 0\n";
    QTest::newRow("page count") << "tonquill_pagecount 2\n";
    QTest::newRow("unknown") << "tonquill_dynamics 17 120 300 0\n";
    QTest::newRow("other case") << "Tonquill_bitmap 17 120 300 0\n";
    QTest::newRow("only begins so") << "tonquill_bitmaps 17 120 300 0\n";
    QTest::newRow("block without line break") << "tonquill_textblock_begin 1 2 3 4";
    QTest::newRow("block without end") << "tonquill_textblock_begin 1 2 3 4\nabc\n";
    QTest::newRow("block with its end in the header")
        << "tonquill_textblock_begin 1 2 3 4 tonquill_textblock_end\nabc\n";
    QTest::newRow("block with a short header")
        << "tonquill_textblock_begin 1 2 3\nabc\ntonquill_textblock_end\n";
}

void RecordsTest::buildsNothing()
{
    QFETCH(const QString, record);
    QVERIFY(!buildsSomething(record));
}

void RecordsTest::blockEndsAtTheFirstEndKeyword()
{
    const QString record = "tonquill_textblock_begin 1 2 3 4\n"
                           "a tonquill_textblock_end b\ntonquill_textblock_end\n";
    QCOMPARE(as<TextBlock>(parse(record))->text, QString("a "));
    const qsizetype whole = record.indexOf("tonquill_textblock_end") + 22;
    for (qsizetype length = 0; length <= record.size(); ++length)
        QCOMPARE(buildsSomething(record.first(length)), length >= whole);
}

void RecordsTest::keywordIsWhatStandsBeforeTheFirstBlank()
{
    QCOMPARE(keywordOf(u"tonquill_bitmap 1"), QString("tonquill_bitmap"));
    QCOMPARE(keywordOf(u"tonquill_bitmap"), QString());
    QCOMPARE(keywordOf(u" 1"), QString());
    QCOMPARE(keywordOf(u"a\nb c"), QString("a\nb"));
}

QTEST_GUILESS_MAIN(RecordsTest)
#include "tst_records.moc"
