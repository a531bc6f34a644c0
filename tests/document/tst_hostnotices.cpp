#include "ScenePointer.h"
#include "TestHost.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillVectorInteractiveLine.h"

#include <QGraphicsRectItem>

namespace
{
using Act = void (*)(TonquillMainWin &window, ScenePointer &pointer);

constexpr QPointF placeOfGlyph(300, 300);
constexpr QPointF startOfLine(100, 500);
constexpr QPointF endOfLine(200, 500);
constexpr QPointF placeOfPlain(600, 600);
constexpr QPointF emptySpace(500, 100);

/** A placed glyph, a placed line and a plain item. */
void fill(TonquillScene &scene)
{
    QPixmap picture(40, 40);
    picture.fill(Qt::black);
    auto *glyph = new TonquillBitmap(picture, 2, false, QPixmap());
    scene.addNewItem(glyph);
    glyph->setPos(placeOfGlyph);
    auto *line = new TonquillVectorInteractiveLine(false, QPointF(0, 0), endOfLine - startOfLine);
    scene.addNewItem(line);
    line->setPos(startOfLine);
    scene.addRect(QRectF(-20, -20, 40, 40))->setPos(placeOfPlain);
}

void rubberBand(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.drag(QPointF(10, 10), QPointF(700, 700));
}

void clickOnThePage(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.click(emptySpace);
}

void doubleClickOnThePage(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.doubleClick(emptySpace);
}

void clickOnAnItem(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.click(placeOfGlyph);
}

void twoClicksOnAnItem(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.click(placeOfGlyph);
    pointer.click(placeOfGlyph);
}

void dragOfAnItem(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.drag(placeOfGlyph, emptySpace);
}

void pressAndMove(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.press(placeOfGlyph);
    pointer.moveTo(emptySpace);
}

void clickOnAPlainItem(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.click(placeOfPlain);
}

void releaseOfAnotherPress(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.release(emptySpace);
}

void doubleClickOnAnItem(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.doubleClick(placeOfGlyph);
}

void rightClickOnAnItem(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.click(placeOfGlyph, Qt::RightButton);
}

void rightClickOnThePage(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.click(emptySpace, Qt::RightButton);
}

void middleClickOnAnItem(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.click(placeOfGlyph, Qt::MiddleButton);
}

void placingOfAGlyph(TonquillMainWin &window, ScenePointer &pointer)
{
    window.InsertBitmapSymbol(2, true, false);
    pointer.click(emptySpace);
}

void firstClickOfALine(TonquillMainWin &window, ScenePointer &pointer)
{
    window.OnToolBar3ButtonInteractiveLine();
    pointer.click(emptySpace);
}

void bothClicksOfALine(TonquillMainWin &window, ScenePointer &pointer)
{
    firstClickOfALine(window, pointer);
    pointer.click(emptySpace + QPointF(100, 50));
}

void resizingOfALine(TonquillMainWin &, ScenePointer &pointer)
{
    pointer.drag(endOfLine, endOfLine + QPointF(80, 0));
}
} // namespace

Q_DECLARE_METATYPE(Act)

/** How often the host is told of what is done with the pointer. */
class HostNoticesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pointerTellsTheHost_data();
    void pointerTellsTheHost();
    void noticeHoldsTheDocumentAfterTheEdit();
    void releaseOverAnUnfinishedAnchorIsNoEdit();

private:
    int documentsSent(TonquillMainWin &window, TestHost &host);
};

/** The documents that came, up to a command that is sent behind them. */
int HostNoticesTest::documentsSent(TonquillMainWin &window, TestHost &host)
{
    window.OnToolBar1ButtonUndo();
    const bool cameAll =
        QTest::qWaitFor([&host] { return host.messages.join(QString()).endsWith("command:undo"); });
    const QString all = host.messages.join(QString());
    host.messages.clear();
    return cameAll ? int(all.count("tonquill2tw tonquill_pagecount")) : -1;
}

void HostNoticesTest::pointerTellsTheHost_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("documents");
    QTest::newRow("rubber band") << Act(rubberBand) << 0;
    QTest::newRow("click on the page") << Act(clickOnThePage) << 0;
    QTest::newRow("double click on the page") << Act(doubleClickOnThePage) << 0;
    QTest::newRow("click on an item") << Act(clickOnAnItem) << 1;
    QTest::newRow("two clicks on an item") << Act(twoClicksOnAnItem) << 2;
    QTest::newRow("drag of an item") << Act(dragOfAnItem) << 1;
    QTest::newRow("press and move") << Act(pressAndMove) << 0;
    QTest::newRow("click on a plain item") << Act(clickOnAPlainItem) << 1;
    QTest::newRow("release of a press elsewhere") << Act(releaseOfAnotherPress) << 1;
    QTest::newRow("double click on an item") << Act(doubleClickOnAnItem) << 1;
    QTest::newRow("right click on an item") << Act(rightClickOnAnItem) << 0;
    QTest::newRow("right click on the page") << Act(rightClickOnThePage) << 0;
    QTest::newRow("middle click on an item") << Act(middleClickOnAnItem) << 0;
    QTest::newRow("placing of a glyph") << Act(placingOfAGlyph) << 1;
    QTest::newRow("first click of a line") << Act(firstClickOfALine) << 0;
    QTest::newRow("both clicks of a line") << Act(bothClicksOfALine) << 1;
    QTest::newRow("resizing of a line") << Act(resizingOfALine) << 1;
}

void HostNoticesTest::pointerTellsTheHost()
{
    QFETCH(Act, act);
    QFETCH(int, documents);
    TestHost host;
    TonquillMainWin window;
    QTRY_COMPARE(host.messages.size(), 1);
    host.messages.clear();
    fill(*window.scene);
    ScenePointer pointer(*window.scene);
    act(window, pointer);
    QCOMPARE(documentsSent(window, host), documents);
}

void HostNoticesTest::noticeHoldsTheDocumentAfterTheEdit()
{
    TestHost host;
    TonquillMainWin window;
    QTRY_COMPARE(host.messages.size(), 1);
    ScenePointer pointer(*window.scene);
    window.InsertBitmapSymbol(19, true, true);
    pointer.click(QPointF(120.5, 300));
    QTRY_COMPARE(host.messages.value(1),
                 QString("tonquill2tw tonquill_pagecount 1\ntonquill_bitmap 19 120 300 0\n"));
}

/** The line waits for its end point; the release over its start was not the end of an edit. */
void HostNoticesTest::releaseOverAnUnfinishedAnchorIsNoEdit()
{
    TestHost host;
    TonquillMainWin window;
    QTRY_COMPARE(host.messages.size(), 1);
    host.messages.clear();
    ScenePointer pointer(*window.scene);
    firstClickOfALine(window, pointer);
    QGraphicsItem *line = window.scene->selectedItems().value(0);
    QCOMPARE(dynamic_cast<QObject *>(line)->property("itemStatus").toInt(), 4);
    QCOMPARE(documentsSent(window, host), 0);
    pointer.click(emptySpace + QPointF(100, 50));
    QCOMPARE(dynamic_cast<QObject *>(line)->property("itemStatus").toInt(), 0);
    QCOMPARE(documentsSent(window, host), 1);
}

TONQUILL_TEST_MAIN(HostNoticesTest)
#include "tst_hostnotices.moc"
