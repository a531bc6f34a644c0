#pragma once

#include <QGraphicsView>

/** The view of the scene. It signals scrolling and leaves the arrow keys to the scene. */
class TonquillView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit TonquillView(QWidget *parent = nullptr);

    /**
     * The scene point a few pixels inside the top-left corner of the visible part: the viewport
     * point equal to the view's own position in its parent. The page that is there is the current
     * one.
     */
    QPointF curScenePos() const;

Q_SIGNALS:
    void scrolled(QPointF curScenePos);

protected:
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
};
