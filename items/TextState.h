#pragma once

#include "ItemState.h"

#include <QColor>

class LineReader;
class TonquillText;

/** The state of a simple text. */
struct TextState
{
    QPointF position;
    QString text;
    FontState font;
    QColor color = Qt::black;
    double rotation = 0; ///< degrees
    bool operator==(const TextState &) const = default;

    static TextState of(const TonquillText &item);
    static TextState read(LineReader &line);
    static QStringList fieldNames();
    static constexpr qsizetype plainFields = 3;

    QList<QPointF> points() const { return {}; }
    std::optional<TextContent> content() const { return TextContent{text, false, font, -1}; }
    QByteArray line() const;
    QGraphicsItem *build(const SymbolSource &symbols) const;
};
