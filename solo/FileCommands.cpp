#include "FileCommands.h"

#include "DocumentSession.h"
#include "Exporter.h"
#include "PlainMessageBox.h"
#include "TonquillMainWin.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
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
    return QStringLiteral(".tonquill");
}

QString withSuffix(const QString &path, const QString &suffix)
{
    return path.isEmpty() || !QFileInfo(path).suffix().isEmpty() ? path : path + suffix;
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

void FileCommands::showError(const QString &text, const QString &details)
{
    PlainMessageBox(QMessageBox::Warning, text, details, QMessageBox::Ok, &m_window).exec();
}

bool FileCommands::mayLeave()
{
    m_session.edits().check();
    if (!m_session.isModified())
        return true;
    PlainMessageBox box(QMessageBox::Question,
                        tr("Save the changes to “%1”?").arg(m_session.name()),
                        tr("Without saving they are lost."),
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
    const QString path = QFileDialog::getOpenFileName(
        &m_window, tr("Open"), folder, tr("Tonquill documents (*.tonquill);;All files (*)"));
    if (!path.isEmpty())
        openFile(path);
}

void FileCommands::openFile(const QString &path)
{
    const DocumentFile::Reading reading = DocumentFile::load(path, m_session.defaultPaper());
    if (!mayShow(path, reading) || !mayLeave())
        return;
    m_session.show(reading.document, QFileInfo(path).absoluteFilePath(),
                   reading.problems.isEmpty());
    remember(m_session.path());
}

void FileCommands::openCopy(const QString &path)
{
    const DocumentFile::Reading reading = DocumentFile::load(path, m_session.defaultPaper());
    if (mayShow(path, reading))
        m_session.showCopy(reading.document, QFileInfo(path).fileName());
}

/** Tells what is wrong with a file. What can be read of it is offered; nothing is left out unsaid.
 */
bool FileCommands::mayShow(const QString &path, const DocumentFile::Reading &reading)
{
    if (reading.problems.isEmpty())
        return true;
    const QString shown = QDir::toNativeSeparators(path);
    if (!reading.isDocument) {
        showError(tr("“%1” cannot be opened.").arg(shown), reading.problemText());
        return false;
    }
    const QString details =
        tr("%1\n\nShow the rest, %2 items? The file stays as it is until "
           "you save.")
            .arg(reading.problemText(), QString::number(reading.document.items.size()));
    PlainMessageBox box(QMessageBox::Warning, tr("“%1” can only be read in part.").arg(shown),
                        details, QMessageBox::Cancel, &m_window);
    const QAbstractButton *show =
        box.addButton(tr("Show What Can Be Read"), QMessageBox::AcceptRole);
    box.exec();
    return box.clickedButton() == show;
}

bool FileCommands::save()
{
    return m_session.path().isEmpty() ? saveAs() : saveTo(m_session.path());
}

bool FileCommands::saveAs()
{
    const QString path =
        QFileDialog::getSaveFileName(&m_window, tr("Save As"), suggestedPath(documentSuffix()),
                                     tr("Tonquill documents (*.tonquill);;All files (*)"));
    return !path.isEmpty() && saveTo(withSuffix(path, documentSuffix()));
}

bool FileCommands::saveTo(const QString &path)
{
    const QString error = m_session.saveAs(path);
    if (!error.isEmpty()) {
        showError(tr("“%1” could not be saved.").arg(QDir::toNativeSeparators(path)),
                  tr("%1\nThe file is as it was before.").arg(error));
        return false;
    }
    remember(path);
    return true;
}

/** Beside the document's file; a document without one belongs with the user's documents. */
QString FileCommands::suggestedPath(const QString &suffix) const
{
    const QString path = m_session.path();
    const QString folder = path.isEmpty()
                               ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                               : QFileInfo(path).path();
    const QString existing = QDir(folder).exists() ? folder : QDir::homePath();
    return QDir(existing).filePath(QFileInfo(m_session.name()).completeBaseName() + suffix);
}

void FileCommands::exportPdf()
{
    const QString path = QFileDialog::getSaveFileName(
        &m_window, tr("Export as PDF"), suggestedPath(QStringLiteral(".pdf")), tr("PDF (*.pdf)"));
    if (path.isEmpty())
        return;
    const QString error =
        Exporter(m_window).write(withSuffix(path, QStringLiteral(".pdf")), ExportOptions());
    if (!error.isEmpty())
        showError(tr("The PDF could not be written."), error);
}

void FileCommands::offerRecovery()
{
    const auto found = m_session.journal().find(m_session.defaultPaper());
    if (!found)
        return;
    const QString name = found->path.isEmpty() ? tr("a document without a name")
                                               : QDir::toNativeSeparators(found->path);
    const QString details = tr("%1, %2.\nThe file itself stays as it is until you save.")
                                .arg(name, QLocale().toString(found->time, QLocale::ShortFormat));
    PlainMessageBox box(QMessageBox::Question,
                        tr("Tonquill ended unexpectedly. Recover the unsaved changes?"), details,
                        QMessageBox::NoButton, &m_window);
    QPushButton *recover = box.addButton(tr("Recover"), QMessageBox::AcceptRole);
    box.addButton(tr("Discard"), QMessageBox::DestructiveRole);
    box.setDefaultButton(recover);
    box.setEscapeButton(recover);
    box.exec();
    if (box.clickedButton() == recover)
        m_session.showRecovered(*found);
    else
        m_session.journal().discard();
}
