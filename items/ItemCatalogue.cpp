#include "ItemCatalogue.h"

#include <algorithm>

namespace
{
template <typename Matches>
const ItemKind *firstOf(const std::list<ItemKind> &kinds, const Matches &matches)
{
    const auto found = std::find_if(kinds.cbegin(), kinds.cend(), matches);
    return found == kinds.cend() ? nullptr : &*found;
}

QStringList unknownFields(const QuotedFields &fields, const ItemKind &kind)
{
    QStringList result = fields.plain().mid(kind.plainFields);
    for (const QString &name : fields.names()) {
        if (!kind.fieldNames.contains(name))
            result.append(name);
    }
    return result;
}
} // namespace

void ItemCatalogue::add(const ItemKind &kind)
{
    m_kinds.push_back(kind);
}

const ItemKind *ItemCatalogue::ofRecord(QStringView keyword) const
{
    return firstOf(m_kinds, [keyword](const ItemKind &kind) { return kind.keyword == keyword; });
}

const ItemKind *ItemCatalogue::ofLine(QStringView keyword) const
{
    return firstOf(m_kinds,
                   [keyword](const ItemKind &kind) { return kind.lineKeyword == keyword; });
}

const ItemKind *ItemCatalogue::ofLine(QByteArrayView keyword) const
{
    const QLatin1String word(keyword);
    return firstOf(m_kinds, [word](const ItemKind &kind) { return kind.lineKeyword == word; });
}

const ItemKind *ItemCatalogue::ofItem(const QGraphicsItem &item) const
{
    // Compare the type number first: this runs for every item, and the number decides for nearly
    // all.
    const int type = item.type();
    return firstOf(m_kinds, [&item, type](const ItemKind &kind) {
        return kind.type == type && kind.isOfClass(item);
    });
}

std::optional<ItemState> ItemCatalogue::readLine(const QString &line, QStringList *unknown) const
{
    const std::optional<QuotedFields> fields = QuotedFields::parse(line);
    if (!fields)
        return std::nullopt;
    LineReader reader(*fields);
    const ItemKind *kind = ofLine(reader.keyword());
    if (!kind)
        return std::nullopt;
    const ItemState state = kind->readLine(reader);
    if (!reader.isValid())
        return std::nullopt;
    if (unknown)
        *unknown += unknownFields(*fields, *kind);
    return state;
}
