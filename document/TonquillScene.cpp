#include "TonquillScene.h"

#include "DocumentItem.h"
#include "GlyphState.h"
#include "Logging.h"
#include "PageGeometry.h"
#include "TonquillBitmap.h"
#include "TonquillText.h"

#include <algorithm>
#include <bit>
#include <iterator>

namespace
{
/** Up to about this number, taking items off the index one by one costs less than searching it. */
constexpr qsizetype someItems = 1000;

/** From this number on, removing items one by one costs more than sorting them first. */
constexpr qsizetype manyItems = 20000;

/** Below every z value that the document uses, with room for more items than fit in memory. */
constexpr qreal belowAllItems = -1.0e12;

/** The context of a scene whose window is gone. */
class NobodyAround : public DocumentContext
{
public:
    Sheet sheet() const override { return Sheet(); }
    int pages() const override { return m_pages; }
    void setPages(int count) override { m_pages = count; }
    bool isRestModeOn() const override { return false; }
    void setRestMode(bool) override {}
    bool isQuickTextOn() const override { return false; }
    void setQuickText(bool) override {}
    QPixmap symbolPicture(int) const override { return QPixmap(); }
    void editFinished() override {}

private:
    int m_pages = 0;
};

NobodyAround &nobody()
{
    static NobodyAround one;
    return one;
}

DocumentContext &currentContext()
{
    return DocumentContext::current ? *DocumentContext::current : nobody();
}
} // namespace

TonquillScene::TonquillScene(QObject *parent)
    : TonquillScene(currentContext(), parent)
{}

TonquillScene::TonquillScene(DocumentContext &context, QObject *parent)
    : QGraphicsScene(parent)
    , ItemRegistry(static_cast<const QGraphicsScene &>(*this))
    , m_context(&context)
{
    const auto [paper, margins] = m_context->sheet();
    setPaper(PageGeometry::paperRect(paper), PageGeometry::pageRect(paper, margins));
    qCDebug(lcTonquill) << "ml " << margins.left() << "mt " << margins.top() << "mr "
                        << margins.right() << "mb " << margins.bottom();
    qCDebug(lcTonquill) << "Printer rect:" << paperRect << "page rect:" << pageRect;
    addPage();
}

void TonquillScene::leaveContext()
{
    nobody().setPages(m_context->pages());
    m_context = &nobody();
}

TonquillScene::~TonquillScene()
{
    for (const QPointer<QObject> &dropped : std::as_const(m_dropped))
        delete dropped.data();
}

void TonquillScene::addNewItem(QGraphicsItem *item)
{
    addItem(item);
    ++m_addedItems;
    fitIndexToItems();
    // Of a document only the last item is remembered: watching each in turn would cost as much
    // memory and time as two of its coordinates.
    if (m_isBuildingDocument)
        m_lastBuilt = item;
    else
        m_lastAdded = ItemReference(item);
}

TonquillBitmap *TonquillScene::insertSymbol(int id, bool adding, bool withInverted)
{
    if (isNewItemIsAdding())
        return nullptr;
    TonquillBitmap *item = GlyphState::makeGlyph(*m_context, id, adding, withInverted);
    addNewItem(item);
    return item;
}

/**
 * Qt chooses the depth of its index by the number of items when it first needs it, and never
 * changes it: chosen for ten items, it would search tens of thousands at every move of the pointer.
 * So the depth is set here, again whenever the number of items has doubled. One leaf for two to
 * four items is searched as quickly as Qt's two to four leaves per item, is built faster, and saves
 * a sixth of a document's memory.
 */
void TonquillScene::fitIndexToItems()
{
    constexpr qsizetype fewItems = 64;
    constexpr int leastDepth = 5;
    constexpr int levelsSpared = 2;
    if (m_addedItems <= m_indexFitsUpTo)
        return;
    m_indexFitsUpTo = qMax(fewItems, 2 * m_addedItems);
    const int levels = static_cast<int>(std::bit_width(static_cast<quint64>(m_indexFitsUpTo))) - 1;
    setBspTreeDepth(qMax(leastDepth, levels - levelsSpared));
}

QList<QGraphicsItem *> TonquillScene::itemsFromTop() const
{
    itemAt(QPointF(), QTransform()); // brings the index up to date
    return items();
}

void TonquillScene::itemAwaitsPlacing(QGraphicsItem *item)
{
    m_waiting.append(ItemReference(item));
}

void TonquillScene::setItemObserver(ItemObserver *observer)
{
    ItemRegistry::setItemObserver(observer);
    for (QGraphicsItem *item : items()) {
        if (DocumentItem *one = DocumentItem::of(item))
            one->setObserved(observer != nullptr);
    }
}

void TonquillScene::stackBelow(QGraphicsItem &item, const QGraphicsItem &above)
{
    item.stackBefore(&above);
    if (observer())
        observer()->itemStackedBelow(item, above);
}

bool TonquillScene::isNewItemIsAdding()
{
    m_waiting.removeIf([this](const ItemReference &waiting) {
        return !waiting.get(this) || waiting.object()->property("itemStatus").toInt() !=
                                         static_cast<int>(ItemStatus::Adding);
    });
    // The first of items() is the topmost one: the highest, and of equals the latest.
    const auto topmost = std::max_element(m_waiting.crbegin(), m_waiting.crend(),
                                          [this](const ItemReference &a, const ItemReference &b) {
                                              return a.get(this)->zValue() < b.get(this)->zValue();
                                          });
    if (topmost == m_waiting.crend())
        return false;
    removeItem(topmost->get(this));
    m_dropped.append(topmost->object());
    if (m_contextText.data() == topmost->object())
        m_contextText.clear();
    m_waiting.erase(std::next(topmost).base());
    return false;
}

void TonquillScene::destroyItems(const QList<QGraphicsItem *> &items)
{
    update(); // once, instead of item by item
    if (items.size() >= manyItems)
        moveToFrontOfQtsList(items);
    // An item that is deleted while it is on the scene can no longer tell its place: Qt then
    // searches its whole index, but only once for any number of items.
    if (items.size() < someItems)
        std::for_each(items.cbegin(), items.cend(), [this](auto *item) { removeItem(item); });
    qDeleteAll(items);
}

/**
 * Qt removes an item from its list of top-level items by searching from the front and closing the
 * gap, so removing many takes quadratic time. At the front of the list it takes constant time; Qt
 * sorts the list by z when it works without its index.
 */
void TonquillScene::moveToFrontOfQtsList(const QList<QGraphicsItem *> &items)
{
    for (qsizetype i = 0; i < items.size(); ++i)
        items[i]->setZValue(belowAllItems + static_cast<qreal>(i));
    setItemIndexMethod(NoIndex);
    itemAt(QPointF(), QTransform());
    setItemIndexMethod(BspTreeIndex);
    // Not before the next painting: items that are not yet in the index are searched for, too.
    itemAt(QPointF(), QTransform());
}
