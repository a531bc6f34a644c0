#include "PageGeometry.h"

namespace
{
constexpr double unitsPerInchAcross = 88.0;
constexpr double unitsPerInchDown = 90.0;
constexpr double spacingPerHeight = 0.05;
} // namespace

QRectF PageGeometry::paperRect(const QRectF &paperInches)
{
    return QRectF(paperInches.x(), paperInches.y(), paperInches.width() * unitsPerInchAcross,
                  paperInches.height() * unitsPerInchDown);
}

QRectF PageGeometry::pageRect(const QRectF &paperInches, const QMarginsF &marginInches)
{
    const double left = (paperInches.x() + marginInches.left()) * unitsPerInchAcross;
    const double top = (paperInches.y() + marginInches.top()) * unitsPerInchDown;
    const double right =
        (paperInches.x() + paperInches.width() - marginInches.right()) * unitsPerInchAcross;
    const double bottom =
        (paperInches.y() + paperInches.height() - marginInches.bottom()) * unitsPerInchDown;
    return QRectF(left, top, right - left, bottom - top);
}

double PageGeometry::spacing(double paperHeight)
{
    return spacingPerHeight * paperHeight;
}
