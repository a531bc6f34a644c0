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
 * True if `path` is free or holds a socket or link of this user. Links are replaced, not followed;
 * other users' files are never replaced.
 */
bool isFreeForSocket(const QString &path)
{
    struct stat info
    {};
    if (lstat(QFile::encodeName(path).constData(), &info) != 0)
        return true;
    return info.st_uid == geteuid() && (S_ISSOCK(info.st_mode) || S_ISLNK(info.st_mode));
}

/** True if the peer is this process, or if the system does not tell. */
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
    // A busy host counts; a socket that only another user may access does not.
    return probe.error() != QLocalSocket::ServerNotFoundError &&
           probe.error() != QLocalSocket::ConnectionRefusedError &&
           probe.error() != QLocalSocket::SocketAccessError;
}

QString BuiltInHost::listen()
{
    const QString path = QDir(QDir::tempPath()).filePath(HostMessages::serverName);
    if (!isFreeForSocket(path))
        return tr("%1 exists and cannot be replaced.").arg(path);
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
