#pragma once

#include <QList>
#include <QStringList>

class QGraphicsItem;

/**
 * Items that belong to the document, for they say so, but of which the catalogue has no row: they
 * can be neither saved nor undone. Other items of embedding programs are none of the document's.
 */
namespace UnknownItems
{
/** The names of the classes of those among `items`, each once. */
QStringList classesAmong(const QList<QGraphicsItem *> &items);

/** Logs the class of an item without a row if it is such an item, once for each class. */
void report(const QGraphicsItem &item);
} // namespace UnknownItems
