#include "IncomingMessage.h"

#include "HostMessages.h"
#include "Logging.h"
#include "Records.h"

void IncomingMessage::append(const QByteArray &bytes)
{
    ++m_pieces;
    m_received += bytes.size();
    if (m_received > largestMessage) {
        qCWarning(lcTonquill) << "a message of more than" << largestMessage << "bytes is ignored";
        m_bytes.clear();
    } else if (m_pieces == 1 || isFromHost()) {
        m_bytes += bytes;
        if (!isFromHost())
            m_bytes.clear();
    }
}

bool IncomingMessage::isFromHost() const
{
    const QByteArray prefix = HostMessages::fromHost.toLatin1();
    return prefix.startsWith(m_bytes.first(qMin(prefix.size(), m_bytes.size()))) &&
           !m_bytes.isEmpty();
}

bool IncomingMessage::endsWithRecord() const
{
    if (m_bytes.endsWith('\n') || m_bytes.endsWith('|'))
        return true;
    // Asked with every piece, so only the end is looked at: hardly a record is longer.
    const QByteArray tail = m_bytes.last(qMin(m_bytes.size(), smallPiece));
    const QByteArray last = tail.sliced(tail.lastIndexOf('|') + 1);
    return !std::holds_alternative<std::monostate>(Records::parse(QString::fromLatin1(last)));
}

QString IncomingMessage::take()
{
    const qsizetype end = m_bytes.indexOf('\0');
    const QString text = QString::fromLatin1(end < 0 ? m_bytes : m_bytes.first(end));
    *this = IncomingMessage();
    return text;
}
