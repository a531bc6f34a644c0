"""A page of glyphs to show the program with, as the host would send it."""

STAFF_LINE, TREBLE_CLEF, COMMON_TIME, SHARP, DOT = 9, 2, 0, 4, 10
QUARTER, QUARTER_REST, HALF, EIGHTH, SIXTEENTH = 19, 21, 16, 22, 25
REPEAT_END = 8

STAFF_SPACE = 8
STAFF_LINE_WIDTH = 20
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
        (QUARTER, 0), (QUARTER, -1), (EIGHTH, -2), (EIGHTH, -3),
        (HALF, -4), (SIXTEENTH, -3), (SIXTEENTH, -2),
    ]  # fmt: skip
    records = ["tonquill_pagecount 1\n"]
    records += staff(90, 650, middle)
    records += [
        glyph(TREBLE_CLEF, 112, middle + 1),
        glyph(SHARP, 134, middle - 16),
        glyph(COMMON_TIME, 158, middle),
    ]
    records += [note(symbol, 196 + 34 * i, middle, step) for i, (symbol, step) in enumerate(melody)]
    records += [glyph(QUARTER_REST, 584, middle), glyph(REPEAT_END, 640, middle)]
    return records
