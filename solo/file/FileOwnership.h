#pragma once

#include <QByteArray>

class FileDescriptor;

/** The owner, group, mode and extended attributes of files. */
namespace FileOwnership
{
/**
 * Copies them from the file at `path` to a new file. Returns false if one cannot be set, for
 * example because the file belongs to another user; then the new file must not replace the old one.
 */
bool copy(const QByteArray &path, const FileDescriptor &newFile);

/**
 * True if the file has more hard links, which would still refer to the old file after replacing it.
 */
bool hasOtherNames(const QByteArray &path);

/** True if this process may write the file. */
bool mayWrite(const QByteArray &path);
} // namespace FileOwnership
