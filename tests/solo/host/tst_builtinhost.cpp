#include "BuiltInHost.h"
#include "HostMessages.h"
#include "SoloTestMain.h"
#include "StrangersHost.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>

/** The host in the same process: what it hears, and whom it leaves alone. */
class BuiltInHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesMessagesApart_data();
    void takesMessagesApart();
    void hearsOfEditsAndCommands();
    void isSentNoItems();
    void noticesARealHost();
    void replacesAStaleSocket();
    void leavesAnOrdinaryFileAlone();
    void replacesALinkAndNotWhatItNames();
    void leavesAnotherUsersSocketAlone();
    void turnsOtherProcessesAway();
    void itsSocketIsTheUsersOwn();

private:
    static QString socketPath();
};

Q_DECLARE_METATYPE(HostInbox::Message)

QString BuiltInHostTest::socketPath()
{
    return QDir(QDir::tempPath()).filePath(HostMessages::serverName);
}

void BuiltInHostTest::takesMessagesApart_data()
{
    using Message = HostInbox::Message;
    using Messages = QList<Message>;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Messages>("messages");
    const QByteArray document = "tonquill2tw tonquill_pagecount 1\ntonquill_bitmap 1 2 3 0\n";
    QTest::newRow("a document") << document << Messages{Message::Document};
    QTest::newRow("two documents")
        << document + document << Messages{Message::Document, Message::Document};
    QTest::newRow("a command") << QByteArray("tonquill2tw command:undo") << Messages{Message::Undo};
    QTest::newRow("commands in a row")
        << QByteArray("tonquill2tw command:undotonquill2tw command:redotonquill2tw command:raise")
        << Messages{Message::Undo, Message::Redo, Message::Raise};
    QTest::newRow("a command behind a document")
        << document + "tonquill2tw command:redo" << Messages{Message::Document, Message::Redo};
    QTest::newRow("a block whose words are a command")
        << QByteArray("tonquill2tw tonquill_pagecount 1\n"
                      "tonquill_textblock_begin 1 2 3 4\ntonquill2tw command:undo\n"
                      "tonquill_textblock_end\n")
        << Messages{Message::Document};
}

/** In one piece, and byte by byte. */
void BuiltInHostTest::takesMessagesApart()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QList<HostInbox::Message>, messages);
    HostInbox whole;
    QCOMPARE(whole.append(bytes), messages);
    HostInbox slow;
    QList<HostInbox::Message> heard;
    for (const char byte : std::as_const(bytes))
        heard += slow.append(QByteArray(1, byte));
    QCOMPARE(heard, messages);
}

void BuiltInHostTest::hearsOfEditsAndCommands()
{
    BuiltInHost host;
    QCOMPARE(host.listen(), QString());
    QSignalSpy edited(&host, &BuiltInHost::edited);
    QSignalSpy undo(&host, &BuiltInHost::undoRequested);
    QSignalSpy redo(&host, &BuiltInHost::redoRequested);
    QSignalSpy raise(&host, &BuiltInHost::raiseRequested);
    TonquillMainWin window(TonquillMainWin::HostConnection::Later);
    window.connectToHost();
    QTRY_COMPARE(edited.size(), 1);
    window.OnToolBar1ButtonUndo();
    QTRY_COMPARE(undo.size(), 1);
    window.OnToolBar1ButtonRedo();
    window.OnToolBar1ButtonTrackwright();
    window.notifyTW();
    QTRY_COMPARE(edited.size(), 2);
    QCOMPARE(redo.size(), 1);
    QCOMPARE(raise.size(), 1);
}

/** It sees the scene itself; another host would be sent the glyph as well. */
void BuiltInHostTest::isSentNoItems()
{
    QLocalServer host;
    QVERIFY(host.listen(HostMessages::serverName));
    const auto sent = [&host](void (TonquillMainWin::*connectToIt)()) {
        TonquillMainWin window(TonquillMainWin::HostConnection::Later);
        window.InsertBitmapSymbol(19, false, true)->setPos(1, 2);
        (window.*connectToIt)();
        if (!host.waitForNewConnection(5000))
            return QByteArray("no connection");
        QLocalSocket *socket = host.nextPendingConnection();
        QByteArray bytes;
        while (!bytes.endsWith('\n') &&
               QTest::qWaitFor([&] { return socket->bytesAvailable() > 0; }))
            bytes += socket->readAll();
        return bytes;
    };
    QCOMPARE(sent(&TonquillMainWin::connectToOwnHost),
             QByteArray("tonquill2tw tonquill_pagecount 1\n"));
    QCOMPARE(sent(&TonquillMainWin::connectToHost),
             QByteArray("tonquill2tw tonquill_pagecount 1\ntonquill_bitmap 19 1 2 0\n"));
}

