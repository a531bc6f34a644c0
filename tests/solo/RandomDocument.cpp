#include "RandomDocument.h"

#include "FigureState.h"
#include "GlyphState.h"
#include "TextBlockState.h"
#include "TextState.h"
#include "TimeSignatureState.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillVectorGrandstaff.h"
#include "TonquillVectorInteractiveLine.h"
#include "TonquillVectorLineTab.h"
#include "TonquillVectorNoteTie.h"
#include "TonquillVectorTriplet.h"

#include <QImage>
#include <QPainter>

QPointF RandomDocument::point(double reach)
{
    return QPointF(m_random.bounded(2 * reach) - reach, m_random.bounded(2 * reach) - reach);
}

QPointF RandomDocument::placeOnPage()
{
    return QPointF(m_random.bounded(700.0), m_random.bounded(3200.0));
}

FontState RandomDocument::font()
{
    const QStringList families{"Musica", "Courier New", "Verdana", "Times New Roman", "Arial"};
    FontState font;
    font.family = families[below(int(families.size()))];
    font.size = 1 + below(48);
    font.weight = below(2) ? QFont::Bold : QFont::Normal;
    font.style = below(2) ? QFont::StyleItalic : QFont::StyleNormal;
    font.underline = below(2) == 1;
    return font;
}

/** Words and everything that a line of text could stumble over. */
QString RandomDocument::text()
{
    const QStringList parts{"Allegro",
                            " ",
                            "|",
                            "é",
                            "♭",
                            "\"",
                            "\\",
                            "=",
                            "%1",
                            "\u00a0",
                            "𝄞",
                            "\u2028",
                            "tonquill_textblock_end",
                            "\t",
                            "日本"};
    QString result;
    for (int count = 1 + below(6); count > 0; --count)
        result += parts[below(int(parts.size()))];
    return result;
}

ItemState RandomDocument::item()
{
    return item(below(9));
}

ItemState RandomDocument::item(int kind)
{
    if (kind == 0)
        return GlyphState{placeOnPage(), below(40), below(2) == 1};
    if (kind == 1)
        return TimeSignatureState{placeOnPage(), 1 + below(20), 1 + below(16)};
    if (kind == 2) {
        return TextState{placeOnPage(), text(), font(), QColor::fromRgb(m_random.generate()),
                         below(2) ? m_random.bounded(360.0) : 0.0};
    }
    if (kind == 3) {
        return TextBlockState{
            placeOnPage(), QPointF(0, 0),           point(300), double(20 + below(300)),
            font(),        text() + u'\n' + text(), false};
    }
    const QList<const FigureKind *> figures{
        &TonquillVectorGrandstaff::figure(), &TonquillVectorInteractiveLine::figure(),
        &TonquillVectorLineTab::figure(), &TonquillVectorNoteTie::figure(),
        &TonquillVectorTriplet::figure()};
    FigureState figure{placeOnPage(), figures[kind - 4], point(200), point(200), std::nullopt};
    if (below(3) == 0)
        figure.anchors = FigureState::Anchors(point(100), point(100));
    return figure;
}

void RandomDocument::fill(TonquillMainWin &window, int count)
{
    for (int i = 0; i < count; ++i)
        window.scene->buildItem(item());
}

QList<QImage> RandomDocument::pictures(TonquillMainWin &window)
{
    TonquillScene &scene = *window.scene;
    scene.clearSelection();
    QList<QImage> result;
    for (int page = 0; page < window.pageCount; ++page) {
        QImage image(scene.paperRect.size().toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        scene.render(&painter, QRectF(image.rect()),
                     QRectF(image.rect()).translated(0, page * scene.pagePitch()));
        result.append(image);
    }
    return result;
}
