#pragma once

#include "DocumentSnapshot.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <optional>

/**
 * Stores the unsaved document on disk, for the next start after a crash. Each write replaces the
 * journal atomically, so a crash while writing leaves the previous one.
 *
 * The journal of a previous run is neither overwritten nor removed until takeOver() is called.
 */
class RecoveryJournal
{
    Q_DECLARE_TR_FUNCTIONS(RecoveryJournal)

public:
    /** The contents of the journal of a run that ended unexpectedly. */
    struct Found
    {
        QString path; ///< the edited file; empty if none
        QDateTime time;
        DocumentSnapshot document;
        QByteArray contents; ///< the last known hash of that file; empty if none
        QString problems;    ///< what could not be read; empty if nothing
    };

    /** Stores the journal in `folder`, which is created when first needed. */
    explicit RecoveryJournal(const QString &folder);

    /**
     * Creates the folder with access for this user only. Returns an empty string on success, else
     * the error.
     */
    QString prepare() const;

    /**
     * Writes the document, which is edited as the file `path` whose contents have this hash.
     * Returns false on failure, see error(), and while isUndecided().
     */
    bool write(const DocumentSnapshot &document, const QString &path,
               const QByteArray &contents = QByteArray());

    /** The error of the last write; empty on success. */
    QString error() const { return m_error; }

    /**
     * The journal of a previous run; nullopt if there is none that can be read at least in part.
     */
    std::optional<Found> find(const Paper &defaultPaper) const;

    /** True while the user has not decided about the journal of a previous run. */
    bool isUndecided() const { return m_isUndecided; }

    /** To be called after that decision: from now on the journal belongs to this run. */
    void takeOver() { m_isUndecided = false; }

    /** Copies the journal to another name in its folder; returns the path, empty on failure. */
    QString keepCopy() const;

    /** The path of the journal. */
    QString file() const { return m_file; }

    /** Removes the journal, because there are no unsaved changes. */
    void discard();

private:
    QString m_file;
    QString m_error;
    bool m_isUndecided = false;
};
