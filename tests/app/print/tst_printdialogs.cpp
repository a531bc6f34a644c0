#include "LetterDocument.h"
#include "ModalAnswer.h"
#include "PreviewPaper.h"
#include "TestMain.h"

#include <QAction>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QProgressDialog>
#include <QRadioButton>
#include <QSpinBox>

namespace
{
/** The ids of toolbar 1's buttons. */
constexpr int previewButton = 3;
constexpr int pageSetupButton = 4;
constexpr int printButton = 5;

/** How much ink a picture has: a pixel that is all black counts as 1. */
double amountOfInk(const QImage &picture)
{
    double ink = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ink += (255 - qGray(picture.pixel(x, y))) / 255.0;
    }
    return ink;
}
} // namespace

/** The print preview, the page setup and the print dialog, on the one printer that they share. */
class PrintDialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void previewShowsEveryPage();
    void previewLooksLikeThePage();
    void previewShowsAllInkAtAnyZoom_data();
    void previewShowsAllInkAtAnyZoom();
    void previewShowsNoSelection();
    void pageSetupTurnsThePaper();
    void cancelledPageSetupChangesNothing();
    void pageSetupLeavesTheDocumentAlone();
    void printDialogPrints_data();
    void printDialogPrints();
    void cancelledPrintDialogPrintsNothing();
    void printDialogOffersPages();
    void previewShowsAllPagesWhateverIsChosen();
    void uselessSlotDoesNothing();

private:
    void trigger(int button);
    void setUpLandscape(void (QDialog::*end)());
    QList<QImage> previewed(const QList<qreal> &zooms);
    QImage previewed() { return previewed({3.0}).constFirst(); }

    LetterDocument m_document;
};

void PrintDialogsTest::init()
{
    m_document.clear();
    QPrinter &printer = m_document.window.sharedPrinter();
    printer.setPageOrientation(QPageLayout::Portrait);
    LetterDocument::makeLetter(printer);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(m_document.pdfPath());
    QFile::remove(m_document.pdfPath());
}

void PrintDialogsTest::trigger(int button)
{
    m_document.window.actions.value(button)->trigger();
}

void PrintDialogsTest::previewShowsEveryPage()
{
    m_document.clear(3);
    int pages = 0;
    bool showsProgress = true;
    ModalAnswer::whenOpen<QPrintPreviewDialog>([&](QPrintPreviewDialog &dialog) {
        QCOMPARE(dialog.parentWidget(), &m_document.window);
        QCOMPARE(dialog.printer(), &m_document.window.sharedPrinter());
        pages = dialog.findChild<QPrintPreviewWidget *>()->pageCount();
        showsProgress = m_document.window.findChild<QProgressDialog *>() != nullptr;
    });
    trigger(previewButton);
    QCOMPARE(pages, 3);
    QVERIFY(!showsProgress);
    QVERIFY(!QFile::exists(m_document.pdfPath()));
    QVERIFY(m_document.window.findChildren<QMessageBox *>().isEmpty());
}

/** The paper as the preview shows it at each of several zooms. */
QList<QImage> PrintDialogsTest::previewed(const QList<qreal> &zooms)
{
    QList<QImage> papers;
    ModalAnswer::whenOpen<QPrintPreviewDialog>([&](QPrintPreviewDialog &dialog) {
        for (const qreal zoom : zooms)
            papers.append(paperIn(*dialog.findChild<QPrintPreviewWidget *>(), zoom));
    });
    trigger(previewButton);
    return papers;
}

void PrintDialogsTest::previewLooksLikeThePage()
{
    m_document.addNineKinds();
    QCOMPARE(m_document.misplacedItems(previewed()), QStringList());
}

void PrintDialogsTest::previewShowsAllInkAtAnyZoom_data()
{
    QTest::addColumn<int>("symbol");
    QTest::addColumn<QString>("drawing");
    QTest::newRow("quarter note") << 19 << "QuarterNote1";
    QTest::newRow("eighth note, inverted") << 23 << "EighthNote2";
    QTest::newRow("half note") << 16 << "HalfNote1";
    QTest::newRow("treble clef") << 2 << "GClef";
    QTest::newRow("sharp") << 4 << "Sharp";
    QTest::newRow("ledger line") << 9 << "StaffLine";
}

