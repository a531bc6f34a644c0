#include "PageRange.h"

#include <QPageRanges>
#include <QPrinter>

#include <numeric>

QList<int> PageRange::all(int pageCount)
{
    QList<int> pages(qMax(0, pageCount));
    std::iota(pages.begin(), pages.end(), 0);
    return pages;
}

QList<int> PageRange::chosenOn(const QPrinter &printer, int pageCount, int currentPage)
{
    if (printer.printRange() == QPrinter::CurrentPage)
        return pageCount > 0 ? QList<int>{qBound(1, currentPage, pageCount) - 1} : QList<int>();
    const QPageRanges chosen = printer.pageRanges();
    QList<int> pages = all(pageCount);
    if (!chosen.isEmpty())
        pages.removeIf([&chosen](int index) { return !chosen.contains(index + 1); });
    return pages;
}

void PageRange::chooseAll(QPrinter &printer)
{
    printer.setPrintRange(QPrinter::AllPages);
    printer.setPageRanges(QPageRanges());
}
