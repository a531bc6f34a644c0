"""Writing in a text block: what the mouse and the keys do to its text, and to nothing else."""

import pathlib
import re
import sys
import unittest

from desktop import Desktop
from editor import PROGRAM_KINDS, block, glyph, wait_for_document
from workbench import stop_after

PROGRAMS, PICTURES = map(pathlib.Path, (sys.argv.pop(1), sys.argv.pop(1)))
KIND = sys.argv.pop(1)

SYMBOL, NOTE = 22, (500, 150)
BLOCK = (100, 300)
GAP = " " * 20
TEXT = f"ab{GAP}cd"
IN_THE_GAP, AT_THE_END, BEYOND_THE_BLOCK = 50, 200, 300
EMPTY = (640, 450)
FILE_MENU, EDIT_MENU = (20, 10), (58, 10)


class EditedTextTest(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.addCleanup(lambda: self.desktop.picture().save(PICTURES / f"text-{KIND}.png"))
        self.program = PROGRAM_KINDS[KIND](
            self.desktop, PROGRAMS, glyph(SYMBOL, *NOTE), block(TEXT, *BLOCK, 240, 40)
        )

    def test_text_is_marked_beyond_the_right_edge(self):
        self.edits()
        self.program.drag(self.inside(IN_THE_GAP), self.inside(BEYOND_THE_BLOCK))
        self.desktop.key("x")
        self.has_block(r"ab +x\b", "what was marked is typed over")

    def test_text_is_marked_out_of_the_block_without_moving_it(self):
        self.edits()
        self.program.drag(self.inside(IN_THE_GAP), (BLOCK[0] + IN_THE_GAP, BLOCK[1] - 120))
        self.desktop.key("x")
        self.has_block(r"x +cd\b", "what was marked is typed over")
        # A press elsewhere ended the editing: a drag moves the block now.
        start = self.inside(IN_THE_GAP)
        self.program.drag(start, (start[0] + 40, start[1] + 30))
        self.has_block(r"x +cd\b", "the block is moved", (BLOCK[0] + 40, BLOCK[1] + 30))

    def test_copy_and_paste_act_on_the_edited_text_only(self):
        self.program.click(NOTE)
        self.desktop.key("ctrl+c")
        self.program.click(EMPTY)
        self.edits()
        self.desktop.key("ctrl+a", "ctrl+c", "End", "ctrl+v")
        self.has_block(r"ab +cd\s*ab +cd\b", "the text is doubled")
        self.assertEqual(self.program.glyphs(), [(SYMBOL, *NOTE)])
        self.assertEqual(len(re.findall("^tonquill_textblock", self.told(), re.M)), self.lines())

    def lines(self):
        """How many lines of a document begin a record of one block."""
        return {"tonquill": 2, "tonquill-solo": 1}[KIND]

    def test_ctrl_may_go_before_the_letter(self):
        self.program.click(NOTE)
        self.ctrl_with("c", first_up="ctrl")
        self.ctrl_with("v", first_up="ctrl")
        self.has_notes(1)
        self.ctrl_with("v", first_up="v")
        self.has_notes(2)
        # A letter alone is none of the two, whatever came before it.
        self.desktop.key("c", "v", "v")
        self.ctrl_with("v", first_up="ctrl")
        self.has_notes(3)

    @unittest.skipUnless(KIND == "tonquill-solo", "it has a menu bar")
    def test_delete_in_the_menu_spares_the_block_of_an_edited_text(self):
        for opens_the_menu in (
            lambda: self.program.window.click(EDIT_MENU),
            lambda: self.desktop.key("alt+e"),
        ):
            self.edits()
            self.changes(opens_the_menu)
            # The letter of "Delete", which is grey; Escape closes the menu then.
            self.desktop.key("d", "Escape")
            self.program.window.picture_at_rest()
            self.has_block(r"ab +cd\b", "the block is there")

    @unittest.skipUnless(KIND == "tonquill-solo", "it has a menu bar")
    def test_delete_in_the_menu_deletes_again_after_the_edited_text(self):
        self.edits()
        self.changes(lambda: self.program.window.click(FILE_MENU))
        self.changes(lambda: self.desktop.key("Escape"))
        self.program.click(EMPTY)
        self.changes(lambda: self.program.click(NOTE))
        self.changes(lambda: self.program.window.click(EDIT_MENU))
        self.changes(lambda: self.desktop.key("d"))
        wait_for_document(self.program, lambda: not self.program.glyphs(), "the note is gone")
        self.assertIn("cd", self.told())

    def ctrl_with(self, letter, first_up):
        self.desktop.key_down("ctrl", letter)
        self.desktop.key_up(first_up)
        self.desktop.key_up(letter if first_up == "ctrl" else "ctrl")

    def has_notes(self, copies):
        """There is the note and this many copies of it."""
        copy = SYMBOL, NOTE[0] + 30, NOTE[1] + 30
        expected = sorted([(SYMBOL, *NOTE)] + [copy] * copies)
        self.program.click(NOTE)
        wait_for_document(
            self.program, lambda: self.program.glyphs() == expected, f"{expected} are there"
        )

    def edits(self):
        """Opens the block with a double click, away from where the next press may be."""
        self.changes(lambda: self.program.click(self.inside(AT_THE_END)))
        self.changes(lambda: self.program.double_click(self.inside(AT_THE_END)))

    def inside(self, x):
        """A point of the line of text, or beside it."""
        return BLOCK[0] + x, BLOCK[1] + 12

    def changes(self, what):
        """Does this and waits until the window shows it."""
        before = self.program.window.picture_at_rest()
        what()
        self.program.window.picture_at_rest(other_than=before)

    def has_block(self, text, what, place=BLOCK):
        """The block stands there and its text contains this regular expression, once told."""
        self.program.click(EMPTY)
        self.program.click(NOTE)
        at_place = rf"^tonquill_textblock(_begin)? {place[0]} {place[1]} "
        wait_for_document(
            self.program,
            lambda: re.search(at_place, self.told(), re.M) and re.search(text, self.told()),
            what,
        )

    def told(self):
        return self.program.document()


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
