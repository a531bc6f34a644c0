#pragma once

#include <QByteArray>
#include <QString>

/**
 * One message from the host while it arrives.
 *
 * A message has no length and no end mark, and the system cuts a large one into several reads. A
 * small piece that comes alone is a whole message; of anything larger the end is only known by
 * the host falling silent. Bytes that are no message of the host's are counted, not kept.
 */
class IncomingMessage
{
public:
    /** What comes alone and is smaller than this many bytes is a whole message. */
    static constexpr qsizetype smallPiece = 16 * 1024;

    /** More than this many bytes are not taken for a document. */
    static constexpr qsizetype largestMessage = 256 * 1024 * 1024;

    /** Adds what was read. */
    void append(const QByteArray &bytes);

    bool isEmpty() const { return m_received == 0; }

    /** Bytes that came so far, those that were not kept included. */
    qsizetype size() const { return m_received; }

    /** True if all that came is one small piece. */
    bool isOneSmallPiece() const { return m_pieces == 1 && m_received < smallPiece; }

    /** True if the message does not break off within a record. */
    bool endsWithRecord() const;

    /** The text up to the first NUL, which is empty if this is no message of the host's. */
    QString take();

private:
    bool isFromHost() const;

    QByteArray m_bytes;
    qsizetype m_received = 0;
    int m_pieces = 0;
};
