#include "BuiltInHost.h"

#include "HostMessages.h"
#include "SocketPeer.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocalSocket>

#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr int probeTime = 500; // milliseconds

/**
 * True if nothing but a socket of this user's would be replaced at `path`. Links are replaced, not
 * followed; what another user has put there stays.
 */
bool isFreeForSocket(const QString &path)
{
    struct stat info
    {};
    if (lstat(QFile::encodeName(path).constData(), &info) != 0)
        return true;
    return info.st_uid == geteuid() && (S_ISSOCK(info.st_mode) || S_ISLNK(info.st_mode));
}

/** True if the other end of the connection is this process, or the system does not tell. */
bool isFromThisProcess(const QLocalSocket &socket)
{
    const std::optional<SocketPeer> peer = SocketPeer::of(socket);
    return !peer || peer->process == QCoreApplication::applicationPid();
}
} // namespace

BuiltInHost::BuiltInHost(QObject *parent)
    : QObject(parent)
{
    connect(&m_server, &QLocalServer::newConnection, this, &BuiltInHost::onNewConnection);
}

bool BuiltInHost::isHostListening()
{
    QLocalSocket probe;
    probe.connectToServer(HostMessages::serverName);
    if (probe.waitForConnected(probeTime))
        return SocketPeer::isTrusted(probe);
    // A busy host is one, too; a socket that is another user's own is none of ours.
    return probe.error() != QLocalSocket::ServerNotFoundError &&
           probe.error() != QLocalSocket::ConnectionRefusedError &&
           probe.error() != QLocalSocket::SocketAccessError;
}

QString BuiltInHost::listen()
{
    const QString path = QDir(QDir::tempPath()).filePath(HostMessages::serverName);
    if (!isFreeForSocket(path))
        return tr("%1 is in the way.").arg(path);
    QLocalServer::removeServer(HostMessages::serverName);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    return m_server.listen(HostMessages::serverName) ? QString() : m_server.errorString();
}

void BuiltInHost::onNewConnection()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        if (m_editor || !isFromThisProcess(*socket)) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        m_editor = socket;
        m_inbox = HostInbox();
        connect(socket, &QLocalSocket::readyRead, this, &BuiltInHost::onReadyRead);
    }
}

void BuiltInHost::onReadyRead()
{
    for (const HostInbox::Message message : m_inbox.append(m_editor->readAll()))
        act(message);
}

void BuiltInHost::act(HostInbox::Message message)
{
    switch (message) {
    case HostInbox::Message::Document:
        Q_EMIT edited();
        break;
    case HostInbox::Message::Raise:
        Q_EMIT raiseRequested();
        break;
    case HostInbox::Message::Undo:
        Q_EMIT undoRequested();
        break;
    case HostInbox::Message::Redo:
        Q_EMIT redoRequested();
        break;
    }
}
