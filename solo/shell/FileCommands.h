#pragma once

#include "DocumentFile.h"

#include <QObject>
#include <QStringList>

class DocumentSession;
class TonquillMainWin;

/** The File menu's commands, with their questions to the user. */
class FileCommands : public QObject
{
    Q_OBJECT

public:
    FileCommands(TonquillMainWin &window, DocumentSession &session);

    /** Files that were opened or saved, the latest first. */
    static QStringList recentFiles();

    /** Offers what a former run left behind, if anything; true if it is shown now. */
    bool offerRecovery();

    /** Opens a copy of a file, to try things out on. */
    void openCopy(const QString &path);

    /** Asks what to do with unsaved changes; false if the user rather goes on. */
    bool mayLeave();

    /** Tells if another program has changed the document's file, once for each change. */
    void lookForOutsideChange();

public Q_SLOTS:
    void makeNew();
    void open();
    /** Opens this file, after asking about unsaved changes. */
    void openFile(const QString &path);
    /** Saves the document; false if the user gave up. */
    bool save();
    bool saveAs();
    void exportPdf();

private:
    bool saveTo(const QString &path);
    bool reload();
    bool showFile(const QString &path, const DocumentFile::Reading &reading);
    bool isDocument(const QString &path, const DocumentFile::Reading &reading);
    bool mayShow(const QString &path, const DocumentFile::Reading &reading);
    QString suggestedPath(const QString &suffix) const;
    void remember(const QString &path);

    TonquillMainWin &m_window;
    DocumentSession &m_session;
};
