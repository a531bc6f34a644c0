#include "PaintRecorder.h"
#include "PaperDocument.h"
#include "ScenePointer.h"
#include "TestMain.h"

#include <QPainter>
#include <QPainterPath>

namespace
{
QImage foreground(TonquillScene &scene)
{
    QImage image(600, 600, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setBrush(Qt::yellow);
    scene.drawForeground(&painter, QRectF());
    return image;
}

QImage nothing()
{
    QImage image(600, 600, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

/** The smallest rectangle that holds all black pixels. */
QRect blackArea(const QImage &image)
{
    QRect area;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::black))
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}
} // namespace

/** The frame that is drawn on empty space to select what lies in it. */
class RubberBandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectsWhatLiesWhollyInside_data();
    void selectsWhatLiesWhollyInside();
    void pressOnEmptySpaceDeselects();
    void bandReplacesTheSelection();
    void clickOnEmptySpaceSelectsNothing();
    void bandIsDashedWhileItIsDragged_data();
    void bandIsDashedWhileItIsDragged();
    void bandKeepsItsNegativeSize_data();
    void bandKeepsItsNegativeSize();
    void bandIsNotPrinted();
    void pageIsPaintedAnewWithIt();
    void nothingIsForwardedMeanwhile();
    void onlyTheLeftReleaseEndsIt();
    void releaseTakesTheFocus();
    void doubleClickOnEmptySpaceStartsOne();
    void startsOverAnItemOnlyBesideIt();
};

void RubberBandTest::selectsWhatLiesWhollyInside_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("selects");
    // The glyph covers (295, 295) to (305, 305), its frame 5 more.
    QTest::newRow("down right") << QPointF(200, 200) << QPointF(400, 400) << true;
    QTest::newRow("up left") << QPointF(400, 400) << QPointF(200, 200) << true;
    QTest::newRow("up right") << QPointF(200, 400) << QPointF(400, 200) << true;
    QTest::newRow("down left") << QPointF(400, 200) << QPointF(200, 400) << true;
    QTest::newRow("just inside, not the frame") << QPointF(289, 289) << QPointF(306, 306) << true;
    QTest::newRow("only touching") << QPointF(200, 200) << QPointF(300, 300) << false;
    QTest::newRow("only touching, up left") << QPointF(400, 400) << QPointF(300, 300) << false;
    QTest::newRow("one side cut") << QPointF(200, 200) << QPointF(400, 304) << false;
    QTest::newRow("beside it") << QPointF(10, 10) << QPointF(100, 100) << false;
    QTest::newRow("without a height") << QPointF(200, 280) << QPointF(400, 280) << false;
}

void RubberBandTest::selectsWhatLiesWhollyInside()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(bool, selects);
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    const TonquillBitmap *item = document.addGlyph(QPointF(300, 300));
    pointer.drag(from, to);
    QCOMPARE(item->isSelected(), selects);
    QCOMPARE(item->pos(), QPointF(300, 300));
}

void RubberBandTest::pressOnEmptySpaceDeselects()
{
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    document.addGlyph(QPointF(300, 300))->setSelected(true);
    document.addGlyph(QPointF(400, 300))->setSelected(true);
    pointer.press(QPointF(100, 100));
    QVERIFY(document.scene->selectedItems().isEmpty());
}

void RubberBandTest::bandReplacesTheSelection()
{
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    TonquillBitmap *first = document.addGlyph(QPointF(300, 300));
    TonquillBitmap *second = document.addGlyph(QPointF(400, 300));
    pointer.drag(QPointF(280, 280), QPointF(320, 320));
    QCOMPARE(document.scene->selectedItems(), QList<QGraphicsItem *>{first});
    pointer.drag(QPointF(380, 280), QPointF(420, 320));
    QCOMPARE(document.scene->selectedItems(), QList<QGraphicsItem *>{second});
    pointer.drag(QPointF(280, 280), QPointF(420, 320));
    QCOMPARE(document.scene->selectedItems().size(), 2);
}

void RubberBandTest::clickOnEmptySpaceSelectsNothing()
{
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    document.addGlyph(QPointF(300, 300))->setSelected(true);
    pointer.click(QPointF(100, 100));
    QVERIFY(document.scene->selectedItems().isEmpty());
    QCOMPARE(foreground(*document.scene), nothing());
}

void RubberBandTest::bandIsDashedWhileItIsDragged_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<QRect>("area");
    const QRect area(QPoint(100, 150), QPoint(300, 250));
    QTest::newRow("down right") << QPointF(100, 150) << QPointF(300, 250) << area;
    QTest::newRow("up left") << QPointF(300, 250) << QPointF(100, 150) << area;
    QTest::newRow("up right") << QPointF(100, 250) << QPointF(300, 150) << area;
    QTest::newRow("down left") << QPointF(300, 150) << QPointF(100, 250) << area;
}

void RubberBandTest::bandIsDashedWhileItIsDragged()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(QRect, area);
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    QCOMPARE(foreground(*document.scene), nothing());
    pointer.press(from);
    pointer.moveTo(QPointF(550, 550));
    pointer.moveTo(to);
    const QImage image = foreground(*document.scene);
    // A dash or a gap may lie on the corner pixels.
    const QRect black = blackArea(image);
    QVERIFY(area.contains(black));
    QVERIFY(black.width() >= area.width() - 4 && black.height() >= area.height() - 4);
    QCOMPARE(image.pixelColor(200, 200), QColor(Qt::white));
    int whiteOnTheTopEdge = 0;
    for (int x = area.left(); x <= area.right(); ++x)
        whiteOnTheTopEdge += image.pixelColor(x, area.top()) == QColor(Qt::white);
    QVERIFY(whiteOnTheTopEdge > 20);
    pointer.release(to);
    QCOMPARE(foreground(*document.scene), nothing());
}

