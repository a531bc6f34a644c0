#include "RecoveryJournal.h"
#include "SoloTestMain.h"

#include <QElapsedTimer>
#include <QProcess>

#include <sys/stat.h>

/** A program that is killed at any moment loses at most the last second. */
class CrashTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void losesAtMostTheLastSecond_data();
    void losesAtMostTheLastSecond();
    void aDiscardedJournalIsGone();
    void aDamagedJournalIsNotOffered();
    void aFormerJournalStaysUntilItIsDecided();
    void aJournalReadInPartIsCopiedOnce();
    void aPipeInTheJournalsPlaceIsNotWaitedFor();
};

namespace
{
constexpr int killsAtOnce = 2;
constexpr qint64 second = 1000;

/** One run of the editing program, with the time at which each of its edits was heard of. */
class Run
{
public:
    explicit Run(int lifetime)
        : m_lifetime(lifetime)
    {
        m_process.start(QCoreApplication::applicationDirPath() + "/tonquill-editingprogram",
                        {m_folder.path()});
    }

    /** Takes notes until the time has come, then kills the program; false while it lives. */
    bool isOver()
    {
        while (m_process.canReadLine()) {
            m_process.readLine();
            if (m_edits.isEmpty())
                m_clock.start();
            m_edits.append(m_clock.elapsed());
        }
        if (m_edits.isEmpty() || m_clock.elapsed() < m_lifetime)
            return false;
        m_killedAt = m_clock.elapsed();
        m_process.kill();
        m_process.waitForFinished();
        return true;
    }

    /** How many edits were older than a second when the program was killed. */
    qsizetype mustSurvive() const
    {
        return std::count_if(m_edits.cbegin(), m_edits.cend(),
                             [this](qint64 time) { return time < m_killedAt - second; });
    }

    qsizetype survived() const
    {
        const auto found = RecoveryJournal(m_folder.path()).find(Paper());
        return found ? found->document.items.size() : 0;
    }

private:
    int m_lifetime;
    QTemporaryDir m_folder;
    QProcess m_process;
    QElapsedTimer m_clock;
    QList<qint64> m_edits;
    qint64 m_killedAt = 0;
};
} // namespace

void CrashTest::losesAtMostTheLastSecond_data()
{
    QTest::addColumn<QList<int>>("lifetimes");
    QRandomGenerator random(11);
    for (int i = 0; i < 50; i += killsAtOnce) {
        QList<int> lifetimes;
        for (int j = 0; j < killsAtOnce; ++j)
            lifetimes.append(200 + random.bounded(1800));
        QTest::addRow("kills %d to %d", i + 1, i + killsAtOnce) << lifetimes;
    }
}

void CrashTest::losesAtMostTheLastSecond()
{
    QFETCH(QList<int>, lifetimes);
    std::vector<std::unique_ptr<Run>> runs;
    for (const int lifetime : lifetimes)
        runs.push_back(std::make_unique<Run>(lifetime));
    for (const auto &run : runs) {
        QTRY_VERIFY_WITH_TIMEOUT(run->isOver(), 20000);
        QVERIFY2(
            run->survived() >= run->mustSurvive(),
            qPrintable(QStringLiteral("%1 of %2").arg(run->survived()).arg(run->mustSurvive())));
    }
}

void CrashTest::aDiscardedJournalIsGone()
{
    const QTemporaryDir folder;
    RecoveryJournal journal(folder.path());
    QVERIFY(!journal.find(Paper()));
    QVERIFY(journal.write(DocumentSnapshot(), "/a b/c%20|d.tonquill"));
    QCOMPARE(journal.find(Paper())->path, QString("/a b/c%20|d.tonquill"));
    journal.discard();
    QVERIFY(!journal.find(Paper()));
}

void CrashTest::aDamagedJournalIsNotOffered()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("recovery.tonquill"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("\0\0\0\0", 4);
    file.close();
    QVERIFY(!RecoveryJournal(folder.path()).find(Paper()));
}

void CrashTest::aFormerJournalStaysUntilItIsDecided()
{
    const QTemporaryDir folder;
    const DocumentSnapshot lost{Paper(), 2, {}};
    QVERIFY(RecoveryJournal(folder.path()).write(lost, "/song.tonquill", "ab01"));

    RecoveryJournal journal(folder.path());
    QVERIFY(!journal.write(DocumentSnapshot(), QString()));
    journal.discard();
    QCOMPARE(journal.find(Paper())->document, lost);
    QCOMPARE(journal.find(Paper())->path, QString("/song.tonquill"));
    QCOMPARE(journal.find(Paper())->contents, QByteArray("ab01"));
    journal.takeOver();
    QVERIFY(journal.write(DocumentSnapshot(), QString()));
    QCOMPARE(journal.find(Paper())->document, DocumentSnapshot());
}

void CrashTest::aJournalReadInPartIsCopiedOnce()
{
    const QTemporaryDir folder;
    const QByteArray bytes = "tonquill-recovery /a.tonquill\ntonquill-document 1\n"
                             "tonquill_bitmap 1 2 19\nrubbish\ntonquill-end\n";
    QFile file(folder.filePath("recovery.tonquill"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    const RecoveryJournal journal(folder.path());
    const auto found = journal.find(Paper());
    QCOMPARE(found->document.items.toList(), QByteArrayList{"tonquill_bitmap 1 2 19"});
    // Counted as in a file, from behind the journal's own line.
    QVERIFY(found->problems.contains("Line 3"));

    const QString copy = journal.keepCopy();
    QCOMPARE(journal.keepCopy(), copy);
    QFile kept(copy);
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), bytes);
    QCOMPARE(kept.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    QVERIFY(file.exists());
}

void CrashTest::aPipeInTheJournalsPlaceIsNotWaitedFor()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("recovery.tonquill");
    QCOMPARE(mkfifo(QFile::encodeName(path), S_IRUSR | S_IWUSR), 0);
    RecoveryJournal journal(folder.path());
    QVERIFY(!journal.find(Paper()));
    QVERIFY(journal.isUndecided());
    QCOMPARE(journal.keepCopy(), QString());
    journal.takeOver();
    QVERIFY(!journal.write(DocumentSnapshot(), QString()));
    QVERIFY(!journal.error().isEmpty());
}

TONQUILL_SOLO_TEST_MAIN(CrashTest)
#include "tst_crash.moc"
