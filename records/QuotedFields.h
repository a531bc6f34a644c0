#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

/**
 * A line of blank-separated fields, the way the document file writes them: first plain ones, then
 * `name=value` and single words as flags. Values with blanks or special characters are quoted, and
 * a quoted one escapes what would break the line or could not be written as UTF-8.
 */
class QuotedFields
{
public:
    /**
     * Splits a line; nothing if a quotation mark is missing, an escape is malformed or a name is
     * there twice.
     */
    static std::optional<QuotedFields> parse(const QString &line);

    /** `text` in quotation marks. */
    static QString quoted(const QString &text);

    /** The fields without a name, in order, the keyword first. */
    const QStringList &plain() const { return m_plain; }

    /** True if there is a field of this name. */
    bool has(const QString &name) const { return m_named.contains(name); }

    /** The names of all named fields, in no order. */
    QStringList names() const { return m_named.keys(); }

    /** The value of a named field, or a null string. */
    QString value(const QString &name) const { return m_named.value(name); }

private:
    QStringList m_plain;
    QHash<QString, QString> m_named;
};
