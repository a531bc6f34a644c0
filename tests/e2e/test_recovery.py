"""What a program that was killed leaves behind, and what the next start makes of it."""

import pathlib
import sys
import time
import unittest

from desktop import Desktop
from solo import BOX, NOTE, SAVE_AS, Solo, document
from workbench import stop_after, wait_until

PROGRAMS = pathlib.Path(sys.argv.pop(1))
MOVED = NOTE.format(301, 150)


class RecoveryTest(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        self.song = self.desktop.folder / "song.tonquill"
        self.other = self.desktop.folder / "other.tonquill"
        self.song.write_text(document())
        self.other.write_text(document((100, 200)))
        self.kept = self.desktop.folder / ".local/share/Tonquill/tonquill-solo"
        self.journal = self.kept / "recovery.tonquill"

    def crash(self):
        """Leaves the song behind with its note moved and not saved."""
        solo = self.start(self.song, window=r"^song\.tonquill –")
        solo.edit(r"song\.tonquill")
        self.wait_for_journal()
        solo.kill()

    def start(self, *arguments, window=BOX):
        return Solo(self.desktop, PROGRAMS, *arguments, window=window)

    def wait_for_journal(self):
        wait_until(
            lambda: self.journal.exists() and MOVED in self.journal.read_text(),
            "the change is in the journal",
        )

    def recovered_song_is_saved(self, solo):
        """The recovered document is in the window, no question is open, and it can be saved."""
        solo.main(r"song\.tonquill", modified=True)
        self.assertEqual(self.song.read_text(), document())
        self.desktop.key("ctrl+s")
        solo.main(r"song\.tonquill")
        self.assertIn(MOVED, self.song.read_text())
        self.assertFalse(self.journal.exists())

    def test_the_same_file_is_not_opened_over_what_was_recovered(self):
        self.crash()
        link = self.desktop.folder / "link.tonquill"
        link.symlink_to(self.song)
        solo = self.start(link)
        self.desktop.key("Return")
        self.recovered_song_is_saved(solo)

    def test_another_file_is_asked_about(self):
        self.crash()
        solo = self.start(self.other)
        question = solo.titled(BOX)
        self.desktop.key("Return")
        wait_until(lambda: solo.titled(BOX).id != question.id, "the next question")
        self.desktop.key("Escape")
        self.recovered_song_is_saved(solo)

    def test_nothing_is_written_before_the_question_is_answered(self):
        self.crash()
        before = self.journal.read_bytes()
        solo = self.start()
        self.desktop.key("Tab", "Tab", "a", "Right")
        # A change is in the journal after a second at the latest.
        end = time.monotonic() + 2
        while time.monotonic() < end:
            self.assertEqual(self.journal.read_bytes(), before)
            time.sleep(0.05)
        solo.kill()
        solo = self.start()
        self.desktop.key("Return")
        solo.main(r"song\.tonquill", modified=True)
        solo.kill()
        solo = self.start()
        self.desktop.key("Return")
        self.recovered_song_is_saved(solo)

    def test_a_journal_that_can_be_read_in_part_is_kept(self):
        self.crash()
        damaged = self.journal.read_text().replace("tonquill-end", "tonquill_hologram 1 2")
        self.journal.write_text(damaged)
        solo = self.start(self.song)
        copies = list(self.kept.glob("recovery-*.tonquill"))
        self.assertEqual([copy.read_text() for copy in copies], [damaged])
        self.desktop.key("Return")
        solo.main(r"song\.tonquill", modified=True)
        # What is left of the song is not its file: it has to be given a name.
        self.desktop.key("ctrl+s")
        solo.titled(SAVE_AS)
        self.assertEqual(self.song.read_text(), document())
        self.assertEqual(copies[0].read_text(), damaged)

    def test_a_journal_that_cannot_be_read_is_kept(self):
        self.crash()
        self.journal.write_bytes(b"\0\0\0\0")
        solo = self.start(self.song)
        self.desktop.key("Return")
        solo.edit(r"song\.tonquill")
        self.wait_for_journal()
        copies = list(self.kept.glob("recovery-*.tonquill"))
        self.assertEqual([copy.read_bytes() for copy in copies], [b"\0\0\0\0"])

    def test_the_journal_is_nobody_elses(self):
        self.crash()
        self.assertEqual(self.journal.stat().st_mode & 0o777, 0o600)
        self.assertEqual(self.kept.stat().st_mode & 0o777, 0o700)

    def test_a_file_changed_since_the_crash_is_not_overwritten(self):
        self.crash()
        self.song.write_text(document((5, 5)))
        solo = self.start(self.song)
        self.desktop.key("Return")
        solo.main(r"song\.tonquill", modified=True)
        self.desktop.key("ctrl+s")
        solo.titled(BOX)
        self.desktop.key("Escape")
        solo.main(r"song\.tonquill", modified=True)
        self.assertEqual(self.song.read_text(), document((5, 5)))


if __name__ == "__main__":
    stop_after(140)
    unittest.main(verbosity=2)
