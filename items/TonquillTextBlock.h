#pragma once

#include "DocumentItem.h"

#include <QGraphicsTextItem>

#include <memory>

class QMenu;

/**
 * A rectangle of text of several lines: a verse, a note to the player. Its width is set with the
 * mouse, and a double click hands keys and mouse to the text editor until the block loses focus.
 * A right click opens a menu of point sizes.
 */
class TonquillTextBlock : public DocumentItemOf<QGraphicsTextItem>
{
    Q_OBJECT
    Q_PROPERTY(int itemStatus READ itemStatus)

public:
    enum { Type = UserType + 2 };

    /**
     * Only the width and height of `rect` are used; the caller sets the position. Without text
     * and size the block shows how to use it, in its natural size.
     */
    TonquillTextBlock(bool adding, const QString &text, const QRectF &rect,
                      QGraphicsItem *parent = nullptr);
    ~TonquillTextBlock() override;

    /** True while any way of selecting or typing text is on. */
    static bool isEdited(const QGraphicsTextItem &item);

    int type() const override { return Type; }

    /**
     * The block's own rectangle, not the text's. Its corners are as the pointer left them: pulled
     * over the top-left one, the bottom-right corner makes width and height negative.
     */
    QRectF boundingRect() const override;
    QPointF topLeft() const { return m_topLeft; }
    QPointF bottomRight() const { return m_bottomRight; }

    /** Gives the block this rectangle and its anchors those corners; the text stays as it is. */
    void setCorners(QPointF topLeft, QPointF bottomRight);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

public Q_SLOTS:
    /** The item's record, of several lines. The font is not part of it. */
    QString getParamStr();

    /** Takes the point size that the sending entry of the size menu names. */
    void onFontSizeChange();

    /** Makes the block's rectangle that of its text, and its anchors the corners. */
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
    std::unique_ptr<QMenu> m_sizeMenu; ///< made when it is first opened: most never are
};
