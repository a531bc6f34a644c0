#pragma once

#include <QString>

#include <memory>

class QPainter;
class QTextDocument;

/**
 * Texts in a drawing (SVG). Qt writes the names of font families unescaped, so a quotation mark in
 * one would end the attribute. Such names are painted with stand-ins for the special characters,
 * which are replaced by escaped ones in the finished drawing.
 */
namespace DrawingText
{
/** True if the painter draws an SVG that the names of the text's families would break. */
bool isNeeded(const QPainter &painter, const QTextDocument &text);

/** A copy of the text with stand-ins in the names of its families, laid out again. */
std::unique_ptr<QTextDocument> copyOf(const QTextDocument &text);

/**
 * The drawing with the original names of families, and without characters that XML cannot contain.
 */
QString finished(QString svg);
} // namespace DrawingText
