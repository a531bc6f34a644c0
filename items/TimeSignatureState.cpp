#include "TimeSignatureState.h"

#include "LineFields.h"
#include "Records.h"
#include "TonquillTimeSig.h"

TimeSignatureState TimeSignatureState::of(const TonquillTimeSig &item)
{
    return TimeSignatureState{item.pos(), item.numerator(), item.denominator()};
}

TimeSignatureState TimeSignatureState::read(LineReader &line)
{
    return TimeSignatureState{line.position(), line.integer(3), line.integer(4)};
}

std::optional<TimeSignatureState> TimeSignatureState::ofRecord(QStringView fields)
{
    const auto record = Records::parseTimeSig(fields);
    if (!record)
        return std::nullopt;
    return TimeSignatureState{QPointF(record->x, record->y), record->numerator,
                              record->denominator};
}

QByteArray TimeSignatureState::line() const
{
    return (LineWriter(Records::timesigKeyword(), position) << numerator << denominator).line();
}

QGraphicsItem *TimeSignatureState::build(const SymbolSource &, bool adding) const
{
    return new TonquillTimeSig(numerator, denominator, adding);
}
