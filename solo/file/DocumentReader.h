#pragma once

#include "DocumentBounds.h"
#include "DocumentFile.h"
#include "ItemState.h"

#include <QStringList>

/** Reads a document's text line by line, remembering what is wrong with it. */
class DocumentReader
{
    Q_DECLARE_TR_FUNCTIONS(DocumentReader)

public:
    explicit DocumentReader(const Paper &defaultPaper) { m_reading.document.paper = defaultPaper; }

    DocumentFile::Reading read(const QByteArray &bytes);

private:
    void splitLines(const QByteArray &bytes);
    bool readFirstLine();
    void readOwnLines();
    void readOwnItem(const QString &line);
    void readHostLines();
    void readHostBlock();
    bool readPageCount(const QString &line);
    bool readPaper(const QString &line);
    void addItem(const std::optional<ItemState::Any> &state, int line);
    void addProblem(int line, const QString &text);

    QStringList m_lines;
    qsizetype m_at = 0; ///< the line being read, from 0
    DocumentBounds m_bounds;
    DocumentFile::Reading m_reading;
};
