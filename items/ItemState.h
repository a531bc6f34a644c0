#pragma once

#include "FontState.h"
#include "SymbolSource.h"

#include <QByteArray>
#include <QGraphicsItem>
#include <QList>
#include <QPointF>

#include <concepts>
#include <memory>
#include <optional>
#include <type_traits>

/** The text that an item shows, with everything that determines its size. */
struct TextContent
{
    QString text;
    bool isHtml = false;
    FontState font;
    double width = -1; ///< wrap width in scene units; negative for no wrapping
};

/**
 * Everything about an item that is seen or acted on, apart from the item: what its line in a
 * document file holds. The host link's records lose things on purpose; states lose nothing.
 *
 * A value of any structure with these members; copies share it:
 *
 *     QPointF position;                                     // scene units
 *     QList<QPointF> points() const;                        // what else lies somewhere, in the
 *                                                           // item's own coordinates
 *     std::optional<TextContent> content() const;           // nothing for an item without text
 *     QByteArray line() const;                              // of the file, UTF-8, without an end
 *     QGraphicsItem *build(const SymbolSource &) const;     // a new item, anywhere
 *     bool operator==(const State &) const;
 *
 * Equal states have equal lines, so lines are also what states are compared and kept by.
 */
class ItemState
{
public:
    template <typename State>
    requires(!std::same_as<std::remove_cvref_t<State>, ItemState>) ItemState(State state)
        : m_value(std::make_shared<const Holder<State>>(std::move(state)))
    {}

    QPointF position() const { return m_value->position(); }
    QList<QPointF> points() const { return m_value->points(); }
    std::optional<TextContent> content() const { return m_value->content(); }
    QByteArray line() const { return m_value->line(); }

    /** A new item at its position, not on a scene. The caller owns it. */
    QGraphicsItem *build(const SymbolSource &symbols) const
    {
        QGraphicsItem *item = m_value->build(symbols);
        item->setPos(position());
        return item;
    }

    bool operator==(const ItemState &other) const { return m_value->equals(*other.m_value); }

private:
    struct Value
    {
        virtual ~Value() = default;
        virtual QPointF position() const = 0;
        virtual QList<QPointF> points() const = 0;
        virtual std::optional<TextContent> content() const = 0;
        virtual QByteArray line() const = 0;
        virtual QGraphicsItem *build(const SymbolSource &symbols) const = 0;
        virtual bool equals(const Value &other) const = 0;
    };

    template <typename State>
    struct Holder final : Value
    {
        explicit Holder(State value)
            : state(std::move(value))
        {}
        QPointF position() const override { return state.position; }
        QList<QPointF> points() const override { return state.points(); }
        std::optional<TextContent> content() const override { return state.content(); }
        QByteArray line() const override { return state.line(); }
        QGraphicsItem *build(const SymbolSource &symbols) const override
        {
            return state.build(symbols);
        }
        bool equals(const Value &other) const override
        {
            const auto *same = dynamic_cast<const Holder *>(&other);
            return same && same->state == state;
        }

        State state;
    };

    std::shared_ptr<const Value> m_value;
};
