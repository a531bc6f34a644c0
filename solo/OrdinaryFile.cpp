#include "OrdinaryFile.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
/** What Qt cannot decode of a name it replaces, and then the file is not found by that. */
QString reasonOf(int error, const QString &path)
{
    if (error == ENOENT && path.contains(QChar::ReplacementCharacter))
        return QCoreApplication::translate(
            "OrdinaryFile", "Its name is not UTF-8. Give the file another name first.");
    return qt_error_string(error);
}

/** Why this kind of file is not read; empty for an ordinary one. */
QString objectionTo(const struct stat &info)
{
    if (S_ISDIR(info.st_mode))
        return QCoreApplication::translate("OrdinaryFile", "This is a folder.");
    return S_ISREG(info.st_mode)
               ? QString()
               : QCoreApplication::translate("OrdinaryFile", "This is not an ordinary file.");
}
} // namespace

OrdinaryFile::Contents OrdinaryFile::read(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat info
    {};
    // Even to open a device may do something to it, so what it is comes first.
    if (stat(name.constData(), &info) != 0)
        return Contents{{}, reasonOf(errno, path)};
    if (const QString objection = objectionTo(info); !objection.isEmpty())
        return Contents{{}, objection};
    // Nobody is waited for if a pipe has taken its place since.
    const int descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return Contents{{}, reasonOf(errno, path)};
    QFile file;
    if (fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode) ||
        !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return Contents{
            {}, QCoreApplication::translate("OrdinaryFile", "This is not an ordinary file.")};
    }
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? Contents{bytes, QString()}
                                                : Contents{{}, file.errorString()};
}
