#pragma once

#include "ItemState.h"

#include <QStringList>

/**
 * Reads the records of a document that was stored by a host: the page-count line, then one record
 * per item, topmost first.
 *
 * The user's texts matter more than the rules of the host link: what the reader of the link
 * intentionally misreads, such as a simple text of several words, is read here as it was meant.
 */
namespace HostRecordReader
{
/** The item of a record of one line; nullopt if it is malformed. */
std::optional<ItemState> read(const QString &record);

/** The text block with this first line and these lines of text; nullopt if it is malformed. */
std::optional<ItemState> readBlock(const QString &header, const QStringList &text);
} // namespace HostRecordReader
