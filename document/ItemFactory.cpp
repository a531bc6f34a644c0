#include "ItemFactory.h"

#include "TonquillVectorGrandstaff.h"
#include "TonquillVectorInteractiveLine.h"
#include "TonquillVectorLineTab.h"
#include "TonquillVectorNoteTie.h"
#include "TonquillVectorTriplet.h"

#include <QHash>

namespace
{
using Maker = QGraphicsItem *(*)(bool adding, QPointF start, QPointF end);

template <typename Item>
QGraphicsItem *make(bool adding, QPointF start, QPointF end)
{
    return new Item(adding, start, end);
}
} // namespace

QGraphicsItem *ItemFactory::makeVectorItem(const Records::Vector &record, bool adding)
{
    return makeVectorItem(record.keyword, adding, QPointF(record.startX, record.startY),
                          QPointF(record.endX, record.endY));
}

QGraphicsItem *ItemFactory::makeVectorItem(const QString &keyword, bool adding, QPointF start,
                                           QPointF end)
{
    static const QHash<QString, Maker> makers{
        {Records::grandstaffKeyword(), make<TonquillVectorGrandstaff>},
        {Records::interactivelineKeyword(), make<TonquillVectorInteractiveLine>},
        {Records::linetabKeyword(), make<TonquillVectorLineTab>},
        {Records::notetieKeyword(), make<TonquillVectorNoteTie>},
        {Records::tripletKeyword(), make<TonquillVectorTriplet>},
    };
    const Maker maker = makers.value(keyword);
    return maker ? maker(adding, start, end) : nullptr;
}
