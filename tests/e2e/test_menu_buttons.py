"""The tool buttons with menus look as before once their menu is closed and the pointer is away."""

import pathlib
import sys
import unittest

from desktop import Desktop
from editor import PROGRAM_KINDS
from workbench import stop_after, wait_until

PROGRAMS, PICTURES = map(pathlib.Path, (sys.argv.pop(1), sys.argv.pop(1)))
KIND = sys.argv.pop(1)

CLEFS, SYMBOLS_REFERENCE = 0x102, 0x202
AWAY = (600, 400)


class MenuButtonsTest(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.addCleanup(lambda: self.desktop.picture().save(PICTURES / f"buttons-{KIND}.png"))
        self.program = PROGRAM_KINDS[KIND](self.desktop, PROGRAMS)

    def test_look_as_before(self):
        for button in (CLEFS, SYMBOLS_REFERENCE):
            for close in (self.with_escape, self.with_escape_from_afar, self.by_clicking_away):
                self.looks_as_before(button, close)
        self.looks_as_before(CLEFS, self.by_clicking_an_entry)
        self.looks_as_before(CLEFS, self.by_a_key_on_an_entry)

    def looks_as_before(self, button, close):
        self.points_away()
        before = self.program.button_picture(button)
        self.program.window.move(self.program.button(button))
        wait_until(lambda: self.program.button_picture(button) != before, "the button is raised")
        whole = self.program.window.picture_at_rest()
        self.program.click_button(button)
        self.program.window.picture_at_rest(other_than=whole)
        close(button)
        self.points_away()
        with self.subTest(button=hex(button), closed=close.__name__):
            self.assertTrue(self.program.button_picture(button) == before)

    def points_away(self):
        self.program.window.move(self.program.at(AWAY))
        self.program.window.picture_at_rest()

    def with_escape(self, _):
        self.desktop.key("Escape")
        self.program.window.picture_at_rest()

    def with_escape_from_afar(self, _):
        self.points_away()
        self.desktop.key("Escape")

    def by_clicking_away(self, _):
        self.program.click(AWAY)

    def by_clicking_an_entry(self, button):
        x, y = self.program.button(button)
        self.program.window.click((x + 20, y + 30))
        self.program.click((500, 300))

    def by_a_key_on_an_entry(self, _):
        self.points_away()
        self.desktop.key("Down", "Return")
        self.program.click((500, 200))


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
