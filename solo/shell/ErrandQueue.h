#pragma once

#include <QList>
#include <QObject>
#include <QTimer>

#include <functional>

/**
 * What comes from outside, such as a file of a later start or a command of the host, in the order
 * in which it came. It is done one at a time, from the event loop, and never while a dialog, a
 * menu, a print or the pointer has the document in use: then it waits for their end.
 */
class ErrandQueue : public QObject
{
    Q_OBJECT

public:
    using Errand = std::function<void()>;

    ErrandQueue();

    /** Has this done later, never before the caller returns. An errand may open dialogs. */
    void add(const Errand &errand);

private:
    void doNext();

    QTimer m_next;
    QList<Errand> m_errands;
};
