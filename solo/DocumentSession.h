#pragma once

#include "EditWatcher.h"
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

    /** The file's name, or what an unnamed document is called. */
    QString name() const;

    /** True if something would be lost without saving. */
    bool isModified() const;

    /** The paper of documents that bring none. */
    const Paper &defaultPaper() const { return m_empty.paper; }

    /** An empty document without a file. */
    void makeNew();

    /** Shows what was read from `path`. With problems it differs from the file. */
    void show(const DocumentSnapshot &document, const QString &path, bool isWhole);

    /** Shows a copy of a document, which has no file yet and is called `name`. */
    void showCopy(const DocumentSnapshot &document, const QString &name);

    /** Shows what a former run left behind; it counts as unsaved. */
    void showRecovered(const RecoveryJournal::Found &found);

    /** Saves to `path`, which becomes the document's file. The answer is empty, or an error. */
    QString saveAs(const QString &path);

    /** Ends the session: nothing is kept for recovery. */
    void close();

Q_SIGNALS:
    /** The file, its name or whether it is modified may be another. */
    void changed();

private:
    void begin(const DocumentSnapshot &document);
    void scheduleJournal();
    void writeJournal();

    TonquillMainWin &m_window;
    EditWatcher m_edits;
    RecoveryJournal m_journal;
    QTimer m_journalDue;
    QString m_path;
    QString m_suggestedName;
    DocumentSnapshot m_empty; ///< the document of a new window
    DocumentSnapshot m_saved; ///< what the file holds
    DocumentSnapshot m_journalled;
    bool m_differsFromFile = false; ///< whatever is edited: it was recovered, or read in part
    bool m_closed = false;
};
