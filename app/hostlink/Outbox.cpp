#include "Outbox.h"

namespace
{
constexpr qsizetype mostMessages = 256;
} // namespace

void Outbox::addDocument()
{
    if (m_messages.isEmpty() || !m_messages.constLast().isDocument())
        m_messages.append(Message{});
}

void Outbox::addCommand(const QString &command)
{
    while (m_messages.size() >= mostMessages)
        m_messages.removeFirst();
    m_messages.append(Message{command});
}
