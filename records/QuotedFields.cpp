#include "QuotedFields.h"

namespace
{
constexpr int hexadecimal = 16;
constexpr qsizetype codeDigits = 4;

/** True for characters that a line of UTF-8 cannot contain or that look like a space. */
bool needsCode(QChar c)
{
    return c.isSurrogate() || c.unicode() < 0x20 || (c.unicode() >= 0x7f && c.unicode() <= 0xa0) ||
           c == QChar::LineSeparator || c == QChar::ParagraphSeparator ||
           c == QChar::ByteOrderMark || c.isNonCharacter();
}

QString code(QChar c)
{
    return QStringLiteral("\\u%1").arg(c.unicode(), int(codeDigits), hexadecimal, QLatin1Char('0'));
}

/** True if a surrogate pair begins at `i`. */
bool isPair(const QString &text, qsizetype i)
{
    return text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
}

/** Reads a line from left to right. */
class Scanner
{
public:
    explicit Scanner(const QString &line)
        : m_line(line)
    {}

    bool atEnd() const { return m_at >= m_line.size(); }
    void skipBlanks()
    {
        while (!atEnd() && m_line[m_at] == u' ')
            ++m_at;
    }
    QString word();
    bool take(QChar c);
    std::optional<QString> value();

private:
    std::optional<QString> quotedValue();
    std::optional<QChar> escaped();

    const QString &m_line;
    qsizetype m_at = 0;
};

/** The text before the next space, "=" or the end. */
QString Scanner::word()
{
    const qsizetype begin = m_at;
    while (!atEnd() && m_line[m_at] != u' ' && m_line[m_at] != u'=')
        ++m_at;
    return m_line.sliced(begin, m_at - begin);
}

bool Scanner::take(QChar c)
{
    if (atEnd() || m_line[m_at] != c)
        return false;
    ++m_at;
    return true;
}

std::optional<QString> Scanner::value()
{
    if (take(u'"'))
        return quotedValue();
    const qsizetype begin = m_at;
    while (!atEnd() && m_line[m_at] != u' ')
        ++m_at;
    return m_line.sliced(begin, m_at - begin);
}

std::optional<QString> Scanner::quotedValue()
{
    QString result;
    while (!atEnd()) {
        const QChar c = m_line[m_at++];
        if (c == u'"')
            return atEnd() || m_line[m_at] == u' ' ? std::optional(result) : std::nullopt;
        if (c != u'\\') {
            result += c;
            continue;
        }
        const std::optional<QChar> meant = escaped();
        if (!meant)
            return std::nullopt;
        result += *meant;
    }
    return std::nullopt;
}

std::optional<QChar> Scanner::escaped()
{
    if (atEnd())
        return std::nullopt;
    const QChar c = m_line[m_at++];
    if (c == u'n')
        return u'\n';
    if (c == u't')
        return u'\t';
    if (c == u'"' || c == u'\\')
        return c;
    if (c != u'u' || m_at + codeDigits > m_line.size())
        return std::nullopt;
    bool ok = false;
    const uint number = QStringView(m_line).sliced(m_at, codeDigits).toUInt(&ok, hexadecimal);
    m_at += codeDigits;
    return ok ? std::optional(QChar(char16_t(number))) : std::nullopt;
}
} // namespace

QString QuotedFields::quoted(const QString &text)
{
    QString result(u'"');
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (isPair(text, i))
            result += text.sliced(i++, 2);
        else if (c == u'\n')
            result += QLatin1String("\\n");
        else if (c == u'\t')
            result += QLatin1String("\\t");
        else if (needsCode(c))
            result += code(c);
        else if (c == u'"' || c == u'\\')
            result += QString(u'\\') + c;
        else
            result += c;
    }
    return result + u'"';
}

std::optional<QuotedFields> QuotedFields::parse(const QString &line)
{
    QuotedFields fields;
    Scanner scanner(line);
    for (scanner.skipBlanks(); !scanner.atEnd(); scanner.skipBlanks()) {
        const QString word = scanner.word();
        if (!scanner.take(u'=')) {
            fields.m_plain.append(word);
            continue;
        }
        const std::optional<QString> value = scanner.value();
        if (word.isEmpty() || !value || fields.m_named.contains(word))
            return std::nullopt;
        fields.m_named.insert(word, *value);
    }
    return fields;
}
