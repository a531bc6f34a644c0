#pragma once

#include "SampleDocument.h"

class QPainter;

/** The floor of painting: the same lines, texts and images, painted with nothing in between. */
namespace DirectPainting
{
/** Paints an item of this kind at the painter's origin. */
void paint(QPainter &painter, Kind kind);
} // namespace DirectPainting
