#include "ItemRecords.h"

#include "PlainNumber.h"
#include "QuotedFields.h"
#include "Records.h"

#include <QHash>
#include <QLocale>

#include <cmath>

namespace
{
using namespace ItemState;
using Maybe = std::optional<Any>;

/** The block's record takes one line here, so it has a keyword without a begin and an end. */
QString blockKeyword()
{
    return QStringLiteral("tonquill_textblock");
}

QString point(QPointF p)
{
    return ItemRecords::number(p.x()) + u' ' + ItemRecords::number(p.y());
}

/** Puts a line together from a keyword and fields. */
class Line
{
public:
    Line(const QString &keyword, QPointF position)
    {
        constexpr qsizetype typicalLine = 48;
        m_text.reserve(typicalLine);
        m_text += keyword;
        *this << position;
    }

    Line &operator<<(const QString &field)
    {
        m_text += u' ';
        m_text += field;
        return *this;
    }
    Line &operator<<(QPointF p)
    {
        return *this << ItemRecords::number(p.x()) << ItemRecords::number(p.y());
    }
    Line &named(const QString &name, const QString &value) { return *this << name + u'=' + value; }
    Line &quoted(const QString &name, const QString &value)
    {
        return named(name, QuotedFields::quoted(value));
    }
    Line &flag(const QString &name, bool on)
    {
        return on ? named(name, QStringLiteral("1")) : *this;
    }
    QByteArray ended() const { return m_text.toUtf8(); }

private:
    QString m_text;
};

void appendFont(Line &line, const Font &font)
{
    line.quoted(QStringLiteral("font"), font.family);
    line.named(font.sizeInPixels ? QStringLiteral("pixels") : QStringLiteral("size"),
               ItemRecords::number(font.size));
    if (font.weight != QFont::Normal)
        line.named(QStringLiteral("weight"), QString::number(font.weight));
    line.flag(QStringLiteral("italic"), font.style == QFont::StyleItalic);
    line.flag(QStringLiteral("oblique"), font.style == QFont::StyleOblique);
    line.flag(QStringLiteral("underline"), font.underline);
}

QString colorName(const QColor &color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QByteArray formatOne(const Glyph &glyph)
{
    return (Line(Records::bitmapKeyword(), glyph.position) << QString::number(glyph.symbolId))
        .flag(QStringLiteral("inverted"), glyph.inverted)
        .ended();
}

QByteArray formatOne(const TimeSignature &time)
{
    return (Line(Records::timesigKeyword(), time.position)
            << QString::number(time.numerator) << QString::number(time.denominator))
        .ended();
}

QByteArray formatOne(const Figure &figure)
{
    Line line(figure.keyword, figure.position);
    line << figure.start << figure.end;
    if (figure.anchors)
        line.quoted(QStringLiteral("anchors"),
                    point(figure.anchors->first) + u' ' + point(figure.anchors->second));
    return line.ended();
}

QByteArray formatOne(const Text &text)
{
    Line line(Records::textKeyword(), text.position);
    line.quoted(QStringLiteral("text"), text.text);
    appendFont(line, text.font);
    line.named(QStringLiteral("color"), colorName(text.color));
    if (text.rotation != 0)
        line.named(QStringLiteral("rotation"), ItemRecords::number(text.rotation));
    return line.ended();
}

QByteArray formatOne(const TextBlock &block)
{
    Line line(blockKeyword(), block.position);
    line << block.topLeft << block.bottomRight;
    line.named(QStringLiteral("wrap"), ItemRecords::number(block.textWidth));
    appendFont(line, block.font);
    return line.quoted(block.isHtml ? QStringLiteral("html") : QStringLiteral("text"), block.text)
        .ended();
}

/** The fields of a line, read as numbers; what is missing or malformed makes it invalid. */
class Reader
{
public:
    explicit Reader(const QuotedFields &fields)
        : m_fields(fields)
    {}

    bool isValid() const { return m_valid; }
    QString keyword() const { return m_fields.plain().value(0); }
    QString text(const QString &name)
    {
        m_valid = m_valid && m_fields.has(name);
        return m_fields.value(name);
    }
    bool flag(const QString &name) const { return m_fields.value(name) == QLatin1String("1"); }
    bool has(const QString &name) const { return m_fields.has(name); }

    double number(qsizetype index) { return toNumber(m_fields.plain().value(index)); }
    double number(const QString &name) { return toNumber(m_fields.value(name)); }
    double number(const QString &name, double fallback)
    {
        return m_fields.has(name) ? number(name) : fallback;
    }
    int integer(const QString &text)
    {
        bool ok = false;
        const int result = text.toInt(&ok);
        m_valid = m_valid && ok;
        return result;
    }
    int integer(qsizetype index) { return integer(m_fields.plain().value(index)); }
    QPointF point(qsizetype index) { return QPointF(number(index), number(index + 1)); }
    Font font();
    QColor color();
    std::optional<Figure::Anchors> anchors();

private:
    double toNumber(const QString &text)
    {
        const std::optional<double> value = ItemRecords::toNumber(text);
        m_valid = m_valid && value;
        return value.value_or(0);
    }

    const QuotedFields &m_fields;
    bool m_valid = true;
};

Font Reader::font()
{
    Font font;
    font.family = text(QStringLiteral("font"));
    font.sizeInPixels = has(QStringLiteral("pixels"));
    font.size = number(font.sizeInPixels ? QStringLiteral("pixels") : QStringLiteral("size"));
    if (has(QStringLiteral("weight")))
        font.weight = integer(m_fields.value(QStringLiteral("weight")));
    if (flag(QStringLiteral("italic")))
        font.style = QFont::StyleItalic;
    else if (flag(QStringLiteral("oblique")))
        font.style = QFont::StyleOblique;
    font.underline = flag(QStringLiteral("underline"));
    m_valid = m_valid && font.isPossible();
    return font;
}

QColor Reader::color()
{
    const QColor color(text(QStringLiteral("color")));
    m_valid = m_valid && color.isValid();
    return color;
}

std::optional<Figure::Anchors> Reader::anchors()
{
    if (!has(QStringLiteral("anchors")))
        return std::nullopt;
    const QStringList parts = m_fields.value(QStringLiteral("anchors")).split(u' ');
    m_valid = m_valid && parts.size() == 4;
    const auto at = [&](qsizetype i) { return toNumber(parts.value(i)); };
    return Figure::Anchors(QPointF(at(0), at(1)), QPointF(at(2), at(3)));
}

Any readGlyph(Reader &reader)
{
    return Glyph{reader.point(1), reader.integer(3), reader.flag(QStringLiteral("inverted"))};
}

Any readTimeSignature(Reader &reader)
{
    return TimeSignature{reader.point(1), reader.integer(3), reader.integer(4)};
}

Any readFigure(Reader &reader)
{
    return Figure{reader.point(1), reader.keyword(), reader.point(3), reader.point(5),
                  reader.anchors()};
}

Any readText(Reader &reader)
{
    return Text{reader.point(1), reader.text(QStringLiteral("text")), reader.font(), reader.color(),
                reader.number(QStringLiteral("rotation"), 0)};
}

Any readTextBlock(Reader &reader)
{
    const bool isHtml = reader.has(QStringLiteral("html"));
    return TextBlock{
        reader.point(1), reader.point(3),
        reader.point(5), reader.number(QStringLiteral("wrap")),
        reader.font(),   reader.text(isHtml ? QStringLiteral("html") : QStringLiteral("text")),
        isHtml};
}

/** A kind of record: how it is read, and which fields it may have. */
struct Kind
{
    Any (*read)(Reader &) = nullptr;
    qsizetype plainFields = 0; ///< with the keyword
    QStringList names;
};

QStringList withFont(const QStringList &names)
{
    return names + QStringList{QStringLiteral("font"),     QStringLiteral("size"),
                               QStringLiteral("pixels"),   QStringLiteral("weight"),
                               QStringLiteral("italic"),   QStringLiteral("oblique"),
                               QStringLiteral("underline")};
}

const QHash<QString, Kind> &kinds()
{
    static const Kind figure{readFigure, 7, {QStringLiteral("anchors")}};
    static const QHash<QString, Kind> table{
        {Records::bitmapKeyword(), {readGlyph, 4, {QStringLiteral("inverted")}}},
        {Records::timesigKeyword(), {readTimeSignature, 5, {}}},
        {Records::grandstaffKeyword(), figure},
        {Records::interactivelineKeyword(), figure},
        {Records::linetabKeyword(), figure},
        {Records::notetieKeyword(), figure},
        {Records::tripletKeyword(), figure},
        {Records::textKeyword(),
         {readText, 3,
          withFont({QStringLiteral("text"), QStringLiteral("color"), QStringLiteral("rotation")})}},
        {blockKeyword(),
         {readTextBlock, 7,
          withFont({QStringLiteral("text"), QStringLiteral("html"), QStringLiteral("wrap")})}},
    };
    return table;
}

QStringList unknownFields(const QuotedFields &fields, const Kind &kind)
{
    QStringList result = fields.plain().mid(kind.plainFields);
    for (const QString &name : fields.names()) {
        if (!kind.names.contains(name))
            result.append(name);
    }
    return result;
}
} // namespace

QString ItemRecords::number(double value)
{
    // Most numbers are whole, and those are quickly written. It has no "-0", which equals 0 but is
    // another text.
    constexpr double mostWhole = 99999;
    if (std::fabs(value) <= mostWhole && value == std::trunc(value))
        return QString::number(int(value));
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

std::optional<double> ItemRecords::toNumber(const QString &text)
{
    if (const std::optional<int> plain = plainNumber(text))
        return *plain;
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

QByteArray ItemRecords::format(const Any &state)
{
    return std::visit([](const auto &item) { return formatOne(item); }, state);
}

std::optional<Any> ItemRecords::parse(const QString &line, QStringList *unknown)
{
    const std::optional<QuotedFields> fields = QuotedFields::parse(line);
    if (!fields)
        return std::nullopt;
    Reader reader(*fields);
    const auto kind = kinds().constFind(reader.keyword());
    if (kind == kinds().constEnd())
        return std::nullopt;
    const Any state = kind->read(reader);
    if (!reader.isValid())
        return std::nullopt;
    if (unknown)
        *unknown += unknownFields(*fields, *kind);
    return state;
}
