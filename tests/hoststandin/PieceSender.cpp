#include "PieceSender.h"

#include "HostServer.h"

PieceSender::PieceSender(HostServer &server, QObject *parent)
    : QObject(parent)
    , m_server(server)
{
    connect(&m_timer, &QTimer::timeout, this, &PieceSender::sendPiece);
}

void PieceSender::start(const QByteArray &bytes, int pieceSize, int pauseMs)
{
    m_bytes = bytes;
    m_pieceSize = pieceSize;
    m_sent = 0;
    m_timer.start(pauseMs);
    sendPiece();
}

void PieceSender::sendPiece()
{
    const QByteArray piece = m_bytes.mid(m_sent, m_pieceSize);
    const bool sent = m_server.send(piece);
    if (sent)
        m_sent += piece.size();
    if (sent && m_sent < m_bytes.size())
        return;
    m_timer.stop();
    Q_EMIT finished(m_sent);
}
