#pragma once

#include <QList>
#include <QPointF>
#include <QRandomGenerator>
#include <QString>

/** Seeded chance: the same seed makes the same monkey. */
class Randomness
{
public:
    explicit Randomness(quint32 seed)
        : m_generator(seed)
    {}

    /** A number from 0 to `bound` - 1. */
    int below(int bound) { return static_cast<int>(m_generator.bounded(bound)); }

    /** True once in `times`. */
    bool onceIn(int times) { return below(times) == 0; }

    double between(double low, double high)
    {
        return low + m_generator.generateDouble() * (high - low);
    }

    template <typename T>
    T oneOf(const QList<T> &choices)
    {
        return choices[below(static_cast<int>(choices.size()))];
    }

    /** A word of letters, digits, signs and blanks that may be empty. */
    QString text()
    {
        static const QString alphabet = QStringLiteral("abcXYZ 0123%&\u00e9\u266f-_.");
        QString result;
        for (int length = below(12); length > 0; --length)
            result += alphabet[below(static_cast<int>(alphabet.size()))];
        return result;
    }

private:
    QRandomGenerator m_generator;
};
