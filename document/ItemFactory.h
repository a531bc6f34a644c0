#pragma once

#include "Records.h"

class QGraphicsItem;

/** Builds items from records. */
namespace ItemFactory
{
/** The figure of the record's keyword; the caller owns it until it is added to a scene. */
QGraphicsItem *makeVectorItem(const Records::Vector &record, bool adding);
} // namespace ItemFactory
