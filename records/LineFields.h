#pragma once

#include "QuotedFields.h"

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QVarLengthArray>

#include <optional>

/**
 * The lines of the document file: a keyword, a position, plain fields in a fixed order, then named
 * ones in any order. Numbers are written without loss.
 */
namespace LineFields
{
/** The shortest decimal text that reads back as the same number. */
QByteArray number(double value);

/** Reads a finite number; nullopt for any other text. */
std::optional<double> toNumber(const QString &text);
} // namespace LineFields

/** Writes a line, field by field. Names must be ASCII. */
class LineWriter
{
public:
    /** Begins with the keyword, which is ASCII, and the position in scene units. */
    LineWriter(const QString &keyword, QPointF position);

    LineWriter &operator<<(int number);
    LineWriter &operator<<(double number);
    LineWriter &operator<<(QPointF point) { return *this << point.x() << point.y(); }

    LineWriter &named(QByteArrayView name, double value);
    LineWriter &named(QByteArrayView name, QByteArrayView value);
    LineWriter &quoted(QByteArrayView name, const QString &text);

    /** Writes "name=1" if it is on, else nothing. */
    LineWriter &flag(QByteArrayView name, bool on);

    /** The line in UTF-8, without a line end. */
    QByteArray line() const { return QByteArray(m_bytes.constData(), m_bytes.size()); }

private:
    void append(QByteArrayView bytes) { m_bytes.append(bytes.data(), bytes.size()); }

    /** Grows in place: a QByteArray would check for sharing with every field. */
    QVarLengthArray<char, 256> m_bytes;
};

/**
 * The fields of a line as numbers and texts; missing or malformed fields make it invalid. Plain
 * fields are counted from the keyword, which has index 0.
 */
class LineReader
{
public:
    /** `fields` are not copied and must outlive the reader. */
    explicit LineReader(const QuotedFields &fields)
        : m_fields(fields)
    {}

    /** False once a requested field was missing or malformed, or require() failed. */
    bool isValid() const { return m_valid; }

    /** Makes the line invalid if its values are not possible. */
    void require(bool isPossible) { m_valid = m_valid && isPossible; }

    QString keyword() const { return m_fields.plain().value(0); }
    QPointF position() { return point(1); }
    double number(qsizetype index) { return toNumber(m_fields.plain().value(index)); }
    int integer(qsizetype index) { return toInteger(m_fields.plain().value(index)); }
    QPointF point(qsizetype index);

    bool has(const QString &name) const { return m_fields.has(name); }
    QString text(const QString &name);
    bool flag(const QString &name) const { return m_fields.value(name) == QLatin1String("1"); }
    double number(const QString &name) { return toNumber(m_fields.value(name)); }
    double number(const QString &name, double fallback);
    int integer(const QString &name) { return toInteger(m_fields.value(name)); }

    /** Exactly `count` numbers in one field, separated by spaces. */
    QList<double> numbers(const QString &name, qsizetype count);

private:
    double toNumber(const QString &text);
    int toInteger(const QString &text);

    const QuotedFields &m_fields;
    bool m_valid = true;
};
