#pragma once

#include <QPointF>
#include <Qt>

class QGraphicsScene;

/** A pointer that sends real scene events to a scene, at scene coordinates. */
class ScenePointer
{
public:
    explicit ScenePointer(QGraphicsScene &scene);

    /** Presses `button` and holds it until release(). */
    void press(QPointF scenePos, Qt::MouseButton button = Qt::LeftButton);
    void release(QPointF scenePos, Qt::MouseButton button = Qt::LeftButton);
    void moveTo(QPointF scenePos);
    /** The second press of a double click; holds `button` until release(). */
    void pressTwice(QPointF scenePos, Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(QPointF scenePos, Qt::MouseButton button = Qt::LeftButton);
    /** Moves there, presses and releases. */
    void click(QPointF scenePos, Qt::MouseButton button = Qt::LeftButton);
    /** Presses at one point, moves to the other in two steps, and releases there. */
    void drag(QPointF from, QPointF to, Qt::MouseButton button = Qt::LeftButton);

    Qt::MouseButtons held() const { return m_held; }
    /** Sets the held buttons, as if the events had gone to another window. */
    void setHeld(Qt::MouseButtons buttons) { m_held = buttons; }

private:
    void send(int type, QPointF scenePos, Qt::MouseButton button);

    QGraphicsScene &m_scene;
    Qt::MouseButtons m_held;
    QPointF m_last;
};
