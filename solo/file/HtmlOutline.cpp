#include "HtmlOutline.h"

#include <algorithm>
#include <cmath>

namespace
{
/** True for void elements: what follows is not inside them. */
bool isEmptyElement(const QString &tag)
{
    static const QStringList tags{QStringLiteral("br"),   QStringLiteral("hr"),
                                  QStringLiteral("img"),  QStringLiteral("meta"),
                                  QStringLiteral("link"), QStringLiteral("input")};
    return tags.contains(tag);
}

/** True for elements that separate the elements inside from those outside. */
bool isEnclosing(const QString &tag)
{
    static const QStringList tags{QStringLiteral("table"), QStringLiteral("ul"),
                                  QStringLiteral("ol")};
    return tags.contains(tag);
}

/** True for elements that end where another one of their kind begins. */
bool endsAtItsLike(const QString &tag)
{
    static const QStringList tags{QStringLiteral("p"),  QStringLiteral("li"), QStringLiteral("tr"),
                                  QStringLiteral("td"), QStringLiteral("th"), QStringLiteral("dt"),
                                  QStringLiteral("dd")};
    return tags.contains(tag);
}

double span(const QString &text)
{
    return std::max(1, text.toInt());
}
} // namespace

HtmlOutline::HtmlOutline(const QString &html)
    : m_html(html)
{
    for (m_at = html.indexOf(u'<'); m_at >= 0; m_at = html.indexOf(u'<', m_at)) {
        ++m_at;
        readTag();
    }
    while (!m_tables.isEmpty())
        finishTable();
}

bool HtmlOutline::isNext(QChar c, qsizetype ahead) const
{
    return m_at + ahead < m_html.size() && m_html[m_at + ahead] == c;
}

void HtmlOutline::skipBlanks()
{
    while (!atEnd() && m_html[m_at].isSpace() && m_html[m_at] != QChar::ParagraphSeparator)
        ++m_at;
}

void HtmlOutline::skipBehind(QChar c)
{
    const qsizetype found = m_html.indexOf(c, m_at);
    m_at = found < 0 ? m_html.size() : found + 1;
}

/** A name or a value, in which any character may be an entity. */
QString HtmlOutline::word()
{
    QString result;
    const bool isQuoted = isNext(u'"') || isNext(u'\'');
    const QChar quote = isQuoted ? m_html[m_at++] : QChar();
    while (!atEnd()) {
        const QChar c = m_html[m_at];
        const bool isEnd =
            c == u'>' || (c == u'/' && isNext(u'>', 1)) || c == u'<' || c == u'=' || c.isSpace();
        if (!isQuoted && isEnd)
            break;
        ++m_at;
        if (isQuoted && c == quote)
            break;
        if (c == u'&')
            result += entity();
        else
            result += c;
    }
    return result;
}

/** The character of a numeric entity; any other entity is returned unchanged. */
QString HtmlOutline::entity()
{
    constexpr qsizetype longest = 10;
    constexpr int decimal = 10;
    constexpr int hexadecimal = 16;
    const qsizetype end = m_html.indexOf(u';', m_at);
    if (end < 0 || end - m_at > longest || !isNext(u'#'))
        return QStringLiteral("&");
    QStringView number = QStringView(m_html).sliced(m_at + 1, end - m_at - 1);
    const bool isHexadecimal = number.startsWith(u'x', Qt::CaseInsensitive);
    if (isHexadecimal)
        number = number.sliced(1);
    bool ok = false;
    const uint code = number.toUInt(&ok, isHexadecimal ? hexadecimal : decimal);
    if (!ok || code > 0xffff)
        return QStringLiteral("&");
    m_at = end + 1;
    return QString(QChar(char16_t(code)));
}

HtmlOutline::Attributes HtmlOutline::attributes()
{
    Attributes result;
    while (!atEnd()) {
        skipBlanks();
        if (isNext(u'>') || isNext(u'/'))
            break;
        const QString key = word().toLower();
        if (key.isEmpty())
            break;
        QString value = QStringLiteral("1");
        skipBlanks();
        if (isNext(u'=')) {
            ++m_at;
            skipBlanks();
            value = word();
        }
        // Of attributes with the same name the last counts, but the largest span is safer here.
        if (!value.isEmpty() && value.toInt() >= result.value(key).toInt())
            result.insert(key, value);
    }
    return result;
}

void HtmlOutline::readTag()
{
    skipBlanks();
    if (isNext(u'!')) {
        readDeclaration();
        return;
    }
    if (isNext(u'/')) {
        ++m_at;
        close(word().toLower().trimmed());
        skipBehind(u'>');
        return;
    }
    const QString tag = word().toLower();
    const bool hasAttributes = !atEnd() && m_html[m_at].isSpace();
    open(tag, hasAttributes ? attributes() : Attributes());
    const qsizetype begin = m_at;
    skipBehind(u'>');
    const bool isClosed = QStringView(m_html).sliced(begin, m_at - begin).contains(u'/');
    if (isClosed || isEmptyElement(tag))
        close(tag);
}

void HtmlOutline::readDeclaration()
{
    ++m_at;
    if (!isNext(u'-') || !isNext(u'-', 1)) {
        skipBehind(u'>');
        return;
    }
    const qsizetype end = m_html.indexOf(QLatin1String("-->"), m_at + 2);
    m_at = end < 0 ? m_html.size() : end + 3;
}

void HtmlOutline::open(const QString &tag, const Attributes &attributes)
{
    if (endsAtItsLike(tag))
        closeLike(tag);
    m_open.append(tag);
    m_depth = std::max(m_depth, m_open.size());
    if (tag == QLatin1String("table")) {
        m_tables.append(Table());
        m_tableDepth = std::max(m_tableDepth, m_tables.size() - 1);
    } else if (tag == QLatin1String("tr")) {
        Table &table = m_tables.last();
        ++table.rows;
        table.inRow = 0;
    } else if (tag == QLatin1String("td") || tag == QLatin1String("th")) {
        addCell(attributes);
    } else if (tag == QLatin1String("img")) {
        m_pictures.append(attributes.value(QStringLiteral("src")));
    }
}

/**
 * Ends an element of this kind with its contents, unless it is outside of the innermost table or
 * list.
 */
void HtmlOutline::closeLike(const QString &tag)
{
    for (qsizetype i = m_open.size() - 1; i >= 0 && !isEnclosing(m_open[i]); --i) {
        if (m_open[i] == tag) {
            m_open.resize(i);
            return;
        }
    }
}

void HtmlOutline::addCell(const Attributes &attributes)
{
    Table &table = m_tables.last();
    const double down = span(attributes.value(QStringLiteral("rowspan")));
    const double across = span(attributes.value(QStringLiteral("colspan")));
    table.rows = std::max(table.rows, 1.0);
    table.inRow += across;
    table.columns = std::max(table.columns, table.inRow);
    if (down > 1) {
        table.reaching += across;
        table.reachingDown = std::max(table.reachingDown, down);
    }
}

void HtmlOutline::close(const QString &tag)
{
    const qsizetype begin = m_open.lastIndexOf(tag);
    if (begin < 0)
        return;
    const qsizetype tables = m_open.sliced(begin).count(QStringLiteral("table"));
    m_open.resize(begin);
    for (qsizetype i = 0; i < tables; ++i)
        finishTable();
}

void HtmlOutline::finishTable()
{
    const Table table = m_tables.takeLast();
    m_cells += (table.rows + table.reachingDown) * (table.columns + table.reaching) *
               std::exp2(double(m_tables.size()));
}
