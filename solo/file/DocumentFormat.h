#pragma once

#include <QString>

/** What begins the lines of a document file that are no items. docs/file-format.md has them all. */
namespace DocumentFormat
{
/** The version that is written; newer ones are read as far as they are understood. */
inline constexpr int version = 1;

/** The first line is this and the version. */
inline const QString headerKeyword = QStringLiteral("tonquill-document ");

inline const QString pageCountKeyword = QStringLiteral("tonquill_pagecount ");
inline const QString paperKeyword = QStringLiteral("tonquill_paper ");

/** The last line is this. */
inline const QString endLine = QStringLiteral("tonquill-end");
} // namespace DocumentFormat
