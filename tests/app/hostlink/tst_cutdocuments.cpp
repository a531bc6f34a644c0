#include "EditorWindow.h"
#include "HostLink.h"
#include "KindsDocument.h"
#include "TestHost.h"
#include "TestMain.h"

#include <QRegularExpression>
#include <QSignalSpy>

namespace
{
const QByteArray prefix = "tw2tonquill ";
const QString former = QStringLiteral("tonquill_bitmap 3 50 60 0\n");
const QString edited = QStringLiteral("tonquill_bitmap 4 70 80 0\n");

QByteArray glyph(int x)
{
    return "tonquill_bitmap 2 " + QByteArray::number(x) + " 300 0\n";
}
} // namespace

/** Documents that are cut, with a pause that is long enough for each guess: without the clock. */
class CutDocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void anyCutGivesTheSameItems();
    void anyTwoCutsGiveTheSameItems();
    void documentWithoutLineEndsGoesOn();
    void emptyDocumentGoesOn();
    void whatCannotGoOnIsIgnored_data();
    void whatCannotGoOnIsIgnored();
    void nothingGoesOnBehindAStateOrANul_data();
    void nothingGoesOnBehindAStateOrANul();
    void brokenOffMessageIsNotShown_data();
    void brokenOffMessageIsNotShown();
    void whatIsNoBeginningIsADocumentAtOnce_data();
    void whatIsNoBeginningIsADocumentAtOnce();
    void nextMessageEndsABrokenOffOne_data();
    void nextMessageEndsABrokenOffOne();
    void editOfABrokenOffMessageIsNotSent();
    void editIsSentWhenTheMessageIsGivenUp();
    void editIsSentWhenTheBytesWereAState();
    void cutCopyThatWasSentIsFollowedByTheWhole();
    void restOfADocumentIsNotEchoed();
    void cutNumberReplacesItsItem();
    void deletedItemStaysDeleted();
    void itemBeingPlacedGoesOnWaiting();
    void restThatBreaksOffIsNotBuilt();
    void restThatBreaksOffIsDroppedWithTheHost();
    void messageBehindTheRestIsOneOfItsOwn();
    void documentDuringAPrintGoesOn();
    void windowGoesWhileAMessageArrives();

private:
    /** Sends the bytes and waits until the editor has read them. */
    void send(const QByteArray &bytes);
    /** The pause is over. */
    void pass()
    {
        link()->findChild<QTimer *>("quiet")->stop();
        QVERIFY(QMetaObject::invokeMethod(link(), "judgeIfQuiet"));
    }
    void sendAndPass(const QByteArray &bytes)
    {
        send(bytes);
        pass();
    }
    /** The user does something that is told to the host. */
    void edit();
    /** What the host was told so far, once everything has arrived. */
    QString told();
    QStringList builtOf(const QByteArray &document);
    HostLink *link() { return m_editor->window.findChild<HostLink *>(); }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<EditorWindow> m_editor;
};

void CutDocumentsTest::init()
{
    m_host = std::make_unique<TestHost>();
    m_editor = std::make_unique<EditorWindow>();
    QTRY_COMPARE(m_host->messages.size(), 1);
    sendAndPass(prefix + former.toLatin1());
    QCOMPARE(m_editor->records(), QStringList{former});
    m_host->messages.clear();
}

void CutDocumentsTest::cleanup()
{
    m_editor.reset();
    m_host.reset();
}

void CutDocumentsTest::send(const QByteArray &bytes)
{
    QSignalSpy read(&m_editor->window.socket, &QLocalSocket::readyRead);
    m_host->sendRaw(bytes);
    QTRY_VERIFY(!read.isEmpty());
}

void CutDocumentsTest::edit()
{
    m_editor->scene().constructItem(edited, false, 0);
    m_editor->window.notifyTW();
}

/** A command is always sent, and behind everything else. */
QString CutDocumentsTest::told()
{
    m_editor->window.OnToolBar1ButtonUndo();
    const QString end = QStringLiteral("tonquill2tw command:undo");
    QString text;
    const bool hasEnd = QTest::qWaitFor([&] {
        text = m_host->messages.join("");
        return text.endsWith(end);
    });
    m_host->messages.clear();
    return hasEnd ? text.chopped(end.size()) : QStringLiteral("no answer");
}

QStringList CutDocumentsTest::builtOf(const QByteArray &document)
{
    m_editor->window.twMsg(QString::fromLatin1(document));
    return m_editor->records();
}

