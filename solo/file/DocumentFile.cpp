#include "DocumentFile.h"

#include "AtomicFile.h"
#include "DocumentBounds.h"
#include "DocumentFileReader.h"
#include "DocumentFormat.h"
#include "DocumentLimits.h"
#include "ItemKinds.h"
#include "LineFields.h"
#include "OrdinaryFile.h"

#include <QCoreApplication>

#include <new>

namespace
{
QByteArray paperLine(const Paper &paper)
{
    QByteArrayList fields;
    for (const double value : {paper.size.width(), paper.size.height(), paper.frame.left(),
                               paper.frame.top(), paper.frame.width(), paper.frame.height()})
        fields.append(LineFields::number(value));
    return DocumentFormat::paperKeyword.toLatin1() + fields.join(' ');
}

/** A line after the reason why a document was not saved. */
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
        break; // explained by the reason itself
    }
    return QString();
}

/** True if the line is of an item with text. */
bool hasText(const QByteArray &line)
{
    const QByteArrayView keyword = QByteArrayView(line).first(qMax(line.indexOf(' '), 0));
    const ItemKind *kind = ItemKinds::catalogue().ofLine(keyword);
    return kind && kind->hasText;
}

/**
 * Why the document could not be opened again completely; empty if it could. Users can only reach
 * the limits with texts, by pasting into them.
 */
QString problemOfReading(const LineList &items)
{
    if (items.size() > DocumentLimits::mostItems)
        return DocumentBounds::tooManyItems();
    DocumentBounds bounds;
    for (const QByteArray &line : items) {
        if (!hasText(line))
            continue;
        const auto text = ItemKinds::catalogue().readLine(QString::fromUtf8(line));
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

QByteArray DocumentFile::format(const DocumentSnapshot &document)
{
    using namespace DocumentFormat;
    QByteArray bytes = headerKeyword.toLatin1() + QByteArray::number(version) + '\n';
    bytes += pageCountKeyword.toLatin1() + QByteArray::number(document.pageCount) + '\n';
    bytes += paperLine(document.paper) + '\n';
    for (const QByteArray &line : document.items)
        bytes += line + '\n';
    return bytes + endLine.toLatin1() + '\n';
}

DocumentFile::Reading DocumentFile::parse(const QByteArray &bytes, const Paper &defaultPaper)
{
    try {
        return DocumentFileReader(defaultPaper).read(bytes);
    } catch (const std::bad_alloc &) {
        Reading failed;
        failed.problems = {{0, noMemory()}};
        return failed;
    }
}

qint64 DocumentFile::largestFile()
{
    return DocumentLimits::largestFile;
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
