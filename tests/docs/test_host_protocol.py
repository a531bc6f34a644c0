"""What docs/host-protocol.md tells authors of hosts, tried on the real program."""

import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/e2e"))

from desktop import Desktop  # noqa: E402
from editor import Editor  # noqa: E402
from host import TO_HOST  # noqa: E402
from workbench import stop_after  # noqa: E402

PROGRAMS = pathlib.Path(sys.argv.pop(1))
DOCUMENT = (ROOT / "docs/host-protocol.md").read_text(encoding="utf-8")
EXAMPLES = re.findall(r"^\| [^|]* \| `(tonquill_[a-z_]+ [^`]*)`", DOCUMENT, re.MULTILINE)
PAGE_COUNT = "tonquill_pagecount 1"
GLYPH, BEHIND = "tonquill_bitmap 19 120 300 0", "tonquill_bitmap 13 400 300 0"


class HostProtocolTest(unittest.TestCase):
    def setUp(self):
        self.editor = Editor(self.enterContext(Desktop()), PROGRAMS)
        self.host = self.editor.host
        self.host.wait_for("received")

    def sent_back(self, *records):
        """The lines that the program writes of these records, after a click on the glyph."""
        known = len(self.host.messages())
        before = self.editor.around((120, 300), 40)
        self.host.send_document([*records, GLYPH])
        if known == 1:
            self.editor.window.picture_at_rest()
            self.assertNotEqual(self.editor.around((120, 300), 40), before)
        self.editor.click((120, 300))
        message = self.host.wait_for_message(lambda text: True, known)
        self.assertTrue(message.startswith(TO_HOST + PAGE_COUNT + "\n"), message)
        return message[len(TO_HOST) :].splitlines()[1:]

    def test_example_records_are_those_of_the_program(self):
        keywords = {example.split()[0] for example in EXAMPLES}
        self.assertEqual(len(keywords), 10, keywords)
        exact = [e for e in EXAMPLES if not e.startswith(("tonquill_text", "tonquill_pagecount"))]
        (text,) = [e for e in EXAMPLES if e.startswith("tonquill_text ")]
        lines = self.sent_back(*exact, text)
        for record in exact:
            self.assertIn(record, lines)
        measures = r"(tonquill_text \d+ \d+) \d+ \d+"
        self.assertIn(re.sub(measures, r"\1", text), [re.sub(measures, r"\1", x) for x in lines])

    def test_what_a_host_can_do_about_losses(self):
        lines = self.sent_back(
            "tonquill_text 80 40 0 0 Lento\xa0assai Arial 12 ff0000 0",
            "tonquill_textblock_begin 80 400 240 60\ntwo\nlinestonquill_textblock_end",
            BEHIND,
        )
        self.assertEqual(lines[-1].split(" ")[5:], "Lento assai Arial 12 ffff0000 0".split(" "))
        self.assertEqual(lines[-4:-1], ["two", "lines", "tonquill_textblock_end"])

    def test_what_is_lost_without(self):
        lines = self.sent_back(
            "tonquill_text 80 40 0 0 Lento Arial 12 ffff0000 12.5",
            "tonquill_textblock_begin 80 400 240 60\ntwo\nlines\ntonquill_textblock_end",
        )
        self.assertEqual(lines[-1].split(" ")[5:], "Lento Arial 12 ff000000 0".split(" "))
        self.assertEqual(lines[-5:-1], ["two", "lines", "", "tonquill_textblock_end"])

    def test_order_is_reversed(self):
        self.assertEqual(self.sent_back(BEHIND), [GLYPH, BEHIND])


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
