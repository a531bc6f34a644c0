#include "RecordOutline.h"

#include "HostMessages.h"
#include "Records.h"

#include <algorithm>

namespace
{
/** Longer than any meaningful number. */
constexpr qsizetype longestNumber = 32;

/** A keyword as in messages, and the number of fields that it needs. */
struct Keyword
{
    QByteArray text;
    int fields;
};

const QList<Keyword> &keywords()
{
    static const QList<Keyword> table = [] {
        QList<Keyword> result;
        for (const Records::Kind &kind : Records::kinds())
            result.append({kind.keyword.toLatin1(), kind.fields});
        return result;
    }();
    return table;
}

const QByteArrayList &states()
{
    static const QByteArrayList table{HostMessages::stateActivate.toLatin1(),
                                      HostMessages::stateNothingToUndo.toLatin1(),
                                      HostMessages::stateNothingToRedo.toLatin1()};
    return table;
}

bool isProperBeginning(QByteArrayView bytes, const QByteArray &whole)
{
    return !bytes.isEmpty() && bytes.size() < whole.size() && whole.startsWith(bytes);
}
} // namespace

RecordOutline::RecordOutline(QByteArrayView record)
    : m_record(record)
{
    const qsizetype blank = record.indexOf(' ');
    if (blank < 0) {
        if (RecordBeginning::isBegunKeyword(record))
            m_kind = Kind::KeywordBegun;
        return;
    }
    const QByteArrayView first = record.first(blank);
    const auto found = std::find_if(keywords().cbegin(), keywords().cend(),
                                    [first](const Keyword &k) { return k.text == first; });
    if (found == keywords().cend())
        return;
    if (found->text == Records::textblockKeyword().toLatin1()) {
        readBlock(blank + 1);
        return;
    }
    m_kind = found->text == Records::textKeyword().toLatin1() ? Kind::Text : Kind::Numbers;
    readFields(blank + 1, found->fields);
}

/** The last field may be empty, so it is complete with the space before it. */
void RecordOutline::readFields(qsizetype from, int needed)
{
    for (int field = 1; field < needed; ++field) {
        const qsizetype blank = m_record.indexOf(' ', from);
        if (blank < 0)
            return;
        from = blank + 1;
    }
    m_wholeFrom = from;
}

void RecordOutline::readBlock(qsizetype from)
{
    static const QByteArray endMark = Records::textblockEnd().toLatin1();
    m_kind = Kind::Block;
    const qsizetype lineEnd = m_record.indexOf('\n', from);
    if (lineEnd < 0)
        return;
    m_bodyFrom = lineEnd + 1;
    const qsizetype end = m_record.indexOf(endMark, m_bodyFrom);
    if (end >= 0)
        m_wholeFrom = end + endMark.size();
}

/** A line end also ends an incomplete record, since no record contains one. */
bool RecordOutline::isBrokenOff() const
{
    if (m_kind == Kind::KeywordBegun)
        return true;
    return isKnown() && m_wholeFrom < 0 && (m_kind == Kind::Block || !m_record.endsWith('\n'));
}

bool RecordOutline::hasSurplus() const
{
    return isKnown() && m_kind != Kind::Block && m_wholeFrom >= 0 &&
           m_record.indexOf(' ', m_wholeFrom) >= 0;
}

bool RecordOutline::isTextAt(qsizetype at) const
{
    if (m_kind == Kind::Block)
        return m_bodyFrom >= 0 && at >= m_bodyFrom && (m_wholeFrom < 0 || at < m_wholeFrom);
    return m_kind == Kind::Text;
}

bool RecordOutline::mayEndAt(qsizetype at) const
{
    const QByteArrayView before = m_record.first(at);
    if (m_kind == Kind::Block && isTextAt(at))
        return false;
    if (before.isEmpty() || before.endsWith('\n') || before.endsWith('\0'))
        return true;
    const bool isWhole = m_wholeFrom >= 0 && at >= m_wholeFrom;
    switch (m_kind) {
    case Kind::Numbers:
        return !isWhole || at == m_wholeFrom || endsWithNumber(before);
    case Kind::Text:
        return isWhole && endsWithNumber(before);
    case Kind::Block:
        return !isWhole || at == m_wholeFrom;
    case Kind::KeywordBegun:
    case Kind::Other:
        break;
    }
    return RecordBeginning::isBegunKeyword(before);
}

bool RecordOutline::endsWithNumber(QByteArrayView bytes)
{
    const QByteArrayView last = bytes.last(qMin(bytes.size(), longestNumber));
    const QByteArrayView word = last.sliced(last.lastIndexOf(' ') + 1);
    constexpr QByteArrayView letters("0123456789+-.e");
    return !word.isEmpty() && word.size() < longestNumber &&
           std::all_of(word.begin(), word.end(), [&](char c) { return letters.contains(c); });
}

bool RecordBeginning::isBegunKeyword(QByteArrayView bytes)
{
    // A keyword without the space after it is not complete either.
    return std::any_of(keywords().cbegin(), keywords().cend(), [bytes](const Keyword &keyword) {
        return isProperBeginning(bytes, keyword.text) || bytes == keyword.text;
    });
}

bool RecordBeginning::beginsLikeKeyword(QByteArrayView bytes)
{
    static const QByteArray common = QByteArrayLiteral("tonquill_");
    return bytes.startsWith(common) || isProperBeginning(bytes, common);
}

bool RecordBeginning::isState(QByteArrayView bytes)
{
    return std::any_of(states().cbegin(), states().cend(),
                       [bytes](const QByteArray &state) { return bytes == state; });
}

bool RecordBeginning::isBegunState(QByteArrayView bytes)
{
    return std::any_of(states().cbegin(), states().cend(), [bytes](const QByteArray &state) {
        return isProperBeginning(bytes, state);
    });
}

bool RecordBeginning::beginsLikeState(QByteArrayView bytes)
{
    const qsizetype next = bytes.indexOf(HostMessages::fromHost.toLatin1());
    const QByteArrayView first = next < 0 ? bytes : bytes.first(next);
    return isState(first) || isBegunState(first);
}
