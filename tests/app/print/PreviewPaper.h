#pragma once

#include "PdfFile.h"

#include <QGraphicsItem>
#include <QGraphicsView>
#include <QImage>
#include <QPainter>
#include <QPrintPreviewWidget>

/** The paper of the preview's first page at this zoom, without the desk on which it lies. */
inline QImage paperIn(const QPrintPreviewWidget &preview, qreal zoom = 3.0)
{
    QGraphicsScene *desk = preview.findChild<QGraphicsView *>()->scene();
    const QRectF page = desk->items().constFirst()->sceneBoundingRect();
    QImage image((page.size() * zoom).toSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    desk->render(&painter, image.rect(), page);
    painter.end();
    QImage white = image;
    white.invertPixels();
    return image.copy(inkOf(white, 0).toRect());
}
