#include "SceneItems.h"

#include "ItemFactory.h"
#include "ItemReference.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"
#include "TonquillTimeSig.h"
#include "TonquillVectorItem.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>

namespace
{
using namespace ItemState;

Font stateOfFont(const QFont &font)
{
    const bool inPixels = font.pointSizeF() <= 0;
    return Font{font.family(), inPixels ? double(font.pixelSize()) : font.pointSizeF(),
                inPixels,      font.weight(),
                font.style(),  font.underline()};
}

QFont fontOf(const Font &state)
{
    QFont font;
    font.setFamily(state.family);
    if (state.sizeInPixels)
        font.setPixelSize(qMax(1, int(state.size)));
    else
        font.setPointSizeF(state.size);
    font.setWeight(QFont::Weight(state.weight));
    font.setStyle(state.style);
    font.setUnderline(state.underline);
    return font;
}

/** The text with every character that was typed; toPlainText() would make blanks of some. */
QString rawText(const QTextDocument &document)
{
    return document.toRawText().replace(QChar::ParagraphSeparator, QChar::LineFeed);
}

/** True if a part of the text looks different from the rest, as after pasting from elsewhere. */
bool hasFormats(const QTextDocument &document)
{
    if (!document.rootFrame()->childFrames().isEmpty())
        return true;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.textList() || block.blockFormat().propertyCount() > 0)
            return true;
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (part.fragment().charFormat().propertyCount() > 0)
                return true;
        }
    }
    return false;
}

SelectionFrame *frameOf(const QGraphicsItem *item)
{
    for (QGraphicsItem *child : item->childItems()) {
        if (auto *frame = qgraphicsitem_cast<SelectionFrame *>(child))
            return frame;
    }
    return nullptr;
}

std::optional<Any> stateOfOne(const TonquillBitmap &item)
{
    return Glyph{item.pos(), item.data(ItemData::symbolId).toInt(), item.isInverted()};
}

std::optional<Any> stateOfOne(const TonquillTimeSig &item)
{
    return TimeSignature{item.pos(), item.numerator(), item.denominator()};
}

std::optional<Any> stateOfOne(const TonquillText &item)
{
    return Text{item.pos(), rawText(*item.document()), stateOfFont(item.font()),
                QColor::fromRgba(item.defaultTextColor().rgba()), item.rotation()};
}

std::optional<Any> stateOfOne(const TonquillTextBlock &item)
{
    const bool isHtml = hasFormats(*item.document());
    return TextBlock{item.pos(),
                     item.topLeft(),
                     item.bottomRight(),
                     item.textWidth(),
                     stateOfFont(item.font()),
                     isHtml ? item.toHtml() : rawText(*item.document()),
                     isHtml};
}

/** Where a new figure of these points has its anchors. */
Figure::Anchors newAnchors(const QString &keyword, QPointF start, QPointF end)
{
    const std::unique_ptr<QGraphicsItem> fresh(
        ItemFactory::makeVectorItem(keyword, false, start, end));
    const QList<QPointF> anchors = frameOf(fresh.get())->anchors();
    return Figure::Anchors(anchors.value(0), anchors.value(1));
}

/** The anchors that the figure has, if a new one would have others. */
std::optional<Figure::Anchors> ownAnchors(const TonquillVectorItem &item, const QString &keyword)
{
    const QList<QPointF> anchors = frameOf(&item)->anchors();
    const Figure::Anchors own(anchors.value(0), anchors.value(1));
    const Figure::Anchors atPoints(item.startPoint(), item.endPoint());
    const QRectF span = QRectF(item.startPoint(), item.endPoint()).normalized();
    const Figure::Anchors atCorners(span.topLeft(), span.bottomRight());
    // For most figures all of these are the same, and no other figure has to be asked.
    if (own == atPoints && own == atCorners)
        return std::nullopt;
    if (own == newAnchors(keyword, item.startPoint(), item.endPoint()))
        return std::nullopt;
    return own;
}

std::optional<Any> stateOfOne(const TonquillVectorItem &item)
{
    const QString keyword = item.data(ItemData::keyword).toString();
    return Figure{item.pos(), keyword, item.startPoint(), item.endPoint(),
                  ownAnchors(item, keyword)};
}

