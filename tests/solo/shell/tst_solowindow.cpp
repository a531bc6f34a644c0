#include "DocumentFile.h"
#include "FullDisk.h"
#include "MenuBar.h"
#include "ModalAnswer.h"
#include "PaletteTable.h"
#include "PaperPainting.h"
#include "SaveDialog.h"
#include "SoloTestMain.h"
#include "SoloWindow.h"
#include "TonquillBitmap.h"
#include "TonquillScene.h"
#include "TonquillTextBlock.h"
#include "TonquillView.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QToolBar>
#include <QWindow>

/** The window with its menus, its title and its end. */
class SoloWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void noShortcutIsAKeyOfTheEditor();
    void noTwoEntriesShareAShortcut();
    void ctrlIsNotHeldAfterAShortcut();
    void everyPaletteCommandIsInTheInsertMenu();
    void ctrlMakesNoRestOfANoteInTheInsertMenu();
    void copyAndPasteFromTheMenuActOnce();
    void copyAndPasteFromTheMenuBeginNoQuickText();
    void aTextLeftForTheMenuIsNotDeleted();
    void theTitleTellsNameAndChange();
    void aSavedFileIsInOpenRecent();
    void theViewMenuShowsAndHidesToolbars_data();
    void theViewMenuShowsAndHidesToolbars();
    void closingAsksAndEnds_data();
    void closingAsksAndEnds();
    void undoFromToolbarAndMenuIsTheSame();
    void nothingLeftToUndoIsSaid();
    void ctrlAndWheelZoomAtThePointer();
    void linesGrowWithTheZoomWhileItIsThere();
    void openingABrokenFileChangesNothing();
    void aFileTooLargeToOpenChangesNothing();
    void partOfADamagedFileIsOffered();
    void aReloadThatShowsNothingLeavesUnsavedWork();
    void aRecoveredDocumentIsUnsaved();
    void aJournalThatCannotBeCopiedIsNotWrittenOver();
    void boxesShowNamesAsTheyStand_data();
    void boxesShowNamesAsTheyStand();
    void theTitleShowsAnyName();
    void appearsOnceAndWhenItIsShown();
    void aNameCompletedBehindTheDialogIsAskedAbout();
    void thatNothingCanBeKeptIsToldOnce();

private:
    QList<QAction *> menuActions() const;
    QAction *entry(const QString &text) const;
    void placeNote();
    static void answerBox(QMessageBox::ButtonRole role, QString *text = nullptr);
    QString fileOf(const QByteArray &bytes, const QString &name = "file.tonquill");

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SoloWindow> m_solo;
};

void SoloWindowTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_solo = std::make_unique<SoloWindow>(m_folder->path());
    QCOMPARE(m_solo->startHost(), QString());
    m_solo->show();
    QVERIFY(QTest::qWaitForWindowActive(&m_solo->window()));
    m_solo->window().view()->setFocus();
}

void SoloWindowTest::cleanup()
{
    m_solo->session().close();
    m_solo.reset();
    m_folder.reset();
}

/** Every entry of the menus, those of submenus included. */
QList<QAction *> SoloWindowTest::menuActions() const
{
    QList<QAction *> result;
    const QList<QMenu *> menus = m_solo->window().menuBar()->findChildren<QMenu *>();
    for (const QMenu *menu : menus)
        result += menu->actions();
    return result;
}

QAction *SoloWindowTest::entry(const QString &text) const
{
    for (QAction *action : menuActions()) {
        if (action->text().remove(u'&').section(u'\t', 0, 0) == text)
            return action;
    }
    return nullptr;
}

void SoloWindowTest::placeNote()
{
    m_solo->window().InsertBitmapSymbol(19, false, true)->setPos(200, 200);
    m_solo->session().edits().check();
}

/** Answers the next box with its first button of a role, and tells what the box said. */
void SoloWindowTest::answerBox(QMessageBox::ButtonRole role, QString *text)
{
    QTimer::singleShot(0, qApp, [role, text] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box) {
            answerBox(role, text);
            return;
        }
        if (text)
            *text = box->text() + u'\n' + box->informativeText();
        for (QAbstractButton *button : box->buttons()) {
            if (box->buttonRole(button) == role) {
                button->click();
                return;
            }
        }
    });
}

