#include "FileCommands.h"

#include "DocumentSession.h"
#include "Exporter.h"
#include "OutsideChange.h"
#include "PlainMessageBox.h"
#include "RecoveryOffer.h"
#include "SaveDialog.h"
#include "TonquillMainWin.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>

namespace
{
constexpr qsizetype mostRecentFiles = 8;

QString recentKey()
{
    return QStringLiteral("recentFiles");
}

QString documentSuffix()
{
    return QStringLiteral("tonquill");
}

QString documentFilter()
{
    return FileCommands::tr("Tonquill documents (*.tonquill);;All files (*)");
}
} // namespace

FileCommands::FileCommands(TonquillMainWin &window, DocumentSession &session)
    : m_window(window)
    , m_session(session)
{}

QStringList FileCommands::recentFiles()
{
    return QSettings().value(recentKey()).toStringList();
}

void FileCommands::remember(const QString &path)
{
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    QSettings().setValue(recentKey(), files.first(qMin(files.size(), mostRecentFiles)));
}

bool FileCommands::mayLeave()
{
    m_session.edits().check();
    if (!m_session.isModified())
        return true;
    PlainMessageBox box(QMessageBox::Question, tr("Save changes to “%1”?").arg(m_session.name()),
                        tr("Unsaved changes will be lost."),
                        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &m_window);
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void FileCommands::makeNew()
{
    if (mayLeave())
        m_session.makeNew();
}

void FileCommands::open()
{
    const QString folder = QFileInfo(suggestedPath(documentSuffix())).path();
    const QString path =
        QFileDialog::getOpenFileName(&m_window, tr("Open"), folder, documentFilter());
    if (!path.isEmpty())
        openFile(path);
}

void FileCommands::openFile(const QString &path)
{
    DocumentFile::Reading reading = DocumentFile::load(path, m_session.defaultPaper());
    if (!isDocument(path, reading) || !mayLeave())
        return;
    // mayLeave() may have just saved to this very file.
    if (reading.stamp.changeAt(path) != FileStamp::Change::None)
        reading = DocumentFile::load(path, m_session.defaultPaper());
    showFile(path, reading);
}

bool FileCommands::showFile(const QString &path, const DocumentFile::Reading &reading)
{
    if (!isDocument(path, reading) || !mayShow(path, reading))
        return false;
    const QString file = QFileInfo(path).absoluteFilePath();
    const bool isWhole = reading.problems.isEmpty();
    if (isWhole && !reading.isOfHost)
        m_session.show(reading.document, file, reading.stamp);
    else
        m_session.showUnnamed(reading.document, file, !isWhole);
    remember(file);
    return true;
}

/** Reloads the open document's file after another program has changed it. */
bool FileCommands::reload()
{
    const QString path = m_session.path();
    return showFile(path, DocumentFile::load(path, m_session.defaultPaper()));
}

void FileCommands::openCopy(const QString &path)
{
    const DocumentFile::Reading reading = DocumentFile::load(path, m_session.defaultPaper());
    if (isDocument(path, reading) && mayShow(path, reading))
        m_session.showUnnamed(reading.document, QFileInfo(path).fileName(), false);
}

/** Returns false, after telling the user why, if the file cannot be opened at all. */
bool FileCommands::isDocument(const QString &path, const DocumentFile::Reading &reading)
{
    if (!reading.isDocument)
        PlainMessageBox::warn(&m_window,
                              tr("“%1” cannot be opened.").arg(QDir::toNativeSeparators(path)),
                              reading.problemText());
    return reading.isDocument;
}

/** Asks whether to open a document that can only be read in part. */
bool FileCommands::mayShow(const QString &path, const DocumentFile::Reading &reading)
{
    if (reading.problems.isEmpty())
        return true;
    const QString shown = QDir::toNativeSeparators(path);
    const QString details =
        tr("%1\n\nOpen the rest (%2 items)? The file is not changed until you save.")
            .arg(reading.problemText(), QString::number(reading.document.items.size()));
    PlainMessageBox box(QMessageBox::Warning, tr("Only part of “%1” can be read.").arg(shown),
                        details, QMessageBox::Cancel, &m_window);
    const QAbstractButton *show = box.addButton(tr("Open Anyway"), QMessageBox::AcceptRole);
    box.exec();
    return box.clickedButton() == show;
}

bool FileCommands::save()
{
    using Answer = OutsideChange::Answer;
    if (m_session.path().isEmpty())
        return saveAs();
    const FileStamp::Change change = m_session.fileChange();
    const Answer answer = change == FileStamp::Change::None
                              ? Answer::Overwrite
                              : OutsideChange(m_window, m_session, change).askBeforeSaving();
    // Until it is saved, no file holds what the window shows.
    if (change != FileStamp::Change::None && !(answer == Answer::Reload && reload()))
        m_session.markUnsaved();
    return (answer == Answer::Overwrite && saveTo(m_session.path())) ||
           (answer == Answer::SaveElsewhere && saveAs());
}

bool FileCommands::saveAs()
{
    const QString path = SaveDialog(tr("Save As"), documentFilter(), documentSuffix())
                             .ask(m_window, suggestedPath(documentSuffix()));
    return !path.isEmpty() && saveTo(path);
}

void FileCommands::lookForOutsideChange()
{
    const FileStamp::Change change = m_session.newFileChange();
    if (change == FileStamp::Change::None)
        return;
    m_session.edits().check();
    const bool isReloadWanted = OutsideChange(m_window, m_session, change).tellAndOfferReload();
    if (!isReloadWanted || !reload())
        m_session.markUnsaved();
}

bool FileCommands::saveTo(const QString &path)
{
    const QString error = m_session.saveAs(path);
    if (!error.isEmpty()) {
        PlainMessageBox::warn(
            &m_window, tr("“%1” cannot be saved.").arg(QDir::toNativeSeparators(path)), error);
        return false;
    }
    remember(path);
    sayWhatIsNotSaved(path);
    return true;
}

/** Names the items on the page that are not in the file. */
void FileCommands::sayWhatIsNotSaved(const QString &path)
{
    const QStringList classes = m_session.unknownClasses();
    if (classes.isEmpty())
        return;
    PlainMessageBox::warn(
        &m_window, tr("“%1” does not contain all items.").arg(QDir::toNativeSeparators(path)),
        tr("Items of these classes cannot be saved and are only on the page: %1.")
            .arg(classes.join(QStringLiteral(", "))));
}

/** In the folder of the document's file or, if it has none, the user's documents folder. */
QString FileCommands::suggestedPath(const QString &suffix) const
{
    const QString source = m_session.source();
    const QString folder = source.isEmpty()
                               ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                               : QFileInfo(source).path();
    const QString existing = QDir(folder).exists() ? folder : QDir::homePath();
    return QDir(existing).filePath(QFileInfo(m_session.name()).completeBaseName() + u'.' + suffix);
}

void FileCommands::exportPdf()
{
    const QString suffix = QStringLiteral("pdf");
    const QString path = SaveDialog(tr("Export as PDF"), tr("PDF (*.pdf)"), suffix)
                             .ask(m_window, suggestedPath(suffix));
    if (path.isEmpty())
        return;
    ExportOptions options;
    options.document = m_session.source();
    const QString error = Exporter(m_window).write(path, options);
    if (!error.isEmpty())
        PlainMessageBox::warn(&m_window, tr("The PDF cannot be written."), error);
}

bool FileCommands::offerRecovery()
{
    return RecoveryOffer(m_window, m_session).make();
}
