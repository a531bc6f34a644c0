#pragma once

#include <QtGlobal>

#include <optional>

class QLocalSocket;

/** The process at the other end of a local socket. */
struct SocketPeer
{
    qint64 process = 0;
    uint user = 0;

    /** The peer as reported by the system; nullopt if it does not report one. */
    static std::optional<SocketPeer> of(const QLocalSocket &socket);

    /**
     * False if the peer is a process of another user other than the administrator. In a
     * world-writable folder, any user can create a socket of that name.
     */
    static bool isTrusted(const QLocalSocket &socket);
};
