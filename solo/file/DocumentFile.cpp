#include "DocumentFile.h"

#include "AtomicFile.h"
#include "DocumentBounds.h"
#include "DocumentReader.h"
#include "ItemRecords.h"
#include "OrdinaryFile.h"

#include <new>

namespace
{
constexpr qsizetype mostProblemsShown = 8;

QByteArray paperLine(const Paper &paper)
{
    QByteArray line("tonquill_paper");
    for (const double value : {paper.size.width(), paper.size.height(), paper.frame.left(),
                               paper.frame.top(), paper.frame.width(), paper.frame.height()})
        line += ' ' + ItemRecords::number(value).toLatin1();
    return line;
}

/** A line behind the reason why a document was not saved. */
QString whatIsLeft(AtomicFile::Left left)
{
    switch (left) {
    case AtomicFile::Left::AsBefore:
        return u'\n' + QCoreApplication::translate("DocumentFile", "The file is as it was before.");
    case AtomicFile::Left::New:
        return u'\n' + QCoreApplication::translate("DocumentFile",
                                                   "The file is written, but a power cut may take "
                                                   "it back until it is saved again.");
    case AtomicFile::Left::Damaged:
        break; // which the reason itself tells
    }
    return QString();
}

/**
 * Why the document could not be opened again as a whole; empty if it could. Only texts can get
 * there by hand, by what is pasted into them.
 */
QString problemOfReading(const QList<QByteArray> &items)
{
    static const QByteArray everyText("tonquill_text");
    if (items.size() > DocumentBounds::mostItems)
        return DocumentBounds::tooManyItems();
    DocumentBounds bounds;
    for (const QByteArray &line : items) {
        if (!line.startsWith(everyText))
            continue;
        const auto text = ItemRecords::parse(QString::fromUtf8(line));
        const QString problem = text ? bounds.problemOf(*text) : QString();
        if (!problem.isEmpty())
            return problem;
    }
    return QString();
}

QString noMemory()
{
    return QCoreApplication::translate("DocumentFile",
                                       "There is not enough memory for this document.");
}
} // namespace

QString DocumentFile::Reading::problemText() const
{
    QStringList lines;
    for (const Problem &problem : problems.first(qMin(problems.size(), mostProblemsShown))) {
        lines.append(problem.line > 0 ? QCoreApplication::translate("DocumentFile", "Line %1: %2")
                                            .arg(QString::number(problem.line), problem.text)
                                      : problem.text);
    }
    if (problems.size() > mostProblemsShown)
        lines.append(QCoreApplication::translate("DocumentFile", "… and %1 more.")
                         .arg(problems.size() - mostProblemsShown));
    return lines.join(u'\n');
}

QByteArray DocumentFile::format(const DocumentSnapshot &document)
{
    QByteArray bytes("tonquill-document " + QByteArray::number(version) + '\n');
    bytes += "tonquill_pagecount " + QByteArray::number(document.pageCount) + '\n';
    bytes += paperLine(document.paper) + '\n';
    for (const QByteArray &line : document.items)
        bytes += line + '\n';
    return bytes + "tonquill-end\n";
}

DocumentFile::Reading DocumentFile::parse(const QByteArray &bytes, const Paper &defaultPaper)
{
    try {
        return DocumentReader(defaultPaper).read(bytes);
    } catch (const std::bad_alloc &) {
        Reading failed;
        failed.problems = {{0, noMemory()}};
        return failed;
    }
}

qint64 DocumentFile::largestFile()
{
    return DocumentBounds::largestFile;
}

DocumentFile::Reading DocumentFile::load(const QString &path, const Paper &defaultPaper)
{
    const OrdinaryFile::Contents contents = OrdinaryFile::read(path);
    Reading reading;
    if (contents.error.isEmpty())
        reading = parse(contents.bytes, defaultPaper);
    else
        reading.problems = {{0, contents.error}};
    reading.stamp = FileStamp::of(path, contents.bytes);
    return reading;
}

QString DocumentFile::save(const QString &path, const DocumentSnapshot &document, FileStamp *stamp)
{
    const QByteArray bytes = format(document);
    AtomicFile::Left left = AtomicFile::Left::AsBefore;
    QString error = OrdinaryFile::problemOfSize(bytes.size());
    if (error.isEmpty())
        error = problemOfReading(document.items);
    if (error.isEmpty())
        error = AtomicFile::write(path, bytes, AtomicFile::Readers::AsUsual, &left);
    if (stamp && (error.isEmpty() || left == AtomicFile::Left::New))
        *stamp = FileStamp::of(path, bytes);
    return error.isEmpty() ? QString() : error + whatIsLeft(left);
}
