#include "AtomicFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

QString AtomicFile::write(const QString &path, const QByteArray &bytes)
{
    // The new file takes the place of the old one, which would be the end of a device.
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return QCoreApplication::translate("AtomicFile", "This is not an ordinary file.");
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    // On a full disk a part is written, which the toolkit takes for success.
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        const QString reason =
            file.error() == QFileDevice::NoError
                ? QCoreApplication::translate("AtomicFile",
                                              "Not everything could be written. Is the disk full?")
                : file.errorString();
        file.cancelWriting();
        return reason;
    }
    return file.commit() ? QString() : file.errorString();
}
