#pragma once

#include <QStringView>

#include <optional>

/**
 * The value of a text of one to nine digits, with or without a minus sign in front; nothing for any
 * other text. Nearly all numbers of a document are such, and Qt, which reads the others as
 * well, takes ten times as long.
 */
inline std::optional<int> plainNumber(QStringView text)
{
    constexpr qsizetype mostDigits = 9; // so many fit an int, whatever they are
    const bool negative = text.startsWith(u'-');
    const QStringView digits = text.sliced(negative ? 1 : 0);
    if (digits.isEmpty() || digits.size() > mostDigits)
        return std::nullopt;
    int result = 0;
    for (const QChar digit : digits) {
        if (digit < u'0' || digit > u'9')
            return std::nullopt;
        result = 10 * result + (digit.unicode() - u'0');
    }
    return negative ? -result : result;
}