QString SoloWindowTest::fileOf(const QByteArray &bytes, const QString &name)
{
    QFile file(m_folder->filePath(name));
    const bool isOpen = file.open(QIODevice::WriteOnly);
    file.write(isOpen ? bytes : QByteArray());
    return file.fileName();
}

void SoloWindowTest::noShortcutIsAKeyOfTheEditor()
{
    QList<QKeySequence> editorsOwn{Qt::Key_F5,   Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,
                                   Qt::Key_Down, Qt::Key_Space, Qt::Key_Delete, Qt::Key_Backspace};
    editorsOwn += QKeySequence::keyBindings(QKeySequence::Copy);
    editorsOwn += QKeySequence::keyBindings(QKeySequence::Paste);
    for (const QAction *action : menuActions()) {
        for (const QKeySequence &shortcut : action->shortcuts())
            QVERIFY2(!editorsOwn.contains(shortcut), qPrintable(action->text()));
    }
}

void SoloWindowTest::noTwoEntriesShareAShortcut()
{
    QSet<QString> seen;
    for (const QAction *action : menuActions()) {
        for (const QKeySequence &shortcut : action->shortcuts()) {
            QVERIFY2(!seen.contains(shortcut.toString()), qPrintable(action->text()));
            seen.insert(shortcut.toString());
        }
    }
    QVERIFY(seen.contains("Ctrl+S"));
}

