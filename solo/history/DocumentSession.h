#pragma once

#include "EditWatcher.h"
#include "FileStamp.h"
#include "RecoveryJournal.h"

#include <QObject>
#include <QTimer>

class TonquillMainWin;

/**
 * The open document: its file, whether it differs from the file, and its recovery journal. Shows no
 * dialogs.
 */
class DocumentSession : public QObject
{
    Q_OBJECT

public:
    /** Works on `window`, which outlives the session; the journal is stored in `folder`. */
    DocumentSession(TonquillMainWin &window, const QString &folder);

    EditWatcher &edits() { return m_edits; }
    RecoveryJournal &journal() { return m_journal; }

    /** The document's file; empty if it has none yet. */
    QString path() const { return m_path; }

    /**
     * The file from which the document was read, even if it is not path(); empty if there is none.
     */
    QString source() const;

    /** True if the document was read from this file, even under another name. */
    bool comesFrom(const QString &path) const;

    /** How other programs have changed the file since it was read or saved. */
    FileStamp::Change fileChange();

    /** The same, but reports each change only once. */
    FileStamp::Change newFileChange();

    /** The file's name, or the name of an unnamed document. */
    QString name() const;

    /** True if there are unsaved changes. */
    bool isModified() const;

    /** The classes of items in the document that cannot be saved, see UnknownItems. */
    QStringList unknownClasses() const;

    /** The paper of documents without their own. */
    const Paper &defaultPaper() const { return m_empty.paper; }

    /** Starts an empty document without a file. */
    void makeNew();

    /** Shows a document that was read completely from the file `path`; `file` is its state then. */
    void show(const DocumentSnapshot &document, const QString &path, const FileStamp &file);

    /**
     * Shows a document without a file, so saving asks for a name. `origin` is the suggested name,
     * or the path from which it was read.
     */
    void showUnnamed(const DocumentSnapshot &document, const QString &origin, bool isModified);

    /** Shows the document of a previous run's journal; it counts as unsaved. */
    void showRecovered(const RecoveryJournal::Found &found);

    /** Marks the document as modified, even if later edits restore the saved state. */
    void markUnsaved();

    /**
     * Saves to `path`, which becomes the document's file. Returns an empty string on success, else
     * the error.
     */
    QString saveAs(const QString &path);

    /** Checks whether the journal can be written; if not, emits journalFailed(). */
    void tryJournal();

    /** Ends the session and removes the journal. */
    void close();

Q_SIGNALS:
    /** The file, its name or the modified state may have changed. */
    void changed();

    /** The journal cannot be written. Emitted once until it can be written again. */
    void journalFailed(QString reason);

private:
    void begin(const DocumentSnapshot &document, bool differsFromFile);
    void tellOfJournal(const QString &error);
    void scheduleJournal();
    void writeJournal();

    TonquillMainWin &m_window;
    EditWatcher m_edits;
    RecoveryJournal m_journal;
    QTimer m_journalDue;
    QString m_path;
    QString m_origin;         ///< of an unnamed document: the path from which it was read, or a
                              ///< name
    FileStamp m_file;         ///< when it was read or saved
    FileStamp m_seenFile;     ///< when it was last checked
    DocumentSnapshot m_empty; ///< the document of a new window
    DocumentSnapshot m_saved; ///< what the file holds
    DocumentSnapshot m_journalled;
    bool m_differsFromFile = false; ///< always modified: recovered or read in part
    bool m_isJournalTroubleTold = false;
    bool m_closed = false;
};
