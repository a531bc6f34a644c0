#include "ScenePointer.h"

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>

ScenePointer::ScenePointer(QGraphicsScene &scene)
    : m_scene(scene)
{
}

void ScenePointer::send(int type, QPointF scenePos, Qt::MouseButton button)
{
    QGraphicsSceneMouseEvent event(static_cast<QEvent::Type>(type));
    event.setScenePos(scenePos);
    event.setLastScenePos(m_last);
    event.setButton(button);
    event.setButtons(m_held);
    event.setAccepted(false);
    if (!m_scene.views().isEmpty()) {
        QGraphicsView *view = m_scene.views().constFirst();
        event.setWidget(view->viewport());
        event.setScreenPos(view->viewport()->mapToGlobal(view->mapFromScene(scenePos)));
    }
    m_last = scenePos;
    QCoreApplication::sendEvent(&m_scene, &event);
}

void ScenePointer::press(QPointF scenePos, Qt::MouseButton button)
{
    m_held |= button;
    send(QEvent::GraphicsSceneMousePress, scenePos, button);
}

void ScenePointer::release(QPointF scenePos, Qt::MouseButton button)
{
    m_held &= ~Qt::MouseButtons(button);
    send(QEvent::GraphicsSceneMouseRelease, scenePos, button);
}

void ScenePointer::moveTo(QPointF scenePos)
{
    send(QEvent::GraphicsSceneMouseMove, scenePos, Qt::NoButton);
}

void ScenePointer::pressTwice(QPointF scenePos, Qt::MouseButton button)
{
    m_held |= button;
    send(QEvent::GraphicsSceneMouseDoubleClick, scenePos, button);
}

void ScenePointer::doubleClick(QPointF scenePos, Qt::MouseButton button)
{
    pressTwice(scenePos, button);
    release(scenePos, button);
}

void ScenePointer::click(QPointF scenePos, Qt::MouseButton button)
{
    moveTo(scenePos);
    press(scenePos, button);
    release(scenePos, button);
}

void ScenePointer::drag(QPointF from, QPointF to, Qt::MouseButton button)
{
    press(from, button);
    moveTo((from + to) / 2);
    moveTo(to);
    release(to, button);
}