void SoloWindowTest::ctrlIsNotHeldAfterAShortcut()
{
    placeNote();
    QWidget *view = m_solo->window().view();
    QTest::keyPress(view, Qt::Key_Control);
    QVERIFY(m_solo->window().restMode);
    // The box that asks takes the keyboard while Ctrl is down, and hears of its release.
    answerBox(QMessageBox::RejectRole);
    QTest::keyClick(view, Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(!m_solo->window().restMode);
}

void SoloWindowTest::everyPaletteCommandIsInTheInsertMenu()
{
    QStringList names;
    for (const QAction *action : menuActions())
        names.append(action->text());
    for (const PaletteToolBar &toolBar : PaletteTable::toolBars().sliced(1)) {
        for (const PaletteEntry &row : toolBar.entries) {
            const QString name = row.translatedName().section(" (", 0, 0);
            QVERIFY2(names.contains(name), qPrintable(name));
        }
    }
    for (const PaletteMenu &menu : PaletteTable::menus()) {
        for (const PaletteEntry &row : menu.entries)
            QVERIFY2(row.isSeparator() || names.contains(row.translatedName()),
                     qPrintable(row.translatedName()));
    }
    QVERIFY(names.contains("Eighth rest"));
}

void SoloWindowTest::ctrlMakesNoRestOfANoteInTheInsertMenu()
{
    const QStringList names{"Whole note", "Half note", "Quarter note", "Eighth note",
                            "16th note",  "32nd note", "64th note",    "128th note"};
    TonquillMainWin &window = m_solo->window();
    window.restMode = true;
    for (int value = 0; value < 8; ++value) {
        entry(names[value])->trigger();
        QCOMPARE(window.scene->selectedItems().constFirst()->data(256).toInt(), 13 + 3 * value);
    }
}

void SoloWindowTest::copyAndPasteFromTheMenuActOnce()
{
    placeNote();
    entry("Select All")->trigger();
    entry("Copy")->trigger();
    entry("Paste")->trigger();
    QTRY_COMPARE(m_solo->session().edits().document().items.toList(),
                 (QByteArrayList{"tonquill_bitmap 200 200 19", "tonquill_bitmap 230 230 19"}));
    entry("Delete")->trigger();
    QTRY_COMPARE(m_solo->session().edits().document().items.toList(),
                 QByteArrayList{"tonquill_bitmap 230 230 19"});
}

/** The letters of their keys, typed, would. */
void SoloWindowTest::copyAndPasteFromTheMenuBeginNoQuickText()
{
    placeNote();
    entry("Select All")->trigger();
    m_solo->window().quickText = true;
    entry("Copy")->trigger();
    entry("Paste")->trigger();
    QTRY_COMPARE(m_solo->session().edits().document().items,
                 (QByteArrayList{"tonquill_bitmap 200 200 19", "tonquill_bitmap 230 230 19"}));
}

void SoloWindowTest::aTextLeftForTheMenuIsNotDeleted()
{
    auto *block = new TonquillTextBlock(false, QStringLiteral("la"), QRectF(0, 0, 200, 60));
    m_solo->window().scene->addNewItem(block);
    block->setSelected(true);
    block->setTextInteractionFlags(Qt::TextEditorInteraction);
    block->setFocus();
    m_solo->window().scene->setFocusItem(nullptr, Qt::PopupFocusReason);
    QMenu *menu = entry("Delete")->associatedObjects().isEmpty()
                      ? nullptr
                      : qobject_cast<QMenu *>(entry("Delete")->parent());
    QVERIFY(menu);
    Q_EMIT menu->aboutToShow();
    QVERIFY(!entry("Delete")->isEnabled());
}

void SoloWindowTest::theTitleTellsNameAndChange()
{
    QCOMPARE(m_solo->window().windowTitle(), QString("Untitled[*] – Tonquill"));
    QVERIFY(!m_solo->window().isWindowModified());
    placeNote();
    QVERIFY(m_solo->window().isWindowModified());
    QCOMPARE(m_solo->session().saveAs(m_folder->filePath("song.tonquill")), QString());
    QCOMPARE(m_solo->window().windowTitle(), QString("song.tonquill[*] – Tonquill"));
    QVERIFY(!m_solo->window().isWindowModified());
    QVERIFY(m_solo->session().edits().undo());
    QVERIFY(m_solo->window().isWindowModified());
    QVERIFY(m_solo->session().edits().redo());
    QVERIFY(!m_solo->window().isWindowModified());
}

void SoloWindowTest::aSavedFileIsInOpenRecent()
{
    placeNote();
    const QString path = m_folder->filePath("rock & roll.tonquill");
    m_solo->session().show(m_solo->session().edits().document(), path, FileStamp());
    QVERIFY(m_solo->files().save());
    m_solo->files().makeNew();
    QVERIFY(m_solo->session().path().isEmpty());
    auto *menu = qobject_cast<QMenu *>(entry("Open…")->parent());
    QVERIFY(menu);
    Q_EMIT menu->aboutToShow();
    QAction *recent = entry("Open Recent")->menu()->actions().value(0);
    QVERIFY(recent);
    QCOMPARE(recent->text(), QString("rock && roll.tonquill"));
    recent->trigger();
    QCOMPARE(m_solo->session().path(), path);
    QCOMPARE(m_solo->session().edits().document().items.toList(),
             QByteArrayList{"tonquill_bitmap 200 200 19"});
}

void SoloWindowTest::theViewMenuShowsAndHidesToolbars_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolBar");
    QTest::newRow("sheet music") << "Sheet Music Toolbar"
                                 << "toolBar2";
    QTest::newRow("tablature") << "Tablature Toolbar"
                               << "toolBar3";
}

void SoloWindowTest::theViewMenuShowsAndHidesToolbars()
{
    QFETCH(QString, text);
    QFETCH(QString, toolBar);
    const auto *bar = m_solo->window().findChild<QToolBar *>(toolBar);
    QAction *shown = entry(text);
    auto *menu = qobject_cast<QMenu *>(shown->parent());
    QVERIFY(menu);
    const auto isChecked = [menu, shown] {
        Q_EMIT menu->aboutToShow();
        return shown->isChecked();
    };
    QVERIFY(bar->isVisible());
    QVERIFY(isChecked());
    shown->trigger();
    QVERIFY(!bar->isVisible());
    QVERIFY(!isChecked());
    shown->trigger();
    QVERIFY(bar->isVisible());
    QVERIFY(isChecked());
    // The buttons of the first toolbar do the same, and the entries follow.
    if (toolBar == "toolBar2")
        m_solo->window().OnToolBar1ButtonSheetMusic();
    else
        m_solo->window().OnToolBar1ButtonGuitarTabs();
    QVERIFY(!bar->isVisible());
    QVERIFY(!isChecked());
    shown->trigger();
    QVERIFY(bar->isVisible());
}

