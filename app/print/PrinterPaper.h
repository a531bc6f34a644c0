#pragma once

#include <QPageLayout>
#include <QRectF>

/** Converts the paper of a document to the paper of a printer. */
namespace PrinterPaper
{
/**
 * The layout of a sheet with the printable area `frame`, both in inches; landscape if it is wider
 * than high. Printers round margins to whole points, see placeOf().
 */
QPageLayout layoutOf(const QSizeF &sheet, const QRectF &frame);

/**
 * The rectangle of `frame`, in inches from the top-left corner of the sheet of `own`, in device
 * pixels of a painter on a printer with the layout `taken` and this resolution. The printer's
 * margins, which may be wider than requested, only shift the origin. Null if the frame is empty or
 * the printer's sheet is too small.
 */
QRectF placeOf(const QRectF &frame, const QPageLayout &own, const QPageLayout &taken,
               int dotsPerInch);
} // namespace PrinterPaper
