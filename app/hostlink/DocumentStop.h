#pragma once

#include <QByteArray>

/**
 * The point where a document of the host ended when it was considered complete. That may have been
 * too early: later bytes without a prefix are the rest of it if they can continue it.
 */
class DocumentStop
{
public:
    /** `payload` is the document's text after the prefix. */
    explicit DocumentStop(QByteArrayView payload);

    /**
     * Moves to the new end after the document has continued; `text` begins with the completed
     * record().
     */
    void moveTo(QByteArrayView text);

    /** True if these bytes can be the beginning of the document's rest. */
    bool canGoOnWith(QByteArrayView bytes) const;

    /** The last record so far: the text after the last separator. */
    const QByteArray &record() const { return m_record; }

    /** True if no byte of the document has been received. */
    bool isAtBeginning() const { return m_size == 0; }

    /** The size of the document so far, in bytes. */
    qsizetype size() const { return m_size; }

private:
    void look(QByteArrayView text);

    QByteArray m_record;
    qsizetype m_size = 0;
    bool m_isWithinBlock = false; ///< a text block contains a separator
};
