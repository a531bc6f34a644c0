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
    : DocumentItemOf(adding, parent)
    , m_font(ItemModel::largeBoldFont())
    , m_numerator(numerator)
    , m_denominator(denominator)
{
    setSelected(adding);
    setZValue(symbolZValue);
    frame().setAnchors({boundingRect().topLeft()});
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

const PointerManners &TonquillTimeSig::manners() const
{
    static const PointerManners manners{.followsWithButtonsHeld = false};
    return manners;
}
