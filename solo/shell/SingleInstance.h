#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

/**
 * Makes sure that a user runs only one instance: later ones hand their file to the first. The lock
 * and the socket are in the user's data folder or, if that is not writable or its path too long for
 * a socket, in the session's runtime folder.
 */
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstance(const QString &folder);

    /**
     * Returns true if this is the first instance, or if that cannot be determined; it then listens
     * for later ones.
     */
    bool begin();

    /** Why later instances will not find this one; empty if they will. */
    QString problem() const { return m_problem; }

    /** Hands `path`, which may be empty, to the first instance; false if it does not respond. */
    bool handOver(const QString &path) const;

Q_SIGNALS:
    /** A later instance handed over `path`, which may be empty. Emitted from the event loop. */
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
