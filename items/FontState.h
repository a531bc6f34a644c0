#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

#include <limits>

class LineReader;
class LineWriter;

/** The properties of a font that the text dialog or the size menu sets. */
struct FontState
{
    QString family;
    double size = 0;
    bool sizeInPixels = false; ///< `size` is in scene units, not in points
    int weight = QFont::Normal;
    QFont::Style style = QFont::StyleNormal;
    bool underline = false;
    bool operator==(const FontState &) const = default;

    /** True if the size and weight are valid for a font. */
    bool isPossible() const
    {
        constexpr int lightest = 1;
        constexpr int heaviest = 1000;
        return size > 0 && size <= std::numeric_limits<short>::max() && weight >= lightest &&
               weight <= heaviest;
    }

    static FontState of(const QFont &font);

    /** The family and size of texts without a chosen font. */
    static FontState plain();

    QFont toFont() const;

    /** Reads the font's fields of a line; the line becomes invalid if the font is not possible. */
    static FontState read(LineReader &line);

    void write(LineWriter &line) const;

    /** The names of its fields in a line. */
    static QStringList fieldNames();
};
