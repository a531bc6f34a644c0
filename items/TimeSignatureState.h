#pragma once

#include "ItemState.h"

class LineReader;
class TonquillTimeSig;

/** The state of a time signature. */
struct TimeSignatureState
{
    QPointF position;
    int numerator = 0;
    int denominator = 0;
    bool operator==(const TimeSignatureState &) const = default;

    static TimeSignatureState of(const TonquillTimeSig &item);
    static TimeSignatureState read(LineReader &line);

    /** Reads the fields after the keyword of a host's record; nullopt if one is missing. */
    static std::optional<TimeSignatureState> ofRecord(QStringView fields);

    static QStringList fieldNames() { return {}; }
    static constexpr qsizetype plainFields = 5;

    QList<QPointF> points() const { return {}; }
    std::optional<TextContent> content() const { return std::nullopt; }
    QByteArray line() const;
    QGraphicsItem *build(const SymbolSource &symbols, bool adding = false) const;
};
