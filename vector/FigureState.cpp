#include "FigureState.h"

#include "LineFields.h"
#include "Records.h"
#include "TonquillVectorItem.h"

FigureState FigureState::of(const TonquillVectorItem &item)
{
    FigureState state{item.pos(), &item.kind(), item.startPoint(), item.endPoint(), std::nullopt};
    const QList<QPointF> anchors = item.frame().anchors();
    if (anchors != state.kind->anchorsAt(state.start, state.end))
        state.anchors = Anchors(anchors.value(0), anchors.value(1));
    return state;
}

FigureState FigureState::read(LineReader &line, const FigureKind &kind)
{
    const QString name = QStringLiteral("anchors");
    FigureState state{line.position(), &kind, line.point(3), line.point(5), std::nullopt};
    if (line.has(name)) {
        const QList<double> at = line.numbers(name, 4);
        state.anchors = Anchors(QPointF(at[0], at[1]), QPointF(at[2], at[3]));
    }
    return state;
}

std::optional<FigureState> FigureState::ofRecord(QStringView fields, const FigureKind &kind)
{
    const auto record = Records::parseVector(kind.keyword, fields);
    if (!record)
        return std::nullopt;
    return FigureState{QPointF(record->x, record->y), &kind,
                       QPointF(record->startX, record->startY), QPointF(record->endX, record->endY),
                       std::nullopt};
}

QList<QPointF> FigureState::points() const
{
    return anchors ? QList<QPointF>{start, end, anchors->first, anchors->second}
                   : QList<QPointF>{start, end};
}

QByteArray FigureState::line() const
{
    LineWriter line(kind->keyword, position);
    line << start << end;
    if (anchors) {
        QByteArrayList numbers;
        for (const QPointF point : {anchors->first, anchors->second})
            numbers << LineFields::number(point.x()) << LineFields::number(point.y());
        line.quoted("anchors", QString::fromLatin1(numbers.join(' ')));
    }
    return line.line();
}

QGraphicsItem *FigureState::build(const SymbolSource &, bool adding) const
{
    QGraphicsItem *item = kind->make(adding, start, end);
    if (anchors)
        static_cast<TonquillVectorItem *>(item)->frame().setAnchors(
            {anchors->first, anchors->second});
    return item;
}
