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
    m_socket = m_server.nextPendingConnection();
    connect(m_socket, &QLocalSocket::readyRead, this, &TestHost::onReadyRead);
    connect(m_socket, &QLocalSocket::disconnected, this, [this] { m_socket = nullptr; });
}

void TestHost::onReadyRead()
{
    messages.append(QString::fromLatin1(m_socket->readAll()));
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
