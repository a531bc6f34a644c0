#pragma once

#include <QImage>
#include <QPixmap>

class QPainter;

/**
 * The high-resolution drawings of the glyphs' pixmaps.
 *
 * A glyph's pixmap has 8 pixels per staff space, which suits an ordinary screen at 100 %. At any
 * other size the glyph is drawn from a picture of 64 pixels per space in the same rectangle:
 * reduced without losing ink, or on paper at full resolution.
 */
namespace GlyphDrawings
{
/**
 * Loads a picture from a resource as ink: white becomes transparent, grey becomes partly opaque.
 */
QImage loadInk(const QString &path, const QColor &ink = Qt::black);

/** Registers the finer drawing at `path` for `pixmap`; it is loaded when first needed. */
void setFineDrawing(const QPixmap &pixmap, const QString &path);

/**
 * Draws the finer drawing of `pixmap` instead of it, with its top-left corner at `topLeft` in the
 * painter's coordinates. Returns false and draws nothing if the pixmap itself suits the painter's
 * device and zoom, or has no finer drawing.
 */
bool paint(QPainter &painter, const QPixmap &pixmap, QPointF topLeft);
} // namespace GlyphDrawings
