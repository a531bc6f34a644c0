#include "ModalAnswer.h"
#include "SymRefDialog.h"
#include "TestMain.h"
#include "TonquillMainWin.h"

#include <QDirIterator>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QTextEdit>

/** The dialog that writes a symbols reference file. */
class SymRefDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void looksAsItShould();
    void writesTheKeyToTheFile_data();
    void writesTheKeyToTheFile();
    void refusesWhatIsMissing_data();
    void refusesWhatIsMissing();
    void overwritesFileWithoutAsking();
    void asksBeforeFolderOfThatName_data();
    void asksBeforeFolderOfThatName();
    void cancelWritesNothing();
    void refusesNamesThatLeaveTheDirectory_data();
    void refusesNamesThatLeaveTheDirectory();
    void namesThatCannotBeWrittenAreSilent_data();
    void namesThatCannotBeWrittenAreSilent();
    void directoryThatCannotBeWrittenIsSilent();

private:
    void fillIn(const QString &instrument, const QString &key);
    void click(const char *button) { ModalAnswer::clickButton(*m_dialog, button); }
    QString fileOf(const QString &instrument) const;
    QByteArray contentOf(const QString &instrument) const;
    QStringList everything() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SymRefDialog> m_dialog;
};

/** The application's directory lies in a folder of the test's, to see what leaves it. */
void SymRefDialogTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir("application"));
    g_csINIPath = m_folder->filePath("application");
    m_dialog = std::make_unique<SymRefDialog>();
    m_dialog->open();
}

void SymRefDialogTest::fillIn(const QString &instrument, const QString &key)
{
    m_dialog->findChild<QLineEdit *>("lineEdit")->setText(instrument);
    m_dialog->findChild<QTextEdit *>("textEdit")->setPlainText(key);
}

QString SymRefDialogTest::fileOf(const QString &instrument) const
{
    return m_folder->filePath("application/SymRef_" + instrument + ".txt");
}

