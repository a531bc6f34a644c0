#include "HostileRecords.h"

#include <QList>

namespace
{
constexpr int aMillion = 1000000;

const QList<QByteArray> keywords{
    "tonquill_bitmap",          "tonquill_timesig", "tonquill_grandstaff",
    "tonquill_interactiveline", "tonquill_linetab", "tonquill_notetie",
    "tonquill_triplet",         "tonquill_text",    "tonquill_textblock_begin",
    "tonquill_pagecount",
};

const QList<QByteArray> strangeFields{
    "",           "0",          "-0",    "2147483647", "-2147483648",
    "2147483648", "4294967296", "1e308", "nan",        "-inf",
    "0.5",        "0x7f",       "-",     "+7",         "%1",
    "ffffffff",   "\t3",        "\n",    "1,000",      "99999999999999999999",
    "\xe9\xff",   "-1",         "1",     "65535",      "-65535",
    "16777216",   "Arial",
};
} // namespace

QByteArray HostileRecords::record()
{
    if (onceIn(20))
        return rubbish();
    QByteArray result = soundRecord();
    for (int times = below(4); times > 0; --times)
        mutate(result);
    return result;
}

QByteArray HostileRecords::payload()
{
    if (onceIn(50))
        return onceIn(2) ? "state:nothingtoundo" : "state:nothingtoredo";
    QByteArray result;
    for (int count = below(5); count > 0; --count)
        result += record() + (onceIn(20) ? "" : "|");
    if (onceIn(10))
        mutate(result);
    return result;
}

QByteArray HostileRecords::message()
{
    QByteArray result = "tw2tonquill " + payload();
    if (onceIn(10))
        mutate(result);
    return onceIn(20) ? rubbish() : result;
}

int HostileRecords::offset()
{
    static const QList<int> offsets{0, 0, 0, 30, -65535, -1, 2147483647, -2147483647 - 1};
    return offsets[below(offsets.size())];
}

QByteArray HostileRecords::soundRecord()
{
    const QByteArray keyword = keywords[below(keywords.size())];
    QByteArray result = keyword;
    for (int fields = 9; fields > 0; --fields)
        result += ' ' + (onceIn(4) ? field() : QByteArray::number(below(1000) - 200));
    result += '\n';
    if (keyword == "tonquill_textblock_begin")
        result += rubbish() + "\ntonquill_textblock_end\n";
    return result;
}

QByteArray HostileRecords::field()
{
    if (onceIn(3))
        return QByteArray::number(static_cast<int>(m_chance.generate()));
    return strangeFields[below(strangeFields.size())];
}

QByteArray HostileRecords::rubbish()
{
    QByteArray result(below(60), '\0');
    for (char &byte : result)
        byte = static_cast<char>(m_chance.bounded(256));
    return result;
}

/** Changes one bit, byte, end or part; very rarely inserts a million spaces. */
void HostileRecords::mutate(QByteArray &bytes)
{
    const qsizetype place = below(bytes.size() + 1);
    switch (below(7)) {
    case 0:
        bytes.truncate(place);
        break;
    case 1:
        bytes.insert(place, '\0');
        break;
    case 2:
        bytes.insert(place, static_cast<char>(128 + below(128)));
        break;
    case 3:
        bytes.insert(place, ' ' + field() + ' ');
        break;
    case 4:
        bytes.remove(place, 1 + below(8));
        break;
    case 5:
        bytes.insert(place, bytes.mid(below(bytes.size() + 1), below(40)));
        break;
    default:
        if (onceIn(3000))
            bytes.insert(place, QByteArray(aMillion, onceIn(2) ? ' ' : '9'));
        break;
    }
}
