#pragma once

#include <QRectF>

class QPrinter;
class TonquillMainWin;

/** Prints the pages of the document, one printed page for each, and opens the print dialogs. */
class PagePrinter
{
public:
    explicit PagePrinter(TonquillMainWin &window);

    void showPreview();
    void showPageSetup();
    void showPrintDialog();

    /** Prints every page, stretched to the printer's printable area. */
    void print(QPrinter &printer) const;

private:
    QRectF sourceOfPage(int index) const;

    TonquillMainWin &m_window;
};
