#pragma once

#include "DocumentItem.h"

#include <QGraphicsTextItem>

#include <memory>

class QMenu;

/**
 * A rectangle of text of several lines: a verse, a note to the player. Its width is set with the
 * mouse, and a double click starts text editing until the block loses focus. A right click opens a
 * menu of point sizes.
 */
class TonquillTextBlock : public DocumentItemOf<QGraphicsTextItem>
{
    Q_OBJECT
    Q_PROPERTY(int itemStatus READ itemStatus)

public:
    enum { Type = UserType + 2 };

    /**
     * Only the width and height of `rect` are used; the caller sets the position. Without text and
     * size the block shows instructions in its natural size.
     */
    TonquillTextBlock(bool adding, const QString &text, const QRectF &rect,
                      QGraphicsItem *parent = nullptr);
    ~TonquillTextBlock() override;

    /** True while any kind of text interaction is enabled. */
    static bool isEdited(const QGraphicsTextItem &item);

    int type() const override { return Type; }

    /**
     * The block's own rectangle, not the text's. Dragging the bottom-right corner beyond the
     * top-left one makes width and height negative.
     */
    QRectF boundingRect() const override;
    QPointF topLeft() const { return m_topLeft; }
    QPointF bottomRight() const { return m_bottomRight; }

    /** Sets the block's rectangle and its anchors; the text is not changed. */
    void setCorners(QPointF topLeft, QPointF bottomRight);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

public Q_SLOTS:
    /** The item's record, of several lines. The font is not part of it. */
    QString getParamStr();

    /** Sets the point size named by the sender, an entry of the size menu. */
    void onFontSizeChange();

    /** Fits the block's rectangle to its text, and moves its anchors to the corners. */
    void updateFrame();

protected:
    const PointerManners &manners() const override;
    int resizingAnchorAt(QPointF point) const override;
    void dragAnchorTo(int anchor, QPointF point) override;
    void resized() override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool isInEditor() const;
    void openSizeMenu();
    void letOthersPaintAndFitText();
    void fitTo(QSizeF textSize);
    void fitTextToWidth();
    void followTyping();

    QPointF m_topLeft;
    QPointF m_bottomRight;
    std::unique_ptr<QMenu> m_sizeMenu; ///< created when first opened, which most never are
};
