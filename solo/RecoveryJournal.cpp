#include "RecoveryJournal.h"

#include "DocumentFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
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
    QSaveFile file(m_file);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(header + QUrl::toPercentEncoding(path) + '\n');
    file.write(DocumentFile::format(document));
    return file.commit();
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
