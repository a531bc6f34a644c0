#pragma once

#include <QPointF>
#include <Qt>

class QGraphicsScene;

/** A pointer that acts on a scene through real scene events, at scene coordinates. */
class ScenePointer
{
public:
    explicit ScenePointer(QGraphicsScene &scene);

    /** Presses `button`, which is held until it is released. */
    void press(QPointF scenePos, Qt::MouseButton button = Qt::LeftButton);
    void release(QPointF scenePos, Qt::MouseButton button = Qt::LeftButton);
    void moveTo(QPointF scenePos);
    /** The second press of a double click, which is held until it is released. */
    void pressTwice(QPointF scenePos, Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(QPointF scenePos, Qt::MouseButton button = Qt::LeftButton);
    /** Moves there, presses and releases. */
    void click(QPointF scenePos, Qt::MouseButton button = Qt::LeftButton);
    /** Presses at one point, moves to the other in two steps, and releases there. */
    void drag(QPointF from, QPointF to, Qt::MouseButton button = Qt::LeftButton);

    Qt::MouseButtons held() const { return m_held; }
    /** Has exactly these buttons held from now on, as if the change had gone to another window. */
    void setHeld(Qt::MouseButtons buttons) { m_held = buttons; }

private:
    void send(int type, QPointF scenePos, Qt::MouseButton button);

    QGraphicsScene &m_scene;
    Qt::MouseButtons m_held;
    QPointF m_last;
};
