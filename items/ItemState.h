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
 * The complete state of an item, independent of the item: the contents of its line in a document
 * file. Records of the host link intentionally lose information; states do not.
 *
 * Holds a value of any structure with these members; copies share it:
 *
 *     QPointF position;                                     // scene units
 *     QList<QPointF> points() const;                        // all other points, in item
 *                                                           // coordinates
 *     std::optional<TextContent> content() const;           // nullopt for an item without text
 *     QByteArray line() const;                              // for the file, UTF-8, no line end
 *     QGraphicsItem *build(const SymbolSource &) const;     // a new item, at any position
 *     bool operator==(const State &) const;
 *
 * Equal states have equal lines, so lines are used to store and compare states.
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
