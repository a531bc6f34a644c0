#pragma once

#include <QFont>
#include <QPen>
#include <QStyleOptionGraphicsItem>

class QGraphicsTextItem;
class QPainter;

/** What items paint differently on paper than on screen. */
namespace PaperPainting
{
/** True if the painter draws on a QPrinter, be it paper, a PDF file or the print preview. */
bool isPrinter(const QPainter &painter);

/** The option to paint with: on paper without any state, so that no selection mark is printed. */
QStyleOptionGraphicsItem optionFor(const QPainter &painter, const QStyleOptionGraphicsItem &option);

/** How wide lines are on screen. */
enum class ScreenLines {
    OnePixel, ///< at any zoom
    AsOnPaper ///< 1/96 inch of the page, to the next whole pixel, but never less than one
};

/** To be chosen by the program, for all of its windows; without a choice it is OnePixel. */
void setScreenLines(ScreenLines lines);

/**
 * The cosmetic pen of all lines: on screen one device pixel wide at any zoom, unless the program
 * has chosen otherwise. Paper and pictures of paper have finer pixels, on which such a line could
 * not be seen; there a line is 1/96 inch wide at every resolution.
 */
QPen linePen(const QPainter &painter, const QColor &color = Qt::black);

/**
 * The part of the plane, in the painter's coordinates, in which something painted may be seen; a
 * little too large rather than too small. A figure may reach far beyond it.
 */
QRectF visibleRect(const QPainter &painter);

/**
 * `font` with its point size turned into scene units. An item's text must keep its size on the
 * page, while points follow the dots per inch of whatever device is painted on.
 */
QFont inSceneUnits(const QFont &font);

/**
 * Paints a text item's text and nothing else: while it is edited, neither the text cursor nor the
 * marked words belong on paper. As on screen, it is cut off at `exposed`, in item coordinates, and
 * not at all if that has no positive width and height.
 */
void drawText(QPainter *painter, const QGraphicsTextItem &item, const QRectF &exposed);

/** The two-coloured dashed outline with which Qt marks a selected item. */
void drawSelectionOutline(QPainter *painter, const QRectF &bounds,
                          const QStyleOptionGraphicsItem &option);
} // namespace PaperPainting
