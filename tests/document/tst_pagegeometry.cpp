#include "PaperDocument.h"
#include "TestMain.h"

#include <QPainter>

namespace
{
const QColor outline(192, 192, 192);

/** The first pages of a scene's background, one pixel a scene unit. */
QImage background(TonquillScene &scene, const QRectF &exposed = QRectF())
{
    QImage image(800, 3300, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    scene.drawBackground(&painter, exposed);
    return image;
}
} // namespace

/** Where pages lie and how they are outlined. */
class PageGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paperGivesPages_data();
    void paperGivesPages();
    void printableAreaLiesInsideTheMargins();
    void firstSceneHasOnePage();
    void pageSetupAfterwardsChangesNothing();
    void pageAtAPoint_data();
    void pageAtAPoint();
    void pageAtAPointOnA4_data();
    void pageAtAPointOnA4();
    void onlyTheHeightOfAPointCounts();
    void topOfAPage_data();
    void topOfAPage();
    void everyPageIsOutlined();
    void outlinesLeaveThePainterAlone();
    void outlineKeepsTheBrush();
};

void PageGeometryTest::paperGivesPages_data()
{
    QTest::addColumn<QPageSize::PageSizeId>("paper");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<double>("spacing");
    QTest::addColumn<double>("pitch");
    // Letter is 8.5 by 11 inches: 8.5 x 88, 11 x 90, a twentieth of that, and the last two.
    QTest::newRow("Letter") << QPageSize::Letter << 748.0 << 990.0 << 49.5 << 1039.5;
    // A4 is 8.27 by 11.69 inches.
    QTest::newRow("A4") << QPageSize::A4 << 727.76 << 1052.1 << 52.605 << 1104.705;
}

void PageGeometryTest::paperGivesPages()
{
    QFETCH(QPageSize::PageSizeId, paper);
    QFETCH(double, width);
    QFETCH(double, height);
    QFETCH(double, spacing);
    QFETCH(double, pitch);
    const PaperDocument document(paper);
    QCOMPARE(document.scene->paperRect, QRectF(0, 0, width, height));
    QCOMPARE(document.scene->pageSpacing, spacing);
    QCOMPARE(document.scene->pagePitch(), pitch);
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, width, pitch));
}

void PageGeometryTest::printableAreaLiesInsideTheMargins()
{
    const PaperDocument document(QPageSize::Letter, 1, QMarginsF(0.5, 0.75, 0.25, 1.0));
    // From (0.5 x 88, 0.75 x 90) to ((8.5 - 0.25) x 88, (11 - 1) x 90) = (726, 900).
    QCOMPARE(document.scene->pageRect, QRectF(44, 67.5, 726 - 44, 900 - 67.5));
}

void PageGeometryTest::firstSceneHasOnePage()
{
    const TonquillMainWin window;
    QCOMPARE(window.pageCount, 1);
    const double height = window.scene->paperRect.height();
    QCOMPARE(window.scene->sceneRect(),
             QRectF(0, 0, window.scene->paperRect.width(), 1.05 * height));
}

void PageGeometryTest::pageSetupAfterwardsChangesNothing()
{
    const PaperDocument document(QPageSize::Letter);
    document.scene->setPageNum(2);
    g_pMainWin->sharedPrinter().setPageSize(QPageSize(QPageSize::A5));
    document.scene->addPage();
    QCOMPARE(document.scene->paperRect, QRectF(0, 0, 748, 990));
    QCOMPARE(document.scene->sceneRect(), QRectF(0, 0, 748, 3 * 1039.5));
}

void PageGeometryTest::pageAtAPoint_data()
{
    QTest::addColumn<double>("y");
    QTest::addColumn<int>("page");
    // 0.75 x 990 + 49.5 = 792.
    QTest::newRow("top of the first") << 0.0 << 1;
    QTest::newRow("just above the lowest quarter and the gap's height") << 791.999 << 1;
    QTest::newRow("at that height") << 792.0 << 2;
    QTest::newRow("lowest quarter") << 980.0 << 2;
    QTest::newRow("gap") << 1000.0 << 2;
    QTest::newRow("top of the second") << 1039.5 << 2;
    QTest::newRow("end of the second") << 792.0 + 1039.499 << 2;
    QTest::newRow("third by a lowest quarter") << 792.0 + 1039.5 << 3;
    // (247.5 - 247.5) / P + 1 = 1; below that the fraction is dropped, towards zero.
    QTest::newRow("a quarter page above the first") << -247.5 << 1;
    QTest::newRow("further above") << -247.6 << 0;
    QTest::newRow("two pages above") << -247.5 - 2 * 1039.5 << -1;
}

void PageGeometryTest::pageAtAPoint()
{
    QFETCH(double, y);
    QFETCH(int, page);
    const PaperDocument document(QPageSize::Letter);
    QCOMPARE(document.scene->getPageAt(QPointF(0, y)), page);
}

