#pragma once

#include <QList>
#include <QStringList>

class QGraphicsItem;

/**
 * Items that declare themselves part of the document but have no row in the catalogue: they can be
 * neither saved nor undone. Other items of embedding programs do not belong to the document.
 */
namespace UnknownItems
{
/** The class names of such items among `items`, without duplicates. */
QStringList classesAmong(const QList<QGraphicsItem *> &items);

/** Logs the class of `item` if it is such an item, once per class. */
void report(const QGraphicsItem &item);
} // namespace UnknownItems
