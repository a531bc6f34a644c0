#pragma once

#include <QMarginsF>
#include <QRectF>

/**
 * Where the pages of the document lie. Scene units are 1/88 inch across and 1/90 inch down; the
 * two differ on purpose. Pages are stacked downwards from y = 0 with a gap between them.
 */
namespace PageGeometry
{
/** The outer sheet. Its origin stays in inches; its size is in scene units. */
QRectF paperRect(const QRectF &paperInches);

/** The printable area inside the margins, in scene units. */
QRectF pageRect(const QRectF &paperInches, const QMarginsF &marginInches);

/** The gap between two pages of this height. */
double spacing(double paperHeight);
} // namespace PageGeometry