void CutDocumentsTest::anyCutGivesTheSameItems()
{
    const QStringList whole = builtOf(KindsDocument::text);
    QCOMPARE(whole.size(), KindsDocument::items);
    const QByteArray message = prefix + KindsDocument::text;
    for (qsizetype cut = 1; cut < message.size(); ++cut) {
        m_editor->scene().clearScene();
        sendAndPass(message.first(cut));
        sendAndPass(message.sliced(cut));
        QVERIFY2(m_editor->records() == whole, message.first(cut).last(qMin<qsizetype>(cut, 30)));
    }
    QCOMPARE(told(), QString());
}

/** The second cut is near the first, or far from it. */
void CutDocumentsTest::anyTwoCutsGiveTheSameItems()
{
    const QByteArray document = "tonquill_pagecount 1\n|tonquill_linetab 41 300 0 0 601 84|"
                                "tonquill_text 80 45 58 24 Lento Arial 12 ff000000 90|"
                                "tonquill_textblock_begin 82 500 240 60\na\n"
                                "tonquill_textblock_end\n|tonquill_bitmap 2 320 330 1";
    const QStringList whole = builtOf(document);
    QCOMPARE(whole.size(), 4);
    const QByteArray message = prefix + document;
    for (qsizetype cut = 1; cut < message.size() - 1; ++cut) {
        for (const qsizetype length : {1, 2, 45}) {
            const qsizetype second = qMin(cut + length, message.size() - 1);
            m_editor->scene().clearScene();
            sendAndPass(message.first(cut));
            sendAndPass(message.sliced(cut, second - cut));
            sendAndPass(message.sliced(second));
            QVERIFY2(m_editor->records() == whole,
                     message.first(cut).last(qMin<qsizetype>(cut, 30)) + "&" +
                         message.sliced(cut, second - cut));
        }
    }
}

void CutDocumentsTest::documentWithoutLineEndsGoesOn()
{
    const QByteArray document = "tonquill_other 1 2|tonquill_bitmap 2 120 300 0 surplus words|"
                                "tonquill_text 1 2 30 20 one two three four five six Arial 12 0 0|"
                                "tonquill_timesig 90 130 3 14";
    const QStringList whole = builtOf(document);
    QCOMPARE(whole.size(), 3);
    const QByteArray message = prefix + document;
    for (qsizetype cut = 1; cut < message.size(); ++cut) {
        m_editor->scene().clearScene();
        sendAndPass(message.first(cut));
        sendAndPass(message.sliced(cut));
        QVERIFY2(m_editor->records() == whole, message.first(cut).last(qMin<qsizetype>(cut, 30)));
    }
}

void CutDocumentsTest::emptyDocumentGoesOn()
{
    sendAndPass(prefix);
    QCOMPARE(m_editor->records(), QStringList());
    sendAndPass(glyph(7));
    QCOMPARE(m_editor->records(), QStringList{glyph(7)});
}

void CutDocumentsTest::whatCannotGoOnIsIgnored_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray open = "tonquill_bitmap 2 7 300 0";
    QTest::newRow("letter behind a line end") << glyph(7) << QByteArray("x|") + glyph(8);
    QTest::newRow("keyword behind a line end") << glyph(7) << glyph(8) + '|' + glyph(9);
    QTest::newRow("letter behind a number") << open << QByteArray("x|") + glyph(8);
    QTest::newRow("letter behind a separator") << glyph(7) + '|' << QByteArray("x|") + glyph(8);
    QTest::newRow("the program's own prefix")
        << glyph(7) + '|' << QByteArray("tonquill2tw |") + glyph(8);
    QTest::newRow("message with a letter in front")
        << glyph(7) + '|' << 'x' + prefix + glyph(8) + '|' + glyph(9);
    QTest::newRow("message with a blank in front") << open << ' ' + prefix + glyph(8);
}

void CutDocumentsTest::whatCannotGoOnIsIgnored()
{
    QFETCH(const QByteArray, document);
    QFETCH(const QByteArray, bytes);
    sendAndPass(prefix + document);
    sendAndPass(bytes);
    QCOMPARE(m_editor->records(), QStringList{glyph(7)});
}

void CutDocumentsTest::nothingGoesOnBehindAStateOrANul_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("state") << QByteArray("state:activate");
    QTest::newRow("NUL") << former.toLatin1() + '\0';
    QTest::newRow("NUL behind a separator") << former.toLatin1() + '|' + '\0';
}

void CutDocumentsTest::nothingGoesOnBehindAStateOrANul()
{
    QFETCH(const QByteArray, message);
    sendAndPass(prefix + message);
    sendAndPass('|' + glyph(7));
    QCOMPARE(m_editor->records(), QStringList{former});
}

