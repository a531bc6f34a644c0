#include "PaperPainting.h"

#include "DrawingText.h"

#include <QAbstractTextDocumentLayout>
#include <QGraphicsTextItem>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QTextDocument>

namespace
{
/** The resolution of a desktop screen: one of its pixels is a scene unit at 100 %. */
constexpr qreal screenDotsPerInch = 96.0;
constexpr qreal pointsPerInch = 72.0;

/** 1/96 inch in scene units, an average of horizontal and vertical ones. */
constexpr qreal lineInDrawing = 0.93;

PaperPainting::ScreenLines &screenLines()
{
    static PaperPainting::ScreenLines lines = PaperPainting::ScreenLines::OnePixel;
    return lines;
}

/** In device pixels; 0 is a cosmetic pixel, which is drawn faster. */
qreal lineOnScreen(const QPainter &painter)
{
    if (screenLines() == PaperPainting::ScreenLines::OnePixel)
        return 0;
    const int width = qRound(lineInDrawing * QStyleOptionGraphicsItem::levelOfDetailFromTransform(
                                                 painter.deviceTransform()));
    return width > 1 ? width : 0;
}

/** True for a picture of higher resolution than a screen. */
bool isFinePicture(const QPainter &painter)
{
    const int kind = painter.device()->devType();
    return kind != QInternal::Widget && kind != QInternal::Pixmap &&
           painter.device()->logicalDpiX() > screenDotsPerInch;
}
} // namespace

bool PaperPainting::isPrinter(const QPainter &painter)
{
    // Called for every painted item, so without a dynamic_cast.
    return painter.device() && painter.device()->devType() == QInternal::Printer;
}

QStyleOptionGraphicsItem PaperPainting::optionFor(const QPainter &painter,
                                                  const QStyleOptionGraphicsItem &option)
{
    QStyleOptionGraphicsItem result(option);
    if (isPrinter(painter))
        result.state = QStyle::State_None;
    return result;
}

void PaperPainting::setScreenLines(ScreenLines lines)
{
    screenLines() = lines;
}

QPen PaperPainting::linePen(const QPainter &painter, const QColor &color)
{
    // An SVG is scaled by its viewer, lines included.
    if (painter.paintEngine()->type() == QPaintEngine::SVG)
        return QPen(color, lineInDrawing);
    const bool isFine = isPrinter(painter) || isFinePicture(painter);
    QPen pen(color,
             isFine ? painter.device()->logicalDpiX() / screenDotsPerInch : lineOnScreen(painter));
    pen.setCosmetic(true);
    return pen;
}

QRectF PaperPainting::visibleRect(const QPainter &painter)
{
    const QPaintDevice &device = *painter.device();
    const QSizeF size = QSizeF(device.width(), device.height()) * device.devicePixelRatioF();
    // The origin is at the margins, where items may also be visible.
    const QRectF withMargins =
        QRectF(QPointF(0, 0), size)
            .adjusted(-size.width(), -size.height(), size.width(), size.height());
    const QRectF onDevice = painter.combinedTransform().inverted().mapRect(withMargins);
    return painter.hasClipping() ? onDevice & painter.clipBoundingRect() : onDevice;
}

QFont PaperPainting::inSceneUnits(const QFont &font)
{
    QFont result(font);
    if (font.pointSizeF() > 0)
        result.setPixelSize(qMax(1, qRound(font.pointSizeF() * screenDotsPerInch / pointsPerInch)));
    return result;
}

void PaperPainting::drawText(QPainter *painter, const QGraphicsTextItem &item,
                             const QRectF &exposed)
{
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, item.defaultTextColor());
    context.clip = exposed;
    painter->save();
    // A rectangle with swapped corners would clip everything, but on screen such a text is visible.
    if (exposed.isValid())
        painter->setClipRect(exposed, Qt::IntersectClip);
    const std::unique_ptr<QTextDocument> copy = DrawingText::isNeeded(*painter, *item.document())
                                                    ? DrawingText::copyOf(*item.document())
                                                    : nullptr;
    (copy ? copy.get() : item.document())->documentLayout()->draw(painter, context);
    painter->restore();
}

void PaperPainting::drawSelectionOutline(QPainter *painter, const QRectF &bounds,
                                         const QStyleOptionGraphicsItem &option)
{
    const QColor dashes = option.palette.windowText().color();
    const QColor ground(dashes.red() > 127 ? 0 : 255, dashes.green() > 127 ? 0 : 255,
                        dashes.blue() > 127 ? 0 : 255);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(ground, 0, Qt::SolidLine));
    painter->drawRect(bounds);
    painter->setPen(QPen(dashes, 0, Qt::DashLine));
    painter->drawRect(bounds);
}
