#pragma once

#include "ItemState.h"

class LineReader;
class TonquillBitmap;

/** The state of a glyph: a note, rest, clef or other symbol. */
struct GlyphState
{
    QPointF position;
    int symbolId = 0;
    bool inverted = false;
    bool operator==(const GlyphState &) const = default;

    static GlyphState of(const TonquillBitmap &item);
    static GlyphState read(LineReader &line);

    /** Reads the fields after the keyword of a host's record; nullopt if one is missing. */
    static std::optional<GlyphState> ofRecord(QStringView fields);

    static QStringList fieldNames() { return {QStringLiteral("inverted")}; }
    static constexpr qsizetype plainFields = 4;

    QList<QPointF> points() const { return {}; }
    std::optional<TextContent> content() const { return std::nullopt; }
    QByteArray line() const;
    QGraphicsItem *build(const SymbolSource &symbols, bool adding = false) const;

    /**
     * A new glyph of a symbol, with or without its upside-down form for the right button. An id
     * without a picture makes an item without one. The caller owns it.
     */
    static TonquillBitmap *makeGlyph(const SymbolSource &symbols, int id, bool adding,
                                     bool withInverted);
};
