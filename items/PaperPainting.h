#pragma once

#include <QFont>
#include <QPen>
#include <QStyleOptionGraphicsItem>

class QGraphicsTextItem;
class QPainter;

/** The differences between painting on paper and on screen. */
namespace PaperPainting
{
/** True if the painter draws on a QPrinter, be it paper, a PDF file or the print preview. */
bool isPrinter(const QPainter &painter);

/** The option for painting: on paper without state flags, so that no selection is printed. */
QStyleOptionGraphicsItem optionFor(const QPainter &painter, const QStyleOptionGraphicsItem &option);

/** The width of lines on screen. */
enum class ScreenLines {
    OnePixel, ///< at any zoom
    AsOnPaper ///< 1/96 inch on the page, rounded to whole pixels, at least one
};

/** Sets the width for all windows of the program; the default is OnePixel. */
void setScreenLines(ScreenLines lines);

/**
 * The cosmetic pen for all lines: on screen one device pixel wide at any zoom, unless
 * setScreenLines() says otherwise. On paper and pictures of paper, where one pixel would be
 * invisible, a line is 1/96 inch wide at every resolution.
 */
QPen linePen(const QPainter &painter, const QColor &color = Qt::black);

/**
 * The visible part of the plane in the painter's coordinates, rather slightly too large. A figure
 * may extend far beyond it.
 */
QRectF visibleRect(const QPainter &painter);

/**
 * `font` with its point size turned into scene units. A text must keep its size on the page, but
 * points depend on the resolution of the paint device.
 */
QFont inSceneUnits(const QFont &font);

/**
 * Paints only the text of a text item, without the cursor and the selection of an editor, which do
 * not belong on paper. As on screen, it is clipped to `exposed`, in item coordinates, unless that
 * is empty or negative.
 */
void drawText(QPainter *painter, const QGraphicsTextItem &item, const QRectF &exposed);

/** The two-coloured dashed outline with which Qt marks a selected item. */
void drawSelectionOutline(QPainter *painter, const QRectF &bounds,
                          const QStyleOptionGraphicsItem &option);
} // namespace PaperPainting
