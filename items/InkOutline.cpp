#include "InkOutline.h"

#include <QLineF>
#include <QPolygonF>
#include <QRegion>

#include <cmath>

namespace
{
/** Slanted edges have steps of one pixel; smaller deviations count as straight. */
constexpr qreal straightness = 0.75;

qreal distance(QPointF point, QPointF begin, QPointF end)
{
    const QPointF along = end - begin;
    const QPointF aside = point - begin;
    const qreal length = std::hypot(along.x(), along.y());
    return length > 0 ? std::abs(along.x() * aside.y() - along.y() * aside.x()) / length
                      : std::hypot(aside.x(), aside.y());
}

/** Appends the necessary corners from `first` up to, but not including, `last`. */
void appendCorners(QPolygonF &corners, const QPolygonF &edge, qsizetype first, qsizetype last)
{
    qsizetype farthest = first;
    qreal most = straightness;
    for (qsizetype i = first + 1; i < last; ++i) {
        const qreal departs = distance(edge[i], edge[first], edge[last]);
        if (departs > most) {
            most = departs;
            farthest = i;
        }
    }
    if (farthest == first) {
        corners.append(edge[first]);
        return;
    }
    appendCorners(corners, edge, first, farthest);
    appendCorners(corners, edge, farthest, last);
}

/** The closed outline without the pixel steps. */
QPolygonF smoothed(const QPolygonF &edge)
{
    QPolygonF corners;
    appendCorners(corners, edge, 0, edge.size() - 1);
    return corners;
}

/** The union of the runs of ink in all rows. */
QRegion regionOf(const QImage &drawing)
{
    constexpr int half = 128;
    QRegion region;
    for (int y = 0; y < drawing.height(); ++y) {
        const QRgb *row = reinterpret_cast<const QRgb *>(drawing.constScanLine(y));
        int begin = 0;
        for (int x = 0; x <= drawing.width(); ++x) {
            if (x < drawing.width() && qAlpha(row[x]) >= half)
                continue;
            if (x > begin)
                region += QRect(begin, y, x - begin, 1);
            begin = x + 1;
        }
    }
    return region;
}
} // namespace

QPainterPath InkOutline::of(const QImage &drawing)
{
    QPainterPath steps;
    steps.addRegion(regionOf(drawing.convertToFormat(QImage::Format_ARGB32_Premultiplied)));
    QPainterPath outline;
    for (const QPolygonF &edge : steps.simplified().toSubpathPolygons()) {
        outline.addPolygon(smoothed(edge));
        outline.closeSubpath();
    }
    return outline;
}
