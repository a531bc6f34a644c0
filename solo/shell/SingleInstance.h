#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

/**
 * Sees to it that only one program of a user runs: a later start hands its file to the first one.
 * The lock and the socket lie in the user's own folder; where that cannot be written to, or has too
 * long a name for a socket, they lie in the folder for what the user's session keeps.
 */
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstance(const QString &folder);

    /**
     * True if this is the first program, or if that cannot be told; it listens for later ones from
     * now on.
     */
    bool begin();

    /** Why later starts will not find this one; empty if they will. */
    QString problem() const { return m_problem; }

    /** Hands a file, or none, to the first program; false if that does not answer. */
    bool handOver(const QString &path) const;

Q_SIGNALS:
    /** A later start came with this file, or with none. Told from the event loop. */
    void fileHandedOver(QString path);

private:
    bool isAnotherListening() const;
    void onNewConnection();

    QString m_folder;
    QString m_socketPath;
    QString m_problem;
    QLockFile m_lock;
    QLocalServer m_server;
};
