#pragma once

#include <QImage>
#include <QPointF>
#include <QSizeF>

/** Scales drawings down without losing ink. */
namespace InkReduction
{
/**
 * The black `drawing` scaled by `scale`, at most 1 in each direction. Its top-left corner lies at
 * `phase`, from (0, 0) up to (1, 1), in the first pixel of the result. Each pixel's alpha is the
 * ink on its area, so the sum over all pixels equals the drawing's, rounded once.
 */
QImage reduced(const QImage &drawing, QSizeF scale, QPointF phase);
} // namespace InkReduction
