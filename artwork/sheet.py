"""The contact sheet and the table of letters, both for docs/."""

import io

from fontTools.pens.recordingPen import RecordingPen
from PIL import Image, ImageDraw, ImageFont

import font
import geometry
import images
import raster
import strips

WIDTH = 1700                    # pixels
GAP = 14                        # pixels between pictures
LABEL = ImageFont.load_default()
LOWEST_LINE = {"RepeatBegin": 0, "RepeatEnd": 0, "GClef": -1, "FClef": -3, "WholeRest1": -3}

# A few bars that put the symbols side by side: name, x and y in spaces from the lowest line's
# left end.
EXAMPLE = (
    ("GClef", 0.6, 1), ("Flat", 4, 2), ("CommonTimeWhole", 5.5, 2),
    ("QuarterNote1", 8.5, 1), ("NoteDot", 10.1, 1.5), ("EighthNote1", 11.5, 0.5),
    ("Sharp", 14.2, 1.5), ("HalfNote1", 15.5, 1.5), ("BarLine", 18.5, 0),
    ("QuarterRest1", 19.8, 2), ("SixteenthNote2", 22.2, 2.5), ("SixteenthNote1", 24.5, 1),
    ("EighthRest1", 27.6, 2), ("Natural", 29.6, 3), ("QuarterNote2", 30.6, 3),
    ("EighthNote2", 33, 2), ("SixteenthRest1", 35.3, 2), ("BarLine", 37.4, 0),
    ("WholeRest1", 40, 3), ("BarLine", 43.4, 0), ("StaffLine", 44.9, -1),
    ("WholeNote1", 45.15, -1), ("RepeatEnd", 48.6, 0), ("FClef", 51.4, 3),
    ("CommonTimeHalf", 55, 2), ("RepeatBegin", 57.8, 0), ("ThirtySecondNote1", 60.6, 0.5),
    ("HalfRest1", 64, 2), ("ThirtySecondRest1", 66.2, 2), ("HalfNote2", 69, 2.5),
    ("SixtyFourthNote2", 71.4, 3), ("OneTwentyEighthRest1", 74, 2), ("PedalB", 60.2, -3.5),
    ("PedalE", 70.6, -3.5), ("BarLine", 77.875, 0),
)
EXAMPLE_BOX = (0, -4, 78, 8)    # spaces


def _staff(lines, left, right):
    """The five lines as polygons, each an eighth of a space thick."""
    return [geometry.box(left, y - 1 / 16, right, y + 1 / 16) for y in lines]


def _staff_lines(symbol):
    """The y of the five staff lines as the symbol's own origin sees them."""
    lowest = LOWEST_LINE.get(symbol, -2)
    return range(lowest, lowest + 5)


def example(drawings, scale):
    """The example bars at scale pixels a space, black on white as they look on a page."""
    left, bottom, right, top = EXAMPLE_BOX
    ink = _staff(range(5), left, right)
    for name, x, y in EXAMPLE:
        ink = geometry.union(ink, geometry.placed(drawings.contours(name), round(x * 8) / 8, y))
    return raster.grey_image(ink, left, top - 1 / 16, (right - left) * scale,
                             (top - bottom) * scale, scale)


