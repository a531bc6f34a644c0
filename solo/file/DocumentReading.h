#pragma once

#include "DocumentSnapshot.h"
#include "FileStamp.h"

#include <QList>
#include <QString>

/** The result of reading a document. */
struct DocumentReading
{
    /** A problem with a line, counted from 1; 0 if it is not about a line. */
    struct Problem
    {
        int line = 0;
        QString text;
    };

    DocumentSnapshot document; ///< everything that could be read
    QList<Problem> problems;   ///< empty if that is the whole file
    bool isDocument = false;   ///< false if it is not a document at all
    bool isOfHost = false;     ///< a plain document of the host link
    FileStamp stamp;           ///< the state of the file, if read from one

    /** The problems as one text, a line each; only the first of many are listed. */
    QString problemText() const;
};
