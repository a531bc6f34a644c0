#pragma once

#include <QHash>
#include <QPixmap>
#include <QPoint>
#include <QSize>
#include <QString>

#include <map>
#include <optional>

/** How high a symbol's drawing is meant to be beside a staff of five lines. */
enum class SymbolSize {
    Small,       ///< at most half of it: dots, whole notes, most rests
    WithinStaff, ///< at most all of it: accidentals, repeats, notes with a stem
    Tall         ///< higher: clefs, notes and rests with many flags
};

/** One symbol: a drawing that is laid on the page as a glyph, and all that is known of it. */
struct Symbol
{
    int id = -1;
    const char *name = "";    ///< of its drawing
    QString picture = {};     ///< the path of the drawing, black on white, 8 pixels a staff space
    QString finePicture = {}; ///< of the same, 64 pixels a space; empty if there is none
    /** The symbol that the right button shows instead while the glyph waits to be placed. */
    std::optional<int> upsideDown = {};
    /** What it stands for, for tips and screen readers, untranslated; null if nothing offers it. */
    const char *sense = nullptr;
    SymbolSize size = SymbolSize::WithinStaff;
    /** Where the glyph's position lies, in pixels from the picture's corner; else in its middle. */
    std::optional<QPoint> reference = {};

    /** The sense in the user's language; empty if there is none. */
    QString translatedSense() const;
};

/**
 * The symbols by their ids, which stand in documents. Each note value from the whole to the 128th
 * has three ids in a row: the note, the note with its stem down, the rest.
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
inline constexpr int pedalDown = 11;
inline constexpr int pedalUp = 12;
inline constexpr int firstNote = 13;
inline constexpr int noteValues = 8;

/** The ids of a note value's drawings; `value` counts from 0 (whole) to 7 (128th). */
constexpr int note(int value)
{
    return firstNote + 3 * value;
}
constexpr int noteStemDown(int value)
{
    return note(value) + 1;
}
constexpr int rest(int value)
{
    return note(value) + 2;
}

/** True for a note in its first form. */
constexpr bool isNote(int id)
{
    return id >= firstNote && id < note(noteValues) && (id - firstNote) % 3 == 0;
}

/** All symbols; rows stay where they are in memory. */
const std::map<int, Symbol> &rows();

/** The row of an id, or null. */
const Symbol *find(int id);

/**
 * Adds a symbol while the program runs; windows have its picture once they construct their symbols.
 * False, with nothing added, if its id is negative or taken.
 */
bool add(const Symbol &row);

/**
 * The id of what the right button shows instead of a symbol, or none. An id without a row, whose
 * picture comes from an embedding program, goes with the next one.
 */
std::optional<int> upsideDownOf(int id);

/**
 * Where a glyph's position lies, in pixels from its picture's top-left corner. `picture` is the
 * size of the symbol's own picture; upside down, it lies at the same point unless that form's row
 * says another.
 */
QPoint referencePoint(int id, const QSize &picture, bool upsideDown = false);

/** The size that a picture of this height is of. */
SymbolSize sizeOf(const QSize &picture);

/**
 * The pictures of all symbols. Their finer drawings are made known to GlyphDrawings. What does not
 * have the size of its row, because it was drawn at another scale or is missing, is logged.
 */
QHash<int, QPixmap> load();
} // namespace SymbolTable
