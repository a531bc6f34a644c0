#pragma once

#include <QRectF>

#include <memory>

class HostLink;
class PrintProgress;
class QPrinter;
class TonquillMainWin;

/** Prints the pages of the document, one printed page for each, and opens the print dialogs. */
class PagePrinter
{
public:
    /** Both outlive the page printer; `hostLink` has to wait while a long print goes on. */
    PagePrinter(TonquillMainWin &window, HostLink &hostLink);

    void showPreview();
    void showPageSetup();
    void showPrintDialog();

    /**
     * Prints every page, stretched to the printer's printable area. The user can cancel a long
     * print, which leaves no file behind, and is told of a print that fails.
     */
    void print(QPrinter &printer);

private:
    enum class Outcome { Printed, Cancelled, NotStarted, BrokenOff };

    Outcome printPages(QPrinter &printer) const;
    std::unique_ptr<PrintProgress> progressOf(const QPrinter &printer) const;
    QRectF sourceOfPage(int index) const;
    void reportFailure() const;

    TonquillMainWin &m_window;
    HostLink &m_hostLink;
};
