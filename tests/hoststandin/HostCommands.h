#pragma once

#include "PieceSender.h"

#include <QObject>

class EventLog;
class HostServer;

/**
 * What the stand-in is told to do, one command a line:
 *
 *     send FILE               the file as a document, in one write
 *     chunks FILE SIZE MS     the same in pieces of SIZE bytes, MS milliseconds apart
 *     raw FILE                the file as it is, in one write
 *     text TEXT               the rest of the line as it is
 *     pause, resume           stop and go on reading what comes in
 *     close                   end the connection
 *     quit                    end the stand-in
 *
 * What was done, or why not, goes to the log.
 */
class HostCommands : public QObject
{
    Q_OBJECT

public:
    HostCommands(HostServer &server, EventLog &log, QObject *parent = nullptr);

    void run(const QByteArray &line);

    /** Sends the file's contents, with the mark of a message to the program in front. */
    void sendDocument(const QString &fileName);

Q_SIGNALS:
    void quitRequested();

private:
    void sendRaw(const QString &fileName);
    void sendPieces(const QString &fileName, int pieceSize, int pauseMs);
    void send(const QByteArray &bytes);
    bool readFile(const QString &fileName, QByteArray &contents);
    void logSent(qsizetype length);
    void logError(const QString &text);

    HostServer &m_server;
    EventLog &m_log;
    PieceSender m_pieces;
};
