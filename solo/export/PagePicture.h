#pragma once

#include <QSize>

class QPainter;
class TonquillMainWin;

/** One page of the document as a picture of the whole sheet, laid out as it would be printed. */
class PagePicture
{
public:
    /** Page `page`, counted from 1, of the window's document at so many dots per inch. */
    PagePicture(const TonquillMainWin &window, int page, int dotsPerInch);

    /** The sheet, in dots. */
    QSize size() const;

    /** Draws the sheet from (0, 0) on. Nothing but the page is drawn: no selection, no anchors. */
    void paint(QPainter &painter) const;

private:
    const TonquillMainWin &m_window;
    int m_page;
    int m_dotsPerInch;
};
