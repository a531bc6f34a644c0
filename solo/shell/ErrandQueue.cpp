#include "ErrandQueue.h"

#include <QApplication>
#include <QThread>

namespace
{
/** Milliseconds between two looks at whether a dialog or print is over. */
constexpr int patience = 50;

/** A long print shows a modal dialog before it processes events, so it counts as one. */
bool isUserBusy()
{
    return QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
           QThread::currentThread()->loopLevel() > 1 ||
           QGuiApplication::mouseButtons() != Qt::NoButton;
}
} // namespace

ErrandQueue::ErrandQueue()
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &ErrandQueue::doNext);
}

void ErrandQueue::add(const Errand &errand)
{
    m_errands.append(errand);
    if (!m_next.isActive())
        m_next.start(0);
}

void ErrandQueue::doNext()
{
    if (m_errands.isEmpty())
        return;
    if (isUserBusy()) {
        m_next.start(patience);
        return;
    }
    const Errand errand = m_errands.takeFirst();
    errand();
    if (!m_errands.isEmpty())
        m_next.start(0);
}
