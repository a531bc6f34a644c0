#include "EditorWindow.h"
#include "StrangersHost.h"
#include "TestHost.h"
#include "TestMain.h"

#include <QRegularExpression>

/** A host of another user's, who took the name of the socket first. */
class StrangersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theirHostIsToldNothing();
    void theWindowGoesOnWithoutAHost();
    void theUsersOwnHostIsHeardAfterwards();
};

void StrangersTest::init()
{
    if (!StrangersHost::isPossible())
        QSKIP("only the administrator can start a process of another user's");
    // Beside the one that is expected there is none, but for Qt's about the screen.
    QTest::failOnWarning(QRegularExpression("^(?!This plugin does not support)"));
}

void StrangersTest::theirHostIsToldNothing()
{
    StrangersHost stranger;
    const QRegularExpression warning(QRegularExpression::escape(StrangersHost::socketPath()) +
                                     " belongs to another user");
    QTest::ignoreMessage(QtWarningMsg, warning);
    const EditorWindow editor;
    QCOMPARE(stranger.received(), QByteArray("received b''"));
    QCOMPARE(editor.window.socket.state(), QLocalSocket::UnconnectedState);
}

void StrangersTest::theWindowGoesOnWithoutAHost()
{
    StrangersHost stranger;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("belongs to another user"));
    EditorWindow editor;
    QCOMPARE(stranger.received(), QByteArray("received b''"));
    editor.window.InsertBitmapSymbol(2, true, false);
    editor.pointer.click(QPointF(200, 300));
    editor.window.OnToolBar1ButtonUndo();
    QCOMPARE(editor.records(), QStringList{"tonquill_bitmap 2 200 300 0\n"});
}

void StrangersTest::theUsersOwnHostIsHeardAfterwards()
{
    TestHost host;
    const EditorWindow editor;
    QTRY_COMPARE(host.messages, QStringList{"tonquill2tw tonquill_pagecount 1\n"});
}

TONQUILL_TEST_MAIN(StrangersTest)
#include "tst_strangers.moc"