void BuiltInHostTest::noticesARealHost()
{
    QVERIFY(!BuiltInHost::isHostListening());
    QLocalServer host;
    QVERIFY(host.listen(HostMessages::serverName));
    QVERIFY(BuiltInHost::isHostListening());
}

void BuiltInHostTest::replacesAStaleSocket()
{
    // A socket that is bound and whose program is gone.
    QProcess crashing;
    crashing.start("python3",
                   {"-c", "import socket, sys; socket.socket(socket.AF_UNIX).bind(sys.argv[1])",
                    socketPath()});
    QVERIFY(crashing.waitForFinished());
    QCOMPARE(crashing.exitCode(), 0);
    QVERIFY(QFileInfo::exists(socketPath()));
    QVERIFY(!BuiltInHost::isHostListening());
    BuiltInHost host;
    QCOMPARE(host.listen(), QString());
    QVERIFY(BuiltInHost::isHostListening());
}

void BuiltInHostTest::leavesAnOrdinaryFileAlone()
{
    QFile file(socketPath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("precious");
    file.close();
    BuiltInHost host;
    QVERIFY(host.listen().contains(socketPath()));
    QCOMPARE(QFileInfo(socketPath()).size(), qint64(qstrlen("precious")));
    QVERIFY(file.remove());
}

void BuiltInHostTest::replacesALinkAndNotWhatItNames()
{
    QFile file(QDir(QDir::tempPath()).filePath("precious"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("precious");
    file.close();
    QVERIFY(file.link(socketPath()));
    BuiltInHost host;
    QCOMPARE(host.listen(), QString());
    QVERIFY(!QFileInfo(socketPath()).isSymLink());
    QCOMPARE(file.size(), qint64(qstrlen("precious")));
    QVERIFY(BuiltInHost::isHostListening());
}

void BuiltInHostTest::leavesAnotherUsersSocketAlone()
{
    if (!StrangersHost::isPossible())
        QSKIP("only the administrator can start a process of another user's");
    StrangersHost stranger;
    // No host of this user's, so the program goes on by itself.
    QVERIFY(!BuiltInHost::isHostListening());
    QCOMPARE(stranger.received(), QByteArray("received b''"));
    BuiltInHost host;
    QVERIFY(host.listen().contains(socketPath()));
    QVERIFY(QFileInfo::exists(socketPath()));
}

void BuiltInHostTest::turnsOtherProcessesAway()
{
    BuiltInHost host;
    QCOMPARE(host.listen(), QString());
    QSignalSpy undo(&host, &BuiltInHost::undoRequested);
    QProcess stranger;
    stranger.start("python3", {"-c",
                               "import socket, sys; s = socket.socket(socket.AF_UNIX)\n"
                               "s.connect(sys.argv[1])\n"
                               "try:\n"
                               "    s.sendall(b'tonquill2tw command:undo')\n"
                               "    sys.exit(1 if s.recv(1) else 0)\n"
                               "except OSError:\n"
                               "    sys.exit(0)\n",
                               socketPath()});
    QTRY_COMPARE(stranger.state(), QProcess::NotRunning);
    QCOMPARE(stranger.exitCode(), 0);
    QCOMPARE(undo.size(), 0);
}

void BuiltInHostTest::itsSocketIsTheUsersOwn()
{
    BuiltInHost host;
    QCOMPARE(host.listen(), QString());
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QCOMPARE(QFile::permissions(socketPath()) & others, QFile::Permissions());
}

TONQUILL_SOLO_TEST_MAIN(BuiltInHostTest)
#include "tst_builtinhost.moc"
