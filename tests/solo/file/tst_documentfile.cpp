#include "DocumentFile.h"
#include "FullDisk.h"
#include "ItemKinds.h"
#include "QuotedFields.h"
#include "SoloTestMain.h"

#include <QBuffer>
#include <QImage>

#include <fcntl.h>
#include <sys/stat.h>

/** Files: what is written, what is read, and what is said about what cannot be. */
class DocumentFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAFileThatADiffCanShow();
    void readsPlainHostDocuments_data();
    void readsPlainHostDocuments();
    void saysWhatIsWrongAndOffersTheRest_data();
    void saysWhatIsWrongAndOffersTheRest();
    void aFileHasUpToTenThousandPages_data();
    void aFileHasUpToTenThousandPages();
    void whatAskedForTooMuchIsLeftOut_data();
    void whatAskedForTooMuchIsLeftOut();
    void aDocumentHasAnEnd_data();
    void aDocumentHasAnEnd();
    void whatCouldNotBeOpenedAgainIsNotSaved();
    void saysWhyAFileCannotBeOpened_data();
    void saysWhyAFileCannotBeOpened();
    void saysThatANameIsNotUtf8();
    void aFailedSaveLeavesTheOldFile_data();
    void aFailedSaveLeavesTheOldFile();
    void aFullDiskLeavesTheOldFile();
    void aLongNameIsSavedOrRefusedWithAReason();
    void readingSurvivesAnyBytes();

private:
    QTemporaryDir m_folder;
};

namespace
{
const Paper a4{{728, 1052}, {12, 13, 704, 1026}};

DocumentSnapshot twoNotes()
{
    return DocumentSnapshot{a4, 3, {"tonquill_bitmap 1 2 19", "tonquill_bitmap 3 4 22"}};
}

const QByteArray twoNotesFile = "tonquill-document 1\n"
                                "tonquill_pagecount 3\n"
                                "tonquill_paper 728 1052 12 13 704 1026\n"
                                "tonquill_bitmap 1 2 19\n"
                                "tonquill_bitmap 3 4 22\n"
                                "tonquill-end\n";
} // namespace

void DocumentFileTest::writesAFileThatADiffCanShow()
{
    QCOMPARE(DocumentFile::format(twoNotes()), twoNotesFile);
    const DocumentFile::Reading reading = DocumentFile::parse(twoNotesFile, Paper());
    QVERIFY(reading.isDocument);
    QVERIFY(reading.problems.isEmpty());
    QCOMPARE(reading.document, twoNotes());
}

void DocumentFileTest::readsPlainHostDocuments_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArrayList>("items");
    // A host has the topmost item first, and positions in whole units.
    QTest::newRow("glyphs") << QByteArray("tonquill_pagecount 2\ntonquill_bitmap 19 120 300 1\n"
                                          "tonquill_bitmap 2 5 6 0\n")
                            << QByteArrayList{"tonquill_bitmap 5 6 2",
                                              "tonquill_bitmap 120 300 19 inverted=1"};
    QTest::newRow("time signature")
        << QByteArray("tonquill_pagecount 2\ntonquill_timesig 7 8 3 4\n")
        << QByteArrayList{"tonquill_timesig 7 8 3 4"};
    QTest::newRow("figure") << QByteArray("tonquill_pagecount 2\n"
                                          "tonquill_triplet 200 410 0 0 60 -12\n")
                            << QByteArrayList{"tonquill_triplet 200 410 0 0 60 -12"};
    QTest::newRow("words, a family with blanks, a colour and half a degree")
        << QByteArray("tonquill_pagecount 2\n"
                      "tonquill_text 1 2 90 20 Allegro moderato Times New Roman 18 ffff0000 12.5\n")
        << QByteArrayList{"tonquill_text 1 2 text=\"Allegro moderato\" font=\"Times New Roman\" "
                          "size=18 color=#ff0000 rotation=12.5"};
}

void DocumentFileTest::readsPlainHostDocuments()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArrayList, items);
    const DocumentFile::Reading reading = DocumentFile::parse(bytes, a4);
    QCOMPARE(reading.problemText(), QString());
    QCOMPARE(reading.document, (DocumentSnapshot{a4, 2, items}));
}

