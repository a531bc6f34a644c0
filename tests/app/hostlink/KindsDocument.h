#pragma once

#include <QByteArray>

/** A document with an item of each of the nine kinds, and what to look for in it. */
namespace KindsDocument
{
/** Between the keyword and the last number no two records have the same digits. */
inline const QByteArray text =
    "tonquill_pagecount 1\n|"
    "tonquill_bitmap 22 120 310 1\n|"
    "tonquill_timesig 90 130 3 14\n|"
    "tonquill_grandstaff 40 80 0 0 600 120\n|"
    "tonquill_interactiveline 60 240 0 0 81 -12\n|"
    "tonquill_linetab 41 300 0 0 601 84\n|"
    "tonquill_notetie 210 160 0 0 48 10\n|"
    "tonquill_triplet 200 410 0 0 62 -15\n|"
    "tonquill_text 80 45 58 24 Lento Arial 12 ff000000 90\n|"
    "tonquill_textblock_begin 82 500 240 60\nsays tw2tonquill state:activate\n"
    "tw2tonquill tonquill_bitmap 2 1 1 0\ntwice\ntonquill_textblock_end\n|"
    "tonquill_bitmap 2 320 330 0\n";
constexpr qsizetype items = 10;
} // namespace KindsDocument
