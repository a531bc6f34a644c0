#include "HostThread.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QMutexLocker>

#include <memory>

namespace
{
constexpr int patience = 10000; // milliseconds
constexpr int turn = 5;         // milliseconds
} // namespace

HostThread::HostThread()
{
    start();
    m_listening.acquire();
}

HostThread::~HostThread()
{
    requestInterruption();
    wait();
}

void HostThread::send(const QByteArray &message)
{
    const QMutexLocker locker(&m_mutex);
    m_outgoing = message;
}

QByteArray HostThread::takeOutgoing()
{
    const QMutexLocker locker(&m_mutex);
    return std::exchange(m_outgoing, QByteArray());
}

void HostThread::run()
{
    QLocalServer::removeServer(QStringLiteral("trackwrightqt"));
    QLocalServer server;
    if (!server.listen(QStringLiteral("trackwrightqt")))
        qFatal("the host cannot listen: %s", qPrintable(server.errorString()));
    m_listening.release();
    if (!server.waitForNewConnection(patience))
        return;
    const std::unique_ptr<QLocalSocket> socket(server.nextPendingConnection());
    while (!isInterruptionRequested() && socket->state() == QLocalSocket::ConnectedState) {
        socket->write(takeOutgoing());
        while (socket->bytesToWrite() > 0 && socket->waitForBytesWritten(patience)) {
        }
        socket->waitForReadyRead(turn);
        socket->readAll();
    }
}
