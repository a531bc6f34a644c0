#include "HostDocument.h"

#include "ItemRecords.h"
#include "Records.h"

#include <QFont>
#include <QRegularExpression>

namespace
{
using namespace ItemState;
using Maybe = std::optional<Any>;

/** A block's rectangle is this much wider than its text may be. */
constexpr double besideText = 1.0;

/** The families of the text dialog that have a blank in their name. */
const QStringList &familiesWithBlanks()
{
    static const QStringList families{QStringLiteral("Courier New"),
                                      QStringLiteral("Times New Roman")};
    return families;
}

Font defaultFont()
{
    const QFont font;
    const bool inPixels = font.pointSizeF() <= 0;
    return Font{font.family(),      inPixels ? font.pixelSize() : font.pointSizeF(),
                inPixels,           QFont::Normal,
                QFont::StyleNormal, false};
}

/** The font family at the end of `words`: one that is known to have blanks, or the last word. */
QString familyAtEndOf(const QString &words)
{
    for (const QString &family : familiesWithBlanks()) {
        if (words.endsWith(u' ' + family))
            return family;
    }
    return words.section(u' ', -1);
}

/** Everything between the four numbers in front and the three fields at the end is text. */
Maybe readText(const QString &record)
{
    static const QRegularExpression pattern(
        QStringLiteral("^tonquill_text (-?\\d+) (-?\\d+) -?\\d+ -?\\d+ (.*) (-?\\d+) "
                       "([0-9a-f]{1,8}) (\\S+)$"),
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = pattern.match(record);
    const std::optional<double> angle = ItemRecords::toNumber(match.captured(6));
    if (!match.hasMatch() || !angle)
        return std::nullopt;
    const QString words = match.captured(3);
    Font font = defaultFont();
    font.family = familyAtEndOf(words);
    if (const int size = match.captured(4).toInt(); size > 0) {
        font.size = size;
        font.sizeInPixels = false;
    }
    if (!font.isPossible())
        return std::nullopt;
    return Text{QPointF(match.captured(1).toInt(), match.captured(2).toInt()),
                words.chopped(qMin(words.size(), font.family.size() + 1)), font,
                QColor(QRgb(match.captured(5).toUInt(nullptr, 16))), *angle};
}

Maybe stateOf(const Records::Bitmap &record)
{
    return Glyph{QPointF(record.x, record.y), record.symbolId, record.inverted};
}

Maybe stateOf(const Records::TimeSig &record)
{
    return TimeSignature{QPointF(record.x, record.y), record.numerator, record.denominator};
}

Maybe stateOf(const Records::Vector &record)
{
    return Figure{QPointF(record.x, record.y), record.keyword,
                  QPointF(record.startX, record.startY), QPointF(record.endX, record.endY),
                  std::nullopt};
}

Maybe stateOf(const Records::Text &)
{
    return std::nullopt;
}

Maybe stateOf(const Records::TextBlock &record)
{
    return TextBlock{QPointF(record.x, record.y),
                     QPointF(0, 0),
                     QPointF(record.width, record.height),
                     record.width - besideText,
                     defaultFont(),
                     record.text,
                     false};
}

Maybe stateOf(std::monostate)
{
    return std::nullopt;
}

Maybe stateOfRecord(const QString &record)
{
    return std::visit([](const auto &one) { return stateOf(one); }, Records::parse(record));
}
} // namespace

Maybe HostDocument::readRecord(const QString &record)
{
    return Records::keywordOf(record) == Records::textKeyword() ? readText(record)
                                                                : stateOfRecord(record);
}

bool HostDocument::isBlockBegin(const QString &line)
{
    return Records::keywordOf(line) == Records::textblockKeyword();
}

bool HostDocument::isBlockEnd(const QString &line)
{
    return line == QLatin1String("tonquill_textblock_end");
}

Maybe HostDocument::readBlock(const QString &header, const QStringList &text)
{
    // The line break in front of the end is the record's, not the text's.
    return stateOfRecord(header + u'\n' + text.join(u'\n') +
                         QStringLiteral("tonquill_textblock_end"));
}
