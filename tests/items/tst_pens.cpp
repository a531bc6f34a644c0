#include "ItemProbe.h"
#include "PaperPainting.h"
#include "TestMain.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"
#include "VectorShapes.h"

#include <QProcess>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace
{
/** Paper is measured at this many pixels an inch, so a line of 1/96 inch is 10 of them wide. */
constexpr int measuredDpi = 960;
constexpr int lineOnPaper = measuredDpi / 96;

bool isInk(QRgb pixel)
{
    return qGray(pixel) < 128;
}

/** How long each run of ink in a column of a picture is, from the top. */
QList<int> runsInColumn(const QImage &image, int x)
{
    QList<int> runs;
    bool inInk = false;
    for (int y = 0; y < image.height(); ++y) {
        const bool ink = isInk(image.pixel(x, y));
        if (ink && !inInk)
            runs.append(0);
        if (ink)
            ++runs.last();
        inInk = ink;
    }
    return runs;
}

/** The smallest rectangle that holds all ink of a picture. */
QRect inkOf(const QImage &image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isInk(image.pixel(x, y)))
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}
} // namespace

/** Lines and numerals on screen and on paper: what is measured are pixels, not pens. */
class PensTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_window.scene->clearScene(); }
    void linesAreOnePixelOnScreen_data();
    void linesAreOnePixelOnScreen();
    void linesGrowWithTheZoomWhereChosen_data();
    void linesGrowWithTheZoomWhereChosen();
    void staffEdgesAreEvenlyDark_data();
    void staffEdgesAreEvenlyDark();
    void twoStavesAreOnScreenAsEver();
    void linesAreAsWideOnAnyPaper_data();
    void linesAreAsWideOnAnyPaper();
    void numeralsAreAsLargeOnAnyPaper_data();
    void numeralsAreAsLargeOnAnyPaper();
    void selectionIsNotPrinted_data();
    void selectionIsNotPrinted();

private:
    static void addFigures();
    QImage viewed(const QRectF &area, qreal zoom);
    QImage printed(const QRectF &area, int dpi);
    QSizeF pixelsPerUnit(const QPrinter &printer) const;

    TonquillMainWin m_window;
    QTemporaryDir m_folder;
};

void PensTest::initTestCase()
{
    QVERIFY2(!QStandardPaths::findExecutable("pdftoppm").isEmpty(),
             "pdftoppm, of the package poppler-utils, is needed");
    m_window.resize(1200, 900);
    m_window.show();
}

/** A part of the page as the view shows it. */
QImage PensTest::viewed(const QRectF &area, qreal zoom)
{
    TonquillView *view = m_window.view();
    view->setTransform(QTransform::fromScale(zoom, zoom));
    view->centerOn(area.center());
    const QRect part = view->mapFromScene(area).boundingRect();
    return view->viewport()->grab(part).toImage();
}

/** Pixels of the measured picture to a scene unit: the printed area fills the paper's. */
QSizeF PensTest::pixelsPerUnit(const QPrinter &printer) const
{
    const QRectF paper = printer.pageRect(QPrinter::Inch);
    const QRectF source = m_window.scene->pageRect.adjusted(-2, -2, 2, 2);
    return QSizeF(paper.width() / source.width() * measuredDpi,
                  paper.height() / source.height() * measuredDpi);
}

/** The same part of the page as a printer of this resolution lays it on paper. */
QImage PensTest::printed(const QRectF &area, int dpi)
{
    const QString name = m_folder.filePath(QString("page%1").arg(dpi));
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(name + ".pdf");
    printer.setResolution(dpi);
    m_window.print(&printer);

    const QSizeF scale = pixelsPerUnit(printer);
    const QPointF margin = printer.pageRect(QPrinter::Inch).topLeft() * measuredDpi;
    const QPointF from = area.topLeft() - m_window.scene->pageRect.topLeft() + QPointF(2, 2);
    QProcess::execute("pdftoppm",
                      {"-r", QString::number(measuredDpi), "-gray", "-singlefile", "-x",
                       QString::number(int(margin.x() + from.x() * scale.width())), "-y",
                       QString::number(int(margin.y() + from.y() * scale.height())), "-W",
                       QString::number(int(area.width() * scale.width())), "-H",
                       QString::number(int(area.height() * scale.height())), name + ".pdf", name});
    return QImage(name + ".pgm");
}

