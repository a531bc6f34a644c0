"""The program of its own, as a new user meets it: change a note, save, undo, export, quit."""

import pathlib
import sys
import unittest

from desktop import Desktop
from workbench import stop_after, wait_until

PROGRAMS, PICTURES = map(pathlib.Path, (sys.argv.pop(1), sys.argv.pop(1)))

BLACK = (0, 0, 0)
NOTE = "tonquill_bitmap {} {} 19"
PLACE = (300, 150)
MOVE = (64, 40)
FILE = f"""tonquill-document 1
tonquill_pagecount 1
{NOTE.format(*PLACE)}
tonquill-end
"""


class SoloTest(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.file = self.desktop.folder / "song.tonquill"
        self.file.write_text(FILE)
        self.program = self.desktop.start([PROGRAMS / "tonquill-solo", self.file], log="solo.log")
        self.window = self.titled(r"^song\.tonquill –")

    def titled(self, name):
        return self.desktop.window(self.program, name)

    def test_changes_saves_undoes_exports_and_quits(self):
        note = wait_until(self.note, "the note shows")
        self.moves_the_note(note)
        self.saves()
        self.undoes(note)
        self.exports_a_pdf()
        self.thinks_better_of_quitting()
        self.quits_and_saves()

    def note(self):
        """The middle of what is black below the toolbars: the page's only note."""
        width, height = self.window.size
        picture = self.window.picture()
        black = [
            (x, y)
            for y in range(125, height - 90)
            for x in range(20, width - 40)
            if picture.pixel(x, y) == BLACK
        ]
        if not black:
            return None
        xs, ys = zip(*black)
        return (min(xs) + max(xs)) // 2, (min(ys) + max(ys)) // 2

    def moves_the_note(self, note):
        x, y = note
        self.window.drag((x - 40, y - 40), (x + 40, y + 40))
        self.window.drag(note, (x + MOVE[0], y + MOVE[1]))
        self.titled(r"^song\.tonquill\* –")
        self.window.picture().save(PICTURES / "solo-moved.png")

    def saves(self):
        self.desktop.key("ctrl+s")
        moved = NOTE.format(PLACE[0] + MOVE[0], PLACE[1] + MOVE[1])
        wait_until(lambda: moved in self.file.read_text(), "the file has the moved note")
        self.titled(r"^song\.tonquill –")

    def undoes(self, note):
        self.desktop.key("ctrl+z")
        self.titled(r"^song\.tonquill\* –")
        # Away from the note, whose selection would be drawn round it.
        self.window.click((note[0] - 150, note[1] + 150))
        wait_until(lambda: self.note() == note, "the note is back in its place")

    def exports_a_pdf(self):
        pdf = self.desktop.folder / "song.pdf"
        self.desktop.key("ctrl+e")
        self.titled("^Export as PDF$")
        self.desktop.picture().save(PICTURES / "solo-export.png")
        self.desktop.key("ctrl+a")
        self.desktop.type_text(str(pdf))
        self.desktop.key("Return")
        wait_until(lambda: pdf.exists() and pdf.read_bytes().rstrip().endswith(b"%%EOF"), "the PDF")
        self.titled(r"^song\.tonquill\* –")

    def thinks_better_of_quitting(self):
        self.desktop.key("ctrl+q")
        self.titled("^Tonquill$")
        self.desktop.picture().save(PICTURES / "solo-quit.png")
        self.desktop.key("Escape")
        self.titled(r"^song\.tonquill\* –")

    def quits_and_saves(self):
        self.desktop.key("ctrl+q")
        self.titled("^Tonquill$")
        self.desktop.key("Return")
        wait_until(lambda: self.program.poll() is not None, "the program ends")
        self.assertEqual(self.program.returncode, 0)
        self.assertIn(NOTE.format(*PLACE), self.file.read_text())


if __name__ == "__main__":
    stop_after(120)
    unittest.main()
