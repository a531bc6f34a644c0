#include "AtomicFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#if defined(Q_OS_LINUX)
#include "FileDescriptor.h"
#include "FileOwnership.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <QSaveFile>
#endif

namespace
{
QString notEverything()
{
    return QCoreApplication::translate("AtomicFile",
                                       "Not everything could be written. Is the disk full?");
}
} // namespace

#if defined(Q_OS_LINUX)
namespace
{
bool isFullDisk(int error)
{
    return error == ENOSPC || error == EDQUOT || error == EFBIG;
}

QString reason(int error)
{
    return isFullDisk(error) ? notEverything() : qt_error_string(error);
}

/**
 * The file that a path leads to through symbolic links, even if it does not exist. Empty if the
 * links form a loop.
 */
QString followed(const QString &path)
{
    constexpr int longestChain = 128;
    QFileInfo info(path);
    if (info.exists())
        return info.canonicalFilePath();
    for (int i = 0; info.isSymLink(); ++i) {
        if (i == longestChain)
            return QString();
        info.setFile(info.symLinkTarget());
    }
    return info.filePath();
}

/** True if the path can be converted to the system's encoding and back without loss. */
bool isRepresentable(const QString &path)
{
    // Invalid UTF-8 was replaced when the name was read, so the path would be another file.
    const auto isRead = [](const QString &name, const QString &whole) {
        return !name.contains(QChar::ReplacementCharacter) || QFileInfo::exists(whole);
    };
    const QFileInfo info(path);
    return QFile::decodeName(QFile::encodeName(path)) == path && isRead(info.fileName(), path) &&
           isRead(info.path(), info.path());
}

/** The result of one way of writing a file. */
struct Outcome
{
    int error = 0;               ///< the system's error number, 0 on success
    bool isOtherWayOpen = false; ///< writing in place may still work
    AtomicFile::Left left = AtomicFile::Left::AsBefore;
};

/** Replaces `target` with a new file. */
Outcome replace(const QByteArray &target, bool exists, const QByteArray &bytes,
                AtomicFile::Readers readers)
{
    constexpr int ownersOnly = 0600;
    constexpr int forEverybody = 0666; // reduced by the umask
    if (exists && FileOwnership::hasOtherNames(target))
        return {EMLINK, true};
    const bool isLikeOld = exists && readers == AtomicFile::Readers::AsUsual;
    const bool isForAll = !exists && readers == AtomicFile::Readers::AsUsual;
    QByteArray newPath;
    const FileDescriptor made =
        FileDescriptor::createBeside(target, isForAll ? forEverybody : ownersOnly, newPath);
    if (!made.isOpen())
        return {errno, exists && !isFullDisk(errno)};
    Outcome outcome;
    if (isLikeOld && !FileOwnership::copy(target, made))
        outcome = {EPERM, true};
    if (outcome.error == 0)
        outcome.error = made.write(bytes.constData(), bytes.size());
    if (outcome.error == 0)
        outcome.error = made.sync();
    if (outcome.error == 0 && std::rename(newPath.constData(), target.constData()) != 0)
        outcome = {errno, exists};
    if (outcome.error == 0)
        return {made.syncFolderOf(target), false, AtomicFile::Left::New};
    ::unlink(newPath.constData());
    return outcome;
}

/** Writes a file in place, after making a copy of its old contents. */
class WriteThrough
{
public:
    explicit WriteThrough(const QByteArray &target)
        : m_target(target)
        , m_file(FileDescriptor::open(target, O_RDWR))
        , m_copy(makeCopy())
    {}

    /** Returns an empty string on success, else the error. */
    QString write(const QByteArray &bytes);

    /** The state of the file after write() failed. */
    AtomicFile::Left left() const { return m_left; }

private:
    FileDescriptor makeCopy();
    int putIntoFile(const QByteArray &bytes) const;
    int putBack() const;

