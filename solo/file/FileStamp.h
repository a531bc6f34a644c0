#pragma once

#include <QByteArray>
#include <QString>

/**
 * The state of a file on disk, to find out later whether another program has changed or replaced
 * it. A default-constructed stamp stands for no file.
 */
struct FileStamp
{
    /** What happened to a file. */
    enum class Change { None, Changed, Removed };

    bool exists = false;
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modified = 0; ///< nanoseconds since 1970
    QByteArray contents; ///< a hash in hexadecimal digits; empty if unknown

    /** The current state of the file, without reading it. */
    static FileStamp at(const QString &path);

    /** The state of the file from which `bytes` were just read or to which they were written. */
    static FileStamp of(const QString &path, const QByteArray &bytes);

    /** The state of a file of which only the hash of its contents is known. */
    static FileStamp ofContents(const QByteArray &hash);

    /** True if both have the same metadata; contents are not compared. */
    bool looksLike(const FileStamp &other) const;

    /** True if both are the same file, even under different names. */
    bool isSameFileAs(const FileStamp &other) const;

    /** What has happened to the file since. A file with the same bytes counts as unchanged. */
    Change changeAt(const QString &path) const;
};
