#include "BareScene.h"

#include "DirectPainting.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QCoreApplication>
#include <QGraphicsTextItem>

namespace
{
/** Replaces a selection frame: a child that paints nothing. */
class BareChild : public QGraphicsItem
{
public:
    using QGraphicsItem::QGraphicsItem;
    QRectF boundingRect() const override { return parentItem()->boundingRect(); }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override {}
};

/** Replaces a figure or time signature. */
class BareObject : public QGraphicsObject
{
public:
    explicit BareObject(Kind kind)
        : m_kind(kind)
    {}
    QRectF boundingRect() const override
    {
        return QRectF(QPointF(0, 0), SampleDocument::extentOf(m_kind));
    }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *) override
    {
        DirectPainting::paint(*painter, m_kind);
    }

private:
    Kind m_kind;
};
} // namespace

BareScene::BareScene(int count, Glyphs glyphs)
    : m_glyphs(glyphs)
{
    setSceneRect(0, 0, g_pMainWin->scene->paperRect.width(),
                 SampleDocument::pagesFor(count) * g_pMainWin->scene->pagePitch());
}

BareScene::~BareScene()
{
    settle();
}

void BareScene::addBareItems(const SampleDocument::Samples &samples)
{
    for (const Sample &sample : samples) {
        QGraphicsItem *item = makeBareItem(sample.kind);
        item->setFlags(QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable);
        item->setPos(sample.position);
        new BareChild(item);
        addItem(item);
        m_items.append(item);
    }
}

void BareScene::settle()
{
    QCoreApplication::processEvents();
    itemAt(QPointF(), QTransform());
}

QGraphicsItem *BareScene::makeBareItem(Kind kind) const
{
    switch (kind) {
    case Kind::Glyph: {
        const QPixmap pixmap = g_pMainWin->symbols.value(SampleDocument::glyphId);
        QGraphicsPixmapItem *item = m_glyphs == Glyphs::CallableByName
                                        ? new BareGlyphObject(pixmap)
                                        : new QGraphicsPixmapItem(pixmap);
        item->setOffset(-(pixmap.width() / 2), -(pixmap.height() / 2));
        item->setShapeMode(QGraphicsPixmapItem::BoundingRectShape);
        return item;
    }
    case Kind::Text:
    case Kind::TextBlock:
        return new QGraphicsTextItem(SampleDocument::textOf(kind));
    default:
        return new BareObject(kind);
    }
}
