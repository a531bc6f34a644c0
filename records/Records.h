#pragma once

#include <QList>
#include <QRgb>
#include <QString>

#include <optional>
#include <variant>

/**
 * Writes and reads the text records of the document. Pure functions without items or scenes.
 *
 * A record is a line of fields separated by single spaces, the first being a keyword; only a text
 * block's record spans several lines. Coordinates and sizes are whole scene units.
 *
 * What is written is not always what is read back, which is intentional: a simple text of several
 * words loses all but the first and reads its later fields from the wrong places, its colour
 * overflows when read and becomes black, its fractional angle becomes 0, and a text block gains the
 * line break in front of its end keyword.
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

/** The first word of the page-count line, which stands for no item. */
QString pageCountKeyword();

/** The mark after the text of a text block. */
QString textblockEnd();

/** A known keyword, and the minimum number of fields after it. */
struct Kind
{
    QString keyword;
    int fields;
};

/** The nine kinds of records and the page-count line. */
const QList<Kind> &kinds();

/** True if this line begins a text block, whose record ends with the line of isBlockEnd(). */
bool isBlockBegin(QStringView line);

/** True if this line is only the end mark of a text block. */
bool isBlockEnd(QStringView line);

/** How much wider a text block's rectangle is than its text's width, in scene units. */
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
    double rotation; ///< degrees; only whole ones can be read back
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

/** A parsed record; empty if it does not stand for an item. */
using Record = std::variant<std::monostate, Bitmap, TimeSig, Vector, Text, TextBlock>;

/**
 * Reads one record. Fields that are not numbers read as 0 and surplus ones are ignored; an unknown
 * keyword, too few fields, or a text block without its end gives an empty Record.
 */
Record parse(QStringView record);

// Reads the fields after the keyword and its space, by the same rules; nullopt if too few.

std::optional<Bitmap> parseBitmap(QStringView fields);
std::optional<TimeSig> parseTimeSig(QStringView fields);
std::optional<Vector> parseVector(const QString &keyword, QStringView fields);
std::optional<Text> parseText(QStringView fields);
std::optional<TextBlock> parseTextBlock(QStringView fields);

/** The text after the keyword and its space; empty if there is no keyword. */
QStringView fieldsOf(QStringView record);

/** The keyword of a record: the text before its first space, or empty. */
QStringView keywordOf(QStringView record);

/** Removes and returns the first of `records`, which are separated by "|". */
QStringView takeFirst(QStringView &records);

/** The first line of a document. */
QString pageCountLine(int pageCount);

// Writes a record. The keyword is that of its kind unless the item has a custom one.

QString format(const Bitmap &record, const QString &keyword = bitmapKeyword());
QString format(const TimeSig &record, const QString &keyword = timesigKeyword());
QString format(const Vector &record);
QString format(const Text &record, const QString &keyword = textKeyword());
QString format(const TextBlock &record, const QString &keyword = textblockKeyword());
} // namespace Records
