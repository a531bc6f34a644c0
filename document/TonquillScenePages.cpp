#include "ItemKinds.h"
#include "Logging.h"
#include "PageGeometry.h"
#include "PaperPainting.h"
#include "TonquillScene.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

void TonquillScene::setPaper(const QRectF &paper, const QRectF &frame)
{
    paperRect = paper;
    pageRect = frame;
    pageSpacing = PageGeometry::spacing(paper.height());
}

QRectF TonquillScene::printedArea(int index) const
{
    constexpr qreal aroundFrame = 2.0;
    return pageRect.adjusted(-aroundFrame, -aroundFrame, aroundFrame, aroundFrame)
        .translated(0, index * pagePitch());
}

void TonquillScene::resizeToPages()
{
    setSceneRect(0, 0, paperRect.width(), m_context->pages() * pagePitch());
}

void TonquillScene::addPage()
{
    setPageNum(m_context->pages() + 1);
}

void TonquillScene::setPageNum(int n)
{
    m_context->setPages(n);
    resizeToPages();
}

float TonquillScene::getCoordByPageNum(int n) const
{
    return static_cast<float>((n - 1) * pagePitch());
}

int TonquillScene::getPageAt(QPointF p) const
{
    return truncatedToInt((0.25 * paperRect.height() + p.y()) / pagePitch() + 1.0);
}

void TonquillScene::addPageBeforeCurPage(int cur)
{
    insertPageAt((cur - 1) * pagePitch());
}

void TonquillScene::addPageAfterCurPage(int cur)
{
    insertPageAt(cur * pagePitch());
}

void TonquillScene::addPageAtBegining()
{
    insertPageAt(0);
}

void TonquillScene::addPageAtEnd()
{
    insertPageAt(m_context->pages() * pagePitch());
}

/** Items are found by their shape, so one that only extends below `top` moves down, too. */
void TonquillScene::insertPageAt(double top)
{
    m_context->setPages(m_context->pages() + 1);
    const QRectF old = sceneRect();
    const QList<QGraphicsItem *> moving =
        topLevelItemsIn(QRectF(0, truncatedToInt(top), paperRect.width(), old.height()));
    setSceneRect(0, 0, old.width(), old.height() + pagePitch());
    moveDown(moving, pagePitch());
}

/**
 * To be called after the scene's rectangle was set, which drops Qt's index: before that, each item
 * that moves is removed from the index individually.
 */
void TonquillScene::moveDown(const QList<QGraphicsItem *> &items, double way)
{
    update(); // once, instead of item by item
    for (QGraphicsItem *item : items)
        item->setPos(item->x() + 0.0, item->y() + way);
}

void TonquillScene::deletePage(int page)
{
    // Intentional: items end up two gaps lower on their new page than before.
    deletePage(page, paperRect.height() - pageSpacing);
}

void TonquillScene::deletePage(int page, double way)
{
    const QRectF area(0, truncatedToInt((page - 1) * pagePitch()), paperRect.width(),
                      paperRect.height());
    QList<QGraphicsItem *> deleted = topLevelItemsIn(area);
    // The bottommost first: in that order each is found immediately, since it is the oldest.
    std::reverse(deleted.begin(), deleted.end());
    destroyItems(deleted);
    if (m_context->pages() < 2)
        return;
    m_context->setPages(m_context->pages() - 1);
    const QRectF old = sceneRect();
    const QList<QGraphicsItem *> moving = topLevelItemsIn(
        QRectF(0, truncatedToInt(page * pagePitch()), paperRect.width(), old.height()));
    setSceneRect(0, 0, old.width(), old.height() - pagePitch());
    moveDown(moving, -way);
}

void TonquillScene::clearScene()
{
    m_lastAdded = ItemReference();
    m_contextText.clear();
    m_quickTextBlock.clear();
    m_waiting.clear();
    update(); // once, instead of item by item
    clearSelection();
    clear();
    m_addedItems = 0;
    m_indexFitsUpTo = 0;
    if (m_context->pages() < 2)
        return;
    m_context->setPages(1);
    // Intentional: one gap less than the page; the next page operation sets the normal height.
    setSceneRect(0, 0, sceneRect().width(), paperRect.height() - pageSpacing);
}

namespace
{
/**
 * Whether the item's shape reaches into the area. Qt compares outlines, which takes ten
 * times as long as moving the item, so it is asked only about items on the area's edge and about
 * those of no known kind, whose shape may be anything.
 */
bool reachesInto(const QRectF &area, const QGraphicsItem &item)
{
    constexpr qreal edge = 1.0;
    const QRectF bounds = item.sceneBoundingRect();
    if (ItemKinds::catalogue().ofItem(item) && !bounds.isEmpty() &&
        area.adjusted(edge, edge, -edge, -edge).contains(bounds))
        return true;
    QPainterPath outline;
    outline.addRect(area);
    return item.collidesWithPath(item.mapFromScene(outline), Qt::IntersectsItemShape);
}
} // namespace

QList<QGraphicsItem *> TonquillScene::topLevelItemsIn(const QRectF &area) const
{
    QList<QGraphicsItem *> result = items(area, Qt::IntersectsItemBoundingRect);
    result.removeIf([&area](const QGraphicsItem *item) {
        return item->parentItem() || !reachesInto(area, *item);
    });
    return result;
}

void TonquillScene::drawBackground(QPainter *painter, const QRectF &rect)
{
    // The painter is used for the items next, which must not inherit the grey pen.
    painter->save();
    // Only the pages within the rectangle: printing calls this for each page, and drawing all of
    // them would take quadratic time. Without a rectangle all pages are drawn.
    int first = 0;
    int last = m_context->pages() - 1;
    if (!rect.isEmpty()) {
        first = qMax(first, truncatedToInt(rect.top() / pagePitch()) - 1);
        last = qMin(last, truncatedToInt(rect.bottom() / pagePitch()) + 1);
    }
    for (int i = first; i <= last; ++i)
        DrawPageBoundary(painter, i);
    painter->restore();
}

void TonquillScene::DrawPageBoundary(QPainter *painter, int index)
{
    const double top = index * pagePitch();
    painter->setPen(PaperPainting::linePen(*painter, QColor(192, 192, 192, 255)));
    painter->drawRect(QRectF(paperRect.x(), top, paperRect.width(), paperRect.height()));
    painter->drawRect(
        QRectF(pageRect.x(), top + pageRect.y(), pageRect.width(), pageRect.height()));
}

void TonquillScene::drawForeground(QPainter *painter, const QRectF &)
{
    if (!m_rubberBandVisible || PaperPainting::isPrinter(*painter))
        return;
    painter->setPen(QPen(Qt::black, 0, Qt::DashLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(m_rubberBand);
}
