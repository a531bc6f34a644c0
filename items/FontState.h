#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

#include <limits>

class LineReader;
class LineWriter;

/** What a font has that the text dialog or the size menu sets. */
struct FontState
{
    QString family;
    double size = 0;
    bool sizeInPixels = false; ///< `size` is in scene units, not in points
    int weight = QFont::Normal;
    QFont::Style style = QFont::StyleNormal;
    bool underline = false;
    bool operator==(const FontState &) const = default;

    /** True if letters can have this size and weight. */
    bool isPossible() const
    {
        constexpr int lightest = 1;
        constexpr int heaviest = 1000;
        return size > 0 && size <= std::numeric_limits<short>::max() && weight >= lightest &&
               weight <= heaviest;
    }

    static FontState of(const QFont &font);

    /** The family and size of letters that nobody has chosen a font for. */
    static FontState plain();

    QFont toFont() const;

    /** Reads the font's fields of a line, which is valid only if letters can be like that. */
    static FontState read(LineReader &line);

    void write(LineWriter &line) const;

    /** The names of its fields. */
    static QStringList fieldNames();
};
