#include "RecoveryJournal.h"

#include "AtomicFile.h"
#include "DocumentFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace
{
const QByteArray header = QByteArrayLiteral("tonquill-recovery ");
} // namespace

RecoveryJournal::RecoveryJournal(const QString &folder)
    : m_file(QDir(folder).filePath(QStringLiteral("recovery.tonquill")))
{}

bool RecoveryJournal::write(const DocumentSnapshot &document, const QString &path)
{
    QDir().mkpath(QFileInfo(m_file).path());
    return AtomicFile::write(m_file, header + QUrl::toPercentEncoding(path) + '\n' +
                                         DocumentFile::format(document))
        .isEmpty();
}

std::optional<RecoveryJournal::Found> RecoveryJournal::find(const Paper &defaultPaper) const
{
    QFile file(m_file);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray first = file.readLine();
    const DocumentFile::Reading reading = DocumentFile::parse(file.readAll(), defaultPaper);
    if (!first.startsWith(header) || !reading.isDocument)
        return std::nullopt;
    return Found{QUrl::fromPercentEncoding(first.sliced(header.size()).trimmed()),
                 QFileInfo(m_file).lastModified(), reading.document};
}

void RecoveryJournal::discard()
{
    QFile::remove(m_file);
}
