#include "PagePrinter.h"

#include "OpenBox.h"
#include "PageRange.h"
#include "PrinterPaper.h"
#include "TonquillScene.h"

#include <QFile>
#include <QFileInfo>
#include <QPageSetupDialog>
#include <QPaintEngine>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTimer>
#include <QWidget>

#include <utility>

namespace
{
/** The last bytes of a PDF file, which hold its end mark. */
constexpr qint64 endOfPdf = 16;

/** True if the printer only records the pages for the print preview. */
bool isPreview(const QPrinter &printer)
{
    return printer.paintEngine()->type() == QPaintEngine::Picture;
}

/** True if the printer writes a regular file, not a device. */
bool writesFile(const QPrinter &printer)
{
    return !isPreview(printer) && printer.outputFormat() == QPrinter::PdfFormat &&
           QFileInfo(printer.outputFileName()).isFile();
}

/** False if the file is incomplete: the printer does not report a full disk. */
bool isFileComplete(const QPrinter &printer)
{
    QFile file(printer.outputFileName());
    if (!file.open(QIODevice::ReadOnly) || !file.seek(qMax<qint64>(0, file.size() - endOfPdf)))
        return false;
    return file.readAll().contains("%%EOF");
}
} // namespace

PagePrinter::PagePrinter(QWidget &window, QPrinter &printer, TonquillScene &scene,
                         std::function<int()> currentPage, OutsidePause pause)
    : m_window(window)
    , m_printer(printer)
    , m_scene(scene)
    , m_currentPage(std::move(currentPage))
    , m_pause(std::move(pause))
{}

void PagePrinter::setOwnPaper(const QSizeF &sheet, const QRectF &frame)
{
    m_ownFrame = frame;
    m_ownPaper = PrinterPaper::layoutOf(sheet, frame);
    m_printer.setPageLayout(m_ownPaper);
    m_setPaper = m_printer.pageLayout();
}

void PagePrinter::showPreview()
{
    QPrintPreviewDialog dialog(&m_printer, &m_window);
    QObject::connect(&dialog, SIGNAL(paintRequested(QPrinter *)), &m_window,
                     SLOT(print(QPrinter *)));
    dialog.exec();
    // The user may have chosen pages for a print from the preview.
    PageRange::chooseAll(m_printer);
}

/**
 * Opens the dialog without waiting, then runs its event loop from a timer: on Unix, Qt applies the
 * choices to the printer only at the end of that loop.
 */
void PagePrinter::showPageSetup()
{
    const QPointer<QPageSetupDialog> dialog = new QPageSetupDialog(&m_printer, &m_window);
    dialog->open(&m_window, SLOT(OnPageSetupAccepted()));
    QTimer::singleShot(0, dialog, [dialog] {
        if (dialog->isVisible())
            dialog->exec();
        if (dialog)
            dialog->deleteLater();
    });
}

void PagePrinter::showPrintDialog()
{
    QPrintDialog dialog(&m_printer, &m_window);
    dialog.setMinMax(1, qMax(1, m_scene.pageCount()));
    dialog.setOption(QPrintDialog::PrintPageRange);
    dialog.setOption(QPrintDialog::PrintCurrentPage);
    if (dialog.exec() == QDialog::Accepted)
        print(m_printer);
    PageRange::chooseAll(m_printer);
}

void PagePrinter::print(QPrinter &printer) const
{
    const Outcome outcome = printUnreported(printer);
    if (outcome == Outcome::NotStarted || outcome == Outcome::BrokenOff)
        reportFailure();
}

PagePrinter::Outcome PagePrinter::printUnreported(QPrinter &printer) const
{
    const Outcome outcome = printPages(printer);
    const bool isCutOff = outcome == Outcome::Cancelled || outcome == Outcome::BrokenOff;
    if (isCutOff && writesFile(printer))
        QFile::remove(printer.outputFileName());
    return outcome;
}

PagePrinter::Outcome PagePrinter::printPages(QPrinter &printer) const
{
    const QList<int> pages = pagesFor(printer);
    QPainter painter;
    // If none of the chosen pages exists, the printer would print an empty one.
    if ((pages.isEmpty() && m_scene.pageCount() > 0) || !painter.begin(&printer))
        return Outcome::NotStarted;
    painter.setRenderHint(QPainter::LosslessImageRendering);
    const QRectF target = targetOn(printer);
    const std::unique_ptr<PrintProgress> progress = progressOf(printer, int(pages.size()));
    for (int i = 0; i < pages.size(); ++i) {
        if (progress && !progress->beginPage(i)) {
            printer.abort();
            return Outcome::Cancelled;
        }
        m_scene.render(&painter, target, m_scene.printedArea(pages[i]), Qt::IgnoreAspectRatio);
        if (i < pages.size() - 1 && !printer.newPage())
            return Outcome::BrokenOff;
    }
    painter.end();
    return !writesFile(printer) || isFileComplete(printer) ? Outcome::Printed : Outcome::BrokenOff;
}

/** The preview always shows all pages. */
QList<int> PagePrinter::pagesFor(const QPrinter &printer) const
{
    const int count = m_scene.pageCount();
    if (isPreview(printer))
        return PageRange::all(count);
    return PageRange::chosenOn(printer, count, m_currentPage());
}

/** Null for the preview, which is not a print, and without a visible window. */
std::unique_ptr<PrintProgress> PagePrinter::progressOf(const QPrinter &printer, int pages) const
{
    if (isPreview(printer) || !m_window.isVisible())
        return nullptr;
    return std::make_unique<PrintProgress>(m_window, m_pause, pages);
}

/** Null for the whole printable area, unless the printer has the document's own paper. */
QRectF PagePrinter::targetOn(const QPrinter &printer) const
{
    const QPageLayout layout = printer.pageLayout();
    const bool isOwn = layout.isEquivalentTo(m_ownPaper) || layout.isEquivalentTo(m_setPaper);
    return isOwn ? PrinterPaper::placeOf(m_ownFrame, m_ownPaper, layout, printer.resolution())
                 : QRectF();
}

void PagePrinter::reportFailure() const
{
    openBox(m_window, QMessageBox::Warning, QStringLiteral("Tonquill"),
            tr("The pages could not be printed."));
}
