#pragma once

#include "HostInbox.h"

#include <QLocalServer>
#include <QObject>
#include <QPointer>

class QLocalSocket;

/**
 * The editor's host in the same process. It listens on the socket of a real host and receives edits
 * and commands as the editor's messages; editors of other processes are rejected. It never replies,
 * since two replies that the editor reads in one piece would count as a document.
 */
class BuiltInHost : public QObject
{
    Q_OBJECT

public:
    explicit BuiltInHost(QObject *parent = nullptr);

    /** True if a host of this user is already listening, or may be. */
    static bool isHostListening();

    /**
     * Starts to listen, replacing the socket of a crashed process. No host may be listening.
     * Returns an empty string on success, else the error.
     */
    QString listen();

Q_SIGNALS:
    /** The editor has finished an edit. */
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
