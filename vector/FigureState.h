#pragma once

#include "FigureKind.h"
#include "ItemState.h"

#include <utility>

class LineReader;
class TonquillVectorItem;

/** The state of a figure between two points. */
struct FigureState
{
    using Anchors = std::pair<QPointF, QPointF>;

    QPointF position;
    const FigureKind *kind; ///< never null; lives as long as the program
    QPointF start;
    QPointF end;
    /** Its two anchors, unless they are where a new figure with these points has them. */
    std::optional<Anchors> anchors;
    bool operator==(const FigureState &) const = default;

    static FigureState of(const TonquillVectorItem &item);
    static FigureState read(LineReader &line, const FigureKind &kind);

    /** Reads the fields after the keyword of a host's record; nullopt if one is missing. */
    static std::optional<FigureState> ofRecord(QStringView fields, const FigureKind &kind);

    static QStringList fieldNames() { return {QStringLiteral("anchors")}; }
    static constexpr qsizetype plainFields = 7;

    QList<QPointF> points() const;
    std::optional<TextContent> content() const { return std::nullopt; }
    QByteArray line() const;
    QGraphicsItem *build(const SymbolSource &symbols, bool adding = false) const;
};
