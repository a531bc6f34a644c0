#pragma once

#include <QString>

#include <memory>

class QPainter;
class QTextDocument;

/**
 * Texts in a drawing (SVG), into which Qt writes a font's family as it stands: one with a quotation
 * mark would end there and begin something of its own. Such a family is painted with stand-ins for
 * the letters that mean something, and the finished drawing gets those letters, escaped.
 */
namespace DrawingText
{
/** True if the painter draws on a drawing that the text's families would break. */
bool isNeeded(const QPainter &painter, const QTextDocument &text);

/** The text with stand-ins in the names of its families; it is laid out anew. */
std::unique_ptr<QTextDocument> copyOf(const QTextDocument &text);

/** The finished drawing with the families' own letters, and without what no XML may hold. */
QString finished(QString svg);
} // namespace DrawingText
