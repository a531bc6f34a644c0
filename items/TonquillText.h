#pragma once

#include "DocumentItem.h"

#include <QGraphicsTextItem>

class TonquillSimpleTextDlg;

/**
 * A one-line label in one font and colour, turned by an angle: a title, a tempo word, a syllable.
 * It is never edited in place; a right press asks for its context menu, and its content and look
 * are changed in the TonquillSimpleTextDlg.
 */
class TonquillText : public DocumentItemOf<QGraphicsTextItem>
{
    Q_OBJECT
    Q_PROPERTY(int itemStatus READ itemStatus)

public:
    enum { Type = UserType + 1 };

    /** An empty text, selected either way; with `adding` it follows the pointer. */
    explicit TonquillText(bool adding, QGraphicsItem *parent = nullptr);

    /** Adds the anchor, at the bottom-left corner. To be called once text and font are set. */
    void updateFrame();

    /** Moves the anchor to the bottom-left corner, after text or font were changed. */
    void moveAnchorToCorner();

    /** As Qt's own, which tells nobody of it. */
    void setDefaultTextColor(const QColor &color);

    int type() const override { return Type; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

public Q_SLOTS:
    /** The item's record. Bold, italic and underline are not part of it. */
    QString getParamStr();

Q_SIGNALS:
    /** The right button was pressed on `item`, which is this one. */
    void showTextItemMenu(TonquillText *item);

protected:
    const PointerManners &manners() const override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
};
