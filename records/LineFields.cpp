#include "LineFields.h"

#include "PlainNumber.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace
{
/** True for small whole numbers, which most are and which are fast to write. */
bool isPlain(double value)
{
    constexpr double mostWhole = 99999;
    return std::fabs(value) <= mostWhole && value == std::trunc(value);
}

/** The decimal digits of a whole number. */
class Digits
{
public:
    explicit Digits(int number)
        : m_end(std::to_chars(m_digits.data(), m_digits.data() + m_digits.size(), number).ptr)
    {}

    QByteArrayView view() const { return QByteArrayView(m_digits.data(), m_end); }

private:
    std::array<char, 12> m_digits;
    char *m_end;
};
} // namespace

QByteArray LineFields::number(double value)
{
    // Avoids "-0", which equals 0 but is another text.
    if (isPlain(value))
        return Digits(int(value)).view().toByteArray();
    return QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
}

std::optional<double> LineFields::toNumber(const QString &text)
{
    if (const std::optional<int> plain = plainNumber(text))
        return *plain;
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

LineWriter::LineWriter(const QString &keyword, QPointF position)
{
    for (const QChar letter : keyword)
        m_bytes.append(letter.toLatin1());
    *this << position;
}

LineWriter &LineWriter::operator<<(int number)
{
    m_bytes.append(' ');
    append(Digits(number).view());
    return *this;
}

LineWriter &LineWriter::operator<<(double number)
{
    if (isPlain(number))
        return *this << int(number);
    m_bytes.append(' ');
    append(LineFields::number(number));
    return *this;
}

LineWriter &LineWriter::named(QByteArrayView name, double value)
{
    return named(name, LineFields::number(value));
}

LineWriter &LineWriter::named(QByteArrayView name, QByteArrayView value)
{
    m_bytes.append(' ');
    append(name);
    m_bytes.append('=');
    append(value);
    return *this;
}

LineWriter &LineWriter::quoted(QByteArrayView name, const QString &text)
{
    return named(name, QuotedFields::quoted(text).toUtf8());
}

LineWriter &LineWriter::flag(QByteArrayView name, bool on)
{
    return on ? named(name, "1") : *this;
}

QPointF LineReader::point(qsizetype index)
{
    const double x = number(index);
    return QPointF(x, number(index + 1));
}

QString LineReader::text(const QString &name)
{
    require(has(name));
    return m_fields.value(name);
}

double LineReader::number(const QString &name, double fallback)
{
    return has(name) ? number(name) : fallback;
}

QList<double> LineReader::numbers(const QString &name, qsizetype count)
{
    const QStringList parts = m_fields.value(name).split(u' ');
    require(parts.size() == count);
    QList<double> result(count);
    for (qsizetype i = 0; i < count; ++i)
        result[i] = toNumber(parts.value(i));
    return result;
}

double LineReader::toNumber(const QString &text)
{
    const std::optional<double> value = LineFields::toNumber(text);
    require(value.has_value());
    return value.value_or(0);
}

int LineReader::toInteger(const QString &text)
{
    bool ok = false;
    const int result = text.toInt(&ok);
    require(ok);
    return result;
}
