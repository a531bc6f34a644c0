#include "DocumentReader.h"

#include "HostDocument.h"
#include "ItemRecords.h"

#include <QStringDecoder>

#include <algorithm>

namespace
{
const QString ownHeader = QStringLiteral("tonquill-document ");
const QString endLine = QStringLiteral("tonquill-end");
const QString pageCountKeyword = QStringLiteral("tonquill_pagecount ");
const QString paperKeyword = QStringLiteral("tonquill_paper ");
const QString hostKeywordBegin = QStringLiteral("tonquill_");

int lineNumber(qsizetype index)
{
    return int(index) + 1;
}
} // namespace

DocumentFile::Reading DocumentReader::read(const QByteArray &bytes)
{
    if (bytes.size() > DocumentBounds::largestFile ||
        bytes.count('\n') > DocumentBounds::mostLines) {
        addProblem(0, tr("The file is larger than any document."));
        return m_reading;
    }
    splitLines(bytes);
    if (m_lines.value(0).startsWith(hostKeywordBegin)) {
        m_reading.isDocument = true;
        m_reading.isOfHost = true;
        readHostLines();
    } else if (readFirstLine()) {
        m_reading.isDocument = true;
        readOwnLines();
    }
    return m_reading;
}

void DocumentReader::splitLines(const QByteArray &bytes)
{
    QStringDecoder decode(QStringDecoder::Utf8);
    QString text = decode(bytes);
    if (decode.hasError()) {
        const qsizetype bad = text.indexOf(QChar::ReplacementCharacter);
        addProblem(lineNumber(QStringView(text).first(qMax(bad, qsizetype(0))).count(u'\n')),
                   tr("Some characters are not UTF-8."));
    }
    m_lines = text.split(u'\n');
    for (QString &line : m_lines) {
        if (line.endsWith(u'\r'))
            line.chop(1);
    }
    if (m_lines.constLast().isEmpty())
        m_lines.removeLast();
}

bool DocumentReader::readFirstLine()
{
    const QString first = m_lines.value(0);
    bool isNumber = false;
    const int fileVersion =
        QStringView(first).sliced(qMin(ownHeader.size(), first.size())).toInt(&isNumber);
    if (!first.startsWith(ownHeader) || !isNumber) {
        m_reading.problems = {{1, tr("This is not a Tonquill document.")}};
        return false;
    }
    if (fileVersion > DocumentFile::version) {
        addProblem(1, tr("The document was written by a newer version of Tonquill (format %1; "
                         "this program knows %2).")
                          .arg(fileVersion)
                          .arg(DocumentFile::version));
    }
    m_at = 1;
    return true;
}

void DocumentReader::readOwnLines()
{
    bool ended = false;
    for (; m_at < m_lines.size() && !ended; ++m_at) {
        const QString &line = m_lines[m_at];
        ended = line == endLine;
        if (!ended && !line.isEmpty() && !readPageCount(line) && !readPaper(line))
            readOwnItem(line);
    }
    if (!ended)
        addProblem(lineNumber(m_at), tr("The document breaks off here."));
    else if (m_at < m_lines.size())
        addProblem(lineNumber(m_at), tr("There is more behind the document's end."));
}

void DocumentReader::readOwnItem(const QString &line)
{
    QStringList unknown;
    addItem(ItemRecords::parse(line, &unknown), lineNumber(m_at));
    for (const QString &field : std::as_const(unknown))
        addProblem(lineNumber(m_at), tr("The field “%1” is not known.").arg(field));
}

void DocumentReader::readHostLines()
{
    for (; m_at < m_lines.size(); ++m_at) {
        const QString &line = m_lines[m_at];
        if (HostDocument::isBlockBegin(line))
            readHostBlock();
        else if (!line.isEmpty() && !readPageCount(line))
            addItem(HostDocument::readRecord(line), lineNumber(m_at));
    }
    // The host link writes the topmost item first.
    std::reverse(m_reading.document.items.begin(), m_reading.document.items.end());
}

void DocumentReader::readHostBlock()
{
    const qsizetype begin = m_at;
    QStringList text;
    while (++m_at < m_lines.size() && !HostDocument::isBlockEnd(m_lines[m_at]))
        text.append(m_lines[m_at]);
    if (m_at == m_lines.size())
        addProblem(lineNumber(begin), tr("The end of this text block is missing."));
    addItem(HostDocument::readBlock(m_lines[begin], text), lineNumber(begin));
}

bool DocumentReader::readPageCount(const QString &line)
{
    if (!line.startsWith(pageCountKeyword))
        return false;
    bool isNumber = false;
    const int count = QStringView(line).sliced(pageCountKeyword.size()).toInt(&isNumber);
    if (isNumber && count >= 1 && count <= DocumentBounds::mostPages)
        m_reading.document.pageCount = count;
    else
        addProblem(lineNumber(m_at), tr("The number of pages cannot be right."));
    return true;
}

bool DocumentReader::readPaper(const QString &line)
{
    if (!line.startsWith(paperKeyword))
        return false;
    QList<double> values;
    for (const QString &field : line.sliced(paperKeyword.size()).split(u' '))
        values.append(ItemRecords::toNumber(field).value_or(-1));
    const auto fits = [](double value) {
        return value >= 0 && value <= DocumentBounds::longestSheet;
    };
    if (values.size() == 6 && std::all_of(values.cbegin(), values.cend(), fits) && values[0] > 0 &&
        values[1] > 0)
        m_reading.document.paper =
            Paper{QSizeF(values[0], values[1]), QRectF(values[2], values[3], values[4], values[5])};
    else
        addProblem(lineNumber(m_at), tr("The size of the paper cannot be right."));
    return true;
}

void DocumentReader::addItem(const std::optional<ItemState::Any> &state, int line)
{
    const QString problem = state ? m_bounds.problemOf(*state) : tr("This record cannot be read.");
    if (problem.isEmpty())
        m_reading.document.items.append(ItemRecords::format(*state));
    else
        addProblem(line, problem);
}

void DocumentReader::addProblem(int line, const QString &text)
{
    m_reading.problems.append({line, text});
}
