#pragma once

#include <QByteArray>
#include <QMutex>
#include <QSemaphore>
#include <QThread>

/**
 * A host in its own thread, so that its work is not counted with the editor's. It accepts one
 * connection, writes each message in one call, and reads everything from the editor.
 */
class HostThread : public QThread
{
    Q_OBJECT

public:
    /** Listens on the host's name; the editor may connect once this returns. */
    HostThread();
    ~HostThread() override;

    /** Makes the thread write `message` to the editor. */
    void send(const QByteArray &message);

protected:
    void run() override;

private:
    QByteArray takeOutgoing();

    QSemaphore m_listening;
    QMutex m_mutex;
    QByteArray m_outgoing;
};
