#pragma once

#include <QImage>
#include <QPainterPath>

/** Converts drawings to outlines, which can be filled at any size. */
namespace InkOutline
{
/** The outline of all pixels with at least half coverage, in pixels, for odd-even filling. */
QPainterPath of(const QImage &drawing);
} // namespace InkOutline
