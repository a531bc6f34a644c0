#include "ItemProbe.h"
#include "LetterDocument.h"
#include "PaperPainting.h"
#include "PdfFile.h"
#include "ScenePointer.h"
#include "TestMain.h"
#include "TonquillTextBlock.h"
#include "TonquillView.h"

#include <QScrollBar>
#include <QTextCursor>

#include <cmath>

namespace
{
constexpr qreal measuredPixel = 1.0 / PdfFile::measuredDpi;

/** A printer that counts how often it is asked for a new page. */
class CountingPrinter : public QPrinter
{
public:
    bool newPage() override
    {
        ++newPages;
        return QPrinter::newPage();
    }

    int newPages = 0;
};

/** An item of 10 by 10 that counts how often any of its kind is printed. */
class PaintCounter : public QGraphicsItem
{
public:
    explicit PaintCounter(int &paints)
        : m_paints(paints)
    {}
    QRectF boundingRect() const override { return QRectF(0, 0, 10, 10); }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *) override
    {
        m_paints += PaperPainting::isPrinter(*painter);
    }

private:
    int &m_paints;
};

QByteArray describe(const QRectF &actual, const QRectF &expected)
{
    QString text;
    QDebug(&text) << "ink at" << actual << "instead of" << expected << "(inches)";
    return text.toUtf8();
}

bool areClose(const QRectF &a, const QRectF &b, qreal inches)
{
    return std::abs(a.left() - b.left()) <= inches && std::abs(a.right() - b.right()) <= inches &&
           std::abs(a.top() - b.top()) <= inches && std::abs(a.bottom() - b.bottom()) <= inches;
}
} // namespace

/** The pages that come out of a printer, and where the ink is on them. */
class PrintedPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void asManyPagesAsTheDocument_data();
    void asManyPagesAsTheDocument();
    void chosenPagesArePrinted_data();
    void chosenPagesArePrinted();
    void currentPageIsPrinted();
    void everyPageShowsItsOwnItems();
    void itemsLieWhereTheyDoOnThePage_data();
    void itemsLieWhereTheyDoOnThePage();
    void whatSticksOutIsCutOff_data();
    void whatSticksOutIsCutOff();
    void whatLiesBesideThePageIsNotPrinted_data();
    void whatLiesBesideThePageIsNotPrinted();
    void landscapeStretchesThePage();
    void frameIsPrintedWholeAndGrey();
    void selectionIsNotPrinted();
    void rubberBandIsNotPrinted();
    void editedTextIsPrintedWithoutItsCursor();
    void linesAreAsWideAsAScreensPixel_data();
    void linesAreAsWideAsAScreensPixel();
    void blocksWithCrossedCornersArePrinted_data();
    void blocksWithCrossedCornersArePrinted();
    void everyItemIsPaintedOnce();
    void filesGrowByAsMuchForEveryPage();

private:
    LetterDocument m_document;
};

void PrintedPagesTest::init()
{
    m_document.clear();
    m_document.window.hide();
}

void PrintedPagesTest::asManyPagesAsTheDocument_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("printed");
    QTest::addColumn<int>("newPages");
    QTest::newRow("one page") << 1 << 1 << 0;
    QTest::newRow("three pages") << 3 << 3 << 2;
    // A printer that is opened begins a page of its own.
    QTest::newRow("no page") << 0 << 1 << 0;
}

void PrintedPagesTest::asManyPagesAsTheDocument()
{
    QFETCH(int, pages);
    QFETCH(int, printed);
    QFETCH(int, newPages);
    m_document.clear(pages);
    CountingPrinter printer;
    LetterDocument::makeLetter(printer);
    printer.setOutputFileName(m_document.pdfPath());
    m_document.window.print(&printer);
    QCOMPARE(printer.newPages, newPages);
    const PdfFile pdf(printer.outputFileName());
    QCOMPARE(pdf.pageCount(), printed);
    // 8.5 and 11 inches of 72 points.
    QCOMPARE(pdf.pageSizes(), QList<QSizeF>(printed, QSizeF(612, 792)));
}

