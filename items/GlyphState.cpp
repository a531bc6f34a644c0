#include "GlyphState.h"

#include "LineFields.h"
#include "Records.h"
#include "SymbolTable.h"
#include "TonquillBitmap.h"

GlyphState GlyphState::of(const TonquillBitmap &item)
{
    return GlyphState{item.pos(), item.data(ItemData::symbolId).toInt(), item.isInverted()};
}

GlyphState GlyphState::read(LineReader &line)
{
    return GlyphState{line.position(), line.integer(3), line.flag(QStringLiteral("inverted"))};
}

std::optional<GlyphState> GlyphState::ofRecord(QStringView fields)
{
    const auto record = Records::parseBitmap(fields);
    if (!record)
        return std::nullopt;
    return GlyphState{QPointF(record->x, record->y), record->symbolId, record->inverted};
}

QByteArray GlyphState::line() const
{
    return (LineWriter(Records::bitmapKeyword(), position) << symbolId)
        .flag("inverted", inverted)
        .line();
}

QGraphicsItem *GlyphState::build(const SymbolSource &symbols, bool adding) const
{
    TonquillBitmap *item = makeGlyph(symbols, symbolId, adding, true);
    item->setInverted(inverted);
    return item;
}

TonquillBitmap *GlyphState::makeGlyph(const SymbolSource &symbols, int id, bool adding,
                                      bool withInverted)
{
    const std::optional<int> other = withInverted ? SymbolTable::upsideDownOf(id) : std::nullopt;
    return new TonquillBitmap(symbols.symbolPicture(id), id, adding,
                              other ? symbols.symbolPicture(*other) : QPixmap());
}
