#pragma once

#include <QtGlobal>

/**
 * What a document may hold at most. A small file can ask for more time or memory than there is; no
 * document that was made by hand comes near to any of these.
 */
namespace DocumentLimits
{
/** Bytes of a file. */
inline constexpr qint64 largestFile = 128 * 1024 * 1024;

/** Lines of a file, and items among them. */
inline constexpr qsizetype mostLines = 1'000'000;
inline constexpr qsizetype mostItems = 200'000;

/** More pages than this are an accident; each takes a part of the scene's height. */
inline constexpr int mostPages = 10'000;

/** No sheet is longer, in scene units: about 25 metres. */
inline constexpr double longestSheet = 90'000;

/** No coordinate lies further from where it counts from, in scene units. */
inline constexpr double farthest = 100'000'000;

/** In formatted text: elements and tables in each other, and the cells of all tables. */
inline constexpr qsizetype deepestText = 200;
inline constexpr qsizetype deepestTables = 8;
inline constexpr double mostCells = 5'000;

/**
 * The height of a text, in scene units; the lines of all, before any is wrapped; and the
 * squares of the lengths of all words, each of which takes that long to lay out.
 */
inline constexpr double highestText = 8'000'000;
inline constexpr double mostTextLines = 500'000;
inline constexpr double mostWordSquares = 4e9;

/** Pixels of all pictures in formatted text. */
inline constexpr qint64 mostPixels = 64'000'000;
} // namespace DocumentLimits
