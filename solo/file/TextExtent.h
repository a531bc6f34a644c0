#pragma once

#include "ItemState.h"

#include <QTextFormat>

class QTextFrame;

/**
 * Estimates the cost of laying out a text in its width. Qt's layout never ends if coordinates
 * overflow, and takes quadratic time for each word.
 */
class TextExtent
{
public:
    explicit TextExtent(const TextContent &text);

    /** The height in scene units, an upper estimate; exact for large plain texts. */
    double height() const { return m_height; }

    /** The number of lines before wrapping. */
    double lines() const { return m_lines; }

    /** The sum of squared word lengths. */
    double wordSquares() const { return m_wordSquares; }

    /**
     * The cells of all tables and the nesting depth of tables, as Qt has read them: for malformed
     * tags there may be more than HtmlOutline finds. Each cell counts twice for every table around
     * it, since that is how often it is laid out.
     */
    double cells() const { return m_cells; }
    qsizetype tableDepth() const { return m_tableDepth; }

private:
    void count(const QString &text);
    double linesOf(QStringView paragraph, double pixels) const;
    void measurePlain(const TextContent &text);
    void measureHtml(const TextContent &text);
    void measureFormat(const QTextFormat &format);
    void measureTables(const QTextFrame &around, qsizetype depth);

    double m_width = 0; ///< 0 if every word may get its own line, negative without wrapping
    double m_lines = 1;
    double m_wordSquares = 0;
    double m_height = 0;
    double m_cells = 0;
    qsizetype m_tableDepth = 0;
    double m_longest = 0; ///< the longest length in a format
    double m_perLine = 1; ///< the largest line height factor of a format
};
