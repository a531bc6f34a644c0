#pragma once

#include <QList>

class QPrinter;

/** The pages of a document that a printer shall print. */
namespace PageRange
{
/** The indices, from 0, of all pages. */
QList<int> all(int pageCount);

/**
 * The indices, from 0, of the pages selected on the printer: all, `currentPage`, counted from 1, a
 * range or a list. Pages beyond `pageCount` are left out.
 */
QList<int> chosenOn(const QPrinter &printer, int pageCount, int currentPage);

/** Resets the printer to all pages: a selection is for one print only. */
void chooseAll(QPrinter &printer);
} // namespace PageRange
