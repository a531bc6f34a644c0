#pragma once

#include <QString>

/** The application's directory, which has the symbols reference files. */
extern QString g_csINIPath;

/** The directory of the symbols reference files. */
namespace SymRefPaths
{
/** The beginning of a file's name, before the instrument. */
inline const QString namePrefix = QStringLiteral("SymRef_");

/** The file of an instrument. */
QString pathOf(const QString &instrument);

/** False if the name would be outside of the application's directory. */
bool staysInDirectory(const QString &instrument);
} // namespace SymRefPaths
