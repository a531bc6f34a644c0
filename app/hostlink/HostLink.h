#pragma once

#include "IncomingMessage.h"
#include "Outbox.h"
#include "ReceivedDocument.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QLocalSocket;
class QWidget;
class TonquillScene;

/**
 * The editor's end of the local socket to the host.
 *
 * Incoming: collects messages, judges them once the host is quiet, and acts on those that are
 * whole. Outgoing: one message at a time, the document in its newest state, but not while one of
 * the host's is known to be incomplete. Without a host everything sent is silently lost.
 */
class HostLink : public QObject
{
    Q_OBJECT

public:
    /**
     * The link over `socket` to the document on `scene`. `window` is what the host can bring to the
     * front, and the link's parent. All outlive it.
     */
    HostLink(QWidget &window, QLocalSocket &socket, TonquillScene &scene);

    /**
     * To be asked on a new connection, before anything is sent. Somebody else's process is no host
     * of this user's: it is hung up on, and the editor goes on without a host.
     */
    bool keepsConnection();

    /** Reads what the host has written so far. */
    void readAvailable();

    /** Sends the whole document. */
    void sendDocument();

    /** From now on a document is sent without its items: the host sees the scene itself. */
    void leaveOutItems() { m_leavesOutItems = true; }

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
    void giveUpIfQuiet();
    void sendNext();
    void onDisconnected();

private:
    void startTimes();
    void judge();
    void handle(const IncomingMessage::Message &message);
    void act(const QString &payload);
    void showWindow();
    void showBox(const QString &title, const QString &text);

    QWidget &m_window;
    QLocalSocket &m_socket;
    TonquillScene &m_scene;
    IncomingMessage m_incoming;
    QElapsedTimer m_sinceFirstPiece;
    QTimer m_quiet;   ///< after it what came is judged
    QTimer m_silence; ///< after it what broke off is dropped
    Outbox m_outbox;
    ReceivedDocument m_document;
    bool m_toldHost = false;     ///< a document was sent since the host's last one was shown
    bool m_owesDocument = false; ///< one is to be sent as soon as none is incomplete
    bool m_paused = false;
    bool m_leavesOutItems = false;
};
