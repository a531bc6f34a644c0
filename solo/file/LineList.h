#pragma once

#include "ChunkedList.h"

#include <QByteArray>

/** The lines of a document, of which many states are kept and compared. */
using LineList = ChunkedList<QByteArray>;
