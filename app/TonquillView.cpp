#include "TonquillView.h"

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QKeyEvent>

namespace
{
bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}
} // namespace

TonquillView::TonquillView(QWidget *parent)
    : QGraphicsView(parent)
{
    setMouseTracking(true);
    setViewportUpdateMode(FullViewportUpdate);
    scale(1.0, 1.0);
    setAlignment(Qt::AlignTop);
    // Paper is white and ink black whatever the desktop's colours are.
    QPalette paper = viewport()->palette();
    paper.setColor(QPalette::Base, Qt::white);
    viewport()->setPalette(paper);
}

QPointF TonquillView::curScenePos() const
{
    return mapToScene(pos());
}

void TonquillView::scrollContentsBy(int dx, int dy)
{
    QGraphicsView::scrollContentsBy(dx, dy);
    Q_EMIT scrolled(curScenePos());
}

void TonquillView::keyPressEvent(QKeyEvent *event)
{
    if (isArrow(event->key()) && scene())
        QCoreApplication::sendEvent(scene(), event);
    else
        QGraphicsView::keyPressEvent(event);
}