/** Each figure with a place across which an upright cut meets its lines squarely. */
void PensTest::addFigures()
{
    QTest::addColumn<QString>("record");
    QTest::addColumn<double>("cut");
    QTest::addColumn<int>("lines");
    QTest::newRow("line") << "tonquill_interactiveline 200 300 0 0 100 0" << 250.0 << 1;
    QTest::newRow("grand staff") << "tonquill_grandstaff 200 300 0 0 100 70" << 250.0 << 5;
    QTest::newRow("two staves") << "tonquill_grandstaff 200 300 0 0 100 100" << 250.0 << 10;
    QTest::newRow("tablature") << "tonquill_linetab 200 300 0 0 100 70" << 250.0 << 5;
    QTest::newRow("tie") << "tonquill_notetie 200 300 0 0 100 0" << 250.0 << 1;
    QTest::newRow("triplet") << "tonquill_triplet 200 300 0 0 100 0" << 220.0 << 1;
}

void PensTest::linesAreOnePixelOnScreen_data()
{
    addFigures();
}

void PensTest::linesAreOnePixelOnScreen()
{
    QFETCH(QString, record);
    QFETCH(double, cut);
    QFETCH(int, lines);
    m_window.scene->constructItem(record, false, 0);
    const QRectF area(190, 280, 120, 140);
    for (const qreal zoom : {0.5, 1.0, 3.0}) {
        const QImage image = viewed(area, zoom);
        const QRect cutOut(int((cut - area.left()) * zoom), 0, 1, image.height());
        QCOMPARE(runsInColumn(image, cutOut.x()), QList<int>(lines, 1));
        // No shades: whatever is not white is black.
        const QImage column = image.copy(cutOut);
        QCOMPARE(ItemProbe::pixelsOf(column, Qt::black), lines);
        QCOMPARE(ItemProbe::pixelsOf(column, Qt::white), image.height() - lines);
    }
}

void PensTest::linesGrowWithTheZoomWhereChosen_data()
{
    addFigures();
}

/** A line on paper is 1/96 inch, that is 0.93 units, and on screen so many whole pixels. */
void PensTest::linesGrowWithTheZoomWhereChosen()
{
    QFETCH(QString, record);
    QFETCH(double, cut);
    QFETCH(int, lines);
    m_window.scene->constructItem(record, false, 0);
    const QRectF area(190, 280, 120, 140);
    PaperPainting::setScreenLines(PaperPainting::ScreenLines::AsOnPaper);
    const auto reset =
        qScopeGuard([] { PaperPainting::setScreenLines(PaperPainting::ScreenLines::OnePixel); });
    const QList<std::pair<qreal, int>> widths{{0.5, 1}, {1.0, 1}, {1.5, 1}, {2.0, 2}, {3.3, 3}};
    for (const auto &[zoom, pixels] : widths) {
        const QImage image = viewed(area, zoom);
        const QList<int> runs = runsInColumn(image, int((cut - area.left()) * zoom));
        QCOMPARE(runs, QList<int>(lines, pixels));
    }
}

void PensTest::staffEdgesAreEvenlyDark_data()
{
    QTest::addColumn<int>("dpi");
    for (const int dpi : {72, 96, 150, 300, 600})
        QTest::addRow("%d dpi", dpi) << dpi;
}

