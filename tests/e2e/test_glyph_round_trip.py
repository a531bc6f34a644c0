"""A glyph's way to the host and back, with the hand on the mouse and the host beside."""

import pathlib
import sys
import unittest

from desktop import Desktop
from editor import Editor
from workbench import stop_after, wait_until

PROGRAMS, PICTURES = map(pathlib.Path, (sys.argv.pop(1), sys.argv.pop(1)))

EIGHTH_NOTE_BUTTON = 0x10C
ANCHOR_GREEN = (0, 255, 0)
PAGE_COUNT = "tonquill_pagecount 1\n"
REACH = 60


def glyph(symbol, point):
    x, y = point
    return f"tonquill_bitmap {symbol} {x} {y} 0\n"


class GlyphRoundTripTest(unittest.TestCase):
    def setUp(self):
        desktop = self.enterContext(Desktop())
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.editor = Editor(desktop, PROGRAMS)
        # What a failure leaves to look at.
        self.addCleanup(lambda: desktop.picture().save(PICTURES / "glyph-round-trip.png"))
        self.addCleanup(lambda: print(self.editor.log()))
        self.host = self.editor.host

    def test_places_shows_selects_and_moves_glyphs(self):
        self.greets_the_host()
        self.places_an_eighth_note((300, 200))
        self.shows_the_document_of_the_host()
        self.selects_with_a_rubber_band()
        self.moves_the_selection()

    def greets_the_host(self):
        self.heard = 0
        self.assertEqual(self.next_message(), "tonquill2tw " + PAGE_COUNT)

    def places_an_eighth_note(self, place):
        empty = self.editor.around(place, REACH)
        self.editor.click_button(EIGHTH_NOTE_BUTTON)
        self.editor.click(place)
        self.receives([glyph(22, place)])
        self.wait_until_shown(place, empty)
        self.save("glyph-placed.png")
        self.placed, self.empty = place, empty

    def shows_the_document_of_the_host(self):
        # A treble clef, a quarter note and a sixteenth note, and a half note further down.
        self.glyphs = {2: (200, 200), 19: (300, 300), 25: (400, 200)}
        self.bystander = (17, (300, 480))
        self.host.send_document(
            [PAGE_COUNT, *(glyph(*entry) for entry in [*self.glyphs.items(), self.bystander])]
        )
        for place in [*self.glyphs.values(), self.bystander[1]]:
            self.wait_until_shown(place, self.empty)
        wait_until(
            lambda: self.editor.around(self.placed, REACH) == self.empty,
            "the note that the document does not have is gone",
        )
        self.save("glyphs-from-host.png")

    def selects_with_a_rubber_band(self):
        bystander = self.editor.around(self.bystander[1], REACH)
        self.editor.drag((110, 110), (490, 400))
        for place in self.glyphs.values():
            wait_until(
                lambda: self.editor.around(place, REACH).count(ANCHOR_GREEN) >= 50,
                f"the glyph at {place} shows its anchor",
            )
        self.assertEqual(self.editor.around(self.bystander[1], REACH), bystander)
        self.assertEqual(len(self.host.messages()), self.heard)
        self.save("glyphs-selected.png")

    def moves_the_selection(self):
        across, down = 57, 38
        moved = {symbol: (x + across, y + down) for symbol, (x, y) in self.glyphs.items()}
        before = {symbol: self.editor.around(at, REACH) for symbol, at in self.glyphs.items()}

        self.editor.drag(self.glyphs[19], moved[19])
        self.receives([glyph(*entry) for entry in [*moved.items(), self.bystander]])
        for symbol, place in moved.items():
            wait_until(
                lambda: self.editor.around(place, REACH) == before[symbol],
                f"glyph {symbol} looks at {place} as it did where it was",
            )
        self.save("glyphs-moved.png")

    def next_message(self):
        """The one message that the host has received since the last one."""
        self.host.wait_for("received", self.heard + 1)
        messages = self.host.messages()[self.heard :]
        self.assertEqual(len(messages), 1, messages)
        self.heard += 1
        return messages[0]

    def receives(self, records):
        """The host's next message is the page count, then these records in any order."""
        message = self.next_message()
        tag = "tonquill2tw " + PAGE_COUNT
        self.assertEqual(message[: len(tag)], tag)
        lines = message[len(tag) :].splitlines(keepends=True)
        self.assertEqual(sorted(lines), sorted(records))

    def wait_until_shown(self, place, empty):
        wait_until(
            lambda: self.editor.around(place, REACH) != empty, f"there is something at {place}"
        )

    def save(self, name):
        self.editor.window.picture().save(PICTURES / name)


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
