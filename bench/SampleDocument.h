#pragma once

#include <QByteArray>
#include <QPoint>
#include <QString>
#include <QStringList>

#include <vector>

/** The nine kinds of items. */
enum class Kind { Glyph, TimeSig, Grandstaff, Line, LineTab, Tie, Triplet, Text, TextBlock };

/** One item of a sample document: what it is and where it stands (scene units). */
struct Sample
{
    Kind kind;
    QPoint position;
};

/**
 * Documents to measure with: items in rows and columns, page after page, as a written-out score
 * has them. The same samples are built by the editor from records and by a BareScene.
 */
namespace SampleDocument
{
using Samples = std::vector<Sample>;

/** As many items stand on each page but the last. */
inline constexpr int itemsPerPage = 500;

Samples glyphs(int count);
/** The nine kinds in turn. */
Samples mix(int count);
/** The nine kinds in turn on `pages` pages, `perPage` on each. */
Samples mixOnPages(int pages, int perPage);

/** The pages that `count` items take. */
int pagesFor(int count);

/** What a grand staff, line, tablature, tie or triplet spans from its position (scene units). */
QPoint extentOf(Kind kind);

/** The symbol id of the glyphs. */
inline constexpr int glyphId = 19;

/** What texts and text blocks say. */
QString textOf(Kind kind);

/** A record for each sample, as the host would send it. */
QStringList records(const Samples &samples);

/** The host's message with the document. */
QByteArray message(const Samples &samples);
} // namespace SampleDocument
