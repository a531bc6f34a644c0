#pragma once

#include "ItemKind.h"

#include <list>

/** The kinds of items that a document may have, a row for each. */
class ItemCatalogue
{
public:
    /** Adds a kind, whose keywords and class no other one has. */
    void add(const ItemKind &kind);

    /** All rows, in the order in which they were added. They stay where they are. */
    const std::list<ItemKind> &kinds() const { return m_kinds; }

    // The row of a kind; null if there is none.

    const ItemKind *ofRecord(QStringView keyword) const;
    const ItemKind *ofLine(QStringView keyword) const;
    const ItemKind *ofLine(QByteArrayView keyword) const;
    const ItemKind *ofItem(const QGraphicsItem &item) const;

    /**
     * Reads a line of a file; nothing if its keyword is unknown or a field is missing or
     * malformed. Fields that are not known, and so not part of the item, are added to `unknown`: a
     * name, or the value of one without a name.
     */
    std::optional<ItemState> readLine(const QString &line, QStringList *unknown = nullptr) const;

private:
    std::list<ItemKind> m_kinds;
};
