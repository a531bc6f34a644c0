#pragma once

#include "DocumentItem.h"

#include <QGraphicsPixmapItem>
#include <QObject>
#include <QPixmap>

/**
 * A glyph that the palette places as a picture: a note, rest, clef, accidental, repeat sign or
 * pedal mark. It shows the normal or the inverted pixmap and can be moved but not resized. Its
 * position is the symbol's reference point, usually the centre of the pixmap.
 */
class TonquillBitmap : public QObject, public DocumentItemOf<QGraphicsPixmapItem>
{
    Q_OBJECT
    Q_PROPERTY(int itemStatus READ itemStatus)

public:
    enum { Type = UserType + 0 };

    /**
     * A glyph of `symbolId`. With `adding` it follows the pointer until it is placed. A null
     * `invertedPixmap` makes a glyph that the right button cannot invert; a null `pixmap` makes one
     * without a picture, whose record is still written.
     */
    TonquillBitmap(const QPixmap &pixmap, int symbolId, bool adding, QPixmap invertedPixmap,
                   QGraphicsItem *parent = nullptr);

    /** Shows the inverted or the normal pixmap. Callers check that there is an inverted one. */
    void setInverted(bool inverted);
    bool isInverted() const { return m_inverted; }

    int type() const override { return Type; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

public Q_SLOTS:
    /** The item's record. */
    QString getParamStr();

Q_SIGNALS:
    /** Declared for embedding programs; never emitted. */
    void itemChanged(QString record);

protected:
    const PointerManners &manners() const override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    bool canInvertNow() const;
    void paintWith(QPainter *painter, const QStyleOptionGraphicsItem &option, QWidget *widget);

    bool m_inverted = false;
    QPixmap m_otherPixmap; ///< the hidden one: inverted or normal
};
