#pragma once

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

Contents read(const QString &path);
} // namespace OrdinaryFile
