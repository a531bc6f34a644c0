#pragma once

#include "DocumentItem.h"

#include <QGraphicsTextItem>

class TonquillSimpleTextDlg;

/**
 * A one-line label in one font and colour, rotated by an angle: a title, a tempo marking, a
 * syllable. It is never edited in place; a right press requests its context menu, and the
 * TonquillSimpleTextDlg changes its content and appearance.
 */
class TonquillText : public DocumentItemOf<QGraphicsTextItem>
{
    Q_OBJECT
    Q_PROPERTY(int itemStatus READ itemStatus)

public:
    enum { Type = UserType + 1 };

    /** An empty text, always selected; with `adding` it follows the pointer. */
    explicit TonquillText(bool adding, QGraphicsItem *parent = nullptr);

    /** Adds the anchor at the bottom-left corner. To be called once the text and font are set. */
    void updateFrame();

    /** Moves the anchor to the bottom-left corner after a change of text or font. */
    void moveAnchorToCorner();

    /** Like Qt's function, which does not announce the change. */
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
