"""A piece for piano on two staves: the first half of a minuet by Christian Petzold."""

from engraver import LEFT, LINE, RIGHT, STAFF, Document, Staff

FILE = "minuet.tonquill"

# A bar is a list of (value, pitches); 2.5 is a dotted half. Neighbouring eighths share a beam.
E = 8
OPENING = [
    [(4, "D5"), (E, "G4"), (E, "A4"), (E, "B4"), (E, "C5")],
    [(4, "D5"), (4, "G4"), (4, "G4")],
    [(4, "E5"), (E, "C5"), (E, "D5"), (E, "E5"), (E, "F5")],
    [(4, "G5"), (4, "G4"), (4, "G4")],
    [(4, "C5"), (E, "D5"), (E, "C5"), (E, "B4"), (E, "A4")],
    [(4, "B4"), (E, "C5"), (E, "B4"), (E, "A4"), (E, "G4")],
]
RIGHT_HAND = [
    *OPENING,
    [(4, "F4"), (E, "G4"), (E, "A4"), (E, "B4"), (E, "G4")],
    [(2.5, "A4")],
    *OPENING,
    [(4, "A4"), (E, "B4"), (E, "A4"), (E, "G4"), (E, "F4")],
    [(2.5, "G4")],
]
LEFT_HAND = [
    [(2, "G3 B3 D4"), (4, "A3")],
    [(2.5, "B3")],
    [(2.5, "C4")],
    [(2.5, "B3")],
    [(2.5, "A3")],
    [(2.5, "G3")],
    [(4, "D4"), (4, "B3"), (4, "G3")],
    [(4, "D4"), (E, "D3"), (E, "C4"), (E, "B3"), (E, "A3")],
    [(2, "B3"), (4, "A3")],
    [(4, "G3"), (4, "B3"), (4, "G3")],
    [(2.5, "C4")],
    [(4, "B3"), (E, "C4"), (E, "B3"), (E, "A3"), (E, "G3")],
    [(2, "A3"), (4, "F3")],
    [(2, "G3"), (4, "B3")],
    [(4, "C4"), (4, "D4"), (4, "D3")],
    [(2, "G3"), (4, "G2")],
]
BARS_PER_SYSTEM = 4
SYSTEM_TOPS = (190, 400, 610, 820)
STAFF_DISTANCE = 92
LENGTH = {8: 0.5, 4: 1, 2: 2, 2.5: 3}
BEATS = 3


def bar_notes(staff, bar, left, width):
    beat, beamed = 0, []
    for value, pitches in bar:
        x = round(left + width * beat / BEATS)
        beat += LENGTH[value]
        if value == 8:
            beamed.append((x, pitches))
            continue
        together = pitches.split()
        up = staff.stem_up(together[len(together) // 2])
        for pitch in together:
            staff.note(x, pitch, 2 if value == 2.5 else value, up, dotted=value == 2.5)
    if beamed:
        staff.beam(*zip(*beamed))


def system(document, index, top):
    upper = Staff(document, top)
    lower = Staff(document, top + STAFF_DISTANCE, "F")
    bottom = lower.top + STAFF
    document.figure("grandstaff", LEFT + LINE, top + LINE, RIGHT + LINE, bottom + LINE)
    for staff in (upper, lower):
        staff.draw_clef(LEFT + 18)
        staff.draw_sharps(LEFT + 38, 1)
        if index == 0:
            document.time_signature(LEFT + 56, staff.top, "3", "4")
    begin = LEFT + (66 if index == 0 else 50)
    width = (RIGHT - begin) / BARS_PER_SYSTEM
    for i in range(BARS_PER_SYSTEM):
        bar, left = index * BARS_PER_SYSTEM + i, begin + i * width
        inner = width - 22
        bar_notes(upper, RIGHT_HAND[bar], left + 16, inner)
        bar_notes(lower, LEFT_HAND[bar], left + 16, inner)
        last = bar == len(RIGHT_HAND) - 1
        if i < BARS_PER_SYSTEM - 1 or last:
            document.barline(round(left + width), top, bottom, final=last)
    document.text(LEFT - 6, top - 24, str(index * BARS_PER_SYSTEM + 1), size=9, italic=True)


def document():
    result = Document()
    result.centred(364, 62, "Minuet in G", size=26, bold=True)
    result.centred(364, 104, "from the Notebook for Anna Magdalena Bach", size=12, italic=True)
    result.right_aligned(RIGHT, 132, "Christian Petzold (1677–1733)", size=11)
    result.text(LEFT, 138, "Con moto", size=12, bold=True)
    for index, top in enumerate(SYSTEM_TOPS):
        system(result, index, top)
    first = SYSTEM_TOPS[0]
    result.text(LEFT + 96, first + 40, "mf", size=13, bold=True, italic=True)
    result.text(LEFT + 66, SYSTEM_TOPS[2] + 44, "p", size=13, bold=True, italic=True)
    return result
