#pragma once

#include "DocumentSnapshot.h"
#include "FileStamp.h"

#include <QList>
#include <QString>

/** What came of reading a document. */
struct DocumentReading
{
    /** What is wrong with a line, counted from 1; 0 if no line is meant. */
    struct Problem
    {
        int line = 0;
        QString text;
    };

    DocumentSnapshot document; ///< all that could be read
    QList<Problem> problems;   ///< empty if that is everything
    bool isDocument = false;   ///< false: this is no document, there is nothing to offer
    bool isOfHost = false;     ///< a plain document of the host link
    FileStamp stamp;           ///< the file, if it was one

    /** The problems as one text, a line each; many are summed up. */
    QString problemText() const;
};