void DocumentFileTest::saysWhatIsWrongAndOffersTheRest_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QList<int>>("lines");
    QTest::addColumn<int>("items");
    QByteArray damaged = twoNotesFile;
    damaged.replace("tonquill_bitmap 1 2 19", "tonquill_bitmap 1 b 19");
    QTest::newRow("a damaged record") << damaged << QList<int>{4} << 1;
    QTest::newRow("cut off between records")
        << twoNotesFile.chopped(qsizetype(qstrlen("tonquill-end\n"))) << QList<int>{6} << 2;
    QTest::newRow("cut off within a record") << twoNotesFile.chopped(16) << QList<int>{5, 6} << 1;
    QByteArray newer = twoNotesFile;
    newer.replace("document 1", "document 2");
    newer.replace("tonquill-end", "tonquill_hologram 1 2\ntonquill-end");
    QTest::newRow("a newer version") << newer << QList<int>{1, 6} << 2;
    QByteArray noPages = twoNotesFile;
    noPages.replace("pagecount 3", "pagecount -3");
    QTest::newRow("an impossible number of pages") << noPages << QList<int>{2} << 2;
    QByteArray noPaper = twoNotesFile;
    noPaper.replace("728 1052", "728 nan");
    QTest::newRow("impossible paper") << noPaper << QList<int>{3} << 2;
    QTest::newRow("more behind the end") << twoNotesFile + "x\n" << QList<int>{7} << 2;
    QByteArray latin = twoNotesFile;
    latin.replace("tonquill_bitmap 3 4 22", "tonquill_bitmap 3 4 \xe9");
    QTest::newRow("not UTF-8") << latin << QList<int>{5, 5} << 1;
    QByteArray unknownName = twoNotesFile;
    unknownName.replace("3 4 22", "3 4 22 opacity=50");
    QTest::newRow("a named field that is not known") << unknownName << QList<int>{5} << 2;
    QByteArray oneMore = twoNotesFile;
    oneMore.replace("1 2 19", "1 2 19 7");
    QTest::newRow("one field too many") << oneMore << QList<int>{4} << 2;
    QByteArray twice = twoNotesFile;
    twice.replace("1 2 19", "1 2 19 inverted=1 inverted=0");
    QTest::newRow("a named field that is there twice") << twice << QList<int>{4} << 1;
    QTest::newRow("a block of a host without its end")
        << QByteArray("tonquill_pagecount 1\ntonquill_bitmap 19 1 2 0\n"
                      "tonquill_textblock_begin 1 2 30 40\nverse\n")
        << QList<int>{3} << 2;
    QTest::newRow("a text of a host in letters larger than any")
        << QByteArray("tonquill_pagecount 1\ntonquill_text 1 2 90 20 la Arial 400400 0 0\n"
                      "tonquill_text 1 2 90 20 la Arial 32767 0 0\n")
        << QList<int>{2} << 1;
    QTest::newRow("a text of a host at an angle that is none")
        << QByteArray("tonquill_pagecount 1\ntonquill_text 1 2 90 20 la Arial 12 0 inf\n"
                      "tonquill_text 1 2 90 20 la Arial 12 0 nan\n")
        << QList<int>{2, 3} << 0;
}

void DocumentFileTest::saysWhatIsWrongAndOffersTheRest()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QList<int>, lines);
    QFETCH(int, items);
    const DocumentFile::Reading reading = DocumentFile::parse(bytes, a4);
    QVERIFY(reading.isDocument);
    QList<int> told;
    for (const DocumentFile::Problem &problem : reading.problems)
        told.append(problem.line);
    QCOMPARE(told, lines);
    QCOMPARE(reading.document.items.size(), qsizetype(items));
    QVERIFY(reading.problemText().contains(QString::number(lines.constFirst())));
}

void DocumentFileTest::aFileHasUpToTenThousandPages_data()
{
    QTest::addColumn<QByteArray>("count");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("none") << QByteArray("0") << false;
    QTest::newRow("one") << QByteArray("1") << true;
    QTest::newRow("the most") << QByteArray("10000") << true;
    QTest::newRow("one more") << QByteArray("10001") << false;
    QTest::newRow("beyond all numbers") << QByteArray("4294967297") << false;
}

