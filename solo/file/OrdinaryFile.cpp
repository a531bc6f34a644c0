#include "OrdinaryFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
/** Qt replaces undecodable bytes of a name, so the file is not found by it. */
QString reasonOf(int error, const QString &path)
{
    if (error == ENOENT && path.contains(QChar::ReplacementCharacter))
        return QCoreApplication::translate(
            "OrdinaryFile", "Its name is not UTF-8. Give the file another name first.");
    return qt_error_string(error);
}

/** Why this file is refused; empty for a regular file that is not too large. */
QString objectionTo(const struct stat &info, qint64 largest)
{
    if (S_ISDIR(info.st_mode))
        return QCoreApplication::translate("OrdinaryFile", "This is a folder.");
    if (!S_ISREG(info.st_mode))
        return QCoreApplication::translate("OrdinaryFile", "This is not an ordinary file.");
    return OrdinaryFile::problemOfSize(info.st_size, largest);
}
} // namespace

QString OrdinaryFile::problemOfSize(qint64 bytes, qint64 largest)
{
    if (bytes <= largest)
        return QString();
    return QCoreApplication::translate(
               "OrdinaryFile", "The file is too large: %1, where documents have at most %2.")
        .arg(QLocale().formattedDataSize(bytes), QLocale().formattedDataSize(largest));
}

OrdinaryFile::Contents OrdinaryFile::read(const QString &path, qint64 largest)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat info
    {};
    // Check the type first: merely opening a device may have effects.
    if (stat(name.constData(), &info) != 0)
        return Contents{{}, reasonOf(errno, path)};
    if (const QString objection = objectionTo(info, largest); !objection.isEmpty())
        return Contents{{}, objection};
    // Do not block if it has been replaced with a pipe since.
    const int descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return Contents{{}, reasonOf(errno, path)};
    const bool isKnown = fstat(descriptor, &info) == 0;
    const QString objection = isKnown ? objectionTo(info, largest) : qt_error_string(errno);
    QFile file;
    if (!objection.isEmpty() ||
        !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return Contents{{}, objection.isEmpty() ? file.errorString() : objection};
    }
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? Contents{bytes, QString()}
                                                : Contents{{}, file.errorString()};
}
