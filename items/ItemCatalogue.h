#pragma once

#include "ItemKind.h"

#include <list>

/** The kinds of items that a document may contain, one row each. */
class ItemCatalogue
{
public:
    /** Adds a kind; its keywords and class must not be in use by another kind. */
    void add(const ItemKind &kind);

    /** All rows in the order of their addition. Their addresses are stable. */
    const std::list<ItemKind> &kinds() const { return m_kinds; }

    // The row of a kind, owned by the catalogue; null if there is none.

    const ItemKind *ofRecord(QStringView keyword) const;
    const ItemKind *ofLine(QStringView keyword) const;
    const ItemKind *ofLine(QByteArrayView keyword) const;
    const ItemKind *ofItem(const QGraphicsItem &item) const;

    /**
     * Reads a line of a file; nullopt if its keyword is unknown or a field is missing or malformed.
     * Unknown fields are ignored and added to `unknown`: the name, or the value of an unnamed one.
     */
    std::optional<ItemState> readLine(const QString &line, QStringList *unknown = nullptr) const;

private:
    std::list<ItemKind> m_kinds;
};
