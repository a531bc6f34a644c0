#include "TonquillMainWin.h"

#include <QTemporaryDir>
#include <QtTest>

/** The program's own main(), under another name. */
int programMain(int argc, char *argv[]);

namespace
{
QStringList seen;

/** Writes down what becomes of the main window. */
class StartWatcher : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched != g_pMainWin)
            return false;
        if (event->type() == QEvent::Show)
            seen << "shown";
        else if (event->type() == QEvent::ZOrderChange)
            seen << (g_pMainWin->isVisible() ? "raised" : "raised too early");
        return false;
    }
};

void watchStart()
{
    qApp->installEventFilter(new StartWatcher(qApp));
    // As soon as the program waits for events.
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}
} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchStart)

/** What main() does with the window. */
class StartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowIsShownAndRaised();
};

void StartTest::windowIsShownAndRaised()
{
    const QTemporaryDir folder;
    qputenv("TMPDIR", folder.path().toLocal8Bit()); // no host listens here
    char name[] = "tonquill";
    char *arguments[] = {name, nullptr};
    QCOMPARE(programMain(1, arguments), 0);
    QCOMPARE(seen, QStringList({"shown", "raised"}));
    QVERIFY(!g_pMainWin);
}

QTEST_APPLESS_MAIN(StartTest)
#include "tst_start.moc"
