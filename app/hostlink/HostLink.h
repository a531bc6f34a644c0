#pragma once

#include "IncomingMessage.h"
#include "Outbox.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class TonquillMainWin;

/**
 * The editor's end of the local socket to the host.
 *
 * Incoming: collects a message, judges it once it is whole, and acts on it. Outgoing: one message
 * at a time, the document in its newest state. Without a host everything sent is silently lost.
 */
class HostLink : public QObject
{
    Q_OBJECT

public:
    /** Works on `window` and its socket, both of which outlive the link. */
    explicit HostLink(TonquillMainWin &window);

    /**
     * To be asked on a new connection, before anything is sent. Somebody else's process is no host
     * of this user's: it is hung up on, and the editor goes on without a host.
     */
    bool keepsConnection();

    /** Reads what the host has written so far. */
    void readAvailable();

    /** Sends the whole document. */
    void sendDocument();

    /** Sends one of the commands of HostMessages. */
    void sendCommand(const QString &command);

    /** Shows the result of the host's document: records separated by "|". */
    void receiveDocument(const QString &payload);

    /**
     * Leaves what the host sends unread until resume(), so that the document stays as it is while
     * events are processed in the middle of work on it.
     */
    void pause();
    void resume();

private Q_SLOTS:
    void judgeIfQuiet();
    void sendNext();
    void onDisconnected();

private:
    void judge();
    void act(const QString &payload);
    void showBox(const QString &title, const QString &text);

    TonquillMainWin &m_window;
    IncomingMessage m_incoming;
    QElapsedTimer m_sinceFirstPiece;
    QTimer m_quiet;
    Outbox m_outbox;
    bool m_paused = false;
};
