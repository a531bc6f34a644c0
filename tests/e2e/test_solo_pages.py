"""The page controls of the program of its own: the page that is gone to is the one deleted."""

import pathlib
import sys
import unittest

from desktop import Desktop
from editor import SoloInSize
from workbench import stop_after

PROGRAMS, PICTURES = map(pathlib.Path, (sys.argv.pop(1), sys.argv.pop(1)))

# US Letter: a page and the gap below it are 1039.5 units high, the gap is 49.5.
PITCH = 1039.5
NOTE = "tonquill_bitmap 300 {} {}"
IDS = (19, 20, 21)
ON_PAGES = [NOTE.format(f"{page * PITCH + 300:g}", number) for page, number in enumerate(IDS)]
# What follows a deleted page moves up by a page less a gap.
MOVED_UP = NOTE.format(f"{2 * PITCH + 300 - PITCH:g}", IDS[2])
PAPER = "tonquill_paper 748 990 22.5 22.5 703 945"


class SoloPagesTest(unittest.TestCase):
    def setUp(self):
        PICTURES.mkdir(parents=True, exist_ok=True)

    def start(self, desktop_size, window_size, items, zoom=None):
        """The program with a page for each item, in a window of this size."""
        self.desktop = self.enterContext(Desktop(*desktop_size))
        self.file = self.desktop.folder / "song.tonquill"
        lines = ["tonquill-document 1", f"tonquill_pagecount {len(items)}", PAPER, *items]
        self.file.write_text("\n".join([*lines, "tonquill-end", ""]))
        self.program = SoloInSize(self.desktop, PROGRAMS, self.file, window_size)
        self.window = self.program.window
        for _ in range(3 if zoom else 0):
            self.program.picture_after(zoom)

    def titled(self, name):
        return self.desktop.window(self.program.process, name)

    def goes_to(self, page):
        """Clicks into the box left of its arrows and types the number over what is there."""
        left, top, _, height = self.program.place("sb_page")
        before = self.window.picture_at_rest()
        self.window.double_click((left + 10, top + height // 2))
        self.desktop.type_text(str(page))
        self.window.picture_at_rest(other_than=before)

    def goes_to_page_2_and_deletes_it(self, picture):
        self.goes_to(2)
        self.window.picture().save(PICTURES / f"solo-pages-{picture}.png")
        self.program.click_control("pb_deletePAge")
        self.titled(r"^song\.tonquill\* –")
        self.desktop.key("ctrl+s")
        self.titled(r"^song\.tonquill –")

    def saved(self):
        lines = self.file.read_text().splitlines()
        return [line for line in lines if line.startswith(("tonquill_pagec", "tonquill_bitmap"))]

    def test_a_tall_window_deletes_the_page_that_was_gone_to(self):
        self.start((1280, 2200), (900, 2000), ON_PAGES[:2])
        self.goes_to_page_2_and_deletes_it("tall")
        self.assertEqual(self.saved(), ["tonquill_pagecount 1", ON_PAGES[0]])

    def test_so_does_a_page_at_half_its_size(self):
        self.start((1280, 1024), (900, 900), ON_PAGES, zoom="ctrl+minus")
        self.goes_to_page_2_and_deletes_it("half")
        self.assertEqual(self.saved(), ["tonquill_pagecount 2", ON_PAGES[0], MOVED_UP])

    def test_and_at_twice_its_size(self):
        self.start((1280, 1024), (900, 900), ON_PAGES, zoom="ctrl+plus")
        self.goes_to_page_2_and_deletes_it("twice")
        self.assertEqual(self.saved(), ["tonquill_pagecount 2", ON_PAGES[0], MOVED_UP])


if __name__ == "__main__":
    stop_after(120)
    unittest.main()
