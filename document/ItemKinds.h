#pragma once

#include "ItemCatalogue.h"

/** The kinds of items that the program knows. */
namespace ItemKinds
{
/** Begins with the nine kinds of the program's own. Extensions add theirs before they use them. */
ItemCatalogue &catalogue();
} // namespace ItemKinds
