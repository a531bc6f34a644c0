#include "HtmlOutline.h"

#include <QtTest>

/** What a formatted text would cost, without laying it out. */
class HtmlOutlineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsCells_data();
    void countsCells();
    void countsNesting_data();
    void countsNesting();
    void findsPictures_data();
    void findsPictures();
    void comesToAnEnd_data();
    void comesToAnEnd();
};

void HtmlOutlineTest::countsCells_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<double>("cells");
    QTest::newRow("no table") << "<p>la <b>la</b></p>" << 0.0;
    QTest::newRow("2 rows of 3") << "<table><tr><td>a<td>b<td>c<tr><td>d<td>e</table>" << 2 * 6.0;
    QTest::newRow("as Qt writes it")
        << "<table border=\"0\"><tr><td><p>a</p></td><td><p>b</p></td></tr></table>" << 2 * 2.0;
    QTest::newRow("without rows") << "<table><td><td></table>" << 2 * 2.0;
    QTest::newRow("a span across") << "<table><tr><td colspan=7><tr><td></table>" << 2 * 14.0;
    QTest::newRow("a span across, quoted") << "<TABLE><TR><TD ColSpan = '7'></TABLE>" << 2 * 7.0;
    QTest::newRow("a span in disguise")
        << "<table><tr><t&#100; col&#x73;pan=\"&#55;\"></table>" << 2 * 7.0;
    QTest::newRow("a span named twice") << "<table><tr><td colspan=7 colspan=1>" << 2 * 7.0;
    QTest::newRow("a span that is none") << "<table><tr><td colspan=x><td colspan=-4>" << 2 * 2.0;
    // One row and four more that the span reaches down; its column counts once more in those.
    QTest::newRow("a span down") << "<table><tr><td rowspan=4></table>" << 2 * (1 + 4) * (1 + 1.0);
    QTest::newRow("a table in a cell")
        << "<table><tr><td><table><tr><td><td></table></table>" << 4 * 2 + 2 * 1.0;
    QTest::newRow("two tables") << "<table><tr><td></table><table><tr><td><td></table>"
                                << 2 * 1 + 2 * 2.0;
    QTest::newRow("in a comment") << "<!-- <table><tr><td> --><p>" << 0.0;
    QTest::newRow("behind a comment") << "<!-- > --><table><tr><td>" << 2.0;
    QTest::newRow("behind a stroke") << "<table><tr><td / colspan=9>" << 2.0;
    QTest::newRow("in a quoted value") << "<p title=\"<table><tr><td>\">" << 0.0;
    QTest::newRow("outside of any table") << "<td colspan=5>" << 5.0;
}

void HtmlOutlineTest::countsCells()
{
    QFETCH(QString, html);
    QFETCH(double, cells);
    QCOMPARE(HtmlOutline(html).cells(), cells);
}

void HtmlOutlineTest::countsNesting_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<qsizetype>("depth");
    QTest::addColumn<qsizetype>("tableDepth");
    QTest::newRow("nothing") << "la" << qsizetype(0) << qsizetype(0);
    QTest::newRow("side by side") << "<p><b>a</b><i>b</i></p><p>c</p>" << qsizetype(2)
                                  << qsizetype(0);
    QTest::newRow("paragraphs without an end") << "<p>a<p>b<p>c" << qsizetype(1) << qsizetype(0);
    QTest::newRow("rows and cells without an end")
        << "<table><tr><td>a<td>b<tr><td><p>c<td>d" << qsizetype(4) << qsizetype(1);
    QTest::newRow("lists in each other")
        << "<ul><li>a<li>b<ul><li>c</ul><li>d</ul>" << qsizetype(4) << qsizetype(0);
    QTest::newRow("elements that hold nothing")
        << "<p><br><hr /><img src=\"a\">" << qsizetype(2) << qsizetype(0);
    QTest::newRow("22 tables") << QString("<table><tr><td>").repeated(22) << qsizetype(66)
                               << qsizetype(22);
    QTest::newRow("tables behind each other")
        << QString("<table><tr><td>a</table>").repeated(22) << qsizetype(3) << qsizetype(1);
    QTest::newRow("ends without a beginning")
        << "</table></table><table>" << qsizetype(1) << qsizetype(1);
}

void HtmlOutlineTest::countsNesting()
{
    QFETCH(QString, html);
    QFETCH(qsizetype, depth);
    QFETCH(qsizetype, tableDepth);
    const HtmlOutline outline(html);
    QCOMPARE(outline.depth(), depth);
    QCOMPARE(outline.tableDepth(), tableDepth);
}

void HtmlOutlineTest::findsPictures_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QStringList>("addresses");
    QTest::newRow("none") << "<p>img src=\"a\"</p>" << QStringList();
    QTest::newRow("two") << "<p><img src=\"a\" width=\"3\"/><IMG alt='x' SRC=b></p>"
                         << QStringList{"a", "b"};
    QTest::newRow("an entity") << "<img src=\"a&#58;b\">" << QStringList{"a:b"};
}

void HtmlOutlineTest::findsPictures()
{
    QFETCH(QString, html);
    QFETCH(QStringList, addresses);
    QCOMPARE(HtmlOutline(html).pictures(), addresses);
}

void HtmlOutlineTest::comesToAnEnd_data()
{
    QTest::addColumn<QString>("html");
    for (const char *html :
         {"<", "< ", "</", "<!", "<!-", "<!--", "<a b", "<a b=", "<a b='", "<a &", "<a b=&#",
          "<a b=&#x;", "<a b=&#99999999;", "<a =", "<a / ", "<<<", "<a ''", "<a b=''c>"})
        QTest::newRow(html) << QString(html);
}

void HtmlOutlineTest::comesToAnEnd()
{
    QFETCH(QString, html);
    QVERIFY(HtmlOutline(html).depth() <= 3);
}

QTEST_APPLESS_MAIN(HtmlOutlineTest)
#include "tst_htmloutline.moc"
