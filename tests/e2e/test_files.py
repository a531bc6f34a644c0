"""Files under the hand: opened again, saved under old names, changed by others, read in part."""

import os
import pathlib
import sys
import time
import unittest

from desktop import Desktop
from solo import BOX, NOTE, SAVE_AS, Solo, document
from workbench import stop_after, wait_until

PROGRAMS = pathlib.Path(sys.argv.pop(1))
MOVED = NOTE.format(301, 150)
EXPORT = "^Export as PDF$"


class FilesTest(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        self.song = self.desktop.folder / "song.tonquill"
        self.song.write_text(document())

    def open_song(self):
        return Solo(self.desktop, PROGRAMS, self.song, window=r"^song\.tonquill –")

    def another_window(self, solo, name, before):
        """Waits for another window of this name than the one before; returns it."""
        wait_until(lambda: solo.titled(name).id != before.id, "another window")
        return solo.titled(name)

    def put_away(self, solo):
        window = solo.main(r"song\.tonquill")
        self.desktop.xdotool("windowminimize", window.id)
        wait_until(lambda: self.desktop.active_window() != window.id, "the window is away")
        return window

    def come_back(self, window):
        """Shows the window again. Qt takes one that is back within 0.4 s for one that never left,
        and a busy machine may make longer look like that, so it is tried again then."""

        def noticed():
            time.sleep(0.6)
            self.desktop.xdotool("windowactivate", window.id)
            end = time.monotonic() + 3
            while time.monotonic() < end:
                if self.desktop.active_window() not in ("", window.id):
                    return True
                time.sleep(0.02)
            self.desktop.xdotool("windowminimize", window.id)
            return False

        wait_until(noticed, "something is said about the file")

    def asks_before_replacing(self, solo, name, path):
        """Chooses the path in a dialog; the question that follows is answered with No."""
        dialog = solo.titled(name)
        solo.type_path(path)
        self.another_window(solo, name, dialog)
        self.desktop.key("Return")
        wait_until(lambda: solo.titled(name).id == dialog.id, "the dialog goes on")
        self.desktop.key("Escape")

    def test_a_pipe_or_a_folder_is_refused_at_once(self):
        pipe = self.desktop.folder / "pipe.tonquill"
        os.mkfifo(pipe)
        solo = Solo(self.desktop, PROGRAMS, pipe, window=BOX)
        for path in [self.desktop.folder, "/dev/zero", pipe]:
            self.desktop.key("Return")
            solo.main("Untitled")
            self.assertEqual(solo.start_again(path), 0)
            solo.titled(BOX)
        self.desktop.key("Return")
        solo.main("Untitled")

    def test_the_open_file_is_opened_again_as_it_was_saved(self):
        solo = self.open_song()
        solo.edit(r"song\.tonquill")
        self.desktop.key("ctrl+o")
        solo.titled("^Open$")
        solo.type_path(self.song)
        solo.titled(BOX)
        self.desktop.key("Return")
        solo.main(r"song\.tonquill")
        self.assertIn(MOVED, self.song.read_text())
        solo.edit(r"song\.tonquill")
        self.desktop.key("ctrl+s")
        solo.main(r"song\.tonquill")
        self.assertIn(NOTE.format(302, 150), self.song.read_text())

    def test_a_name_without_its_suffix_replaces_nothing_unasked(self):
        solo = self.open_song()
        for keys, dialog, suffix in [
            ("ctrl+shift+s", SAVE_AS, ".tonquill"),
            ("ctrl+e", EXPORT, ".pdf"),
        ]:
            old = self.desktop.folder / ("old" + suffix)
            old.write_text("old")
            self.desktop.key(keys)
            self.asks_before_replacing(solo, dialog, old.with_suffix(""))
            self.assertEqual(old.read_text(), "old")
            solo.main(r"song\.tonquill")

    def test_a_file_that_another_program_changed_is_not_overwritten(self):
        solo = self.open_song()
        solo.edit(r"song\.tonquill")
        self.song.write_text(document((5, 5)))
        self.desktop.key("ctrl+s")
        solo.titled(BOX)
        self.desktop.key("Return")
        # By Enter nothing is lost: another name is asked for.
        solo.titled(SAVE_AS)
        self.desktop.key("Escape")
        solo.main(r"song\.tonquill", modified=True)
        self.assertEqual(self.song.read_text(), document((5, 5)))

    def test_a_change_by_another_program_is_told_when_the_window_is_next_used(self):
        solo = self.open_song()
        window = self.put_away(solo)
        # As many programs save: another file takes the place of the old one.
        new = self.desktop.folder / "new"
        new.write_text(document((5, 5)))
        new.replace(self.song)
        self.come_back(window)
        solo.titled(BOX)
        self.desktop.key("Return")
        solo.main(r"song\.tonquill")
        solo.edit(r"song\.tonquill")
        self.desktop.key("ctrl+s")
        solo.main(r"song\.tonquill")
        self.assertIn(NOTE.format(6, 5), self.song.read_text())

    def test_a_file_that_was_deleted_is_unsaved_work(self):
        solo = self.open_song()
        window = self.put_away(solo)
        self.song.unlink()
        self.come_back(window)
        solo.titled(BOX)
        self.desktop.key("Return")
        solo.main(r"song\.tonquill", modified=True)

    def test_what_was_read_in_part_does_not_replace_its_file(self):
        damaged = document().replace("tonquill-end", "tonquill_hologram 1 2\ntonquill-end")
        self.song.write_text(damaged)
        solo = Solo(self.desktop, PROGRAMS, self.song, window=BOX)
        self.desktop.key("Return")
        solo.main(r"song\.tonquill", modified=True)
        self.desktop.key("ctrl+q")
        solo.titled(BOX)
        self.desktop.key("Return")
        dialog = solo.titled(SAVE_AS)
        # The name that is suggested is the file's own, so there is a question.
        self.desktop.key("Return")
        self.another_window(solo, SAVE_AS, dialog)
        self.assertEqual(self.song.read_text(), damaged)
        self.assertTrue(solo.is_running())

    def test_a_plain_document_of_a_host_is_not_converted_in_its_place(self):
        plain = self.desktop.folder / "plain.txt"
        plain.write_text("tonquill_pagecount 1\ntonquill_bitmap 19 300 150 0\n")
        before = plain.read_text()
        solo = Solo(self.desktop, PROGRAMS, plain, window=r"^plain\.txt –")
        solo.edit(r"plain\.txt")
        self.desktop.key("ctrl+s")
        solo.titled(SAVE_AS)
        self.desktop.key("Return")
        solo.main(r"plain\.tonquill")
        self.assertEqual(plain.read_text(), before)
        self.assertIn(MOVED, (self.desktop.folder / "plain.tonquill").read_text())

    def test_an_export_does_not_replace_the_document(self):
        pdf = self.desktop.folder / "song.pdf"
        self.song.rename(pdf)
        solo = Solo(self.desktop, PROGRAMS, pdf, window=r"^song\.pdf –")
        self.desktop.key("ctrl+e")
        dialog = solo.titled(EXPORT)
        self.desktop.key("Return")
        self.another_window(solo, EXPORT, dialog)
        self.desktop.key("alt+y")
        solo.titled(BOX)
        self.desktop.key("Return")
        solo.main(r"song\.pdf")
        self.assertEqual(pdf.read_text(), document())


if __name__ == "__main__":
    stop_after(140)
    unittest.main(verbosity=2)
