#pragma once

#include <QList>
#include <QString>

/**
 * What is to be sent to the host, in order, while an earlier message is still on its way.
 *
 * A document is only noted, not kept: it is written out when its turn comes, so the newest state
 * is what the host gets, and a host that does not read costs no memory.
 */
class Outbox
{
public:
    /** A command, or the document where `command` is empty. */
    struct Message
    {
        QString command;
        bool isDocument() const { return command.isEmpty(); }
    };

    /** Notes that the document is to be sent; right behind another such note it adds nothing. */
    void addDocument();

    /** Adds a command. Of very many that nobody reads the oldest are dropped. */
    void addCommand(const QString &command);

    bool isEmpty() const { return m_messages.isEmpty(); }
    Message takeFirst() { return m_messages.takeFirst(); }
    void clear() { m_messages.clear(); }

private:
    QList<Message> m_messages;
};
