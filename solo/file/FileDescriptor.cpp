#include "FileDescriptor.h"

#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace
{
/** The longest file name that common file systems allow, in bytes. */
constexpr qsizetype longestName = 255;

int answer(int result)
{
    return result < 0 ? errno : 0;
}

qsizetype nameStart(const QByteArray &path)
{
    return path.lastIndexOf('/') + 1;
}

QByteArray folderOf(const QByteArray &path)
{
    const qsizetype start = nameStart(path);
    return start == 0 ? QByteArray(".") : path.first(start);
}

/** The path with a unique suffix; long names are shortened to make room for it. */
QByteArray likeButOther(const QByteArray &path)
{
    constexpr qsizetype letters = 6;
    const QByteArray alphabet("abcdefghijklmnopqrstuvwxyz0123456789");
    QByteArray name =
        path.sliced(nameStart(path))
            .first(std::min(path.size() - nameStart(path), longestName - letters - 1));
    // Not within a multi-byte character: some file systems require valid UTF-8.
    const auto isWithinLetter = [&path](qsizetype at) {
        return at < path.size() && (path[at] & 0xc0) == 0x80;
    };
    while (!name.isEmpty() && isWithinLetter(nameStart(path) + name.size()))
        name.chop(1);
    name += '.';
    for (qsizetype i = 0; i < letters; ++i)
        name += alphabet[QRandomGenerator::global()->bounded(int(alphabet.size()))];
    return path.first(nameStart(path)) + name;
}
} // namespace

FileDescriptor::~FileDescriptor()
{
    if (isOpen())
        ::close(m_descriptor);
}

int FileDescriptor::release()
{
    return std::exchange(m_descriptor, -1);
}

FileDescriptor FileDescriptor::open(const QByteArray &path, int flags)
{
    return FileDescriptor(::open(path.constData(), flags | O_CLOEXEC));
}

FileDescriptor FileDescriptor::createBeside(const QByteArray &path, int mode, QByteArray &madePath)
{
    constexpr int mostTries = 100;
    for (int i = 0; i < mostTries; ++i) {
        madePath = likeButOther(path);
        const int made =
            ::open(madePath.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode_t(mode));
        if (made >= 0 || errno != EEXIST)
            return FileDescriptor(made);
    }
    return FileDescriptor();
}

int FileDescriptor::write(const char *bytes, qsizetype size) const
{
    while (size > 0) {
        const ssize_t written = ::write(m_descriptor, bytes, size_t(size));
        if (written < 0 && errno != EINTR)
            return errno;
        bytes += std::max(written, ssize_t(0));
        size -= std::max(written, ssize_t(0));
    }
    return 0;
}

int FileDescriptor::writeAllOf(const FileDescriptor &other) const
{
    std::array<char, 65536> piece{};
    if (const int error = other.rewind())
        return error;
    for (;;) {
        const ssize_t length = ::read(other.m_descriptor, piece.data(), piece.size());
        if (length == 0)
            return 0;
        if (length < 0 && errno != EINTR)
            return errno;
        const int error = write(piece.data(), std::max(length, ssize_t(0)));
        if (error != 0)
            return error;
    }
}

int FileDescriptor::reserve(qint64 size) const
{
    if (size == 0)
        return 0;
    const int error = answer(::fallocate(m_descriptor, FALLOC_FL_KEEP_SIZE, 0, size));
    // Not every file system supports this.
    return error == ENOSPC || error == EDQUOT || error == EFBIG ? error : 0;
}

int FileDescriptor::rewind() const
{
    return ::lseek(m_descriptor, 0, SEEK_SET) < 0 ? errno : 0;
}

int FileDescriptor::cutOff(qint64 size) const
{
    return answer(::ftruncate(m_descriptor, size));
}

int FileDescriptor::sync() const
{
    return answer(::fsync(m_descriptor));
}

int FileDescriptor::syncFolderOf(const QByteArray &path) const
{
    const FileDescriptor folder = open(folderOf(path), O_RDONLY | O_DIRECTORY);
    // A folder without read permission cannot be opened; then sync the whole file system.
    if (!folder.isOpen())
        return answer(::syncfs(m_descriptor));
    const int error = folder.sync();
    // Some network file systems do not support syncing folders.
    return error == EINVAL || error == ENOTSUP ? 0 : error;
}
