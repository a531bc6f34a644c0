#pragma once

#include "ItemState.h"

class LineReader;
class TonquillTextBlock;

/** The state of a text block. */
struct TextBlockState
{
    QPointF position;
    QPointF topLeft;
    QPointF bottomRight;
    double textWidth = 0;
    FontState font;
    QString text;
    bool isHtml = false; ///< `text` is HTML: formatted text was pasted into the block
    bool operator==(const TextBlockState &) const = default;

    /** The first word of its line, which has no end mark, unlike its record. */
    static QString lineKeyword() { return QStringLiteral("tonquill_textblock"); }

    static TextBlockState of(const TonquillTextBlock &item);
    static TextBlockState read(LineReader &line);

    /** Reads the fields after the keyword of a host's record; nullopt if one is missing. */
    static std::optional<TextBlockState> ofRecord(QStringView fields);

    static QStringList fieldNames();
    static constexpr qsizetype plainFields = 7;

    QList<QPointF> points() const { return {topLeft, bottomRight, QPointF(textWidth, 0)}; }
    std::optional<TextContent> content() const
    {
        return TextContent{text, isHtml, font, textWidth};
    }
    QByteArray line() const;
    QGraphicsItem *build(const SymbolSource &symbols) const;
};
