#pragma once

#include <QByteArray>
#include <QPoint>
#include <QString>
#include <QStringList>

#include <vector>

/** The nine kinds of items. */
enum class Kind { Glyph, TimeSig, Grandstaff, Line, LineTab, Tie, Triplet, Text, TextBlock };

/** One item of a sample document: its kind and its position (scene units). */
struct Sample
{
    Kind kind;
    QPoint position;
};

/**
 * Documents for the measurements: items in rows and columns, page after page, as in a full score.
 * The editor builds them from records, and BareScene as plain items.
 */
namespace SampleDocument
{
using Samples = std::vector<Sample>;

/** The number of items on each page except the last. */
inline constexpr int itemsPerPage = 500;

Samples glyphs(int count);
/** `count` items, alternating between the nine kinds. */
Samples mix(int count);
/** `perPage` items on each of `pages` pages, alternating between the nine kinds. */
Samples mixOnPages(int pages, int perPage);

/** The number of pages for `count` items. */
int pagesFor(int count);

/** The extent of a grand staff, line, tablature, tie or triplet from its position (scene units). */
QPoint extentOf(Kind kind);

/** The symbol id of the glyphs. */
inline constexpr int glyphId = 19;

/** The text of texts and text blocks. */
QString textOf(Kind kind);

/** One record for each sample, as a host would send it. */
QStringList records(const Samples &samples);

/** The host's message with the document. */
QByteArray message(const Samples &samples);
} // namespace SampleDocument
