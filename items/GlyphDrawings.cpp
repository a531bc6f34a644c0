#include "GlyphDrawings.h"

#include "InkOutline.h"
#include "InkReduction.h"
#include "PaperPainting.h"

#include <QCache>
#include <QHash>
#include <QPaintEngine>
#include <QPainter>

#include <cmath>

/**
 * Registers the drawings of this static library. Q_INIT_RESOURCE only works outside of namespaces.
 */
static void haveDrawings()
{
    Q_INIT_RESOURCE(images);
}

namespace
{
/** One glyph's finer drawing, loaded when first needed. */
struct Glyph
{
    QString path;
    QImage drawing;
    QPainterPath outline;

    const QImage &fineDrawing()
    {
        if (drawing.isNull())
            drawing = GlyphDrawings::loadInk(path);
        return drawing;
    }

    const QPainterPath &fineOutline()
    {
        if (outline.isEmpty())
            outline = InkOutline::of(fineDrawing());
        return outline;
    }
};

/** Identifies a reduced drawing: its pixmap, its scale and its offset within the first pixel. */
struct Reduction
{
    qint64 pixmap;
    int across; ///< the scale, in 65536ths
    int down;
    QPoint phase; ///< in parts of a pixel, see partsOfPixel()

    bool operator==(const Reduction &other) const = default;
};

size_t qHash(const Reduction &key, size_t seed)
{
    return qHashMulti(seed, key.pixmap, key.across, key.down, key.phase.x(), key.phase.y());
}

constexpr int scaleUnit = 65536;

/** Enough for every glyph of a page at one zoom. */
constexpr int mostBytesKept = 16 * 1024 * 1024;

QHash<qint64, Glyph> &glyphsByPixmap()
{
    static QHash<qint64, Glyph> glyphs;
    return glyphs;
}

QCache<Reduction, QImage> &reductions()
{
    static QCache<Reduction, QImage> images(mostBytesKept);
    return images;
}

/** True if a unit is a device pixel, so that the pixmap can be drawn as it is. */
bool isPixelForPixel(const QPainter &painter)
{
    return !PaperPainting::isPrinter(painter) &&
           painter.deviceTransform().type() <= QTransform::TxTranslate;
}

/** True if the transform only moves and scales. */
bool isUpright(const QTransform &toDevice)
{
    return toDevice.type() <= QTransform::TxScale && toDevice.m11() > 0 && toDevice.m22() > 0;
}

/** Device pixels per unit, across and down; equal in both directions if rotated. */
QSizeF pixelsPerUnit(const QTransform &toDevice)
{
    if (isUpright(toDevice))
        return QSizeF(toDevice.m11(), toDevice.m22());
    const qreal both = QStyleOptionGraphicsItem::levelOfDetailFromTransform(toDevice);
    return QSizeF(both, both);
}

/** The number of sub-pixel positions: large glyphs need fewer than small ones. */
int partsOfPixel(qreal pixelsPerUnit)
{
    if (pixelsPerUnit >= 4)
        return 1;
    return pixelsPerUnit >= 2 ? 2 : 4;
}

/** Pixels of the finer drawing per pixel of the pixmap. */
QSizeF finenessOf(const QImage &drawing, const QPixmap &pixmap)
{
    return QSizeF(qreal(drawing.width()) / pixmap.width(),
                  qreal(drawing.height()) / pixmap.height());
}

/**
 * The glyph reduced to `pixels` per unit; its corner lies `phase` / `parts` within the first pixel.
 */
QImage reducedDrawing(const QPixmap &pixmap, Glyph &glyph, QSizeF pixels, QPoint phase, int parts)
{
    const Reduction key{pixmap.cacheKey(), qRound(pixels.width() * scaleUnit),
                        qRound(pixels.height() * scaleUnit), phase};
    if (const QImage *known = reductions().object(key))
        return *known;
    const QSizeF fineness = finenessOf(glyph.fineDrawing(), pixmap);
    const QSizeF scale(pixels.width() / fineness.width(), pixels.height() / fineness.height());
    const QImage made = InkReduction::reduced(glyph.fineDrawing(), scale, QPointF(phase) / parts);
    reductions().insert(key, new QImage(made), made.sizeInBytes());
    return made;
}

/** Draws the drawing pixel for pixel, as fast as the pixmap itself. */
void paintReduced(QPainter &painter, const QPixmap &pixmap, Glyph &glyph, QPointF topLeft)
{
    const QTransform toDevice = painter.deviceTransform();
    const QSizeF pixels = pixelsPerUnit(toDevice);
    const int parts = partsOfPixel(qMin(pixels.width(), pixels.height()));
    const QPointF corner = toDevice.map(topLeft) * parts;
    const QPointF nearest(std::round(corner.x()), std::round(corner.y()));
    const QPointF pixel(std::floor(nearest.x() / parts), std::floor(nearest.y() / parts));
    const QPoint phase = (nearest - pixel * parts).toPoint();
    const QImage drawing = reducedDrawing(pixmap, glyph, pixels, phase, parts);

    const QTransform before = painter.worldTransform();
    painter.setWorldTransform(QTransform::fromTranslate(pixel.x(), pixel.y()) *
                              toDevice.inverted() * before);
    painter.drawImage(QPointF(0, 0), drawing);
    painter.setWorldTransform(before);
}

/** A rotated glyph is scaled first, then rotated, with a white margin for smooth edges. */
void paintTurned(QPainter &painter, const QPixmap &pixmap, Glyph &glyph, QPointF topLeft)
{
    const QPoint border(1, 1);
    const QSizeF pixels = pixelsPerUnit(painter.deviceTransform());
    const QImage drawing = reducedDrawing(pixmap, glyph, pixels, border, 1);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(
        QRectF(topLeft - QPointF(border) / pixels.width(), QSizeF(drawing.size()) / pixels.width()),
        drawing);
}

void paintFinest(QPainter &painter, const QPixmap &pixmap, Glyph &glyph, QPointF topLeft)
{
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(topLeft, QSizeF(pixmap.size())), glyph.fineDrawing());
}

