#include "SocketPeer.h"

#include <QLocalSocket>

#if defined(Q_OS_LINUX)
#include <sys/socket.h>
#include <unistd.h>
#endif

#if defined(Q_OS_LINUX)

std::optional<SocketPeer> SocketPeer::of(const QLocalSocket &socket)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    const int descriptor = int(socket.socketDescriptor());
    if (getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0)
        return std::nullopt;
    return SocketPeer{peer.pid, peer.uid};
}

bool SocketPeer::isTrusted(const QLocalSocket &socket)
{
    constexpr uint administrator = 0;
    const std::optional<SocketPeer> peer = of(socket);
    return !peer || peer->user == geteuid() || peer->user == administrator;
}

#else

std::optional<SocketPeer> SocketPeer::of(const QLocalSocket &)
{
    return std::nullopt;
}

bool SocketPeer::isTrusted(const QLocalSocket &)
{
    return true;
}

#endif
