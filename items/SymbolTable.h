#pragma once

#include <QHash>
#include <QPixmap>
#include <QPoint>
#include <QSize>
#include <QString>

#include <map>
#include <optional>

/** The intended height of a symbol's drawing compared to a staff of five lines. */
enum class SymbolSize {
    Small,       ///< at most half of the staff: dots, whole notes, most rests
    WithinStaff, ///< at most the staff: accidentals, repeats, notes with a stem
    Tall         ///< higher: clefs, notes and rests with many flags
};

/** One symbol: a drawing that is placed on the page as a glyph, and its properties. */
struct Symbol
{
    int id = -1;
    const char *name = "";    ///< of its drawing
    QString picture = {};     ///< path of the drawing, black on white, 8 pixels per staff space
    QString finePicture = {}; ///< the same with 64 pixels per space; empty if there is none
    /**
     * The id of the symbol that the right button switches to while the glyph waits to be placed.
     */
    std::optional<int> upsideDown = {};
    /** Its meaning for tool tips and screen readers, untranslated; null if no control offers it. */
    const char *sense = nullptr;
    SymbolSize size = SymbolSize::WithinStaff;
    /** The reference point in pixels from the picture's top-left corner; by default its centre. */
    std::optional<QPoint> reference = {};

    /** The sense in the user's language; empty if there is none. */
    QString translatedSense() const;
};

/**
 * The symbols by their ids, which documents store. Each note value from the whole to the 128th has
 * three consecutive ids: the note, the note with its stem down, the rest.
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

/** The ids of a note value's drawings; `value` is 0 (whole) to 7 (128th). */
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

/** True for a note with its stem up. */
constexpr bool isNote(int id)
{
    return id >= firstNote && id < note(noteValues) && (id - firstNote) % 3 == 0;
}

/** All symbols. The addresses of rows are stable. */
const std::map<int, Symbol> &rows();

/** The row of an id, owned by the table; null if there is none. */
const Symbol *find(int id);

/**
 * Adds a symbol at run time; windows load its picture when they construct their symbols. Returns
 * false and adds nothing if the id is negative or already used.
 */
bool add(const Symbol &row);

/**
 * The id of a symbol's upside-down form; nullopt if it has none. An id without a row, whose picture
 * comes from an embedding program, is paired with the next id.
 */
std::optional<int> upsideDownOf(int id);

/**
 * The reference point of a glyph, in pixels from its picture's top-left corner. `picture` is the
 * size of the symbol's own picture. Upside down it is the same point, unless the row of that form
 * has its own.
 */
QPoint referencePoint(int id, const QSize &picture, bool upsideDown = false);

/** The size class of a picture of this height. */
SymbolSize sizeOf(const QSize &picture);

/**
 * Loads the pictures of all symbols and registers their finer drawings with GlyphDrawings. Logs
 * pictures that are missing or do not have the size of their row.
 */
QHash<int, QPixmap> load();
} // namespace SymbolTable
