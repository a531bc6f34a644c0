#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QString>

#include <limits>
#include <optional>
#include <utility>
#include <variant>

/**
 * Everything about an item that is seen or acted on, one structure for each family of items.
 *
 * The host link's records lose things on purpose; these lose nothing. Positions are scene units,
 * points of an item are in item coordinates, angles in degrees.
 */
namespace ItemState
{
/** A note, rest, clef or another glyph that is a picture. */
struct Glyph
{
    QPointF position;
    int symbolId = 0;
    bool inverted = false;
    bool operator==(const Glyph &) const = default;
};

/** A time signature. */
struct TimeSignature
{
    QPointF position;
    int numerator = 0;
    int denominator = 0;
    bool operator==(const TimeSignature &) const = default;
};

/** A figure between two points; `keyword` is its record's and tells which. */
struct Figure
{
    using Anchors = std::pair<QPointF, QPointF>;

    QPointF position;
    QString keyword;
    QPointF start;
    QPointF end;
    /** Where its two anchors are, if not where a new figure of these points has them. */
    std::optional<Anchors> anchors;
    bool operator==(const Figure &) const = default;
};

/** What a font has that the text dialog or the size menu sets. */
struct Font
{
    QString family;
    double size = 0;
    bool sizeInPixels = false; ///< `size` is in scene units, not in points
    int weight = QFont::Normal;
    QFont::Style style = QFont::StyleNormal;
    bool underline = false;
    bool operator==(const Font &) const = default;

    /** True if letters can have this size and weight. */
    bool isPossible() const
    {
        constexpr int lightest = 1;
        constexpr int heaviest = 1000;
        return size > 0 && size <= std::numeric_limits<short>::max() && weight >= lightest &&
               weight <= heaviest;
    }
};

/** A simple text. */
struct Text
{
    QPointF position;
    QString text;
    Font font;
    QColor color = Qt::black;
    double rotation = 0;
    bool operator==(const Text &) const = default;
};

/** A text block. */
struct TextBlock
{
    QPointF position;
    QPointF topLeft;
    QPointF bottomRight;
    double textWidth = 0;
    Font font;
    QString text;
    bool isHtml = false; ///< `text` is HTML: formatted text was pasted into the block
    bool operator==(const TextBlock &) const = default;
};

using Any = std::variant<Glyph, TimeSignature, Figure, Text, TextBlock>;
} // namespace ItemState
