#pragma once

#include "DocumentLimits.h"

#include <QByteArray>
#include <QString>

/**
 * Reads whole regular files, also through symbolic links. Folders, devices and pipes are refused,
 * so reading never blocks.
 */
namespace OrdinaryFile
{
/** The bytes of a file; `error` is empty on success. */
struct Contents
{
    QByteArray bytes;
    QString error;
};

/** The error for a file of this size; empty if it is not too large. */
QString problemOfSize(qint64 bytes, qint64 largest = DocumentLimits::largestFile);

/** Reads a file of at most `largest` bytes. */
Contents read(const QString &path, qint64 largest = DocumentLimits::largestFile);
} // namespace OrdinaryFile
