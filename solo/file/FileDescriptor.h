#pragma once

#include <QByteArray>
#include <QtGlobal>

/**
 * Owns a file descriptor and closes it on destruction. Functions that may fail return 0 or the
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

    /**
     * Opens an existing file for reading or writing, without truncating it; see errno on failure.
     */
    static FileDescriptor open(const QByteArray &path, int flags);

    /**
     * Creates a new file beside `path` with a similar name, and stores its path in `madePath`; see
     * errno on failure.
     */
    static FileDescriptor createBeside(const QByteArray &path, int mode, QByteArray &madePath);

    bool isOpen() const { return m_descriptor >= 0; }
    int number() const { return m_descriptor; }

    /** Writes at the current position. */
    int write(const char *bytes, qsizetype size) const;

    /** Writes the whole contents of another file at the current position. */
    int writeAllOf(const FileDescriptor &other) const;

    /** Reserves disk space for `size` bytes from the beginning, if the file system supports it. */
    int reserve(qint64 size) const;

    int rewind() const;
    int cutOff(qint64 size) const;

    /** Syncs the file to disk. */
    int sync() const;

    /** Syncs the folder of `path`, which is this file's path, to disk. */
    int syncFolderOf(const QByteArray &path) const;

private:
    int release();

    int m_descriptor;
};
