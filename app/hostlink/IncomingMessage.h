#pragma once

#include "DocumentStop.h"
#include "RecordOutline.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/**
 * What the host has written and nobody has handled yet.
 *
 * A message has no length and no end mark, and the system cuts a large one into several reads. A
 * small piece that comes alone is a whole message. In anything larger messages are told apart by
 * their prefix, and that the last one has ended is a guess, made when the host falls silent. A
 * wrong guess is taken back: what comes later without a prefix continues the document before, if
 * it can. Bytes that are no message of the host's are counted, not kept.
 */
class IncomingMessage
{
public:
    /** What comes alone and is smaller than this many bytes is a whole message. */
    static constexpr qsizetype smallPiece = 16 * 1024;

    /** More than this many bytes are not taken for a document. */
    static constexpr qsizetype largestMessage = 256 * 1024 * 1024;

    /** One message, or the rest of a document. */
    struct Message
    {
        /**
         * The text up to the first NUL, with its prefix; empty if it is no message of the host's.
         * Of the rest of a document, from the beginning of the record at which that stopped.
         */
        QString text;

        /** Of the rest of a document: how many of these characters came before. */
        std::optional<qsizetype> cameBefore;
    };

    /** Adds what was read. */
    void append(const QByteArray &bytes);

    bool isEmpty() const { return m_received == 0; }

    /** Bytes that came so far, those that were not kept included. */
    qsizetype size() const { return m_received; }

    /** True if all that came is one small piece. */
    bool isOneSmallPiece() const { return m_pieces == 1 && m_received < smallPiece; }

    /** True if a message, or the rest of a document, has begun to arrive. */
    bool isFromHost() const { return !isEmpty() && m_origin != Origin::Foreign; }

    /** True if the last message breaks off within a record, or within its prefix. */
    bool isBrokenOff();

    /** Takes the first message; none if all that is left is broken off. */
    std::optional<Message> take();

    /** Drops what came and has not been taken, and the document that it may have continued. */
    void drop();

private:
    enum class Origin {
        Open, ///< nothing yet, or the first letters of the prefix
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

    QByteArray m_bytes; ///< those of the rest of a document behind the record where that stopped
    Origin m_origin = Origin::Open;
    qsizetype m_received = 0;
    int m_pieces = 0;
    QList<qsizetype> m_prefixReads;     ///< where in the bytes a piece begins as a prefix does
    std::optional<DocumentStop> m_stop; ///< of the document that was taken last, if it may go on

    // The first message that has not been taken, as offsets into the bytes; in order.
    qsizetype m_begin = 0;
    qsizetype m_searched = 0;               ///< no other message begins before
    qsizetype m_looked = 0;                 ///< up to here what follows is known
    qsizetype m_record = 0;                 ///< the record at m_looked
    qsizetype m_nul = -1;                   ///< the first NUL
    std::optional<RecordOutline> m_outline; ///< of the record at m_outlined
    qsizetype m_outlined = -1;
};