void DocumentFileTest::aFileHasUpToTenThousandPages()
{
    QFETCH(QByteArray, count);
    QFETCH(bool, isTaken);
    const DocumentFile::Reading reading = DocumentFile::parse(
        "tonquill-document 1\ntonquill_pagecount " + count + "\ntonquill-end\n", a4);
    QVERIFY(reading.isDocument);
    QCOMPARE(reading.problems.isEmpty(), isTaken);
    QCOMPARE(reading.document.pageCount, isTaken ? count.toInt() : 1);
}

void DocumentFileTest::whatAskedForTooMuchIsLeftOut_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QString>("said");
    const auto block = [](const QString &html) {
        return "tonquill_textblock 1 2 0 0 90 20 wrap=89 font=\"Arial\" size=9 html=" +
               QuotedFields::quoted(html).toUtf8();
    };
    const QString nested = "The parts of this text are nested too deeply.";
    const QString tables = "The tables in this text are too large.";
    const QString far = "The item is too large or too far away.";
    QTest::newRow("22 tables in each other")
        << block(QString("<table><tr><td>").repeated(22)) << nested;
    QTest::newRow("8 tables in each other") << block(QString("<table><tr><td>").repeated(8)) << "";
    QTest::newRow("5000 parts in each other")
        << block(QString("<ul><li>").repeated(2500)) << nested;
    // The cells at the beginning have no table, and Qt makes one for them.
    QTest::newRow("8 tables in each other, and one that has no tag")
        << block("<td></tr><td>" + QString("<table><tr><td>").repeated(8)) << nested;
    QTest::newRow("100 cells that take 20000 columns")
        << block("<table><tr>" + QString("<td colspan=20000>").repeated(100)) << tables;
    QTest::newRow("cells that take 20000 rows")
        << block("<table><tr>" + QString("<td rowspan=20000>").repeated(100)) << tables;
    QTest::newRow("a table of 40 by 40")
        << block("<table>" + ("<tr>" + QString("<td>").repeated(40)).repeated(40)) << "";
    QTest::newRow("a table of 100 by 100")
        << block("<table>" + ("<tr>" + QString("<td>").repeated(100)).repeated(100)) << tables;
    QImage picture(10000, 7000, QImage::Format_Mono);
    picture.fill(0);
    QBuffer png;
    QVERIFY(picture.save(&png, "PNG"));
    QTest::newRow("a picture of 70 million pixels")
        << block("<img src=\"data:image/png;base64," + png.data().toBase64() + "\">")
        << "The pictures in this text are too large.";
    const auto plain = [](const QString &text, int size) {
        return "tonquill_textblock 1 2 0 0 90 20 wrap=89 font=\"Arial\" size=" +
               QByteArray::number(size) + " text=" + QuotedFields::quoted(text).toUtf8();
    };
    const QString large = "This text is too large.";
    QTest::newRow("a table in a frame of a billion")
        << block("<table cellpadding=1000000000><tr><td>la</table>") << large;
    QTest::newRow("cells in frames of a billion")
        << block("<style>td{padding:1e9px}</style><table><tr><td>la</table>") << large;
    QTest::newRow("2000 rows of 100 units")
        << block("<table cellpadding=100>" + QString("<tr><td>la").repeated(2000)) << "";
    QTest::newRow("2000 rows of 200000 units")
        << block("<table cellpadding=100000>" + QString("<tr><td>la").repeated(2000)) << large;
    QTest::newRow("500 pictures of a hundred thousand")
        << block(QString("<img src=x width=100000 height=100000>").repeated(500)) << large;
    QTest::newRow("lines a billion apart")
        << block("<p style=\"line-height:1000000000%\">la la la") << large;
    QTest::newRow("formatted letters as high as ten pages, 2000 of them")
        << block("<p style=\"font-size:10000px\">" + QString("la ").repeated(2000)) << large;
    QTest::newRow("letters as high as ten pages, 2000 of them")
        << plain(QString("la ").repeated(2000), 10000) << large;
    QTest::newRow("three of those") << plain("la la la", 10000) << "";
    QTest::newRow("simple text as high, 2000 lines")
        << "tonquill_text 1 2 font=\"Arial\" size=10000 color=#000000 text=" +
               QuotedFields::quoted(QString("la\n").repeated(2000)).toUtf8()
        << large;
    QTest::newRow("a word of a million letters") << plain(QString(1'000'000, u'a'), 9) << large;
    QTest::newRow("a million letters in words")
        << plain(QString("la la lala ").repeated(90'000), 9) << "";
    QTest::newRow("a million empty lines") << plain(QString(1'000'000, u'\n'), 9) << large;
    QTest::newRow("tablature a billion high")
        << QByteArray("tonquill_linetab 1 2 0 0 300 1000000000") << far;
    QTest::newRow("tablature of 100 pages")
        << QByteArray("tonquill_linetab 1 2 0 0 300 110000") << "";
    QTest::newRow("a line to the left without end")
        << QByteArray("tonquill_interactiveline 1 2 0 0 -1e300 1") << far;
    QTest::newRow("a glyph somewhere else") << QByteArray("tonquill_bitmap 1 1e9 19") << far;
    QTest::newRow("an anchor somewhere else")
        << QByteArray("tonquill_notetie 1 2 0 0 9 9 anchors=\"0 0 1e9 0\"") << far;
    QTest::newRow("a block without end")
        << QByteArray("tonquill_textblock 1 2 0 0 90 1e9 wrap=89 font=\"Arial\" size=9 text=\"la\"")
        << far;
}

void DocumentFileTest::whatAskedForTooMuchIsLeftOut()
{
    QFETCH(QByteArray, record);
    QFETCH(QString, said);
    QByteArray bytes = twoNotesFile;
    bytes.replace("tonquill_bitmap 3 4 22", record);
    const DocumentFile::Reading reading = DocumentFile::parse(bytes, a4);
    QVERIFY(reading.isDocument);
    QCOMPARE(reading.problemText(), said.isEmpty() ? QString() : "Line 5: " + said);
    QCOMPARE(reading.document.items.size(), said.isEmpty() ? 2 : 1);
}

void DocumentFileTest::aDocumentHasAnEnd_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("times");
    QTest::addColumn<QString>("said");
    QTest::newRow("too many items") << QByteArray("tonquill_bitmap 1 2 19\n") << 200'001
                                    << "There are more items than a document can have.";
    QTest::newRow("too many lines")
        << QByteArray("x\n") << 1'000'001 << "The file is larger than any document.";
    QTest::newRow("too many bytes")
        << QByteArray(1 << 20, 'x') << 129 << "The file is larger than any document.";
}

