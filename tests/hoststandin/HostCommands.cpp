#include "HostCommands.h"

#include "EventLog.h"
#include "HostServer.h"

namespace
{

const QByteArray toProgram = QByteArrayLiteral("tw2tonquill ");

} // namespace

HostCommands::HostCommands(HostServer &server, EventLog &log, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_log(log)
    , m_pieces(server)
{
    connect(&m_pieces, &PieceSender::finished, this, &HostCommands::logSent);
}

void HostCommands::run(const QByteArray &line)
{
    const QList<QByteArray> words = line.split(' ');
    const QByteArray &command = words.first();
    const QString fileName = QString::fromLocal8Bit(words.value(1));

    if (command == "send")
        sendDocument(fileName);
    else if (command == "chunks")
        sendPieces(fileName, words.value(2).toInt(), words.value(3).toInt());
    else if (command == "raw")
        sendRaw(fileName);
    else if (command == "text")
        send(line.mid(command.size() + 1));
    else if (command == "pause")
        m_server.pause();
    else if (command == "resume")
        m_server.resume();
    else if (command == "close")
        m_server.closeConnection();
    else if (command == "quit")
        Q_EMIT quitRequested();
    else
        logError(QStringLiteral("no such command: ") + QString::fromLocal8Bit(line));
}

void HostCommands::sendDocument(const QString &fileName)
{
    QByteArray contents;
    if (readFile(fileName, contents))
        send(toProgram + contents);
}

void HostCommands::sendRaw(const QString &fileName)
{
    QByteArray contents;
    if (readFile(fileName, contents))
        send(contents);
}

void HostCommands::sendPieces(const QString &fileName, int pieceSize, int pauseMs)
{
    QByteArray contents;
    if (pieceSize < 1 || pauseMs < 0)
        logError(QStringLiteral("pieces need a size and a pause"));
    else if (readFile(fileName, contents))
        m_pieces.start(toProgram + contents, pieceSize, pauseMs);
}

void HostCommands::send(const QByteArray &bytes)
{
    if (m_server.send(bytes))
        logSent(bytes.size());
    else
        logError(QStringLiteral("nobody is connected"));
}

bool HostCommands::readFile(const QString &fileName, QByteArray &contents)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        logError(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
        return false;
    }
    contents = file.readAll();
    return true;
}

void HostCommands::logSent(qsizetype length)
{
    m_log.write(QStringLiteral("sent"), {{QStringLiteral("length"), length}});
}

void HostCommands::logError(const QString &text)
{
    m_log.write(QStringLiteral("error"), {{QStringLiteral("text"), text}});
}
