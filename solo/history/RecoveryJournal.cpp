#include "RecoveryJournal.h"

#include "AtomicFile.h"
#include "DocumentFile.h"
#include "DocumentLimits.h"
#include "OrdinaryFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace
{
const QByteArray header = QByteArrayLiteral("tonquill-recovery ");

/** The largest document plus the journal's first line. */
constexpr qint64 largestJournal = DocumentLimits::largestFile + 64 * 1024;

constexpr QFile::Permissions ownersFolder = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
} // namespace

RecoveryJournal::RecoveryJournal(const QString &folder)
    : m_file(QDir(folder).filePath(QStringLiteral("recovery.tonquill")))
    , m_isUndecided(QFileInfo::exists(m_file))
{}

QString RecoveryJournal::prepare() const
{
    const QString folder = QFileInfo(m_file).path();
    QDir().mkpath(QFileInfo(folder).path());
    QDir().mkdir(folder, ownersFolder);
    QFile::setPermissions(folder, ownersFolder);
    const QFileInfo made(folder);
    return made.isDir() && made.isWritable() ? QString()
                                             : tr("Nothing can be written to the folder %1.")
                                                   .arg(QDir::toNativeSeparators(folder));
}

bool RecoveryJournal::write(const DocumentSnapshot &document, const QString &path,
                            const QByteArray &contents)
{
    if (m_isUndecided)
        return false;
    m_error = prepare();
    if (!m_error.isEmpty())
        return false;
    m_error = AtomicFile::write(m_file,
                                header + QUrl::toPercentEncoding(path) + ' ' + contents + '\n' +
                                    DocumentFile::format(document),
                                AtomicFile::Readers::OwnerOnly);
    return m_error.isEmpty();
}

std::optional<RecoveryJournal::Found> RecoveryJournal::find(const Paper &defaultPaper) const
{
    const QByteArray bytes = OrdinaryFile::read(m_file, largestJournal).bytes;
    const qsizetype firstEnd = bytes.indexOf('\n') + 1;
    const DocumentFile::Reading reading = DocumentFile::parse(bytes.sliced(firstEnd), defaultPaper);
    if (!bytes.startsWith(header) || !reading.isDocument)
        return std::nullopt;
    const QByteArrayList fields = bytes.first(firstEnd).sliced(header.size()).trimmed().split(' ');
    return Found{QUrl::fromPercentEncoding(fields.value(0)), QFileInfo(m_file).lastModified(),
                 reading.document, fields.value(1), reading.problemText()};
}

QString RecoveryJournal::keepCopy() const
{
    const OrdinaryFile::Contents contents = OrdinaryFile::read(m_file, largestJournal);
    if (!contents.error.isEmpty())
        return QString();
    const QFileInfo info(m_file);
    const QString begin =
        info.path() + info.lastModified().toString(QStringLiteral("'/recovery-'yyyyMMdd-HHmmss"));
    QString copy = begin + QStringLiteral(".tonquill");
    for (int i = 2; QFileInfo::exists(copy); ++i) {
        // An interrupted start has already made it.
        if (OrdinaryFile::read(copy, largestJournal).bytes == contents.bytes)
            return copy;
        copy = QStringLiteral("%1-%2.tonquill").arg(begin).arg(i);
    }
    const QString error = AtomicFile::write(copy, contents.bytes, AtomicFile::Readers::OwnerOnly);
    return error.isEmpty() ? copy : QString();
}

void RecoveryJournal::discard()
{
    if (!m_isUndecided)
        QFile::remove(m_file);
}
