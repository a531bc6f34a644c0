#pragma once

#include "DocumentSnapshot.h"

#include <QDateTime>
#include <QString>

#include <optional>

/**
 * The unsaved document on disk, for the next start after a crash. Each write replaces the journal
 * at once or not at all, so a crash in the middle leaves the one before.
 */
class RecoveryJournal
{
public:
    /** What a program that ended unexpectedly left behind. */
    struct Found
    {
        QString path; ///< the file that was being edited, or empty
        QDateTime time;
        DocumentSnapshot document;
    };

    /** Keeps the journal in `folder`, which is made when first needed. */
    explicit RecoveryJournal(const QString &folder);

    /** Writes the document that is edited as the file `path`; false if that failed. */
    bool write(const DocumentSnapshot &document, const QString &path);

    /** The journal of a former run, if there is one. */
    std::optional<Found> find(const Paper &defaultPaper) const;

    /** Removes the journal: nothing is unsaved. */
    void discard();

private:
    QString m_file;
};
