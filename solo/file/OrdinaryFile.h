#pragma once

#include "DocumentLimits.h"

#include <QByteArray>
#include <QString>

/**
 * Reads whole files of the ordinary kind, and links to them. Folders, devices and pipes are
 * refused instead of waited for.
 */
namespace OrdinaryFile
{
/** What was read; `error` is empty, or says why nothing was. */
struct Contents
{
    QByteArray bytes;
    QString error;
};

/** What is wrong with a file of so many bytes; empty if nothing is. */
QString problemOfSize(qint64 bytes, qint64 largest = DocumentLimits::largestFile);

/** Reads a file of at most `largest` bytes. */
Contents read(const QString &path, qint64 largest = DocumentLimits::largestFile);
} // namespace OrdinaryFile
