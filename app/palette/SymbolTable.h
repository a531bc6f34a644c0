#pragma once

#include <QHash>
#include <QPixmap>

/**
 * The glyphs by symbol id. Each note value from the whole to the 128th has three ids in a row:
 * the note, its inverted drawing, the rest.
 */
namespace SymbolTable
{
inline constexpr int commonTime = 0;
inline constexpr int cutTime = 1;
inline constexpr int gClef = 2;
inline constexpr int fClef = 3;
inline constexpr int sharp = 4;
inline constexpr int flat = 5;
inline constexpr int natural = 6;
inline constexpr int repeatBegin = 7;
inline constexpr int repeatEnd = 8;
inline constexpr int staffLine = 9;
inline constexpr int noteDot = 10;
inline constexpr int firstNote = 13;

/** The ids of a note value's drawings; `value` counts from 0 (whole) to 7 (128th). */
constexpr int note(int value)
{
    return firstNote + 3 * value;
}
constexpr int rest(int value)
{
    return note(value) + 2;
}

/** All 37 glyphs. Their finer drawings are made known to GlyphDrawings. */
QHash<int, QPixmap> load();
} // namespace SymbolTable
