#pragma once

#include <QImage>
#include <QPointF>
#include <QSizeF>

/** Makes drawings smaller without losing any of their ink. */
namespace InkReduction
{
/**
 * The black `drawing`, `scale` times as large. Its top left corner lies at `phase`, from (0, 0) up
 * to (1, 1), in the first pixel of the answer. Each pixel covers by as much as there is ink on its
 * area, so that the sum over all pixels is the drawing's, rounded once. No scale may exceed 1.
 */
QImage reduced(const QImage &drawing, QSizeF scale, QPointF phase);
} // namespace InkReduction
