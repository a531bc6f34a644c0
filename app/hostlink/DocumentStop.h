#pragma once

#include <QByteArray>

/**
 * Where a document of the host's stopped when it was taken for whole. That may have been too soon:
 * bytes that come later without a message's prefix are the rest of it, if they can go on there.
 */
class DocumentStop
{
public:
    /** Of a document, the text behind the prefix. */
    explicit DocumentStop(QByteArrayView payload);

    /** Of the same document once it went on: `text` begins with record() and what it became. */
    void moveTo(QByteArrayView text);

    /** True if bytes that begin like these can be the rest of the document. */
    bool canGoOnWith(QByteArrayView bytes) const;

    /** The last record so far: what stands behind the last separator. */
    const QByteArray &record() const { return m_record; }

    /** True if nothing has come of the document yet. */
    bool isAtBeginning() const { return m_size == 0; }

    /** Bytes of the document so far. */
    qsizetype size() const { return m_size; }

private:
    void look(QByteArrayView text);

    QByteArray m_record;
    qsizetype m_size = 0;
    bool m_isWithinBlock = false; ///< a separator stood in a text block's text
};
