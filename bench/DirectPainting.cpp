#include "DirectPainting.h"

#include "GlyphDrawings.h"
#include "PaperPainting.h"
#include "TonquillMainWin.h"
#include "VectorShapes.h"

#include <QPainter>

namespace
{
/** The lines of a figure that consists of lines. */
QList<QLine> linesOf(Kind kind, QPoint end)
{
    switch (kind) {
    case Kind::Grandstaff:
        return VectorShapes::grandstaff(QPoint(), end);
    case Kind::LineTab:
        return VectorShapes::tablature(QPoint(), end);
    case Kind::Triplet:
        return VectorShapes::triplet(QPoint(), end).lines;
    default:
        return VectorShapes::line(QPoint(), end);
    }
}

void paintGlyph(QPainter &painter)
{
    const QPixmap pixmap = g_pMainWin->symbols.value(SampleDocument::glyphId);
    const QPoint corner(-(pixmap.width() / 2), -(pixmap.height() / 2));
    if (!GlyphDrawings::paint(painter, pixmap, corner))
        painter.drawPixmap(corner, pixmap);
}

void paintText(QPainter &painter, const QFont &font, const QString &text)
{
    painter.setFont(PaperPainting::inSceneUnits(font));
    painter.drawText(QPoint(4, 16), text);
}

void paintFigure(QPainter &painter, Kind kind)
{
    const QPoint end = SampleDocument::extentOf(kind);
    painter.setPen(PaperPainting::linePen(painter));
    if (kind == Kind::Tie) {
        const VectorShapes::Tie tie = VectorShapes::tie(QPoint(), end);
        painter.drawArc(tie.rect, tie.startAngle, tie.spanAngle);
        return;
    }
    painter.drawLines(linesOf(kind, end));
    if (kind == Kind::Triplet)
        paintText(painter, painter.font(), QStringLiteral("3"));
}
} // namespace

void DirectPainting::paint(QPainter &painter, Kind kind)
{
    switch (kind) {
    case Kind::Glyph:
        paintGlyph(painter);
        break;
    case Kind::TimeSig:
        paintText(painter, QFont(QStringLiteral("Arial"), 18, QFont::Bold), QStringLiteral("3"));
        painter.drawText(QPoint(4, 40), QStringLiteral("4"));
        break;
    case Kind::Text:
        paintText(painter, QFont(QStringLiteral("Arial"), 12), SampleDocument::textOf(kind));
        break;
    case Kind::TextBlock:
        paintText(painter, QFont(), SampleDocument::textOf(kind));
        break;
    default:
        paintFigure(painter, kind);
    }
}
