#include "GlyphDrawings.h"

#include "PaperPainting.h"

#include <QHash>
#include <QPainter>

#include <array>

namespace
{
/** How many times finer than the pixmap each level is. */
constexpr std::array<int, 3> levelScales{2, 4, 8};

/** One glyph's finer drawings, made when they are first asked for. */
struct Levels
{
    QString path;
    std::array<QImage, levelScales.size()> images;

    const QImage &finest()
    {
        QImage &image = images.back();
        if (image.isNull())
            image = GlyphDrawings::loadInk(path);
        return image;
    }

    const QImage &level(std::size_t index)
    {
        QImage &image = images[index];
        if (image.isNull() && !finest().isNull()) {
            const QSize size = finest().size() * levelScales[index] / levelScales.back();
            image = finest()
                        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        }
        return image;
    }
};

QHash<qint64, Levels> &levelsByPixmap()
{
    static QHash<qint64, Levels> levels;
    return levels;
}

/** How many device pixels one scene unit covers; infinitely many where ink is laid on paper. */
qreal devicePixelsPerUnit(const QPainter &painter)
{
    if (PaperPainting::isPrinter(painter))
        return qInf();
    const qreal zoom =
        QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter.worldTransform());
    return zoom * painter.device()->devicePixelRatioF();
}
} // namespace

QImage GlyphDrawings::loadInk(const QString &path, const QColor &ink)
{
    const QImage picture = QImage(path).convertToFormat(QImage::Format_Grayscale8);
    QImage result(picture.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < picture.height(); ++y) {
        const uchar *source = picture.constScanLine(y);
        QRgb *target = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            target[x] = qPremultiply(qRgba(ink.red(), ink.green(), ink.blue(), 255 - source[x]));
    }
    return result;
}

void GlyphDrawings::setFineDrawing(const QPixmap &pixmap, const QString &path)
{
    levelsByPixmap().insert(pixmap.cacheKey(), Levels{path, {}});
}

QImage GlyphDrawings::fineDrawing(const QPixmap &pixmap, const QPainter &painter)
{
    const qreal pixelsPerUnit = devicePixelsPerUnit(painter);
    if (pixelsPerUnit <= 1.0)
        return QImage();
    const auto found = levelsByPixmap().find(pixmap.cacheKey());
    if (found == levelsByPixmap().end())
        return QImage();
    std::size_t index = 0;
    while (index + 1 < levelScales.size() && levelScales[index] < pixelsPerUnit)
        ++index;
    return found->level(index);
}
