#pragma once

#include <QLocalServer>
#include <QLocalSocket>
#include <QStringList>

/** A host in the test's own process: listens like a real one and stores what it receives. */
class TestHost : public QObject
{
    Q_OBJECT

public:
    /** Listens on the host's name, in the test's private temporary folder. */
    TestHost();

    /** Writes bytes to the editor without a prefix. */
    void sendRaw(const QByteArray &bytes);

    /** Writes a message with the host's prefix, "tw2tonquill ". */
    void send(const QByteArray &payload);

    /** Closes the connection. */
    void closeConnection();

    bool isConnected() const { return m_socket != nullptr; }

    /** Everything received so far, one entry per read. */
    QStringList messages;

private Q_SLOTS:
    void onNewConnection();

private:
    QLocalServer m_server;
    QLocalSocket *m_socket = nullptr;
};
