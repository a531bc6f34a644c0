#include "EditorWindow.h"
#include "HostProcess.h"
#include "TestMain.h"

#include <QSignalSpy>
#include <QThread>

namespace
{
constexpr qsizetype kibibyte = 1024;
constexpr qsizetype mebibyte = 1024 * kibibyte;
constexpr qsizetype surplus = 64 * kibibyte;
const QString message = QStringLiteral("tonquill2tw ");
const QByteArray lastRecord = "tonquill_timesig 10 -3 12 8\n";

/** Glyphs behind each other, at least `size` bytes of them; `count` says how many. */
QByteArray glyphs(qsizetype size, int &count)
{
    QByteArray document;
    for (count = 0; document.size() < size; ++count)
        document += "tonquill_bitmap 2 " + QByteArray::number(count) + " 300 0\n|";
    return document;
}

/** The same with few items: a record's surplus fields are ignored. */
QByteArray longGlyphs(qsizetype size, int &count)
{
    QByteArray document;
    document.reserve(size + surplus);
    const QByteArray one = "tonquill_bitmap 2 7 300 0 " + QByteArray(surplus, 'a') + "\n|";
    for (count = 0; document.size() < size; ++count)
        document += one;
    return document;
}
} // namespace

/** Documents of any size, to and from a host in another process. */
class LargeDocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void arrivesWhole_data();
    void arrivesWhole();
    void longTextArrivesWhole();
    void arrivesWholeInAWindowThatIsBusy();
    void endsWithASeparator();
    void smallOneIsHandledAtOnce();
    void hostThatDoesNotReadCostsOneDocument();
    void hostThatDiesInMidMessageChangesNothing_data();
    void hostThatDiesInMidMessageChangesNothing();
    void largeDocumentOfAHostThatClosesBehindItIsShown();
    void endlessGarbageIsNotKept();
    void garbageIsFollowedByADocument();

private:
    qsizetype items() { return m_editor->scene().items().size() / 2; }
    bool hasLastRecord();

    std::unique_ptr<HostProcess> m_host;
    std::unique_ptr<EditorWindow> m_editor;
};

void LargeDocumentsTest::init()
{
    m_host = std::make_unique<HostProcess>();
    m_editor = std::make_unique<EditorWindow>();
    m_host->waitFor("received");
}

void LargeDocumentsTest::cleanup()
{
    m_editor.reset();
    m_host.reset();
}

bool LargeDocumentsTest::hasLastRecord()
{
    for (QGraphicsItem *item : m_editor->scene().items()) {
        if (item->type() == QGraphicsItem::UserType + 3)
            return true;
    }
    return false;
}

void LargeDocumentsTest::arrivesWhole_data()
{
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<bool>("manyItems");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("pieces");
    const QByteArray inOne = "send ";
    const QByteArray inPieces = "chunks ";
    QTest::newRow("300 KiB at once") << 300 * kibibyte << true << inOne << QByteArray();
    QTest::newRow("1 MiB at once") << mebibyte << false << inOne << QByteArray();
    QTest::newRow("64 MiB at once") << 64 * mebibyte << false << inOne << QByteArray();
    const QByteArray slowly = " 65536 2";
    QTest::newRow("300 KiB in pieces") << 300 * kibibyte << true << inPieces << slowly;
    QTest::newRow("1 MiB in pieces") << mebibyte << false << inPieces << slowly;
    QTest::newRow("64 MiB in pieces") << 64 * mebibyte << false << inPieces << slowly;
}

/** The scene is only cleared when the document is whole, so the first change is the last one. */
void LargeDocumentsTest::arrivesWhole()
{
    QFETCH(const qsizetype, size);
    QFETCH(const bool, manyItems);
    QFETCH(const QByteArray, command);
    QFETCH(const QByteArray, pieces);
    m_editor->scene().constructItem("tonquill_bitmap 2 1 2 0\n", false, 0);
    int count = 0;
    const QByteArray document =
        (manyItems ? glyphs(size, count) : longGlyphs(size, count)) + lastRecord;
    m_host->tell(command + m_host->file(document) + pieces);
    QTRY_VERIFY_WITH_TIMEOUT(items() != 1, 25000);
    QCOMPARE(items(), count + 1);
    QVERIFY(hasLastRecord());
}

void LargeDocumentsTest::longTextArrivesWhole()
{
    QByteArray text;
    while (text.size() < 300 * kibibyte)
        text += "a line of a text that is rather long, and this is its end\n";
    m_host->tell("send " + m_host->file("tonquill_textblock_begin 80 900 400 60\n" + text +
                                        "tonquill_textblock_end\n"));
    QTRY_VERIFY_WITH_TIMEOUT(items() != 0, 25000);
    QCOMPARE(m_editor->records(), QStringList{"tonquill_textblock_begin 80 900 401 60\n" + text +
                                              "\ntonquill_textblock_end\n"});
}

void LargeDocumentsTest::arrivesWholeInAWindowThatIsBusy()
{
    int count = 0;
    const QByteArray document = glyphs(mebibyte / 2, count) + lastRecord;
    const QByteArray file = m_host->file(document);
    // The window freezes with each piece for longer than a pause that would end the message.
    connect(&m_editor->window.socket, &QLocalSocket::readyRead, this, [] { QThread::msleep(150); });
    m_host->tell("chunks " + file + " 65536 100");
    QTRY_VERIFY_WITH_TIMEOUT(items() != 0, 25000);
    QCOMPARE(items(), count + 1);
}

