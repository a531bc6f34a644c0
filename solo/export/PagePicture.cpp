#include "PagePicture.h"

#include "PageGeometry.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QPainter>

PagePicture::PagePicture(const TonquillMainWin &window, int page, int dotsPerInch)
    : m_window(window)
    , m_page(page)
    , m_dotsPerInch(dotsPerInch)
{}

QSize PagePicture::size() const
{
    const QRectF inch = PageGeometry::paperRect(QRectF(0, 0, 1, 1));
    const QSizeF paper = m_window.scene->paperRect.size();
    return QSize(qRound(paper.width() / inch.width() * m_dotsPerInch),
                 qRound(paper.height() / inch.height() * m_dotsPerInch));
}

void PagePicture::paint(QPainter &painter) const
{
    const QRectF inch = PageGeometry::paperRect(QRectF(0, 0, 1, 1));
    const double across = m_dotsPerInch / inch.width();
    const double down = m_dotsPerInch / inch.height();
    const QRectF frame = m_window.scene->pageRect;
    const QRectF target(frame.left() * across, frame.top() * down, frame.width() * across,
                        frame.height() * down);
    painter.fillRect(QRect(QPoint(0, 0), size()), Qt::white);
    m_window.scene->render(&painter, target, m_window.scene->printedArea(m_page - 1),
                           Qt::IgnoreAspectRatio);
}