void PageGeometryTest::pageAtAPointOnA4_data()
{
    QTest::addColumn<double>("y");
    QTest::addColumn<int>("page");
    // 0.75 x 1052.1 + 52.605 = 841.68.
    QTest::newRow("above") << 841.679 << 1;
    QTest::newRow("below") << 841.681 << 2;
    QTest::newRow("above, a page further") << 841.679 + 1104.705 << 2;
    QTest::newRow("below, a page further") << 841.681 + 1104.705 << 3;
}

void PageGeometryTest::pageAtAPointOnA4()
{
    QFETCH(double, y);
    QFETCH(int, page);
    const PaperDocument document(QPageSize::A4);
    QCOMPARE(document.scene->getPageAt(QPointF(0, y)), page);
}

void PageGeometryTest::onlyTheHeightOfAPointCounts()
{
    const PaperDocument document;
    QCOMPARE(document.scene->getPageAt(QPointF(-5000, 100)), 1);
    QCOMPARE(document.scene->getPageAt(QPointF(5000, 1500)), 2);
}

void PageGeometryTest::topOfAPage_data()
{
    QTest::addColumn<QPageSize::PageSizeId>("paper");
    QTest::addColumn<int>("page");
    QTest::addColumn<float>("top");
    QTest::newRow("Letter, first") << QPageSize::Letter << 1 << 0.0F;
    QTest::newRow("Letter, third") << QPageSize::Letter << 3 << 2079.0F;
    QTest::newRow("Letter, before the first") << QPageSize::Letter << 0 << -1039.5F;
    QTest::newRow("A4, third") << QPageSize::A4 << 3 << 2209.41F;
    // Reckoned in double and rounded once: 10000 x 1104.705.
    QTest::newRow("A4, far down") << QPageSize::A4 << 10001 << 11047050.0F;
}

void PageGeometryTest::topOfAPage()
{
    QFETCH(QPageSize::PageSizeId, paper);
    QFETCH(int, page);
    QFETCH(float, top);
    const PaperDocument document(paper);
    QVERIFY(document.scene->getCoordByPageNum(page) == top);
}

void PageGeometryTest::everyPageIsOutlined()
{
    const PaperDocument document(QPageSize::Letter, 3, QMarginsF(0.5, 1, 0.5, 1));
    const QImage image = background(*document.scene);
    // Whatever part is asked for, all that can be seen in it is there.
    for (const QRect part : {QRect(0, 0, 10, 10), QRect(0, 980, 748, 120), QRect(0, 2070, 748, 20),
                             QRect(700, 1500, 40, 800)})
        QCOMPARE(background(*document.scene, QRectF(part)).copy(part), image.copy(part));
    // Tops at 0, 1039.5 (drawn on the pixel above or below) and 2079.
    for (const int top : {0, 2079}) {
        QCOMPARE(image.pixelColor(300, top), outline);
        QCOMPARE(image.pixelColor(300, top + 990), outline);
        QCOMPARE(image.pixelColor(0, top + 500), outline);
        QCOMPARE(image.pixelColor(748, top + 500), outline);
        // The printable area: from (44, 90) to (704, 900).
        QCOMPARE(image.pixelColor(300, top + 90), outline);
        QCOMPARE(image.pixelColor(300, top + 900), outline);
        QCOMPARE(image.pixelColor(44, top + 500), outline);
        QCOMPARE(image.pixelColor(704, top + 500), outline);
        QCOMPARE(image.pixelColor(300, top + 500), QColor(Qt::white));
        QCOMPARE(image.pixelColor(300, top + 1010), QColor(Qt::white));
    }
    QCOMPARE(image.pixelColor(0, 1500), outline);
    QVERIFY(image.pixelColor(300, 1039) == outline || image.pixelColor(300, 1040) == outline);
    QCOMPARE(image.pixelColor(0, 3118 + 100), QColor(Qt::white));
}

void PageGeometryTest::outlinesLeaveThePainterAlone()
{
    const PaperDocument document;
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::red, 3));
    document.scene->drawBackground(&painter, QRectF());
    QCOMPARE(painter.pen(), QPen(Qt::red, 3));
}

void PageGeometryTest::outlineKeepsTheBrush()
{
    const PaperDocument document;
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setBrush(Qt::yellow);
    document.scene->DrawPageBoundary(&painter, 0);
    QCOMPARE(painter.brush(), QBrush(Qt::yellow));
    QCOMPARE(painter.pen().color(), outline);
    QCOMPARE(painter.pen().style(), Qt::SolidLine);
    QCOMPARE(painter.pen().widthF(), 0.0);
    QVERIFY(painter.pen().isCosmetic());
}

TONQUILL_TEST_MAIN(PageGeometryTest)
#include "tst_pagegeometry.moc"
