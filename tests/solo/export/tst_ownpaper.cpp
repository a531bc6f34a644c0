#include "DocumentFile.h"
#include "Exporter.h"
#include "ModalAnswer.h"
#include "PreviewPaper.h"
#include "SoloTestMain.h"
#include "SoloWindow.h"
#include "TonquillScene.h"

#include <QPrintPreviewDialog>
#include <QSvgRenderer>

namespace
{
constexpr int dotsPerInch = PdfFile::measuredDpi;

/** Lines are 1/96 inch wide; the other half is what they are rounded to. */
constexpr double lineWidth = 1.5 / 96;

/** A sheet and its frame in inches, as a file has them and as they are worked out by hand. */
struct TestPaper
{
    QSizeF sheet;
    QRectF frame;
};

const TestPaper narrow{{8.27, 11.69}, {2, 2, 4.27, 7.69}}; // two inches all round on A4
const TestPaper a5{{5.83, 8.27}, {0.5, 0.5, 4.83, 7.27}};
const TestPaper uneven{{8.5, 11}, {0.5, 0.75, 7.75, 9.25}};
const TestPaper landscape{{11.69, 8.27}, {1, 0.5, 9, 7}};

/** 88 scene units an inch across, 90 down. */
QRectF inUnits(const QRectF &inches)
{
    return QRectF(inches.left() * 88, inches.top() * 90, inches.width() * 88, inches.height() * 90);
}

/** The page's frame with 2 scene units on every side fills the frame on the sheet. */
QRectF onSheet(const QRectF &units, const TestPaper &paper)
{
    const QRectF source = inUnits(paper.frame).adjusted(-2, -2, 2, 2);
    const double across = paper.frame.width() / source.width();
    const double down = paper.frame.height() / source.height();
    return QRectF(paper.frame.left() + (units.left() - source.left()) * across,
                  paper.frame.top() + (units.top() - source.top()) * down, units.width() * across,
                  units.height() * down);
}

bool areClose(const QRectF &a, const QRectF &b)
{
    return std::abs(a.left() - b.left()) <= lineWidth &&
           std::abs(a.right() - b.right()) <= lineWidth &&
           std::abs(a.top() - b.top()) <= lineWidth &&
           std::abs(a.bottom() - b.bottom()) <= lineWidth;
}

QRectF inkInches(const QImage &sheet, int lightest = 128)
{
    const QRectF ink = inkOf(sheet, lightest);
    return QRectF(ink.topLeft() / dotsPerInch, ink.size() / dotsPerInch);
}

/** A drawing without the outline of its sheet, which alone lies at the sheet's very edge. */
QImage withoutEdge(const QImage &sheet)
{
    constexpr int edge = dotsPerInch / 10;
    const QRect inner = sheet.rect().adjusted(edge, edge, -edge, -edge);
    QImage result(sheet.size(), QImage::Format_RGB32);
    result.fill(Qt::white);
    QPainter(&result).drawImage(inner, sheet, inner);
    return result;
}

QByteArray describe(const QRectF &actual, const QRectF &expected)
{
    QString text;
    QDebug(&text) << "ink at" << actual << "instead of" << expected << "(inches)";
    return text.toUtf8();
}
} // namespace

Q_DECLARE_METATYPE(TestPaper)

#define VERIFY_INK(actual, expected)                                                               \
    QVERIFY2(areClose(actual, expected), describe(actual, expected))

/** What is printed, previewed and exported of a file has the paper and the frame of the file. */
class OwnPaperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyWayOutHasTheFrameOfTheFile_data();
    void everyWayOutHasTheFrameOfTheFile();
    void everyPageLiesOnItsOwnSheet();
    void pagesLieAsFarApartAsTheirPaperIsHigh();
    void crossedBlocksAreInEveryExport_data();
    void crossedBlocksAreInEveryExport();
    void everyDocumentHasItsOwnPaper();
    void aChosenPageSetupHoldsUntilTheNextDocument();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    TonquillMainWin &window() { return m_solo->window(); }
    void open(const TestPaper &paper, const QStringList &items, int pages = 1);
    PdfFile printed();
    PdfFile exported();
    QImage png(int page = 1);
    QImage svg(int page = 1);
    QImage previewed();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SoloWindow> m_solo;
};

