#pragma once

#include <QByteArray>
#include <QString>

/** Writes whole files: afterwards there is the new file or, if anything failed, the old one. */
namespace AtomicFile
{
/**
 * Writes the file. The answer is empty, or says what went wrong.
 *
 * The new file takes the old one's place in one step and has its owner, group, mode and extended
 * attributes. Where that cannot be, because the file is another user's, has further names (hard
 * links) or lies in a folder that takes no new file, the file itself is written, and a copy of what
 * it held is kept until that is done and put back if it fails. A symbolic link is followed. When
 * this returns, file and folder are on the disk.
 */
QString write(const QString &path, const QByteArray &bytes);
} // namespace AtomicFile
