#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QSize>

/**
 * The image strip of a toolbar: equal slices side by side, black ink on white. A second drawing of
 * twice the size is for high-resolution screens. Icons are drawn in the palette's text colour, so
 * they are also readable on a dark desktop.
 */
class ToolBarStrip
{
public:
    /** Loads ":/images/<name>.bmp" and its "@2x" drawing; `count` is the number of slices. */
    ToolBarStrip(const QString &name, int count);

    /** The number of slices. */
    int count() const { return m_count; }

    /** Width and height of one slice, in pixels at 1x. */
    QSize sliceSize() const;

    /** Slice `index` as a picture at 1x. */
    QPixmap slice(int index, const QColor &ink) const;

    /** Slice `index` as an icon for ordinary and high-resolution screens. */
    QIcon icon(int index, const QColor &ink) const;

    /** The ink of a picture in another colour. */
    static QPixmap inked(QImage picture, const QColor &ink);

private:
    static QPixmap cut(const QImage &strip, int index, int count, const QColor &ink);

    int m_count;
    QImage m_normal;
    QImage m_dense;
};
