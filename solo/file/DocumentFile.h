#pragma once

#include "DocumentReading.h"

#include <QByteArray>
#include <QString>

/**
 * The document's file: UTF-8 text, one record a line. docs/file-format.md describes it.
 *
 * Reading takes a plain document of the host link as well. What cannot be read is reported with
 * its line; the rest is there to be offered.
 */
namespace DocumentFile
{
using Reading = DocumentReading;
using Problem = DocumentReading::Problem;

/** The bytes of a document's file. */
QByteArray format(const DocumentSnapshot &document);

/** Reads the bytes of a file. Without paper of its own the document lies on `defaultPaper`. */
Reading parse(const QByteArray &bytes, const Paper &defaultPaper);

/** The bytes that a file may have to be read. */
qint64 largestFile();

/**
 * Reads a file; one that cannot be opened is a Reading that is no document and says why. What is
 * not an ordinary file is not waited for.
 */
Reading load(const QString &path, const Paper &defaultPaper);

/**
 * Writes a file atomically. The answer is empty, or says what went wrong: also when the
 * document is more than could be read again. Only if nothing did, `stamp` is what the file is then.
 */
QString save(const QString &path, const DocumentSnapshot &document, FileStamp *stamp = nullptr);
} // namespace DocumentFile
