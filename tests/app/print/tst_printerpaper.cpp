#include "PdfFile.h"
#include "PrinterPaper.h"

#include <QPainter>
#include <QPrinter>

/** The layout that printers are asked for, and where a frame lies on what they make of it. */
class PrinterPaperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layoutHasTheSheetAndItsMargins();
    void wideSheetsLieOnTheirSide();
    void impossibleMarginsAreLeftOut_data();
    void impossibleMarginsAreLeftOut();
    void wideMarginsOfAPrinterMoveNothing_data();
    void wideMarginsOfAPrinterMoveNothing();
    void sheetsThatAreTooSmallTakeNoFrame();
};

void PrinterPaperTest::layoutHasTheSheetAndItsMargins()
{
    const QPageLayout layout =
        PrinterPaper::layoutOf(QSizeF(8.5, 11), QRectF(0.5, 0.75, 7.75, 9.25));
    QCOMPARE(layout.pageSize().id(), QPageSize::Letter);
    QCOMPARE(layout.orientation(), QPageLayout::Portrait);
    // 0.5, 0.75, 8.5 - 8.25 and 11 - 10 inches of 72 points.
    QCOMPARE(layout.margins(QPageLayout::Point), QMarginsF(36, 54, 18, 72));
}

void PrinterPaperTest::wideSheetsLieOnTheirSide()
{
    const QPageLayout layout =
        PrinterPaper::layoutOf(QSizeF(11.69, 8.27), QRectF(0.5, 0.75, 10, 7));
    QCOMPARE(layout.pageSize().id(), QPageSize::A4);
    QCOMPARE(layout.orientation(), QPageLayout::Landscape);
    QCOMPARE(layout.fullRectPoints().size(), QSize(842, 595));
    // Right 11.69 - 10.5 = 1.19 inches are 85.68 points, below 8.27 - 7.75 = 0.52 are 37.44.
    QCOMPARE(layout.margins(QPageLayout::Point), QMarginsF(36, 54, 85.68, 37.44));
}

void PrinterPaperTest::impossibleMarginsAreLeftOut_data()
{
    QTest::addColumn<QRectF>("frame");
    QTest::newRow("no frame") << QRectF();
    QTest::newRow("a frame without width") << QRectF(2, 2, 0, 5);
    QTest::newRow("a frame beyond the sheet") << QRectF(9, 2, 3, 5);
}

void PrinterPaperTest::impossibleMarginsAreLeftOut()
{
    QFETCH(QRectF, frame);
    const QPageLayout layout = PrinterPaper::layoutOf(QSizeF(8.5, 11), frame);
    QVERIFY(layout.isValid());
    QCOMPARE(layout.paintRectPoints(), QRect(0, 0, 612, 792));
    QVERIFY(PrinterPaper::placeOf(frame, layout, layout, 96).isNull());
}

void PrinterPaperTest::wideMarginsOfAPrinterMoveNothing_data()
{
    QTest::addColumn<double>("margin");
    QTest::newRow("as asked for") << 36.0;
    QTest::newRow("wider") << 90.0;
    QTest::newRow("none") << 0.0;
}

/** Some printers cannot print near the edge of the sheet and widen what is asked for. */
void PrinterPaperTest::wideMarginsOfAPrinterMoveNothing()
{
    QFETCH(double, margin);
    const QTemporaryDir folder;
    const QRectF frame(0.5, 0.5, 7.5, 10);
    const QPageLayout own = PrinterPaper::layoutOf(QSizeF(8.5, 11), frame);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFileName(folder.filePath("frame.pdf"));
    printer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                                      QMarginsF(margin, margin, margin, margin)));
    QPainter painter(&printer);
    painter.fillRect(PrinterPaper::placeOf(frame, own, printer.pageLayout(), printer.resolution()),
                     Qt::black);
    painter.end();
    // What lies within the printer's margins is on the sheet: 0.5 inches of 288 dots and so on.
    const QRectF sheet(margin / 72, margin / 72, 8.5 - margin / 36, 11 - margin / 36);
    const QRectF ink = PdfFile(printer.outputFileName()).ink(1).intersected(sheet);
    const QRectF expected = frame.intersected(sheet);
    constexpr double dot = 1.0 / PdfFile::measuredDpi;
    QVERIFY(std::abs(ink.left() - expected.left()) <= dot);
    QVERIFY(std::abs(ink.top() - expected.top()) <= dot);
    QVERIFY(std::abs(ink.right() - expected.right()) <= dot);
    QVERIFY(std::abs(ink.bottom() - expected.bottom()) <= dot);
}

void PrinterPaperTest::sheetsThatAreTooSmallTakeNoFrame()
{
    const QRectF frame(0.5, 0.5, 7.27, 10.69);
    const QPageLayout own = PrinterPaper::layoutOf(QSizeF(8.27, 11.69), frame);
    const QPageLayout small(QPageSize(QPageSize::A5), QPageLayout::Portrait, QMarginsF());
    const QPageLayout large(QPageSize(QPageSize::A3), QPageLayout::Portrait, QMarginsF());
    QVERIFY(PrinterPaper::placeOf(frame, own, small, 100).isNull());
    QCOMPARE(PrinterPaper::placeOf(frame, own, large, 100), QRectF(50, 50, 727, 1069));
}

QTEST_MAIN(PrinterPaperTest)
#include "tst_printerpaper.moc"