/** However small the preview shows a page, notes have stems and clefs their thin lines. */
void PrintDialogsTest::previewShowsAllInkAtAnyZoom()
{
    QFETCH(int, symbol);
    QFETCH(QString, drawing);
    const QString record = QString("tonquill_bitmap %1 300 400 0").arg(symbol);
    m_document.window.scene->constructItem(record, false, 0);
    // The drawing has 8 pixels to a unit.
    const double units = amountOfInk(QImage(":/images/fine/" + drawing + ".png")) / 64;
    const QRectF inches = LetterDocument::onPaper(QRectF(270, 360, 60, 80));
    const double inchesToUnit = inches.width() / 60 * inches.height() / 80;
    const QList<qreal> zooms{0.3, 0.5, 0.62, 0.8, 1.0, 1.7, 4.0};
    const QList<QImage> papers = previewed(zooms);
    for (qsizetype i = 0; i < zooms.size(); ++i) {
        const double dots = 96 * zooms[i];
        const QRectF part(inches.topLeft() * dots, inches.size() * dots);
        const double ink = amountOfInk(papers[i].copy(part.toAlignedRect()));
        const double expected = units * inchesToUnit * dots * dots;
        QVERIFY2(
            std::abs(ink - expected) <= 0.03 * expected,
            qPrintable(QString("%1 instead of %2 at %3").arg(ink).arg(expected).arg(zooms[i])));
    }
}

void PrintDialogsTest::previewShowsNoSelection()
{
    m_document.addNineKinds();
    const QImage unselected = previewed();
    for (QGraphicsItem *item : ItemProbe::documentItems(*m_document.window.scene))
        item->setSelected(true);
    QCOMPARE(previewed(), unselected);
    QCOMPARE(m_document.window.scene->selectedItems().size(), 9);
}

/** Opens the page setup, chooses landscape, and ends it in one of its two ways. */
void PrintDialogsTest::setUpLandscape(void (QDialog::*end)())
{
    trigger(pageSetupButton);
    const QPointer<QDialog> dialog = m_document.window.findChild<QPageSetupDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    ModalAnswer::whenOpen<QPageSetupDialog>([end](QPageSetupDialog &opened) {
        QTest::mouseClick(opened.findChild<QRadioButton *>("landscape"), Qt::LeftButton);
        (opened.*end)();
    });
    QTRY_VERIFY(!dialog);
}

/** A page setup made once holds for what is printed and previewed later. */
void PrintDialogsTest::pageSetupTurnsThePaper()
{
    const QRectF item(100, 200, 300, 300);
    m_document.addBlack(item);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("onPAgeSetupaccepted"));
    setUpLandscape(&QDialog::accept);
    QPrinter &printer = m_document.window.sharedPrinter();
    QCOMPARE(printer.pageLayout().orientation(), QPageLayout::Landscape);
    m_document.window.print(&printer);
    const PdfFile pdf(m_document.pdfPath());
    QCOMPARE(pdf.pageSizes(), QList<QSizeF>{QSizeF(792, 612)});
    const QRectF printable = printer.pageLayout().paintRect(QPageLayout::Inch);
    const QRectF expected = LetterDocument::onPaper(item, printable);
    QVERIFY(expected.width() > 1.5 * expected.height());
    QVERIFY(pdf.ink(1).intersected(expected).width() > 0.99 * expected.width());
    QVERIFY(pdf.ink(1).united(expected).height() < 1.01 * expected.height());
}

void PrintDialogsTest::cancelledPageSetupChangesNothing()
{
    const QPageLayout before = m_document.window.sharedPrinter().pageLayout();
    setUpLandscape(&QDialog::reject);
    QCOMPARE(m_document.window.sharedPrinter().pageLayout(), before);
}

void PrintDialogsTest::pageSetupLeavesTheDocumentAlone()
{
    setUpLandscape(&QDialog::accept);
    QCOMPARE(m_document.window.scene->paperRect, LetterDocument::sheet);
    QCOMPARE(m_document.window.scene->pageRect, LetterDocument::frame);
    QCOMPARE(m_document.window.scene->sceneRect(), QRectF(0, 0, 748, LetterDocument::pitch));
}

