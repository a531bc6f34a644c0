#pragma once

#include "ItemModel.h"
#include "ItemState.h"
#include "LineFields.h"

#include <QString>
#include <QStringList>

#include <typeinfo>

class QGraphicsScene;

/** An item that was built from a record, which the caller owns, and where the record wants it. */
struct RecordedItem
{
    QGraphicsItem *item = nullptr; ///< null if the record lacks something
    QPointF position;              ///< scene units
};

/** A kind of item: all that the program knows of it beside its class. */
struct ItemKind
{
    /** The first word of its records, and of the item's data under ItemData::keyword. */
    QString keyword;

    /** Builds an item from what stands behind the keyword and the blank of a record. */
    RecordedItem (*readRecord)(QStringView fields, bool adding,
                               const SymbolSource &symbols) = nullptr;

    /**
     * The item that such a record stands for where a host has stored it; null for a kind whose
     * stored records are understood in another way, or that no host knows.
     */
    std::optional<ItemState> (*stateOfRecord)(QStringView fields) = nullptr;

    /** A new item that waits to be placed; null for kinds that cannot be made without a choice. */
    QGraphicsItem *(*makeNew)() = nullptr;

    /** Called with an item that the program has made and added to a scene of the document. */
    void (*joinScene)(QGraphicsItem &item, QGraphicsScene &scene) = nullptr;

    /** A host's documents may hold it. Others are built where the user copies, undoes and opens. */
    bool isHostKind = true;

    /** Where a record is to be built beside its position, it is put this often as far away. */
    int offsetTimes = 1;

    /** Before an item is built from a record, one that waits to be placed is dropped. */
    bool dropsWaitingItem = false;

    /** Shows text that a person may make as large as wanted. */
    bool hasText = false;

    /** A line of such an item, as any other. */
    QString example;

    /** The first word of its lines in files, if it is another one. */
    QString lineKeyword = QString();

    /** Reads a line, which says itself whether it is valid. */
    ItemState (*readLine)(LineReader &line) = nullptr;

    // What itemKind() fills in from the two classes.

    /** QGraphicsItem::type() of its items, which items of other programs may have as well. */
    int type = 0;

    /** True for an item of the class. */
    bool (*isOfClass)(const QGraphicsItem &item) = nullptr;

    /** The state of an item of the class; nothing while it waits to be placed. */
    std::optional<ItemState> (*stateOf)(const QGraphicsItem &item) = nullptr;

    qsizetype plainFields = 0; ///< of a line, with the keyword
    QStringList fieldNames = QStringList();
};

/** What a row has of its classes. */
namespace ItemKindParts
{
template <typename Item>
bool isOfClass(const QGraphicsItem &item)
{
    // The exact class is told at once; the cast takes as long as writing a line.
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
 * The row of a class of items and of the structure that is its state. Beside what ItemState needs,
 * the structure has of(const Item &), plainFields and fieldNames(), and read(LineReader &) unless
 * the row says how lines are read.
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
