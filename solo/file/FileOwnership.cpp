#include "FileOwnership.h"

#include "FileDescriptor.h"

#include <QByteArrayList>

#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{
/** Calls `get(buffer, size)` with a buffer that is large enough; nullopt if that fails. */
template <typename Get>
std::optional<QByteArray> sized(const Get &get)
{
    constexpr int mostTries = 10;
    // The size may grow between the two calls.
    for (int i = 0; i < mostTries; ++i) {
        const ssize_t size = get(nullptr, size_t(0));
        if (size < 0)
            return std::nullopt;
        QByteArray result(size, '\0');
        const ssize_t got = get(result.data(), size_t(size));
        if (got >= 0)
            return result.first(got);
        if (errno != ERANGE)
            return std::nullopt;
    }
    return std::nullopt;
}

/** The names of the attributes; none if the file system does not support them; nullopt on error. */
std::optional<QByteArrayList> attributesOf(const QByteArray &path)
{
    const auto names =
        sized([&](char *to, size_t size) { return ::listxattr(path.constData(), to, size); });
    if (!names)
        return errno == ENOTSUP ? std::optional(QByteArrayList()) : std::nullopt;
    QByteArrayList result = names->split('\0');
    result.removeAll(QByteArray());
    return result;
}

std::optional<QByteArray> attribute(const QByteArray &path, const QByteArray &name)
{
    return sized([&](char *to, size_t size) {
        return ::getxattr(path.constData(), name.constData(), to, size);
    });
}

bool copyAttributes(const QByteArray &path, const FileDescriptor &newFile)
{
    const QByteArray newPath = "/proc/self/fd/" + QByteArray::number(newFile.number());
    const std::optional<QByteArrayList> names = attributesOf(path);
    const std::optional<QByteArrayList> newNames = attributesOf(newPath);
    if (!names || !newNames)
        return false;
    // Remove attributes that new files inherit from the folder but the old file does not have.
    for (const QByteArray &name : *newNames) {
        if (!names->contains(name) && ::fremovexattr(newFile.number(), name.constData()) != 0)
            return false;
    }
    for (const QByteArray &name : *names) {
        const std::optional<QByteArray> value = attribute(path, name);
        if (!value)
            return false;
        if (attribute(newPath, name) != value &&
            ::fsetxattr(newFile.number(), name.constData(), value->constData(),
                        size_t(value->size()), 0) != 0)
            return false;
    }
    return true;
}
} // namespace

bool FileOwnership::copy(const QByteArray &path, const FileDescriptor &newFile)
{
    struct stat from = {};
    struct stat to = {};
    if (::stat(path.constData(), &from) != 0 || ::fstat(newFile.number(), &to) != 0)
        return false;
    constexpr uid_t sameUser = uid_t(-1);
    constexpr gid_t sameGroup = gid_t(-1);
    const uid_t user = from.st_uid == to.st_uid ? sameUser : from.st_uid;
    const gid_t group = from.st_gid == to.st_gid ? sameGroup : from.st_gid;
    if ((user != sameUser || group != sameGroup) && ::fchown(newFile.number(), user, group) != 0)
        return false;
    constexpr mode_t permissions = 07777;
    // An access control list contains the group's permissions in its mask, so it is set after the
    // mode.
    return ::fchmod(newFile.number(), from.st_mode & permissions) == 0 &&
           copyAttributes(path, newFile) && ::fstat(newFile.number(), &to) == 0 &&
           (to.st_mode & permissions) == (from.st_mode & permissions);
}

bool FileOwnership::hasOtherNames(const QByteArray &path)
{
    struct stat status = {};
    return ::stat(path.constData(), &status) == 0 && status.st_nlink > 1;
}

bool FileOwnership::mayWrite(const QByteArray &path)
{
    return ::faccessat(AT_FDCWD, path.constData(), W_OK, AT_EACCESS) == 0;
}
