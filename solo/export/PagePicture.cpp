#include "PagePicture.h"

#include "PageGeometry.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QPainter>

namespace
{
/** As on a printed page, this much more than the frame is shown on every side. */
constexpr qreal aroundFrame = 2.0;
} // namespace

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
    const TonquillScene &scene = *m_window.scene;
    const QRectF inch = PageGeometry::paperRect(QRectF(0, 0, 1, 1));
    const double across = m_dotsPerInch / inch.width();
    const double down = m_dotsPerInch / inch.height();
    const QRectF frame = scene.pageRect;
    const QRectF target(frame.left() * across, frame.top() * down, frame.width() * across,
                        frame.height() * down);
    const QRectF source = frame.adjusted(-aroundFrame, -aroundFrame, aroundFrame, aroundFrame)
                              .translated(0, (m_page - 1) * scene.pagePitch());
    painter.fillRect(QRect(QPoint(0, 0), size()), Qt::white);
    m_window.scene->render(&painter, target, source, Qt::IgnoreAspectRatio);
}
