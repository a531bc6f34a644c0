#pragma once

#include <QStringView>

#include <optional>

/**
 * The value of one to nine digits with an optional minus sign; nullopt for any other text. Nearly
 * all numbers of a document have this form, and Qt's general conversion takes ten times as long.
 */
inline std::optional<int> plainNumber(QStringView text)
{
    constexpr qsizetype mostDigits = 9; // always fits an int
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