void SoloWindowTest::closingAsksAndEnds_data()
{
    QTest::addColumn<QMessageBox::ButtonRole>("answer");
    QTest::addColumn<bool>("ends");
    QTest::addColumn<bool>("saves");
    QTest::newRow("save") << QMessageBox::AcceptRole << true << true;
    QTest::newRow("discard") << QMessageBox::DestructiveRole << true << false;
    QTest::newRow("cancel") << QMessageBox::RejectRole << false << false;
}

void SoloWindowTest::closingAsksAndEnds()
{
    QFETCH(QMessageBox::ButtonRole, answer);
    QFETCH(bool, ends);
    QFETCH(bool, saves);
    const QString path = m_folder->filePath("song.tonquill");
    QCOMPARE(m_solo->session().saveAs(path), QString());
    placeNote();
    QString asked;
    answerBox(answer, &asked);
    m_solo->window().close();
    QVERIFY(asked.contains("song.tonquill"));
    QCOMPARE(m_solo->window().isVisible(), !ends);
    const DocumentFile::Reading reading = DocumentFile::load(path, Paper());
    QCOMPARE(reading.document.items.size(), qsizetype(saves ? 1 : 0));
}

void SoloWindowTest::undoFromToolbarAndMenuIsTheSame()
{
    placeNote();
    m_solo->window().OnToolBar1ButtonUndo();
    QTRY_COMPARE(m_solo->session().edits().document().items.size(), 0);
    entry("Redo")->trigger();
    QCOMPARE(m_solo->session().edits().document().items.size(), 1);
    QTest::keyClick(m_solo->window().view(), Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(m_solo->session().edits().document().items.size(), 0);
}

void SoloWindowTest::nothingLeftToUndoIsSaid()
{
    for (const auto &[text, said] :
         {std::pair("Undo", "Nothing to undo"), std::pair("Redo", "Nothing to redo")}) {
        entry(text)->trigger();
        QTRY_VERIFY(m_solo->window().findChild<QMessageBox *>());
        auto *box = m_solo->window().findChild<QMessageBox *>();
        QCOMPARE(box->text(), QString(said));
        delete box;
    }
}

void SoloWindowTest::ctrlAndWheelZoomAtThePointer()
{
    TonquillView &view = *m_solo->window().view();
    const QPoint place(200, 150);
    QWheelEvent wheel(place, view.viewport()->mapToGlobal(place), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.viewport(), &wheel);
    // One notch makes everything a quarter larger.
    QCOMPARE(view.transform().m11(), 1.25);
    entry("100 %")->trigger();
    QCOMPARE(view.transform().m11(), 1.0);
}

/** At 300 % a line of 0.93 units is 2.8 pixels wide, so 3. Another window's are one pixel. */
void SoloWindowTest::linesGrowWithTheZoomWhileItIsThere()
{
    const auto widthAt = [](qreal zoom) {
        QImage image(10, 10, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.scale(zoom, zoom);
        return PaperPainting::linePen(painter).widthF();
    };
    QCOMPARE(widthAt(3.0), 3.0);
    QCOMPARE(widthAt(1.0), 0.0);
    m_solo->session().close();
    m_solo.reset();
    QCOMPARE(widthAt(3.0), 0.0);
    init();
}

void SoloWindowTest::openingABrokenFileChangesNothing()
{
    placeNote();
    const QString path = fileOf("no document\n");
    QString said;
    answerBox(QMessageBox::AcceptRole, &said);
    m_solo->files().openFile(path);
    QVERIFY(said.contains("This is not a Tonquill document."));
    QCOMPARE(m_solo->session().edits().document().items.size(), 1);
    QVERIFY(m_solo->session().path().isEmpty());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("no document\n"));
}

void SoloWindowTest::aFileTooLargeToOpenChangesNothing()
{
    placeNote();
    QFile sparse(fileOf(QByteArray()));
    QVERIFY(sparse.open(QIODevice::WriteOnly) && sparse.resize(60'000'000'000));
    QString said;
    answerBox(QMessageBox::AcceptRole, &said);
    m_solo->files().openFile(sparse.fileName());
    QVERIFY2(said.contains("The file is too large: "), qPrintable(said));
    QCOMPARE(m_solo->session().edits().document().items.size(), 1);
    QVERIFY(m_solo->session().isModified());
}

void SoloWindowTest::partOfADamagedFileIsOffered()
{
    const QString path = fileOf("tonquill-document 1\ntonquill_bitmap 1 2 19\nrubbish\n"
                                "tonquill-end\n");
    QString said;
    answerBox(QMessageBox::AcceptRole, &said);
    m_solo->files().openFile(path);
    QVERIFY(said.contains("Line 3"));
    QCOMPARE(m_solo->session().edits().document().items.toList(),
             QByteArrayList{"tonquill_bitmap 1 2 19"});
    QVERIFY(m_solo->session().isModified());
}

void SoloWindowTest::aReloadThatShowsNothingLeavesUnsavedWork()
{
    const QString path = fileOf("tonquill-document 1\ntonquill_bitmap 1 2 19\ntonquill-end\n");
    m_solo->files().openFile(path);
    QVERIFY(!m_solo->session().isModified());
    fileOf("no document\n", QFileInfo(path).fileName());
    QString said;
    answerBox(QMessageBox::AcceptRole);
    QTimer::singleShot(0, qApp, [&said] {
        QTimer::singleShot(0, qApp, [&said] { answerBox(QMessageBox::AcceptRole, &said); });
    });
    m_solo->files().lookForOutsideChange();
    QVERIFY2(said.contains("This is not a Tonquill document."), qPrintable(said));
    QCOMPARE(m_solo->session().edits().document().items.toList(),
             QByteArrayList{"tonquill_bitmap 1 2 19"});
    QVERIFY(m_solo->session().isModified());
}

void SoloWindowTest::aRecoveredDocumentIsUnsaved()
{
    const QString path = fileOf("untouched");
    DocumentSnapshot lost = m_solo->session().edits().document();
    lost.items = {"tonquill_bitmap 7 8 19"};
    QVERIFY(m_solo->session().journal().write(lost, path));
    answerBox(QMessageBox::AcceptRole);
    m_solo->files().offerRecovery();
    QCOMPARE(m_solo->session().edits().document(), lost);
    QCOMPARE(m_solo->session().path(), path);
    QVERIFY(m_solo->session().isModified());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("untouched"));
}

void SoloWindowTest::aJournalThatCannotBeCopiedIsNotWrittenOver()
{
    const QByteArray bytes = "tonquill-recovery  \ntonquill-document 1\ntonquill_bitmap 1 2 19\n" +
                             QByteArray(10'000, 'x') + "\ntonquill-end\n";
    const QString journal = fileOf(bytes, "recovery.tonquill");
    m_solo.reset(); // there is one main window at a time
    m_solo = std::make_unique<SoloWindow>(m_folder->path());
    QString said;
    answerBox(QMessageBox::AcceptRole, &said);
    {
        const FullDisk full(4096);
        m_solo->files().offerRecovery();
    }
    QVERIFY2(said.contains("Until this file is moved, no further changes"), qPrintable(said));
    QVERIFY2(said.contains(journal), qPrintable(said));
    QCOMPARE(m_solo->session().edits().document().items.toList(),
             QByteArrayList{"tonquill_bitmap 1 2 19"});
    placeNote();
    QVERIFY(!m_solo->session().journal().write(m_solo->session().edits().document(), QString()));
    QFile file(journal);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), bytes);
}

void SoloWindowTest::boxesShowNamesAsTheyStand_data()
{
    using Act = std::function<void(SoloWindow &, const QString &)>;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Act>("act");
    const Act open = [](SoloWindow &solo, const QString &path) { solo.files().openFile(path); };
    QTest::newRow("no document") << QByteArray("no document\n") << open;
    QTest::newRow("a damaged document") << QByteArray("tonquill-document 1\nrubbish\n") << open;
    QTest::newRow("unsaved changes")
        << QByteArray() << Act([](SoloWindow &solo, const QString &path) {
               QCOMPARE(solo.session().saveAs(path), QString());
               solo.window().InsertBitmapSymbol(19, false, true);
               solo.files().mayLeave();
           });
    QTest::newRow("a file that cannot be saved")
        << QByteArray() << Act([](SoloWindow &solo, const QString &path) {
               solo.session().show(DocumentSnapshot(), path + "/none", FileStamp());
               solo.files().save();
           });
    QTest::newRow("recovery") << QByteArray() << Act([](SoloWindow &solo, const QString &path) {
        QVERIFY(solo.session().journal().write(solo.session().edits().document(), path));
        solo.files().offerRecovery();
    });
}

/** A name may look like a page of the web; it is to be read, and nothing to be fetched for it. */
void SoloWindowTest::boxesShowNamesAsTheyStand()
{
    QFETCH(QByteArray, bytes);
    QFETCH(std::function<void(SoloWindow &, const QString &)>, act);
    const QString name = "<b>a</b><img src=x>.tonquill";
    QVERIFY(QDir(m_folder->path()).mkpath("<b>a<"));
    const QString path = fileOf(bytes, name);
    QStringList texts;
    ModalAnswer::whenOpen<QMessageBox>([&texts](QMessageBox &box) {
        for (const QLabel *label : box.findChildren<QLabel *>()) {
            if (label->text().isEmpty())
                continue;
            QCOMPARE(label->textFormat(), Qt::PlainText);
            texts.append(label->text());
        }
    });
    act(*m_solo, path);
    QCOMPARE(texts.size(), 2);
    QVERIFY(texts.join(u'\n').contains("<img src=x>.tonquill"));
}

void SoloWindowTest::theTitleShowsAnyName()
{
    QCOMPARE(m_solo->session().saveAs(m_folder->filePath("a[*].tonquill")), QString());
    // Qt takes two marks for the letters of one.
    QCOMPARE(m_solo->window().windowTitle(), QString("a[*][*].tonquill[*] – Tonquill"));
}

void SoloWindowTest::appearsOnceAndWhenItIsShown()
{
    SoloWindow solo(m_folder->path());
    QSignalSpy appeared(&solo, &SoloWindow::appeared);
    bool isThere = false;
    connect(&solo, &SoloWindow::appeared, this,
            [&] { isThere = solo.window().windowHandle()->isExposed(); });
    solo.show();
    QCOMPARE(appeared.size(), 0);
    QTRY_COMPARE(appeared.size(), 1);
    QVERIFY(isThere);
    solo.window().hide();
    solo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&solo.window()));
    QCoreApplication::processEvents();
    QCOMPARE(appeared.size(), 1);
    solo.session().close();
}

