#pragma once

#include "ItemState.h"

#include <QCoreApplication>

class TextExtent;

/** Counts the contents of a document, item by item, against the limits of a document. */
class DocumentBounds
{
    Q_DECLARE_TR_FUNCTIONS(DocumentBounds)

public:
    /** The error for more items than a document may have. */
    static QString tooManyItems();

    /**
     * Adds an item. Returns an empty string on success, else why the document cannot contain it.
     */
    QString problemOf(const ItemState &item);

private:
    static QString nestedTooDeeply();
    static QString tablesTooLarge();
    QString problemOfText(const TextContent &text);
    QString problemOfExtent(const TextExtent &extent);
    QString problemOfTables(const TextExtent &extent);
    QString problemOfHtml(const QString &html);

    qsizetype m_items = 0;
    double m_cells = 0;
    double m_textLines = 0;
    double m_wordSquares = 0;
    qint64 m_pixels = 0;
};
