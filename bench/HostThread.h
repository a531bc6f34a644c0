#pragma once

#include <QByteArray>
#include <QMutex>
#include <QSemaphore>
#include <QThread>

/**
 * A host in a thread of its own, so that its work is not counted with the editor's. It takes one
 * connection, writes what it is given in one call, and reads everything that the editor sends.
 */
class HostThread : public QThread
{
    Q_OBJECT

public:
    /** Listens on the host's name; the editor may connect as soon as this returns. */
    HostThread();
    ~HostThread() override;

    /** Has `message` written to the editor. */
    void send(const QByteArray &message);

protected:
    void run() override;

private:
    QByteArray takeOutgoing();

    QSemaphore m_listening;
    QMutex m_mutex;
    QByteArray m_outgoing;
};
