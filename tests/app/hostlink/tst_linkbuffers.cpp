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
    void knowsWhatIsBrokenOff_data();
    void knowsWhatIsBrokenOff();
    void messagesBehindEachOtherAreToldApart_data();
    void messagesBehindEachOtherAreToldApart();
    void smallPieceAloneIsOneMessageWhateverStandsInIt();
    void restOfADocumentBeginsWithTheRecordWhereItStopped();
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

/** Of the first message; nothing if it is broken off. */
QString textOf(IncomingMessage &message)
{
    return message.take().value_or(IncomingMessage::Message{}).text;
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

void LinkBuffersTest::knowsWhatIsBrokenOff_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<bool>("expected");
    const QByteArray page = "tonquill_pagecount 1|";
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("separator") << page << false;
    QTest::newRow("line end") << QByteArray("tonquill_bitmap 2 120 300 0\n") << false;
    QTest::newRow("all fields") << page + "tonquill_bitmap 2 120 300 0" << false;
    QTest::newRow("last field empty") << page + "tonquill_bitmap 2 120 300 " << false;
    QTest::newRow("a field short") << page + "tonquill_bitmap 2 120 300" << true;
    QTest::newRow("a field short, line end") << page + "tonquill_bitmap 2 120 300\n" << false;
    QTest::newRow("a field of the text short")
        << page + "tonquill_text 1 2 3 4 Lento Arial 12 ff000000" << true;
    QTest::newRow("all fields of the text")
        << page + "tonquill_text 1 2 3 4 Lento Arial 12 ff000000 0" << false;
    QTest::newRow("within a keyword") << page + "tonquill_bit" << true;
    QTest::newRow("within the page count") << QByteArray("tonquill_pagec") << true;
    QTest::newRow("keyword without a blank") << page + "tonquill_bitmap" << true;
    QTest::newRow("no keyword's beginning") << page + "tonquill_bits" << false;
    QTest::newRow("block") << QByteArray("x|tonquill_textblock_begin 80 400 240 60\nabc\n"
                                         "tonquill_textblock_end")
                           << false;
    QTest::newRow("block without its end")
        << QByteArray("x|tonquill_textblock_begin 80 400 240 60\nabc") << true;
    QTest::newRow("block behind a line of it")
        << QByteArray("x|tonquill_textblock_begin 80 400 240 60\nabc\n") << true;
    QTest::newRow("block that a separator cuts")
        << QByteArray("tonquill_textblock_begin 80 400 240 60\nabc|") << false;
    QTest::newRow("state") << QByteArray("state:activate") << false;
    QTest::newRow("state in part") << QByteArray("state:activ") << true;
    QTest::newRow("state in part behind a record") << page + "state:activ" << false;
    QTest::newRow("other case") << QByteArray("State:activ") << false;
    QTest::newRow("NUL") << QByteArray("tonquill_bit\0", 13) << false;
}

void LinkBuffersTest::knowsWhatIsBrokenOff()
{
    QFETCH(const QByteArray, payload);
    QFETCH(const bool, expected);
    IncomingMessage message = messageOf({prefix + payload});
    QCOMPARE(message.isBrokenOff(), expected);
    QCOMPARE(message.take().has_value(), !expected);
}

void LinkBuffersTest::messagesBehindEachOtherAreToldApart_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<bool>("areTwo");
    const QByteArray glyph = "tonquill_bitmap 2 120 300 0";
    const QByteArray state = "state:activate";
    const QByteArray open = "tonquill_textblock_begin 1 2 3 4\nabc";
    const QByteArray block = open + "\ntonquill_textblock_end";
    QTest::newRow("behind a separator") << glyph + '|' << state << true;
    QTest::newRow("behind a line end") << glyph + '\n' << state << true;
    QTest::newRow("behind a number") << glyph << state << true;
    QTest::newRow("behind a state") << state << glyph << true;
    QTest::newRow("behind a state in part") << QByteArray("state:a") << glyph << true;
    QTest::newRow("behind nothing") << QByteArray() << glyph << true;
    QTest::newRow("behind a block") << block << state << true;
    QTest::newRow("behind a torn number") << QByteArray("tonquill_bitmap 2 1") << glyph << true;
    QTest::newRow("behind a torn keyword") << glyph + "|tonq" << glyph << true;
    QTest::newRow("behind a torn block") << open << glyph << true;
    QTest::newRow("behind a torn block, a block") << open << block << true;
    QTest::newRow("behind a torn text") << QByteArray("tonquill_text 1 2 3 4 L") << glyph << true;
    QTest::newRow("behind a NUL") << glyph + '\0' << state << true;
    QTest::newRow("typed in a block")
        << open << QByteArray("is the prefix\ntonquill_textblock_end\n") << false;
    QTest::newRow("a message typed in a block")
        << open << QByteArray("tonquill_bitmap 1 2 3 4\ntonquill_textblock_end\n") << false;
    QTest::newRow("typed as a text")
        << QByteArray("tonquill_text 1 2 3 4 ") << QByteArray("Arial 12 ff000000 0") << false;
}

