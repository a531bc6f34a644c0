#pragma once

#include "SampleDocument.h"

class QPainter;

/** The baseline of painting: the same lines, texts and images, painted directly. */
namespace DirectPainting
{
/** Paints an item of this kind at the painter's origin. */
void paint(QPainter &painter, Kind kind);
} // namespace DirectPainting
