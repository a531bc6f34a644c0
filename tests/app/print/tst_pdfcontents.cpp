#include "LetterDocument.h"
#include "TestMain.h"

/** What a printed PDF file holds beside ink: text, fonts and pictures. */
class PdfContentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_document.clear(); }
    void textStaysText_data();
    void textStaysText();
    void textStandsOnItsOwnPage();
    void fontsAreEmbedded_data();
    void fontsAreEmbedded();
    void glyphsAreFineAndLossless();

private:
    LetterDocument m_document;
};

void PdfContentsTest::textStaysText_data()
{
    QTest::addColumn<QString>("record");
    QTest::addColumn<QString>("words");
    QTest::newRow("simple text") << "tonquill_text 200 300 60 20 Adagio Arial 14 0 0"
                                 << "Adagio";
    QTest::newRow("accented text") << "tonquill_text 200 300 60 20 L\u00e9ger Arial 14 0 0"
                                   << "L\u00e9ger";
    QTest::newRow("text block")
        << "tonquill_textblock_begin 200 300 200 60\nHold the pedal\ntonquill_textblock_end"
        << "Hold the pedal";
    QTest::newRow("time signature") << "tonquill_timesig 200 300 12 8"
                                    << "12 8";
    QTest::newRow("triplet") << "tonquill_triplet 200 300 0 0 100 0"
                             << "3";
}

void PdfContentsTest::textStaysText()
{
    QFETCH(QString, record);
    QFETCH(QString, words);
    m_document.window.scene->constructItem(record, false, 0);
    for (const int dpi : {96, 1200})
        QCOMPARE(m_document.print(dpi).text(1).simplified(), words);
}

void PdfContentsTest::textStandsOnItsOwnPage()
{
    m_document.clear(3);
    for (int page = 0; page < 3; ++page) {
        const QString record = QString("tonquill_text 200 %1 60 20 Part%2 Arial 14 0 0")
                                   .arg(qRound(page * LetterDocument::pitch) + 300)
                                   .arg(page + 1);
        m_document.window.scene->constructItem(record, false, 0);
    }
    const PdfFile pdf = m_document.print();
    for (int page = 1; page <= 3; ++page)
        QCOMPARE(pdf.text(page).simplified(), QString("Part%1").arg(page));
}

void PdfContentsTest::fontsAreEmbedded_data()
{
    QTest::addColumn<int>("dpi");
    QTest::newRow("a screen's resolution") << 96;
    QTest::newRow("a laser printer's") << 1200;
}

void PdfContentsTest::fontsAreEmbedded()
{
    QFETCH(int, dpi);
    m_document.addNineKinds();
    m_document.window.scene->constructItem("tonquill_text 400 700 60 20 qe Musica 20 0 0", false,
                                           0);
    const QList<bool> embedded = m_document.print(dpi).embeddedFonts();
    // At least the text's, its bold form for numerals, and the notation font.
    QVERIFY(embedded.size() >= 3);
    QVERIFY(!embedded.contains(false));
}

/** Every glyph of the palette: no JPEG, and at least 600 dots to the inch on any printer. */
void PdfContentsTest::glyphsAreFineAndLossless()
{
    int glyphs = 0;
    for (auto symbol = m_document.window.symbols.cbegin();
         symbol != m_document.window.symbols.cend(); ++symbol) {
        const QString record = QString("tonquill_bitmap %1 %2 %3 0")
                                   .arg(symbol.key())
                                   .arg(100 + 90 * (glyphs % 7))
                                   .arg(150 + 110 * (glyphs / 7));
        m_document.window.scene->constructItem(record, false, 0);
        ++glyphs;
    }
    QCOMPARE(glyphs, 37);
    for (const int dpi : {96, 1200}) {
        const QList<PdfFile::Image> images = m_document.print(dpi).images();
        // A picture and its mask for each.
        QVERIFY(images.size() >= glyphs);
        for (const PdfFile::Image &image : images) {
            QCOMPARE(image.encoding, QString("image"));
            QVERIFY(image.xDotsPerInch >= 600);
            QVERIFY(image.yDotsPerInch >= 600);
        }
    }
}

TONQUILL_TEST_MAIN(PdfContentsTest)
#include "tst_pdfcontents.moc"