void RubberBandTest::bandKeepsItsNegativeSize_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<QRectF>("band");
    QTest::newRow("down right") << QPointF(100, 150) << QPointF(300, 250)
                                << QRectF(100, 150, 200, 100);
    QTest::newRow("up left") << QPointF(300, 250) << QPointF(100, 150)
                             << QRectF(300, 250, -200, -100);
    QTest::newRow("up right") << QPointF(100, 250) << QPointF(300, 150)
                              << QRectF(100, 250, 200, -100);
    QTest::newRow("down left") << QPointF(300, 150) << QPointF(100, 250)
                               << QRectF(300, 150, -200, 100);
}

/** It is drawn, and selects, from where it was begun to where the pointer is. */
void RubberBandTest::bandKeepsItsNegativeSize()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(QRectF, band);
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    pointer.press(from);
    pointer.moveTo(QPointF(550, 550));
    pointer.moveTo(to);
    RecordingScreen screen(600, 600, QImage::Format_RGB32);
    QPainter painter(&screen);
    document.scene->drawForeground(&painter, QRectF());
    QCOMPARE(screen.recorder().rects, QList<QRectF>{band});
    QCOMPARE(screen.recorder().pens.constFirst().color(), QColor(Qt::black));
    QCOMPARE(screen.recorder().pens.constFirst().style(), Qt::DashLine);
    pointer.release(to);
    QPainterPath selecting;
    selecting.addRect(band);
    QCOMPARE(document.scene->selectionArea(), selecting);
}

void RubberBandTest::bandIsNotPrinted()
{
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    pointer.press(QPointF(100, 100));
    pointer.moveTo(QPointF(200, 200));
    RecordingPrinter printer;
    QPainter painter(&printer);
    document.scene->drawForeground(&painter, QRectF());
    QCOMPARE(printer.recorder().rects.size(), 0);
}

/** Each move shows the band at its new size, and its end takes it away. */
void RubberBandTest::pageIsPaintedAnewWithIt()
{
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    QSignalSpy painted(document.scene.get(), &QGraphicsScene::changed);
    pointer.press(QPointF(100, 100));
    QCoreApplication::processEvents();
    painted.clear();
    pointer.moveTo(QPointF(200, 200));
    QTRY_VERIFY(!painted.isEmpty());
    QCoreApplication::processEvents();
    painted.clear();
    pointer.release(QPointF(200, 200));
    QTRY_VERIFY(!painted.isEmpty());
}

void RubberBandTest::nothingIsForwardedMeanwhile()
{
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    TonquillBitmap *item = document.addGlyph(QPointF(300, 300));
    pointer.press(QPointF(100, 100));
    item->setSelected(true);
    pointer.press(QPointF(300, 300), Qt::RightButton);
    pointer.release(QPointF(300, 300), Qt::RightButton);
    pointer.moveTo(QPointF(200, 200));
    QCOMPARE(item->pos(), QPointF(300, 300));
    pointer.release(QPointF(200, 200));
    QVERIFY(!item->isSelected());
}

void RubberBandTest::onlyTheLeftReleaseEndsIt()
{
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    const TonquillBitmap *item = document.addGlyph(QPointF(300, 300));
    pointer.press(QPointF(200, 200));
    pointer.moveTo(QPointF(400, 400));
    pointer.press(QPointF(400, 400), Qt::MiddleButton);
    pointer.release(QPointF(400, 400), Qt::MiddleButton);
    QVERIFY(!item->isSelected());
    QVERIFY(foreground(*document.scene) != nothing());
    pointer.release(QPointF(400, 400));
    QVERIFY(item->isSelected());
}

void RubberBandTest::releaseTakesTheFocus()
{
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    // As the view of an active window tells it; an inactive scene only remembers a focus.
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(document.scene.get(), &activation);
    TonquillBitmap *item = document.addGlyph(QPointF(300, 300));
    item->setFlag(QGraphicsItem::ItemIsFocusable);
    item->setFocus();
    QCOMPARE(document.scene->focusItem(), item);
    pointer.drag(QPointF(200, 200), QPointF(400, 400));
    QVERIFY(!document.scene->focusItem());
    QVERIFY(item->isSelected());
}

void RubberBandTest::doubleClickOnEmptySpaceStartsOne()
{
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    TonquillBitmap *item = document.addGlyph(QPointF(300, 300));
    item->setSelected(true);
    pointer.pressTwice(QPointF(200, 200));
    QVERIFY(!item->isSelected());
    pointer.moveTo(QPointF(400, 400));
    QVERIFY(foreground(*document.scene) != nothing());
    pointer.release(QPointF(400, 400));
    QVERIFY(item->isSelected());
}

void RubberBandTest::startsOverAnItemOnlyBesideIt()
{
    PaperDocument document;
    ScenePointer pointer(*document.scene);
    const TonquillBitmap *item = document.addGlyph(QPointF(300, 300));
    // The frame covers (290, 290) to (310, 310).
    pointer.press(QPointF(309, 300));
    QVERIFY(item->isSelected());
    pointer.release(QPointF(309, 300));
    pointer.press(QPointF(311, 300));
    QVERIFY(!item->isSelected());
}

TONQUILL_TEST_MAIN(RubberBandTest)
#include "tst_rubberband.moc"
