#pragma once

#include <QByteArrayView>

/**
 * What the bytes of a record tell before all of them are there: whether it is whole, whether it
 * can still become so, and where in it another message may begin. Offsets count from its beginning.
 */
class RecordOutline
{
public:
    /** Of the bytes between two separators, or behind the last one. */
    explicit RecordOutline(QByteArrayView record);

    /** True for a proper beginning of something that can become a record. */
    bool isBrokenOff() const;

    /** True if the record is known, lacks nothing, and has more fields than it needs. */
    bool hasSurplus() const;

    /** True if the record is a text block with its end mark. */
    bool isWholeBlock() const { return m_kind == Kind::Block && m_wholeFrom >= 0; }

    /** True if the record is a text block that lacks its end mark. */
    bool isOpenBlock() const { return m_kind == Kind::Block && m_wholeFrom < 0; }

    /** True if the record has a keyword of a document, and a blank behind it. */
    bool isKnown() const { return m_kind != Kind::Other && m_kind != Kind::KeywordBegun; }

    /** True if what the user typed may stand at this place, which may be anything. */
    bool isTextAt(qsizetype at) const;

    /** True if the record is over at this place, whole or not, if a message begins there. */
    bool mayEndAt(qsizetype at) const;

    /** True if what stands behind the last blank is written as numbers are. */
    static bool endsWithNumber(QByteArrayView bytes);

private:
    enum class Kind { Other, KeywordBegun, Numbers, Text, Block };

    void readFields(qsizetype from, int needed);
    void readBlock(qsizetype from);

    QByteArrayView m_record;
    Kind m_kind = Kind::Other;
    qsizetype m_bodyFrom = -1;  ///< of a text block: behind its first line
    qsizetype m_wholeFrom = -1; ///< from here on nothing is lacking
};

namespace RecordBeginning
{
/** True if these are the first letters of a keyword, but not all of it. */
bool isBegunKeyword(QByteArrayView bytes);

/** True if these begin as all keywords do, or are a beginning of that. */
bool beginsLikeKeyword(QByteArrayView bytes);

/** True if these are a state of the host's, whole. */
bool isState(QByteArrayView bytes);

/** True if these are the first letters of a state, but not all of it. */
bool isBegunState(QByteArrayView bytes);

/** True if these are a state, whole or in part, and nothing but another message behind it. */
bool beginsLikeState(QByteArrayView bytes);
} // namespace RecordBeginning