/** A program whose printer is set to A4 with margins of 10 points. */
void OwnPaperTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_solo = std::make_unique<SoloWindow>(m_folder->path());
    QPrinter &printer = window().sharedPrinter();
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageMargins(QMarginsF(10, 10, 10, 10), QPageLayout::Point);
    m_solo->show();
}

void OwnPaperTest::cleanup()
{
    m_solo->session().close();
    m_solo.reset();
    m_folder.reset();
}

/** Opens a file on this paper with these lines for items. */
void OwnPaperTest::open(const TestPaper &paper, const QStringList &items, int pages)
{
    const QRectF frame = inUnits(paper.frame);
    QFile file(path("song.tonquill"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QString("tonquill-document 1\ntonquill_pagecount %1\n"
                       "tonquill_paper %2 %3 %4 %5 %6 %7\n%8\ntonquill-end\n")
                   .arg(pages)
                   .arg(paper.sheet.width() * 88)
                   .arg(paper.sheet.height() * 90)
                   .arg(frame.left())
                   .arg(frame.top())
                   .arg(frame.width())
                   .arg(frame.height())
                   .arg(items.join(u'\n'))
                   .toUtf8());
    file.close();
    m_solo->files().openFile(file.fileName());
    QCOMPARE(m_solo->session().path(), file.fileName());
}

PdfFile OwnPaperTest::printed()
{
    QPrinter &printer = window().sharedPrinter();
    printer.setOutputFileName(path("printed.pdf"));
    window().print(&printer);
    return PdfFile(path("printed.pdf"));
}

PdfFile OwnPaperTest::exported()
{
    const QString error = Exporter(window()).write(path("song.pdf"), ExportOptions());
    return PdfFile(error.isEmpty() ? path("song.pdf") : error);
}

QImage OwnPaperTest::png(int page)
{
    Exporter(window()).write(path("song.png"), ExportOptions{page, dotsPerInch});
    return QImage(path("song.png"));
}

/** The drawing as another program shows it. */
QImage OwnPaperTest::svg(int page)
{
    Exporter(window()).write(path("song.svg"), ExportOptions{page, dotsPerInch});
    QSvgRenderer renderer(path("song.svg"));
    // Drawings have 600 dots to the inch.
    QImage image((QSizeF(renderer.viewBoxF().size()) * dotsPerInch / 600).toSize(),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    renderer.render(&painter);
    return withoutEdge(image);
}

/** The only page of the preview, as fine as the others. */
QImage OwnPaperTest::previewed()
{
    QImage paper;
    ModalAnswer::whenOpen<QPrintPreviewDialog>([&paper](QPrintPreviewDialog &dialog) {
        paper = paperIn(*dialog.findChild<QPrintPreviewWidget *>());
    });
    window().OnToolBar1ButtonPrintPreview();
    return paper;
}

void OwnPaperTest::everyWayOutHasTheFrameOfTheFile_data()
{
    QTest::addColumn<TestPaper>("paper");
    QTest::newRow("two inches on the printer's paper") << narrow;
    QTest::newRow("smaller than the printer's paper") << a5;
    QTest::newRow("uneven margins") << uneven;
    QTest::newRow("landscape") << landscape;
}

void OwnPaperTest::everyWayOutHasTheFrameOfTheFile()
{
    QFETCH(TestPaper, paper);
    // Two staves from (220, 300) to (420, 400).
    open(paper, {"tonquill_grandstaff 220 300 0 0 200 100"});
    const QRectF staves = onSheet(QRectF(220, 300, 200, 100), paper);
    const QSizeF points(std::round(paper.sheet.width() * 72),
                        std::round(paper.sheet.height() * 72));

    const PdfFile onPrinter = printed();
    QCOMPARE(onPrinter.pageSizes(), QList<QSizeF>{points});
    VERIFY_INK(onPrinter.ink(1), staves);
    const QRectF outline = onSheet(inUnits(paper.frame), paper);
    VERIFY_INK(onPrinter.inkOfAnyShade(1), outline);
    const PdfFile inPdf = exported();
    QCOMPARE(inPdf.pageSizes(), QList<QSizeF>{points});
    VERIFY_INK(inPdf.ink(1), staves);
    VERIFY_INK(inPdf.inkOfAnyShade(1), outline);

    const QSize dots = QSize(qRound(paper.sheet.width() * dotsPerInch),
                             qRound(paper.sheet.height() * dotsPerInch));
    const QImage picture = png();
    QCOMPARE(picture.size(), dots);
    VERIFY_INK(inkInches(picture), staves);
    VERIFY_INK(inkInches(picture, 224), outline);
    const QImage drawing = svg();
    QVERIFY(std::abs(drawing.width() - dots.width()) <= 1);
    QVERIFY(std::abs(drawing.height() - dots.height()) <= 1);
    VERIFY_INK(inkInches(drawing), staves);
    VERIFY_INK(inkInches(drawing, 224), outline);

    // The preview shows 96 dots to the inch three times as large.
    const QImage preview = previewed();
    QVERIFY(std::abs(preview.width() - dots.width()) <= 6);
    VERIFY_INK(inkInches(preview), staves);
}

/** Of a drawing or picture of page 2, nothing lies where page 1 has it, nor the other way round. */
void OwnPaperTest::everyPageLiesOnItsOwnSheet()
{
    // Page 2 begins at 1.05 x 11.69 x 90 = 1104.705.
    open(
        narrow,
        {"tonquill_grandstaff 220 300 0 0 200 100", "tonquill_grandstaff 260 1604.705 0 0 100 100"},
        3);
    const QRectF first = onSheet(QRectF(220, 300, 200, 100), narrow);
    const QRectF second = onSheet(QRectF(260, 500, 100, 100), narrow);
    const PdfFile pdf = exported();
    QCOMPARE(pdf.pageCount(), 3);
    VERIFY_INK(pdf.ink(1), first);
    VERIFY_INK(pdf.ink(2), second);
    // The grey outline of its frame is on every page, and no other's.
    const QRectF outline = onSheet(inUnits(narrow.frame), narrow);
    for (const auto &[page, ink] : {std::pair(1, first), std::pair(2, second)}) {
        VERIFY_INK(pdf.inkOfAnyShade(page), outline);
        const QImage picture = png(page);
        VERIFY_INK(inkInches(picture), ink);
        VERIFY_INK(inkInches(picture, 224), outline);
        const QImage drawing = svg(page);
        VERIFY_INK(inkInches(drawing), ink);
        VERIFY_INK(inkInches(drawing, 224), outline);
    }
    QCOMPARE(inkOf(svg(3)), QRectF());
}

/** The second page of A5 begins at 1.05 x 8.27 x 90 = 781.515, wherever the last paper had it. */
void OwnPaperTest::pagesLieAsFarApartAsTheirPaperIsHigh()
{
    open(a5, {"tonquill_grandstaff 60 981.515 0 0 200 100"}, 2);
    const TonquillScene &scene = *window().scene;
    QCOMPARE(scene.paperRect.size(), QSizeF(5.83 * 88, 8.27 * 90));
    QCOMPARE(scene.pageRect, inUnits(a5.frame));
    QCOMPARE(scene.pageSpacing, 0.05 * 8.27 * 90);
    QCOMPARE(scene.sceneRect(), QRectF(0, 0, 5.83 * 88, 2 * 781.515));
    const QRectF staves = onSheet(QRectF(60, 200, 200, 100), a5);
    VERIFY_INK(printed().ink(2), staves);
    QCOMPARE(printed().ink(1), QRectF());
    VERIFY_INK(inkInches(png(2)), staves);
}

void OwnPaperTest::crossedBlocksAreInEveryExport_data()
{
    QTest::addColumn<QString>("corner");
    QTest::newRow("left") << "-60 60";
    QTest::newRow("above") << "80 -50";
    QTest::newRow("left and above") << "-30 -10";
}

/** A block whose corner was pulled above or left of its other one is as dark as on screen. */
void OwnPaperTest::crossedBlocksAreInEveryExport()
{
    QFETCH(QString, corner);
    open(uneven, {QString("tonquill_textblock 300 400 0 0 %1 wrap=-61 font=Arial size=20 "
                          "text=\"some words\"")
                      .arg(corner)});
    const PdfFile pdf = exported();
    QCOMPARE(pdf.text(1).simplified(), QString("some words"));
    // The text begins at (300, 400); it is much longer than high.
    const QPointF begin = onSheet(QRectF(300, 400, 1, 1), uneven).topLeft();
    const QRectF ink = pdf.ink(1);
    QVERIFY2(std::abs(ink.left() - begin.x()) < 0.1 && ink.top() > begin.y() &&
                 ink.top() < begin.y() + 0.2 && ink.width() > 1,
             describe(ink, QRectF(begin, QSizeF(1.5, 0.3))));
    VERIFY_INK(inkInches(png()), ink);
    VERIFY_INK(inkInches(previewed()), ink);
    // Others set letters a little closer than Qt does for a printer.
    const QRectF drawn = inkInches(svg());
    QVERIFY2(areClose(drawn, QRectF(ink.topLeft(), QSizeF(drawn.width(), ink.height()))) &&
                 std::abs(drawn.width() - ink.width()) < 0.05,
             describe(drawn, ink));
}

void OwnPaperTest::everyDocumentHasItsOwnPaper()
{
    const QStringList items{"tonquill_grandstaff 220 300 0 0 200 100"};
    for (const TestPaper &paper : {narrow, a5, uneven, narrow, landscape}) {
        open(paper, items);
        const QRectF staves = onSheet(QRectF(220, 300, 200, 100), paper);
        VERIFY_INK(printed().ink(1), staves);
        VERIFY_INK(exported().ink(1), staves);
    }
    m_solo->files().makeNew();
    // Nothing but the frame: A4 without 0.14 inches all round.
    const TestPaper usual{{8.27, 11.69}, {0.14, 0.14, 7.99, 11.41}};
    const QRectF outline = onSheet(inUnits(usual.frame), usual);
    QCOMPARE(window().sharedPrinter().pageLayout().pageSize().id(), QPageSize::A4);
    VERIFY_INK(printed().inkOfAnyShade(1), outline);
    VERIFY_INK(exported().inkOfAnyShade(1), outline);
    VERIFY_INK(inkInches(png(), 224), outline);
}

/** It is the printer's: pages are stretched to it, while exports are as the file is. */
void OwnPaperTest::aChosenPageSetupHoldsUntilTheNextDocument()
{
    const QStringList items{"tonquill_grandstaff 220 300 0 0 200 100"};
    open(narrow, items);
    QPrinter &printer = window().sharedPrinter();
    const QPageLayout chosen(QPageSize(QPageSize::Letter), QPageLayout::Landscape,
                             QMarginsF(36, 36, 36, 36));
    printer.setPageLayout(chosen);
    const auto isStretched = [this, &printer, &chosen] {
        // The frame, but for 2 of its 375.76 + 4 by 692.1 + 4 units on every side.
        const double across = 2 * 10 / 379.76;
        const double down = 2 * 7.5 / 696.1;
        return printer.pageLayout() == chosen &&
               areClose(printed().inkOfAnyShade(1),
                        QRectF(0.5, 0.5, 10, 7.5).adjusted(across, down, -across, -down));
    };
    QVERIFY(isStretched());
    VERIFY_INK(exported().ink(1), onSheet(QRectF(220, 300, 200, 100), narrow));

    // Nor do undo and saving give it up.
    window().scene->addPageAtEnd();
    m_solo->session().edits().check();
    QVERIFY(m_solo->session().edits().undo());
    QCOMPARE(window().pageCount, 1);
    QVERIFY(isStretched());
    QCOMPARE(m_solo->session().saveAs(path("other.tonquill")), QString());
    QVERIFY(isStretched());

    open(narrow, items);
    VERIFY_INK(printed().ink(1), onSheet(QRectF(220, 300, 200, 100), narrow));
}

TONQUILL_SOLO_TEST_MAIN(OwnPaperTest)
#include "tst_ownpaper.moc"
