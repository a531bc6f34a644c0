#pragma once

#include <QByteArray>
#include <QRandomGenerator>

/** Seeded chance that makes records and messages as no host should send them. */
class HostileRecords
{
public:
    explicit HostileRecords(quint32 seed)
        : m_chance(seed)
    {}

    /** A record: sound, mutated, or rubbish. */
    QByteArray record();

    /** What follows the host's prefix: a state, or a document of a few records. */
    QByteArray payload();

    /** A whole message, whose prefix may be damaged as well. */
    QByteArray message();

    /** True once in `times`. */
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