void PrintedPagesTest::chosenPagesArePrinted_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QList<int>>("printed");
    QTest::newRow("none") << "" << QList<int>{1, 2, 3, 4};
    QTest::newRow("the second") << "2" << QList<int>{2};
    QTest::newRow("two to three") << "2-3" << QList<int>{2, 3};
    QTest::newRow("a list") << "1,3-4" << QList<int>{1, 3, 4};
    QTest::newRow("beyond the last") << "3-9" << QList<int>{3, 4};
}

void PrintedPagesTest::chosenPagesArePrinted()
{
    QFETCH(QString, chosen);
    QFETCH(QList<int>, printed);
    m_document.clear(4);
    for (int page = 0; page < 4; ++page)
        m_document.addBlack(QRectF(100 + 150 * page, LetterDocument::pitch * page + 200, 100, 100));
    CountingPrinter printer;
    LetterDocument::makeLetter(printer);
    printer.setOutputFileName(m_document.pdfPath());
    if (!chosen.isEmpty())
        printer.setPrintRange(QPrinter::PageRange);
    printer.setPageRanges(QPageRanges::fromString(chosen));
    m_document.window.print(&printer);
    QCOMPARE(printer.newPages, printed.size() - 1);
    const PdfFile pdf(m_document.pdfPath());
    QCOMPARE(pdf.pageCount(), printed.size());
    for (int i = 0; i < printed.size(); ++i) {
        const QRectF item(100 + 150 * (printed[i] - 1), 200, 100, 100);
        const QRectF ink = pdf.ink(i + 1);
        const QRectF expected = LetterDocument::onPaper(item);
        QVERIFY2(areClose(ink, expected, measuredPixel), describe(ink, expected));
    }
}

/** The page at the top of the view; its lowest quarter counts as the next one. */
void PrintedPagesTest::currentPageIsPrinted()
{
    m_document.clear(3);
    m_document.addBlack(QRectF(300, LetterDocument::pitch + 200, 100, 100));
    m_document.window.show();
    QScrollBar *down = m_document.window.view()->verticalScrollBar();
    QTRY_VERIFY(down->maximum() > LetterDocument::pitch);
    down->setValue(int(LetterDocument::pitch));
    QPrinter printer;
    LetterDocument::makeLetter(printer);
    printer.setOutputFileName(m_document.pdfPath());
    printer.setPrintRange(QPrinter::CurrentPage);
    m_document.window.print(&printer);
    const PdfFile pdf(m_document.pdfPath());
    QCOMPARE(pdf.pageCount(), 1);
    const QRectF expected = LetterDocument::onPaper(QRectF(300, 200, 100, 100));
    QVERIFY2(areClose(pdf.ink(1), expected, measuredPixel), describe(pdf.ink(1), expected));
}

void PrintedPagesTest::everyPageShowsItsOwnItems()
{
    m_document.clear(3);
    for (int page = 0; page < 3; ++page) {
        m_document.addBlack(QRectF(100 + 150 * page, LetterDocument::pitch * page + 200, 100, 100));
    }
    const PdfFile pdf = m_document.print();
    for (int page = 0; page < 3; ++page) {
        const QRectF expected = LetterDocument::onPaper(QRectF(100 + 150 * page, 200, 100, 100));
        const QRectF ink = pdf.ink(page + 1);
        QVERIFY2(areClose(ink, expected, measuredPixel), describe(ink, expected));
    }
}

void PrintedPagesTest::itemsLieWhereTheyDoOnThePage_data()
{
    QTest::addColumn<int>("dpi");
    QTest::newRow("a screen's resolution") << 96;
    QTest::newRow("an ink printer's") << 300;
    QTest::newRow("a laser printer's") << 1200;
}

