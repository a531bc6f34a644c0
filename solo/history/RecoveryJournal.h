#pragma once

#include "DocumentSnapshot.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <optional>

/**
 * The unsaved document on disk, for the next start after a crash. Each write replaces the journal
 * atomically, so a crash in the middle leaves the one before.
 *
 * What a former run left behind is neither written over nor removed before it was decided what
 * becomes of it.
 */
class RecoveryJournal
{
    Q_DECLARE_TR_FUNCTIONS(RecoveryJournal)

public:
    /** What a program that ended unexpectedly left behind. */
    struct Found
    {
        QString path; ///< the file that was being edited, or empty
        QDateTime time;
        DocumentSnapshot document;
        QByteArray contents; ///< the hash of that file as it was known, or empty
        QString problems;    ///< what could not be read, as a text; empty if that is nothing
    };

    /** Keeps the journal in `folder`, which is made when first needed. */
    explicit RecoveryJournal(const QString &folder);

    /** Makes the folder, for this user only. The answer is empty, or says why nothing can be kept.
     */
    QString prepare() const;

    /**
     * Writes the document that is edited as the file `path`, whose contents have this hash. False
     * if that failed, and while a former run's journal is undecided.
     */
    bool write(const DocumentSnapshot &document, const QString &path,
               const QByteArray &contents = QByteArray());

    /** Why the last write failed; empty if it did not. */
    QString error() const { return m_error; }

    /** The journal of a former run, if there is one that can be read, at least in part. */
    std::optional<Found> find(const Paper &defaultPaper) const;

    /** True while it is not decided what becomes of a former run's journal. */
    bool isUndecided() const { return m_isUndecided; }

    /** To be called once that is decided: the journal is this run's from now on. */
    void takeOver() { m_isUndecided = false; }

    /** Copies the journal to another name in its folder; the answer is empty if that failed. */
    QString keepCopy() const;

    /** The journal's file. */
    QString file() const { return m_file; }

    /** Removes the journal: nothing is unsaved. */
    void discard();

private:
    QString m_file;
    QString m_error;
    bool m_isUndecided = false;
};
