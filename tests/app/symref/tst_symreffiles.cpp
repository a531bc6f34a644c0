#include "ModalAnswer.h"
#include "SymRefDialog.h"
#include "TestMain.h"
#include "TonquillMainWin.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTextEdit>
#include <QToolButton>

namespace
{
constexpr int menuButton = 0x202;
constexpr int heading = 0x1000;
constexpr int createNew = 0x1001;
} // namespace

/** The menu of the symbols reference files, and the text editor in which they are opened. */
class SymRefFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void menuBelongsToTheThirdButton();
    void listsFilesByTheirBaseNames_data();
    void listsFilesByTheirBaseNames();
    void listsFilesInTheDirectorysOrder();
    void entriesKnowTheirFiles();
    void headingDoesNothing();
    void opensFileInTheTextEditor_data();
    void opensFileInTheTextEditor();
    void missingOpenerIsSilent();
    void openerIsWaitedFor();
    void fixedInstruments_data();
    void fixedInstruments();
    void harmonicaDoesNothing();
    void createNewListsTheNewFile();
    void cancelledCreateNewLeavesTheMenu();
    void missingDirectoryListsNothing();

private:
    void addFile(const QString &name);
    void installOpener(const QString &script);
    QMenu *menu() const { return m_window->menus.value(menuButton); }
    QStringList listed() const;
    QString opened() const;
    QString inFolder(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<TonquillMainWin> m_window;
    QByteArray m_path = qgetenv("PATH");
};

void SymRefFilesTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<TonquillMainWin>();
    g_csINIPath = m_folder->path();
    m_window->constructMenuSymRef();
}

void SymRefFilesTest::cleanup()
{
    qputenv("PATH", m_path);
}

void SymRefFilesTest::addFile(const QString &name)
{
    QFile file(inFolder(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

/** The entries below the two fixed ones. */
QStringList SymRefFilesTest::listed() const
{
    QStringList texts;
    for (const QAction *action : menu()->actions().mid(2))
        texts.append(action->text());
    return texts;
}

/** Puts a program where the desktop's opener is looked for, and nothing else. */
void SymRefFilesTest::installOpener(const QString &script)
{
    QVERIFY(QDir(m_folder->path()).mkdir("programs"));
    QFile program(inFolder("programs/xdg-open"));
    QVERIFY(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\n" + script.toUtf8());
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("PATH", inFolder("programs").toUtf8());
}

/** What the opener wrote down. */
QString SymRefFilesTest::opened() const
{
    QFile log(inFolder("opened"));
    return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()) : QString();
}

void SymRefFilesTest::menuBelongsToTheThirdButton()
{
    bool isButtonsMenu = false;
    for (const QToolButton *button : m_window->findChildren<QToolButton *>())
        isButtonsMenu = isButtonsMenu || button->menu() == menu();
    QVERIFY(isButtonsMenu);
    QCOMPARE(m_window->constructMenuSymRef(), menu());
    QCOMPARE(menu()->actions().size(), 2);
    QCOMPARE(menu()->actions().at(0), m_window->actions.value(heading));
    QCOMPARE(menu()->actions().at(1), m_window->actions.value(createNew));
    QCOMPARE(menu()->actions().at(0)->text(), QString("Symbols Reference..."));
    QCOMPARE(menu()->actions().at(1)->text(), QString("Create New"));
}

void SymRefFilesTest::listsFilesByTheirBaseNames_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("entries");
    QTest::newRow("an instrument") << "SymRef_Bass.txt" << QStringList("Bass");
    QTest::newRow("two dots") << "SymRef_Bass.v2.txt" << QStringList("Bass");
    QTest::newRow("no name") << "SymRef_.txt" << QStringList("");
    QTest::newRow("blanks") << "SymRef_Bass clarinet.txt" << QStringList("Bass clarinet");
    QTest::newRow("the other spelling") << "Symref_Drums.txt" << QStringList();
    QTest::newRow("small letters") << "symref_bass.txt" << QStringList();
    QTest::newRow("capital extension") << "SymRef_Bass.TXT" << QStringList();
    QTest::newRow("another extension") << "SymRef_Bass.doc" << QStringList();
    QTest::newRow("another beginning") << "My SymRef_Bass.txt" << QStringList();
}

void SymRefFilesTest::listsFilesByTheirBaseNames()
{
    QFETCH(QString, file);
    QFETCH(QStringList, entries);
    addFile(file);
    // Only now: the menu knows nothing of files that are added beside the program.
    QCOMPARE(listed(), QStringList());
    m_window->constructMenuSymRef();
    QCOMPARE(listed(), entries);
}

void SymRefFilesTest::listsFilesInTheDirectorysOrder()
{
    for (const QString name : {"Drums", "bass", "Alto", "celesta"})
        addFile("SymRef_" + name + ".txt");
    m_window->constructMenuSymRef();
    QCOMPARE(listed(), QStringList({"Alto", "bass", "celesta", "Drums"}));
    // Filled anew, not added to.
    m_window->constructMenuSymRef();
    QCOMPARE(listed().size(), 4);
}

void SymRefFilesTest::entriesKnowTheirFiles()
{
    addFile("SymRef_Bass.v2.txt");
    m_window->constructMenuSymRef();
    QCOMPARE(menu()->actions().constLast()->data().toString(), inFolder("SymRef_Bass.v2.txt"));
}

void SymRefFilesTest::headingDoesNothing()
{
    installOpener("echo \"$@\" >> '" + inFolder("opened") + "'\n");
    m_window->actions.value(heading)->trigger();
    QCOMPARE(opened(), QString());
    QVERIFY(!QApplication::activeModalWidget());
}

void SymRefFilesTest::opensFileInTheTextEditor_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("plain") << "SymRef_Bass.txt";
    QTest::newRow("blanks and quotes") << "SymRef_Bass \"low\" 'B'.txt";
    QTest::newRow("dollar") << "SymRef_$HOME.txt";
}

void SymRefFilesTest::opensFileInTheTextEditor()
{
    QFETCH(QString, file);
    addFile(file);
    m_window->constructMenuSymRef();
    installOpener("for argument; do echo \"<$argument>\"; done >> '" + inFolder("opened") + "'\n");
    menu()->actions().constLast()->trigger();
    QCOMPARE(opened(), "<" + inFolder(file) + ">\n");
}

void SymRefFilesTest::missingOpenerIsSilent()
{
    addFile("SymRef_Bass.txt");
    m_window->constructMenuSymRef();
    qputenv("PATH", inFolder("nowhere").toUtf8());
    menu()->actions().constLast()->trigger();
    m_window->OnMenuActionSymRefDrums();
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(m_window->findChildren<QMessageBox *>().isEmpty());
}

/** The opener, and whatever its end, is waited for: its last word is there at once. */
void SymRefFilesTest::openerIsWaitedFor()
{
    addFile("SymRef_Bass.txt");
    m_window->constructMenuSymRef();
    installOpener("read nothing < /dev/null\necho done > '" + inFolder("opened") + "'\nexit 3\n");
    menu()->actions().constLast()->trigger();
    QCOMPARE(opened(), QString("done\n"));
}

void SymRefFilesTest::fixedInstruments_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QString>("file");
    QTest::newRow("cymbals") << QByteArray("OnMenuActionSymRefCymbals") << "Symref_Cymbals.txt";
    QTest::newRow("drum kit") << QByteArray("OnMenuActionSymRefDrumKit") << "Symref_DrumKit.txt";
    QTest::newRow("drums") << QByteArray("OnMenuActionSymRefDrums") << "Symref_Drums.txt";
    QTest::newRow("guitar") << QByteArray("OnMenuActionSymRefGuitar") << "Symref_Guitar.txt";
}

