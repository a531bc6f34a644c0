#!/usr/bin/python3
"""Checks the committed artwork: that it is what the drawings give, has the proportions of good
engraving, keeps to the pixel grid, and that the font answers to its letters and code points.

Lengths are staff spaces; the coarse pictures have 8 pixels a space, the fine ones 64.
"""

import subprocess
import sys
import tempfile
import unicodedata
import unittest
import xml.etree.ElementTree
from pathlib import Path

try:
    import pyclipper    # noqa: F401  (the generator needs it)
    from fontTools.pens.boundsPen import BoundsPen
    from fontTools.ttLib import TTFont
    from PIL import Image
except ImportError as missing:
    print(f"skipped: {missing}; install python3-fonttools, python3-pyclipper and python3-pil")
    sys.exit(77)

ROOT = Path(__file__).resolve().parents[2]
IMAGES = ROOT / "resources/images"
TOLERANCE = 0.15
COARSE, FINE = 8, 64
BLACK, WHITE = 0, 255

# Width and height of the ink; None where only the other one is laid down.
INK = {
    "CommonTimeWhole": (1.7, 2.0), "CommonTimeHalf": (1.7, None),
    "GClef": (2.7, 7.0), "FClef": (2.7, 3.6),
    "Sharp": (1.0, 2.8), "Flat": (0.9, 2.5), "Natural": (0.67, 2.7),
    "RepeatBegin": (None, 4.0), "RepeatEnd": (None, 4.0),
    "NoteDot": (0.4, 0.4), "StaffLine": (None, 0.125),
    "PedalB": (4.0, 2.2), "PedalE": (1.8, 1.8),
    "WholeNote1": (1.75, 1.0), "WholeNote2": (1.75, 1.0),
    "WholeRest1": (1.13, 0.5), "HalfRest1": (1.13, 0.5), "QuarterRest1": (1.1, 3.0),
    "HalfNote1": (1.25, 4.0), "HalfNote2": (1.25, 4.0),
    "QuarterNote1": (1.25, 4.0), "QuarterNote2": (1.25, 4.0),
    "EighthNote1": (2.185, 4.0), "EighthNote2": (1.25, 4.0),
    "SixteenthNote1": (2.185, 4.0), "SixteenthNote2": (1.25, 4.0),
    "ThirtySecondNote1": (2.185, 4.6), "ThirtySecondNote2": (1.25, 4.6),
    "SixtyFourthNote1": (2.185, 5.4), "SixtyFourthNote2": (1.25, 5.4),
    "OneTwentyEighthNote1": (2.185, 6.1), "OneTwentyEighthNote2": (1.25, 6.1),
    "EighthRest1": (None, 1.75), "SixteenthRest1": (None, 2.75),
    "ThirtySecondRest1": (None, 3.75), "SixtyFourthRest1": (None, 4.75),
    "OneTwentyEighthRest1": (None, 5.75),
}
# Ink boxes (left, bottom, right, top) of single glyphs of the font, about their origins.
FONT_INK = {
    0xE0A4: (0, -0.5, 1.25, 0.5),       # black head
    0xE240: (0, -3.2, 1.06, 0),         # eighth flag
    0xE210: (0, 0, 0.125, 3.5),         # stem
    0xE050: (0, -2.6, 2.7, 4.4),        # G clef about its line
}
STEMMED = [value + "Note" + form for form in "12"
           for value in ("Half", "Quarter", "Eighth", "Sixteenth", "ThirtySecond", "SixtyFourth",
                         "OneTwentyEighth")]
STRIPS = {"ToolBar1-HighColor": 8, "ToolBar2-HighColor": 20, "ToolBar2-HighColor-B": 20,
          "ToolBar3-HighColor": 4}
