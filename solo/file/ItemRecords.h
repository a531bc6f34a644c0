#pragma once

#include "ItemState.h"

#include <QByteArray>
#include <QStringList>

#include <optional>

/**
 * The records of the document file: one line for each item, with nothing lost. Pure functions.
 *
 * Equal states have equal lines, so lines are also what states are compared and kept by.
 */
namespace ItemRecords
{
/** The line of an item, UTF-8, without an end. */
QByteArray format(const ItemState::Any &state);

/**
 * The item of a line; nothing if the keyword is unknown or a field is missing or malformed. Fields
 * that are not known, and so not part of the item, are added to `unknown`: a name, or the value of
 * one without a name.
 */
std::optional<ItemState::Any> parse(const QString &line, QStringList *unknown = nullptr);

/** The shortest decimal text that reads back as the same number. */
QString number(double value);

/** Reads a finite number; nothing for any other text. */
std::optional<double> toNumber(const QString &text);
} // namespace ItemRecords
