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
namespace HostDocument
{
/** The item of a record of one line; nothing if it is none. */
std::optional<ItemState::Any> readRecord(const QString &record);

/** True if this line begins a text block, whose record ends with isBlockEnd(). */
bool isBlockBegin(const QString &line);
bool isBlockEnd(const QString &line);

/** The block of its first line and the lines of its text. */
std::optional<ItemState::Any> readBlock(const QString &header, const QStringList &text);
} // namespace HostDocument
