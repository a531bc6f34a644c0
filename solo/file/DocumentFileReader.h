#pragma once

#include "DocumentBounds.h"
#include "DocumentReading.h"
#include "ItemState.h"

#include <QCoreApplication>
#include <QStringList>

/** Reads a document's text line by line and collects its problems. */
class DocumentFileReader
{
    Q_DECLARE_TR_FUNCTIONS(DocumentFileReader)

public:
    explicit DocumentFileReader(const Paper &defaultPaper)
    {
        m_reading.document.paper = defaultPaper;
    }

    DocumentReading read(const QByteArray &bytes);

private:
    void splitLines(const QByteArray &bytes);
    bool readFirstLine();
    void readOwnLines();
    void readOwnItem(const QString &line);
    void readHostLines();
    void readHostBlock();
    bool readPageCount(const QString &line);
    bool readPaper(const QString &line);
    void addItem(const std::optional<ItemState> &state, int line);
    void addProblem(int line, const QString &text);

    QStringList m_lines;
    qsizetype m_at = 0; ///< the line being read, from 0
    DocumentBounds m_bounds;
    DocumentReading m_reading;
};
