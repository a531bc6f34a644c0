#pragma once

#include "ItemState.h"

#include <QCoreApplication>

class TextExtent;

/** Counts what a document holds, item by item, and tells when that is more than it may hold. */
class DocumentBounds
{
    Q_DECLARE_TR_FUNCTIONS(DocumentBounds)

public:
    /** What is said of more items than a document may have. */
    static QString tooManyItems();

    /** Why the document cannot have this item too; empty if it can, and then it counts. */
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
