#pragma once

#include "Records.h"

#include <QPointF>

class QGraphicsItem;

/** Builds items from records. */
namespace ItemFactory
{
/** The figure of the record's keyword; the caller owns it until it is added to a scene. */
QGraphicsItem *makeVectorItem(const Records::Vector &record, bool adding);

/** The figure of a keyword between two points of its own coordinates; null for no such figure. */
QGraphicsItem *makeVectorItem(const QString &keyword, bool adding, QPointF start, QPointF end);
} // namespace ItemFactory
