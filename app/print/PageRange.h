#pragma once

#include <QList>

class QPrinter;

/** Which pages of a document a printer is to print. */
namespace PageRange
{
/** The indices, from 0, of all pages. */
QList<int> all(int pageCount);

/**
 * The indices, from 0, of those of `pageCount` pages that are chosen on the printer: `currentPage`,
 * counted from 1, or the pages from one to another or in a list, of which those that do not exist
 * are left out; all if none were chosen.
 */
QList<int> chosenOn(const QPrinter &printer, int pageCount, int currentPage);

/** Has the printer print all pages again: a choice holds for one print only. */
void chooseAll(QPrinter &printer);
} // namespace PageRange
