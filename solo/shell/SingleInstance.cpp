#include "SingleInstance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <QUrl>

namespace
{
/** Milliseconds until a start that gets no answer gives up. */
constexpr int answerTime = 4000;
constexpr int retryPause = 20; // milliseconds
const QByteArray answer = QByteArrayLiteral("ok\n");

/**
 * Bytes of the longest folder for a socket. Its whole path may have 107, and while Qt makes it, it
 * is in a folder of its own: "/XXXXXX/s".
 */
constexpr qsizetype longestFolder = 107 - 9;

/** The folder of lock and socket, the same for all instances of the user. */
QString meetingFolder(const QString &folder)
{
    QDir().mkpath(folder);
    if (QFile::encodeName(folder).size() <= longestFolder && QFileInfo(folder).isDir() &&
        QFileInfo(folder).isWritable())
        return folder;
    constexpr qsizetype enough = 8;
    const QByteArray mark =
        QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha1).toHex().first(enough);
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (runtime.isEmpty())
        return folder;
    const QString other =
        QDir(runtime).filePath(QStringLiteral("tonquill-solo-") + QString::fromLatin1(mark));
    QDir().mkpath(other);
    return other;
}
} // namespace

SingleInstance::SingleInstance(const QString &folder)
    : m_folder(meetingFolder(folder))
    , m_socketPath(QDir(m_folder).filePath(QStringLiteral("instance")))
    , m_lock(QDir(m_folder).filePath(QStringLiteral("instance.lock")))
{
    // A lock is stale only when its process is gone, however old it is.
    m_lock.setStaleLockTime(0);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::onNewConnection);
}

bool SingleInstance::begin()
{
    if (!m_lock.tryLock(0)) {
        // On a full disk, for example, the lock of the first instance cannot be read.
        if (m_lock.error() == QLockFile::LockFailedError || isAnotherListening())
            return false;
        m_problem =
            tr("Nothing can be written to the folder %1.").arg(QDir::toNativeSeparators(m_folder));
    }
    QLocalServer::removeServer(m_socketPath);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    if (!m_server.listen(m_socketPath) && m_problem.isEmpty())
        m_problem = m_server.errorString();
    return true;
}

bool SingleInstance::isAnotherListening() const
{
    QLocalSocket probe;
    probe.connectToServer(m_socketPath);
    return probe.waitForConnected(answerTime);
}

bool SingleInstance::handOver(const QString &path) const
{
    QLocalSocket socket;
    // The first instance may hold the lock but not listen yet.
    const QDeadlineTimer deadline(answerTime);
    while (!deadline.hasExpired()) {
        socket.connectToServer(m_socketPath);
        if (socket.waitForConnected(int(deadline.remainingTime())))
            break;
        QThread::msleep(retryPause);
    }
    socket.write(QUrl::toPercentEncoding(path) + '\n');
    socket.flush();
    while (socket.state() == QLocalSocket::ConnectedState && !socket.canReadLine()) {
        if (!socket.waitForReadyRead(int(deadline.remainingTime())))
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
            // Queued: a receiver may open a dialog, whose event loop would delete the socket within
            // its own signal.
            const QString path = QUrl::fromPercentEncoding(line);
            QMetaObject::invokeMethod(
                this, [this, path] { Q_EMIT fileHandedOver(path); }, Qt::QueuedConnection);
        };
        connect(socket, &QLocalSocket::readyRead, this, read);
        read();
    }
}
