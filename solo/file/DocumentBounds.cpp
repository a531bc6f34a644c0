#include "DocumentBounds.h"

#include "DocumentLimits.h"
#include "EmbeddedPicture.h"
#include "HtmlOutline.h"
#include "TextExtent.h"

#include <QUrl>

#include <algorithm>
#include <cmath>

namespace
{
using namespace DocumentLimits;

bool isNear(QPointF point)
{
    return std::fabs(point.x()) <= farthest && std::fabs(point.y()) <= farthest;
}

bool liesNear(const ItemState &item)
{
    const QList<QPointF> points = item.points();
    return isNear(item.position()) && std::all_of(points.cbegin(), points.cend(), isNear);
}

qint64 pixelsOf(const QStringList &pictures)
{
    qint64 pixels = 0;
    for (const QString &address : pictures)
        pixels += EmbeddedPicture::pixelsOf(EmbeddedPicture::bytesOf(QUrl(address)));
    return pixels;
}
} // namespace

QString DocumentBounds::tooManyItems()
{
    return tr("There are more items than a document can have.");
}

QString DocumentBounds::nestedTooDeeply()
{
    return tr("The parts of this text are nested too deeply.");
}

QString DocumentBounds::tablesTooLarge()
{
    return tr("The tables in this text are too large.");
}

QString DocumentBounds::problemOf(const ItemState &item)
{
    if (m_items >= mostItems)
        return tooManyItems();
    if (!liesNear(item))
        return tr("The item is too large or too far away.");
    const std::optional<TextContent> text = item.content();
    const QString problem = text ? problemOfText(*text) : QString();
    if (problem.isEmpty())
        ++m_items;
    return problem;
}

QString DocumentBounds::problemOfText(const TextContent &text)
{
    const QString problem = text.isHtml ? problemOfHtml(text.text) : QString();
    if (!problem.isEmpty())
        return problem;
    const TextExtent extent(text);
    const QString problemThen = problemOfTables(extent);
    return problemThen.isEmpty() ? problemOfExtent(extent) : problemThen;
}

QString DocumentBounds::problemOfExtent(const TextExtent &extent)
{
    if (extent.height() > highestText || m_textLines + extent.lines() > mostTextLines ||
        m_wordSquares + extent.wordSquares() > mostWordSquares)
        return tr("This text is too large.");
    m_textLines += extent.lines();
    m_wordSquares += extent.wordSquares();
    return QString();
}

/**
 * Checked again for the tables that Qt has read; the check of the tags has kept this affordable.
 */
QString DocumentBounds::problemOfTables(const TextExtent &extent)
{
    if (extent.tableDepth() > deepestTables)
        return nestedTooDeeply();
    if (m_cells + extent.cells() > mostCells)
        return tablesTooLarge();
    m_cells += extent.cells();
    return QString();
}

QString DocumentBounds::problemOfHtml(const QString &html)
{
    const HtmlOutline outline(html);
    if (outline.depth() > deepestText || outline.tableDepth() > deepestTables)
        return nestedTooDeeply();
    if (m_cells + outline.cells() > mostCells)
        return tablesTooLarge();
    const qint64 pixels = pixelsOf(outline.pictures());
    if (m_pixels + pixels > mostPixels)
        return tr("The pictures in this text are too large.");
    m_pixels += pixels;
    return QString();
}
