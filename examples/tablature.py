"""A guitar piece on a staff and tablature lines, with the key to its symbols."""

from engraver import LEFT, LINE, RIGHT, STAFF, Document, Staff, text_width

FILE = "guitar-tablature.tonquill"

TAB_SPACE = 14
STRINGS = 6
# Written pitches on the guitar's strings: (string, fret).
FRETS = {
    "E4": (4, 2), "F#4": (4, 4), "G4": (3, 0), "G#4": (3, 1), "A4": (3, 2), "B4": (2, 0),
    "C5": (2, 1), "D5": (2, 3), "E5": (1, 0), "F5": (1, 1),
}  # fmt: skip
# Bars of (value, pitch); 8.5 is a dotted eighth, 4.5 a dotted quarter.
BARS = [
    ("Am", [(4, "C5"), (8, "D5"), (8.5, "E5"), (16, "F5"), (8, "E5")]),
    ("G", [(4, "D5"), (8, "B4"), (8.5, "G4"), (16, "A4"), (8, "B4")]),
    ("Am", [(4, "C5"), (8, "A4"), (8.5, "A4"), (16, "G#4"), (8, "A4")]),
    ("E", [(4, "B4"), (8, "G#4"), (4.5, "E4")]),
    ("Am", [(4, "C5"), (8, "D5"), (8.5, "E5"), (16, "F5"), (8, "E5")]),
    ("G", [(4, "D5"), (8, "B4"), (8.5, "G4"), (16, "A4"), (8, "B4")]),
    ("E", [(8.5, "C5"), (16, "B4"), (8, "A4"), (8.5, "G#4"), (16, "F#4"), (8, "G#4")]),
    ("Am", [(4.5, "A4"), (4.5, "A4")]),
]
# How much room a note takes: short ones more than their share of the time.
ROOM = {4.5: 2.8, 4: 2, 8.5: 1.7, 8: 1.35, 16: 1.2}
BARS_PER_SYSTEM = 2
TOPS = (190, 390, 590, 790)
TAB_DOWN = 74
# Marks over the tablature: (bar, note, mark).
MARKS = {(0, 3): "h", (0, 4): "p", (1, 3): "h", (2, 3): "s", (4, 3): "h", (4, 4): "p", (6, 1): "p"}

KEY = """Symbols
h   hammer-on        p   pull-off        s   slide
0   open string       Numbers are frets; the lowest line is the lowest string."""


def tab_number(document, x, top, pitch):
    string, fret = FRETS[pitch]
    y = top + (string - 1) * TAB_SPACE
    text = str(fret)
    document.text(x - text_width(text, "Arial", 10, True) / 2, y - 7.5, text, "Arial", 10, bold=True)


def bar(staff, index, left, width):
    chord, notes = BARS[index]
    document, beat = staff.document, 0
    total = sum(ROOM[value] for value, _ in notes)
    tab_top = staff.top + TAB_DOWN
    document.text(left - 6, staff.top - 42, chord, "Arial", 12, bold=True)
    for i, (value, pitch) in enumerate(notes):
        x = round(left + width * beat / total)
        beat += ROOM[value]
        staff.note(x, pitch, int(value), dotted=value != int(value))
        tab_number(document, x, tab_top, pitch)
        if (index, i) in MARKS:
            document.centred(x - 16, tab_top - 23, MARKS[index, i], size=11, italic=True)


def system(document, index, top):
    staff = Staff(document, top)
    staff.draw_lines()
    staff.draw_clef(LEFT + 18)
    tab_top = top + TAB_DOWN
    tab_bottom = tab_top + (STRINGS - 1) * TAB_SPACE
    document.figure("linetab", LEFT + LINE, tab_top + LINE, RIGHT + LINE,
                    tab_top + STRINGS * TAB_SPACE + LINE)  # fmt: skip
    for i, letter in enumerate("TAB"):
        document.centred(LEFT + 14, tab_top + 3 + 20 * i, letter, "Arial", 14, bold=True)
    begin = LEFT + 40
    if index == 0:
        document.time_signature(LEFT + 46, top, "6", "8")
        begin += 16
    width = (RIGHT - begin) / BARS_PER_SYSTEM
    document.line(LEFT + LINE, top + STAFF + LINE, LEFT + LINE, tab_top + LINE)
    for i in range(BARS_PER_SYSTEM):
        number = index * BARS_PER_SYSTEM + i
        bar(staff, number, begin + i * width + 18, width - 26)
        x = round(begin + (i + 1) * width)
        last = number == len(BARS) - 1
        if last or i < BARS_PER_SYSTEM - 1:
            document.barline(x, top, top + STAFF, final=last)
        document.barline(x, tab_top, tab_bottom, final=last)


def document():
    result = Document()
    result.centred(364, 62, "Greensleeves", size=28, bold=True)
    result.centred(364, 106, "for guitar", size=13, italic=True)
    result.right_aligned(RIGHT, 128, "English, 16th century", size=11)
    result.text(LEFT, 128, "Andante", size=12, bold=True)
    for index, top in enumerate(TOPS):
        system(result, index, top)
    result.block(LEFT, 962, RIGHT - LEFT, 64, KEY, size=11)
    return result
