#include "HostMessages.h"
#include "SoloTestMain.h"

#include <QDirIterator>
#include <QImage>
#include <QLocalServer>
#include <QProcess>
#include <QSettings>

#include <sys/stat.h>

/** The program from its command line: export without a display, and a second start. */
class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void exportsWithoutADisplay_data();
    void exportsWithoutADisplay();
    void aPictureHasTheSizeOfItsPaper();
    void saysInOneLineWhyItCannotExport_data();
    void saysInOneLineWhyItCannotExport();
    void aDocumentThatCannotBeHadInMemoryIsSpokenOf();
    void tellsItsVersionAndItsOptions();
    void leavesARealHostInPeace();
    void aSecondStartHandsItsFileOver();
    void theManualNamesTheJournalsFolder();
    void everyExampleIsWhole_data();
    void everyExampleIsWhole();

private:
    static QString program();
    static void start(QProcess &process, const QStringList &arguments, bool display = false);
    static int run(const QStringList &arguments, QByteArray *errors = nullptr);
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

QString ProgramTest::program()
{
    return QCoreApplication::applicationDirPath() + "/tonquill-solo";
}

void ProgramTest::start(QProcess &process, const QStringList &arguments, bool display)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(name);
    if (!display)
        environment.remove("QT_QPA_PLATFORM");
    process.setProcessEnvironment(environment);
    process.start(program(), arguments);
}

int ProgramTest::run(const QStringList &arguments, QByteArray *errors)
{
    QProcess process;
    start(process, arguments);
    if (!process.waitForFinished())
        return -1;
    if (errors)
        *errors = process.readAllStandardError();
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void ProgramTest::initTestCase()
{
    QFile file(path("two-pages.tonquill"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("tonquill-document 1\ntonquill_pagecount 2\n"
               "tonquill_paper 704 900 8.8 9 686.4 882\n"
               "tonquill_grandstaff 60 100 0 0 500 120\ntonquill_bitmap 200 120 19\n"
               "tonquill_text 80 60 text=\"é ♭\" font=\"Arial\" size=12 color=#ff0000\n"
               "tonquill-end\n");
    file.close();
    const auto makePaper = [this](const QString &name, const QByteArray &size) {
        QFile paper(path(name));
        QVERIFY(paper.open(QIODevice::WriteOnly));
        paper.write("tonquill-document 1\ntonquill_paper " + size + " 0 0 " + size +
                    "\ntonquill-end\n");
    };
    makePaper("large-paper.tonquill", "30000 30000");
    makePaper("poster.tonquill", "4400 3600");
    makePaper("long-paper.tonquill", "88 30000"); // 333 inches
    QFile damaged(path("damaged.tonquill"));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("tonquill-document 1\nrubbish\nmore rubbish\n");
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe.pdf")), S_IRUSR | S_IWUSR), 0);
    QVERIFY(file.copy(path("itself.pdf")));
    QVERIFY(QFile::link(path("itself.pdf"), path("link.pdf")));
}

void ProgramTest::cleanup()
{
    QLocalServer::removeServer(HostMessages::serverName);
}

void ProgramTest::exportsWithoutADisplay_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("PDF") << "out.pdf" << QByteArray("%PDF-1.");
    QTest::newRow("PNG") << "out.png" << QByteArray("\x89PNG");
    QTest::newRow("SVG") << "out.svg" << QByteArray("<?xml");
}

void ProgramTest::exportsWithoutADisplay()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, begin);
    QByteArray errors;
    QCOMPARE(run({"--export", path(name), path("two-pages.tonquill")}, &errors), 0);
    QCOMPARE(errors, QByteArray());
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith(begin));
}

void ProgramTest::aPictureHasTheSizeOfItsPaper()
{
    const QString name = path("sized.png");
    QCOMPARE(run({"--export", name, "--page", "2", "--dpi", "50", path("two-pages.tonquill")}), 0);
    // 704 / 88 = 8 inches across, 900 / 90 = 10 inches down.
    const QImage image(name);
    QCOMPARE(image.size(), QSize(400, 500));
    QCOMPARE(image.pixelColor(200, 250), QColor(Qt::white));
}

