#pragma once

#include <QPageLayout>
#include <QRectF>

/** The paper that a document is laid out on, as printers know it. */
namespace PrinterPaper
{
/**
 * A sheet of this size, lying where it is wider than high, whose printable area is `frame`; both in
 * inches. Margins are whole points on a printer, see placeOf().
 */
QPageLayout layoutOf(const QSizeF &sheet, const QRectF &frame);

/**
 * Where `frame`, in inches from the top-left corner of the sheet of `own`, lies for a painter on a
 * printer with the layout `taken` and this resolution. The printer's margins, which may be wider
 * than those asked for, only shift the origin. Null if there is nothing of a frame, or if the
 * printer's sheet is too small for it.
 */
QRectF placeOf(const QRectF &frame, const QPageLayout &own, const QPageLayout &taken,
               int dotsPerInch);
} // namespace PrinterPaper