/** A dialog of the desktop may not complete the name before it asks. */
void SoloWindowTest::aNameCompletedBehindTheDialogIsAskedAbout()
{
    const SaveDialog dialog("Save As", "Documents (*.tonquill)", "tonquill");
    const QString song = fileOf("song", "song.tonquill");
    const QString bare = m_folder->filePath("song");
    QCOMPARE(dialog.completed(m_solo->window(), song), song);
    QCOMPARE(dialog.completed(m_solo->window(), m_folder->filePath("new")),
             m_folder->filePath("new.tonquill"));
    QString asked;
    answerBox(QMessageBox::RejectRole, &asked);
    QCOMPARE(dialog.completed(m_solo->window(), bare), QString());
    QVERIFY(asked.contains("song.tonquill"));
    answerBox(QMessageBox::DestructiveRole);
    QCOMPARE(dialog.completed(m_solo->window(), bare), song);
}

void SoloWindowTest::thatNothingCanBeKeptIsToldOnce()
{
    SoloWindow solo("/dev/null/folder");
    QSignalSpy failed(&solo.session(), &DocumentSession::journalFailed);
    QString said;
    answerBox(QMessageBox::AcceptRole, &said);
    solo.session().tryJournal();
    QTRY_VERIFY(said.contains("/dev/null/folder"));
    solo.session().tryJournal();
    QCOMPARE(failed.size(), 1);
    solo.session().close();
}

TONQUILL_SOLO_TEST_MAIN(SoloWindowTest)
#include "tst_solowindow.moc"
