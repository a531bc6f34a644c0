#include "ItemKinds.h"

#include "FigureState.h"
#include "GlyphState.h"
#include "Logging.h"
#include "Records.h"
#include "TextBlockState.h"
#include "TextState.h"
#include "TimeSignatureState.h"
#include "TonquillBitmap.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"
#include "TonquillTimeSig.h"
#include "TonquillVectorGrandstaff.h"
#include "TonquillVectorInteractiveLine.h"
#include "TonquillVectorLineTab.h"
#include "TonquillVectorNoteTie.h"
#include "TonquillVectorTriplet.h"

#include <QGraphicsScene>
#include <QMetaMethod>

namespace
{
template <typename Figure>
std::optional<FigureState> figureOf(QStringView fields)
{
    return FigureState::ofRecord(fields, Figure::figure());
}

/** ItemKind::stateOfRecord of a kind whose records lose nothing; `recorded` reads their fields. */
template <auto recorded>
std::optional<ItemState> stateOfRecord(QStringView fields)
{
    if (const auto state = recorded(fields))
        return ItemState(*state);
    return std::nullopt;
}

/** ItemKind::readRecord of such a kind. */
template <auto recorded>
RecordedItem readRecord(QStringView fields, bool adding, const SymbolSource &symbols)
{
    const auto state = recorded(fields);
    return state ? RecordedItem{state->build(symbols, adding), state->position} : RecordedItem();
}

RecordedItem readText(QStringView fields, bool adding, const SymbolSource &)
{
    const auto record = Records::parseText(fields);
    if (!record)
        return {};
    QFont font;
    font.setFamily(record->family);
    // A size that is none comes from fields that a text of several words has shifted.
    if (record->pointSize > 0)
        font.setPointSize(record->pointSize);
    auto *item = new TonquillText(adding);
    item->setFont(font);
    item->setPlainText(record->text);
    item->setDefaultTextColor(QColor(record->color));
    item->setSelected(adding);
    item->setRotation(record->rotation);
    item->updateFrame();
    return {item, QPointF(record->x, record->y)};
}

void joinText(QGraphicsItem &item, QGraphicsScene &scene)
{
    // Looked up once: by their names they would be searched for with every text.
    static const QMetaMethod asks = QMetaMethod::fromSignal(&TonquillText::showTextItemMenu);
    static const QMetaMethod opens = scene.metaObject()->method(
        scene.metaObject()->indexOfSlot("onTextItemContextMenu(TonquillText*)"));
    QObject::connect(static_cast<TonquillText *>(&item), asks, &scene, opens);
    scene.update();
}

RecordedItem readTextBlock(QStringView fields, bool adding, const SymbolSource &)
{
    const auto record = Records::parseTextBlock(fields);
    if (!record)
        return {};
    qCDebug(lcRecords) << "tmp1=" << record->x << record->y << record->width << record->height;
    qCDebug(lcRecords) << "txt=" << record->text;
    const QRectF rect(record->x, record->y, record->width, record->height);
    return {new TonquillTextBlock(adding, record->text, rect), rect.topLeft()};
}

QGraphicsItem *makeTextBlock()
{
    return new TonquillTextBlock(true, QString(), QRectF());
}

template <typename Figure>
QGraphicsItem *makeNewFigure()
{
    return new Figure(true, QPointF(0, 0), QPointF(0, 0));
}

template <typename Figure>
ItemState readFigureLine(LineReader &line)
{
    return FigureState::read(line, Figure::figure());
}

/** The row of a figure, whose example spans from its position to `end`. */
template <typename Figure>
ItemKind figure(const QString &end)
{
    const QString keyword = Figure::figure().keyword;
    return itemKind<Figure, FigureState>({.keyword = keyword,
                                          .readRecord = readRecord<figureOf<Figure>>,
                                          .stateOfRecord = stateOfRecord<figureOf<Figure>>,
                                          .makeNew = makeNewFigure<Figure>,
                                          .example = keyword + QStringLiteral(" 45 45 0 0 ") + end,
                                          .readLine = readFigureLine<Figure>});
}

/** In the order in which they are looked for: most items are glyphs. */
QList<ItemKind> ownKinds()
{
    return {
        itemKind<TonquillBitmap, GlyphState>(
            {.keyword = Records::bitmapKeyword(),
             .readRecord = readRecord<GlyphState::ofRecord>,
             .stateOfRecord = stateOfRecord<GlyphState::ofRecord>,
             .dropsWaitingItem = true,
             .example = QStringLiteral("tonquill_bitmap 45 45 19")}),
        itemKind<TonquillTimeSig, TimeSignatureState>(
            {.keyword = Records::timesigKeyword(),
             .readRecord = readRecord<TimeSignatureState::ofRecord>,
             .stateOfRecord = stateOfRecord<TimeSignatureState::ofRecord>,
             .example = QStringLiteral("tonquill_timesig 45 45 3 4")}),
        figure<TonquillVectorGrandstaff>(QStringLiteral("30 32")),
        figure<TonquillVectorInteractiveLine>(QStringLiteral("30 10")),
        figure<TonquillVectorLineTab>(QStringLiteral("30 32")),
        figure<TonquillVectorNoteTie>(QStringLiteral("30 10")),
        figure<TonquillVectorTriplet>(QStringLiteral("30 10")),
        itemKind<TonquillText, TextState>(
            {.keyword = Records::textKeyword(),
             .readRecord = readText,
             .joinScene = joinText,
             .offsetTimes = 2, // intentional
             .hasText = true,
             .example = QStringLiteral("tonquill_text 45 45 text=\"dolce\" font=\"Arial\" size=12 "
                                       "color=#000000")}),
        itemKind<TonquillTextBlock, TextBlockState>(
            {.keyword = Records::textblockKeyword(),
             .readRecord = readTextBlock,
             .stateOfRecord = stateOfRecord<TextBlockState::ofRecord>,
             .makeNew = makeTextBlock,
             .hasText = true,
             .example = QStringLiteral("tonquill_textblock 45 45 0 0 31 20 wrap=30 font=\"Arial\" "
                                       "size=9 text=\"la\""),
             .lineKeyword = TextBlockState::lineKeyword()}),
    };
}
} // namespace

ItemCatalogue &ItemKinds::catalogue()
{
    static ItemCatalogue catalogue = [] {
        ItemCatalogue own;
        for (const ItemKind &kind : ownKinds())
            own.add(kind);
        return own;
    }();
    return catalogue;
}
