#include "DocumentStop.h"

#include "HostMessages.h"
#include "RecordOutline.h"
#include "Records.h"

namespace
{
/**
 * True if the last record, or one split by stray separators, is a text block without its end mark.
 */
bool endsWithinBlock(QByteArrayView text, bool before)
{
    static const QByteArray endMark = Records::textblockEnd().toLatin1();
    for (qsizetype separator = 0; separator >= 0;) {
        separator = text.lastIndexOf('|');
        const QByteArrayView record = text.sliced(separator + 1);
        const RecordOutline outline(record);
        if (outline.isKnown() || record.contains(endMark))
            return outline.isOpenBlock();
        text = text.first(qMax<qsizetype>(separator, 0));
    }
    return before;
}
} // namespace

DocumentStop::DocumentStop(QByteArrayView payload)
    : m_size(payload.size())
{
    look(payload);
}

void DocumentStop::moveTo(QByteArrayView text)
{
    m_size += text.size() - m_record.size();
    look(text);
}

void DocumentStop::look(QByteArrayView text)
{
    m_isWithinBlock = endsWithinBlock(text, m_isWithinBlock);
    m_record = text.sliced(text.lastIndexOf('|') + 1).toByteArray();
}

bool DocumentStop::canGoOnWith(QByteArrayView bytes) const
{
    if (bytes.startsWith('|') || bytes.startsWith('\n'))
        return true;
    if (m_record.isEmpty()) {
        const bool isState =
            RecordBeginning::isState(bytes) || RecordBeginning::isBegunState(bytes);
        return m_isWithinBlock || RecordBeginning::beginsLikeKeyword(bytes) ||
               (isAtBeginning() && isState);
    }
    if (m_record.endsWith('\n'))
        return false;
    const RecordOutline outline(m_record);
    if (bytes.startsWith(' '))
        return true;
    if (outline.isWholeBlock())
        return false;
    const bool stopsAtNumber = m_record.endsWith(' ') || RecordOutline::endsWithNumber(m_record);
    // A number continues with characters of numbers, including the letters of colours.
    if (outline.isKnown() && !outline.hasSurplus() && stopsAtNumber)
        return QByteArrayView("0123456789abcdef.+-").contains(bytes.front());
    // A word continues with anything except the end of a cut message before a prefix.
    const qsizetype separator = bytes.indexOf('|');
    return !bytes.first(separator < 0 ? bytes.size() : separator)
                .contains(HostMessages::fromHost.toLatin1());
}
