"""Some pages of a document, chosen in the print dialog with real keys."""

import pathlib
import sys
import unittest

from desktop import Desktop
from workbench import stop_after, tool, wait_until

PROGRAMS, PICTURES = map(pathlib.Path, (sys.argv.pop(1), sys.argv.pop(1)))

# On A4 a page begins 1104.705 below the one before it.
FILE = """tonquill-document 1
tonquill_pagecount 3
tonquill_paper 727.76 1052.1 12.32 12.6 703.12 1026.9
tonquill_text 100 200 text=First font=Arial size=20 color=#000000
tonquill_text 100 1300 text=Second font=Arial size=20 color=#000000
tonquill_text 100 2400 text=Third font=Arial size=20 color=#000000
tonquill-end
"""


class PrintRangeTest(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        PICTURES.mkdir(parents=True, exist_ok=True)
        file = self.desktop.folder / "song.tonquill"
        file.write_text(FILE)
        self.program = self.desktop.start([PROGRAMS / "tonquill-solo", file], log="solo.log")
        self.main_window()

    def main_window(self):
        return self.desktop.window(self.program, r"^song\.tonquill –")

    def test_prints_the_chosen_pages_once(self):
        self.assertEqual(self.prints("2", "2"), ["Second"])
        self.assertEqual(self.prints("2", "3"), ["Second", "Third"])
        # The dialog begins with all pages again, and so does an export.
        self.assertEqual(self.prints(), ["First", "Second", "Third"])
        self.assertEqual(self.exports(), ["First", "Second", "Third"])

    def prints(self, *pages):
        """Prints into the file that the dialog suggests; the answer is what is in it."""
        pdf = self.desktop.folder / "print.pdf"
        pdf.unlink(missing_ok=True)
        self.desktop.key("ctrl+p")
        dialog = self.desktop.window(self.program, "^Print$")
        collapsed = dialog.picture_at_rest()
        if pages:
            self.desktop.key("alt+o")
            dialog.picture_at_rest(other_than=collapsed)
            # From the file's name past its button and the tabs to the ranges, and to the second.
            self.desktop.key("alt+f", *["Tab"] * 3, "Down")
            for page in pages:
                self.desktop.key("Tab", "ctrl+a", page)
            self.desktop.picture().save(PICTURES / f"print-range-{'-'.join(pages)}.png")
        self.desktop.key("Return")
        return self.words_of(pdf)

    def exports(self):
        pdf = self.desktop.folder / "song.pdf"
        self.desktop.key("ctrl+e")
        self.desktop.window(self.program, "^Export as PDF$")
        self.desktop.key("ctrl+a")
        self.desktop.type_text(str(pdf))
        self.desktop.key("Return")
        return self.words_of(pdf)

    def words_of(self, pdf):
        def is_complete():
            return pdf.exists() and pdf.read_bytes().rstrip().endswith(b"%%EOF")

        wait_until(is_complete, f"{pdf.name} is complete")
        self.main_window()
        return self.desktop.run([tool("pdftotext"), pdf, "-"]).stdout.split()


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
