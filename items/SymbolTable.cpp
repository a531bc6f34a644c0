#include "SymbolTable.h"

#include "GlyphDrawings.h"
#include "Logging.h"

#include <QCoreApplication>

#include <limits>

namespace
{
// Pixels: spaces of 8, the closing line, and a white row above and below.
constexpr int halfStaff = 2 * 8 + 1 + 2;
constexpr int wholeStaff = 4 * 8 + 1 + 2;

/** A row with its pictures from the resources. */
Symbol drawn(int id, const char *name, std::optional<int> upsideDown, SymbolSize size,
             const char *sense = nullptr)
{
    const QString file = QString::fromLatin1(name);
    return {id,
            name,
            QStringLiteral(":/images/%1.bmp").arg(file),
            QStringLiteral(":/images/fine/%1.png").arg(file),
            upsideDown,
            sense,
            size,
            std::nullopt};
}
} // namespace

namespace SymbolTable
{
namespace
{
/** Marks a sense for translation; scripts/translate extracts it with this context. */
#define NAME(text) QT_TRANSLATE_NOOP("SymbolTable", text)

/**
 * Each of the first 37 symbols is paired with the next id. Intentionally, a rest is also paired
 * with the note of the next shorter value: documents with inverted rests show that.
 */
QList<Symbol> builtInRows()
{
    using enum SymbolSize;
    return {
        drawn(commonTime, "CommonTimeWhole", cutTime, Small, NAME("Common time")),
        drawn(cutTime, "CommonTimeHalf", gClef, WithinStaff, NAME("Cut time")),
        drawn(gClef, "GClef", fClef, Tall, NAME("G clef")),
        drawn(fClef, "FClef", sharp, WithinStaff, NAME("F clef")),
        drawn(sharp, "Sharp", flat, WithinStaff, NAME("Sharp")),
        drawn(flat, "Flat", natural, WithinStaff, NAME("Flat")),
        drawn(natural, "Natural", repeatBegin, WithinStaff, NAME("Natural")),
        drawn(repeatBegin, "RepeatBegin", repeatEnd, WithinStaff, NAME("Repeat begin")),
        drawn(repeatEnd, "RepeatEnd", staffLine, WithinStaff, NAME("Repeat end")),
        drawn(staffLine, "StaffLine", noteDot, Small, NAME("Staff line")),
        drawn(noteDot, "NoteDot", pedalDown, Small, NAME("Note dot")),
        drawn(pedalDown, "PedalB", pedalUp, WithinStaff),
        drawn(pedalUp, "PedalE", note(0), Small),
        drawn(note(0), "WholeNote1", noteStemDown(0), Small, NAME("Whole note")),
        drawn(noteStemDown(0), "WholeNote2", rest(0), Small),
        drawn(rest(0), "WholeRest1", note(1), Small, NAME("Whole rest")),
        drawn(note(1), "HalfNote1", noteStemDown(1), WithinStaff, NAME("Half note")),
        drawn(noteStemDown(1), "HalfNote2", rest(1), WithinStaff),
        drawn(rest(1), "HalfRest1", note(2), Small, NAME("Half rest")),
        drawn(note(2), "QuarterNote1", noteStemDown(2), WithinStaff, NAME("Quarter note")),
        drawn(noteStemDown(2), "QuarterNote2", rest(2), WithinStaff),
        drawn(rest(2), "QuarterRest1", note(3), WithinStaff, NAME("Quarter rest")),
        drawn(note(3), "EighthNote1", noteStemDown(3), WithinStaff, NAME("Eighth note")),
        drawn(noteStemDown(3), "EighthNote2", rest(3), WithinStaff),
        drawn(rest(3), "EighthRest1", note(4), Small, NAME("Eighth rest")),
        drawn(note(4), "SixteenthNote1", noteStemDown(4), WithinStaff, NAME("16th note")),
        drawn(noteStemDown(4), "SixteenthNote2", rest(4), WithinStaff),
        drawn(rest(4), "SixteenthRest1", note(5), WithinStaff, NAME("16th rest")),
        drawn(note(5), "ThirtySecondNote1", noteStemDown(5), Tall, NAME("32nd note")),
        drawn(noteStemDown(5), "ThirtySecondNote2", rest(5), Tall),
        drawn(rest(5), "ThirtySecondRest1", note(6), WithinStaff, NAME("32nd rest")),
        drawn(note(6), "SixtyFourthNote1", noteStemDown(6), Tall, NAME("64th note")),
        drawn(noteStemDown(6), "SixtyFourthNote2", rest(6), Tall),
        drawn(rest(6), "SixtyFourthRest1", note(7), Tall, NAME("64th rest")),
        drawn(note(7), "OneTwentyEighthNote1", noteStemDown(7), Tall, NAME("128th note")),
        drawn(noteStemDown(7), "OneTwentyEighthNote2", rest(7), Tall),
        drawn(rest(7), "OneTwentyEighthRest1", std::nullopt, Tall, NAME("128th rest")),
    };
}

#undef NAME

std::map<int, Symbol> &table()
{
    static std::map<int, Symbol> table = [] {
        std::map<int, Symbol> byId;
        for (const Symbol &row : builtInRows())
            byId.emplace(row.id, row);
        return byId;
    }();
    return table;
}
} // namespace
} // namespace SymbolTable

QString Symbol::translatedSense() const
{
    return sense ? QCoreApplication::translate("SymbolTable", sense) : QString();
}

const std::map<int, Symbol> &SymbolTable::rows()
{
    return table();
}

const Symbol *SymbolTable::find(int id)
{
    const auto found = table().find(id);
    return found == table().end() ? nullptr : &found->second;
}

bool SymbolTable::add(const Symbol &row)
{
    return row.id >= 0 && table().emplace(row.id, row).second;
}

std::optional<int> SymbolTable::upsideDownOf(int id)
{
    if (const Symbol *symbol = find(id))
        return symbol->upsideDown;
    // The largest int has no next id.
    return id < std::numeric_limits<int>::max() ? std::optional(id + 1) : std::nullopt;
}

QPoint SymbolTable::referencePoint(int id, const QSize &picture, bool upsideDown)
{
    const std::optional<int> other = upsideDown ? upsideDownOf(id) : std::nullopt;
    for (const Symbol *symbol : {other ? find(*other) : nullptr, find(id)}) {
        if (symbol && symbol->reference)
            return *symbol->reference;
    }
    return QPoint(picture.width() / 2, picture.height() / 2);
}

SymbolSize SymbolTable::sizeOf(const QSize &picture)
{
    if (picture.height() > wholeStaff)
        return SymbolSize::Tall;
    return picture.height() > halfStaff ? SymbolSize::WithinStaff : SymbolSize::Small;
}

QHash<int, QPixmap> SymbolTable::load()
{
    QHash<int, QPixmap> pictures;
    pictures.reserve(static_cast<qsizetype>(rows().size()));
    for (const auto &[id, symbol] : rows()) {
        const QPixmap picture = QPixmap::fromImage(GlyphDrawings::loadInk(symbol.picture));
        if (picture.isNull() || sizeOf(picture.size()) != symbol.size)
            qCWarning(lcTonquill) << "the picture of" << symbol.name << "has another size";
        if (picture.isNull())
            continue;
        if (!symbol.finePicture.isEmpty())
            GlyphDrawings::setFineDrawing(picture, symbol.finePicture);
        pictures.insert(id, picture);
    }
    return pictures;
}