void PrintDialogsTest::printDialogPrints_data()
{
    QTest::addColumn<bool>("byButton");
    QTest::newRow("by the button") << true;
    QTest::newRow("by the slot") << false;
}

void PrintDialogsTest::printDialogPrints()
{
    QFETCH(bool, byButton);
    m_document.clear(2);
    const QString path = m_document.folder.filePath("chosen.pdf");
    QFile::remove(path);
    ModalAnswer::whenOpen<QPrintDialog>([this, path](QPrintDialog &dialog) {
        QCOMPARE(dialog.parentWidget(), &m_document.window);
        QCOMPARE(dialog.printer(), &m_document.window.sharedPrinter());
        dialog.findChild<QLineEdit *>("filename")->setText(path);
        dialog.accept();
    });
    if (byButton)
        trigger(printButton);
    else
        m_document.window.filePrint();
    QCOMPARE(PdfFile(path).pageCount(), 2);
    QVERIFY(!QFile::exists(m_document.pdfPath()));
}

void PrintDialogsTest::cancelledPrintDialogPrintsNothing()
{
    ModalAnswer::whenOpen<QPrintDialog>([](QPrintDialog &dialog) { dialog.reject(); });
    trigger(printButton);
    QVERIFY(!QFile::exists(m_document.pdfPath()));
}

/** The dialog is opened with all pages chosen, and what is chosen holds for one print. */
void PrintDialogsTest::printDialogOffersPages()
{
    m_document.clear(3);
    const QString path = m_document.folder.filePath("second.pdf");
    const auto choose = [path](const char *radio, int from, int to) {
        ModalAnswer::whenOpen<QPrintDialog>([=](QPrintDialog &dialog) {
            QVERIFY(dialog.findChild<QRadioButton *>("printAll")->isChecked());
            QVERIFY(!dialog.findChild<QRadioButton *>("printCurrentPage")->isHidden());
            auto *first = dialog.findChild<QSpinBox *>("from");
            auto *last = dialog.findChild<QSpinBox *>("to");
            QCOMPARE(first->minimum(), 1);
            QCOMPARE(last->maximum(), 3);
            dialog.findChild<QRadioButton *>(radio)->setChecked(true);
            first->setValue(from);
            last->setValue(to);
            QFile::remove(path);
            dialog.findChild<QLineEdit *>("filename")->setText(path);
            dialog.accept();
        });
    };
    choose("printRange", 2, 2);
    trigger(printButton);
    QCOMPARE(PdfFile(path).pageCount(), 1);
    choose("printAll", 2, 2);
    trigger(printButton);
    QCOMPARE(PdfFile(path).pageCount(), 3);
    choose("printCurrentPage", 1, 1);
    trigger(printButton);
    QCOMPARE(PdfFile(path).pageCount(), 1);

    QPrinter &printer = m_document.window.sharedPrinter();
    QCOMPARE(printer.printRange(), QPrinter::AllPages);
    QVERIFY(printer.pageRanges().isEmpty());
    m_document.window.print(&printer);
    QCOMPARE(PdfFile(path).pageCount(), 3);
}

/** Pages that an embedding program has chosen on the printer are for its print only. */
void PrintDialogsTest::previewShowsAllPagesWhateverIsChosen()
{
    m_document.clear(3);
    QPrinter &printer = m_document.window.sharedPrinter();
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 2);
    int pages = 0;
    ModalAnswer::whenOpen<QPrintPreviewDialog>([&pages](QPrintPreviewDialog &dialog) {
        pages = dialog.findChild<QPrintPreviewWidget *>()->pageCount();
    });
    trigger(previewButton);
    QCOMPARE(pages, 3);
    QVERIFY(printer.pageRanges().isEmpty());
}

void PrintDialogsTest::uselessSlotDoesNothing()
{
    m_document.window.printer();
    QVERIFY(!QFile::exists(m_document.pdfPath()));
    QVERIFY(!QApplication::activeModalWidget());
}

TONQUILL_TEST_MAIN(PrintDialogsTest)
#include "tst_printdialogs.moc"
