#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

/**
 * A line of fields separated by spaces, as in the document file: plain ones first, then
 * `name=value`. Values with spaces or special characters are quoted; in quotes, characters that
 * would break the line or cannot be written as UTF-8 are escaped.
 */
class QuotedFields
{
public:
    /**
     * Splits a line; nullopt if a quotation mark is missing, an escape is malformed or a name
     * occurs twice.
     */
    static std::optional<QuotedFields> parse(const QString &line);

    /** `text` in quotation marks, with escapes. */
    static QString quoted(const QString &text);

    /** The fields without a name, in order, the keyword first. */
    const QStringList &plain() const { return m_plain; }

    /** True if there is a field of this name. */
    bool has(const QString &name) const { return m_named.contains(name); }

    /** The names of all named fields, in no particular order. */
    QStringList names() const { return m_named.keys(); }

    /** The value of a named field; a null string if there is none. */
    QString value(const QString &name) const { return m_named.value(name); }

private:
    QStringList m_plain;
    QHash<QString, QString> m_named;
};
