#pragma once

#include <QtGlobal>

#include <optional>

class QLocalSocket;

/** The process at the other end of a local socket. */
struct SocketPeer
{
    qint64 process = 0;
    uint user = 0;

    /** What the system says of the other end; nothing where it does not tell. */
    static std::optional<SocketPeer> of(const QLocalSocket &socket);

    /**
     * False if the other end is another user's process, the administrator's apart. In a folder
     * that everybody may write to, anybody can take the name of a socket.
     */
    static bool isTrusted(const QLocalSocket &socket);
};
