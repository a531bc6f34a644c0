"""Lays notes, staves and texts on pages the way a careful hand would, and writes the document.

All coordinates are scene units: a staff space is 8, the sheet is A4. A note is placed by the
middle of its head.
"""

import functools
import math

from PIL import ImageFont

SPACE = 8
STAFF = 4 * SPACE
PAPER = (727.76, 1052.1, 12.32, 12.6, 703.12, 1026.9)
PAGE_PITCH = PAPER[1] * 1.05
LEFT, RIGHT = 70, 660

COMMON, CUT, G_CLEF, F_CLEF, SHARP, FLAT, NATURAL = range(7)
REPEAT_BEGIN, REPEAT_END, LEDGER, DOT, PEDAL_DOWN, PEDAL_UP = range(7, 13)
WHOLE, HALF, QUARTER, EIGHTH, SIXTEENTH = 13, 16, 19, 22, 25
GLYPH = {1: WHOLE, 2: HALF, 4: QUARTER, 8: EIGHTH, 16: SIXTEENTH}
REST_AT = {1: -SPACE, 2: 0, 4: 0, 8: 0}

# From the middle of a note's picture to the middle of its head, and on to the stem.
HEAD_DOWN = 12
STEM_ASIDE = 4.5
FLAG_ROOM = 4
# Lines are centred on the rows and columns that the glyphs' own lines fill.
LINE = 0.5
# How far a note's own stem reaches from the middle of its head, and how far a beam's outer edge
# lies from there: far enough to hold the stem's end however the beam slopes.
STEM_LENGTH = 28.5
BEAM_REACH = 29
BEAM = 4
# Lines laid side by side lie so close that they join on every screen and in every picture.
CLOSE = 0.5

ACCIDENTALS = {"#": (SHARP, 0), "b": (FLAT, -4), "n": (NATURAL, 0)}
# The lowest line of a staff: E4 and G2, counted in steps of the scale.
CLEFS = {"G": (G_CLEF, 4 * 7 + 2, SPACE), "F": (F_CLEF, 2 * 7 + 4, -2)}
SHARPS = {"G": ["F5", "C5", "G5", "D5"], "F": ["F3", "C3", "G3", "D3"]}

FONTS = {
    ("Times New Roman", False): "LiberationSerif-Regular.ttf",
    ("Times New Roman", True): "LiberationSerif-Bold.ttf",
    ("Arial", False): "LiberationSans-Regular.ttf",
    ("Arial", True): "LiberationSans-Bold.ttf",
}
TEXT_MARGIN = 4
# Figures of a time signature leave a little room within their two spaces, so that two of them do
# not touch; the notation font's fill these at 24 points.
FIGURE_SIZE = 22
FIGURE_HEIGHT = 2 * SPACE * FIGURE_SIZE / 24
FIGURE_WIDTH = 11 * FIGURE_SIZE / 24
# From the upper edge of the notation font's room for letters to that of its figures.
FIGURES_DOWN = 38 * FIGURE_SIZE / 24


def step(pitch):
    """A pitch such as "F#5" as a number of scale steps; the accidental does not count."""
    return int(pitch[-1]) * 7 + "CDEFGAB".index(pitch[0])


def number(value):
    return f"{value:.4f}".rstrip("0").rstrip(".") if value else "0"


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'


@functools.cache
def font(family, size, bold):
    file = "/usr/share/fonts/truetype/liberation/" + FONTS[family, bold]
    return ImageFont.truetype(file, round(size * 96 / 72 * 16))


def text_width(text, family="Times New Roman", size=11, bold=False):
    return font(family, size, bold).getlength(text) / 16


class Document:
    """Items in the order in which they lie on each other."""

    def __init__(self):
        self._lines = []
        self.pages = 1

    def top(self, page):
        """The y of a page's upper edge; pages count from 1."""
        self.pages = max(self.pages, page)
        return round((page - 1) * PAGE_PITCH)

    def glyph(self, symbol, x, y, inverted=False):
        end = " inverted=1" if inverted else ""
        self._lines.append(f"tonquill_bitmap {number(x)} {number(y)} {symbol}{end}")

    def figure(self, kind, x1, y1, x2, y2):
        points = " ".join(number(v) for v in (x1, y1, 0, 0, x2 - x1, y2 - y1))
        self._lines.append(f"tonquill_{kind} {points}")

    def line(self, x1, y1, x2, y2):
        """A line whose length is whole; where it begins need not be."""
        self.figure("interactiveline", x1, y1, x1 + round(x2 - x1), y1 + round(y2 - y1))

    def text(self, x, y, text, family="Times New Roman", size=11, bold=False, italic=False,
             color="#000000", rotation=0):
        """A text by the left end of its line and the upper edge of its letters' room."""
        fields = [f"tonquill_text {number(x - TEXT_MARGIN)} {number(y - TEXT_MARGIN)}"]
        fields += [f"text={quoted(text)}", f"font={quoted(family)}", f"size={number(size)}"]
        fields += ["weight=700"] * bold + ["italic=1"] * italic + [f"color={color}"]
        fields += [f"rotation={number(rotation)}"] * (rotation != 0)
        self._lines.append(" ".join(fields))

    def centred(self, x, y, text, family="Times New Roman", size=11, bold=False, **look):
        self.text(x - text_width(text, family, size, bold) / 2, y, text, family, size, bold, **look)

    def right_aligned(self, x, y, text, family="Times New Roman", size=11, bold=False, **look):
        self.text(x - text_width(text, family, size, bold), y, text, family, size, bold, **look)

    def block(self, x, y, width, height, text, family="Times New Roman", size=11):
        self._lines.append(
            f"tonquill_textblock {number(x)} {number(y)} 0 0 {number(width)} {number(height)}"
            f" wrap={number(width - 1)} font={quoted(family)} size={number(size)}"
            f" text={quoted(text)}"
        )

    def tie(self, x1, y1, x2, y2, below=False):
        """An arc between two points, over or under them."""
        self.figure("notetie", *((x2, y2, x1, y1) if below else (x1, y1, x2, y2)))

    def thick_line(self, x1, y1, x2, y2, thickness, upright=False):
        """Thin lines laid side by side."""
        count = math.ceil((thickness - 1) / CLOSE) + 1
        for i in range(count):
            offset = i * (thickness - 1) / (count - 1) - (thickness - 1) / 2
            dx, dy = (offset, 0) if upright else (0, offset)
            self.line(x1 + dx, y1 + dy, x2 + dx, y2 + dy)

    def barline(self, x, top, bottom, final=False):
        if final:
            self.line(x - 5 + LINE, top + LINE, x - 5 + LINE, bottom + LINE)
            self.thick_line(x - 1, top + LINE, x - 1, bottom + LINE, 4, upright=True)
        else:
            self.line(x + LINE, top + LINE, x + LINE, bottom + LINE)

    def time_signature(self, x, top, upper, lower):
        """Figures of the notation font, each in the middle of two spaces."""
        inset = LINE + (2 * SPACE - FIGURE_HEIGHT) / 2
        for figures, y in ((upper, top), (lower, top + 2 * SPACE)):
            self.text(x - FIGURE_WIDTH / 2 * len(figures), y + inset - FIGURES_DOWN, figures,
                      "Musica", FIGURE_SIZE)  # fmt: skip

    def save(self, path):
        paper = " ".join(map(number, PAPER))
        head = ["tonquill-document 1", f"tonquill_pagecount {self.pages}"]
        head.append(f"tonquill_paper {paper}")
        text = "\n".join([*head, *self._lines, "tonquill-end", ""])
        path.write_text(text, encoding="utf-8", newline="\n")