void CutDocumentsTest::brokenOffMessageIsNotShown_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("a letter") << QByteArray("t");
    QTest::newRow("prefix without its blank") << QByteArray("tw2tonquill");
    QTest::newRow("state") << prefix + "state:nothingto";
    QTest::newRow("keyword") << prefix + glyph(7) + "|tonquill_bit";
    QTest::newRow("whole keyword") << prefix + glyph(7) + "|tonquill_timesig";
    QTest::newRow("fields") << prefix + glyph(7) + "|tonquill_timesig 1 2";
    QTest::newRow("header of a block") << prefix + "tonquill_textblock_begin 1 2 30 40";
    QTest::newRow("block") << prefix + "tonquill_textblock_begin 1 2 30 40\na line\n";
}

void CutDocumentsTest::brokenOffMessageIsNotShown()
{
    QFETCH(const QByteArray, bytes);
    sendAndPass(bytes);
    QCOMPARE(m_editor->records(), QStringList{former});
    m_host->closeConnection();
    QTRY_COMPARE(m_editor->window.socket.state(), QLocalSocket::UnconnectedState);
    QCOMPARE(m_editor->records(), QStringList{former});
}

void CutDocumentsTest::whatIsNoBeginningIsADocumentAtOnce_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("upper case") << QByteArray("STATE:ACTIVATE");
    QTest::newRow("word") << QByteArray("hello");
    QTest::newRow("unknown keyword") << QByteArray("tonquill_bitmaps 1 2");
    QTest::newRow("keyword and a line end") << QByteArray("tonquill_bitmap\n");
    QTest::newRow("too few fields and a line end") << QByteArray("tonquill_bitmap 2 7\n");
}

void CutDocumentsTest::whatIsNoBeginningIsADocumentAtOnce()
{
    QFETCH(const QByteArray, payload);
    send(prefix + payload);
    QCOMPARE(m_editor->records(), QStringList());
}

void CutDocumentsTest::nextMessageEndsABrokenOffOne_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("prefix") << QByteArray("tw2ton");
    QTest::newRow("state") << prefix + "state:act";
    QTest::newRow("keyword") << prefix + "tonquill_bit";
    QTest::newRow("fields") << prefix + glyph(7) + "|tonquill_bitmap 2 1";
    QTest::newRow("simple text") << prefix + "tonquill_text 1 2 3 4 Len";
    QTest::newRow("block") << prefix + "tonquill_textblock_begin 1 2 30 40\na li";
}

void CutDocumentsTest::nextMessageEndsABrokenOffOne()
{
    QFETCH(const QByteArray, bytes);
    const QByteArray block = "tonquill_textblock_begin 1 2 30 40\na\ntonquill_textblock_end\n";
    sendAndPass(bytes);
    sendAndPass(prefix + glyph(8) + '|' + block);
    QCOMPARE(m_editor->records().size(), 2);
    QVERIFY(m_editor->records().contains(glyph(8)));
    // What came of the other one was a document before this one.
    sendAndPass(bytes);
    m_editor->window.close();
    sendAndPass(prefix + "state:activate");
    QVERIFY(m_editor->window.isVisible());
}

void CutDocumentsTest::editOfABrokenOffMessageIsNotSent()
{
    sendAndPass(prefix + glyph(7) + "|tonquill_bitmap 2 ");
    edit();
    QCOMPARE(m_editor->records(), (QStringList{edited, former}));
    QCOMPARE(told(), QString());
    sendAndPass("8 300 0\n");
    QCOMPARE(m_editor->records(), (QStringList{glyph(8), glyph(7)}));
    QCOMPARE(told(), QString()); // the edit is gone with the document that it was of
    edit();
    QCOMPARE(told(), "tonquill2tw tonquill_pagecount 1\n" + edited + glyph(8) + glyph(7));
}

void CutDocumentsTest::editIsSentWhenTheMessageIsGivenUp()
{
    sendAndPass(prefix + glyph(7) + "|tonquill_bitmap 2 ");
    edit();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("broke off"));
    link()->findChild<QTimer *>("silence")->setInterval(0);
    QTRY_VERIFY(!m_host->messages.isEmpty());
    QCOMPARE(told(), "tonquill2tw tonquill_pagecount 1\n" + edited + former);
    sendAndPass("8 300 0\n|" + glyph(9)); // too late
    QCOMPARE(m_editor->records(), (QStringList{edited, former}));
}

void CutDocumentsTest::editIsSentWhenTheBytesWereAState()
{
    sendAndPass(prefix + "state:nothing");
    edit();
    QCOMPARE(told(), QString());
    sendAndPass("toundo");
    QCOMPARE(told(), "tonquill2tw tonquill_pagecount 1\n" + edited + former);
}

