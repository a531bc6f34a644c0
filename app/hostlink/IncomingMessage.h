#pragma once

#include "DocumentStop.h"
#include "RecordOutline.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/**
 * The data of the host that has been read but not handled.
 *
 * A message has no length and no end mark, and the system splits large ones into several reads. A
 * small piece that arrives alone is a whole message. Larger data is split at prefixes, and the last
 * message is assumed to be complete when the host is quiet. If that was wrong, later data without a
 * prefix continues the previous document if possible. Data that is not from a host is counted but
 * not stored.
 */
class IncomingMessage
{
public:
    /** A single piece of fewer bytes is a whole message. */
    static constexpr qsizetype smallPiece = 16 * 1024;

    /** Messages of more bytes are not accepted. */
    static constexpr qsizetype largestMessage = 256 * 1024 * 1024;

    /** One message, or the rest of a document. */
    struct Message
    {
        /**
         * The text up to the first NUL, with its prefix; empty if it is not from a host. The rest
         * of a document begins with the record at which the document stopped.
         */
        QString text;

        /**
         * For the rest of a document, how many of these characters are already known; else nullopt.
         */
        std::optional<qsizetype> cameBefore;
    };

    /** Adds the bytes of one read. */
    void append(const QByteArray &bytes);

    bool isEmpty() const { return m_received == 0; }

    /** The number of bytes received so far, including those that are not stored. */
    qsizetype size() const { return m_received; }

    /** True if only one small piece was received. */
    bool isOneSmallPiece() const { return m_pieces == 1 && m_received < smallPiece; }

    /** True if a message, or the rest of a document, has begun to arrive. */
    bool isFromHost() const { return !isEmpty() && m_origin != Origin::Foreign; }

    /** True if the last message ends within a record or within its prefix. */
    bool isBrokenOff();

    /** Removes and returns the first message; nullopt if there is no complete one. */
    std::optional<Message> take();

    /** Drops all data that was not taken, and the document that it could continue. */
    void drop();

private:
    enum class Origin {
        Open, ///< nothing yet, or a part of the prefix
        Message,
        Continuation,
        Foreign
    };

    Origin originOf(const QByteArray &bytes) const;
    void decideOrigin();
    void forgetTaken();
    void beginAt(qsizetype offset);

    qsizetype nextStart();
    qsizetype begunPrefix();
    void look(qsizetype end);
    bool isStart(qsizetype at, bool isWholePrefix);
    bool isState(qsizetype end) const;
    bool goesOnAsText(qsizetype at) const;
    const RecordOutline &outline(qsizetype at);

    QByteArray m_bytes; ///< a document's rest is stored after the record at which it stopped
    Origin m_origin = Origin::Open;
    qsizetype m_received = 0;
    int m_pieces = 0;
    QList<qsizetype> m_prefixReads;     ///< offsets of pieces that begin like a prefix
    std::optional<DocumentStop> m_stop; ///< of the last document, if it may continue

    // The first message that was not taken, as ascending offsets into the bytes.
    qsizetype m_begin = 0;
    qsizetype m_searched = 0;               ///< no other message begins before this
    qsizetype m_looked = 0;                 ///< the bytes up to here were examined
    qsizetype m_record = 0;                 ///< the record at m_looked
    qsizetype m_nul = -1;                   ///< the first NUL
    std::optional<RecordOutline> m_outline; ///< of the record at m_outlined
    qsizetype m_outlined = -1;
};
