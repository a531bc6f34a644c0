#pragma once

#include <QImage>
#include <QPixmap>

class QPainter;

/**
 * The finer drawings behind the glyphs' pixmaps.
 *
 * A glyph's pixmap is drawn at 8 pixels a staff space, right for an ordinary screen at 100 %. On
 * a dense screen, when zoomed in, and on paper the same glyph is drawn from a picture of up to 64
 * pixels a space, over the same rectangle.
 */
namespace GlyphDrawings
{
/** The picture in a resource as ink: white is transparent, grey covers by its darkness. */
QImage loadInk(const QString &path, const QColor &ink = Qt::black);

/** Remembers that `pixmap` has a finer drawing at `path`; it is loaded when first needed. */
void setFineDrawing(const QPixmap &pixmap, const QString &path);

/**
 * The drawing of `pixmap` that suits the painter's device and zoom best: the coarsest that has a
 * pixel for each of the device's. Null if the pixmap itself suits, or has no finer drawing.
 */
QImage fineDrawing(const QPixmap &pixmap, const QPainter &painter);
} // namespace GlyphDrawings
