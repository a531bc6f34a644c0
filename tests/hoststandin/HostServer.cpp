#include "HostServer.h"

#include <QLocalSocket>

namespace
{

constexpr int answerTimeoutMs = 1000;

bool somebodyAnswers(const QString &name)
{
    QLocalSocket probe;
    probe.connectToServer(name);
    return probe.waitForConnected(answerTimeoutMs);
}

} // namespace

HostServer::HostServer(QObject *parent)
    : QObject(parent)
{
    connect(&m_server, &QLocalServer::newConnection, this, &HostServer::acceptConnections);
}

HostServer::~HostServer()
{
    // The server takes its sockets with it, after the table of them is gone.
    for (QLocalSocket *socket : std::as_const(m_sockets))
        socket->disconnect(this);
}

bool HostServer::listen(const QString &name)
{
    if (m_server.listen(name))
        return true;
    m_error = m_server.errorString();
    if (m_server.serverError() != QAbstractSocket::AddressInUseError)
        return false;
    if (somebodyAnswers(name)) {
        m_error = QStringLiteral("another host listens on \"%1\"").arg(name);
        return false;
    }
    QLocalServer::removeServer(name);
    const bool listening = m_server.listen(name);
    m_error = m_server.errorString();
    return listening;
}

QString HostServer::errorString() const
{
    return m_error;
}

bool HostServer::send(const QByteArray &bytes)
{
    QLocalSocket *socket = latest();
    if (!socket || socket->write(bytes) != bytes.size())
        return false;
    socket->flush();
    return true;
}

void HostServer::pause()
{
    m_paused = true;
    // A socket reads ahead without being asked to; a full buffer stops it.
    for (QLocalSocket *socket : std::as_const(m_sockets))
        socket->setReadBufferSize(1);
}

void HostServer::resume()
{
    m_paused = false;
    const QList<int> connections = m_sockets.keys();
    for (int connection : connections) {
        m_sockets.value(connection)->setReadBufferSize(0);
        read(connection);
    }
}

void HostServer::closeConnection()
{
    if (QLocalSocket *socket = latest())
        socket->disconnectFromServer();
}

void HostServer::acceptConnections()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        const int connection = ++m_count;
        m_sockets.insert(connection, socket);
        if (m_paused)
            socket->setReadBufferSize(1);
        connect(socket, &QLocalSocket::readyRead, this, [this, connection] { read(connection); });
        connect(socket, &QLocalSocket::disconnected, this, [this, connection] {
            read(connection);
            m_sockets.take(connection)->deleteLater();
            Q_EMIT disconnected(connection);
        });
        Q_EMIT connected(connection);
        read(connection);
    }
}

void HostServer::read(int connection)
{
    QLocalSocket *socket = m_sockets.value(connection);
    if (m_paused || !socket)
        return;
    const QByteArray bytes = socket->readAll();
    if (!bytes.isEmpty())
        Q_EMIT received(connection, bytes);
}

QLocalSocket *HostServer::latest() const
{
    return m_sockets.isEmpty() ? nullptr : m_sockets.last();
}
