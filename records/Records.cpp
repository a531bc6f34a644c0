#include "Records.h"

#include "PlainNumber.h"

#include <QList>
#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <charconv>

namespace
{
// The number of fields after the keyword; for a text block, before its first line end.
constexpr int bitmapFields = 4;
constexpr int timesigFields = 4;
constexpr int vectorFields = 6;
constexpr int textFields = 9;
constexpr int textblockFields = 4;
constexpr int pageCountFields = 1;
constexpr int mostFields = textFields;

/**
 * The first index of `character` in `text`, or its size; faster than indexOf() for short fields.
 */
qsizetype positionOf(char16_t character, QStringView text)
{
    return std::find(text.utf16(), text.utf16() + text.size(), character) - text.utf16();
}

/** The first fields of a record, without its keyword. */
class Fields
{
public:
    /** Splits `text` at every space; two spaces in a row have an empty field between them. */
    explicit Fields(QStringView text)
    {
        while (m_fields.size() < mostFields) {
            const qsizetype blank = positionOf(u' ', text);
            m_fields.append(text.first(blank));
            if (blank == text.size())
                break;
            text = text.sliced(blank + 1);
        }
    }

    qsizetype count() const { return m_fields.size(); }
    int number(qsizetype index) const { return toInt(m_fields[index]); }
    uint hexNumber(qsizetype index) const
    {
        return static_cast<uint>(m_fields[index].toInt(nullptr, 16));
    }
    QString text(qsizetype index) const { return m_fields[index].toString(); }

private:
    static int toInt(QStringView text)
    {
        const std::optional<int> plain = plainNumber(text);
        return plain ? *plain : text.toInt();
    }

    QVarLengthArray<QStringView, mostFields> m_fields;
};

using Records::Record;

/** The parsed record, or an empty one. */
template <typename Parsed>
Record recordOf(const std::optional<Parsed> &parsed)
{
    return parsed ? Record(*parsed) : Record();
}

Record figureOf(const QString &keyword, QStringView fields)
{
    return recordOf(Records::parseVector(keyword, fields));
}

template <auto parse>
Record plainRecordOf(const QString &, QStringView fields)
{
    return recordOf(parse(fields));
}

/** How the records of one kind are read. */
struct Reader
{
    Records::Kind kind;
    Record (*parse)(const QString &keyword, QStringView fields);
};

const QList<Reader> &readers()
{
    static const QList<Reader> table{
        {{Records::bitmapKeyword(), bitmapFields}, plainRecordOf<Records::parseBitmap>},
        {{Records::timesigKeyword(), timesigFields}, plainRecordOf<Records::parseTimeSig>},
        {{Records::grandstaffKeyword(), vectorFields}, figureOf},
        {{Records::interactivelineKeyword(), vectorFields}, figureOf},
        {{Records::linetabKeyword(), vectorFields}, figureOf},
        {{Records::notetieKeyword(), vectorFields}, figureOf},
        {{Records::tripletKeyword(), vectorFields}, figureOf},
        {{Records::textKeyword(), textFields}, plainRecordOf<Records::parseText>},
        {{Records::textblockKeyword(), textblockFields}, plainRecordOf<Records::parseTextBlock>},
    };
    return table;
}

/**
 * Joins fields with one space between them. User text is not changed: a chain of QString::arg would
 * replace a "%2" in it.
 */
class RecordLine
{
public:
    explicit RecordLine(const QString &keyword) { append(keyword); }

    RecordLine &operator<<(int number)
    {
        std::array<char, 12> digits;
        const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
        m_line.append(u' ');
        std::for_each(digits.begin(), end,
                      [this](char digit) { m_line.append(QLatin1Char(digit)); });
        return *this;
    }

    RecordLine &operator<<(const QString &text)
    {
        m_line.append(u' ');
        append(text);
        return *this;
    }

    QString ended()
    {
        m_line.append(u'\n');
        return QString(m_line.constData(), m_line.size());
    }

private:
    void append(const QString &text) { m_line.append(text.constData(), text.size()); }

    /** Grows in place: a QString would check for sharing with every character. */
    QVarLengthArray<QChar, 64> m_line;
};
} // namespace

QString Records::bitmapKeyword()
{
    return QStringLiteral("tonquill_bitmap");
}

QString Records::timesigKeyword()
{
    return QStringLiteral("tonquill_timesig");
}

QString Records::grandstaffKeyword()
{
    return QStringLiteral("tonquill_grandstaff");
}

QString Records::interactivelineKeyword()
{
    return QStringLiteral("tonquill_interactiveline");
}

QString Records::linetabKeyword()
{
    return QStringLiteral("tonquill_linetab");
}

QString Records::notetieKeyword()
{
    return QStringLiteral("tonquill_notetie");
}

QString Records::tripletKeyword()
{
    return QStringLiteral("tonquill_triplet");
}

QString Records::textKeyword()
{
    return QStringLiteral("tonquill_text");
}

QString Records::textblockKeyword()
{
    return QStringLiteral("tonquill_textblock_begin");
}

