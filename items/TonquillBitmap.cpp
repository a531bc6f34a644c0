#include "TonquillBitmap.h"

#include "GlyphDrawings.h"
#include "PaperPainting.h"
#include "Records.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>

TonquillBitmap::TonquillBitmap(const QPixmap &pixmap, int symbolId, bool adding,
                               QPixmap invertedPixmap, QGraphicsItem *parent)
    : QGraphicsPixmapItem(parent)
    , m_itemStatus(adding ? ItemStatus::Adding : ItemStatus::Placed)
    , m_frame(this)
    , m_symbolId(symbolId)
    , m_invertedPixmap(std::move(invertedPixmap))
    , m_normalPixmap(pixmap)
{
    setFlags(ItemIsMovable | ItemIsSelectable);
    setInverted(false);
    setOffset(-(pixmap.width() / 2), -(pixmap.height() / 2));
    setShapeMode(BoundingRectShape);
    setSelected(adding);
    setZValue(symbolZValue);
    m_frame.setZValue(0.0);
    m_frame.addAnchor(boundingRect().topLeft());
    setData(ItemData::symbolId, m_symbolId);
    setData(ItemData::keyword, Records::bitmapKeyword());
}

void TonquillBitmap::setInverted(bool inverted)
{
    m_inverted = inverted;
    m_frame.parentBoundsAboutToChange();
    setPixmap(inverted ? m_invertedPixmap : m_normalPixmap);
}

QString TonquillBitmap::getParamStr()
{
    return Records::format(Records::Bitmap{data(ItemData::symbolId).toInt(), truncatedToInt(x()),
                                           truncatedToInt(y()), m_inverted});
}

void TonquillBitmap::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                           QWidget *widget)
{
    const QStyleOptionGraphicsItem ours = PaperPainting::optionFor(*painter, *option);
    const QImage fine = GlyphDrawings::fineDrawing(pixmap(), *painter);
    if (fine.isNull())
        QGraphicsPixmapItem::paint(painter, &ours, widget);
    else
        paintFine(painter, fine, ours);
}

/** Draws the finer picture of the glyph in the place of the pixmap, and the selection's outline. */
void TonquillBitmap::paintFine(QPainter *painter, const QImage &drawing,
                               const QStyleOptionGraphicsItem &option) const
{
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(QRectF(offset(), QSizeF(pixmap().size())), drawing);
    if (option.state & QStyle::State_Selected)
        PaperPainting::drawSelectionOutline(painter, boundingRect(), option);
}

bool TonquillBitmap::canInvertNow() const
{
    return !m_invertedPixmap.isNull() && m_itemStatus == ItemStatus::Adding;
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
