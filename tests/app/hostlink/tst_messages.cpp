#include "EditorWindow.h"
#include "TestHost.h"
#include "TestMain.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QSignalSpy>

namespace
{
const QByteArray glyph = "tonquill_bitmap 2 120 300 0\n";
const QString message = QStringLiteral("tonquill2tw ");
} // namespace

/** What the host says and what the editor answers. */
class MessagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void activateShowsAHiddenWindow();
    void onlyTheExactPrefixCounts_data();
    void onlyTheExactPrefixCounts();
    void statesAreCaseSensitive_data();
    void statesAreCaseSensitive();
    void boxes_data();
    void boxes();
    void sameBoxOpensOnce();
    void documentArrivesWhileABoxIsOpen();
    void emptyPayloadClearsTheScene();
    void textEndsAtTheFirstNul();
    void accentsSurviveBothWays();
    void whatTheLinkCannotCarryIsAQuestionMark();
    void pagesAreNotTakenFromTheDocument();
    void twoMessagesInOneReadAreOne();
    void commands_data();
    void commands();
    void firstMessageIsTheDocumentWhateverWasAskedBefore();
    void aloneTheEditorGoesOn();

private:
    qsizetype items() { return ItemProbe::documentItems(m_editor->scene()).size(); }
    QList<QMessageBox *> boxesOpen();

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<EditorWindow> m_editor;
};

void MessagesTest::init()
{
    m_host = std::make_unique<TestHost>();
    m_editor = std::make_unique<EditorWindow>();
    QTRY_COMPARE(m_host->messages, QStringList{message + "tonquill_pagecount 1\n"});
    m_host->messages.clear();
}

void MessagesTest::cleanup()
{
    m_editor.reset();
    m_host.reset();
}

QList<QMessageBox *> MessagesTest::boxesOpen()
{
    QList<QMessageBox *> boxes = m_editor->window.findChildren<QMessageBox *>();
    boxes.removeIf([](const QMessageBox *box) { return !box->isVisible(); });
    return boxes;
}

void MessagesTest::activateShowsAHiddenWindow()
{
    m_editor->window.close();
    QVERIFY(!m_editor->window.isVisible());
    m_host->send("state:activate");
    QTRY_VERIFY(m_editor->window.isVisible());
}

void MessagesTest::onlyTheExactPrefixCounts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("character in front") << QByteArray("xtw2tonquill state:activate");
    QTest::newRow("blank in front") << QByteArray(" tw2tonquill state:activate");
    QTest::newRow("other case") << QByteArray("TW2tonquill state:activate");
    QTest::newRow("cut") << QByteArray("tw2tonquill");
    QTest::newRow("the editor's own") << QByteArray("tonquill2tw state:activate");
    QTest::newRow("NUL in front") << QByteArray("\0tw2tonquill state:activate", 27);
    QTest::newRow("garbage") << QByteArray(5000, '\xfe');
}

/** What is ignored neither shows the window nor clears the scene. */
void MessagesTest::onlyTheExactPrefixCounts()
{
    QFETCH(const QByteArray, bytes);
    m_editor->scene().constructItem(glyph, false, 0);
    m_editor->window.close();
    QSignalSpy read(&m_editor->window.socket, &QLocalSocket::readyRead);
    m_host->sendRaw(bytes);
    QTRY_COMPARE(read.size(), 1);
    QVERIFY(!m_editor->window.isVisible());
    QCOMPARE(items(), 1);
    // The next message is understood.
    m_host->send("state:activate");
    QTRY_VERIFY(m_editor->window.isVisible());
    QCOMPARE(items(), 1);
}

void MessagesTest::statesAreCaseSensitive_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::newRow("activate") << QByteArray("state:Activate");
    QTest::newRow("undo") << QByteArray("State:nothingtoundo");
    QTest::newRow("redo") << QByteArray("state:nothingtoREDO");
    QTest::newRow("line end") << QByteArray("state:activate\n");
}

void MessagesTest::statesAreCaseSensitive()
{
    QFETCH(const QByteArray, payload);
    m_editor->scene().constructItem(glyph, false, 0);
    m_editor->window.close();
    m_host->send(payload);
    QTRY_COMPARE(items(), 0); // it was a document, without any record
    QVERIFY(!m_editor->window.isVisible());
    QVERIFY(boxesOpen().isEmpty());
}

void MessagesTest::boxes_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("undo") << QByteArray("state:nothingtoundo") << "Undo"
                          << "Nothing to undo";
    QTest::newRow("redo") << QByteArray("state:nothingtoredo") << "Redo"
                          << "Nothing to redo";
}

void MessagesTest::boxes()
{
    QFETCH(const QByteArray, payload);
    m_editor->scene().constructItem(glyph, false, 0);
    m_host->send(payload);
    QTRY_COMPARE(boxesOpen().size(), 1);
    QMessageBox *box = boxesOpen().constFirst();
    QTEST(box->windowTitle(), "title");
    QTEST(box->text(), "text");
    QCOMPARE(box->icon(), QMessageBox::Warning);
    QCOMPARE(box->standardButtons(), QMessageBox::Ok);
    box->button(QMessageBox::Ok)->click();
    QVERIFY(boxesOpen().isEmpty());
    QCOMPARE(items(), 1);
}

