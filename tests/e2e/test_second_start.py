"""A later start of the program, whatever the first one is busy with."""

import hashlib
import pathlib
import signal
import sys
import time
import unittest

from desktop import Desktop
from solo import BOX, NOTE, SAVE_AS, Solo, document
from workbench import DEADLINE, stop_after, tool, wait_until

# Seconds; with a sanitizer it takes ten times as long.
LONG_EXPORT = 60
NOTICED_AS_LONG = 1.5

# A4, and the scene units from page to page.
PAPER = "tonquill_paper 727.76 1052.1 12.32 12.6 703.12 1026.9"
PITCH = 1.05 * 1052.1

PROGRAMS = pathlib.Path(sys.argv.pop(1))


class SecondStartTest(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        self.song = self.desktop.folder / "song.tonquill"
        self.other = self.desktop.folder / "other.tonquill"
        self.song.write_text(document())
        self.other.write_text(document((100, 200), (150, 200)))

    def test_a_question_may_be_cancelled_again_and_again(self):
        # Freed memory is overwritten, so that using it again does not go well by luck.
        strict = {"MALLOC_PERTURB_": "165"}
        solo = Solo(self.desktop, PROGRAMS, self.song, environment=strict)
        solo.edit(r"song\.tonquill")
        for _ in range(5):
            self.assertEqual(solo.start_again(self.other), 0)
            solo.titled(BOX)
            self.desktop.key("Escape")
            solo.main(r"song\.tonquill", modified=True)
        self.assertTrue(solo.is_running(), solo.log())

    def test_waits_until_a_name_to_save_under_is_chosen(self):
        solo = Solo(self.desktop, PROGRAMS, self.song)
        solo.edit(r"song\.tonquill")
        self.desktop.key("ctrl+shift+s")
        solo.titled(SAVE_AS)
        self.assertEqual(solo.start_again(self.other), 0)
        copy = self.desktop.folder / "copy.tonquill"
        solo.titled(SAVE_AS)
        solo.type_path(copy)
        # Saved, so that nothing needs to be asked before the other file is shown.
        solo.main(r"other\.tonquill")
        self.assertIn(NOTE.format(301, 150), copy.read_text())
        self.assertEqual(self.song.read_text(), document())
        self.assertEqual(self.other.read_text(), document((100, 200), (150, 200)))

    def test_waits_for_the_end_of_an_export(self):
        long, pdf = self.desktop.folder / "long.tonquill", self.desktop.folder / "long.pdf"
        pages, per_page = 4000, 20
        tops = [page * PITCH for page in range(pages)]
        glyphs = [(x * 30, round(top) + 200) for top in tops for x in range(per_page)]
        fine = f'tonquill_text 300 {tops[-1] + 200} text="Fine" font="Courier" size=12 color=#000000'
        first, _, *items, end = document(*glyphs).splitlines()
        lines = [first, f"tonquill_pagecount {pages}", PAPER, *items, fine, end, ""]
        long.write_text("\n".join(lines))
        solo = Solo(self.desktop, PROGRAMS, long, window=r"^long\.tonquill –")
        self.desktop.key("ctrl+e")
        solo.titled("^Export as PDF$")
        solo.type_path(pdf)
        # It stands still in the middle of the pages, so that the other start comes then, and for
        # so long that the print counts as a long one, which has events processed.
        pages_begun = lambda: list(self.desktop.folder.glob("*/export.pdf"))
        wait_until(pages_begun, "the first pages are being written")
        solo.process.send_signal(signal.SIGSTOP)
        self.assertFalse(pdf.exists())
        before = self.connections()
        again = self.desktop.start([solo.program, self.other], log="again.log")
        wait_until(lambda: self.connections() > before, "the second start calls the first")
        time.sleep(NOTICED_AS_LONG)
        solo.process.send_signal(signal.SIGCONT)
        self.assertEqual(again.wait(DEADLINE), 0)
        wait_until(pdf.exists, "the pages are in the file", LONG_EXPORT)
        solo.main(r"other\.tonquill")
        told = self.desktop.run([tool("pdfinfo"), pdf]).stdout
        self.assertIn(f"Pages:           {pages}\n", told)
        last_page = ["-f", str(pages), "-l", str(pages), pdf, "-"]
        self.assertIn("Fine", self.desktop.run([tool("pdftotext"), *last_page]).stdout)

    def connections(self):
        """How many sockets there are of the name at which the first start listens."""
        sockets = pathlib.Path("/proc/net/unix").read_text().splitlines()
        return sum(f"{self.desktop.folder}/" in line and "solo" in line for line in sockets)

    def test_finds_the_first_start_wherever_the_home_is(self):
        # A socket's path has room for 107 bytes.
        long = self.desktop.folder / ("long" * 20) / "home"
        long.mkdir(parents=True)
        for home in ["/dev/null", str(long)]:
            with self.subTest(home):
                environment = {"environment": {"HOME": home}}
                solo = Solo(self.desktop, PROGRAMS, self.song, window=".", **environment)
                if home == "/dev/null":
                    # Nothing can be kept there for recovery, which is said once.
                    solo.titled(BOX)
                    self.desktop.key("Return")
                solo.edit(r"song\.tonquill")
                self.desktop.key("ctrl+z")
                solo.main(r"song\.tonquill")
                self.assertEqual(solo.start_again(self.other, **environment), 0)
                solo.main(r"other\.tonquill")
                solo.kill()

    def test_goes_on_where_nothing_can_be_written(self):
        # Without a home the session's folder would do, but there is a file in the way.
        home = "/dev/null"
        folder = home + "/.local/share/Tonquill/tonquill-solo"
        mark = hashlib.sha1(folder.encode()).hexdigest()[:8]
        (self.desktop.folder / "runtime" / f"tonquill-solo-{mark}").touch()
        solo = Solo(self.desktop, PROGRAMS, self.song, window=BOX, environment={"HOME": home})
        # A second start does not reach it, and nothing is kept for recovery: a box each.
        box = solo.titled(BOX)
        self.desktop.key("Return")
        wait_until(lambda: solo.titled(BOX).id != box.id, "the second box")
        self.desktop.key("Return")
        solo.edit(r"song\.tonquill")

    def test_the_file_that_is_open_is_shown_with_its_changes(self):
        solo = Solo(self.desktop, PROGRAMS, self.song)
        solo.edit(r"song\.tonquill")
        self.assertEqual(solo.start_again(self.song), 0)
        # Whatever comes after it comes to the window, and not to a question.
        self.desktop.key("ctrl+s")
        solo.main(r"song\.tonquill")
        self.assertIn(NOTE.format(301, 150), self.song.read_text())

    def test_says_that_the_first_start_does_not_answer(self):
        solo = Solo(self.desktop, PROGRAMS, self.song)
        solo.process.send_signal(signal.SIGSTOP)
        again = Solo(self.desktop, PROGRAMS, self.other, window=BOX)
        self.desktop.key("Return")
        self.assertEqual(again.process.wait(DEADLINE), 1)
        solo.process.send_signal(signal.SIGCONT)
        # What was asked for while it stood still is not lost.
        solo.main(r"other\.tonquill")


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
