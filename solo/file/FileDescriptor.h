#pragma once

#include <QByteArray>
#include <QtGlobal>

/**
 * An open file of the system, closed when this ends. Functions that may fail answer 0 or the
 * system's error number.
 */
class FileDescriptor
{
public:
    explicit FileDescriptor(int descriptor = -1)
        : m_descriptor(descriptor)
    {}
    ~FileDescriptor();
    Q_DISABLE_COPY(FileDescriptor)
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_descriptor(other.release())
    {}
    FileDescriptor &operator=(FileDescriptor &&) = delete;

    /** Opens a file that is there, to be read or written without cutting it off. */
    static FileDescriptor open(const QByteArray &path, int flags);

    /** Makes a file of its own beside `path`, with a name like that one's, and says its path. */
    static FileDescriptor createBeside(const QByteArray &path, int mode, QByteArray &madePath);

    bool isOpen() const { return m_descriptor >= 0; }
    int number() const { return m_descriptor; }

    /** Writes on from where the file stands. */
    int write(const char *bytes, qsizetype size) const;

    /** Writes all of another file, from its beginning, on from where this one stands. */
    int writeAllOf(const FileDescriptor &other) const;

    /** Makes sure that there is room for `size` bytes from the beginning, if that can be told. */
    int reserve(qint64 size) const;

    int rewind() const;
    int cutOff(qint64 size) const;

    /** Returns when the file is on the disk. */
    int sync() const;

    /** Returns when the names in the folder of `path`, this file's, are on the disk. */
    int syncFolderOf(const QByteArray &path) const;

private:
    int release();

    int m_descriptor;
};