QByteArray SymRefDialogTest::contentOf(const QString &instrument) const
{
    QFile file(fileOf(instrument));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

/** All files and folders below the test's folder. */
QStringList SymRefDialogTest::everything() const
{
    QStringList paths;
    QDirIterator entries(m_folder->path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        paths.append(entries.next().sliced(m_folder->path().size() + 1));
    paths.sort();
    return paths;
}

void SymRefDialogTest::looksAsItShould()
{
    QCOMPARE(m_dialog->windowTitle(), QString("Dialog"));
    QCOMPARE(m_dialog->findChild<QLabel *>("label")->text(),
             QString("Instrument Name (please use letters and numbers only, thanks):"));
    QCOMPARE(m_dialog->findChild<QLabel *>("label_2")->text(),
             QString("Tablature Symbols Key Text:"));
    QCOMPARE(m_dialog->findChild<QPushButton *>("pb_ok")->text(), QString("OK"));
    QCOMPARE(m_dialog->findChild<QPushButton *>("pb_cancel")->text(), QString("Cancel"));
    QVERIFY(m_dialog->findChild<QLayout *>("verticalLayout"));
    QVERIFY(m_dialog->findChild<QLayout *>("horizontalLayout"));
}

void SymRefDialogTest::writesTheKeyToTheFile_data()
{
    QTest::addColumn<QString>("instrument");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("plain") << "Bass"
                           << "x dead note" << QByteArray("x dead note");
    QTest::newRow("lines and blanks") << "Drums"
                                      << " o open\n\n+ closed\n"
                                      << QByteArray(" o open\n\n+ closed\n");
    QTest::newRow("accents") << "Tuba"
                             << "\u00e9touff\u00e9" << QByteArray("\xe9touff\xe9");
    QTest::newRow("beyond Latin-1") << "Oud"
                                    << "\u266f \u266d" << QByteArray("? ?");
    QTest::newRow("percent signs") << "%1%2"
                                   << "100 %1" << QByteArray("100 %1");
    QTest::newRow("a dot") << "Bass.v2"
                           << "x" << QByteArray("x");
    QTest::newRow("only dots") << ".."
                               << "x" << QByteArray("x");
    QTest::newRow("blanks") << " Bass clarinet "
                            << "x" << QByteArray("x");
    QTest::newRow("accented name") << "Fl\u00fbte"
                                   << "x" << QByteArray("x");
}

void SymRefDialogTest::writesTheKeyToTheFile()
{
    QFETCH(QString, instrument);
    QFETCH(QString, key);
    QFETCH(QByteArray, written);
    fillIn(instrument, key);
    click("pb_ok");
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(contentOf(instrument), written);
    QCOMPARE(everything(),
             QStringList({"application", "application/SymRef_" + instrument + ".txt"}));
}

void SymRefDialogTest::refusesWhatIsMissing_data()
{
    QTest::addColumn<QString>("instrument");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("word");
    const QString noName = "Please supply an Instrument Name, thanks.";
    const QString noKey = "Please supply some Symbols Key Text, thanks.";
    QTest::newRow("no name") << ""
                             << "x" << noName;
    QTest::newRow("no key") << "Bass"
                            << "" << noKey;
    QTest::newRow("neither") << ""
                             << "" << noName;
}

void SymRefDialogTest::refusesWhatIsMissing()
{
    QFETCH(QString, instrument);
    QFETCH(QString, key);
    QFETCH(QString, word);
    fillIn(instrument, key);
    QStringList boxes;
    ModalAnswer::whenOpen<QMessageBox>([&boxes](QMessageBox &box) {
        boxes << box.windowTitle() << box.text();
        QCOMPARE(box.icon(), QMessageBox::Warning);
    });
    click("pb_ok");
    QCOMPARE(boxes, QStringList({"Tonquill", word}));
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(everything(), QStringList("application"));
}

void SymRefDialogTest::overwritesFileWithoutAsking()
{
    fillIn("Bass", "a much longer key than the next one");
    click("pb_ok");
    m_dialog->open();
    fillIn("Bass", "short");
    click("pb_ok");
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(contentOf("Bass"), QByteArray("short"));
}

void SymRefDialogTest::asksBeforeFolderOfThatName_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("staysOpen");
    QTest::newRow("no") << int(QMessageBox::No) << true;
    // The folder cannot be opened for writing, which is no reason for another word.
    QTest::newRow("yes") << int(QMessageBox::Yes) << false;
}

void SymRefDialogTest::asksBeforeFolderOfThatName()
{
    QFETCH(int, answer);
    QFETCH(bool, staysOpen);
    QVERIFY(QDir().mkdir(fileOf("Bass")));
    fillIn("Bass", "x");
    QString title;
    QString text;
    int defaultButton = 0;
    int buttons = 0;
    ModalAnswer::whenOpen<QMessageBox>([&](QMessageBox &box) {
        title = box.windowTitle();
        text = box.text();
        buttons = int(box.standardButtons());
        defaultButton = box.standardButton(box.defaultButton());
        QTest::mouseClick(box.button(QMessageBox::StandardButton(answer)), Qt::LeftButton);
    });
    click("pb_ok");
    QCOMPARE(title, QString("Overwrite?"));
    QCOMPARE(text, QString("The destination file already exists:\n\n\t%s\n\n"
                           "Do you want to overwrite it?"));
    QCOMPARE(buttons, int(QMessageBox::Yes | QMessageBox::No));
    QCOMPARE(defaultButton, int(QMessageBox::No));
    QCOMPARE(m_dialog->isVisible(), staysOpen);
    QCOMPARE(everything(), QStringList({"application", "application/SymRef_Bass.txt"}));
    QVERIFY(QFileInfo(fileOf("Bass")).isDir());
}

void SymRefDialogTest::cancelWritesNothing()
{
    fillIn("Bass", "x");
    click("pb_cancel");
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(everything(), QStringList("application"));
}

void SymRefDialogTest::refusesNamesThatLeaveTheDirectory_data()
{
    QTest::addColumn<QString>("instrument");
    QTest::newRow("through a folder that is there") << "Bass/../../outside";
    QTest::newRow("through one that is not") << "none/../../outside";
    QTest::newRow("at once") << "../outside";
    QTest::newRow("at its end") << "Bass/..";
    QTest::newRow("far away") << "Bass/../../../../../../../tmp/outside";
}

void SymRefDialogTest::refusesNamesThatLeaveTheDirectory()
{
    QFETCH(QString, instrument);
    QVERIFY(QDir(g_csINIPath).mkdir("SymRef_Bass"));
    const QStringList before = everything();
    fillIn(instrument, "x");
    QStringList boxes;
    ModalAnswer::whenOpen<QMessageBox>([&boxes](QMessageBox &box) {
        boxes << box.windowTitle() << box.text();
        QCOMPARE(box.icon(), QMessageBox::Warning);
    });
    click("pb_ok");
    QCOMPARE(boxes,
             QStringList({"Tonquill", "Please use letters and numbers only for the Instrument "
                                      "Name, thanks."}));
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(everything(), before);
}

void SymRefDialogTest::namesThatCannotBeWrittenAreSilent_data()
{
    QTest::addColumn<QString>("instrument");
    QTest::newRow("300 characters") << QString(300, 'x');
    QTest::newRow("a slash") << "Bass/Tenor";
    QTest::newRow("a slash at its end") << "Bass/";
    QTest::newRow("a slash at its start") << "/tmp/Bass";
}

void SymRefDialogTest::namesThatCannotBeWrittenAreSilent()
{
    QFETCH(QString, instrument);
    fillIn(instrument, "x");
    click("pb_ok");
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(everything(), QStringList("application"));
}

void SymRefDialogTest::directoryThatCannotBeWrittenIsSilent()
{
    g_csINIPath = m_folder->filePath("no such folder");
    fillIn("Bass", "x");
    click("pb_ok");
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(everything(), QStringList("application"));
}

TONQUILL_TEST_MAIN(SymRefDialogTest)
#include "tst_symrefdialog.moc"