void ProgramTest::saysInOneLineWhyItCannotExport_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("said");
    const QString document = path("two-pages.tonquill");
    QTest::newRow("missing document")
        << QStringList{"--export", path("a.pdf"), path("none.tonquill")} << QByteArray("none");
    QTest::newRow("no document") << QStringList{"--export", path("a.pdf")}
                                 << QByteArray("document");
    QTest::newRow("damaged document")
        << QStringList{"--export", path("a.pdf"), path("damaged.tonquill")} << QByteArray("Line 2");
    QTest::newRow("unknown kind") << QStringList{"--export", path("a.doc"), document}
                                  << QByteArray(".svg");
    QTest::newRow("no such page") << QStringList{"--export", path("a.png"), "--page", "3", document}
                                  << QByteArray("page 3");
    QTest::newRow("page that is no number")
        << QStringList{"--export", path("a.png"), "--page", "x", document} << QByteArray("page");
    QTest::newRow("absurd resolution")
        << QStringList{"--export", path("a.png"), "--dpi", "100000", document}
        << QByteArray("resolution");
    QTest::newRow("a picture of 50,000 by 50,000 dots")
        << QStringList{"--export", path("a.png"), path("large-paper.tonquill")}
        << QByteArray("too large");
    // 50 by 40 inches, more than A0 has: 45 million dots.
    QTest::newRow("a picture of a sheet beyond A0")
        << QStringList{"--export", path("a.png"), path("poster.tonquill")}
        << QByteArray("too large");
    QTest::newRow("a picture that is too long")
        << QStringList{"--export", path("a.png"), "--dpi", "100", path("long-paper.tonquill")}
        << QByteArray("too large");
    QTest::newRow("folder that is not there")
        << QStringList{"--export", path("none/a.png"), document} << QByteArray("a.png");
    QTest::newRow("not an ordinary file")
        << QStringList{"--export", path("."), document} << QByteArray("must end");
    QTest::newRow("a pipe") << QStringList{"--export", path("a.pdf"), path("pipe.pdf")}
                            << QByteArray("not an ordinary file");
    QTest::newRow("a device") << QStringList{"--export", path("a.pdf"), "/dev/null"}
                              << QByteArray("not an ordinary file");
    QTest::newRow("a folder") << QStringList{"--export", path("a.pdf"), path(".")}
                              << QByteArray("folder");
    QTest::newRow("to a pipe") << QStringList{"--export", path("pipe.pdf"), document}
                               << QByteArray("not an ordinary file");
    QTest::newRow("onto itself") << QStringList{"--export", path("itself.pdf"), path("itself.pdf")}
                                 << QByteArray("the document itself");
    QTest::newRow("onto itself, by a link")
        << QStringList{"--export", path("link.pdf"), path("itself.pdf")}
        << QByteArray("the document itself");
    QTest::newRow("no display") << QStringList{document} << QByteArray("display");
}

void ProgramTest::saysInOneLineWhyItCannotExport()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, said);
    QByteArray errors;
    QCOMPARE(run(arguments, &errors), 1);
    QVERIFY2(errors.contains(said), errors);
    QCOMPARE(errors.count('\n'), 1);
}

void ProgramTest::aDocumentThatCannotBeHadInMemoryIsSpokenOf()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the sanitizer needs more memory than there is itself");
#endif
    QFile file(path("heavy.tonquill"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    constexpr int megabytes = 120;
    file.write("tonquill-document 1\n");
    for (int i = 0; i < megabytes; ++i)
        file.write(QByteArray(1 << 20, 'x'));
    file.write("\ntonquill-end\n");
    file.close();
    QProcess process;
    process.start("sh", {"-c", "ulimit -v 600000 && exec \"$0\" \"$@\"", program(), "--export",
                         path("a.pdf"), file.fileName()});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(errors.contains("not enough memory"), errors);
}

void ProgramTest::tellsItsVersionAndItsOptions()
{
    QCOMPARE(run({"--version"}), 0);
    QCOMPARE(run({"--help"}), 0);
}

void ProgramTest::leavesARealHostInPeace()
{
    QLocalServer host;
    QVERIFY(host.listen(HostMessages::serverName));
    QCOMPARE(run({"--export", path("peace.pdf"), path("two-pages.tonquill")}), 0);
    QVERIFY(!host.waitForNewConnection(0));
}

void ProgramTest::aSecondStartHandsItsFileOver()
{
    QProcess first;
    start(first, {}, true);
    QTRY_VERIFY(QFileInfo::exists(QDir(QDir::tempPath()).filePath(HostMessages::serverName)));
    QCOMPARE(run({"--export", path("beside.pdf"), path("two-pages.tonquill")}), 0);

    QProcess second;
    start(second, {path("two-pages.tonquill")}, true);
    QTRY_COMPARE(second.state(), QProcess::NotRunning);
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(first.state(), QProcess::Running);
    const QString settings =
        qEnvironmentVariable("XDG_CONFIG_HOME") + "/Tonquill/tonquill-solo.conf";
    // The first program remembers what it opened.
    QTRY_VERIFY(QSettings(settings, QSettings::IniFormat)
                    .value("recentFiles")
                    .toString()
                    .contains("two-pages"));
    first.kill();
    first.waitForFinished();
}

void ProgramTest::theManualNamesTheJournalsFolder()
{
    const QDir data(m_folder.filePath("data"));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_DATA_HOME", data.path());
    process.setProcessEnvironment(environment);
    process.start(program(), QStringList());
    // The journal's folder is the only one that the program makes there.
    const auto made = [&data] {
        QDirIterator folders(data.path(), QDir::Dirs | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        QString lowest;
        while (folders.hasNext())
            lowest = data.relativeFilePath(folders.next());
        return lowest;
    };
    QTRY_COMPARE(made().count('/'), 1);
    process.kill();
    process.waitForFinished();
    QFile manual(TONQUILL_MANUAL);
    QVERIFY(manual.open(QIODevice::ReadOnly));
    QVERIFY(manual.readAll().contains("\n.I ~/.local/share/" + made().toUtf8() + '\n'));
}

void ProgramTest::everyExampleIsWhole_data()
{
    QTest::addColumn<QString>("example");
    const QDir folder(TONQUILL_EXAMPLES);
    const QStringList examples = folder.entryList({"*.tonquill"});
    QVERIFY(examples.size() >= 4);
    for (const QString &name : examples)
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
}

void ProgramTest::everyExampleIsWhole()
{
    QFETCH(QString, example);
    QByteArray errors;
    QCOMPARE(run({"--export", path("example.pdf"), example}, &errors), 0);
    QCOMPARE(errors, QByteArray());
}

TONQUILL_SOLO_TEST_MAIN(ProgramTest)
#include "tst_program.moc"
