#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

class HostServer;

/** Sends bytes in pieces of one size, with a pause between two of them. */
class PieceSender : public QObject
{
    Q_OBJECT

public:
    explicit PieceSender(HostServer &server, QObject *parent = nullptr);

    /** Starts sending; what is left of an earlier call is dropped. */
    void start(const QByteArray &bytes, int pieceSize, int pauseMs);

Q_SIGNALS:
    /** All of it is sent, or the connection ended after this many bytes. */
    void finished(qsizetype length);

private:
    void sendPiece();

    HostServer &m_server;
    QTimer m_timer;
    QByteArray m_bytes;
    int m_pieceSize = 1;
    qsizetype m_sent = 0;
};