void DocumentFileTest::aDocumentHasAnEnd()
{
    QFETCH(QByteArray, line);
    QFETCH(int, times);
    QFETCH(QString, said);
    const DocumentFile::Reading reading =
        DocumentFile::parse("tonquill-document 1\n" + line.repeated(times) + "tonquill-end\n", a4);
    QVERIFY2(reading.problemText().endsWith(said), qPrintable(reading.problemText()));
    QCOMPARE(reading.problems.size(), 1);
    QVERIFY(reading.document.items.size() <= 200'000);
}

void DocumentFileTest::whatCouldNotBeOpenedAgainIsNotSaved()
{
    const QString path = m_folder.filePath("large.tonquill");
    QCOMPARE(DocumentFile::save(path, twoNotes()), QString());
    DocumentSnapshot large = twoNotes();
    large.items.append(QByteArray(DocumentFile::largestFile(), 'x'));
    QVERIFY(DocumentFile::save(path, large).startsWith("The file is too large: "));
    // What was pasted into a block may be more than is read again.
    DocumentSnapshot nested = twoNotes();
    nested.items.append("tonquill_textblock 1 2 0 0 90 20 wrap=89 font=\"Arial\" size=9 html=" +
                        QuotedFields::quoted(QString("<table><tr><td>").repeated(22)).toUtf8());
    QVERIFY(DocumentFile::save(path, nested).startsWith("The parts of this text are nested "));
    DocumentSnapshot many = twoNotes();
    many.items = QByteArrayList(200'001, many.items.constFirst());
    QVERIFY(DocumentFile::save(path, many).startsWith("There are more items "));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), twoNotesFile);
}

