#include "IncomingMessage.h"

#include "HostMessages.h"
#include "Logging.h"
#include "Records.h"

#include <algorithm>

namespace
{
const QByteArray &prefix()
{
    static const QByteArray bytes = HostMessages::fromHost.toLatin1();
    return bytes;
}

/** True if the bytes begin with the prefix or are a part of it. */
bool beginsAsMessage(QByteArrayView bytes)
{
    return prefix().startsWith(bytes.first(qMin(prefix().size(), bytes.size())));
}
} // namespace

void IncomingMessage::append(const QByteArray &bytes)
{
    forgetTaken();
    ++m_pieces;
    m_received += bytes.size();
    if (m_origin == Origin::Foreign)
        return;
    // A partial prefix followed by a whole one: drop the message that had begun.
    if (m_origin == Origin::Open && originOf(m_bytes + bytes) == Origin::Foreign)
        m_bytes.clear();
    if (beginsAsMessage(bytes))
        m_prefixReads.append(m_bytes.size());
    m_bytes += bytes;
    if (m_origin == Origin::Open)
        decideOrigin();
    const qsizetype before = m_origin == Origin::Continuation ? m_stop->size() : 0;
    if (m_origin != Origin::Foreign && before + m_received > largestMessage) {
        qCWarning(lcTonquill) << "a message of more than" << largestMessage << "bytes is ignored";
        m_origin = Origin::Foreign;
        m_bytes.clear();
    }
}

IncomingMessage::Origin IncomingMessage::originOf(const QByteArray &bytes) const
{
    if (bytes.startsWith(prefix()))
        return Origin::Message;
    if (prefix().startsWith(bytes))
        return Origin::Open;
    return m_stop && m_stop->canGoOnWith(bytes) ? Origin::Continuation : Origin::Foreign;
}

void IncomingMessage::decideOrigin()
{
    m_origin = originOf(m_bytes.sliced(m_begin));
    if (m_origin == Origin::Open)
        return;
    if (m_origin == Origin::Continuation) {
        const QByteArray &record = m_stop->record();
        m_bytes.insert(m_begin, record);
        for (qsizetype &read : m_prefixReads)
            read += record.size();
        m_searched = m_begin + record.size();
        m_looked = m_record = m_begin;
        return;
    }
    m_stop.reset();
    m_looked = m_record = m_searched = m_begin + prefix().size();
    if (m_origin == Origin::Foreign)
        m_bytes.clear();
}

/** Removes all taken messages at once; doing it for each would move the rest every time. */
void IncomingMessage::forgetTaken()
{
    m_outline.reset();
    if (m_begin == 0)
        return;
    m_bytes.remove(0, m_begin);
    m_prefixReads.removeIf([this](qsizetype read) { return read < m_begin; });
    for (qsizetype &read : m_prefixReads)
        read -= m_begin;
    for (qsizetype *offset : {&m_searched, &m_looked, &m_record})
        *offset -= m_begin;
    if (m_nul >= 0)
        m_nul -= m_begin;
    m_begin = 0;
}

/** The rest after a message always counts as more than one piece. */
void IncomingMessage::beginAt(qsizetype offset)
{
    m_begin = offset;
    m_received = m_bytes.size() - offset;
    m_pieces = 2;
    m_nul = -1;
    m_outline.reset();
    if (m_received > 0) {
        decideOrigin();
        return;
    }
    m_bytes.clear();
    m_prefixReads.clear();
    m_begin = 0;
    m_pieces = 0;
}

bool IncomingMessage::isBrokenOff()
{
    if (m_origin == Origin::Open)
        return !isEmpty();
    if (m_origin == Origin::Foreign)
        return false;
    look(m_bytes.size());
    if (m_nul >= 0)
        return false;
    const QByteArrayView record = QByteArrayView(m_bytes).sliced(m_record);
    return RecordOutline(record).isBrokenOff() ||
           (isState(m_bytes.size()) && RecordBeginning::isBegunState(record));
}

std::optional<IncomingMessage::Message> IncomingMessage::take()
{
    if (isEmpty() || m_origin == Origin::Open)
        return std::nullopt;
    if (m_origin == Origin::Foreign) {
        drop();
        return Message{};
    }
    // A single piece is one message, whatever it contains.
    const bool isOne = m_origin == Origin::Message && isOneSmallPiece();
    qsizetype end = isOne ? -1 : nextStart();
    if (end < 0)
        end = begunPrefix();
    if (end < 0) {
        if (isBrokenOff())
            return std::nullopt;
        end = m_bytes.size();
    }
    look(end);
    const QByteArrayView text =
        QByteArrayView(m_bytes).sliced(m_begin, (m_nul < 0 ? end : m_nul) - m_begin);
    Message message{QString::fromLatin1(text), std::nullopt};
    if (m_origin == Origin::Continuation) {
        message.cameBefore = m_stop->record().size();
        m_stop->moveTo(text);
    } else {
        m_stop.emplace(text.sliced(prefix().size()));
    }
    // A state cannot continue, nor can a message that a NUL has ended.
    if (m_nul >= 0 || RecordBeginning::isState(m_stop->record()))
        m_stop.reset();
    m_origin = Origin::Open;
    beginAt(end);
    return message;
}

