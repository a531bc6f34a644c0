#include "InkReduction.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{
/**
 * The two adjacent result rows or columns that one of the drawing falls into, and its share in
 * each.
 */
struct Share
{
    std::size_t first;
    float inFirst;
    float inNext;
};

std::vector<Share> sharesOf(int count, double scale, double phase)
{
    std::vector<Share> shares;
    shares.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const double begin = phase + i * scale;
        const double end = phase + (i + 1) * scale;
        const double border = std::floor(begin) + 1;
        const double inFirst = std::fmin(end, border) - begin;
        shares.push_back({static_cast<std::size_t>(begin), static_cast<float>(inFirst),
                          static_cast<float>(end - begin - inFirst)});
    }
    return shares;
}

/** The number of rows or columns of the result. */
std::size_t extentOf(const std::vector<Share> &shares)
{
    return shares.empty() ? 0 : shares.back().first + 2;
}

/** The amount of ink on each pixel of the result; 255 is full coverage. */
std::vector<float> inkOn(const QImage &drawing, const std::vector<Share> &columns,
                         const std::vector<Share> &rows)
{
    const std::size_t width = extentOf(columns);
    std::vector<float> ink(width * extentOf(rows));
    std::vector<float> row(width);
    for (std::size_t y = 0; y < rows.size(); ++y) {
        const QRgb *source =
            reinterpret_cast<const QRgb *>(drawing.constScanLine(static_cast<int>(y)));
        std::fill(row.begin(), row.end(), 0.0F);
        for (std::size_t x = 0; x < columns.size(); ++x) {
            const float alpha = static_cast<float>(qAlpha(source[x]));
            row[columns[x].first] += alpha * columns[x].inFirst;
            row[columns[x].first + 1] += alpha * columns[x].inNext;
        }
        float *target = ink.data() + rows[y].first * width;
        for (std::size_t x = 0; x < width; ++x) {
            target[x] += row[x] * rows[y].inFirst;
            target[x + width] += row[x] * rows[y].inNext;
        }
    }
    return ink;
}
} // namespace

QImage InkReduction::reduced(const QImage &drawing, QSizeF scale, QPointF phase)
{
    const QImage source = drawing.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const std::vector<Share> columns = sharesOf(source.width(), scale.width(), phase.x());
    const std::vector<Share> rows = sharesOf(source.height(), scale.height(), phase.y());
    const std::vector<float> ink = inkOn(source, columns, rows);

    QImage result(static_cast<int>(extentOf(columns)), static_cast<int>(extentOf(rows)),
                  QImage::Format_ARGB32_Premultiplied);
    const float *from = ink.data();
    // Rounding errors are carried to the next pixel: much ink may be spread thinly over many
    // pixels.
    float left = 0;
    for (int y = 0; y < result.height(); ++y) {
        QRgb *target = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            left += *from++;
            const int alpha = qBound(0, qRound(left), 255);
            left -= static_cast<float>(alpha);
            target[x] = qRgba(0, 0, 0, alpha);
        }
    }
    return result;
}
