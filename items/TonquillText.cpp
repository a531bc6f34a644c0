#include "TonquillText.h"

#include "DrawingText.h"
#include "PaperPainting.h"
#include "Records.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>

TonquillText::TonquillText(bool adding, QGraphicsItem *parent)
    : DocumentItemOf(adding, parent)
{
    setZValue(symbolZValue);
    frame().setZValue(0.0);
    setSelected(true);
    announceChangesOf(*document());
    setData(ItemData::keyword, Records::textKeyword());
}

void TonquillText::updateFrame()
{
    frame().addAnchor(boundingRect().bottomLeft());
}

void TonquillText::moveAnchorToCorner()
{
    frame().parentBoundsAboutToChange();
    frame().setAnchors({boundingRect().bottomLeft()});
}

void TonquillText::setDefaultTextColor(const QColor &color)
{
    QGraphicsTextItem::setDefaultTextColor(color);
    announce(ItemEvent::Altered);
}

QString TonquillText::getParamStr()
{
    const QRectF bounds = boundingRect();
    return Records::format(
        Records::Text{truncatedToInt(x()), truncatedToInt(y()), truncatedToInt(bounds.width()),
                      truncatedToInt(bounds.height()), toPlainText(), font().family(),
                      font().pointSize(), defaultTextColor().rgb(), rotation()},
        ItemModel::keywordOf(*this));
}

void TonquillText::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    if (PaperPainting::isPrinter(*painter) || DrawingText::isNeeded(*painter, *document()))
        PaperPainting::drawText(painter, *this, option->exposedRect);
    else
        QGraphicsTextItem::paint(painter, option, widget);
}

const PointerManners &TonquillText::manners() const
{
    static const PointerManners manners{.grab = PointerManners::Grab::WhileDragged};
    return manners;
}

void TonquillText::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    press(*event);
    // Last, because the menu blocks until it is closed, and a document that arrives in the meantime
    // deletes this item.
    if (ItemModel::onlyRightButtonHeld(*event))
        Q_EMIT showTextItemMenu(this);
}
