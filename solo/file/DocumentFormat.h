#pragma once

#include <QString>

/** The beginnings of lines in a document file that are not items; see docs/file-format.md. */
namespace DocumentFormat
{
/** The version that is written; newer ones are read as far as possible. */
inline constexpr int version = 1;

/** The first line is this keyword and the version. */
inline const QString headerKeyword = QStringLiteral("tonquill-document ");

inline const QString pageCountKeyword = QStringLiteral("tonquill_pagecount ");
inline const QString paperKeyword = QStringLiteral("tonquill_paper ");

/** The last line. */
inline const QString endLine = QStringLiteral("tonquill-end");
} // namespace DocumentFormat
