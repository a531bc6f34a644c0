#include "PagePrinter.h"

#include "OpenBox.h"
#include "PageRange.h"
#include "PrintProgress.h"
#include "PrinterPaper.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"

#include <QFile>
#include <QFileInfo>
#include <QPageSetupDialog>
#include <QPaintEngine>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QTimer>

namespace
{
/** The frame of a page is printed whole: this much more than the frame on every side. */
constexpr qreal aroundFrame = 2.0;

/** The last bytes of a PDF file, which hold its end mark. */
constexpr qint64 endOfPdf = 16;

/** True if the printer only keeps the pages for the print preview to show. */
bool isPreview(const QPrinter &printer)
{
    return printer.paintEngine()->type() == QPaintEngine::Picture;
}

/** True if the printer has been writing a file on disk, and no device. */
bool writesFile(const QPrinter &printer)
{
    return !isPreview(printer) && printer.outputFormat() == QPrinter::PdfFormat &&
           QFileInfo(printer.outputFileName()).isFile();
}

/** False if the file lacks its end: the printer does not say that the disk was full. */
bool isFileComplete(const QPrinter &printer)
{
    QFile file(printer.outputFileName());
    if (!file.open(QIODevice::ReadOnly) || !file.seek(qMax<qint64>(0, file.size() - endOfPdf)))
        return false;
    return file.readAll().contains("%%EOF");
}
} // namespace

PagePrinter::PagePrinter(TonquillMainWin &window, HostLink &hostLink)
    : m_window(window)
    , m_hostLink(hostLink)
{}

void PagePrinter::setOwnPaper(const QSizeF &sheet, const QRectF &frame)
{
    QPrinter &printer = m_window.sharedPrinter();
    m_ownFrame = frame;
    m_ownPaper = PrinterPaper::layoutOf(sheet, frame);
    printer.setPageLayout(m_ownPaper);
    m_setPaper = printer.pageLayout();
}

void PagePrinter::showPreview()
{
    QPrintPreviewDialog dialog(&m_window.sharedPrinter(), &m_window);
    QObject::connect(&dialog, SIGNAL(paintRequested(QPrinter *)), &m_window,
                     SLOT(print(QPrinter *)));
    dialog.exec();
    // Pages may have been chosen for a print from within the preview.
    PageRange::chooseAll(m_window.sharedPrinter());
}

/**
 * The dialog is shown without waiting for it. Its own loop follows all the same: on Unix Qt
 * hands what was chosen to the printer at the end of that loop, and nowhere else.
 */
void PagePrinter::showPageSetup()
{
    const QPointer<QPageSetupDialog> dialog =
        new QPageSetupDialog(&m_window.sharedPrinter(), &m_window);
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
    QPrinter &printer = m_window.sharedPrinter();
    QPrintDialog dialog(&printer, &m_window);
    dialog.setMinMax(1, qMax(1, m_window.pageCount));
    dialog.setOption(QPrintDialog::PrintPageRange);
    dialog.setOption(QPrintDialog::PrintCurrentPage);
    if (dialog.exec() == QDialog::Accepted)
        print(printer);
    PageRange::chooseAll(printer);
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
    // Were none of the chosen pages there, the printer would bring out an empty one.
    if ((pages.isEmpty() && m_window.pageCount > 0) || !painter.begin(&printer))
        return Outcome::NotStarted;
    painter.setRenderHint(QPainter::LosslessImageRendering);
    const QRectF target = targetOn(printer);
    const std::unique_ptr<PrintProgress> progress = progressOf(printer, int(pages.size()));
    for (int i = 0; i < pages.size(); ++i) {
        if (progress && !progress->beginPage(i)) {
            printer.abort();
            return Outcome::Cancelled;
        }
        m_window.scene->render(&painter, target, sourceOfPage(pages[i]), Qt::IgnoreAspectRatio);
        if (i < pages.size() - 1 && !printer.newPage())
            return Outcome::BrokenOff;
    }
    painter.end();
    return !writesFile(printer) || isFileComplete(printer) ? Outcome::Printed : Outcome::BrokenOff;
}

/** The preview always shows all pages. */
QList<int> PagePrinter::pagesFor(const QPrinter &printer) const
{
    const int count = m_window.pageCount;
    if (isPreview(printer))
        return PageRange::all(count);
    return PageRange::chosenOn(printer, count,
                               m_window.scene->getPageAt(m_window.view()->curScenePos()));
}

/** None for the preview, which is no print, nor while there is no window to watch it. */
std::unique_ptr<PrintProgress> PagePrinter::progressOf(const QPrinter &printer, int pages) const
{
    if (isPreview(printer) || !m_window.isVisible())
        return nullptr;
    return std::make_unique<PrintProgress>(m_window, m_hostLink, pages);
}

QRectF PagePrinter::sourceOfPage(int index) const
{
    const TonquillScene &scene = *m_window.scene;
    return QRectF(scene.pageRect.left() - aroundFrame,
                  index * scene.pagePitch() + scene.pageRect.top() - aroundFrame,
                  scene.pageRect.width() + 2 * aroundFrame,
                  scene.pageRect.height() + 2 * aroundFrame);
}

/** Null, which stands for all of the printable area, but for the document's own paper. */
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
