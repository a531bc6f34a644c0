#pragma once

#include <QMarginsF>
#include <QRectF>

/**
 * The geometry of the document's pages. Scene units are 1/88 inch horizontally and 1/90 inch
 * vertically; the difference is intentional. Pages are stacked downwards from y = 0 with a gap
 * between them.
 */
namespace PageGeometry
{
/** The whole sheet. Its origin stays in inches; its size is in scene units. */
QRectF paperRect(const QRectF &paperInches);

/** The printable area inside the margins, in scene units. */
QRectF pageRect(const QRectF &paperInches, const QMarginsF &marginInches);

/** The gap between two pages of this height, both in scene units. */
double spacing(double paperHeight);
} // namespace PageGeometry
