#include "IncomingMessage.h"
#include "Outbox.h"

#include <QtTest>

/** Messages while they come and while they wait to go, as plain values. */
class LinkBuffersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSmallPieceAloneIsAMessage_data();
    void aSmallPieceAloneIsAMessage();
    void twoPiecesMayHaveMoreToCome();
    void knowsTheEndOfARecord_data();
    void knowsTheEndOfARecord();
    void textEndsAtTheFirstNulAndIsLatin1();
    void takenTextIsGone();
    void foreignBytesAreCountedButNotKept();
    void joinsAPrefixThatComesInPieces();
    void aMessageBeyondTheBoundIsNotKept();

    void documentsInARowAreOne();
    void commandsStayInOrderAmongDocuments();
    void ofVeryManyCommandsTheOldestGo();
};

namespace
{
const QByteArray prefix = "tw2tonquill ";

IncomingMessage messageOf(const QByteArrayList &pieces)
{
    IncomingMessage message;
    for (const QByteArray &piece : pieces)
        message.append(piece);
    return message;
}
} // namespace

void LinkBuffersTest::aSmallPieceAloneIsAMessage_data()
{
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<bool>("expected");
    QTest::newRow("the prefix") << qsizetype(12) << true;
    QTest::newRow("a byte less than 16 KiB") << qsizetype(16 * 1024 - 1) << true;
    QTest::newRow("16 KiB") << qsizetype(16 * 1024) << false;
}

void LinkBuffersTest::aSmallPieceAloneIsAMessage()
{
    QFETCH(const qsizetype, size);
    QFETCH(const bool, expected);
    const IncomingMessage message = messageOf({prefix + QByteArray(size - prefix.size(), 'x')});
    QCOMPARE(message.size(), size);
    QCOMPARE(message.isOneSmallPiece(), expected);
}

void LinkBuffersTest::twoPiecesMayHaveMoreToCome()
{
    QVERIFY(!messageOf({prefix, "state:activate"}).isOneSmallPiece());
}

void LinkBuffersTest::knowsTheEndOfARecord_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<bool>("expected");
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("separator") << QByteArray("tonquill_pagecount 1|") << true;
    QTest::newRow("line end") << QByteArray("tonquill_bitmap 2 120 300 0\n") << true;
    QTest::newRow("all fields") << QByteArray("tonquill_pagecount 1|tonquill_bitmap 2 120 300 0")
                                << true;
    QTest::newRow("a field short")
        << QByteArray("tonquill_pagecount 1|tonquill_bitmap 2 120 300") << false;
    QTest::newRow("within a keyword") << QByteArray("tonquill_pagecount 1|tonquill_bit") << false;
    QTest::newRow("block") << QByteArray("x|tonquill_textblock_begin 80 400 240 60\nabc\n"
                                         "tonquill_textblock_end")
                           << true;
    QTest::newRow("block without its end")
        << QByteArray("x|tonquill_textblock_begin 80 400 240 60\nabc") << false;
}

void LinkBuffersTest::knowsTheEndOfARecord()
{
    QFETCH(const QByteArray, payload);
    QFETCH(const bool, expected);
    QCOMPARE(messageOf({prefix + payload}).endsWithRecord(), expected);
}

void LinkBuffersTest::textEndsAtTheFirstNulAndIsLatin1()
{
    const QByteArray bytes = prefix + QByteArray("\xe9t\xe9\0more\0", 9);
    QCOMPARE(messageOf({bytes}).take(), QStringLiteral("tw2tonquill \u00e9t\u00e9"));
}

void LinkBuffersTest::takenTextIsGone()
{
    IncomingMessage message = messageOf({prefix + "a"});
    message.take();
    QVERIFY(message.isEmpty());
    QCOMPARE(message.take(), QString());
    message.append(prefix + "b");
    QVERIFY(message.isOneSmallPiece());
    QCOMPARE(message.take(), QStringLiteral("tw2tonquill b"));
}

void LinkBuffersTest::foreignBytesAreCountedButNotKept()
{
    IncomingMessage message = messageOf({QByteArray(20000, '\xfe'), prefix, "state:activate"});
    QCOMPARE(message.size(), 20000 + 12 + 14);
    QCOMPARE(message.take(), QString());
}

void LinkBuffersTest::joinsAPrefixThatComesInPieces()
{
    QCOMPARE(messageOf({"tw2", "tonquill", " state:activate"}).take(),
             QStringLiteral("tw2tonquill state:activate"));
}

void LinkBuffersTest::aMessageBeyondTheBoundIsNotKept()
{
    const QByteArray piece(IncomingMessage::largestMessage / 4, ' ');
    IncomingMessage message = messageOf({prefix, piece, piece, piece});
    QTest::ignoreMessage(QtWarningMsg, "a message of more than 268435456 bytes is ignored");
    message.append(piece);
    QCOMPARE(message.size(), IncomingMessage::largestMessage + 12);
    QCOMPARE(message.take(), QString());
}

void LinkBuffersTest::documentsInARowAreOne()
{
    Outbox outbox;
    QVERIFY(outbox.isEmpty());
    outbox.addDocument();
    outbox.addDocument();
    QVERIFY(outbox.takeFirst().isDocument());
    QVERIFY(outbox.isEmpty());
}

void LinkBuffersTest::commandsStayInOrderAmongDocuments()
{
    Outbox outbox;
    outbox.addDocument();
    outbox.addCommand("command:undo");
    outbox.addDocument();
    outbox.addCommand("command:raise");
    QVERIFY(outbox.takeFirst().isDocument());
    QCOMPARE(outbox.takeFirst().command, QStringLiteral("command:undo"));
    QVERIFY(outbox.takeFirst().isDocument());
    QCOMPARE(outbox.takeFirst().command, QStringLiteral("command:raise"));
    outbox.addCommand("command:redo");
    outbox.clear();
    QVERIFY(outbox.isEmpty());
}

void LinkBuffersTest::ofVeryManyCommandsTheOldestGo()
{
    Outbox outbox;
    for (int i = 0; i < 300; ++i)
        outbox.addCommand(QString::number(i));
    // 256 are kept.
    for (int i = 300 - 256; i < 300; ++i)
        QCOMPARE(outbox.takeFirst().command, QString::number(i));
    QVERIFY(outbox.isEmpty());
}

QTEST_GUILESS_MAIN(LinkBuffersTest)
#include "tst_linkbuffers.moc"
