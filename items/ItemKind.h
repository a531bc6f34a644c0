#pragma once

#include "ItemModel.h"
#include "ItemState.h"
#include "LineFields.h"

#include <QString>
#include <QStringList>

#include <typeinfo>

class QGraphicsScene;

/** An item built from a record and its position. The caller owns the item. */
struct RecordedItem
{
    QGraphicsItem *item = nullptr; ///< null if the record is incomplete
    QPointF position;              ///< scene units
};

/** A kind of item: everything about it that is not in its class. */
struct ItemKind
{
    /** The first word of its records, which items also have as data under ItemData::keyword. */
    QString keyword;

    /** Builds an item from the fields after the keyword of a record. */
    RecordedItem (*readRecord)(QStringView fields, bool adding,
                               const SymbolSource &symbols) = nullptr;

    /**
     * The state of a record in a host's document; null for kinds whose stored records are read in
     * another way or that hosts do not know.
     */
    std::optional<ItemState> (*stateOfRecord)(QStringView fields) = nullptr;

    /**
     * Makes a new item that waits to be placed, owned by the caller; null for kinds that need a
     * choice.
     */
    QGraphicsItem *(*makeNew)() = nullptr;

    /** Called after an item was created and added to a document's scene. */
    void (*joinScene)(QGraphicsItem &item, QGraphicsScene &scene) = nullptr;

    /**
     * True if documents of a host may contain it. Others are only built by paste, undo and open.
     */
    bool isHostKind = true;

    /** Multiplies the offset of items that are built beside their position. */
    int offsetTimes = 1;

    /** Building an item from a record drops the one that waits to be placed. */
    bool dropsWaitingItem = false;

    /** Shows text of unlimited size. */
    bool hasText = false;

    /** An example of its line in a file. */
    QString example;

    /** The first word of its lines in files, if it is not `keyword`. */
    QString lineKeyword = QString();

    /** Reads a line; LineReader::isValid() tells whether it was valid. */
    ItemState (*readLine)(LineReader &line) = nullptr;

    // The following members are filled in by itemKind().

    /** QGraphicsItem::type() of its items; items of embedding programs may have the same. */
    int type = 0;

    /** True for an item of the class. */
    bool (*isOfClass)(const QGraphicsItem &item) = nullptr;

    /** The state of an item of the class; nullopt while it waits to be placed. */
    std::optional<ItemState> (*stateOf)(const QGraphicsItem &item) = nullptr;

    qsizetype plainFields = 0; ///< in a line, including the keyword
    QStringList fieldNames = QStringList();
};

/** The functions of a row that follow from its classes. */
namespace ItemKindParts
{
template <typename Item>
bool isOfClass(const QGraphicsItem &item)
{
    // Comparing the exact class is fast; the cast takes as long as writing a line.
    return typeid(item) == typeid(Item) || dynamic_cast<const Item *>(&item) != nullptr;
}

template <typename Item, typename State>
std::optional<ItemState> stateOf(const QGraphicsItem &item)
{
    const auto &own = static_cast<const Item &>(item);
    if (own.isWaiting())
        return std::nullopt;
    return ItemState(State::of(own));
}

template <typename State>
ItemState readLine(LineReader &line)
{
    return State::read(line);
}
} // namespace ItemKindParts

/**
 * Completes the row of a class of items and the structure of its state. In addition to what
 * ItemState requires, the structure has of(const Item &), plainFields, fieldNames(), and
 * read(LineReader &) unless the row sets readLine.
 */
template <typename Item, typename State>
ItemKind itemKind(ItemKind row)
{
    if (row.lineKeyword.isEmpty())
        row.lineKeyword = row.keyword;
    row.type = Item::Type;
    row.isOfClass = ItemKindParts::isOfClass<Item>;
    row.stateOf = ItemKindParts::stateOf<Item, State>;
    if constexpr (requires(LineReader & line) { State::read(line); })
        row.readLine = ItemKindParts::readLine<State>;
    row.plainFields = State::plainFields;
    row.fieldNames = State::fieldNames();
    return row;
}
