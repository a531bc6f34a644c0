#include "SymbolTable.h"

#include "GlyphDrawings.h"

#include <array>

namespace
{
/** The images' names; a glyph's id is its place in this list. */
constexpr std::array names{
    "CommonTimeWhole",
    "CommonTimeHalf",
    "GClef",
    "FClef",
    "Sharp",
    "Flat",
    "Natural",
    "RepeatBegin",
    "RepeatEnd",
    "StaffLine",
    "NoteDot",
    "PedalB",
    "PedalE",
    "WholeNote1",
    "WholeNote2",
    "WholeRest1",
    "HalfNote1",
    "HalfNote2",
    "HalfRest1",
    "QuarterNote1",
    "QuarterNote2",
    "QuarterRest1",
    "EighthNote1",
    "EighthNote2",
    "EighthRest1",
    "SixteenthNote1",
    "SixteenthNote2",
    "SixteenthRest1",
    "ThirtySecondNote1",
    "ThirtySecondNote2",
    "ThirtySecondRest1",
    "SixtyFourthNote1",
    "SixtyFourthNote2",
    "SixtyFourthRest1",
    "OneTwentyEighthNote1",
    "OneTwentyEighthNote2",
    "OneTwentyEighthRest1",
};
} // namespace

QHash<int, QPixmap> SymbolTable::load()
{
    QHash<int, QPixmap> symbols;
    symbols.reserve(names.size());
    for (std::size_t id = 0; id < names.size(); ++id) {
        const QString name = QString::fromLatin1(names[id]);
        const QPixmap glyph =
            QPixmap::fromImage(GlyphDrawings::loadInk(QStringLiteral(":/images/%1.bmp").arg(name)));
        GlyphDrawings::setFineDrawing(glyph, QStringLiteral(":/images/fine/%1.png").arg(name));
        symbols.insert(static_cast<int>(id), glyph);
    }
    return symbols;
}
