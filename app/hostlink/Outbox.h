#pragma once

#include <QList>
#include <QString>

/**
 * The queue of messages to the host while an earlier one is being sent.
 *
 * A document is only queued as a note and written when it is sent, so the host gets the latest
 * state, and a host that does not read takes no memory.
 */
class Outbox
{
public:
    /** A command; the document if `command` is empty. */
    struct Message
    {
        QString command;
        bool isDocument() const { return command.isEmpty(); }
    };

    /** Queues the document, unless it is already the last entry. */
    void addDocument();

    /** Queues a command. The oldest are dropped when the host does not read very many. */
    void addCommand(const QString &command);

    bool isEmpty() const { return m_messages.isEmpty(); }
    Message takeFirst() { return m_messages.takeFirst(); }
    void clear() { m_messages.clear(); }

private:
    QList<Message> m_messages;
};
