#include "EditorWindow.h"
#include "HostileRecords.h"
#include "TestHost.h"
#include "TestMain.h"

#include <QImage>
#include <QPainter>

namespace
{
// 200,000 in all; a document or message holds two records on average.
constexpr int recordsBuilt = 120000;
constexpr int documentsReceived = 70000;
constexpr int messagesSent = 10000;

constexpr int recordsOnAScene = 400;
constexpr int recordsBetweenPictures = 5000;

const QStringList ordinaryDocument{
    QStringLiteral("tonquill_notetie 200 410 0 0 60 -12\n"),
    QStringLiteral("tonquill_timesig 10 -3 12 8\n"),
    QStringLiteral("tonquill_bitmap 13 120 300 1\n"),
};
} // namespace

/** Whatever comes over the link, the editor survives it and then shows an ordinary document. */
class RecordFuzz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = std::make_unique<TestHost>(); }
    void cleanup();
    void recordsAreSurvived();
    void documentsAreSurvived();
    void messagesOverTheSocketAreSurvived();

private:
    void lookAndClear();
    void verifyOrdinaryDocumentLoads();

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<TonquillMainWin> m_window;
};

void RecordFuzz::cleanup()
{
    m_window.reset();
    m_host.reset();
}

/** Writes, draws and drops what was built. */
void RecordFuzz::lookAndClear()
{
    m_window->scene->notifyTW();
    QImage page(200, 200, QImage::Format_RGB32);
    QPainter painter(&page);
    m_window->scene->render(&painter, page.rect(), QRectF(0, 0, 748, 990));
    painter.end();
    m_window->scene->clearScene();
}

void RecordFuzz::verifyOrdinaryDocumentLoads()
{
    m_window->twMsg(ordinaryDocument.join('|'));
    QStringList records = m_window->scene->notifyTW().split('\n', Qt::SkipEmptyParts);
    QCOMPARE(records.takeFirst(), QString("tonquill_pagecount 1"));
    QCOMPARE(records.size(), ordinaryDocument.size());
    for (const QString &record : ordinaryDocument)
        QVERIFY(records.contains(record.chopped(1)));
}

void RecordFuzz::recordsAreSurvived()
{
    m_window = std::make_unique<TonquillMainWin>();
    HostileRecords hostile(1);
    for (int i = 0; i < recordsBuilt; ++i) {
        m_window->scene->constructItem(QString::fromLatin1(hostile.record()), hostile.onceIn(10),
                                       hostile.offset());
        if (i % recordsBetweenPictures == 0)
            lookAndClear();
        else if (i % recordsOnAScene == 0)
            m_window->scene->clearScene();
    }
    verifyOrdinaryDocumentLoads();
}

void RecordFuzz::documentsAreSurvived()
{
    m_window = std::make_unique<TonquillMainWin>();
    HostileRecords hostile(2);
    for (int i = 0; i < documentsReceived; ++i)
        m_window->twMsg(QString::fromLatin1(hostile.payload()));
    verifyOrdinaryDocumentLoads();
}

void RecordFuzz::messagesOverTheSocketAreSurvived()
{
    m_window = std::make_unique<TonquillMainWin>();
    QTRY_COMPARE(m_host->messages.size(), 1);
    HostileRecords hostile(3);
    for (int i = 0; i < messagesSent; ++i) {
        m_host->sendRaw(hostile.message());
        QCoreApplication::processEvents();
    }
    // A last large one may still be collected.
    const auto answers = [this] {
        m_host->send(ordinaryDocument.join('|').toLatin1());
        return QTest::qWaitFor([this] { return m_window->scene->items().size() == 6; }, 500);
    };
    QTRY_VERIFY(answers());
    verifyOrdinaryDocumentLoads();
}

TONQUILL_TEST_MAIN(RecordFuzz)
#include "tst_recordfuzz.moc"
