#pragma once

#include <QImage>
#include <QPixmap>

class QPainter;

/**
 * The finer drawings behind the glyphs' pixmaps.
 *
 * A glyph's pixmap is drawn at 8 pixels a staff space, right for an ordinary screen at 100 %. At
 * any other size the same glyph is drawn from a picture of 64 pixels a space, over the same
 * rectangle: made smaller so that no ink is lost, or on paper as fine as it is.
 */
namespace GlyphDrawings
{
/** The picture in a resource as ink: white is transparent, grey covers by its darkness. */
QImage loadInk(const QString &path, const QColor &ink = Qt::black);

/** Remembers that `pixmap` has a finer drawing at `path`; it is loaded when first needed. */
void setFineDrawing(const QPixmap &pixmap, const QString &path);

/**
 * Draws `pixmap`'s finer drawing where the pixmap would lie with its corner at `topLeft`, in the
 * painter's coordinates. False, with nothing drawn, if the pixmap itself suits the painter's
 * device and zoom, or has no finer drawing.
 */
bool paint(QPainter &painter, const QPixmap &pixmap, QPointF topLeft);
} // namespace GlyphDrawings
