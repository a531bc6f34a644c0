"""Rests by Ctrl: held with one hand while the other clicks note buttons."""

import pathlib
import sys
import unittest

from desktop import Desktop
from editor import PROGRAM_KINDS, wait_for_document
from workbench import stop_after, wait_until

PROGRAMS, PICTURES = map(pathlib.Path, (sys.argv.pop(1), sys.argv.pop(1)))
KIND = sys.argv.pop(1)

TEXT, CLEFS, HALF, QUARTER, EIGHTH = 0x100, 0x102, 0x10A, 0x10B, 0x10C
HALF_NOTE, QUARTER_NOTE = 16, 19
HALF_REST, QUARTER_REST, EIGHTH_REST = 18, 21, 24
AWAY = (600, 400)


class RestsTest(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.addCleanup(lambda: self.desktop.picture().save(PICTURES / f"rests-{KIND}.png"))
        self.program = PROGRAM_KINDS[KIND](self.desktop, PROGRAMS)
        self.program.window.move(self.program.at(AWAY))
        self.program.window.picture_at_rest()
        self.notes = self.icon()
        self.placed = []

    def test_ctrl_held_gives_rests(self):
        # Before any click, and again in the course of work.
        self.ctrl_down()
        self.places(QUARTER, QUARTER_REST, (100, 150))
        self.places(EIGHTH, EIGHTH_REST, (200, 150))
        self.shows_rests()
        self.places(HALF, HALF_REST, (300, 150))
        self.shows_rests()
        self.ctrl_up()
        self.places(QUARTER, QUARTER_NOTE, (400, 150))
        self.ctrl_down()
        self.places(QUARTER, QUARTER_REST, (500, 150))
        self.ctrl_up()
        self.is_told_of_all()

    def test_ctrl_let_go_over_a_menu_or_dialog(self):
        self.ctrl_down()
        self.program.click_button(CLEFS)
        self.program.window.picture_at_rest()
        self.desktop.key_up("ctrl")
        self.desktop.key("Escape")
        self.shows_notes()
        self.places(HALF, HALF_NOTE, (100, 150))

        self.ctrl_down()
        self.program.click_button(TEXT)
        self.desktop.window(self.program.process, "^Simple Text$")
        self.desktop.key_up("ctrl")
        self.desktop.key("Escape")
        self.desktop.window(self.program.process, self.program.title)
        self.shows_notes()
        self.places(QUARTER, QUARTER_NOTE, (200, 150))

        # A menu that is used without letting go ends nothing.
        self.ctrl_down()
        self.program.click_button(CLEFS)
        self.program.window.picture_at_rest()
        self.program.click(AWAY)
        self.shows_rests()
        self.places(HALF, HALF_REST, (300, 150))
        self.ctrl_up()
        self.is_told_of_all()

    def test_ctrl_and_another_window(self):
        other = self.opens_another_window()
        self.program.window.activate()
        self.ctrl_down()
        other.activate()
        self.shows_notes()
        # Come back to with Ctrl still held, the window has no key event that says so.
        self.program.window.activate()
        self.shows_rests()
        self.places(HALF, HALF_REST, (100, 150))

        other.activate()
        self.shows_notes()
        self.desktop.key_up("ctrl")
        self.program.window.activate()
        self.shows_notes()
        self.places(HALF, HALF_NOTE, (200, 150))
        self.is_told_of_all()

    def opens_another_window(self):
        folder = self.desktop.folder / "other"
        folder.mkdir()
        process = self.desktop.start([PROGRAMS / "tonquill"], environment={"TMPDIR": str(folder)})
        return self.desktop.window(process, "^Tonquill$")

    def icon(self):
        return self.program.button_picture(QUARTER)

    def ctrl_down(self):
        self.desktop.key_down("ctrl")
        self.addCleanup(self.desktop.key_up, "ctrl")
        self.shows_rests()

    def ctrl_up(self):
        self.desktop.key_up("ctrl")
        self.shows_notes()

    def shows_rests(self):
        self.program.window.move(self.program.at(AWAY))
        wait_until(lambda: self.icon() != self.notes, "the note buttons show rests")

    def shows_notes(self):
        self.program.window.move(self.program.at(AWAY))
        wait_until(lambda: self.icon() == self.notes, "the note buttons show notes")

    def places(self, button, symbol, place):
        self.program.click_button(button)
        self.program.click(place)
        self.placed.append((symbol, *place))

    def is_told_of_all(self):
        wait_for_document(
            self.program,
            lambda: self.program.glyphs() == sorted(self.placed),
            f"the document has {sorted(self.placed)}",
        )


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
