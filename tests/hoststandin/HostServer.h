#pragma once

#include <QLocalServer>
#include <QMap>
#include <QObject>

class QLocalSocket;

/**
 * The host's end of the link: listens under a name and passes on, unchanged, what
 * its connections bring. Connections are numbered from 1; what is sent goes to
 * the latest one that is still there.
 */
class HostServer : public QObject
{
    Q_OBJECT

public:
    explicit HostServer(QObject *parent = nullptr);
    ~HostServer() override;

    /**
     * Listens under this name. A socket file left behind under it is replaced,
     * unless somebody answers on it: then the name is taken and this fails.
     */
    bool listen(const QString &name);
    QString errorString() const;

    /** Hands all the bytes to the connection at once; false when there is none. */
    bool send(const QByteArray &bytes);

    /** Leaves what comes in unread, as a host does that is busy, until resume(). */
    void pause();
    void resume();

    /** Ends the connection that is sent to; the server goes on listening. */
    void closeConnection();

Q_SIGNALS:
    void connected(int connection);
    void received(int connection, const QByteArray &bytes);
    void disconnected(int connection);

private:
    void acceptConnections();
    void read(int connection);
    QLocalSocket *latest() const;

    QLocalServer m_server;
    QMap<int, QLocalSocket *> m_sockets;
    QString m_error;
    int m_count = 0;
    bool m_paused = false;
};
