"""Every kind of item, placed through its real button or menu by a hand on the mouse."""

import pathlib
import sys
import unittest

from desktop import Desktop
from editor import Editor
from workbench import stop_after, wait_until

PROGRAMS, PICTURES = map(pathlib.Path, (sys.argv.pop(1), sys.argv.pop(1)))

TEXT, GRAND_STAFF, CLEFS, TIME_SIGNATURES = 0x100, 0x101, 0x102, 0x104
TRIPLET, TIE = 0x112, 0x113
TEXT_BLOCK, TABLATURE, LINE = 0x200, 0x201, 0x203
ANCHOR_GREEN = (0, 255, 0)
TAG = "tonquill2tw tonquill_pagecount 1\n"


class NineKindsTest(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.addCleanup(lambda: self.desktop.picture().save(PICTURES / "nine-kinds-end.png"))
        self.editor = Editor(self.desktop, PROGRAMS)
        self.host = self.editor.host
        self.host.wait_for_message(lambda text: text == TAG)
        self.records = []

    def test_places_all_nine_kinds(self):
        self.places_vectors()
        self.places_from_menus()
        self.places_a_text()
        self.places_a_block()
        self.deselects()
        self.save("nine-kinds-unselected.png")
        self.selects_all()
        self.save("nine-kinds-selected.png")

    def places_vectors(self):
        # A staff of two with a tie and a triplet over it, tablature and a line further down.
        self.stretches(GRAND_STAFF, "tonquill_grandstaff", (80, 180), (500, 140))
        self.stretches(TIE, "tonquill_notetie", (220, 170), (90, 0))
        self.stretches(TRIPLET, "tonquill_triplet", (360, 160), (120, 0))
        self.stretches(TABLATURE, "tonquill_linetab", (80, 380), (240, 84))
        self.stretches(LINE, "tonquill_interactiveline", (400, 400), (150, 40))

    def places_from_menus(self):
        # The first clef, and the second time signature below the two signs of common time.
        self.chooses(CLEFS, 1)
        self.drops((110, 196), "tonquill_bitmap 2 110 196 0\n")
        self.chooses(TIME_SIGNATURES, 4)
        self.drops((150, 170), "tonquill_timesig 150 170 2 4\n")

    def places_a_text(self):
        self.editor.click_button(TEXT)
        dialog = self.desktop.window(self.editor.process, "^Simple Text$")
        self.desktop.type_text("Allegretto")
        # Past the two buttons to the list of fonts, whose entry with this letter is Arial.
        self.desktop.key("Tab", "Tab", "Tab", "a")
        dialog.picture().save(PICTURES / "text-dialog.png")
        self.desktop.key("Return")
        self.desktop.window(self.editor.process, "^Tonquill$")
        self.drops((80, 120), "tonquill_text 80 120 ")

    def places_a_block(self):
        self.editor.click_button(TEXT_BLOCK)
        self.drops((400, 470), "tonquill_textblock_begin 400 470 ")

    def chooses(self, button, entry):
        """Opens a button's menu and takes its entry of this number, separators not counted."""
        self.editor.click_button(button)
        self.desktop.key(*["Down"] * entry, "Return")

    def drops(self, place, record):
        """Places the new item with one click; its record begins like this."""
        self.editor.click(place)
        self.records.append(record)
        self.receives_all()

    def stretches(self, button, keyword, start, way):
        """Places a new figure with a click at its start and one at its end."""
        end = start[0] + way[0], start[1] + way[1]
        self.editor.click_button(button)
        self.editor.click(start)
        self.editor.click(end)
        self.records.append(f"{keyword} {start[0]} {start[1]} 0 0 {way[0]} {way[1]}\n")
        self.receives_all()

    def receives_all(self):
        """Waits for a message that holds the records of all items so far, and no others."""

        def complete(message):
            lines = [line for line in message[len(TAG) :].splitlines(True) if is_record(line)]
            return len(lines) == len(self.records) and all(
                any(line.startswith(record) for line in lines) for record in self.records
            )

        self.host.wait_for_message(complete)

    def deselects(self):
        self.editor.click((640, 250))
        wait_until(lambda: self.greens() == 0, "nothing shows its anchors")

    def selects_all(self):
        self.editor.drag((30, 60), (690, 550))
        # Nine frames with one or two anchors, of which some lie under others.
        wait_until(lambda: self.greens() >= 12 * 80, "all nine kinds show their anchors")

    def greens(self):
        return self.editor.window.picture().count(ANCHOR_GREEN)

    def save(self, name):
        self.editor.window.picture().save(PICTURES / name)


def is_record(line):
    return line.startswith("tonquill_") and not line.startswith("tonquill_textblock_end")


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
