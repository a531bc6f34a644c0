#include "TestHost.h"
#include "TestMain.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"

#include <QLabel>
#include <QSignalSpy>

/** Start-up and the main window. */
class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelSaysOnePageAtStart();
    void closingOnlyHides();
    void firstMessageIsTheOwnDocument();
};

void MainWindowTest::labelSaysOnePageAtStart()
{
    TonquillMainWin window;
    QCOMPARE(window.findChild<QLabel *>("lbl_page")->text(), QString("1/1"));
    QCOMPARE(window.pageCount, 1);
}

void MainWindowTest::closingOnlyHides()
{
    TonquillMainWin window;
    window.show();
    window.InsertBitmapSymbol(2, false, false);
    const qsizetype items = window.scene->items().size();
    window.close();
    QVERIFY(!window.isVisible());
    QCOMPARE(window.scene->items().size(), items);
}

void MainWindowTest::firstMessageIsTheOwnDocument()
{
    TestHost host;
    TonquillMainWin window;
    QTRY_COMPARE(host.messages, QStringList{"tonquill2tw tonquill_pagecount 1\n"});
}

TONQUILL_TEST_MAIN(MainWindowTest)
#include "tst_mainwindow.moc"