/** With soft edges too, the edge of the upper of two staves is as dark as that between them. */
void PensTest::staffEdgesAreEvenlyDark()
{
    QFETCH(int, dpi);
    m_window.scene->constructItem("tonquill_grandstaff 200 300 0 0 100 100", false, 0);
    const double scale = dpi / 88.0;
    QImage image((QSizeF(120, 120) * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDotsPerMeterX(qRound(dpi / 0.0254));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    m_window.scene->render(&painter, QRectF(QPointF(), QSizeF(120, 120) * scale),
                           QRectF(190, 290, 120, 120));
    painter.end();
    // Between two lines of the upper staff, at y = 304, and between the staves, at y = 350.
    const auto inkInRow = [&](double y) {
        int ink = 0;
        for (int x = 0; x < image.width(); ++x)
            ink += 255 - qGray(image.pixel(x, int((y - 290) * scale)));
        return ink;
    };
    QVERIFY(inkInRow(350) > 0);
    QCOMPARE(inkInRow(304), inkInRow(350));
}

/** On screen at 100 % an edge is the same pixels whether it is drawn once or twice. */
void PensTest::twoStavesAreOnScreenAsEver()
{
    m_window.scene->constructItem("tonquill_grandstaff 200 300 0 0 100 100", false, 0);
    const QRectF area(190, 290, 120, 120);
    QImage expected(120, 120, QImage::Format_RGB32);
    expected.fill(Qt::white);
    QPainter painter(&expected);
    painter.setPen(QPen(Qt::black, 0));
    painter.translate(10, 10);
    painter.drawLines(VectorShapes::grandstaff(QPointF(0, 0), QPointF(100, 100)));
    painter.end();
    const QImage shown = viewed(area, 1.0).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(shown.copy(expected.rect()), expected);
}

void PensTest::linesAreAsWideOnAnyPaper_data()
{
    addFigures();
}

void PensTest::linesAreAsWideOnAnyPaper()
{
    QFETCH(QString, record);
    QFETCH(double, cut);
    QFETCH(int, lines);
    m_window.scene->constructItem(record, false, 0);
    const QRectF area(190, 280, 120, 140);
    for (const int dpi : {96, 300, 1200}) {
        const QImage image = printed(area, dpi);
        QVERIFY(!image.isNull());
        const int column = int((cut - area.left()) * image.width() / area.width());
        const QList<int> runs = runsInColumn(image, column);
        QCOMPARE(runs.size(), lines);
        for (const int run : runs)
            QVERIFY2(std::abs(run - lineOnPaper) <= 1,
                     qPrintable(QString("%1 pixels at %2 dpi").arg(run).arg(dpi)));
    }
}

void PensTest::numeralsAreAsLargeOnAnyPaper_data()
{
    QTest::addColumn<QString>("record");
    QTest::addColumn<QRectF>("area");
    QTest::newRow("time signature")
        << "tonquill_timesig 300 400 12 8" << QRectF(250, 380, 100, 100);
    // Between the arms there is nothing but the numeral.
    QTest::newRow("triplet") << "tonquill_triplet 300 400 0 0 100 0" << QRectF(341, 385, 18, 40);
}

/** Numerals are as large on every printer as on screen, measured by the page. */
void PensTest::numeralsAreAsLargeOnAnyPaper()
{
    QFETCH(QString, record);
    QFETCH(QRectF, area);
    m_window.scene->constructItem(record, false, 0);
    constexpr qreal zoom = 3.0;
    const QRect onScreen = inkOf(viewed(area, zoom));
    QVERIFY(onScreen.height() > 8 * zoom);
    const QSizeF units = QSizeF(onScreen.size()) / zoom;
    for (const int dpi : {96, 300, 1200}) {
        const QImage image = printed(area, dpi);
        const QRect ink = inkOf(image);
        const qreal width = ink.width() * area.width() / image.width();
        const qreal height = ink.height() * area.height() / image.height();
        const QString told = QString("%1 x %2 units at %3 dpi, %4 x %5 on screen")
                                 .arg(width)
                                 .arg(height)
                                 .arg(dpi)
                                 .arg(units.width())
                                 .arg(units.height());
        // One pixel of a 96 dpi printer more or less.
        QVERIFY2(std::abs(width - units.width()) <= 1.0, qPrintable(told));
        QVERIFY2(std::abs(height - units.height()) <= 1.0, qPrintable(told));
    }
}

void PensTest::selectionIsNotPrinted_data()
{
    QTest::addColumn<QString>("record");
    QTest::newRow("bitmap") << "tonquill_bitmap 2 300 300 0";
    QTest::newRow("text") << "tonquill_text 300 300 0 0 Allegro Arial 12 ff000000 0";
    QTest::newRow("block")
        << "tonquill_textblock_begin 300 300 60 40\nverse\ntonquill_textblock_end";
    QTest::newRow("time signature") << "tonquill_timesig 300 300 3 4";
    QTest::newRow("grand staff") << "tonquill_grandstaff 300 300 0 0 60 40";
    QTest::newRow("line") << "tonquill_interactiveline 300 300 0 0 60 40";
    QTest::newRow("tablature") << "tonquill_linetab 300 300 0 0 60 40";
    QTest::newRow("tie") << "tonquill_notetie 300 300 0 0 60 0";
    QTest::newRow("triplet") << "tonquill_triplet 300 300 0 0 60 0";
}

/** A selected item shows its anchors on screen, and prints as if it were not selected. */
void PensTest::selectionIsNotPrinted()
{
    QFETCH(QString, record);
    m_window.scene->constructItem(record, false, 0);
    const QRectF area(270, 260, 110, 100);
    const QImage plain = printed(area, 300);
    QVERIFY(!inkOf(plain).isEmpty());
    ItemProbe::onlyItem(*m_window.scene)->setSelected(true);
    QVERIFY(ItemProbe::pixelsOf(viewed(area, 1.0), Qt::green) >= 100);
    QCOMPARE(printed(area, 300), plain);
}

TONQUILL_TEST_MAIN(PensTest)
#include "tst_pens.moc"
