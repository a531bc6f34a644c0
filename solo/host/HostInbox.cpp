#include "HostInbox.h"

#include "HostMessages.h"
#include "Records.h"

#include <utility>

namespace
{
const QByteArray prefix = HostMessages::toHost.toLatin1();
const QByteArray blockBegin = Records::textblockKeyword().toLatin1() + ' ';
const QByteArray blockEnd = Records::textblockEnd().toLatin1() + '\n';
const QByteArray commandBegin = QByteArrayLiteral("command:");

const QList<std::pair<QByteArray, HostInbox::Message>> &commands()
{
    using Message = HostInbox::Message;
    static const QList<std::pair<QByteArray, Message>> table{
        {HostMessages::commandRaise.toLatin1(), Message::Raise},
        {HostMessages::commandUndo.toLatin1(), Message::Undo},
        {HostMessages::commandRedo.toLatin1(), Message::Redo},
    };
    return table;
}

/** True if more bytes could make `bytes` begin with `wanted`. */
bool mayBecome(const QByteArray &bytes, const QByteArray &wanted)
{
    return bytes.size() < wanted.size() && wanted.startsWith(bytes);
}
} // namespace

QList<HostInbox::Message> HostInbox::append(const QByteArray &bytes)
{
    m_bytes += bytes;
    QList<Message> messages;
    while (m_inDocument ? takeDocumentLine() : takeMessageStart(messages)) {
    }
    return messages;
}

/** False if more bytes are needed. */
bool HostInbox::takeMessageStart(QList<Message> &messages)
{
    const QByteArray text = m_bytes.sliced(qMin(prefix.size(), m_bytes.size()));
    if (m_bytes.size() <= prefix.size() || mayBecome(text, commandBegin))
        return false;
    for (const auto &[command, message] : commands()) {
        if (text.startsWith(command)) {
            messages.append(message);
            m_bytes = text.sliced(command.size());
            return !m_bytes.isEmpty();
        }
        if (mayBecome(text, command))
            return false;
    }
    messages.append(Message::Document);
    m_bytes = text;
    m_inDocument = true;
    return true;
}

/** False if more bytes are needed. */
bool HostInbox::takeDocumentLine()
{
    if (!m_inTextBlock && m_bytes.startsWith(prefix)) {
        m_inDocument = false;
        return true;
    }
    const qsizetype end = m_bytes.indexOf('\n');
    if (end < 0)
        return false;
    const QByteArray line = m_bytes.first(end + 1);
    m_bytes.remove(0, end + 1);
    if (line.startsWith(blockBegin))
        m_inTextBlock = true;
    else if (line.endsWith(blockEnd))
        m_inTextBlock = false;
    return true;
}