NOTE_SLICES = range(9, 17)
CODES = {
    0xE08A: 0x1D134, 0xE08B: 0x1D135, 0xE050: 0x1D11E, 0xE062: 0x1D122, 0xE260: 0x266D,
    0xE261: 0x266E, 0xE262: 0x266F, 0xE040: 0x1D106, 0xE041: 0x1D107, 0xE022: 0x1D116,
    0xE1E7: 0x1D16D, 0xE650: 0x1D1AE, 0xE655: 0x1D1AF, 0xE1D2: 0x1D15D, 0xE1D3: 0x1D15E,
    0xE1D5: 0x1D15F, 0xE1D7: 0x1D160, 0xE1D9: 0x1D161, 0xE1DB: 0x1D162, 0xE1DD: 0x1D163,
    0xE1DF: 0x1D164, 0xE4E3: 0x1D13B, 0xE4E4: 0x1D13C, 0xE4E5: 0x1D13D, 0xE4E6: 0x1D13E,
    0xE4E7: 0x1D13F, 0xE4E8: 0x1D140, 0xE4E9: 0x1D141, 0xE4EA: 0x1D142, 0xE0A3: 0x1D157,
    0xE0A4: 0x1D158, 0xE210: 0x1D165, 0xE240: 0x1D16E, 0xE242: 0x1D16F, 0xE244: 0x1D170,
    0xE246: 0x1D171, 0xE248: 0x1D172,
}
STEM_DOWN = range(0xE1D4, 0xE1E1, 2)


def opened(name):
    """A picture by its file name below resources/images, in greys."""
    with Image.open(IMAGES / name) as image:
        return image.convert("L")


def coarse(name):
    """The 8-pixel picture of a symbol as rows of greys."""
    image = opened(f"{name}.bmp")
    data = list(image.getdata())
    return [data[i:i + image.width] for i in range(0, len(data), image.width)]


def ink_size(name):
    """Width and height of the ink in the fine picture, in spaces."""
    picture = opened(f"fine/{name}.png")
    left, top, right, bottom = picture.point(lambda grey: 255 if grey < 128 else 0).getbbox()
    return (right - left) / FINE, (bottom - top) / FINE


def columns(picture):
    """The columns of a picture given as rows."""
    return list(zip(*picture))


def longest_black(line):
    """First index and length of the longest stretch of pure black."""
    best, start = (0, 0), None
    for index, grey in enumerate([*line, WHITE]):
        if grey == BLACK and start is None:
            start = index
        elif grey != BLACK and start is not None:
            best = max(best, (start, index - start), key=lambda stretch: stretch[1])
            start = None
    return best


class GeneratedTest(unittest.TestCase):
    """The committed files are what the drawings give."""

    def test_every_output_is_current(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, "-B", ROOT / "artwork/generate.py", "--output", folder],
                           check=True)
            written = [path for path in Path(folder).rglob("*") if path.is_file()]
            self.assertGreater(len(written), 80)
            for path in written:
                name = path.relative_to(folder)
                with self.subTest(file=str(name)):
                    self.assertTrue(path.read_bytes() == (ROOT / name).read_bytes(),
                                    f"{name} differs: run artwork/generate.py")

    def test_resource_list_names_every_picture(self):
        entries = xml.etree.ElementTree.parse(IMAGES / "images.qrc").getroot().find("qresource")
        self.assertEqual(entries.get("prefix"), "/images")
        listed = {entry.text for entry in entries}
        self.assertEqual(listed, {entry.get("alias") for entry in entries})
        self.assertEqual(listed, {str(path.relative_to(IMAGES)) for path in IMAGES.rglob("*")
                                  if path.suffix in (".bmp", ".png", ".ico")})