/** Their files are spelt with a small r, and need not exist. */
void SymRefFilesTest::fixedInstruments()
{
    QFETCH(QByteArray, slot);
    QFETCH(QString, file);
    installOpener("echo \"$@\" >> '" + inFolder("opened") + "'\n");
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), slot.constData()));
    QCOMPARE(opened(), inFolder(file) + "\n");
}

void SymRefFilesTest::harmonicaDoesNothing()
{
    installOpener("echo \"$@\" >> '" + inFolder("opened") + "'\n");
    m_window->OnMenuActionSymRefHarmonica();
    QCOMPARE(opened(), QString());
}

/** Chosen from the open menu, which is cleared while it still handles the choice. */
void SymRefFilesTest::createNewListsTheNewFile()
{
    addFile("SymRef_Alto.txt");
    bool hasParent = true;
    ModalAnswer::whenOpen<QMenu>([&hasParent](QMenu &menu) {
        ModalAnswer::whenOpen<SymRefDialog>([&hasParent](SymRefDialog &dialog) {
            hasParent = dialog.parent() != nullptr;
            dialog.findChild<QLineEdit *>("lineEdit")->setText("Bass");
            dialog.findChild<QTextEdit *>("textEdit")->setPlainText("x dead note");
            ModalAnswer::clickButton(dialog, "pb_ok");
        });
        ModalAnswer::choose(menu, 1);
    });
    menu()->exec(QPoint(0, 0));
    QVERIFY(!hasParent);
    QCOMPARE(listed(), QStringList({"Alto", "Bass"}));
    QCOMPARE(m_window->actions.value(createNew), menu()->actions().at(1));
}

void SymRefFilesTest::cancelledCreateNewLeavesTheMenu()
{
    addFile("SymRef_Alto.txt");
    ModalAnswer::whenOpen<SymRefDialog>(
        [](SymRefDialog &dialog) { ModalAnswer::clickButton(dialog, "pb_cancel"); });
    m_window->actions.value(createNew)->trigger();
    QCOMPARE(listed(), QStringList());
}

void SymRefFilesTest::missingDirectoryListsNothing()
{
    g_csINIPath = inFolder("no such folder");
    m_window->constructMenuSymRef();
    QCOMPARE(menu()->actions().size(), 2);
}

TONQUILL_TEST_MAIN(SymRefFilesTest)
#include "tst_symreffiles.moc"
