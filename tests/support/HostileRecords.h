#pragma once

#include <QByteArray>
#include <QRandomGenerator>

/** Generates random malformed records and messages from a seed. */
class HostileRecords
{
public:
    explicit HostileRecords(quint32 seed)
        : m_chance(seed)
    {}

    /** A record: valid, mutated or random. */
    QByteArray record();

    /** The text after the host's prefix: a state, or a document of a few records. */
    QByteArray payload();

    /** A whole message, possibly with a damaged prefix. */
    QByteArray message();

    /** True once in `times` on average. */
    bool onceIn(int times) { return m_chance.bounded(times) == 0; }

    /** An offset for TonquillScene::constructItem(). */
    int offset();

private:
    QByteArray soundRecord();
    QByteArray field();
    QByteArray rubbish();
    void mutate(QByteArray &bytes);
    int below(qsizetype bound) { return m_chance.bounded(static_cast<int>(bound)); }

    QRandomGenerator m_chance;
};
