#pragma once

#include "ChunkedList.h"

#include <QByteArray>

/** The lines of a document, in a form that is cheap to store in many states and to compare. */
using LineList = ChunkedList<QByteArray>;