void IncomingMessage::drop()
{
    *this = IncomingMessage();
}

/** The offset of the next message, or -1. */
qsizetype IncomingMessage::nextStart()
{
    // A single piece was examined as one message, but more has arrived since.
    if (m_looked - m_searched >= prefix().size()) {
        m_looked = m_record = m_searched;
        m_nul = -1;
    }
    qsizetype hit = m_bytes.indexOf(prefix(), m_searched);
    while (hit >= 0 && !isStart(hit, true))
        hit = m_bytes.indexOf(prefix(), hit + 1);
    m_searched = hit >= 0 ? hit : qMax(m_searched, m_bytes.size() - prefix().size() + 1);
    return hit;
}

/** The offset of the next message if the bytes end with a part of its prefix, or -1. */
qsizetype IncomingMessage::begunPrefix()
{
    look(m_bytes.size());
    // Keywords begin with the letter of the prefix, and states contain it.
    if (isState(m_bytes.size()) ||
        RecordBeginning::isBegunKeyword(QByteArrayView(m_bytes).sliced(m_record)))
        return -1;
    const qsizetype least = m_origin == Origin::Message ? m_begin + prefix().size() : m_searched;
    for (qsizetype length = prefix().size() - 1; length > 0; --length) {
        const qsizetype at = m_bytes.size() - length;
        if (at >= least && prefix().startsWith(QByteArrayView(m_bytes).sliced(at)) &&
            isStart(at, false))
            return at;
    }
    return -1;
}

/** Finds the record that contains the bytes before `end`, and the first NUL among them. */
void IncomingMessage::look(qsizetype end)
{
    if (end <= m_looked)
        return;
    const QByteArrayView news = QByteArrayView(m_bytes).sliced(m_looked, end - m_looked);
    const qsizetype nul = m_nul < 0 ? news.indexOf('\0') : -1;
    if (nul >= 0)
        m_nul = m_looked + nul;
    const qsizetype separator = news.lastIndexOf('|');
    if (separator >= 0)
        m_record = m_looked + separator + 1;
    m_looked = end;
}

/** True if the whole or partial prefix at this offset begins another message. */
bool IncomingMessage::isStart(qsizetype at, bool isWholePrefix)
{
    look(at);
    const bool isRead = std::binary_search(m_prefixReads.cbegin(), m_prefixReads.cend(), at);
    if (m_nul >= 0)
        return isRead || m_bytes.at(at - 1) == '\0';
    if (isState(at))
        return true;
    const RecordOutline &record = outline(at);
    if (record.mayEndAt(at - m_record))
        return true;
    if (!isRead)
        return false;
    return !record.isTextAt(at - m_record) || (isWholePrefix && !goesOnAsText(at));
}

/** True if the whole message before `end` is a state or the beginning of one. */
bool IncomingMessage::isState(qsizetype end) const
{
    const bool isContinuation = m_origin == Origin::Continuation;
    if (isContinuation && !m_stop->isAtBeginning())
        return false;
    const qsizetype payload = isContinuation ? m_begin : m_begin + prefix().size();
    const QByteArrayView text = QByteArrayView(m_bytes).sliced(payload, end - payload);
    return RecordBeginning::isState(text) || RecordBeginning::isBegunState(text);
}

/**
 * A prefix within a text and right after a pause may have been typed by the user. Then it is not
 * followed by a message, or the text's end mark follows before another text block begins.
 */
bool IncomingMessage::goesOnAsText(qsizetype at) const
{
    static const QByteArray beginMark = Records::textblockKeyword().toLatin1();
    static const QByteArray endMark = Records::textblockEnd().toLatin1();
    const QByteArrayView all = QByteArrayView(m_bytes).sliced(at + prefix().size());
    const QByteArrayView rest = all.first(qMin(all.size(), smallPiece));
    const bool isMessage = rest.isEmpty() || RecordBeginning::beginsLikeKeyword(rest) ||
                           RecordBeginning::beginsLikeState(rest);
    const qsizetype begin = rest.indexOf(beginMark);
    const qsizetype end = rest.indexOf(endMark);
    return !isMessage || (end >= 0 && (begin < 0 || end < begin));
}

/**
 * The outline of the record at `at`, up to its separator; cached for the calls for one long record.
 */
const RecordOutline &IncomingMessage::outline(qsizetype at)
{
    if (!m_outline || m_outlined != m_record) {
        const qsizetype separator = m_bytes.indexOf('|', at);
        const qsizetype end = separator < 0 ? m_bytes.size() : separator;
        m_outline.emplace(QByteArrayView(m_bytes).sliced(m_record, end - m_record));
        m_outlined = m_record;
    }
    return *m_outline;
}
