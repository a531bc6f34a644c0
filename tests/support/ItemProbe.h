#pragma once

#include "ItemReference.h"
#include "SelectionFrame.h"
#include "TonquillScene.h"

#include <QGraphicsItem>
#include <QImage>
#include <QObject>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

/** Queries of items that otherwise only the scene and Qt make. */
namespace ItemProbe
{
/** The selection frame of a document item. */
inline SelectionFrame *frameOf(const QGraphicsItem &item)
{
    return qgraphicsitem_cast<SelectionFrame *>(item.childItems().constFirst());
}

inline int statusOf(QGraphicsItem *item)
{
    return ItemReference::objectOf(item)->property("itemStatus").toInt();
}

/** The document items of a scene, topmost first. */
inline QList<QGraphicsItem *> documentItems(const QGraphicsScene &scene)
{
    QList<QGraphicsItem *> items = scene.items();
    items.removeIf([](QGraphicsItem *item) { return item->parentItem() != nullptr; });
    return items;
}

/** The items of a scene that follow the pointer. */
inline qsizetype waitingItems(const QGraphicsScene &scene)
{
    QList<QGraphicsItem *> items = documentItems(scene);
    items.removeIf([](QGraphicsItem *item) { return statusOf(item) != 1; });
    return items.size();
}

/** The scene's only document item; null if there is none or more than one. */
inline QGraphicsItem *onlyItem(const QGraphicsScene &scene)
{
    const QList<QGraphicsItem *> items = documentItems(scene);
    return items.size() == 1 ? items.constFirst() : nullptr;
}

/** An item's record, called by name as the scene does. */
inline QString recordOf(QGraphicsItem *item)
{
    QString record;
    QMetaObject::invokeMethod(ItemReference::objectOf(item), "getParamStr", Qt::DirectConnection,
                              Q_RETURN_ARG(QString, record));
    return record;
}

/** A picture of `area` of a scene at `zoom`, on white and without page outlines. */
inline QImage pictureOf(QGraphicsScene &scene, const QRectF &area, qreal zoom = 1.0)
{
    QImage image((area.size() * zoom).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(zoom, zoom);
    painter.translate(-area.topLeft());
    for (QGraphicsItem *item :
         scene.items(area, Qt::IntersectsItemBoundingRect, Qt::AscendingOrder)) {
        QStyleOptionGraphicsItem option;
        option.exposedRect = item->boundingRect();
        if (item->isSelected())
            option.state |= QStyle::State_Selected;
        painter.save();
        painter.setTransform(item->sceneTransform(), true);
        item->paint(&painter, &option, nullptr);
        painter.restore();
    }
    return image;
}

/** The number of pixels with exactly this colour. */
inline qsizetype pixelsOf(const QImage &image, const QColor &color)
{
    qsizetype count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == color.rgb();
    }
    return count;
}
} // namespace ItemProbe
