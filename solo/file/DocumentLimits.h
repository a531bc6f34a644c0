#pragma once

#include <QtGlobal>

/**
 * The limits of a document. Even a small file could take too much time or memory; documents made by
 * hand come nowhere near these limits.
 */
namespace DocumentLimits
{
/** The size of a file in bytes. */
inline constexpr qint64 largestFile = 128 * 1024 * 1024;

/** The lines of a file, and the items among them. */
inline constexpr qsizetype mostLines = 1'000'000;
inline constexpr qsizetype mostItems = 200'000;

/** More pages must be an error; each takes a part of the scene's height. */
inline constexpr int mostPages = 10'000;

/** The longest side of a sheet, in scene units: about 25 metres. */
inline constexpr double longestSheet = 90'000;

/** The largest absolute coordinate, in scene units. */
inline constexpr double farthest = 100'000'000;

/** In formatted text: nesting of elements and tables, and the cells of all tables. */
inline constexpr qsizetype deepestText = 200;
inline constexpr qsizetype deepestTables = 8;
inline constexpr double mostCells = 5'000;

/**
 * The height of a text in scene units; the lines of all texts before wrapping; and the sum of
 * squared word lengths, since layout takes quadratic time per word.
 */
inline constexpr double highestText = 8'000'000;
inline constexpr double mostTextLines = 500'000;
inline constexpr double mostWordSquares = 4e9;

/** The pixels of all pictures in formatted text. */
inline constexpr qint64 mostPixels = 64'000'000;
} // namespace DocumentLimits