class SymbolTest(unittest.TestCase):
    """The pictures of the 37 symbols."""

    def test_ink_has_the_proportions_of_engraving(self):
        self.assertEqual(len(INK), 37)
        for name, wanted in INK.items():
            for measured, expected, side in zip(ink_size(name), wanted, ("width", "height")):
                if expected:
                    with self.subTest(symbol=name, side=side):
                        self.assertAlmostEqual(measured, expected, delta=TOLERANCE * expected)

    def test_fine_pictures_are_eight_times_the_coarse(self):
        for name in INK:
            with self.subTest(symbol=name):
                small = opened(f"{name}.bmp").size
                self.assertEqual(opened(f"fine/{name}.png").size,
                                 (8 * small[0], 8 * small[1]))

    def test_pictures_have_a_white_edge(self):
        for name in INK:
            picture = coarse(name)
            with self.subTest(symbol=name):
                edge = [*picture[0], *picture[-1], *columns(picture)[0], *columns(picture)[-1]]
                self.assertEqual(set(edge), {WHITE})

    def test_pictures_differ(self):
        seen = {}
        for name in INK:
            picture = opened(f"{name}.bmp")
            key = (picture.size, picture.tobytes())
            if name != "WholeNote2":
                self.assertNotIn(key, seen, f"{name} looks like {seen.get(key)}")
            seen[key] = name

    def test_both_forms_of_a_note_have_one_size(self):
        for name in INK:
            if name.endswith("Note1"):
                with self.subTest(symbol=name):
                    self.assertEqual(opened(f"{name}.bmp").size,
                                     opened(f"{name[:-1]}2.bmp").size)

    def test_stems_are_one_black_column(self):
        for name in STEMMED:
            with self.subTest(symbol=name):
                down = name.endswith("2")
                lines = columns(coarse(name))
                stretches = [longest_black(line) for line in lines]
                stem = max(range(len(lines)), key=lambda i: stretches[i][1])
                start, length = stretches[stem]
                self.assertGreaterEqual(length, 3 * COARSE)
                self.assertLess(sorted(stretch[1] for stretch in stretches)[-2], 2 * COARSE)
                free = range(start + 6, start + length) if down else range(start, start + 22)
                self.assertEqual({lines[stem - 1][row] for row in free}, {WHITE})
                if "Half" in name or "Quarter" in name:
                    self.assertEqual({lines[stem + 1][row] for row in free}, {WHITE})

    def test_accidental_stems_are_black_columns(self):
        for name, count, length in (("Sharp", 2, 20), ("Natural", 2, 14), ("Flat", 1, 18)):
            with self.subTest(symbol=name):
                stretches = [longest_black(line)[1] for line in columns(coarse(name))]
                self.assertEqual(sum(stretch >= length for stretch in stretches), count)

    def test_repeat_bars_fill_whole_columns(self):
        for name, bars in (("RepeatBegin", "||||   |"), ("RepeatEnd", "|   ||||")):
            with self.subTest(symbol=name):
                picture = coarse(name)
                self.assertEqual(len(picture), 4 * COARSE + 1 + 2)
                kinds = ["|" if set(line[1:-1]) == {BLACK} else " " if set(line) == {WHITE} else "."
                         for line in columns(picture)]
                self.assertIn(bars, "".join(kinds))

    def test_staff_line_is_one_black_row(self):
        inked = [row for row in coarse("StaffLine") if set(row) != {WHITE}]
        self.assertEqual(len(inked), 1)
        self.assertEqual(set(inked[0][1:-1]), {BLACK})

    def test_cut_time_has_a_black_bar(self):
        stretches = [longest_black(line)[1] for line in columns(coarse("CommonTimeHalf"))]
        self.assertEqual(sorted(stretches)[-1], 23)


class StripTest(unittest.TestCase):
    """The toolbar strips."""

    def test_strips_divide_into_square_slices_at_both_sizes(self):
        for name, count in STRIPS.items():
            with self.subTest(strip=name):
                width, height = opened(f"{name}.bmp").size
                self.assertEqual(width, count * height)
                self.assertEqual(opened(f"{name}@2x.bmp").size,
                                 (2 * width, 2 * height))

    def test_rest_strip_differs_in_the_note_slices_only(self):
        for suffix in ("", "@2x"):
            notes, rests = (opened(f"ToolBar2-HighColor{kind}{suffix}.bmp")
                            for kind in ("", "-B"))
            size = notes.height
            for index in range(20):
                box = (index * size, 0, (index + 1) * size, size)
                with self.subTest(strip=suffix, slice=index):
                    same = notes.crop(box).tobytes() == rests.crop(box).tobytes()
                    self.assertEqual(same, index not in NOTE_SLICES)

    def test_no_two_icons_are_alike(self):
        for name, count in STRIPS.items():
            strip = opened(f"{name}.bmp")
            size = strip.height
            slices = {strip.crop((i * size, 0, (i + 1) * size, size)).tobytes()
                      for i in range(count)}
            self.assertEqual(len(slices), count)


class IconTest(unittest.TestCase):
    """The application icon."""

    def test_icon_holds_its_four_sizes(self):
        with Image.open(IMAGES / "Tonquill.ico") as icon:
            self.assertEqual(icon.info["sizes"], {(16, 16), (32, 32), (48, 48), (256, 256)})
        self.assertEqual(opened("tonquill-icon-256.png").size, (256, 256))


