#include "TonquillBitmap.h"

#include "GlyphDrawings.h"
#include "PaperPainting.h"
#include "Records.h"
#include "SymbolTable.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>

#include <utility>

TonquillBitmap::TonquillBitmap(const QPixmap &pixmap, int symbolId, bool adding,
                               QPixmap invertedPixmap, QGraphicsItem *parent)
    : DocumentItemOf(adding, pixmap, parent)
    , m_otherPixmap(std::move(invertedPixmap))
{
    setOffset(-SymbolTable::referencePoint(symbolId, pixmap.size()));
    setShapeMode(BoundingRectShape);
    setSelected(adding);
    setZValue(symbolZValue);
    frame().addAnchor(boundingRect().topLeft());
    setData(ItemData::symbolId, symbolId);
    setData(ItemData::keyword, Records::bitmapKeyword());
}

void TonquillBitmap::setInverted(bool inverted)
{
    if (inverted == m_inverted)
        return;
    m_inverted = inverted;
    frame().parentBoundsAboutToChange();
    const QPixmap shown = pixmap();
    setPixmap(std::exchange(m_otherPixmap, shown));
    const QSize normal = (inverted ? m_otherPixmap : pixmap()).size();
    setOffset(-SymbolTable::referencePoint(data(ItemData::symbolId).toInt(), normal, inverted));
    announce(ItemEvent::Altered);
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
    // Copy the option only for paper: it takes as long as drawing the glyph.
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
    return !invertedPixmap.isNull() && status() == ItemStatus::Adding;
}

const PointerManners &TonquillBitmap::manners() const
{
    static const PointerManners manners{.dragsWithAnyButton = true, .notesEveryPress = true};
    return manners;
}

void TonquillBitmap::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    press(*event);
    if (ItemModel::onlyRightButtonHeld(*event) && canInvertNow())
        setInverted(true);
}

void TonquillBitmap::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    release(*event);
    // A glyph that the left button placed in the meantime stays inverted: this is how inverted
    // glyphs are placed.
    const bool rightAlone =
        event->button() == Qt::RightButton && !(event->buttons() & Qt::LeftButton);
    if (rightAlone && canInvertNow())
        setInverted(false);
}
