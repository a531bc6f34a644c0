#include "SelectionFrame.h"

#include "Logging.h"
#include "PaperPainting.h"

#include <QPainter>

namespace
{
constexpr qreal anchorHalfSize = 5.0;
constexpr qreal frameMargin = 5.0;

QRectF anchorSquare(QPointF anchor)
{
    return QRectF(anchor.x() - anchorHalfSize, anchor.y() - anchorHalfSize, 2 * anchorHalfSize,
                  2 * anchorHalfSize);
}
} // namespace

SelectionFrame::SelectionFrame(QGraphicsItem *parent)
    : QGraphicsItem(parent)
{
    // The scene forwards presses on the frame to the parent item. When Qt delivers one to a text
    // that is being edited, the frame must not intercept it.
    setAcceptedMouseButtons(Qt::NoButton);
}

void SelectionFrame::setAnchors(const QList<QPointF> &anchors)
{
    m_anchors.clear();
    m_anchors.append(anchors.constData(), anchors.size());
}

void SelectionFrame::addAnchor(QPointF point)
{
    qCDebug(lcPointer) << "add anchor" << point;
    m_anchors.append(point);
}

void SelectionFrame::setAnchor(int index, QPointF point)
{
    qCDebug(lcPointer) << "set anchor" << point;
    m_anchors[index] = point;
}

int SelectionFrame::getAnchor(QPointF point, QPointF &anchor) const
{
    for (qsizetype i = 0; i < m_anchors.size(); ++i) {
        if (anchorSquare(m_anchors[i]).contains(point)) {
            anchor = m_anchors[i];
            return static_cast<int>(i);
        }
    }
    return -1;
}

bool SelectionFrame::isAnchor(QPointF point) const
{
    QPointF anchor;
    return getAnchor(point, anchor) >= 0;
}

void SelectionFrame::parentBoundsAboutToChange()
{
    prepareGeometryChange();
}

QRectF SelectionFrame::boundingRect() const
{
    if (!parentItem())
        return QRectF();
    return parentItem()->boundingRect().adjusted(-frameMargin, -frameMargin, frameMargin,
                                                 frameMargin);
}

void SelectionFrame::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    if (!parentItem() || !parentItem()->isSelected() || PaperPainting::isPrinter(*painter))
        return;
    painter->setPen(PaperPainting::linePen(*painter, Qt::green));
    painter->setBrush(Qt::green);
    for (const QPointF &anchor : m_anchors)
        painter->drawRect(anchorSquare(anchor));
}

void SelectionFrame::mousePressEvent(QGraphicsSceneMouseEvent *) {}

void SelectionFrame::mouseMoveEvent(QGraphicsSceneMouseEvent *) {}

void SelectionFrame::mouseRelaseEvent(QGraphicsSceneMouseEvent *) {}
