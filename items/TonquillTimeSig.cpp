#include "TonquillTimeSig.h"

#include "Logging.h"
#include "PaperPainting.h"
#include "Records.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>
#include <QTextOption>

namespace
{
constexpr QPointF boundsTopLeft(-10, 0);
constexpr QPointF boundsBottomRight(20, 45);

QFont numeralFont()
{
    return QFont(QStringLiteral("Arial"), 18, QFont::Bold);
}
} // namespace

TonquillTimeSig::TonquillTimeSig(int numerator, int denominator, bool adding, QGraphicsItem *parent)
    : QGraphicsObject(parent)
    , m_font(ItemModel::largeBoldFont())
    , m_itemStatus(adding ? ItemStatus::Adding : ItemStatus::Placed)
    , m_frame(this)
    , m_numerator(numerator)
    , m_denominator(denominator)
{
    setFlags(ItemIsMovable | ItemIsSelectable);
    setSelected(adding);
    setZValue(symbolZValue);
    m_frame.setAnchors({boundingRect().topLeft()});
    setData(ItemData::keyword, Records::timesigKeyword());
}

QRectF TonquillTimeSig::boundingRect() const
{
    return QRectF(boundsTopLeft, boundsBottomRight);
}

QString TonquillTimeSig::getParamStr()
{
    return Records::format(
        Records::TimeSig{truncatedToInt(x()), truncatedToInt(y()), m_numerator, m_denominator},
        ItemModel::keywordOf(*this));
}

void TonquillTimeSig::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setPen(PaperPainting::linePen(*painter));
    painter->setFont(PaperPainting::inSceneUnits(numeralFont()));
    const QString numerals = QStringLiteral("%1\n%2").arg(m_numerator, 2).arg(m_denominator, 2);
    const QRectF textRect = painter->boundingRect(QRectF(), Qt::AlignHCenter, numerals);
    QTextOption oneLineEach;
    oneLineEach.setWrapMode(QTextOption::NoWrap);
    painter->drawText(textRect, numerals, oneLineEach);
    qCDebug(lcPaint) << "timesig " << numerals;
    if (!isSelected() || PaperPainting::isPrinter(*painter))
        return;
    painter->setPen(QPen(Qt::black, 0, Qt::DashLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(textRect);
}

void TonquillTimeSig::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (!ItemModel::onlyLeftButtonHeld(*event) || m_itemStatus != ItemStatus::Placed)
        return;
    m_lastPointer = event->scenePos();
    m_itemStatus = ItemStatus::Moving;
}

void TonquillTimeSig::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_itemStatus == ItemStatus::Adding && event->buttons() == Qt::NoButton)
        setPos(event->scenePos());
    else if (m_itemStatus == ItemStatus::Moving && ItemModel::onlyLeftButtonHeld(*event))
        ItemModel::dragBy(this, *event, m_lastPointer);
}

void TonquillTimeSig::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    const bool busy = m_itemStatus == ItemStatus::Adding || m_itemStatus == ItemStatus::Moving;
    if (event->button() == Qt::LeftButton && busy)
        m_itemStatus = ItemStatus::Placed;
}

QVariant TonquillTimeSig::itemChange(GraphicsItemChange change, const QVariant &value)
{
    ItemModel::announceToScene(change, this, this, m_itemStatus);
    return QGraphicsObject::itemChange(change, value);
}
