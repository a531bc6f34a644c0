#pragma once

#include <QByteArray>

class FileDescriptor;

/** Whose a file is and who may do what with it: owner, group, mode and extended attributes. */
namespace FileOwnership
{
/**
 * Gives a new file all that the file at `path` has. False if one of them may not be given, as
 * when the file is another user's; then the new file must not take the old one's place.
 */
bool copy(const QByteArray &path, const FileDescriptor &newFile);

/** True if the file has other names, which would go on naming the old one. */
bool hasOtherNames(const QByteArray &path);

/** True if this process may write the file. */
bool mayWrite(const QByteArray &path);
} // namespace FileOwnership
