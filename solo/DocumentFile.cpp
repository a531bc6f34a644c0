#include "DocumentFile.h"

#include "AtomicFile.h"
#include "DocumentReader.h"
#include "ItemRecords.h"

#include <QFile>
#include <QFileInfo>

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
    return DocumentReader(defaultPaper).read(bytes);
}

DocumentFile::Reading DocumentFile::load(const QString &path, const Paper &defaultPaper)
{
    QFile file(path);
    Reading failed;
    if (QFileInfo(path).isDir())
        failed.problems = {{0, QCoreApplication::translate("DocumentFile", "This is a folder.")}};
    else if (!file.open(QIODevice::ReadOnly))
        failed.problems = {{0, file.errorString()}};
    return failed.problems.isEmpty() ? parse(file.readAll(), defaultPaper) : failed;
}

QString DocumentFile::save(const QString &path, const DocumentSnapshot &document)
{
    return AtomicFile::write(path, format(document));
}
