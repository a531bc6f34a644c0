#pragma once

#include "SampleDocument.h"

#include <QGraphicsObject>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>

/**
 * The floor of most rows: a plain Qt scene with the items' Qt classes, each with one
 * child, and with nothing of the editor.
 */
class BareScene : public QGraphicsScene
{
public:
    /** Pixmap items as Qt has them, or ones that are QObjects with a slot as well. */
    enum class Glyphs { Plain, CallableByName };

    /** Empty, as large as the pages that `count` items take. */
    explicit BareScene(int count, Glyphs glyphs = Glyphs::CallableByName);
    ~BareScene() override;

    void addBareItems(const SampleDocument::Samples &samples);

    /** The items without their children, in the order in which they were added. */
    const QList<QGraphicsItem *> &bareItems() const { return m_items; }

    /** Has Qt do what it puts off until the next event and the next painting. */
    void settle();

private:
    QGraphicsItem *makeBareItem(Kind kind) const;

    Glyphs m_glyphs;
    QList<QGraphicsItem *> m_items;
};

/** A bare pixmap item that can be called by name. */
class BareGlyphObject : public QObject, public QGraphicsPixmapItem
{
    Q_OBJECT

public:
    using QGraphicsPixmapItem::QGraphicsPixmapItem;

public Q_SLOTS:
    QString getParamStr() { return QString(); }
};
