#pragma once

#include "HostMessages.h"

#include <QDir>
#include <QProcess>
#include <QtTest>

#include <unistd.h>

/**
 * A process of another user that listens like a host and stores what it receives. Only root can
 * start one.
 */
class StrangersHost
{
public:
    static bool isPossible() { return geteuid() == 0; }

    StrangersHost()
    {
        const QString folder = QDir::tempPath();
        const QFile::Permissions before = QFile::permissions(folder);
        // World-writable, like the system's temporary folder.
        QFile::setPermissions(folder,
                              before | QFile::WriteOther | QFile::ReadOther | QFile::ExeOther);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start("python3", {"-c",
                                    "import os, signal, socket, sys\n"
                                    "signal.alarm(60)\n"
                                    "os.setgroups([])\n"
                                    "os.setgid(65534)\n"
                                    "os.setuid(65534)\n"
                                    "server = socket.socket(socket.AF_UNIX)\n"
                                    "server.bind(sys.argv[1])\n"
                                    "os.chmod(sys.argv[1], 0o777)\n"
                                    "server.listen()\n"
                                    "print('listening', flush=True)\n"
                                    "while True:\n"
                                    "    connection = server.accept()[0]\n"
                                    "    received = b''\n"
                                    "    try:\n"
                                    "        while piece := connection.recv(65536):\n"
                                    "            received += piece\n"
                                    "    except ConnectionResetError:\n"
                                    "        pass\n"
                                    "    print('received', received, flush=True)\n",
                                    socketPath()});
        if (nextLine() != "listening")
            qFatal("the stranger's host does not listen");
    }

    ~StrangersHost()
    {
        m_process.kill();
        m_process.waitForFinished();
        QFile::remove(socketPath());
    }
    Q_DISABLE_COPY_MOVE(StrangersHost)

    static QString socketPath()
    {
        return QDir(QDir::tempPath()).filePath(HostMessages::serverName);
    }

    /** Everything received over the last connection; waits for its end. */
    QByteArray received() { return nextLine(); }

private:
    QByteArray nextLine()
    {
        const auto hasLine = [this] { return m_process.canReadLine(); };
        return QTest::qWaitFor(hasLine, 20000) ? m_process.readLine().trimmed() : QByteArray();
    }

    QProcess m_process;
};
