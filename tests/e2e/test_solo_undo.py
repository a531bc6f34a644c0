"""Undo with a hand: what is selected afterwards is whole, so that the next drag moves all of it."""

import pathlib
import sys
import unittest

from desktop import Desktop
from editor import SoloInSize
from workbench import stop_after, wait_until

PROGRAMS, PICTURES = map(pathlib.Path, (sys.argv.pop(1), sys.argv.pop(1)))

SIZE = (900, 900)
WIDTH = 748  # of the paper, scene units
PAPER = f"tonquill_paper {WIDTH} 990 22.5 22.5 703 945"

# Two bars: a staff each, a barline behind each, a note in each and a tie from one to the other;
# and a note that stands by itself.
BARS = [
    ("tonquill_grandstaff", 100, 200, "0 0 120 32"),
    ("tonquill_interactiveline", 220, 200, "0 0 0 32"),
    ("tonquill_grandstaff", 220, 200, "0 0 120 32"),
    ("tonquill_interactiveline", 340, 200, "0 0 0 32"),
    ("tonquill_notetie", 150, 240, "0 0 130 0"),
    ("tonquill_bitmap", 140, 205, "19"),
    ("tonquill_bitmap", 270, 205, "20"),
]
ALONE = [("tonquill_bitmap", 500, 500, "19")]
PASTED = 30  # further right and down than what was copied
DRAG = (37, 120)


def records(items, right=0, down=0):
    return [f"{kind} {x + right} {y + down} {rest}" for kind, x, y, rest in items]


class SoloUndoTest(unittest.TestCase):
    def setUp(self):
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.desktop = self.enterContext(Desktop())
        self.file = self.desktop.folder / "song.tonquill"
        lines = ["tonquill-document 1", "tonquill_pagecount 1", PAPER, *records(BARS + ALONE)]
        self.file.write_text("\n".join([*lines, "tonquill-end", ""]))
        self.program = SoloInSize(self.desktop, PROGRAMS, self.file, SIZE)
        self.window = self.program.window
        left, top, width, _ = self.program.place("viewport")
        self.origin = left + (width - WIDTH) // 2, top

    def titled(self, mark):
        return self.desktop.window(self.program.process, rf"^song\.tonquill{mark} –")

    def at(self, x, y):
        """The point of the window that shows this point of the page."""
        return self.origin[0] + x, self.origin[1] + y

    def types_with_ctrl(self, letter):
        """The letter goes up before Ctrl: xdotool's own "ctrl+c" lets Ctrl go first."""
        self.desktop.key_down("ctrl")
        self.desktop.key(letter)
        self.desktop.key_up("ctrl")

    def saved(self, wanted):
        """The file's items, once they are so many."""
        self.desktop.key("ctrl+s")
        self.titled("")

        def items():
            return [
                line
                for line in self.file.read_text().splitlines()
                if line.startswith("tonquill_") and not line.startswith(("tonquill_pa"))
            ]

        wait_until(lambda: len(items()) == wanted, "the file has the items")
        return sorted(items())

    def test_the_bars_stay_whole_after_undo(self):
        self.window.drag(self.at(60, 150), self.at(420, 330))
        selected = self.window.picture_at_rest()
        self.types_with_ctrl("c")
        self.types_with_ctrl("v")
        self.titled(r"\*")
        self.desktop.key("ctrl+z")
        self.titled("")
        self.window.picture().save(PICTURES / "solo-undo.png")
        wait_until(lambda: self.window.picture() == selected, "the selection is what it was")

        self.program.picture_after("ctrl+shift+z")
        both = records(BARS) + records(BARS, PASTED, PASTED) + records(ALONE)
        self.assertEqual(self.saved(len(both)), sorted(both))
        self.desktop.key("ctrl+z")
        wait_until(lambda: self.window.picture() == selected, "the selection is there once more")

        self.drags_the_first_note()
        moved = records(BARS, *DRAG) + records(ALONE)
        self.assertEqual(self.saved(len(moved)), sorted(moved))

        # Back where they were and there again, all of them are still selected.
        dragged = self.window.picture_at_rest()
        self.program.picture_after("ctrl+z")
        wait_until(lambda: self.window.picture() == selected, "the selection came back")
        self.desktop.key("ctrl+y")
        wait_until(lambda: self.window.picture() == dragged, "the selection went along")

    def drags_the_first_note(self):
        """By its head, off the squares; everything that is selected goes along."""
        before = self.window.picture_at_rest()
        head = self.at(139, 217)
        self.window.drag(head, (head[0] + DRAG[0], head[1] + DRAG[1]))
        self.window.picture_at_rest(other_than=before)


if __name__ == "__main__":
    stop_after(120)
    unittest.main()
