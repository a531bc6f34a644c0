#pragma once

#include <QByteArray>
#include <QList>

/**
 * Splits what the editor writes to its host into messages. They have no end mark and may run
 * together, so a document is read line by line up to the start of the next message. Its content is
 * dropped: a document only says that an edit is complete, and the scene has its result.
 */
class HostInbox
{
public:
    enum class Message { Document, Raise, Undo, Redo };

    /** Adds bytes and returns the messages that they complete. */
    QList<Message> append(const QByteArray &bytes);

private:
    bool takeMessageStart(QList<Message> &messages);
    bool takeDocumentLine();

    QByteArray m_bytes;
    bool m_inDocument = false;
    bool m_inTextBlock = false;
};
