#include "ItemModel.h"

#include <QGraphicsSceneMouseEvent>

bool ItemModel::onlyLeftButtonHeld(const QGraphicsSceneMouseEvent &event)
{
    return event.buttons() == Qt::LeftButton;
}

bool ItemModel::onlyRightButtonHeld(const QGraphicsSceneMouseEvent &event)
{
    return event.buttons() == Qt::RightButton;
}

QString ItemModel::keywordOf(const QGraphicsItem &item)
{
    return item.data(ItemData::keyword).toString();
}

QFont ItemModel::largeBoldFont()
{
    static const QFont font = [] {
        QFont large;
        large.setWeight(QFont::Bold);
        large.setPointSize(23);
        return large;
    }();
    return font;
}
