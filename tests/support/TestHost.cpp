#include "TestHost.h"

#include <QtTest>

TestHost::TestHost()
{
    QLocalServer::removeServer(QStringLiteral("trackwrightqt"));
    connect(&m_server, &QLocalServer::newConnection, this, &TestHost::onNewConnection);
    if (!m_server.listen(QStringLiteral("trackwrightqt")))
        qFatal("the test host cannot listen: %s", qPrintable(m_server.errorString()));
}

void TestHost::onNewConnection()
{
    QLocalSocket *socket = m_server.nextPendingConnection();
    m_socket = socket;
    connect(socket, &QLocalSocket::readyRead, this,
            [this, socket] { messages.append(QString::fromLatin1(socket->readAll())); });
    // The end of a connection may be noticed after the next one has begun.
    connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
        if (m_socket == socket)
            m_socket = nullptr;
    });
}

void TestHost::sendRaw(const QByteArray &bytes)
{
    m_socket->write(bytes);
    m_socket->flush();
}

void TestHost::send(const QByteArray &payload)
{
    sendRaw("tw2tonquill " + payload);
}

void TestHost::closeConnection()
{
    m_socket->disconnectFromServer();
}
