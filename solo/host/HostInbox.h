#pragma once

#include <QByteArray>
#include <QList>

/**
 * What the editor writes to its host, taken apart. Messages have no end mark and may run together,
 * so a document is followed line by line up to where the next message begins. Of a document only
 * that one came is told: it says that an edit is complete, and the scene says which.
 */
class HostInbox
{
public:
    enum class Message { Document, Raise, Undo, Redo };

    /** Adds what was read; the answer is the messages that it made known. */
    QList<Message> append(const QByteArray &bytes);

private:
    bool takeMessageStart(QList<Message> &messages);
    bool takeDocumentLine();

    QByteArray m_bytes;
    bool m_inDocument = false;
    bool m_inTextBlock = false;
};