/** Size and place on paper follow from those on screen, on every printer. */
void PrintedPagesTest::itemsLieWhereTheyDoOnThePage()
{
    QFETCH(int, dpi);
    m_document.addNineKinds();
    const QImage paper = m_document.print(dpi).picture(1, PdfFile::measuredDpi);
    QCOMPARE(m_document.misplacedItems(paper), QStringList());
}

void PrintedPagesTest::whatSticksOutIsCutOff_data()
{
    QTest::addColumn<QRectF>("item");
    QTest::addColumn<QRectF>("printed");
    const auto row = [](const char *name, const QRectF &item) {
        QTest::newRow(name) << item << item.intersected(LetterDocument::source);
    };
    row("left", QRectF(0, 300, 100, 50));
    row("right", QRectF(700, 300, 100, 50));
    row("top", QRectF(300, 0, 50, 100));
    row("bottom", QRectF(300, 850, 50, 100));
    // The 2 units around the frame are printed.
    row("within the border on the left", QRectF(42, 300, 2, 50));
    row("within the border on the right", QRectF(726, 300, 2, 50));
    row("within the border at the top", QRectF(300, 65.5, 50, 2));
    row("within the border at the bottom", QRectF(300, 900, 50, 2));
}

void PrintedPagesTest::whatSticksOutIsCutOff()
{
    QFETCH(QRectF, item);
    QFETCH(QRectF, printed);
    m_document.addBlack(item);
    const QRectF ink = m_document.print().ink(1);
    const QRectF expected = LetterDocument::onPaper(printed);
    QVERIFY2(areClose(ink, expected, measuredPixel), describe(ink, expected));
}

void PrintedPagesTest::whatLiesBesideThePageIsNotPrinted_data()
{
    QTest::addColumn<QRectF>("item");
    QTest::newRow("left of the border") << QRectF(0, 300, 41.5, 50);
    QTest::newRow("right of the border") << QRectF(728.5, 300, 50, 50);
    QTest::newRow("above the border") << QRectF(300, 0, 50, 65);
    QTest::newRow("below the border") << QRectF(300, 902.5, 50, 80);
    QTest::newRow("between two pages") << QRectF(300, 992, 50, 45);
}

void PrintedPagesTest::whatLiesBesideThePageIsNotPrinted()
{
    QFETCH(QRectF, item);
    m_document.clear(2);
    m_document.addBlack(item);
    const PdfFile pdf = m_document.print();
    QCOMPARE(pdf.ink(1), QRectF());
    QCOMPARE(pdf.ink(2), QRectF());
}

void PrintedPagesTest::landscapeStretchesThePage()
{
    const QRectF item(100, 200, 300, 300);
    m_document.addBlack(item);
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setPageMargins(QMarginsF(0.5, 0.5, 0.5, 0.5), QPageLayout::Inch);
    printer.setOutputFileName(m_document.pdfPath());
    m_document.window.print(&printer);
    const PdfFile pdf(m_document.pdfPath());
    QCOMPARE(pdf.pageSizes(), QList<QSizeF>{QSizeF(792, 612)});
    const QRectF expected = LetterDocument::onPaper(item, QRectF(0.5, 0.5, 10, 7.5));
    // 10 / 686 inches a unit across, 7.5 / 836.5 down: the square is far from one.
    QVERIFY(expected.width() > 1.6 * expected.height());
    const QRectF ink = pdf.ink(1);
    QVERIFY2(areClose(ink, expected, measuredPixel), describe(ink, expected));
}

/** The frame is the only thing on an empty page; the sheet's outline lies outside. */
void PrintedPagesTest::frameIsPrintedWholeAndGrey()
{
    const PdfFile pdf = m_document.print();
    const QRectF ink = pdf.inkOfAnyShade(1);
    const QRectF expected = LetterDocument::onPaper(LetterDocument::frame);
    QVERIFY2(areClose(ink, expected, 1.0 / 96), describe(ink, expected));
    QCOMPARE(pdf.ink(1), QRectF());
}

