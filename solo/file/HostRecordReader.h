#pragma once

#include "ItemState.h"

#include <QStringList>

/**
 * Reads the records of the host link as they are stored by a host: the page-count line, then a
 * record for each item, the topmost first.
 *
 * A person's words are worth more than the link's rules: what the editor's own reader gets wrong
 * on purpose, such as a simple text of several words, is understood here as it was written.
 */
namespace HostRecordReader
{
/** The item of a record of one line; nothing if it is none. */
std::optional<ItemState> read(const QString &record);

/** The text block of its first line and the lines of its text. */
std::optional<ItemState> readBlock(const QString &header, const QStringList &text);
} // namespace HostRecordReader
