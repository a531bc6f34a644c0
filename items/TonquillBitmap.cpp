#include "TonquillBitmap.h"

#include "GlyphDrawings.h"
#include "PaperPainting.h"
#include "Records.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>

#include <utility>

TonquillBitmap::TonquillBitmap(const QPixmap &pixmap, int symbolId, bool adding,
                               QPixmap invertedPixmap, QGraphicsItem *parent)
    : QGraphicsPixmapItem(pixmap, parent)
    , m_itemStatus(adding ? ItemStatus::Adding : ItemStatus::Placed)
    , m_frame(this)
    , m_otherPixmap(std::move(invertedPixmap))
{
    setFlags(ItemIsMovable | ItemIsSelectable);
    setOffset(-(pixmap.width() / 2), -(pixmap.height() / 2));
    setShapeMode(BoundingRectShape);
    setSelected(adding);
    setZValue(symbolZValue);
    m_frame.addAnchor(boundingRect().topLeft());
    setData(ItemData::symbolId, symbolId);
    setData(ItemData::keyword, Records::bitmapKeyword());
}

void TonquillBitmap::setInverted(bool inverted)
{
    if (inverted == m_inverted)
        return;
    m_inverted = inverted;
    m_frame.parentBoundsAboutToChange();
    const QPixmap shown = pixmap();
    setPixmap(std::exchange(m_otherPixmap, shown));
}

QString TonquillBitmap::getParamStr()
{
    return Records::format(Records::Bitmap{data(ItemData::symbolId).toInt(), truncatedToInt(x()),
                                           truncatedToInt(y()), m_inverted},
                           ItemModel::keywordOf(*this));
}

void TonquillBitmap::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                           QWidget *widget)
{
    // Only for paper is the option copied, which costs as much as drawing the glyph.
    if (PaperPainting::isPrinter(*painter))
        paintWith(painter, PaperPainting::optionFor(*painter, *option), widget);
    else
        paintWith(painter, *option, widget);
}

void TonquillBitmap::paintWith(QPainter *painter, const QStyleOptionGraphicsItem &option,
                               QWidget *widget)
{
    if (!GlyphDrawings::paint(*painter, pixmap(), offset()))
        QGraphicsPixmapItem::paint(painter, &option, widget);
    else if (option.state & QStyle::State_Selected)
        PaperPainting::drawSelectionOutline(painter, boundingRect(), option);
}

bool TonquillBitmap::canInvertNow() const
{
    const QPixmap invertedPixmap = m_inverted ? pixmap() : m_otherPixmap;
    return !invertedPixmap.isNull() && m_itemStatus == ItemStatus::Adding;
}

void TonquillBitmap::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (ItemModel::onlyLeftButtonHeld(*event)) {
        m_lastPointer = event->scenePos();
        if (m_itemStatus == ItemStatus::Placed)
            m_itemStatus = ItemStatus::Moving;
    }
    if (ItemModel::onlyRightButtonHeld(*event) && canInvertNow())
        setInverted(true);
}

void TonquillBitmap::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_itemStatus == ItemStatus::Adding)
        setPos(event->scenePos());
    else if (m_itemStatus == ItemStatus::Moving)
        ItemModel::dragBy(this, *event, m_lastPointer);
}

void TonquillBitmap::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    const bool busy = m_itemStatus == ItemStatus::Adding || m_itemStatus == ItemStatus::Moving;
    if (event->button() == Qt::LeftButton && busy)
        m_itemStatus = ItemStatus::Placed;
    // A glyph that the left button placed meanwhile keeps its inverted form: that is how an
    // inverted glyph is placed.
    const bool rightAlone =
        event->button() == Qt::RightButton && !(event->buttons() & Qt::LeftButton);
    if (rightAlone && canInvertNow())
        setInverted(false);
}

QVariant TonquillBitmap::itemChange(GraphicsItemChange change, const QVariant &value)
{
    ItemModel::announceToScene(change, this, this, m_itemStatus);
    return QGraphicsPixmapItem::itemChange(change, value);
}
