#include "DocumentFileReader.h"

#include "DocumentFormat.h"
#include "DocumentLimits.h"
#include "HostRecordReader.h"
#include "ItemKinds.h"
#include "LineFields.h"
#include "Records.h"

#include <QStringDecoder>

#include <algorithm>

namespace
{
using namespace DocumentFormat;

/** The beginning of a document of the host link, which has no header. */
const QString hostKeywordBegin = QStringLiteral("tonquill_");

int lineNumber(qsizetype index)
{
    return int(index) + 1;
}
} // namespace

DocumentReading DocumentFileReader::read(const QByteArray &bytes)
{
    if (bytes.size() > DocumentLimits::largestFile ||
        bytes.count('\n') > DocumentLimits::mostLines) {
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

void DocumentFileReader::splitLines(const QByteArray &bytes)
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

bool DocumentFileReader::readFirstLine()
{
    const QString first = m_lines.value(0);
    bool isNumber = false;
    const int fileVersion =
        QStringView(first).sliced(qMin(headerKeyword.size(), first.size())).toInt(&isNumber);
    if (!first.startsWith(headerKeyword) || !isNumber) {
        m_reading.problems = {{1, tr("This is not a Tonquill document.")}};
        return false;
    }
    if (fileVersion > version) {
        addProblem(1, tr("The document was written by a newer version of Tonquill (format %1; "
                         "this program knows %2).")
                          .arg(fileVersion)
                          .arg(version));
    }
    m_at = 1;
    return true;
}

void DocumentFileReader::readOwnLines()
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

void DocumentFileReader::readOwnItem(const QString &line)
{
    QStringList unknown;
    addItem(ItemKinds::catalogue().readLine(line, &unknown), lineNumber(m_at));
    for (const QString &field : std::as_const(unknown))
        addProblem(lineNumber(m_at), tr("The field “%1” is not known.").arg(field));
}

void DocumentFileReader::readHostLines()
{
    for (; m_at < m_lines.size(); ++m_at) {
        const QString &line = m_lines[m_at];
        if (Records::isBlockBegin(line))
            readHostBlock();
        else if (!line.isEmpty() && !readPageCount(line))
            addItem(HostRecordReader::read(line), lineNumber(m_at));
    }
    // The host link writes the topmost item first.
    QByteArrayList fromBelow = m_reading.document.items.toList();
    std::reverse(fromBelow.begin(), fromBelow.end());
    m_reading.document.items = fromBelow;
}

void DocumentFileReader::readHostBlock()
{
    const qsizetype begin = m_at;
    QStringList text;
    while (++m_at < m_lines.size() && !Records::isBlockEnd(m_lines[m_at]))
        text.append(m_lines[m_at]);
    if (m_at == m_lines.size())
        addProblem(lineNumber(begin), tr("The end of this text block is missing."));
    addItem(HostRecordReader::readBlock(m_lines[begin], text), lineNumber(begin));
}

bool DocumentFileReader::readPageCount(const QString &line)
{
    if (!line.startsWith(pageCountKeyword))
        return false;
    bool isNumber = false;
    const int count = QStringView(line).sliced(pageCountKeyword.size()).toInt(&isNumber);
    if (isNumber && count >= 1 && count <= DocumentLimits::mostPages)
        m_reading.document.pageCount = count;
    else
        addProblem(lineNumber(m_at), tr("The number of pages cannot be right."));
    return true;
}

bool DocumentFileReader::readPaper(const QString &line)
{
    if (!line.startsWith(paperKeyword))
        return false;
    QList<double> values;
    for (const QString &field : line.sliced(paperKeyword.size()).split(u' '))
        values.append(LineFields::toNumber(field).value_or(-1));
    const auto fits = [](double value) {
        return value >= 0 && value <= DocumentLimits::longestSheet;
    };
    if (values.size() == 6 && std::all_of(values.cbegin(), values.cend(), fits) && values[0] > 0 &&
        values[1] > 0)
        m_reading.document.paper =
            Paper{QSizeF(values[0], values[1]), QRectF(values[2], values[3], values[4], values[5])};
    else
        addProblem(lineNumber(m_at), tr("The size of the paper cannot be right."));
    return true;
}

void DocumentFileReader::addItem(const std::optional<ItemState> &state, int line)
{
    const QString problem = state ? m_bounds.problemOf(*state) : tr("This record cannot be read.");
    if (problem.isEmpty())
        m_reading.document.items.append(state->line());
    else
        addProblem(line, problem);
}

void DocumentFileReader::addProblem(int line, const QString &text)
{
    m_reading.problems.append({line, text});
}
