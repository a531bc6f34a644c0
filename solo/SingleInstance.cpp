#include "SingleInstance.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
#include <QThread>
#include <QUrl>

namespace
{
constexpr int answerTime = 5000; // milliseconds
constexpr int retryPause = 20;   // milliseconds
const QByteArray answer = QByteArrayLiteral("ok\n");

QString inside(const QString &folder, const QString &name)
{
    QDir().mkpath(folder);
    return QDir(folder).filePath(name);
}
} // namespace

SingleInstance::SingleInstance(const QString &folder)
    : m_socketPath(inside(folder, QStringLiteral("instance")))
    , m_lock(inside(folder, QStringLiteral("instance.lock")))
{
    // A lock is stale only when its process is gone, however old it is.
    m_lock.setStaleLockTime(0);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::onNewConnection);
}

bool SingleInstance::begin()
{
    if (!m_lock.tryLock(0))
        return m_lock.error() != QLockFile::LockFailedError;
    QLocalServer::removeServer(m_socketPath);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.listen(m_socketPath);
    return true;
}

bool SingleInstance::handOver(const QString &path) const
{
    QLocalSocket socket;
    // The first program may hold the lock and not listen yet.
    const QDeadlineTimer deadline(answerTime);
    while (!deadline.hasExpired()) {
        socket.connectToServer(m_socketPath);
        if (socket.waitForConnected(answerTime))
            break;
        QThread::msleep(retryPause);
    }
    socket.write(QUrl::toPercentEncoding(path) + '\n');
    socket.flush();
    while (socket.state() == QLocalSocket::ConnectedState && !socket.canReadLine()) {
        if (!socket.waitForReadyRead(answerTime))
            return false;
    }
    return socket.readLine() == answer;
}

void SingleInstance::onNewConnection()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        const auto read = [this, socket] {
            if (!socket->canReadLine())
                return;
            const QByteArray line = socket->readLine().trimmed();
            socket->write(answer);
            socket->disconnectFromServer();
            // Whoever hears of it may open a dialog, whose loop would delete the socket within its
            // own signal; so it is told afterwards.
            const QString path = QUrl::fromPercentEncoding(line);
            QMetaObject::invokeMethod(
                this, [this, path] { Q_EMIT fileHandedOver(path); }, Qt::QueuedConnection);
        };
        connect(socket, &QLocalSocket::readyRead, this, read);
        read();
    }
}
