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
 * Incoming: collects messages, examines them when the host is quiet, and handles complete ones.
 * Outgoing: one message at a time, the document in its latest state, but not while one from the
 * host is known to be incomplete. Without a host, everything sent is silently discarded.
 */
class HostLink : public QObject
{
    Q_OBJECT

public:
    /**
     * Connects `socket` with the document on `scene`. `window`, the link's parent, is raised at the
     * host's request. All of them outlive the link.
     */
    HostLink(QWidget &window, QLocalSocket &socket, TonquillScene &scene);

    /**
     * To be called on a new connection before anything is sent. Disconnects and returns false if
     * the other process belongs to another user; the editor then continues without a host.
     */
    bool keepsConnection();

    /** Reads all available data of the host. */
    void readAvailable();

    /** Sends the whole document. */
    void sendDocument();

    /** From now on, documents are sent without items: the host accesses the scene itself. */
    void leaveOutItems() { m_leavesOutItems = true; }

    /** Sends one of the commands of HostMessages. */
    void sendCommand(const QString &command);

    /** Shows a document of the host: records separated by "|". */
    void receiveDocument(const QString &payload);

    /**
     * Leaves the host's data unread until resume(), so that the document does not change while
     * events are processed during work on it.
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
    QTimer m_quiet;   ///< on timeout the received data is examined
    QTimer m_silence; ///< on timeout incomplete data is dropped
    Outbox m_outbox;
    ReceivedDocument m_document;
    bool m_toldHost = false;     ///< a document was sent since the host's last one
    bool m_owesDocument = false; ///< a document is to be sent once none is incomplete
    bool m_paused = false;
    bool m_leavesOutItems = false;
};
