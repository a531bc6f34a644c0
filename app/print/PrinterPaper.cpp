#include "PrinterPaper.h"

namespace
{
constexpr double pointsPerInch = 72.0;

/** Printers round sheets and margins to whole points; paper is cut less precisely. */
constexpr double tolerance = 0.05; // inch
} // namespace

QPageLayout PrinterPaper::layoutOf(const QSizeF &sheet, const QRectF &frame)
{
    const bool isLandscape = sheet.width() > sheet.height();
    const QPageSize size(isLandscape ? sheet.transposed() : sheet, QPageSize::Inch);
    QMarginsF margins(qMax(0.0, frame.left()), qMax(0.0, frame.top()),
                      qMax(0.0, sheet.width() - frame.right()),
                      qMax(0.0, sheet.height() - frame.bottom()));
    if (frame.isEmpty() || margins.left() + margins.right() >= sheet.width() ||
        margins.top() + margins.bottom() >= sheet.height())
        margins = QMarginsF();
    return QPageLayout(size, isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                       margins * pointsPerInch, QPageLayout::Point);
}

QRectF PrinterPaper::placeOf(const QRectF &frame, const QPageLayout &own, const QPageLayout &taken,
                             int dotsPerInch)
{
    const QRectF needed = frame.intersected(own.fullRect(QPageLayout::Inch));
    const QRectF sheet =
        taken.fullRect(QPageLayout::Inch).adjusted(-tolerance, -tolerance, tolerance, tolerance);
    if (needed.isEmpty() || !sheet.contains(needed))
        return QRectF();
    const QPointF origin = taken.paintRectPixels(dotsPerInch).topLeft();
    return QRectF(frame.topLeft() * dotsPerInch - origin, frame.size() * dotsPerInch);
}
