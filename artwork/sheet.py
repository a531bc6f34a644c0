"""The contact sheet and the table of letters, both for docs/."""

import io

from fontTools.pens.recordingPen import DecomposingRecordingPen
from PIL import Image, ImageDraw, ImageFont

import font
import images
import raster
import strips

WIDTH = 1700
GAP = 14
LABEL = ImageFont.load_default()


def _staff_line_rows(symbol):
    """The y of the five staff lines as the symbol's own origin sees them."""
    if symbol in ("RepeatBegin", "RepeatEnd"):
        return range(0, 5)
    if symbol == "GClef":
        return range(-1, 4)
    if symbol == "FClef":
        return range(-3, 2)
    if symbol == "WholeRest1":
        return range(-3, 2)
    return range(-2, 3)


def on_staff(drawings, glyph, scale):
    """One symbol on a staff at scale pixels a space, half a space of staff to either side."""
    left, bottom, right, top = images.canvas(drawings, glyph)
    lines = _staff_line_rows(glyph.name)
    bottom, top = min(bottom, lines[0] * 8 - 4), max(top, lines[-1] * 8 + 5)
    fine = scale // images.SPACE
    width, height = (right - left + 8) * fine, (top - bottom) * fine
    staff = [[(-9, y - 1 / 16), (99, y - 1 / 16), (99, y + 1 / 16), (-9, y + 1 / 16)]
             for y in lines]
    corner = ((left - 4) / images.SPACE, (top - 0.5) / images.SPACE)
    picture = raster.grey_image(staff, *corner, width, height, scale).point(
        lambda grey: 255 - (255 - grey) // 2)
    ink = raster.grey_image(drawings.contours(glyph.name), *corner, width, height, scale)
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
    pen = DecomposingRecordingPen(musica.getGlyphSet())
    musica.getGlyphSet()[name].draw(pen)
    polygons = []
    for operator, points in pen.value:
        if operator == "moveTo":
            polygons.append([])
        polygons[-1:] = [polygons[-1] + list(points)] if points else polygons[-1:]
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
code points, so that text pasted from elsewhere shows the same.

| Type | Symbol | Code points |
|---|---|---|"""


def write(drawings, musica, folder):
    """Write docs/contact-sheet.png and docs/musica-letters.md."""
    data = io.BytesIO()
    contact_sheet(drawings, musica).quantize(16).save(data, "PNG", optimize=True)
    (folder / "contact-sheet.png").write_bytes(data.getvalue())
    (folder / "musica-letters.md").write_text(letters_table(drawings), encoding="utf-8")
