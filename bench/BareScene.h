#pragma once

#include "SampleDocument.h"

#include <QGraphicsObject>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>

/**
 * The baseline of most rows: a plain Qt scene with items of the same Qt classes, each with one
 * child, without any code of the editor.
 */
class BareScene : public QGraphicsScene
{
public:
    /** Qt's pixmap items, or pixmap items that are also QObjects with a slot. */
    enum class Glyphs { Plain, CallableByName };

    /** An empty scene as large as the pages for `count` items. */
    explicit BareScene(int count, Glyphs glyphs = Glyphs::CallableByName);
    ~BareScene() override;

    void addBareItems(const SampleDocument::Samples &samples);

    /** The items without their children, in the order of their addition; owned by the scene. */
    const QList<QGraphicsItem *> &bareItems() const { return m_items; }

    /** Runs the work that Qt defers to the event loop and the next paint. */
    void settle();

private:
    QGraphicsItem *makeBareItem(Kind kind) const;

    Glyphs m_glyphs;
    QList<QGraphicsItem *> m_items;
};

/** A pixmap item with a slot that can be called by name. */
class BareGlyphObject : public QObject, public QGraphicsPixmapItem
{
    Q_OBJECT

public:
    using QGraphicsPixmapItem::QGraphicsPixmapItem;

public Q_SLOTS:
    QString getParamStr() { return QString(); }
};