    QByteArray m_target;
    FileDescriptor m_file;
    QByteArray m_copyPath;
    int m_copyError = 0;
    FileDescriptor m_copy;
    AtomicFile::Left m_left = AtomicFile::Left::AsBefore;
};

/** Beside the file or, if that is not possible, in the temporary folder. */
FileDescriptor WriteThrough::makeCopy()
{
    m_copyError = errno;
    if (!m_file.isOpen())
        return FileDescriptor();
    const QString elsewhere =
        QDir::temp().filePath(QFileInfo(QFile::decodeName(m_target)).fileName());
    for (const QByteArray &place : {m_target, QFile::encodeName(elsewhere)}) {
        constexpr int ownersOnly = 0600;
        FileDescriptor copy = FileDescriptor::createBeside(place, ownersOnly, m_copyPath);
        m_copyError = copy.isOpen() ? copy.writeAllOf(m_file) : errno;
        if (m_copyError == 0)
            m_copyError = copy.sync();
        if (m_copyError == 0)
            m_copyError = copy.syncFolderOf(m_copyPath);
        if (m_copyError == 0)
            return copy;
        if (copy.isOpen())
            ::unlink(m_copyPath.constData());
    }
    return FileDescriptor();
}

int WriteThrough::putIntoFile(const QByteArray &bytes) const
{
    int error = m_file.rewind();
    if (error == 0)
        error = m_file.write(bytes.constData(), bytes.size());
    if (error == 0)
        error = m_file.cutOff(bytes.size());
    return error == 0 ? m_file.sync() : error;
}

int WriteThrough::putBack() const
{
    struct stat status = {};
    int error = ::fstat(m_copy.number(), &status) != 0 ? errno : m_file.rewind();
    if (error == 0)
        error = m_file.writeAllOf(m_copy);
    if (error == 0)
        error = m_file.cutOff(status.st_size);
    return error == 0 ? m_file.sync() : error;
}

QString WriteThrough::write(const QByteArray &bytes)
{
    if (!m_copy.isOpen()) {
        return QCoreApplication::translate(
                   "AtomicFile",
                   "The file would get another owner or lose its other names if it were replaced, "
                   "and what it holds cannot be kept safe while it is written: %1")
            .arg(reason(m_copyError));
    }
    // Fail before writing rather than in the middle.
    if (const int error = m_file.reserve(bytes.size())) {
        ::unlink(m_copyPath.constData());
        return reason(error);
    }
    const int error = putIntoFile(bytes);
    if (error != 0 && putBack() != 0) {
        m_left = AtomicFile::Left::Damaged;
        return QCoreApplication::translate(
                   "AtomicFile", "%1\nThe file is damaged now. What it held before is in “%2”.")
            .arg(reason(error), QDir::toNativeSeparators(QFile::decodeName(m_copyPath)));
    }
    ::unlink(m_copyPath.constData());
    return error == 0 ? QString() : reason(error);
}
} // namespace

QString AtomicFile::write(const QString &path, const QByteArray &bytes, Readers readers, Left *left)
{
    const QString followedPath = followed(path);
    if (!isRepresentable(path) || !isRepresentable(followedPath)) {
        return QCoreApplication::translate("AtomicFile",
                                           "The name has characters that are not UTF-8. "
                                           "Please choose another name.");
    }
    if (followedPath.isEmpty())
        return qt_error_string(ELOOP);
    // Replacing the file would destroy a device.
    const QFileInfo info(followedPath);
    if (info.exists() && !info.isFile())
        return QCoreApplication::translate("AtomicFile", "This is not an ordinary file.");
    const QByteArray target = QFile::encodeName(followedPath);
    if (info.exists() && !FileOwnership::mayWrite(target))
        return QCoreApplication::translate("AtomicFile", "The file is write-protected.");
    const Outcome outcome = replace(target, info.exists(), bytes, readers);
    Left leftThere = outcome.left;
    QString error = outcome.error == 0 ? QString() : reason(outcome.error);
    if (outcome.error != 0 && outcome.isOtherWayOpen) {
        WriteThrough through(target);
        error = through.write(bytes);
        leftThere = through.left();
    }
    if (left && !error.isEmpty())
        *left = leftThere;
    return error;
}

#else

QString AtomicFile::write(const QString &path, const QByteArray &bytes, Readers readers, Left *)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return QCoreApplication::translate("AtomicFile", "This is not an ordinary file.");
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    if (readers == Readers::OwnerOnly)
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    // On a full disk only a part is written, which Qt reports as success.
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        const QString error =
            file.error() == QFileDevice::NoError ? notEverything() : file.errorString();
        file.cancelWriting();
        return error;
    }
    return file.commit() ? QString() : file.errorString();
}
#endif
