#pragma once

#include <QByteArray>
#include <QString>

/** Writes whole files: afterwards there is the new file or, if anything failed, the old one. */
namespace AtomicFile
{
/** Who may read a file. */
enum class Readers {
    AsUsual,  ///< as the old file says or, of a new one, the system
    OwnerOnly ///< at no moment anybody else
};

/** What is in the file's place after writing failed. */
enum class Left {
    AsBefore, ///< the old file, or none
    New,      ///< the new file, which a power cut may take back
    Damaged   ///< neither of them; the answer says where the old one is
};

/**
 * Writes the file. The answer is empty, or says what went wrong.
 *
 * The new file takes the old one's place in one step and has its owner, group, mode and extended
 * attributes. Where that cannot be, because the file is another user's, has further names (hard
 * links) or lies in a folder that takes no new file, the file itself is written, and a copy of what
 * it held is kept until that is done and put back if it fails. A symbolic link is followed. When
 * this returns, file and folder are on the disk. If it failed, `left` is told what there is.
 */
QString write(const QString &path, const QByteArray &bytes, Readers readers = Readers::AsUsual,
              Left *left = nullptr);
} // namespace AtomicFile
