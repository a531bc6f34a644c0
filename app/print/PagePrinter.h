#pragma once

#include "PrintProgress.h"

#include <QCoreApplication>
#include <QPageLayout>
#include <QRectF>

#include <functional>
#include <memory>

class QPrinter;
class QWidget;
class TonquillScene;

/** Prints pages of the document, one printed page for each, and opens the print dialogs. */
class PagePrinter
{
    Q_DECLARE_TR_FUNCTIONS(PagePrinter)

public:
    /** What became of a print. */
    enum class Outcome {
        Printed,
        Cancelled, ///< by the user
        NotStarted,
        BrokenOff
    };

    /**
     * Prints the pages of `scene`. The dialogs set `printer` and stand over `window`, which has the
     * slots print(QPrinter *) for the preview and OnPageSetupAccepted(). All three outlive the page
     * printer. `currentPage` says, from 1, which page the user sees.
     */
    PagePrinter(QWidget &window, QPrinter &printer, TonquillScene &scene,
                std::function<int()> currentPage, OutsidePause pause);

    /**
     * Sets the dialogs' printer to the paper that the document is laid out on, in inches. As long
     * as it stays at that, pages come out with their frame where it is on their own sheet; a page
     * setup that is chosen later has them stretched as ever, until this is called again.
     */
    void setOwnPaper(const QSizeF &sheet, const QRectF &frame);

    void showPreview();
    void showPageSetup();
    void showPrintDialog();

    /** Prints the pages that are chosen on the printer, and tells the user if that fails. */
    void print(QPrinter &printer) const;

    /**
     * Prints the pages that are chosen on the printer, all if none are, stretched to the printer's
     * printable area, or as it is if the printer has the document's own paper. The user can cancel
     * a long print, which leaves no file behind. Whoever calls this tells the user of a failure.
     */
    Outcome printUnreported(QPrinter &printer) const;

private:
    Outcome printPages(QPrinter &printer) const;
    QList<int> pagesFor(const QPrinter &printer) const;
    std::unique_ptr<PrintProgress> progressOf(const QPrinter &printer, int pages) const;
    QRectF targetOn(const QPrinter &printer) const;
    void reportFailure() const;

    QWidget &m_window;
    QPrinter &m_printer;
    TonquillScene &m_scene;
    std::function<int()> m_currentPage;
    OutsidePause m_pause;
    QRectF m_ownFrame;      ///< inches; null unless the document has paper of its own
    QPageLayout m_ownPaper; ///< as the document has it
    QPageLayout m_setPaper; ///< as the printer took it, perhaps with wider margins
};