class Staff:
    """One staff of five lines with its clef, from its top line down."""

    def __init__(self, document, top, clef="G"):
        self.document, self.top, self.clef = document, top, clef
        self.symbol, self.lowest, self.clef_down = CLEFS[clef]

    @property
    def middle(self):
        return self.top + STAFF // 2

    def y(self, pitch):
        return self.top + STAFF - (step(pitch) - self.lowest) * SPACE // 2

    def draw_lines(self, left=LEFT, right=RIGHT):
        self.document.figure("grandstaff", left + LINE, self.top + LINE, right + LINE,
                             self.top + STAFF + LINE)  # fmt: skip

    def draw_clef(self, x):
        self.document.glyph(self.symbol, x, self.middle + self.clef_down - (self.clef == "G") * 8)

    def draw_sharps(self, x, count):
        for i, pitch in enumerate(SHARPS[self.clef][:count]):
            self.document.glyph(SHARP, x + 9 * i, self.y(pitch))

    def stem_up(self, pitch):
        return self.y(pitch) > self.middle

    def note(self, x, pitch, value, up=None, dotted=False):
        """One note with its ledger lines, accidental and dot."""
        up = self.stem_up(pitch) if up is None else up
        y = self.y(pitch)
        self._ledgers(x, y)
        down = 0 if value == 1 else -HEAD_DOWN if up else HEAD_DOWN
        aside = FLAG_ROOM if value in (8, 16) else 0
        self.document.glyph(GLYPH[value], x + aside, y + down, value != 1 and not up)
        if len(pitch) == 3:
            symbol, above = ACCIDENTALS[pitch[1]]
            self.document.glyph(symbol, x - 13, y + above)
        if dotted:
            on_line = (y - self.top) % SPACE == 0
            self.document.glyph(DOT, x + 11, y - on_line * SPACE // 2)

    def _ledgers(self, x, y):
        for line in range(self.top - SPACE, y - 1, -SPACE):
            self.document.glyph(LEDGER, x, line)
        for line in range(self.top + STAFF + SPACE, y + 1, SPACE):
            self.document.glyph(LEDGER, x, line)

    def rest(self, x, value):
        self.document.glyph(GLYPH[value] + 2, x, self.middle + REST_AT[value])

    def beam(self, xs, pitches, up=None):
        """Eighth notes under one beam."""
        ys = [self.y(pitch) for pitch in pitches]
        if up is None:
            up = sum(ys) / len(ys) > self.middle
        for x, pitch in zip(xs, pitches):
            self.note(x, pitch, 4, up)
        way = -1 if up else 1
        stems = [x - way * STEM_ASIDE for x in xs]
        ends = self._beam_ends(ys, way, stems)
        slope = (ends[1] - ends[0]) / (stems[-1] - stems[0])
        for stem, y in zip(stems, ys):
            # It ends within the beam, and begins within the note's own stem.
            end = ends[0] + slope * (stem - stems[0]) - way
            length = math.ceil(abs(end - y - LINE) - STEM_LENGTH + BEAM)
            self.document.line(stem, end - way * length, stem, end)
        inset = way * BEAM / 2
        self.document.thick_line(stems[0], ends[0] - inset, stems[-1], ends[1] - inset, BEAM)

    @staticmethod
    def _beam_ends(ys, way, stems):
        """The y of a beam's two ends, sloped by no more than a space and clear of every head."""
        rise = max(-SPACE, min(SPACE, (ys[-1] - ys[0]) // 2))
        offsets = [rise * (stem - stems[0]) / (stems[-1] - stems[0]) for stem in stems]
        extreme = min if way < 0 else max
        begin = extreme(y + LINE + way * BEAM_REACH - o for y, o in zip(ys, offsets))
        return begin, begin + rise