class FontTest(unittest.TestCase):
    """Musica.ttf."""

    @classmethod
    def setUpClass(cls):
        cls.font = TTFont(ROOT / "resources/Musica.ttf")
        cls.map = cls.font.getBestCmap()
        cls.space = cls.font["head"].unitsPerEm / 4

    @classmethod
    def tearDownClass(cls):
        cls.font.close()

    def shaped(self, text):
        """The glyph names of a text after the font's ccmp ligatures."""
        names = [self.map[ord(character)] for character in text]
        for lookup in self.font["GSUB"].table.LookupList.Lookup:
            for table in lookup.SubTable:
                for first, ligatures in table.ligatures.items():
                    for ligature in ligatures:
                        names = replaced(names, [first, *ligature.Component], ligature.LigGlyph)
        return names

    def box(self, code):
        """The ink box of a code point's glyph in spaces."""
        glyphs = self.font.getGlyphSet()
        pen = BoundsPen(glyphs)
        glyphs[self.map[code]].draw(pen)
        return pen.bounds and tuple(edge / self.space for edge in pen.bounds)

    def test_family_and_fixed_time(self):
        self.assertEqual(self.font["name"].getDebugName(1), "Musica")
        self.assertEqual(self.font["head"].created, self.font["head"].modified)

    def test_private_and_unicode_code_points_agree(self):
        for private, public in CODES.items():
            with self.subTest(code=f"{private:04X}"):
                self.assertEqual(self.map[private], self.map[public])
        for code in [*STEM_DOWN, *range(0x2669, 0x2670)]:
            self.assertIn(code, self.map)

    def test_notes_survive_normalisation(self):
        for code in range(0x1D15D, 0x1D165):
            for form in ("NFC", "NFD", "NFKC", "NFKD"):
                with self.subTest(code=f"{code:04X}", form=form):
                    self.assertEqual(self.shaped(unicodedata.normalize(form, chr(code))),
                                     [self.map[code]])

    def test_figures_and_blank(self):
        for digit in range(10):
            self.assertEqual(self.map[0x30 + digit], self.map[0xE080 + digit])
            left, bottom, right, top = self.box(0x30 + digit)
            self.assertAlmostEqual(bottom, -1, delta=0.1)
            self.assertAlmostEqual(top, 1, delta=0.1)
        self.assertIsNone(self.box(0x20))
        self.assertGreater(self.font["hmtx"][self.map[0x20]][0], 0)

    def test_ink_boxes_about_the_origin(self):
        for code, wanted in FONT_INK.items():
            width, height = wanted[2] - wanted[0], wanted[3] - wanted[1]
            for measured, expected, extent in zip(self.box(code), wanted, (width, height) * 2):
                with self.subTest(code=f"{code:04X}", expected=expected):
                    self.assertAlmostEqual(measured, expected, delta=TOLERANCE * extent)

    def test_ascent_and_descent_hold_all_ink(self):
        head = self.font["hhea"]
        for code in self.map:
            box = self.box(code)
            if box:
                self.assertLessEqual(box[3] * self.space, head.ascent)
                self.assertGreaterEqual(box[1] * self.space, head.descent)

    def test_letters_are_as_documented(self):
        lines = (ROOT / "docs/musica-letters.md").read_text(encoding="utf-8").splitlines()
        table = [line.strip("|").replace("\\|", "\0").split("|") for line in lines
                 if line.startswith("| `")]
        self.assertGreater(len(table), 40)
        for keys, title, codes in table:
            with self.subTest(symbol=title.strip()):
                typed = keys.strip().strip("`").replace("\0", "|")
                expected = {self.map[int(code[2:], 16)] for code in codes.split()}
                self.assertEqual(set(self.shaped(typed)), expected)


def replaced(names, parts, whole):
    """The names with every run of parts made one."""
    result, index = [], 0
    while index < len(names):
        if names[index:index + len(parts)] == parts:
            result.append(whole)
            index += len(parts)
        else:
            result.append(names[index])
            index += 1
    return result


if __name__ == "__main__":
    unittest.main()