void CutDocumentsTest::cutCopyThatWasSentIsFollowedByTheWhole()
{
    sendAndPass(prefix + glyph(7) + '|');
    edit();
    QCOMPARE(told(), "tonquill2tw tonquill_pagecount 1\n" + edited + glyph(7));
    sendAndPass(glyph(8));
    QCOMPARE(told(), "tonquill2tw tonquill_pagecount 1\n" + glyph(8) + edited + glyph(7));
}

void CutDocumentsTest::restOfADocumentIsNotEchoed()
{
    sendAndPass(prefix + glyph(7));
    edit();
    told();
    sendAndPass("|"); // nothing that the host was not told
    QCOMPARE(told(), QString());
    sendAndPass(prefix + glyph(7));
    sendAndPass('|' + glyph(8));
    QCOMPARE(told(), QString());
}

void CutDocumentsTest::cutNumberReplacesItsItem()
{
    sendAndPass(prefix + "tonquill_notetie 210 160 0 0 48 1");
    sendAndPass("0");
    QCOMPARE(m_editor->records(), QStringList{"tonquill_notetie 210 160 0 0 48 10\n"});
    QGraphicsItem *item = ItemProbe::onlyItem(m_editor->scene());
    sendAndPass("\n|" + glyph(8));
    QCOMPARE(ItemProbe::documentItems(m_editor->scene()).constLast(), item);
}

void CutDocumentsTest::deletedItemStaysDeleted()
{
    sendAndPass(prefix + "tonquill_notetie 210 160 0 0 48 1");
    m_editor->scene().destroyItems({ItemProbe::onlyItem(m_editor->scene())});
    sendAndPass("0\n|" + glyph(8));
    QCOMPARE(m_editor->records(), QStringList{glyph(8)});
}

void CutDocumentsTest::itemBeingPlacedGoesOnWaiting()
{
    sendAndPass(prefix + glyph(7));
    m_editor->window.InsertBitmapSymbol(5, true, false);
    sendAndPass('|' + glyph(8));
    QCOMPARE(ItemProbe::waitingItems(m_editor->scene()), 1);
    m_editor->pointer.click(QPointF(500, 600));
    QVERIFY(m_editor->records().contains("tonquill_bitmap 5 500 600 0\n"));
    QCOMPARE(m_editor->records().size(), 3);
}

void CutDocumentsTest::restThatBreaksOffIsNotBuilt()
{
    sendAndPass(prefix + glyph(7));
    sendAndPass('|' + glyph(8) + "|tonquill_bitmap 2 ");
    edit();
    QCOMPARE(told(), QString());
    sendAndPass("9 300 0\n");
    QCOMPARE(told(),
             "tonquill2tw tonquill_pagecount 1\n" + glyph(9) + glyph(8) + edited + glyph(7));
}

void CutDocumentsTest::restThatBreaksOffIsDroppedWithTheHost()
{
    sendAndPass(prefix + glyph(7));
    sendAndPass('|' + glyph(8) + "|tonquill_bitmap 2 ");
    m_host->closeConnection();
    QTRY_COMPARE(m_editor->window.socket.state(), QLocalSocket::UnconnectedState);
    QVERIFY(m_editor->records().contains(glyph(7)));
    QVERIFY(!m_editor->records().contains(glyph(9)));
}

void CutDocumentsTest::messageBehindTheRestIsOneOfItsOwn()
{
    sendAndPass(prefix + glyph(7));
    m_editor->window.close();
    sendAndPass('|' + glyph(8) + prefix + "state:activate");
    QVERIFY(m_editor->window.isVisible());
    QCOMPARE(m_editor->records(), (QStringList{glyph(8), glyph(7)}));
    sendAndPass('|' + glyph(9)); // behind a state, of nothing
    QCOMPARE(m_editor->records().size(), 2);
}

/** What comes during a print is read behind it; its first piece came before. */
void CutDocumentsTest::documentDuringAPrintGoesOn()
{
    sendAndPass(prefix + glyph(7) + "|tonquill_bitmap 2 ");
    link()->pause();
    send("8 300 0\n");
    pass();
    QCOMPARE(m_editor->records(), QStringList{former});
    link()->resume();
    pass();
    QCOMPARE(m_editor->records(), (QStringList{glyph(8), glyph(7)}));
}

/** The connection ends with the window, and what has come is not handled any more. */
void CutDocumentsTest::windowGoesWhileAMessageArrives()
{
    send(prefix + "tonquill_bitmap 2 ");
    send("8 300 0\n");
    const TonquillScene &scene = m_editor->scene();
    m_editor.reset();
    QCOMPARE(ItemProbe::documentItems(scene).size(), 1);
}

TONQUILL_TEST_MAIN(CutDocumentsTest)
#include "tst_cutdocuments.moc"