void PrintedPagesTest::selectionIsNotPrinted()
{
    m_document.addNineKinds();
    TonquillScene &scene = *m_document.window.scene;
    scene.clearSelection();
    const QByteArray unselected = m_document.print().undatedBytes();

    for (QGraphicsItem *item : ItemProbe::documentItems(scene))
        item->setSelected(true);
    QVERIFY(m_document.print().undatedBytes() == unselected);
    QCOMPARE(scene.selectedItems().size(), 9);
}

/** A band stays on screen if a dialog opens while its button is held. */
void PrintedPagesTest::rubberBandIsNotPrinted()
{
    m_document.addBlack(QRectF(300, 300, 50, 50));
    const QByteArray without = m_document.print().undatedBytes();

    ScenePointer pointer(*m_document.window.scene);
    pointer.press(QPointF(100, 100));
    pointer.moveTo(QPointF(200, 200));
    QImage screen(748, 990, QImage::Format_RGB32);
    screen.fill(Qt::white);
    QPainter painter(&screen);
    m_document.window.scene->render(&painter, QRectF(0, 0, 748, 990), LetterDocument::sheet);
    painter.end();
    QVERIFY(inkOf(screen).contains(QPointF(150, 100)));

    QVERIFY(m_document.print().undatedBytes() == without);
}

void PrintedPagesTest::editedTextIsPrintedWithoutItsCursor()
{
    m_document.window.scene->constructItem(LetterDocument::nineKinds(0).constLast(), false, 0);
    const QByteArray unedited = m_document.print().undatedBytes();

    QGraphicsItem *item = ItemProbe::onlyItem(*m_document.window.scene);
    auto *block = qgraphicsitem_cast<TonquillTextBlock *>(item);
    m_document.window.show();
    QApplication::setActiveWindow(&m_document.window);
    m_document.window.view()->setFocus();
    block->setTextInteractionFlags(Qt::TextEditorInteraction);
    block->setFocus();
    QVERIFY(block->hasFocus());
    QTextCursor cursor = block->textCursor();
    cursor.select(QTextCursor::WordUnderCursor);
    QVERIFY(cursor.hasSelection());
    block->setTextCursor(cursor);
    QVERIFY(m_document.print().undatedBytes() == unedited);
    QVERIFY(block->textCursor().hasSelection());
}

void PrintedPagesTest::linesAreAsWideAsAScreensPixel_data()
{
    QTest::addColumn<int>("dpi");
    for (const int dpi : {96, 300, 600, 1200})
        QTest::addRow("%d dots to the inch", dpi) << dpi;
}

/** 1/96 inch at every resolution, be the line black and level or upright, or a page's outline. */
void PrintedPagesTest::linesAreAsWideAsAScreensPixel()
{
    QFETCH(int, dpi);
    constexpr int dotsPerInch = 576;
    for (const char *record : {"tonquill_interactiveline 200 300 0 0 200 0",
                               "tonquill_interactiveline 300 400 0 0 0 200"})
        m_document.window.scene->constructItem(record, false, 0);
    const QImage paper = m_document.print(dpi).picture(1, dotsPerInch);
    // How wide the ink of this much darkness is from one point of the page to another.
    const auto inkBetween = [&paper](QPointF from, QPointF to, int darkness) {
        const QRectF area = LetterDocument::onPaper(QRectF(from, to));
        const QPoint begin = (area.topLeft() * dotsPerInch).toPoint();
        const QPoint way = (area.bottomRight() * dotsPerInch).toPoint() - begin;
        const int steps = qMax(way.x(), way.y());
        double sum = 0;
        for (int i = 0; i < steps; ++i)
            sum += 255 - qGray(paper.pixel(begin + way * i / steps));
        return sum / darkness;
    };
    constexpr double wanted = dotsPerInch / 96.0;
    const double level = inkBetween(QPointF(250, 290), QPointF(250, 310), 255);
    QVERIFY2(std::abs(level - wanted) < 1, qPrintable(QString::number(level)));
    const double upright = inkBetween(QPointF(290, 500), QPointF(310, 500), 255);
    QVERIFY2(std::abs(upright - wanted) < 1, qPrintable(QString::number(upright)));
    // The frame's left edge at x = 44, in a grey of 192.
    const double outline = inkBetween(QPointF(43, 500), QPointF(54, 500), 255 - 192);
    QVERIFY2(std::abs(outline - wanted) < 1, qPrintable(QString::number(outline)));
}

