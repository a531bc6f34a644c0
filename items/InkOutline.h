#pragma once

#include <QImage>
#include <QPainterPath>

/** Drawings as outlines, which can be filled at any size. */
namespace InkOutline
{
/** The outline of what is at least half covered, in the drawing's pixels. To be filled odd-even. */
QPainterPath of(const QImage &drawing);
} // namespace InkOutline
