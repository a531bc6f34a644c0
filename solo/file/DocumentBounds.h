#pragma once

#include "ItemState.h"

#include <QCoreApplication>

class TextExtent;

/**
 * What a document may hold at most. A small file can ask for more time or memory than there is; no
 * document that was made by hand comes near to any of these.
 */
class DocumentBounds
{
    Q_DECLARE_TR_FUNCTIONS(DocumentBounds)

public:
    /** Bytes of a file. */
    static constexpr qint64 largestFile = 128 * 1024 * 1024;

    /** Lines of a file, and items among them. */
    static constexpr qsizetype mostLines = 1'000'000;
    static constexpr qsizetype mostItems = 200'000;

    /** More pages than this are an accident; each takes a part of the scene's height. */
    static constexpr int mostPages = 10'000;

    /** No sheet is longer, in scene units: about 25 metres. */
    static constexpr double longestSheet = 90'000;

    /** No coordinate lies further from where it counts from, in scene units. */
    static constexpr double farthest = 100'000'000;

    /** In formatted text: elements and tables in each other, and the cells of all tables. */
    static constexpr qsizetype deepestText = 200;
    static constexpr qsizetype deepestTables = 8;
    static constexpr double mostCells = 5'000;

    /**
     * The height of a text, in scene units; the lines of all, before any is wrapped; and the
     * squares of the lengths of all words, each of which takes that long to lay out.
     */
    static constexpr double highestText = 8'000'000;
    static constexpr double mostTextLines = 500'000;
    static constexpr double mostWordSquares = 4e9;

    /** Pixels of all pictures in formatted text. */
    static constexpr qint64 mostPixels = 64'000'000;

    /** What is said of more than `mostItems`. */
    static QString tooManyItems();

    /** Why the document cannot have this item too; empty if it can, and then it counts. */
    QString problemOf(const ItemState::Any &item);

private:
    static QString nestedTooDeeply();
    static QString tablesTooLarge();
    QString problemOfText(const ItemState::Any &item);
    QString problemOfExtent(const TextExtent &extent);
    QString problemOfTables(const TextExtent &extent);
    QString problemOfHtml(const QString &html);

    qsizetype m_items = 0;
    double m_cells = 0;
    double m_textLines = 0;
    double m_wordSquares = 0;
    qint64 m_pixels = 0;
};