void PrintedPagesTest::blocksWithCrossedCornersArePrinted_data()
{
    QTest::addColumn<QPointF>("corner");
    QTest::addColumn<int>("dpi");
    for (const int dpi : {96, 1200}) {
        QTest::addRow("left, %d", dpi) << QPointF(-60, 60) << dpi;
        QTest::addRow("above, %d", dpi) << QPointF(80, -50) << dpi;
        QTest::addRow("left and above, %d", dpi) << QPointF(-30, -10) << dpi;
        QTest::addRow("onto its corner, %d", dpi) << QPointF(0, 0) << dpi;
    }
}

/** Pulled over its top-left corner by its other one, a block looks on paper as on screen. */
void PrintedPagesTest::blocksWithCrossedCornersArePrinted()
{
    QFETCH(QPointF, corner);
    QFETCH(int, dpi);
    const QPointF place(300, 400);
    // A block is one unit wider than it is told to be.
    auto *block =
        new TonquillTextBlock(false, "two words", QRectF(0, 0, corner.x() - 1, corner.y()));
    m_document.window.scene->addNewItem(block);
    block->setPos(place);
    QCOMPARE(block->boundingRect(), QRectF(QPointF(0, 0), corner));

    const QRectF around(100, 300, 400, 300);
    const QRectF ink = inkOf(ItemProbe::pictureOf(*m_document.window.scene, around, 3.0));
    QVERIFY(!ink.isEmpty());
    const QRectF expected =
        LetterDocument::onPaper(QRectF(around.topLeft() + ink.topLeft() / 3, ink.size() / 3));
    const PdfFile pdf = m_document.print(dpi);
    QCOMPARE(pdf.text(1).simplified(), QString("two words"));
    QVERIFY2(areClose(pdf.ink(1), expected, 1.0 / 96), describe(pdf.ink(1), expected));
}

/** Printing is linear in the pages: no item is painted for a page on which it does not lie. */
void PrintedPagesTest::everyItemIsPaintedOnce()
{
    constexpr int pages = 200;
    constexpr int itemsOnPage = 100;
    m_document.clear(pages);
    int paints = 0;
    for (int page = 0; page < pages; ++page) {
        for (int i = 0; i < itemsOnPage; ++i) {
            auto *item = new PaintCounter(paints);
            m_document.window.scene->addItem(item);
            item->setPos(100 + 20 * (i % 10), LetterDocument::pitch * page + 100 + 20 * (i / 10));
        }
    }
    const PdfFile pdf = m_document.print();
    QCOMPARE(paints, pages * itemsOnPage);
    QCOMPARE(pdf.pageCount(), pages);
}

/** Nor does a page carry the outlines of the others. */
void PrintedPagesTest::filesGrowByAsMuchForEveryPage()
{
    const auto sizeOf = [this](int pages) {
        m_document.clear(pages);
        return double(m_document.print().size());
    };
    const double first = sizeOf(1);
    const double firstHundred = sizeOf(100) - first;
    const double secondHundred = sizeOf(199) - first - firstHundred;
    // The numbers in the file have a few more digits.
    QVERIFY2(secondHundred < 1.1 * firstHundred,
             qPrintable(QString("%1, then %2 bytes").arg(firstHundred).arg(secondHundred)));
}

TONQUILL_TEST_MAIN(PrintedPagesTest)
#include "tst_printedpages.moc"
