#include "TestHost.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"

#include <QPointer>
#include <QSignalSpy>

/** Closing hides; destruction leaves the scene. */
class WindowLifetimeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closingOnlyHides();
    void closingDoesNotEndTheProgram();
    void hiddenWindowKeepsListening();
    void shownAgainItIsAsItWas();
    void closeIsRefused();
    void sceneOutlivesItsWindow();
    void globalIsNullBetweenWindows();
    void nextWindowStartsAnew();
    void destructionLeavesTheHost();
    void destructionEndsWhatWaits();
    void sceneMayBeDestroyedAfterItsWindow();
};

void WindowLifetimeTest::closingOnlyHides()
{
    TonquillMainWin window;
    window.show();
    window.InsertBitmapSymbol(2, false, false);
    const QList<QGraphicsItem *> items = window.scene->items();
    QVERIFY(!window.close());
    QVERIFY(!window.isVisible());
    QCOMPARE(window.scene->items(), items);
    QCOMPARE(window.pageCount, 1);
}

void WindowLifetimeTest::closingDoesNotEndTheProgram()
{
    TonquillMainWin window;
    const QSignalSpy quits(qApp, SIGNAL(lastWindowClosed()));
    window.show();
    QWidget dialog;
    dialog.show();
    constexpr int endedByTest = 7;
    // Several rounds of the event loop, for Qt ends a program by an event of its own.
    QTimer rounds;
    int round = 0;
    connect(&rounds, &QTimer::timeout, &dialog, [&window, &dialog, &round] {
        if (++round == 1) {
            window.close();
            dialog.close();
        } else if (round == 10) {
            QCoreApplication::exit(endedByTest);
        }
    });
    rounds.start(0);
    QCOMPARE(QCoreApplication::exec(), endedByTest);
    // The dialog was the last window and Qt said so; the program goes on all the same.
    QCOMPARE(quits.count(), 1);
    QVERIFY(!QGuiApplication::quitOnLastWindowClosed());
}

void WindowLifetimeTest::hiddenWindowKeepsListening()
{
    TestHost host;
    TonquillMainWin window;
    window.show();
    QTRY_VERIFY(host.isConnected());
    window.close();
    host.send("tonquill_bitmap 2 10 20 0\n");
    QTRY_COMPARE(window.scene->items().size(), 2);
    QVERIFY(!window.isVisible());
    host.send("state:activate");
    QTRY_VERIFY(window.isVisible());
}

void WindowLifetimeTest::shownAgainItIsAsItWas()
{
    TonquillMainWin window;
    window.show();
    window.scene->setPageNum(3);
    window.InsertBitmapSymbol(2, true, false);
    const QByteArray before = window.scene->notifyTW().toLatin1();
    for (int i = 0; i < 3; ++i) {
        window.close();
        QVERIFY(!window.isVisible());
        window.show();
        QVERIFY(window.isVisible());
    }
    QCOMPARE(window.scene->notifyTW().toLatin1(), before);
    QCOMPARE(window.pageCount, 3);
}

void WindowLifetimeTest::closeIsRefused()
{
    TonquillMainWin window;
    window.show();
    QCloseEvent event;
    event.accept();
    QCoreApplication::sendEvent(&window, &event);
    QVERIFY(!event.isAccepted());
    QVERIFY(!window.isVisible());
}

void WindowLifetimeTest::sceneOutlivesItsWindow()
{
    QPointer<TonquillScene> scene;
    {
        TonquillMainWin window;
        window.show();
        scene = window.scene;
        window.InsertBitmapSymbol(2, false, false)->setPos(12, 34);
    }
    QVERIFY(scene);
    QCOMPARE(scene->items().size(), 2);
    QVERIFY(scene->views().isEmpty());
}

void WindowLifetimeTest::globalIsNullBetweenWindows()
{
    {
        const TonquillMainWin window;
        QCOMPARE(g_pMainWin, &window);
    }
    QVERIFY(!g_pMainWin);
}

void WindowLifetimeTest::nextWindowStartsAnew()
{
    QPointer<TonquillScene> first;
    {
        TonquillMainWin window;
        window.scene->setPageNum(4);
        window.InsertBitmapSymbol(2, false, false);
        first = window.scene;
    }
    TonquillMainWin window;
    QVERIFY(window.scene != first);
    QCOMPARE(window.pageCount, 1);
    QVERIFY(window.scene->items().isEmpty());
}

void WindowLifetimeTest::destructionLeavesTheHost()
{
    TestHost host;
    {
        TonquillMainWin window;
        QTRY_VERIFY(host.isConnected());
    }
    QTRY_VERIFY(!host.isConnected());
}

/** A window that is destroyed with Ctrl held, an item waiting and the focus on its page. */
void WindowLifetimeTest::destructionEndsWhatWaits()
{
    QPointer<TonquillScene> scene;
    {
        TonquillMainWin window;
        window.show();
        window.view()->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyPress(window.view(), Qt::Key_Control);
        window.InsertBitmapSymbol(2, true, false);
        scene = window.scene;
    }
    QCoreApplication::processEvents();
    QVERIFY(!g_pMainWin);
    QVERIFY(scene);
}

void WindowLifetimeTest::sceneMayBeDestroyedAfterItsWindow()
{
    QPointer<TonquillScene> scene;
    {
        TonquillMainWin window;
        scene = window.scene;
        window.InsertBitmapSymbol(2, false, false);
    }
    delete scene.data();
    QVERIFY(!scene);
    const TonquillMainWin next;
    QCOMPARE(next.pageCount, 1);
}

TONQUILL_TEST_MAIN(WindowLifetimeTest)
#include "tst_windowlifetime.moc"
