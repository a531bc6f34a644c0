#pragma once

#include <QByteArray>
#include <QString>

/**
 * What a file on disk was at one moment, to find out later whether another program has changed or
 * replaced it. A default one stands for no file.
 */
struct FileStamp
{
    /** What has become of a file. */
    enum class Change { None, Changed, Removed };

    bool exists = false;
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modified = 0; ///< nanoseconds since 1970
    QByteArray contents; ///< a hash in hexadecimal digits; empty if it was not read

    /** The file as it is now, without a look into it. */
    static FileStamp at(const QString &path);

    /** The file that these bytes were just read from, or written to. */
    static FileStamp of(const QString &path, const QByteArray &bytes);

    /** A file of which only the hash of its contents is known. */
    static FileStamp ofContents(const QByteArray &hash);

    /** True if the disk tells the same of both, whatever their contents. */
    bool looksLike(const FileStamp &other) const;

    /** True if both are one file, by whatever names it goes. */
    bool isSameFileAs(const FileStamp &other) const;

    /** What has become of the file since. One that holds the same bytes as before is unchanged. */
    Change changeAt(const QString &path) const;
};
