#pragma once

#include <QSize>

class QPainter;
class TonquillMainWin;

/** One page of the document as a picture of the whole sheet, laid out as it would be printed. */
class PagePicture
{
public:
    /** Page `page`, counted from 1, of the window's document. The window must outlive the object.
     */
    PagePicture(const TonquillMainWin &window, int page, int dotsPerInch);

    /** The sheet, in dots. */
    QSize size() const;

    /** Draws the sheet with its top-left corner at (0, 0), without selection and anchors. */
    void paint(QPainter &painter) const;

private:
    const TonquillMainWin &m_window;
    int m_page;
    int m_dotsPerInch;
};
