#include "FileStamp.h"

#include "OrdinaryFile.h"

#include <QCryptographicHash>
#include <QFile>

#include <sys/stat.h>

namespace
{
QByteArray hashOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}
} // namespace

FileStamp FileStamp::at(const QString &path)
{
    struct stat info
    {};
    FileStamp stamp;
    if (path.isEmpty() || stat(QFile::encodeName(path).constData(), &info) != 0)
        return stamp;
    constexpr qint64 second = 1'000'000'000;
    stamp.exists = true;
    stamp.device = info.st_dev;
    stamp.inode = info.st_ino;
    stamp.size = info.st_size;
    stamp.modified = info.st_mtim.tv_sec * second + info.st_mtim.tv_nsec;
    return stamp;
}

FileStamp FileStamp::of(const QString &path, const QByteArray &bytes)
{
    FileStamp stamp = at(path);
    stamp.exists = true;
    stamp.contents = hashOf(bytes);
    return stamp;
}

FileStamp FileStamp::ofContents(const QByteArray &hash)
{
    FileStamp stamp;
    stamp.exists = !hash.isEmpty();
    stamp.contents = hash;
    return stamp;
}

bool FileStamp::looksLike(const FileStamp &other) const
{
    return exists == other.exists && device == other.device && inode == other.inode &&
           size == other.size && modified == other.modified;
}

bool FileStamp::isSameFileAs(const FileStamp &other) const
{
    return exists && other.exists && device == other.device && inode == other.inode;
}

FileStamp::Change FileStamp::changeAt(const QString &path) const
{
    const FileStamp now = at(path);
    if (!now.exists)
        return exists ? Change::Removed : Change::None;
    if (!exists)
        return Change::Changed;
    // Two writes may have the same time, so the contents decide.
    const OrdinaryFile::Contents read = OrdinaryFile::read(path);
    const bool isSame = read.error.isEmpty() ? hashOf(read.bytes) == contents : looksLike(now);
    return isSame ? Change::None : Change::Changed;
}
