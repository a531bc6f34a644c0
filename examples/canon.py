"""A score of three pages: a canon for three violins over a ground, after Johann Pachelbel."""

from engraver import LEFT, LINE, RIGHT, STAFF, Document, Staff

FILE = "canon-score.tonquill"

GROUND = [(4, p) for p in "D4 A3 B3 F3 G3 D3 G3 A3".split()]


def quarters(text):
    return [(4, pitch) for pitch in text.split()]


def eighths(text):
    return [(8, pitch) for pitch in text.split()]


# Two bars each. The voices play them one after the other, two bars apart.
VARIATIONS = [
    quarters("F5 E5 D5 C5 B4 A4 B4 C5"),
    quarters("D5 C5 B4 A4 G4 F4 G4 E4"),
    eighths("D5 F5 A5 G5 F5 D5 F5 E5 D5 B4 D5 A5 G5 B5 A5 G5"),
    eighths("F5 D5 E5 C5 D5 B4 C5 A4 B4 G4 A4 F4 G4 B4 A4 C5"),
    [(2, "D5"), (2, "C5"), (2, "B4"), (2, "C5")],
    eighths("D5 A4 F5 A4 C5 E4 E5 A4 B4 F4 D5 F4 A4 C5 F5 C5"),
    quarters("B4 D5 A4 F4 B4 G4 C5 A4"),
]
CLOSES = [[(1, last), (1, last)] for last in ("F5", "D5", "A4", "D3")]
VOICES = ("Violin I", "Violin II", "Violin III", "Basso")
BARS_PER_SYSTEM = 4
PERIODS = 16
STAFF_DISTANCE = 68
SYSTEM_TOPS = {1: (190, 474, 758), 2: (84, 394, 704), 3: (84, 394)}
LENGTH = {1: 4, 2: 2, 4: 1, 8: 0.5}


def music(voice, period):
    """The notes of two bars, or nothing before the voice comes in."""
    if period == PERIODS - 1:
        return CLOSES[voice]
    if voice == 3:
        return GROUND
    index = period - 1 - voice
    return VARIATIONS[index % len(VARIATIONS)] if index >= 0 else []


def split_bars(notes):
    bars, beat = [[], []], 0
    for value, pitch in notes:
        bars[int(beat // 4)].append((beat % 4, value, pitch))
        beat += LENGTH[value]
    return bars


def bar(staff, notes, left, width):
    if not notes:
        staff.rest(round(left + width / 2), 1)
        return
    beamed = {}
    for beat, value, pitch in notes:
        x = round(left + width * beat / 4) if value != 1 else round(left + 4)
        if value == 8:
            beamed.setdefault(int(beat // 2), []).append((x, pitch))
        else:
            staff.note(x, pitch, value)
    for group in beamed.values():
        staff.beam(*zip(*group))


def system(document, index, top, page_top):
    top += page_top
    staves = [Staff(document, top + i * STAFF_DISTANCE, "F" if i == 3 else "G") for i in range(4)]
    bottom = staves[-1].top + STAFF
    left = LEFT + 36
    for upper, lower in zip(staves, staves[1:]):
        document.line(left + LINE, upper.top + STAFF + LINE, left + LINE, lower.top + LINE)
    document.thick_line(left - 5, top - 3, left - 5, bottom + 4, 4, upright=True)
    for name, staff in zip(VOICES, staves):
        staff.draw_lines(left)
        staff.draw_clef(left + 18)
        staff.draw_sharps(left + 36, 2)
        if index == 0:
            document.glyph(0, left + 66, staff.middle)
        document.right_aligned(left - 14, staff.top + 7, name, size=11)
    begin = left + (74 if index == 0 else 54)
    width = (RIGHT - begin) / BARS_PER_SYSTEM
    for i in range(BARS_PER_SYSTEM):
        number = index * BARS_PER_SYSTEM + i
        for voice, staff in enumerate(staves):
            notes = split_bars(music(voice, number // 2))[number % 2]
            bar(staff, notes, begin + i * width + 14, width - 18)
        last = number == PERIODS * 2 - 1
        if i < BARS_PER_SYSTEM - 1 or last:
            document.barline(round(begin + (i + 1) * width), top, bottom, final=last)
    document.text(left - 4, top - 24, str(index * BARS_PER_SYSTEM + 1), size=9, italic=True)


def document():
    result = Document()
    result.centred(364, 56, "Canon in D", size=28, bold=True)
    result.centred(364, 100, "for three violins and basso continuo", size=13, italic=True)
    result.right_aligned(RIGHT, 128, "after Johann Pachelbel (1653–1706)", size=11)
    result.text(LEFT + 36, 138, "Andante", size=12, bold=True)
    index = 0
    for page, tops in SYSTEM_TOPS.items():
        page_top = result.top(page)
        for top in tops:
            system(result, index, top, page_top)
            index += 1
        result.centred(364, page_top + 1008, str(page), size=11)
    result.block(LEFT + 36, result.top(3) + 760, 520, 120,
                 "The basso repeats its two bars to the end. Each violin plays what the one before "
                 "it has played, two bars later; all of them close together.", size=12)  # fmt: skip
    return result
