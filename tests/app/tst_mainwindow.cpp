#include "TestHost.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillTextBlock.h"
#include "TonquillView.h"
#include "ui_TonquillMainWin.h"

#include <QLabel>
#include <QProcess>
#include <QScrollBar>
#include <QSpinBox>

/** Start-up: the widget tree, the globals, the toolbars, the first message. */
class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formHasItsOwnSizeAndTitle();
    void windowIsWiderThanItsForm();
    void textEditIsHidden();
    void pageControlsStandUnderTheView();
    void marginsAndSpacings();
    void pageControlsShowTheirTexts_data();
    void pageControlsShowTheirTexts();
    void labelSaysOnePageAtStart();
    void paperIsWhiteAndInkBlackOnADarkDesktop();
    void spinBoxKeepsItsDefaultRange();
    void toolBarsStandOnTwoRows();
    void toolBarsStay_data();
    void toolBarsStay();
    void toolBarIsToggled_data();
    void toolBarIsToggled();
    void globalsAreSet();
    void modesAreOff();
    void viewShowsTheSceneFromItsTop();
    void sceneHasNoParent();
    void windowCannotBeMinimisedOrMaximised();
    void clickGivesTheWindowFocus();
    void printerWorksAtScreenResolution();
    void missingFontDoesNotStopTheStart();
    void firstMessageIsTheOwnDocument();
    void startsWithoutAHost();
};

void MainWindowTest::formHasItsOwnSizeAndTitle()
{
    QMainWindow window;
    Ui_TonquillMainWin form;
    form.setupUi(&window);
    QCOMPARE(window.objectName(), QString("TonquillMainWin"));
    QCOMPARE(window.windowTitle(), QString("Tonquill"));
    QCOMPARE(window.size(), QSize(529, 450));
}

void MainWindowTest::windowIsWiderThanItsForm()
{
    const TonquillMainWin window;
    QCOMPARE(window.size(), QSize(826, 704));
    QCOMPARE(window.windowTitle(), QString("Tonquill"));
    QVERIFY(!window.windowIcon().isNull());
    QVERIFY(!window.windowIcon().availableSizes().isEmpty());
}

void MainWindowTest::textEditIsHidden()
{
    TonquillMainWin window;
    window.show();
    QVERIFY(window.ui->graphicsView->isVisible());
    QVERIFY(!window.ui->textEdit->isVisible());
}

void MainWindowTest::pageControlsStandUnderTheView()
{
    const TonquillMainWin window;
    const QVBoxLayout *column = window.ui->verticalLayout;
    QCOMPARE(column->itemAt(0)->widget(), window.ui->graphicsView);
    QCOMPARE(column->itemAt(1)->widget(), window.ui->textEdit);
    QCOMPARE(column->itemAt(2)->widget(), window.ui->groupBox);
    const QHBoxLayout *row = window.ui->horizontalLayout;
    const QList<QWidget *> widgets{window.ui->label,         window.ui->lbl_page,      nullptr,
                                   window.ui->label_3,       window.ui->sb_page,       nullptr,
                                   window.ui->pb_insertPage, window.ui->pb_deletePAge, nullptr};
    QCOMPARE(row->count(), int(widgets.size()));
    for (int i = 0; i < row->count(); ++i) {
        QCOMPARE(row->itemAt(i)->widget(), widgets[i]);
        if (widgets[i])
            continue;
        QCOMPARE(row->itemAt(i)->spacerItem()->sizeHint(), QSize(20, 20));
        QCOMPARE(row->itemAt(i)->expandingDirections(), Qt::Horizontal);
    }
}

void MainWindowTest::marginsAndSpacings()
{
    const TonquillMainWin window;
    QCOMPARE(window.ui->verticalLayout->spacing(), 4);
    QCOMPARE(window.ui->verticalLayout->contentsMargins(), QMargins(4, 4, 4, 4));
    QCOMPARE(window.ui->horizontalLayout->spacing(), 6);
    QCOMPARE(window.ui->horizontalLayout->contentsMargins(), QMargins(11, 11, 11, 11));
}

