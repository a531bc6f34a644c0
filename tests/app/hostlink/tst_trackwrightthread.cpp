#include "TrackwrightThread.h"

#include <QSignalSpy>
#include <QtTest>

#include <unistd.h>

/** The reader of standard input, on a pipe that takes its place. */
class TrackwrightThreadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emitsTheTextOfLinesWithThePrefix();
};

void TrackwrightThreadTest::emitsTheTextOfLinesWithThePrefix()
{
    int ends[2];
    QCOMPARE(pipe(ends), 0);
    QVERIFY(dup2(ends[0], STDIN_FILENO) >= 0);
    TrackwrightThread thread(nullptr, nullptr);
    QVERIFY(!thread.isRunning());
    QSignalSpy spy(&thread, SIGNAL(twData(QString)));
    thread.start();
    const QByteArray longText(10000, 'x'); // far more than a buffer of 256 bytes
    const QByteArray lines = "tw2tonquill state:activate\n"
                             "something else\n"
                             " tw2tonquill not at the beginning\n"
                             "tw2tonquill \n"
                             "tw2tonquill " +
                             longText + "\n";
    QCOMPARE(write(ends[1], lines.constData(), static_cast<std::size_t>(lines.size())),
             lines.size());
    QTRY_COMPARE(spy.size(), 3);
    QCOMPARE(spy[0][0].toString(), QString("state:activate"));
    QCOMPARE(spy[1][0].toString(), QString());
    QCOMPARE(spy[2][0].toString(), QString(longText));
    // The end of input does not end the thread; being told to does.
    QVERIFY(thread.isRunning());
    thread.requestInterruption();
    close(ends[1]);
    close(ends[0]);
    QVERIFY(thread.wait(10000));
}

QTEST_GUILESS_MAIN(TrackwrightThreadTest)
#include "tst_trackwrightthread.moc"