QString Records::pageCountKeyword()
{
    return QStringLiteral("tonquill_pagecount");
}

QString Records::textblockEnd()
{
    return QStringLiteral("tonquill_textblock_end");
}

const QList<Records::Kind> &Records::kinds()
{
    static const QList<Kind> table = [] {
        QList<Kind> result{{pageCountKeyword(), pageCountFields}};
        for (const Reader &reader : readers())
            result.append(reader.kind);
        return result;
    }();
    return table;
}

bool Records::isBlockBegin(QStringView line)
{
    return keywordOf(line) == textblockKeyword();
}

bool Records::isBlockEnd(QStringView line)
{
    return line == textblockEnd();
}

QStringView Records::keywordOf(QStringView record)
{
    const qsizetype blank = positionOf(u' ', record);
    return blank < record.size() ? record.first(blank) : QStringView();
}

QStringView Records::takeFirst(QStringView &records)
{
    const qsizetype separator = positionOf(u'|', records);
    const QStringView first = records.first(separator);
    records = records.sliced(qMin(separator + 1, records.size()));
    return first;
}

std::optional<Records::Bitmap> Records::parseBitmap(QStringView text)
{
    const Fields fields(text);
    if (fields.count() < bitmapFields)
        return std::nullopt;
    return Bitmap{fields.number(0), fields.number(1), fields.number(2), fields.number(3) != 0};
}

std::optional<Records::TimeSig> Records::parseTimeSig(QStringView text)
{
    const Fields fields(text);
    if (fields.count() < timesigFields)
        return std::nullopt;
    return TimeSig{fields.number(0), fields.number(1), fields.number(2), fields.number(3)};
}

std::optional<Records::Vector> Records::parseVector(const QString &keyword, QStringView text)
{
    const Fields fields(text);
    if (fields.count() < vectorFields)
        return std::nullopt;
    return Vector{keyword,          fields.number(0), fields.number(1), fields.number(2),
                  fields.number(3), fields.number(4), fields.number(5)};
}

std::optional<Records::Text> Records::parseText(QStringView text)
{
    const Fields fields(text);
    if (fields.count() < textFields)
        return std::nullopt;
    // The colour is written with alpha as eight hexadecimal digits, which overflow an int and read
    // as 0. The angle is read as a whole number. Both are intentional.
    return Text{fields.number(0), fields.number(1),    fields.number(2),
                fields.number(3), fields.text(4),      fields.text(5),
                fields.number(6), fields.hexNumber(7), double(fields.number(8))};
}

std::optional<Records::TextBlock> Records::parseTextBlock(QStringView text)
{
    const qsizetype lineBreak = text.indexOf(u'\n');
    if (lineBreak < 0)
        return std::nullopt;
    const QStringView body = text.sliced(lineBreak + 1);
    const qsizetype end = body.indexOf(textblockEnd());
    const Fields header(text.first(lineBreak));
    if (end < 0 || header.count() < textblockFields)
        return std::nullopt;
    return TextBlock{header.number(0), header.number(1), header.number(2), header.number(3),
                     body.first(end).toString()};
}

QStringView Records::fieldsOf(QStringView record)
{
    const QStringView keyword = keywordOf(record);
    return keyword.isEmpty() ? QStringView() : record.sliced(keyword.size() + 1);
}

Records::Record Records::parse(QStringView record)
{
    const QStringView keyword = keywordOf(record);
    if (keyword.isEmpty())
        return {};
    const auto reader =
        std::find_if(readers().cbegin(), readers().cend(),
                     [keyword](const Reader &r) { return r.kind.keyword == keyword; });
    if (reader == readers().cend())
        return {};
    return reader->parse(reader->kind.keyword, fieldsOf(record));
}

QString Records::pageCountLine(int pageCount)
{
    return (RecordLine(pageCountKeyword()) << pageCount).ended();
}

QString Records::format(const Bitmap &record, const QString &keyword)
{
    return (RecordLine(keyword) << record.symbolId << record.x << record.y
                                << (record.inverted ? 1 : 0))
        .ended();
}

QString Records::format(const TimeSig &record, const QString &keyword)
{
    return (RecordLine(keyword) << record.x << record.y << record.numerator << record.denominator)
        .ended();
}

QString Records::format(const Vector &record)
{
    return (RecordLine(record.keyword)
            << record.x << record.y << record.startX << record.startY << record.endX << record.endY)
        .ended();
}

QString Records::format(const Text &record, const QString &keyword)
{
    return (RecordLine(keyword) << record.x << record.y << record.width << record.height
                                << record.text << record.family << record.pointSize
                                << QString::number(record.color, 16)
                                << QString::number(record.rotation))
        .ended();
}

QString Records::format(const TextBlock &record, const QString &keyword)
{
    QString result =
        (RecordLine(keyword) << record.x << record.y << record.width << record.height).ended();
    result += record.text;
    result += u'\n';
    result += textblockEnd();
    result += u'\n';
    return result;
}
