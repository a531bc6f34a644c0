#include "Exporter.h"
#include "FullDisk.h"
#include "LongPrint.h"
#include "ModalAnswer.h"
#include "SoloTestMain.h"
#include "SoloWindow.h"
#include "TonquillScene.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>

/** Exports that come to no end: what the user is told, and what is left behind. */
class ExporterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aPdfThatFailsIsToldOnce_data();
    void aPdfThatFailsIsToldOnce();
    void withoutATemporaryFolderNothingIsPrinted();
    void aCancelledPdfIsNotSpokenOf();

private:
    void choosePath();
    QList<QMessageBox *> boxes() { return m_solo->window().findChildren<QMessageBox *>(); }
    QString path() const { return m_folder->filePath("song.pdf"); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SoloWindow> m_solo;
};

void ExporterTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_solo = std::make_unique<SoloWindow>(m_folder->path());
    m_solo->show();
}

void ExporterTest::cleanup()
{
    m_solo->session().close();
    m_solo.reset();
    m_folder.reset();
}

/** Answers the question for the file's name. */
void ExporterTest::choosePath()
{
    ModalAnswer::whenOpen<QFileDialog>([this](QFileDialog &dialog) {
        dialog.findChild<QLineEdit *>("fileNameEdit")->setText(path());
        QMetaObject::invokeMethod(&dialog, "accept");
    });
}

void ExporterTest::aPdfThatFailsIsToldOnce_data()
{
    QTest::addColumn<int>("bytes");
    QTest::newRow("nothing can be written") << 0;
    QTest::newRow("the file breaks off") << 512;
}

void ExporterTest::aPdfThatFailsIsToldOnce()
{
    QFETCH(int, bytes);
    QList<QMessageBox *> open;
    QString said;
    choosePath();
    {
        const FullDisk full(static_cast<rlim_t>(bytes));
        ModalAnswer::whenOpen<QMessageBox>([&](QMessageBox &box) {
            open = boxes();
            said = box.text() + u'\n' + box.informativeText();
        });
        m_solo->files().exportPdf();
    }
    QCOMPARE(open.size(), 1);
    QVERIFY2(said.startsWith("The PDF could not be written."), qPrintable(said));
    QVERIFY2(said.contains("song.pdf: "), qPrintable(said));
    QVERIFY(boxes().isEmpty());
    QVERIFY(!QFileInfo::exists(path()));
    // With room on the disk it goes as ever.
    QCOMPARE(Exporter(m_solo->window()).write(path(), ExportOptions()), QString());
    QVERIFY(QFileInfo(path()).size() > 512);
}

void ExporterTest::withoutATemporaryFolderNothingIsPrinted()
{
    const QByteArray before = qgetenv("TMPDIR");
    // Nobody can make a folder there.
    qputenv("TMPDIR", "/proc");
    const QString error = Exporter(m_solo->window()).write(path(), ExportOptions());
    qputenv("TMPDIR", before);
    QVERIFY2(error.contains("/proc"), qPrintable(error));
    QVERIFY(!QFileInfo::exists(path()));
    QVERIFY(boxes().isEmpty());
}

void ExporterTest::aCancelledPdfIsNotSpokenOf()
{
    constexpr int pages = 100;
    int paints = 0;
    m_solo->window().scene->setPageNum(pages);
    auto *slow = new SlowItem(paints);
    m_solo->window().scene->addItem(slow);
    slow->setPos(200, 200);
    const ProgressWatch watch([](QProgressDialog &dialog) { dialog.cancel(); });
    choosePath();
    m_solo->files().exportPdf();
    QCOMPARE(watch.shown, 1);
    QVERIFY(boxes().isEmpty());
    QVERIFY(!QFileInfo::exists(path()));
}

TONQUILL_SOLO_TEST_MAIN(ExporterTest)
#include "tst_exporter.moc"
