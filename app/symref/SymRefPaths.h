#pragma once

#include <QString>

/** The application's directory, where the symbols reference files lie. */
extern QString g_csINIPath;

/** Where the symbols reference files lie. */
namespace SymRefPaths
{
/** What a file's name begins with, before the instrument's. */
inline const QString namePrefix = QStringLiteral("SymRef_");

/** The file of an instrument. */
QString pathOf(const QString &instrument);

/** False if the name climbs out of a folder, and with it out of the application's directory. */
bool staysInDirectory(const QString &instrument);
} // namespace SymRefPaths
