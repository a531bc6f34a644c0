#pragma once

#include <QList>
#include <QObject>
#include <QTimer>

#include <functional>

/**
 * Runs requests from outside, such as a later instance's file or a host command, in order and one
 * at a time, from the event loop. They wait while a dialog, a menu, a print or a held mouse button
 * uses the document.
 */
class TaskQueue : public QObject
{
    Q_OBJECT

public:
    using Task = std::function<void()>;

    TaskQueue();

    /** Runs `task` later, never before the caller returns. A task may open dialogs. */
    void add(const Task &task);

private:
    void doNext();

    QTimer m_next;
    QList<Task> m_tasks;
};