QGraphicsItem *buildOne(TonquillMainWin &window, const Glyph &state)
{
    TonquillBitmap *item = window.InsertBitmapSymbol(state.symbolId, false, true);
    item->setInverted(state.inverted);
    return item;
}

QGraphicsItem *buildOne(TonquillMainWin &window, const TimeSignature &state)
{
    auto *item = new TonquillTimeSig(state.numerator, state.denominator, false);
    window.scene->addNewItem(item);
    return item;
}

QGraphicsItem *buildOne(TonquillMainWin &window, const Figure &state)
{
    QGraphicsItem *item = ItemFactory::makeVectorItem(state.keyword, false, state.start, state.end);
    if (state.anchors)
        frameOf(item)->setAnchors({state.anchors->first, state.anchors->second});
    window.scene->addNewItem(item);
    return item;
}

QGraphicsItem *buildOne(TonquillMainWin &window, const Text &state)
{
    auto *item = new TonquillText(false);
    item->setFont(fontOf(state.font));
    item->setPlainText(state.text);
    item->setDefaultTextColor(state.color);
    item->setSelected(false);
    QObject::connect(item, &TonquillText::showTextItemMenu, window.scene,
                     &TonquillScene::onTextItemContextMenu);
    window.scene->addNewItem(item);
    item->setRotation(state.rotation);
    item->updateFrame();
    return item;
}

QGraphicsItem *buildOne(TonquillMainWin &window, const TextBlock &state)
{
    // A blank, because a block made without any text would show how to use it.
    auto *item = new TonquillTextBlock(false, QStringLiteral(" "), QRectF());
    item->setFont(fontOf(state.font));
    if (state.isHtml)
        item->setHtml(state.text);
    else
        item->setPlainText(state.text);
    item->setTextWidth(state.textWidth);
    item->setCorners(state.topLeft, state.bottomRight);
    window.scene->addNewItem(item);
    return item;
}
} // namespace

namespace
{
/** Calls `visit` with the item in its class; the answer of `visit` for an item of the document. */
template <typename Result, typename Visitor>
Result visitItem(const QGraphicsItem *item, const Visitor &visit, const Result &otherwise)
{
    // By its class: an item of an embedding program may have the same type, Qt's default.
    if (item->type() == TonquillBitmap::Type) {
        const auto *glyph = dynamic_cast<const TonquillBitmap *>(item);
        return glyph ? visit(*glyph) : otherwise;
    }
    if (const auto *time = qgraphicsitem_cast<const TonquillTimeSig *>(item))
        return visit(*time);
    if (const auto *text = qgraphicsitem_cast<const TonquillText *>(item))
        return visit(*text);
    if (const auto *block = qgraphicsitem_cast<const TonquillTextBlock *>(item))
        return visit(*block);
    if (const auto *figure = dynamic_cast<const TonquillVectorItem *>(item))
        return visit(*figure);
    return otherwise;
}

ItemStatus statusOf(const QGraphicsItem *item)
{
    return visitItem(
        item, [](const auto &one) { return ItemStatus(one.itemStatus()); }, ItemStatus::Placed);
}

template <typename Item>
bool isWaiting(const Item &item)
{
    const auto status = ItemStatus(item.itemStatus());
    return status == ItemStatus::Adding || status == ItemStatus::Stretching;
}
} // namespace

std::optional<Any> SceneItems::stateOf(const QGraphicsItem *item)
{
    return visitItem(
        item,
        [](const auto &one) { return isWaiting(one) ? std::optional<Any>() : stateOfOne(one); },
        std::optional<Any>());
}

bool SceneItems::hasState(const QGraphicsItem *item)
{
    return visitItem(
        item, [](const auto &one) { return !isWaiting(one); }, false);
}

bool SceneItems::isHeld(const QGraphicsItem *item)
{
    const ItemStatus status = statusOf(item);
    return status == ItemStatus::Moving || status == ItemStatus::Resizing;
}

QGraphicsItem *SceneItems::build(TonquillMainWin &window, const Any &state)
{
    QGraphicsItem *item =
        std::visit([&window](const auto &one) { return buildOne(window, one); }, state);
    item->setPos(std::visit([](const auto &one) { return one.position; }, state));
    return item;
}
