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

/** Prints pages of the document, each on a page of its own, and opens the print dialogs. */
class PagePrinter
{
    Q_DECLARE_TR_FUNCTIONS(PagePrinter)

public:
    /** The result of a print. */
    enum class Outcome {
        Printed,
        Cancelled, ///< by the user
        NotStarted,
        BrokenOff
    };

    /**
     * Prints the pages of `scene`. The dialogs set up `printer` and open over `window`, which has
     * the slots print(QPrinter *) for the preview and OnPageSetupAccepted(). All three outlive the
     * page printer. `currentPage` returns the number of the visible page, from 1.
     */
    PagePrinter(QWidget &window, QPrinter &printer, TonquillScene &scene,
                std::function<int()> currentPage, OutsidePause pause);

    /**
     * Sets the dialogs' printer to the document's paper, in inches. While the printer keeps that
     * paper, pages are printed with their frame at its position on the sheet. After another choice
     * in the page setup they are stretched as usual, until the next call.
     */
    void setOwnPaper(const QSizeF &sheet, const QRectF &frame);

    void showPreview();
    void showPageSetup();
    void showPrintDialog();

    /** Prints the pages selected on the printer, and tells the user if that fails. */
    void print(QPrinter &printer) const;

    /**
     * Prints the pages selected on the printer, by default all. They are stretched to its printable
     * area, or unscaled if it has the document's own paper. The user can cancel a long print; an
     * incomplete file is removed. The caller reports failures to the user.
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
    QRectF m_ownFrame;      ///< inches; null without paper of the document's own
    QPageLayout m_ownPaper; ///< as in the document
    QPageLayout m_setPaper; ///< as accepted by the printer, perhaps with wider margins
};
