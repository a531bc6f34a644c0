#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

/**
 * Sees to it that only one program of a user runs: a later start hands its file to the first one.
 * The lock and the socket lie in the user's own folder.
 */
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstance(const QString &folder);

    /** True if this is the first program; it listens for later ones from now on. */
    bool begin();

    /** Hands a file, or none, to the first program; false if that does not answer. */
    bool handOver(const QString &path) const;

Q_SIGNALS:
    /** A later start came with this file, or with none. Told from the event loop. */
    void fileHandedOver(QString path);

private:
    void onNewConnection();

    QString m_socketPath;
    QLockFile m_lock;
    QLocalServer m_server;
};
