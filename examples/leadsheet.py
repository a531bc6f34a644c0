"""A lead sheet: a hymn tune with chords and a verse."""

from engraver import G_CLEF, LEFT, LINE, RIGHT, STAFF, Document, Staff

FILE = "lead-sheet.tonquill"

# A bar: (chord, notes); a note is (value, pitch, syllable). Lines of bars make the systems.
LINES = [
    [
        ("", [(4, "D4", "A-")]),
        ("G", [(2, "G4", "ma-"), (8, "B4", "zing"), (8, "G4", "")]),
        ("", [(2, "B4", "grace!"), (4, "A4", "How")]),
        ("C", [(2, "G4", "sweet"), (4, "E4", "the")]),
        ("G", [(2, "D4", "sound"), (4, "D4", "that")]),
    ],
    [
        ("G", [(2, "G4", "saved"), (8, "B4", "a"), (8, "G4", "")]),
        ("Em", [(2, "B4", "wretch"), (4, "A4", "like")]),
        ("D", [(2.5, "D5", "me!")]),
        ("D7", [(2, "D5", ""), (4, "B4", "I")]),
    ],
    [
        ("G", [(2, "D5", "once"), (8, "B4", "was"), (8, "G4", "")]),
        ("G7", [(2, "B4", "lost,"), (4, "A4", "but")]),
        ("C", [(2, "G4", "now"), (4, "E4", "am")]),
        ("G", [(2, "D4", "found,"), (4, "D4", "was")]),
    ],
    [
        ("Em", [(2, "G4", "blind,"), (8, "B4", "but"), (8, "G4", "")]),
        ("D7", [(2, "B4", "now"), (4, "A4", "I")]),
        ("G", [(2.5, "G4", "see.")]),
        ("", [(2, "G4", ""), (4, None, "")]),
    ],
]
TOPS = (210, 350, 490, 630)
LENGTH = {8: 0.5, 4: 1, 2: 2, 2.5: 3}
CHORD_UP, LYRICS_DOWN = 40, 60

VERSES = """2.  'Twas grace that taught my heart to fear,
     And grace my fears relieved;
     How precious did that grace appear
     The hour I first believed!

3.  Through many dangers, toils, and snares,
     I have already come;
     'Tis grace hath brought me safe thus far,
     And grace will lead me home."""


def beats(notes):
    return sum(LENGTH[value] for value, _, _ in notes)


def lyrics(document, y, syllables):
    """Writes syllables under their notes, and a hyphen halfway to the next part of a word."""
    for (x, syllable), (after, _) in zip(syllables, [*syllables[1:], (0, "")]):
        document.centred(x, y, syllable.rstrip("-"), size=12)
        if syllable.endswith("-"):
            document.centred((x + after) / 2, y, "-", size=12)


def bar(staff, chord, notes, left, width, syllables):
    """Draws one bar and returns where its last note is."""
    document, beat, beamed, x = staff.document, 0, [], left
    if chord:
        document.text(left - 5, staff.top - CHORD_UP, chord, "Arial", 13, bold=True)
    for value, pitch, syllable in notes:
        x = round(left + width * beat / beats(notes))
        beat += LENGTH[value]
        if pitch is None:
            staff.rest(x, value)
        elif value == 8:
            beamed.append((x, pitch))
        else:
            staff.note(x, pitch, 2 if value == 2.5 else value, dotted=value == 2.5)
        if syllable:
            syllables.append((x, syllable))
    if beamed:
        staff.beam(*zip(*beamed))
        first, last = beamed[0], beamed[-1]
        document.tie(first[0], staff.y(first[1]) + 8, last[0], staff.y(last[1]) + 8, below=True)
    return x


def system(document, index, top):
    staff = Staff(document, top)
    staff.draw_lines()
    staff.draw_clef(LEFT + 18)
    staff.draw_sharps(LEFT + 38, 1)
    begin = LEFT + 56
    if index == 0:
        document.time_signature(LEFT + 56, top, "3", "4")
        begin += 14
    bars = LINES[index]
    units = sum(beats(notes) + 0.6 for _, notes in bars)
    x = begin
    ends, syllables = [], []
    for i, (chord, notes) in enumerate(bars):
        share = (RIGHT - begin) * (beats(notes) + 0.6) / units
        ends.append(bar(staff, chord, notes, x + 18, share - 24, syllables))
        x += share
        final = index == len(LINES) - 1 and i == len(bars) - 1
        if i < len(bars) - 1 or final:
            document.barline(round(x), top, top + STAFF, final)
    lyrics(document, top + LYRICS_DOWN, syllables)
    return staff, ends


def document():
    result = Document()
    result.centred(364, 62, "Amazing Grace", size=28, bold=True)
    result.text(LEFT, 128, "Slowly, with warmth", size=12, bold=True)
    result.text(LEFT + 150, 118, "q", "Musica", 14)
    result.text(LEFT + 166, 128, "= 76", size=12)
    result.right_aligned(RIGHT, 114, "Words: John Newton, 1779", size=11, italic=True)
    result.right_aligned(RIGHT, 132, "Tune: “New Britain”, 1829", size=11, italic=True)
    systems = [system(result, i, top) for i, top in enumerate(TOPS)]
    for index, pitch in ((1, "D5"), (3, "G4")):
        staff, ends = systems[index]
        y = staff.y(pitch) + (-8 if index == 1 else 8)
        first = ends[2]
        last = next_bar_start(index)
        result.tie(first + 6, y, last - 6, y, below=index == 3)
    result.block(150, 760, 430, 190, VERSES, size=13)
    return result


def next_bar_start(index):
    """Where the first note of the last bar of a system is."""
    begin = LEFT + 56
    bars = LINES[index]
    units = sum(beats(notes) + 0.6 for _, notes in bars)
    before = sum(beats(notes) + 0.6 for _, notes in bars[:3])
    return round(begin + (RIGHT - begin) * before / units) + 18
