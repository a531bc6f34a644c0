#pragma once

#include "FigureKind.h"
#include "ItemState.h"

#include <utility>

class LineReader;
class TonquillVectorItem;

/** A figure between two points. */
struct FigureState
{
    using Anchors = std::pair<QPointF, QPointF>;

    QPointF position;
    const FigureKind *kind; ///< which lives as long as the program
    QPointF start;
    QPointF end;
    /** Where its two anchors are, if not where a new figure of these points has them. */
    std::optional<Anchors> anchors;
    bool operator==(const FigureState &) const = default;

    static FigureState of(const TonquillVectorItem &item);
    static FigureState read(LineReader &line, const FigureKind &kind);

    /** What stands behind the keyword of a record of the host link; nothing if it lacks a field. */
    static std::optional<FigureState> ofRecord(QStringView fields, const FigureKind &kind);

    static QStringList fieldNames() { return {QStringLiteral("anchors")}; }
    static constexpr qsizetype plainFields = 7;

    QList<QPointF> points() const;
    std::optional<TextContent> content() const { return std::nullopt; }
    QByteArray line() const;
    QGraphicsItem *build(const SymbolSource &symbols, bool adding = false) const;
};
