#include "TaskQueue.h"

#include <QApplication>
#include <QThread>

namespace
{
/** Milliseconds between two checks whether the user is still busy. */
constexpr int retryInterval = 50;

/** A long print counts, since it shows a modal dialog before it processes events. */
bool isUserBusy()
{
    return QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
           QThread::currentThread()->loopLevel() > 1 ||
           QGuiApplication::mouseButtons() != Qt::NoButton;
}
} // namespace

TaskQueue::TaskQueue()
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &TaskQueue::doNext);
}

void TaskQueue::add(const Task &task)
{
    m_tasks.append(task);
    if (!m_next.isActive())
        m_next.start(0);
}

void TaskQueue::doNext()
{
    if (m_tasks.isEmpty())
        return;
    if (isUserBusy()) {
        m_next.start(retryInterval);
        return;
    }
    const Task task = m_tasks.takeFirst();
    task();
    if (!m_tasks.isEmpty())
        m_next.start(0);
}
