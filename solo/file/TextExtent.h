#pragma once

#include "ItemState.h"

#include <QTextFormat>

class QTextFrame;

/**
 * What a text would cost to lay out in its width. Qt never comes to the end of a text
 * whose place it cannot count, and takes the square of a word's length for each.
 */
class TextExtent
{
public:
    explicit TextExtent(const TextContent &text);

    /** Scene units down; rather too much than too little, but for plain text if it is much. */
    double height() const { return m_height; }

    /** The lines that the text itself has, before any is wrapped. */
    double lines() const { return m_lines; }

    /** The squares of the lengths of all words. */
    double wordSquares() const { return m_wordSquares; }

    /**
     * The cells of all tables, and how many tables stand in each other, as Qt has read them: of
     * damaged tags it may make more than can be told from the tags. Each cell counts twice as much
     * for every table that it is in, for that is how often it is laid out.
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

    double m_width = 0; ///< 0 if every word may have a line of its own, less if nothing is wrapped
    double m_lines = 1;
    double m_wordSquares = 0;
    double m_height = 0;
    double m_cells = 0;
    qsizetype m_tableDepth = 0;
    double m_longest = 0; ///< the longest distance that a format asks for
    double m_perLine = 1; ///< the most that a format widens lines by
};