/** For pictures that are shown at any size later, such as the print preview. */
void paintOutline(QPainter &painter, const QPixmap &pixmap, Glyph &glyph, QPointF topLeft)
{
    const QSizeF fineness = finenessOf(glyph.fineDrawing(), pixmap);
    const QTransform place = QTransform::fromTranslate(topLeft.x(), topLeft.y())
                                 .scale(1 / fineness.width(), 1 / fineness.height());
    const bool smooth = painter.testRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(place.map(glyph.fineOutline()), Qt::black);
    painter.setRenderHint(QPainter::Antialiasing, smooth);
}
} // namespace

QImage GlyphDrawings::loadInk(const QString &path, const QColor &ink)
{
    haveDrawings();
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
    glyphsByPixmap().insert(pixmap.cacheKey(), Glyph{path, {}, {}});
}

bool GlyphDrawings::paint(QPainter &painter, const QPixmap &pixmap, QPointF topLeft)
{
    if (isPixelForPixel(painter))
        return false;
    const auto found = glyphsByPixmap().find(pixmap.cacheKey());
    if (found == glyphsByPixmap().end() || found->fineDrawing().isNull())
        return false;
    const QPaintEngine::Type engine = painter.paintEngine()->type();
    const QSizeF pixels = pixelsPerUnit(painter.deviceTransform());
    const QSizeF fineness = finenessOf(found->fineDrawing(), pixmap);
    if (engine == QPaintEngine::Picture)
        paintOutline(painter, pixmap, *found, topLeft);
    else if (PaperPainting::isPrinter(painter) || engine == QPaintEngine::SVG ||
             pixels.width() >= fineness.width() || pixels.height() >= fineness.height())
        paintFinest(painter, pixmap, *found, topLeft);
    else if (isUpright(painter.deviceTransform()))
        paintReduced(painter, pixmap, *found, topLeft);
    else if (!pixels.isEmpty())
        paintTurned(painter, pixmap, *found, topLeft);
    return true;
}
