#pragma once

#include <QByteArrayView>

/**
 * Analyses the bytes of a record that may still be incomplete: whether it is complete, can still
 * become complete, and where in it another message may begin. Offsets are from its first byte.
 */
class RecordOutline
{
public:
    /** `record` is the bytes between two separators or after the last one; they are not copied. */
    explicit RecordOutline(QByteArrayView record);

    /** True if the bytes are an incomplete record. */
    bool isBrokenOff() const;

    /** True if the record is known and complete, and has more fields than it needs. */
    bool hasSurplus() const;

    /** True if the record is a text block with its end mark. */
    bool isWholeBlock() const { return m_kind == Kind::Block && m_wholeFrom >= 0; }

    /** True if the record is a text block that lacks its end mark. */
    bool isOpenBlock() const { return m_kind == Kind::Block && m_wholeFrom < 0; }

    /** True if the record begins with a keyword of a document and a space. */
    bool isKnown() const { return m_kind != Kind::Other && m_kind != Kind::KeywordBegun; }

    /** True if the byte at this offset may belong to text of the user, which may be anything. */
    bool isTextAt(qsizetype at) const;

    /**
     * True if the record, complete or not, can end at this offset with another message after it.
     */
    bool mayEndAt(qsizetype at) const;

    /** True if the text after the last space looks like a number. */
    static bool endsWithNumber(QByteArrayView bytes);

private:
    enum class Kind { Other, KeywordBegun, Numbers, Text, Block };

    void readFields(qsizetype from, int needed);
    void readBlock(qsizetype from);

    QByteArrayView m_record;
    Kind m_kind = Kind::Other;
    qsizetype m_bodyFrom = -1;  ///< of a text block: after its first line; -1 if unknown
    qsizetype m_wholeFrom = -1; ///< the record is complete from here on; -1 if incomplete
};

namespace RecordBeginning
{
/** True if the bytes are a keyword or the beginning of one, without the space after it. */
bool isBegunKeyword(QByteArrayView bytes);

/** True if the bytes begin with the common prefix of keywords, or are a part of it. */
bool beginsLikeKeyword(QByteArrayView bytes);

/** True if the bytes are a complete state of the host. */
bool isState(QByteArrayView bytes);

/** True if the bytes are an incomplete state. */
bool isBegunState(QByteArrayView bytes);

/**
 * True if the bytes are a complete or incomplete state, with nothing but another message after it.
 */
bool beginsLikeState(QByteArrayView bytes);
} // namespace RecordBeginning
