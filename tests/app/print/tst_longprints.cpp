#include "LetterDocument.h"
#include "LongPrint.h"
#include "TestHost.h"
#include "TestMain.h"

#include <QMessageBox>
#include <QPushButton>

using Act = ProgressWatch::Act;

/** Prints that take long: their progress, their end before time, and the host meanwhile. */
class LongPrintsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shortPrintShowsNoProgress();
    void longPrintShowsItsProgress();
    void hiddenWindowShowsNoProgress();
    void cancelledPrintLeavesNothingBehind_data();
    void cancelledPrintLeavesNothingBehind();
    void documentFromHostWaitsForThePrint();
    void messageThatHasBegunWaitsForThePrint_data();
    void messageThatHasBegunWaitsForThePrint();
    void documentFromHostThatLeavesWaitsForThePrint(); // the last, for it ends the connection

private:
    static constexpr int pages = 100;
    void makePrintLong();
    QString textOfLastPage();

    TestHost m_host;
    LetterDocument m_document;
    int m_paints = 0;
};

void LongPrintsTest::init()
{
    m_document.clear(pages);
    m_document.window.show();
    QFile::remove(m_document.pdfPath());
    m_paints = 0;
}

/** After the first page the print is expected to take 100 * 60 milliseconds, far above a second. */
void LongPrintsTest::makePrintLong()
{
    for (int page = 0; page < pages; ++page) {
        auto *item = new SlowItem(m_paints);
        m_document.window.scene->addItem(item);
        item->setPos(200, page * LetterDocument::pitch + 200);
    }
}

void LongPrintsTest::shortPrintShowsNoProgress()
{
    m_document.clear(3);
    const ProgressWatch watch;
    QCOMPARE(m_document.print().pageCount(), 3);
    QCOMPARE(watch.shown, 0);
}

void LongPrintsTest::longPrintShowsItsProgress()
{
    makePrintLong();
    int steps = 0;
    bool blocksOthers = false;
    const ProgressWatch watch([&](QProgressDialog &dialog) {
        steps = dialog.maximum();
        blocksOthers = dialog.windowModality() == Qt::ApplicationModal;
    });
    QCOMPARE(m_document.print().pageCount(), pages);
    QCOMPARE(m_paints, pages);
    QCOMPARE(watch.shown, 1);
    QCOMPARE(steps, pages);
    QVERIFY(blocksOthers);
}

void LongPrintsTest::hiddenWindowShowsNoProgress()
{
    makePrintLong();
    m_document.window.hide();
    const ProgressWatch watch;
    QCOMPARE(m_document.print().pageCount(), pages);
    QCOMPARE(watch.shown, 0);
}

void LongPrintsTest::cancelledPrintLeavesNothingBehind_data()
{
    QTest::addColumn<Act>("cancel");
    QTest::newRow("the button") << Act([](QProgressDialog &dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton *>(), Qt::LeftButton);
    });
    QTest::newRow("Escape") << Act([](QProgressDialog &dialog) {
        QApplication::setActiveWindow(&dialog);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    QTest::newRow("closing the dialog") << Act([](QProgressDialog &dialog) { dialog.close(); });
}

void LongPrintsTest::cancelledPrintLeavesNothingBehind()
{
    QFETCH(Act, cancel);
    makePrintLong();
    const qsizetype items = m_document.window.scene->items().size();
    QPrinter printer(QPrinter::ScreenResolution);
    LetterDocument::makeLetter(printer);
    printer.setOutputFileName(m_document.pdfPath());
    {
        const ProgressWatch watch(cancel);
        m_document.window.print(&printer);
        QCOMPARE(watch.shown, 1);
    }
    QVERIFY(m_paints < pages);
    QVERIFY(!QFile::exists(m_document.pdfPath()));
    // No word about it, for the user knows; and the next print, however long, is whole.
    QVERIFY(m_document.window.findChildren<QMessageBox *>().isEmpty());
    QCOMPARE(m_document.window.scene->items().size(), items);
    QCOMPARE(m_document.window.pageCount, pages);
    m_paints = 0;
    m_document.window.print(&printer);
    QCOMPARE(PdfFile(m_document.pdfPath()).pageCount(), pages);
}

/** The last page carries one word. */
QString LongPrintsTest::textOfLastPage()
{
    const int y = qRound((pages - 1) * LetterDocument::pitch) + 400;
    m_document.window.scene->constructItem(
        QString("tonquill_text 400 %1 60 20 Fine Arial 14 0 0").arg(y), false, 0);
    return m_document.print().text(pages).simplified();
}

void LongPrintsTest::documentFromHostWaitsForThePrint()
{
    QTRY_VERIFY(m_host.isConnected());
    makePrintLong();
    const ProgressWatch watch(
        [this](QProgressDialog &) { m_host.send("tonquill_timesig 100 200 3 4\n"); });
    QCOMPARE(textOfLastPage(), QString("Fine"));
    QCOMPARE(watch.shown, 1);
    QCOMPARE(m_paints, pages);
    QTRY_VERIFY(ItemProbe::onlyItem(*m_document.window.scene));
    QCOMPARE(ItemProbe::recordOf(ItemProbe::onlyItem(*m_document.window.scene)),
             QString("tonquill_timesig 100 200 3 4\n"));
}

void LongPrintsTest::messageThatHasBegunWaitsForThePrint_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("meanwhile");
    // Too long for a message that is known to be whole when it comes; its first parts are empty.
    const QByteArray begin = "tw2tonquill " + QByteArray("\n|").repeated(10000);
    QTest::newRow("all of it") << begin + "tonquill_timesig 100 200 3 4\n" << QByteArray();
    QTest::newRow("broken off within a record")
        << begin + "tonquill_timesig 100 2" << QByteArray("00 3 4\n");
}

/** It falls silent during the print, which must not count as its end. */
void LongPrintsTest::messageThatHasBegunWaitsForThePrint()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, meanwhile);
    QTRY_VERIFY(m_host.isConnected());
    makePrintLong();
    QSignalSpy arrived(&m_document.window.socket, &QLocalSocket::readyRead);
    m_host.sendRaw(before);
    QVERIFY(arrived.wait());
    const ProgressWatch watch([&](QProgressDialog &) { m_host.sendRaw(meanwhile); });
    QCOMPARE(textOfLastPage(), QString("Fine"));
    QCOMPARE(m_paints, pages);
    QTRY_VERIFY(ItemProbe::onlyItem(*m_document.window.scene));
    QCOMPARE(ItemProbe::recordOf(ItemProbe::onlyItem(*m_document.window.scene)),
             QString("tonquill_timesig 100 200 3 4\n"));
}

void LongPrintsTest::documentFromHostThatLeavesWaitsForThePrint()
{
    QTRY_VERIFY(m_host.isConnected());
    makePrintLong();
    const ProgressWatch watch([this](QProgressDialog &) {
        m_host.send("tonquill_timesig 100 200 6 8\n");
        m_host.closeConnection();
    });
    QCOMPARE(textOfLastPage(), QString("Fine"));
    QTRY_VERIFY(ItemProbe::onlyItem(*m_document.window.scene));
    QCOMPARE(ItemProbe::recordOf(ItemProbe::onlyItem(*m_document.window.scene)),
             QString("tonquill_timesig 100 200 6 8\n"));
}

TONQUILL_TEST_MAIN(LongPrintsTest)
#include "tst_longprints.moc"
