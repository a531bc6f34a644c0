#pragma once

#include "ItemState.h"

class LineReader;
class TonquillBitmap;

/** A note, rest, clef or another glyph. */
struct GlyphState
{
    QPointF position;
    int symbolId = 0;
    bool inverted = false;
    bool operator==(const GlyphState &) const = default;

    static GlyphState of(const TonquillBitmap &item);
    static GlyphState read(LineReader &line);

    /** What stands behind the keyword of a record of the host link; nothing if it lacks a field. */
    static std::optional<GlyphState> ofRecord(QStringView fields);

    static QStringList fieldNames() { return {QStringLiteral("inverted")}; }
    static constexpr qsizetype plainFields = 4;

    QList<QPointF> points() const { return {}; }
    std::optional<TextContent> content() const { return std::nullopt; }
    QByteArray line() const;
    QGraphicsItem *build(const SymbolSource &symbols, bool adding = false) const;

    /**
     * A new glyph of a symbol, with what the right button shows instead of it or without. An id
     * without a picture makes an item without one. The caller owns it.
     */
    static TonquillBitmap *makeGlyph(const SymbolSource &symbols, int id, bool adding,
                                     bool withInverted);
};
