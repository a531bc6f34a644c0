#include "HostRecordReader.h"

#include "ItemKinds.h"
#include "LineFields.h"
#include "Records.h"
#include "TextState.h"

#include <QRegularExpression>

namespace
{
using Maybe = std::optional<ItemState>;

/** The families of the text dialog that have a space in their name. */
const QStringList &familiesWithBlanks()
{
    static const QStringList families{QStringLiteral("Courier New"),
                                      QStringLiteral("Times New Roman")};
    return families;
}

/** The font family at the end of `words`: a known one with spaces, or the last word. */
QString familyAtEndOf(const QString &words)
{
    for (const QString &family : familiesWithBlanks()) {
        if (words.endsWith(u' ' + family))
            return family;
    }
    return words.section(u' ', -1);
}

/** Everything between the four numbers at the beginning and the three fields at the end is text. */
Maybe readText(const QString &record)
{
    static const QRegularExpression pattern(
        u'^' + Records::textKeyword() +
            QStringLiteral(" (-?\\d+) (-?\\d+) -?\\d+ -?\\d+ (.*) (-?\\d+) "
                           "([0-9a-f]{1,8}) (\\S+)$"),
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = pattern.match(record);
    const std::optional<double> angle = LineFields::toNumber(match.captured(6));
    if (!match.hasMatch() || !angle)
        return std::nullopt;
    const QString words = match.captured(3);
    FontState font = FontState::plain();
    font.family = familyAtEndOf(words);
    if (const int size = match.captured(4).toInt(); size > 0) {
        font.size = size;
        font.sizeInPixels = false;
    }
    if (!font.isPossible())
        return std::nullopt;
    return TextState{QPointF(match.captured(1).toInt(), match.captured(2).toInt()),
                     words.chopped(qMin(words.size(), font.family.size() + 1)), font,
                     QColor(QRgb(match.captured(5).toUInt(nullptr, 16))), *angle};
}
} // namespace

Maybe HostRecordReader::read(const QString &record)
{
    const QStringView keyword = Records::keywordOf(record);
    if (keyword == Records::textKeyword())
        return readText(record);
    const ItemKind *kind = ItemKinds::catalogue().ofRecord(keyword);
    const bool isOfHost = kind && kind->isHostKind && kind->stateOfRecord;
    return isOfHost ? kind->stateOfRecord(Records::fieldsOf(record)) : std::nullopt;
}

Maybe HostRecordReader::readBlock(const QString &header, const QStringList &text)
{
    // The line break before the end mark belongs to the record, not to the text.
    return read(header + u'\n' + text.join(u'\n') + Records::textblockEnd());
}