void MainWindowTest::pageControlsShowTheirTexts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("page") << "label"
                          << "Page:";
    QTest::newRow("number") << "lbl_page"
                            << "1/1";
    QTest::newRow("go to") << "label_3"
                           << "Goto Page";
    QTest::newRow("insert") << "pb_insertPage"
                            << "Insert Page";
    QTest::newRow("delete") << "pb_deletePAge"
                            << "Delete Page";
}

void MainWindowTest::pageControlsShowTheirTexts()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    const TonquillMainWin window;
    QCOMPARE(window.findChild<QWidget *>(name)->property("text").toString(), text);
}

void MainWindowTest::labelSaysOnePageAtStart()
{
    TonquillMainWin window;
    window.show();
    QCOMPARE(window.findChild<QLabel *>("lbl_page")->text(), QString("1/1"));
    QCOMPARE(window.pageCount, 1);
}

void MainWindowTest::spinBoxKeepsItsDefaultRange()
{
    const TonquillMainWin window;
    QCOMPARE(window.ui->sb_page->minimum(), 0);
    QCOMPARE(window.ui->sb_page->maximum(), 99);
    QCOMPARE(window.ui->sb_page->value(), 0);
}

void MainWindowTest::toolBarsStandOnTwoRows()
{
    TonquillMainWin window;
    window.show();
    const QToolBar *first = window.ui->toolBar1;
    const QToolBar *second = window.ui->toolBar2;
    const QToolBar *third = window.ui->toolBar3;
    QCOMPARE(first->windowTitle(), QString("toolBar"));
    QCOMPARE(third->windowTitle(), QString("toolBar_2"));
    QCOMPARE(second->windowTitle(), QString("toolBar_2"));
    QCOMPARE(first->y(), third->y());
    QVERIFY(first->x() < third->x());
    QVERIFY(second->y() >= first->geometry().bottom());
    QVERIFY(window.toolBarBreak(window.ui->toolBar2));
    QVERIFY(!window.toolBarBreak(window.ui->toolBar3));
}

void MainWindowTest::toolBarsStay_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"toolBar1", "toolBar2", "toolBar3"})
        QTest::newRow(name) << name;
}

void MainWindowTest::toolBarsStay()
{
    QFETCH(QString, name);
    const TonquillMainWin window;
    auto *toolBar = window.findChild<QToolBar *>(name);
    QVERIFY(toolBar);
    QVERIFY(!toolBar->isMovable());
    QVERIFY(!toolBar->isFloatable());
    QCOMPARE(toolBar->allowedAreas(), Qt::AllToolBarAreas);
    QCOMPARE(window.toolBarArea(toolBar), Qt::TopToolBarArea);
}

void MainWindowTest::toolBarIsToggled_data()
{
    QTest::addColumn<bool>("windowIsShown");
    QTest::newRow("window shown") << true;
    QTest::newRow("window hidden") << false;
}

void MainWindowTest::toolBarIsToggled()
{
    QFETCH(bool, windowIsShown);
    TonquillMainWin window;
    window.setVisible(windowIsShown);
    window.OnToolBar1ButtonSheetMusic();
    QVERIFY(window.ui->toolBar2->isHidden());
    QVERIFY(!window.ui->toolBar3->isHidden());
    window.OnToolBar1ButtonGuitarTabs();
    QVERIFY(window.ui->toolBar3->isHidden());
    window.OnToolBar1ButtonSheetMusic();
    window.OnToolBar1ButtonGuitarTabs();
    QVERIFY(!window.ui->toolBar2->isHidden());
    QVERIFY(!window.ui->toolBar3->isHidden());
    QVERIFY(!window.ui->toolBar1->isHidden());
}

