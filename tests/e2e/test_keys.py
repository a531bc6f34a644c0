"""The keys reach the page whatever else in the window was clicked before, and only then."""

import pathlib
import sys
import unittest

from desktop import Desktop
from editor import PROGRAM_KINDS, block, glyph, wait_for_document
from workbench import stop_after, wait_until

PROGRAMS, PICTURES = map(pathlib.Path, (sys.argv.pop(1), sys.argv.pop(1)))
KIND = sys.argv.pop(1)

TABLATURE_TOOLS, TEXT, CLEFS = 2, 0x100, 0x102
FILE_MENU = (20, 10)
SHARP, EIGHTH = 4, 22
ROW, FREE, EMPTY = 100, 250, (640, 450)
BLOCK = (80, 350)


class KeysTest(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.addCleanup(lambda: self.desktop.picture().save(PICTURES / f"keys-{KIND}.png"))

    def start(self, *records):
        self.program = PROGRAM_KINDS[KIND](self.desktop, PROGRAMS, *records)

    def starts_with_glyphs(self, count):
        """A row of glyphs, far enough apart that each can be clicked beside copies of others."""
        self.waiting = [(SHARP, 60 + 90 * i, ROW) for i in range(count)]
        self.items = list(self.waiting)
        self.copied = []
        self.start(*[glyph(*item) for item in self.items])

    def test_keys_act_after_each_click(self):
        self.starts_with_glyphs(6)
        self.acts_after(self.presses_toolbar_buttons)
        self.acts_after(self.opens_the_page_menu)
        self.acts_after(self.leaves_the_page_field_by("Escape"))
        self.acts_after(self.leaves_the_page_field_by("Return"))
        self.acts_after(self.clicks_beside_the_page_field)
        self.acts_after(self.opens_a_menu_and_a_dialog)

    def presses_toolbar_buttons(self):
        # Out of sight and back again.
        for _ in range(2):
            self.program.click_button(TABLATURE_TOOLS)

    def opens_the_page_menu(self):
        before = self.program.window.picture_at_rest()
        self.program.click_control("pb_insertPage")
        self.closes_the_menu(before)

    def closes_the_menu(self, before):
        """Closes the menu that the window did not show before."""
        shown = self.program.window.picture_at_rest(other_than=before)
        self.desktop.key("Escape")
        # A key that comes while the menu still has the display's keyboard is the menu's.
        self.program.window.picture_at_rest(other_than=shown)

    def leaves_the_page_field_by(self, key):
        def leave():
            self.program.click_control("sb_page")
            self.desktop.key("ctrl+a", "1", key)

        return leave

    def clicks_beside_the_page_field(self):
        self.program.click_control("sb_page")
        x, y = self.program.control("sb_page")
        self.program.window.click((x - 200, y))

    def opens_a_menu_and_a_dialog(self):
        before = self.program.window.picture_at_rest()
        self.program.click_button(CLEFS)
        self.closes_the_menu(before)
        self.program.click_button(TEXT)
        self.desktop.window(self.program.process, "^Simple Text$")
        self.desktop.key("Escape")
        self.desktop.window(self.program.process, self.program.title)

    def acts_after(self, what):
        """Selects the next glyph and sees every key act on it at once after this was done."""
        symbol, x, y = self.waiting.pop(0)
        self.program.click(EMPTY)
        self.program.click((x, y))
        what()
        self.desktop.key("Right", "ctrl+c", "ctrl+v", "space")
        self.copied.append((symbol, x + 1, y))
        # Copies of all that was copied, and one more of the last of them where it is clicked.
        place = x, FREE
        self.program.click(place)
        self.items.remove((symbol, x, y))
        self.items += [(s, a + 30, b + 30) for s, a, b in self.copied]
        self.is_told([*self.items, (symbol, x + 1, y), (symbol, *place)])
        # The moved one and the new one are selected.
        self.desktop.key("Delete")
        self.is_told(self.items)

    @unittest.skipUnless(KIND == "tonquill-solo", "it has a menu bar")
    def test_keys_act_after_a_menu_of_the_bar(self):
        self.starts_with_glyphs(2)
        self.acts_after(self.opens_a_menu_of_the_bar_by(self.clicking_it))
        self.acts_after(self.opens_a_menu_of_the_bar_by(self.its_key))

    def opens_a_menu_of_the_bar_by(self, means):
        def opens_it():
            before = self.program.window.picture_at_rest()
            means()
            self.closes_the_menu(before)

        return opens_it

    def clicking_it(self):
        self.program.window.click(FILE_MENU)

    def its_key(self):
        self.desktop.key("alt+f")

    def test_typing_a_page_stays_typing(self):
        self.starts_with_glyphs(2)
        self.program.click((60, ROW))
        self.program.click_control("sb_page")
        self.desktop.key("ctrl+a")
        two_digits = self.number_after("BackSpace", "1", "2")
        one_digit = self.number_after("End", "BackSpace")
        self.assertFalse(one_digit == two_digits)
        self.assertTrue(self.number_after("Up") not in (one_digit, two_digits))
        self.assertTrue(self.number_after("Down") == one_digit)
        self.assertTrue(self.number_after("Home", "Delete", "2", "Left", "1") == two_digits)
        # Neither moved nor deleted nor copied.
        self.desktop.key("ctrl+a", "ctrl+c", "Left", "Escape", "ctrl+v")
        self.program.click((150, ROW))
        self.is_told(self.items)

    def number_after(self, *keys):
        """The picture of the field after these keys."""
        self.desktop.key(*keys)
        # While everything is selected no cursor blinks.
        self.desktop.key("ctrl+a")
        self.program.window.picture_at_rest()
        return self.program.control_picture("sb_page")

    def test_keys_act_at_the_start(self):
        # Nothing was clicked: what was read last is what Space makes one more of.
        self.start(glyph(EIGHTH, 300, 200))
        self.program.window.move(self.program.at((200, 300)))
        before = self.program.window.picture_at_rest()
        self.desktop.key("space")
        self.program.window.picture_at_rest(other_than=before)
        self.program.click((250, 320))
        self.items = [(EIGHTH, 250, 320), (EIGHTH, 300, 200)]
        self.is_told(self.items)

    def test_keys_act_after_a_text_was_edited(self):
        self.starts_with_text()
        self.edits_the_text("x")
        self.presses_toolbar_buttons()
        # The block is selected, not edited: the key takes it away.
        self.desktop.key("Delete")
        wait_for_document(
            self.program, lambda: "textblock" not in self.program.document(), "the block is gone"
        )

    def starts_with_text(self):
        self.items = [(EIGHTH, 300, 200)]
        self.start(glyph(EIGHTH, 300, 200), block("abc", *BLOCK, 240, 60))

    def edits_the_text(self, letter):
        inside = BLOCK[0] + 100, BLOCK[1] + 30
        self.program.click(inside)
        before = self.program.window.picture_at_rest()
        self.program.double_click(inside)
        self.desktop.key(letter)
        self.program.window.picture_at_rest(other_than=before)

    def is_told(self, glyphs):
        wait_for_document(
            self.program,
            lambda: self.program.glyphs() == sorted(glyphs),
            f"the document has {sorted(glyphs)}",
        )


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