void DocumentFileTest::saysWhyAFileCannotBeOpened_data()
{
    QTest::addColumn<QString>("path");
    QFile sparse(m_folder.filePath("sparse.tonquill"));
    QVERIFY(sparse.open(QIODevice::WriteOnly) && sparse.resize(60'000'000'000));
    QTest::newRow("60 GB of nothing") << sparse.fileName();
    QTest::newRow("missing") << m_folder.filePath("missing.tonquill");
    QTest::newRow("folder") << m_folder.path();
    QFile empty(m_folder.filePath("empty.tonquill"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    QTest::newRow("empty") << empty.fileName();
    QFile other(m_folder.filePath("other.tonquill"));
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.write("%PDF-1.4\n");
    QTest::newRow("another kind of file") << other.fileName();
    const QString pipe = m_folder.filePath("pipe.tonquill");
    QCOMPARE(mkfifo(QFile::encodeName(pipe), S_IRUSR | S_IWUSR), 0);
    QTest::newRow("a pipe") << pipe;
    const QString link = m_folder.filePath("link.tonquill");
    QVERIFY(QFile::link(pipe, link));
    QTest::newRow("a link to a pipe") << link;
    QTest::newRow("an endless device") << "/dev/zero";
}

void DocumentFileTest::saysWhyAFileCannotBeOpened()
{
    QFETCH(QString, path);
    const DocumentFile::Reading reading = DocumentFile::load(path, a4);
    QVERIFY(!reading.isDocument);
    QVERIFY(!reading.problemText().isEmpty());
}

void DocumentFileTest::saysThatANameIsNotUtf8()
{
    const QByteArray name = QFile::encodeName(m_folder.path()) + "/caf\xe9.tonquill";
    QFile file;
    const int descriptor = open(name, O_CREAT | O_WRONLY, S_IRUSR);
    QVERIFY(file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle));
    file.write(twoNotesFile);
    file.close();
    const DocumentFile::Reading reading = DocumentFile::load(QFile::decodeName(name), a4);
    QVERIFY(!reading.isDocument);
    QVERIFY(reading.problemText().contains("UTF-8"));
}

void DocumentFileTest::aFailedSaveLeavesTheOldFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("folder that is not there") << m_folder.filePath("none/a.tonquill");
    QTest::newRow("below a file") << QString("/etc/passwd/a.tonquill");
    QTest::newRow("the folder itself") << m_folder.path();
    QTest::newRow("a device") << QString("/dev/full");
}

void DocumentFileTest::aFailedSaveLeavesTheOldFile()
{
    QFETCH(QString, path);
    const QFileInfo before(path);
    const bool wasDevice = before.exists() && !before.isFile() && !before.isDir();
    QVERIFY(!DocumentFile::save(path, twoNotes()).isEmpty());
    const QFileInfo after(path);
    QCOMPARE(after.exists() && !after.isFile() && !after.isDir(), wasDevice);
}

void DocumentFileTest::aFullDiskLeavesTheOldFile()
{
    const QString path = m_folder.filePath("kept.tonquill");
    QCOMPARE(DocumentFile::save(path, twoNotes()), QString());
    DocumentSnapshot large = twoNotes();
    large.items.append(QByteArray(100'000, 'x'));
    {
        const FullDisk full(4096);
        QVERIFY(!DocumentFile::save(path, large).isEmpty());
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), twoNotesFile);
    QCOMPARE(QDir(m_folder.path()).entryList({"kept*"}).size(), 1);
}

/** 255 bytes are the longest name; a file system may need some of them for its own. */
void DocumentFileTest::aLongNameIsSavedOrRefusedWithAReason()
{
    const QString suffix = ".tonquill";
    for (const int length : {240, 249, 255, 256}) {
        const QString path = m_folder.filePath(QString(length - suffix.size(), u'n') + suffix);
        const QString error = DocumentFile::save(path, twoNotes());
        QCOMPARE(error.isEmpty(), QFileInfo::exists(path));
        QVERIFY(length > 240 || error.isEmpty());
    }
}

void DocumentFileTest::readingSurvivesAnyBytes()
{
    QRandomGenerator random(3);
    for (int i = 0; i < 3000; ++i) {
        QByteArray bytes = twoNotesFile + "tonquill_text 1 2 text=\"a\" font=\"Arial\" size=9\n";
        for (int changes = random.bounded(8); changes >= 0; --changes)
            bytes[random.bounded(int(bytes.size()))] = char(random.bounded(256));
        const DocumentFile::Reading reading = DocumentFile::parse(bytes, a4);
        for (const QByteArray &line : reading.document.items)
            QVERIFY(ItemKinds::catalogue().readLine(QString::fromUtf8(line)).has_value());
    }
}

TONQUILL_SOLO_TEST_MAIN(DocumentFileTest)
#include "tst_documentfile.moc"
