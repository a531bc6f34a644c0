#pragma once

#include "HostInbox.h"

#include <QLocalServer>
#include <QObject>
#include <QPointer>

class QLocalSocket;

/**
 * The host of the editor in the same process. It listens where a real host would and hears of
 * edits and commands by the editor's own messages; editors of other processes are turned away.
 * It answers nothing: two answers that the editor read at once would count as a document.
 */
class BuiltInHost : public QObject
{
    Q_OBJECT

public:
    explicit BuiltInHost(QObject *parent = nullptr);

    /** True if a host of this user's is listening already, or may be. */
    static bool isHostListening();

    /**
     * Begins to listen, in the place of the socket that a crashed program left behind. Callers
     * make sure that no host is listening. The answer is empty, or says what is in the way.
     */
    QString listen();

Q_SIGNALS:
    /** The editor finished an edit. */
    void edited();
    void raiseRequested();
    void undoRequested();
    void redoRequested();

private:
    void onNewConnection();
    void onReadyRead();
    void act(HostInbox::Message message);

    QLocalServer m_server;
    QPointer<QLocalSocket> m_editor;
    HostInbox m_inbox;
};