def on_staff(drawings, glyph, scale):
    """One symbol on a grey staff at scale pixels a space, half a space of staff to either side."""
    left, bottom, right, top = images.canvas(drawings, glyph)
    lines = _staff_lines(glyph.name)
    bottom, top = min(bottom, lines[0] * 8 - 4), max(top, lines[-1] * 8 + 5)
    fine = scale // images.SPACE
    place = ((left - 4) / images.SPACE, (top - 0.5) / images.SPACE,
             (right - left + 8) * fine, (top - bottom) * fine, scale)
    picture = raster.grey_image(_staff(lines, left - 9, right + 9), *place)
    picture = picture.point(lambda grey: 255 - (255 - grey) // 2)
    ink = raster.grey_image(drawings.contours(glyph.name), *place)
    picture.paste(0, mask=ink.point(lambda grey: 255 - grey))
    return picture


class Page:
    """Pictures set in rows, each with a line of text under it."""

    def __init__(self):
        self.image = Image.new("L", (WIDTH, 6000), 255)
        self.draw = ImageDraw.Draw(self.image)
        self.x, self.y, self.tallest = GAP, GAP, 0

    def heading(self, text):
        """Begin a new row with a heading."""
        self.new_row()
        self.draw.text((GAP, self.y), text, fill=0, font=LABEL)
        self.y += 22

    def new_row(self):
        """Go on below everything placed so far."""
        self.x, self.y, self.tallest = GAP, self.y + self.tallest, 0

    def place(self, picture, text=""):
        """Put a picture to the right of the one before, or into the next row."""
        wide = max(picture.width, self.draw.textlength(text, font=LABEL)) + GAP
        if self.x + wide > WIDTH:
            self.new_row()
        self.image.paste(picture, (int(self.x), self.y))
        self.draw.text((self.x, self.y + picture.height + 2), text, fill=0, font=LABEL)
        self.x += wide
        self.tallest = max(self.tallest, picture.height + 26)

    def finished(self):
        """The page cut to what it holds."""
        return self.image.crop((0, 0, WIDTH, self.y + self.tallest))


def contact_sheet(drawings, musica):
    """Every symbol at three sizes, the strips, and the font's letters."""
    page = Page()
    page.heading("Side by side, at 16 and at 8 pixels a staff space")
    for scale in (16, 8):
        page.place(example(drawings, scale))
    symbols = [glyph for glyph in drawings if glyph.image]
    for scale in (64, 16, 8):
        page.heading(f"{scale} pixels a staff space")
        for glyph in symbols:
            page.place(on_staff(drawings, glyph, scale), glyph.image if scale == 64 else "")
    page.heading("Toolbar strips")
    for name, icons in strips.STRIPS.items():
        for scale in (1, 2):
            page.place(strips.strip(drawings, icons, scale), name)
        page.new_row()
    page.heading("Musica: what the letters draw")
    for glyph in font.coded(drawings):
        if glyph.letters and drawings.contours(glyph.name):
            page.place(_font_sample(musica, glyph.name), " ".join(glyph.letters))
    return page.finished()


def _font_sample(musica, name, pixels=64):
    """A glyph of the finished font at pixels to the em, as its own outline says."""
    pen = RecordingPen()
    musica.getGlyphSet()[name].draw(pen)
    polygons = []
    for operator, points in pen.value:
        if operator == "moveTo":
            polygons.append(list(points))
        elif operator == "lineTo":
            polygons[-1] += points
    scale = pixels / font.EM
    width = round(musica["hmtx"][name][0] * scale) + 2
    ascent, descent = musica["hhea"].ascent, musica["hhea"].descent
    return raster.grey_image(polygons, -1 / scale, ascent, width,
                             round((ascent - descent) * scale), scale)


def letters_table(drawings):
    """docs/musica-letters.md: what each letter draws."""
    rows = []
    for glyph in font.coded(drawings):
        if glyph.letters and glyph.title:
            keys = " ".join(f"`{letter}`".replace("|", "\\|") for letter in glyph.letters)
            codes = " ".join(f"U+{code:04X}" for code in glyph.codes)
            rows.append(f"| {keys} | {glyph.title} | {codes} |")
    return "\n".join([LETTERS_HEAD, *rows, ""])


LETTERS_HEAD = """\
# Typing symbols with the Musica font

Choose "Musica" in the text dialog and type these letters. Every symbol also answers to its own
code points, so that text pasted from elsewhere shows the same. Capitals are the rests of the
notes; a `v` before a note turns its stem down. At 24 points the symbols have the size of those on
the staves. [The contact sheet](contact-sheet.png) shows them all.

| Type | Symbol | Code points |
|---|---|---|"""


def write(drawings, musica, folder):
    """Write docs/contact-sheet.png and docs/musica-letters.md."""
    data = io.BytesIO()
    contact_sheet(drawings, musica).quantize(16).save(data, "PNG", optimize=True)
    (folder / "contact-sheet.png").write_bytes(data.getvalue())
    (folder / "musica-letters.md").write_text(letters_table(drawings), encoding="utf-8")
