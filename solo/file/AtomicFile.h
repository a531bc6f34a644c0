#pragma once

#include <QByteArray>
#include <QString>

/**
 * Writes files atomically: afterwards there is the new file or, if anything failed, the old one.
 */
namespace AtomicFile
{
/** Who may read a file. */
enum class Readers {
    AsUsual,  ///< as for the old file; for a new one, the system's default
    OwnerOnly ///< never anyone but the owner
};

/** The state of the file after writing failed. */
enum class Left {
    AsBefore, ///< the old file, or none
    New,      ///< the new file, but a power cut may undo it
    Damaged   ///< neither; the error says where the copy of the old one is
};

/**
 * Writes the file. Returns an empty string on success, else the error.
 *
 * The new file replaces the old one in one step and gets its owner, group, mode and extended
 * attributes. If that is not possible, because the file belongs to another user, has hard links or
 * is in a folder that cannot take a new file, it is written in place; a copy of the old contents is
 * kept until that is done and restored if it fails. Symbolic links are followed. On return, file
 * and folder are synced to disk. On failure, `left`, if not null, receives the state of the file.
 */
QString write(const QString &path, const QByteArray &bytes, Readers readers = Readers::AsUsual,
              Left *left = nullptr);
} // namespace AtomicFile