void LargeDocumentsTest::endsWithASeparator()
{
    int count = 0;
    m_host->tell("send " + m_host->file(glyphs(300 * kibibyte, count)));
    QTRY_VERIFY_WITH_TIMEOUT(items() != 0, 25000);
    QCOMPARE(items(), count);
}

/** Within the very read that brings it: no timer stands between. */
void LargeDocumentsTest::smallOneIsHandledAtOnce()
{
    qsizetype itemsAfterTheRead = -1;
    connect(&m_editor->window.socket, &QLocalSocket::readyRead, this,
            [&] { itemsAfterTheRead = items(); });
    m_host->tell("send " + m_host->file(lastRecord));
    QTRY_COMPARE(itemsAfterTheRead, 1);
}

void LargeDocumentsTest::hostThatDoesNotReadCostsOneDocument()
{
    int count = 0;
    for (const QByteArray &record : glyphs(mebibyte, count).split('|'))
        m_editor->scene().constructItem(record, false, 0);
    m_host->tell("pause");
    m_host->tell("text tw2tonquill state:nothingtoundo");
    m_host->waitFor("sent"); // and the pause is behind it
    const qint64 document = message.size() + m_editor->scene().notifyTW().size();
    QLocalSocket &socket = m_editor->window.socket;
    qint64 most = 0;
    for (int edit = 0; edit < 20; ++edit) {
        m_editor->scene().setPageNum(edit + 1);
        m_editor->window.notifyTW();
        most = qMax(most, socket.bytesToWrite());
        QCoreApplication::processEvents();
    }
    QVERIFY(most > 0);
    QVERIFY2(most <= document + 10, qPrintable(QString::number(most)));
    m_host->takeReceived();
    m_host->tell("resume");
    QString received;
    const QString newest = message + m_editor->scene().notifyTW();
    const auto gotIt = [&] {
        received += m_host->takeReceived();
        return received.endsWith(newest);
    };
    QVERIFY(QTest::qWaitFor(gotIt, 20000));
    // That which was on its way, and the newest.
    QVERIFY(received.count(message) <= 2);
    QCOMPARE(socket.bytesToWrite(), 0);
}

void LargeDocumentsTest::hostThatDiesInMidMessageChangesNothing_data()
{
    QTest::addColumn<QByteArray>("cut");
    QTest::newRow("within a keyword") << QByteArray("tonquill_bit");
    QTest::newRow("within the fields") << QByteArray("tonquill_bitmap 2 1");
    QTest::newRow("within a text")
        << QByteArray("tonquill_textblock_begin 80 900 240 60\nhalf a te");
}

void LargeDocumentsTest::hostThatDiesInMidMessageChangesNothing()
{
    QFETCH(const QByteArray, cut);
    m_editor->scene().constructItem("tonquill_bitmap 2 1 2 0\n", false, 0);
    int count = 0;
    m_host->tell("send " + m_host->file(glyphs(300 * kibibyte, count) + cut));
    QSignalSpy read(&m_editor->window.socket, &QLocalSocket::readyRead);
    QTRY_VERIFY(!read.isEmpty());
    m_host->die();
    QTRY_COMPARE(m_editor->window.socket.state(), QLocalSocket::UnconnectedState);
    QCOMPARE(items(), 1);
    m_editor->window.notifyTW();
    m_editor->scene().constructItem(lastRecord, false, 0);
    QCOMPARE(items(), 2);
}

void LargeDocumentsTest::largeDocumentOfAHostThatClosesBehindItIsShown()
{
    int count = 0;
    m_host->tell("send " + m_host->file(glyphs(300 * kibibyte, count) + lastRecord) + "\nclose");
    QTRY_COMPARE(m_editor->window.socket.state(), QLocalSocket::UnconnectedState);
    QCOMPARE(items(), count + 1);
}

void LargeDocumentsTest::endlessGarbageIsNotKept()
{
    m_editor->scene().constructItem("tonquill_bitmap 2 1 2 0\n", false, 0);
    const QByteArray file = m_host->file(QByteArray(8 * mebibyte, '\xfe'));
    QSignalSpy read(&m_editor->window.socket, &QLocalSocket::readyRead);
    m_host->tell("raw " + file + "\nraw " + file);
    m_host->waitFor("sent");
    m_host->waitFor("sent");
    // The window answers in between, and nothing has changed.
    QTRY_VERIFY(!read.isEmpty());
    QCOMPARE(items(), 1);
}

void LargeDocumentsTest::garbageIsFollowedByADocument()
{
    m_editor->scene().constructItem("tonquill_bitmap 2 1 2 0\n", false, 0);
    m_editor->scene().constructItem("tonquill_bitmap 2 1 2 0\n", false, 0);
    m_host->tell("raw " + m_host->file(QByteArray(mebibyte, '\0')));
    m_host->waitFor("sent");
    const auto documentIsShown = [this] {
        m_host->tell("send " + m_host->file(lastRecord));
        return QTest::qWaitFor([this] { return items() == 1; }, 500);
    };
    QTRY_VERIFY(documentIsShown());
    QVERIFY(hasLastRecord());
}

TONQUILL_TEST_MAIN(LargeDocumentsTest)
#include "tst_largedocuments.moc"
