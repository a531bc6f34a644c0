#include "DocumentBounds.h"

#include "EmbeddedPicture.h"
#include "HtmlOutline.h"
#include "TextExtent.h"

#include <QUrl>

#include <algorithm>
#include <cmath>

namespace
{
using namespace ItemState;

bool isNear(double value)
{
    return std::fabs(value) <= DocumentBounds::farthest;
}

bool isNear(QPointF point)
{
    return isNear(point.x()) && isNear(point.y());
}

bool liesNear(const Glyph &item)
{
    return isNear(item.position);
}

bool liesNear(const TimeSignature &item)
{
    return isNear(item.position);
}

bool liesNear(const Figure &item)
{
    return isNear(item.position) && isNear(item.start) && isNear(item.end) &&
           (!item.anchors || (isNear(item.anchors->first) && isNear(item.anchors->second)));
}

bool liesNear(const Text &item)
{
    return isNear(item.position);
}

bool liesNear(const TextBlock &item)
{
    return isNear(item.position) && isNear(item.topLeft) && isNear(item.bottomRight) &&
           isNear(item.textWidth);
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

QString DocumentBounds::problemOf(const Any &item)
{
    if (m_items >= mostItems)
        return tooManyItems();
    if (!std::visit([](const auto &one) { return liesNear(one); }, item))
        return tr("The item is too large or too far away.");
    const QString problem = problemOfText(item);
    if (problem.isEmpty())
        ++m_items;
    return problem;
}

QString DocumentBounds::problemOfText(const Any &item)
{
    if (const auto *text = std::get_if<Text>(&item))
        return problemOfExtent(TextExtent(*text));
    const auto *block = std::get_if<TextBlock>(&item);
    if (!block)
        return QString();
    const QString problem = block->isHtml ? problemOfHtml(block->text) : QString();
    if (!problem.isEmpty())
        return problem;
    const TextExtent extent(*block);
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

/** Told once more, of what was really read: the tags alone have kept that within bounds. */
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
