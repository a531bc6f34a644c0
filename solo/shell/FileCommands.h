#pragma once

#include "DocumentFile.h"

#include <QObject>
#include <QStringList>

class DocumentSession;
class TonquillMainWin;

/** The commands of the File menu, including their dialogs. */
class FileCommands : public QObject
{
    Q_OBJECT

public:
    FileCommands(TonquillMainWin &window, DocumentSession &session);

    /** Files that were opened or saved, the most recent first. */
    static QStringList recentFiles();

    /** Offers to recover unsaved changes of a previous run, if any; true if they are shown now. */
    bool offerRecovery();

    /** Opens a file as an untitled copy. */
    void openCopy(const QString &path);

    /** Asks what to do with unsaved changes; returns false if the user cancels. */
    bool mayLeave();

    /** Reports changes of the document's file by other programs, each of them once. */
    void lookForOutsideChange();

public Q_SLOTS:
    void makeNew();
    void open();
    /** Opens `path`, after asking about unsaved changes. */
    void openFile(const QString &path);
    /** Saves the document; returns false if it failed or the user cancelled. */
    bool save();
    bool saveAs();
    void exportPdf();

private:
    bool saveTo(const QString &path);
    void sayWhatIsNotSaved(const QString &path);
    bool reload();
    bool showFile(const QString &path, const DocumentFile::Reading &reading);
    bool isDocument(const QString &path, const DocumentFile::Reading &reading);
    bool mayShow(const QString &path, const DocumentFile::Reading &reading);
    QString suggestedPath(const QString &suffix) const;
    void remember(const QString &path);

    TonquillMainWin &m_window;
    DocumentSession &m_session;
};
