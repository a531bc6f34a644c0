#pragma once

#include "DocumentReading.h"

#include <QByteArray>
#include <QString>

/**
 * The document's file: UTF-8 text with one line per item, see docs/file-format.md.
 *
 * A plain document of the host link can be read, too. Problems are reported with their lines, and
 * the rest is returned.
 */
namespace DocumentFile
{
using Reading = DocumentReading;
using Problem = DocumentReading::Problem;

/** The bytes of a document's file. */
QByteArray format(const DocumentSnapshot &document);

/** Reads the bytes of a file. A document without paper gets `defaultPaper`. */
Reading parse(const QByteArray &bytes, const Paper &defaultPaper);

/** The maximum size of a file that is read, in bytes. */
qint64 largestFile();

/**
 * Reads a file. If it cannot be opened, the result has the error and `isDocument` is false. Devices
 * and pipes are refused.
 */
Reading load(const QString &path, const Paper &defaultPaper);

/**
 * Writes a file atomically. Returns an empty string on success, else the error; it is also an error
 * if the document is too large to be read again. On success, `stamp`, if not null, receives the
 * state of the file.
 */
QString save(const QString &path, const DocumentSnapshot &document, FileStamp *stamp = nullptr);
} // namespace DocumentFile
