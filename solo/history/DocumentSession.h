#pragma once

#include "EditWatcher.h"
#include "FileStamp.h"
#include "RecoveryJournal.h"

#include <QObject>
#include <QTimer>

class TonquillMainWin;

/**
 * The document that is open: which file it is, whether it differs from that file, and its journal
 * for the case of a crash. Asks the user nothing.
 */
class DocumentSession : public QObject
{
    Q_OBJECT

public:
    /** Works on `window`, which outlives the session; the journal lies in `folder`. */
    DocumentSession(TonquillMainWin &window, const QString &folder);

    EditWatcher &edits() { return m_edits; }
    RecoveryJournal &journal() { return m_journal; }

    /** The file, or empty for a document that has none yet. */
    QString path() const { return m_path; }

    /** The file that the document was read from, its own or not; empty if there is none. */
    QString source() const;

    /** True if what is shown comes from this file, by whatever name it goes. */
    bool comesFrom(const QString &path) const;

    /** What other programs have made of the file since it was read or saved. */
    FileStamp::Change fileChange();

    /** The same, but only if nobody has asked since it happened. */
    FileStamp::Change newFileChange();

    /** The file's name, or what an unnamed document is called. */
    QString name() const;

    /** True if something would be lost without saving. */
    bool isModified() const;

    /** The classes of items in the document that no file can hold, for nobody knows how. */
    QStringList unknownClasses() const;

    /** The paper of documents that bring none. */
    const Paper &defaultPaper() const { return m_empty.paper; }

    /** An empty document without a file. */
    void makeNew();

    /** Shows all that was read from the file `path`, which is this one. */
    void show(const DocumentSnapshot &document, const QString &path, const FileStamp &file);

    /**
     * Shows a document that has no file yet, so that none is replaced by it unasked. `origin` is
     * the name that is suggested for it, or the path of what it was read from.
     */
    void showUnnamed(const DocumentSnapshot &document, const QString &origin, bool isModified);

    /** Shows what a former run left behind; it counts as unsaved. */
    void showRecovered(const RecoveryJournal::Found &found);

    /** The file is no longer what the window shows, whatever is edited. */
    void markUnsaved();

    /** Saves to `path`, which becomes the document's file. The answer is empty, or an error. */
    QString saveAs(const QString &path);

    /** Finds out whether unsaved changes can be kept; if not, journalFailed() is emitted. */
    void tryJournal();

    /** Ends the session: nothing is kept for recovery. */
    void close();

Q_SIGNALS:
    /** The file, its name or whether it is modified may be another. */
    void changed();

    /** Unsaved changes cannot be kept for recovery. Told once until they can be kept again. */
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
    QString m_origin;         ///< of an unnamed document: what it was read from, or a mere name
    FileStamp m_file;         ///< as it was read or saved
    FileStamp m_seenFile;     ///< as it was when it was last looked at
    DocumentSnapshot m_empty; ///< the document of a new window
    DocumentSnapshot m_saved; ///< what the file holds
    DocumentSnapshot m_journalled;
    bool m_differsFromFile = false; ///< whatever is edited: it was recovered, or read in part
    bool m_isJournalTroubleTold = false;
    bool m_closed = false;
};