/** The second one's prefix comes with it, as a read of its own. */
void LinkBuffersTest::messagesBehindEachOtherAreToldApart()
{
    QFETCH(const QByteArray, first);
    QFETCH(const QByteArray, second);
    QFETCH(const bool, areTwo);
    IncomingMessage message = messageOf({prefix + first, prefix + second});
    const QString whole = QString::fromLatin1(prefix + first + prefix + second);
    const QString firstText = textOf(message);
    if (!areTwo) {
        QCOMPARE(firstText, whole);
        return;
    }
    QCOMPARE(firstText,
             QString::fromLatin1(prefix + (first.endsWith('\0') ? first.chopped(1) : first)));
    QCOMPARE(textOf(message), QString::fromLatin1(prefix + second));
    QVERIFY(message.isEmpty());
}

void LinkBuffersTest::smallPieceAloneIsOneMessageWhateverStandsInIt()
{
    const QByteArray two = prefix + "tonquill_bitmap 2 120 300 0\n|" + prefix + "state:activate";
    IncomingMessage alone = messageOf({two});
    QCOMPARE(textOf(alone), QString::fromLatin1(two));
    // The same in a large piece, or in two.
    const QByteArray large = prefix + QByteArray(IncomingMessage::smallPiece, '\n');
    IncomingMessage inLarge = messageOf({large + two});
    QCOMPARE(textOf(inLarge), QString::fromLatin1(large));
    IncomingMessage inTwo = messageOf({two.first(20), two.sliced(20)});
    QCOMPARE(textOf(inTwo), QString::fromLatin1(two.first(two.lastIndexOf(prefix))));
    QCOMPARE(textOf(inTwo), QString::fromLatin1(prefix + "state:activate"));
    // A text of the user's is one in any case.
    const QByteArray typed = prefix + "tonquill_textblock_begin 1 2 3 4\n" + prefix +
                             "state:activate\n" + prefix + "\ntonquill_textblock_end\n";
    for (qsizetype cut = 1; cut < typed.size(); ++cut) {
        IncomingMessage inPieces = messageOf({typed.first(cut), typed.sliced(cut)});
        QCOMPARE(textOf(inPieces), QString::fromLatin1(typed));
    }
}

void LinkBuffersTest::restOfADocumentBeginsWithTheRecordWhereItStopped()
{
    IncomingMessage message = messageOf({prefix + "tonquill_pagecount 1|tonquill_timesig 1 2 3 1"});
    QVERIFY(!message.take()->cameBefore);
    message.append("2|tonquill_bit");
    QVERIFY(!message.take());
    QVERIFY(message.isFromHost());
    message.append("map 1 2 3 0");
    const auto rest = message.take();
    QVERIFY(rest);
    QCOMPARE(rest->text, QString("tonquill_timesig 1 2 3 12|tonquill_bitmap 1 2 3 0"));
    QCOMPARE(*rest->cameBefore, qsizetype(strlen("tonquill_timesig 1 2 3 1")));
    message.append("x");
    QVERIFY(!message.isFromHost());
}

void LinkBuffersTest::textEndsAtTheFirstNulAndIsLatin1()
{
    const QByteArray bytes = prefix + QByteArray("\xe9t\xe9\0more\0", 9);
    IncomingMessage message = messageOf({bytes});
    QCOMPARE(textOf(message), QStringLiteral("tw2tonquill \u00e9t\u00e9"));
}

void LinkBuffersTest::takenTextIsGone()
{
    IncomingMessage message = messageOf({prefix + "a"});
    message.take();
    QVERIFY(message.isEmpty());
    QCOMPARE(textOf(message), QString());
    message.append(prefix + "b");
    QVERIFY(message.isOneSmallPiece());
    QCOMPARE(textOf(message), QStringLiteral("tw2tonquill b"));
}

void LinkBuffersTest::foreignBytesAreCountedButNotKept()
{
    IncomingMessage message = messageOf({QByteArray(20000, '\xfe'), prefix, "state:activate"});
    QCOMPARE(message.size(), 20000 + 12 + 14);
    QCOMPARE(textOf(message), QString());
}

void LinkBuffersTest::joinsAPrefixThatComesInPieces()
{
    IncomingMessage message = messageOf({"tw2", "tonquill", " state:activate"});
    QCOMPARE(textOf(message), QStringLiteral("tw2tonquill state:activate"));
}

void LinkBuffersTest::aMessageBeyondTheBoundIsNotKept()
{
    const QByteArray piece(IncomingMessage::largestMessage / 4, ' ');
    IncomingMessage message = messageOf({prefix, piece, piece, piece});
    QTest::ignoreMessage(QtWarningMsg, "a message of more than 268435456 bytes is ignored");
    message.append(piece);
    QCOMPARE(message.size(), IncomingMessage::largestMessage + 12);
    QCOMPARE(textOf(message), QString());
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
