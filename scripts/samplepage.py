"""A page of glyphs to show the program with, as the host would send it."""

COMMON_TIME, TREBLE_CLEF, SHARP, REPEAT_END, STAFF_LINE, DOT = 0, 2, 4, 8, 9, 10
HALF, QUARTER, QUARTER_REST, EIGHTH, SIXTEENTH = 16, 19, 21, 22, 25

STAFF_SPACE = 8
STAFF_LINE_WIDTH = 18
# From the middle of a note with its stem up to the middle of its head.
HEAD_BELOW_MIDDLE = 13


def glyph(symbol, x, y):
    return f"tonquill_bitmap {symbol} {x} {y} 0\n"


def staff(left, right, middle):
    """Five lines, laid end to end from short ones."""
    return [
        glyph(STAFF_LINE, x, middle + line * STAFF_SPACE)
        for line in range(-2, 3)
        for x in range(left + STAFF_LINE_WIDTH // 2, right, STAFF_LINE_WIDTH)
    ]


def note(symbol, x, middle, step):
    """A note so many steps above the staff's middle line."""
    return glyph(symbol, x, middle - step * STAFF_SPACE // 2 - HEAD_BELOW_MIDDLE)


def sample_page():
    """The page count and the records of one line of music."""
    middle = 200
    melody = [
        (QUARTER, -2), (QUARTER, -2), (QUARTER, -1), (QUARTER, 0),
        (QUARTER, 0), (QUARTER, -1), (EIGHTH, -2), (EIGHTH, -3), (QUARTER_REST, 0),
        (HALF, -3), (SIXTEENTH, -3), (SIXTEENTH, -2), (SIXTEENTH, -3), (SIXTEENTH, -4),
    ]  # fmt: skip
    records = ["tonquill_pagecount 1\n"]
    records += staff(40, 688, middle)
    records += [
        glyph(TREBLE_CLEF, 60, middle + 1),
        glyph(SHARP, 82, middle - 16),
        glyph(COMMON_TIME, 106, middle),
    ]
    for i, (symbol, step) in enumerate(melody):
        x = 144 + 37 * i
        if symbol == QUARTER_REST:
            records.append(glyph(symbol, x, middle))
        else:
            records.append(note(symbol, x, middle, step))
        if symbol == HALF:
            records.append(glyph(DOT, x + 14, middle - step * STAFF_SPACE // 2))
    records.append(glyph(REPEAT_END, 680, middle))
    return records
