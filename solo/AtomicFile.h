#pragma once

#include <QByteArray>
#include <QString>

/** Writes whole files: afterwards there is the new file or, if anything failed, the old one. */
namespace AtomicFile
{
/** Writes the file. The answer is empty, or says what went wrong. */
QString write(const QString &path, const QByteArray &bytes);
} // namespace AtomicFile