void MessagesTest::sameBoxOpensOnce()
{
    m_host->send("state:nothingtoundo");
    QTRY_COMPARE(boxesOpen().size(), 1);
    m_host->send("state:nothingtoundo");
    // Messages are handled in their order: with the other box, the second message is behind us.
    QSignalSpy read(&m_editor->window.socket, &QLocalSocket::readyRead);
    QTRY_COMPARE(read.size(), 1);
    m_host->send("state:nothingtoredo");
    QTRY_COMPARE(boxesOpen().size(), 2);
    // Closed, it opens again.
    for (QMessageBox *box : boxesOpen())
        box->close();
    m_host->send("state:nothingtoundo");
    QTRY_COMPARE(boxesOpen().size(), 1);
}

void MessagesTest::documentArrivesWhileABoxIsOpen()
{
    m_host->send("state:nothingtoundo");
    QTRY_COMPARE(boxesOpen().size(), 1);
    m_host->send(glyph + '|' + glyph);
    QTRY_COMPARE(items(), 2);
    QCOMPARE(boxesOpen().size(), 1);
}

void MessagesTest::emptyPayloadClearsTheScene()
{
    m_editor->scene().constructItem(glyph, false, 0);
    m_host->send("");
    QTRY_COMPARE(items(), 0);
}

void MessagesTest::textEndsAtTheFirstNul()
{
    m_host->send(glyph + '|' + glyph + '\0' + '|' + glyph);
    QTRY_COMPARE(items(), 2);
}

void MessagesTest::accentsSurviveBothWays()
{
    const QString record = QStringLiteral("tonquill_text 5 6 70 20 \u00e9t\u00e9 Arial 12 0 0\n");
    m_host->send(record.toLatin1());
    QTRY_COMPARE(items(), 1);
    m_editor->window.notifyTW();
    QTRY_VERIFY(m_host->messages.join("").contains(QStringLiteral(" \u00e9t\u00e9 Arial 12 ")));
}

void MessagesTest::whatTheLinkCannotCarryIsAQuestionMark()
{
    m_editor->scene().constructItem(QStringLiteral("tonquill_text 0 0 1 1 B\u266d Arial 12 0 0"),
                                    false, 0);
    m_editor->window.notifyTW();
    QTRY_VERIFY(m_host->messages.join("").contains(" B? Arial 12 "));
}

void MessagesTest::pagesAreNotTakenFromTheDocument()
{
    m_editor->scene().setPageNum(3);
    m_host->send("tonquill_pagecount 9\n|tonquill_bitmap 2 120 9000 0\n");
    QTRY_COMPARE(items(), 1);
    QCOMPARE(m_editor->window.pageCount, 1);
}

void MessagesTest::twoMessagesInOneReadAreOne()
{
    // The second prefix ends up in the first document: "0\ntw2tonquill" is a field, and so is what
    // follows it. Behind a separator it is a record of no known kind.
    m_host->sendRaw("tw2tonquill " + glyph + "tw2tonquill " + glyph + '|' + glyph);
    QTRY_COMPARE(items(), 2);
    m_host->sendRaw("tw2tonquill " + glyph + "|tw2tonquill state:activate");
    QTRY_COMPARE(items(), 1);
}

void MessagesTest::commands_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QString>("expected");
    QTest::newRow("raise") << QByteArray("OnToolBar1ButtonTrackwright") << "command:raise";
    QTest::newRow("undo") << QByteArray("OnToolBar1ButtonUndo") << "command:undo";
    QTest::newRow("redo") << QByteArray("OnToolBar1ButtonRedo") << "command:redo";
}

void MessagesTest::commands()
{
    QFETCH(const QByteArray, slot);
    QFETCH(const QString, expected);
    QVERIFY(QMetaObject::invokeMethod(&m_editor->window, slot.constData()));
    QTRY_COMPARE(m_host->messages, QStringList{message + expected});
}

void MessagesTest::firstMessageIsTheDocumentWhateverWasAskedBefore()
{
    m_editor.reset();
    m_host->messages.clear();
    m_editor = std::make_unique<EditorWindow>();
    m_editor->window.OnToolBar1ButtonUndo();
    QTRY_VERIFY(!m_host->messages.isEmpty());
    QVERIFY(m_host->messages.constFirst().startsWith(message + "tonquill_pagecount 1\n"));
}

void MessagesTest::aloneTheEditorGoesOn()
{
    m_editor.reset();
    m_host.reset();
    m_editor = std::make_unique<EditorWindow>();
    m_editor->window.OnToolBar1ButtonUndo();
    m_editor->scene().constructItem(glyph, false, 0);
    m_editor->window.notifyTW();
    QCOMPARE(m_editor->window.socket.bytesToWrite(), 0);
    QCOMPARE(items(), 1);
}

TONQUILL_TEST_MAIN(MessagesTest)
#include "tst_messages.moc"