void MainWindowTest::globalsAreSet()
{
    const TonquillMainWin window;
    QCOMPARE(g_pMainWin, &window);
    QCOMPARE(g_csINIPath, QCoreApplication::applicationDirPath());
}

void MainWindowTest::modesAreOff()
{
    const TonquillMainWin window;
    QVERIFY(!window.quickText);
    QVERIFY(!window.restMode);
    QCOMPARE(window.tb2Count, 20);
    QCOMPARE(window.strip2.size(), 20);
    QCOMPARE(window.strip2B.size(), 20);
    QCOMPARE(window.strip2.value(0x100).size(), QSize(window.tb2IconWidth, window.tb2IconHeight));
}

void MainWindowTest::viewShowsTheSceneFromItsTop()
{
    TonquillMainWin window;
    window.show();
    const TonquillView *view = window.view();
    QCOMPARE(view->scene(), window.scene);
    QCOMPARE(view->verticalScrollBar()->value(), 0);
    QCOMPARE(view->transform(), QTransform());
    QCOMPARE(view->alignment(), Qt::AlignTop);
    QCOMPARE(view->viewportUpdateMode(), QGraphicsView::FullViewportUpdate);
    QVERIFY(view->hasMouseTracking());
    QVERIFY(view->viewport()->hasMouseTracking());
}

void MainWindowTest::sceneHasNoParent()
{
    const TonquillMainWin window;
    QVERIFY(!window.scene->parent());
}

void MainWindowTest::windowCannotBeMinimisedOrMaximised()
{
    const TonquillMainWin window;
    QVERIFY(!(window.windowFlags() & Qt::WindowMinimizeButtonHint));
    QVERIFY(!(window.windowFlags() & Qt::WindowMaximizeButtonHint));
    QVERIFY(window.isWindow());
}

void MainWindowTest::clickGivesTheWindowFocus()
{
    const TonquillMainWin window;
    QCOMPARE(window.focusPolicy(), Qt::ClickFocus);
}

void MainWindowTest::printerWorksAtScreenResolution()
{
    TonquillMainWin window;
    const QPrinter reference(QPrinter::ScreenResolution);
    QCOMPARE(window.sharedPrinter().resolution(), reference.resolution());
}

/** The font is looked for beside the program. A copy of this one has none beside it. */
void MainWindowTest::missingFontDoesNotStopTheStart()
{
    QTemporaryDir folder;
    const QString program = folder.filePath("editor");
    const QStringList arguments{"startsWithoutAHost"};
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_LOGGING_RULES", "tonquill.debug=true");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    QVERIFY(process.waitForFinished());
    const QByteArray output = process.readAll();
    QVERIFY2(process.exitCode() == 0, output.constData());
    QVERIFY2(output.contains("add font : -1"), output.constData());
}

void MainWindowTest::firstMessageIsTheOwnDocument()
{
    TestHost host;
    TonquillMainWin window;
    QTRY_COMPARE(host.messages, QStringList{"tonquill2tw tonquill_pagecount 1\n"});
}

void MainWindowTest::startsWithoutAHost()
{
    TonquillMainWin window;
    window.show();
    QVERIFY(window.isVisible());
    QVERIFY(window.socket.state() != QLocalSocket::ConnectedState);
}

void MainWindowTest::paperIsWhiteAndInkBlackOnADarkDesktop()
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::white, QColor(30, 30, 30), Qt::white, Qt::black, Qt::gray,
                                      Qt::white, QColor(30, 30, 30)));
    {
        TonquillMainWin window;
        window.show();
        const QPoint middle = window.view()->viewport()->rect().center();
        QCOMPARE(window.view()->viewport()->grab().toImage().pixelColor(middle), QColor(Qt::white));
        const TonquillTextBlock block(false, "Verse", QRectF(0, 0, 100, 20));
        QCOMPARE(block.defaultTextColor(), QColor(Qt::black));
    }
    QApplication::setPalette(before);
}

TONQUILL_TEST_MAIN(MainWindowTest)
#include "tst_mainwindow.moc"
