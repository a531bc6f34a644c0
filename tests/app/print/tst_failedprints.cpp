#include "FullDisk.h"
#include "LetterDocument.h"
#include "TestMain.h"

#include <QMessageBox>

/** Printers that fail: the user is told once, and the program goes on. */
class FailedPrintsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_document.clear(3); }
    void cleanup();
    void fileThatCannotBeMade();
    void folderInPlaceOfTheFile();
    void painterThatDoesNotOpen();
    void deviceThatTakesNothing();
    void diskThatIsFull_data();
    void diskThatIsFull();
    void pagesThatDoNotExist();
    void printThatSucceedsSaysNothing();

private:
    QList<QMessageBox *> boxes() { return m_document.window.findChildren<QMessageBox *>(); }
    void verifyToldOnce();
    void printInto(const QString &path);

    LetterDocument m_document;
};

/** After a failure the same window prints as ever. */
void FailedPrintsTest::cleanup()
{
    qDeleteAll(boxes());
    QFile::remove(m_document.pdfPath());
    QCOMPARE(m_document.print().pageCount(), 3);
    QVERIFY(boxes().isEmpty());
}

void FailedPrintsTest::verifyToldOnce()
{
    QCOMPARE(boxes().size(), 1);
    QVERIFY(boxes().constFirst()->isVisible());
    QCOMPARE(boxes().constFirst()->windowTitle(), QString("Tonquill"));
    QCOMPARE(boxes().constFirst()->text(), QString("The pages could not be printed."));
}

void FailedPrintsTest::printInto(const QString &path)
{
    QPrinter printer(QPrinter::ScreenResolution);
    LetterDocument::makeLetter(printer);
    printer.setOutputFileName(path);
    m_document.window.print(&printer);
}

void FailedPrintsTest::fileThatCannotBeMade()
{
    const QString path = m_document.folder.filePath("no folder/pages.pdf");
    printInto(path);
    verifyToldOnce();
    QVERIFY(!QFileInfo::exists(path));
}

void FailedPrintsTest::folderInPlaceOfTheFile()
{
    QVERIFY(QDir(m_document.folder.path()).mkpath("folder.pdf/within"));
    printInto(m_document.folder.filePath("folder.pdf"));
    verifyToldOnce();
    QVERIFY(QFileInfo::exists(m_document.folder.filePath("folder.pdf/within")));
}

/** A device has room for one painter. */
void FailedPrintsTest::painterThatDoesNotOpen()
{
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setOutputFileName(m_document.pdfPath());
    QPainter other(&printer);
    m_document.window.print(&printer);
    verifyToldOnce();
    QVERIFY(other.isActive());
    // What the other painter has begun is not ours to remove.
    QVERIFY(QFileInfo::exists(m_document.pdfPath()));
}

void FailedPrintsTest::deviceThatTakesNothing()
{
    const QString device("/dev/full");
    QVERIFY(QFileInfo::exists(device));
    // More than the file's buffer holds.
    m_document.clear(20);
    for (int page = 0; page < 20; ++page)
        m_document.addNineKinds(page);
    printInto(device);
    verifyToldOnce();
    QVERIFY(QFileInfo::exists(device));
    m_document.clear(3);
}

void FailedPrintsTest::diskThatIsFull_data()
{
    QTest::addColumn<int>("pages");
    QTest::newRow("at the first of several pages") << 3;
    QTest::newRow("at the end of the only page") << 1;
}

void FailedPrintsTest::diskThatIsFull()
{
    QFETCH(int, pages);
    {
        m_document.clear(pages);
        m_document.addNineKinds();
        const FullDisk full(512);
        printInto(m_document.pdfPath());
    }
    verifyToldOnce();
    QVERIFY(!QFileInfo::exists(m_document.pdfPath()));
    m_document.clear(3);
}

void FailedPrintsTest::pagesThatDoNotExist()
{
    QPrinter printer(QPrinter::ScreenResolution);
    LetterDocument::makeLetter(printer);
    printer.setOutputFileName(m_document.pdfPath());
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(4, 9);
    QFile::remove(m_document.pdfPath());
    m_document.window.print(&printer);
    verifyToldOnce();
    QVERIFY(!QFileInfo::exists(m_document.pdfPath()));
}

void FailedPrintsTest::printThatSucceedsSaysNothing()
{
    printInto(m_document.pdfPath());
    QVERIFY(boxes().isEmpty());
}

TONQUILL_TEST_MAIN(FailedPrintsTest)
#include "tst_failedprints.moc"
