#include "CommandReader.h"
#include "EventLog.h"
#include "HostCommands.h"
#include "HostServer.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

namespace
{

int fail(const QString &text)
{
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << text << '\n';
    return 1;
}

QJsonObject about(int connection)
{
    return {{QStringLiteral("connection"), connection}};
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tonquill-hoststandin"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Listens as the host does, writes down what Tonquill sends, and sends what "
                       "it is told on standard input."));
    parser.addHelpOption();
    const QCommandLineOption nameOption(QStringLiteral("name"),
                                        QStringLiteral("The local server name to listen under."),
                                        QStringLiteral("NAME"), QStringLiteral("trackwrightqt"));
    const QCommandLineOption logOption(
        QStringLiteral("log"),
        QStringLiteral("The file that the log is appended to, in place of standard output."),
        QStringLiteral("FILE"));
    const QCommandLineOption sendOption(
        QStringLiteral("send"),
        QStringLiteral("A document to send when the first message has come in."),
        QStringLiteral("FILE"));
    parser.addOptions({nameOption, logOption, sendOption});
    parser.process(application);

    EventLog log;
    if (!log.open(parser.value(logOption)))
        return fail(QStringLiteral("cannot write to ") + parser.value(logOption));

    HostServer server;
    HostCommands commands(server, log);
    QString firstDocument = parser.value(sendOption);
    QObject::connect(&server, &HostServer::connected, &application, [&log](int connection) {
        log.write(QStringLiteral("connected"), about(connection));
    });
    QObject::connect(&server, &HostServer::disconnected, &application, [&log](int connection) {
        log.write(QStringLiteral("disconnected"), about(connection));
    });
    QObject::connect(&server, &HostServer::received, &application,
                     [&](int connection, const QByteArray &bytes) {
                         log.writeBytes(QStringLiteral("received"), connection, bytes);
                         if (!firstDocument.isEmpty())
                             commands.sendDocument(std::exchange(firstDocument, QString()));
                     });

    CommandReader reader;
    QObject::connect(&reader, &CommandReader::lineRead, &commands, &HostCommands::run);
    QObject::connect(&commands, &HostCommands::quitRequested, &application,
                     &QCoreApplication::quit);

    const QString name = parser.value(nameOption);
    if (!server.listen(name))
        return fail(server.errorString());
    log.write(QStringLiteral("listening"), {{QStringLiteral("name"), name}});
    return QCoreApplication::exec();
}
