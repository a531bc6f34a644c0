#include "ToolBarStrip.h"

#include "GlyphDrawings.h"

#include <QPainter>

ToolBarStrip::ToolBarStrip(const QString &name, int count)
    : m_count(count)
    , m_normal(GlyphDrawings::loadInk(QStringLiteral(":/images/%1.bmp").arg(name)))
    , m_dense(GlyphDrawings::loadInk(QStringLiteral(":/images/%1@2x.bmp").arg(name)))
{}

QSize ToolBarStrip::sliceSize() const
{
    return QSize(m_normal.width() / m_count, m_normal.height());
}

QPixmap ToolBarStrip::slice(int index, const QColor &ink) const
{
    return cut(m_normal, index, m_count, ink);
}

QIcon ToolBarStrip::icon(int index, const QColor &ink) const
{
    QIcon result(slice(index, ink));
    QPixmap dense = cut(m_dense, index, m_count, ink);
    dense.setDevicePixelRatio(2);
    result.addPixmap(dense);
    return result;
}

QPixmap ToolBarStrip::cut(const QImage &strip, int index, int count, const QColor &ink)
{
    const int width = strip.width() / count;
    return inked(strip.copy(index * width, 0, width, strip.height()), ink);
}

QPixmap ToolBarStrip::inked(QImage picture, const QColor &ink)
{
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), ink);
    painter.end();
    return QPixmap::fromImage(picture);
}
