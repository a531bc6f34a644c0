#pragma once

#include <QList>
#include <QRgb>
#include <QString>

#include <optional>
#include <variant>

/**
 * The document's text records, written and read. Pure functions: no item, no scene.
 *
 * A record is a line of fields with one blank between them, the first a keyword; only a text
 * block's record spans several lines. Coordinates and sizes are whole scene units.
 *
 * What is written is not always what is read back, which is intentional: a simple text of several
 * words loses all but the first and reads its later fields from the wrong places, its colour does
 * not fit the number it is read as and comes back black, its fractional angle comes back as 0,
 * and a text block gains the line break in front of its end keyword.
 */
namespace Records
{
QString bitmapKeyword();
QString timesigKeyword();
QString grandstaffKeyword();
QString interactivelineKeyword();
QString linetabKeyword();
QString notetieKeyword();
QString tripletKeyword();
QString textKeyword();
QString textblockKeyword();

/** The first word of the page-count line, which builds nothing. */
QString pageCountKeyword();

/** What stands behind the text of a text block. */
QString textblockEnd();

/** A first word that is known, and how many fields there are at least behind it. */
struct Kind
{
    QString keyword;
    int fields;
};

/** The nine kinds of records and the page-count line. */
const QList<Kind> &kinds();

/** True if this line begins a text block, whose record goes on to isBlockEnd(). */
bool isBlockBegin(QStringView line);

/** True if this line is nothing but the end of a text block. */
bool isBlockEnd(QStringView line);

/** A text block's rectangle is this much wider than the text in it may be, in scene units. */
inline constexpr double widthBesideText = 1.0;

/** A glyph. */
struct Bitmap
{
    int symbolId;
    int x;
    int y;
    bool inverted;
    bool operator==(const Bitmap &) const = default;
};

/** A time signature. */
struct TimeSig
{
    int x;
    int y;
    int numerator;
    int denominator;
    bool operator==(const TimeSig &) const = default;
};

/** A figure between two points, which are relative to (x, y). */
struct Vector
{
    QString keyword;
    int x;
    int y;
    int startX;
    int startY;
    int endX;
    int endY;
    bool operator==(const Vector &) const = default;
};

/** A simple text. */
struct Text
{
    int x;
    int y;
    int width;
    int height;
    QString text;
    QString family;
    int pointSize;
    QRgb color;
    double rotation; ///< degrees; only whole ones are read back
    bool operator==(const Text &) const = default;
};

/** A text block. */
struct TextBlock
{
    int x;
    int y;
    int width;
    int height;
    QString text;
    bool operator==(const TextBlock &) const = default;
};

/** One record as read; empty if nothing is to be built from it. */
using Record = std::variant<std::monostate, Bitmap, TimeSig, Vector, Text, TextBlock>;

/**
 * Reads one record. Fields that are not numbers read as 0 and surplus ones are ignored; an unknown
 * keyword, too few fields, or a text block without its end gives an empty Record.
 */
Record parse(QStringView record);

// Reads what stands behind the keyword and its blank, under the same rules.

std::optional<Bitmap> parseBitmap(QStringView fields);
std::optional<TimeSig> parseTimeSig(QStringView fields);
std::optional<Vector> parseVector(const QString &keyword, QStringView fields);
std::optional<Text> parseText(QStringView fields);
std::optional<TextBlock> parseTextBlock(QStringView fields);

/** What stands behind the keyword and its blank; empty if there is no keyword. */
QStringView fieldsOf(QStringView record);

/** The keyword of a record: the text before its first blank, or nothing. */
QStringView keywordOf(QStringView record);

/** Takes the first of the records, which are separated by "|", off the front of `records`. */
QStringView takeFirst(QStringView &records);

/** The line with which a document begins. */
QString pageCountLine(int pageCount);

// Writes a record. Its keyword is that of its kind, unless the item has been given another.

QString format(const Bitmap &record, const QString &keyword = bitmapKeyword());
QString format(const TimeSig &record, const QString &keyword = timesigKeyword());
QString format(const Vector &record);
QString format(const Text &record, const QString &keyword = textKeyword());
QString format(const TextBlock &record, const QString &keyword = textblockKeyword());
} // namespace Records
