"""A symbols reference text is typed with real keys, tabs included."""

import pathlib
import shutil
import sys
import unittest

from desktop import Desktop
from editor import PROGRAM_KINDS
from workbench import stop_after, wait_until

PROGRAMS, PICTURES = map(pathlib.Path, (sys.argv.pop(1), sys.argv.pop(1)))
KIND = sys.argv.pop(1)

SYMBOLS_REFERENCE = 0x202


class ReferenceTextTest(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        PICTURES.mkdir(parents=True, exist_ok=True)
        self.addCleanup(lambda: self.desktop.picture().save(PICTURES / f"reference-{KIND}.png"))
        # The texts lie in the program's own folder, so it gets one that is the test's.
        folder = self.desktop.folder / "programs"
        folder.mkdir()
        for name in ("tonquill-layoutdump", "tonquill-hoststandin"):
            (folder / name).symlink_to((PROGRAMS / name).resolve())
        shutil.copy(PROGRAMS / KIND, folder)
        self.file = folder / "SymRef_Bass.txt"
        self.program = PROGRAM_KINDS[KIND](self.desktop, folder)

    def test_tab_is_typed_and_ctrl_tab_leads_on(self):
        dialog = self.opens_the_dialog()
        self.desktop.type_text("Bass")
        self.desktop.key("Tab", "h", "Tab", "1")
        dialog.picture_at_rest().save(PICTURES / f"reference-typed-{KIND}.png")
        # Back to the name and again to the text, then on to OK.
        self.desktop.key("ctrl+shift+Tab", "End", "2", "BackSpace", "ctrl+Tab", "ctrl+Tab", "space")
        wait_until(self.file.exists, "the text is written")
        self.desktop.window(self.program.process, self.program.title)
        self.assertEqual(self.file.read_bytes(), b"h\t1")

    def opens_the_dialog(self):
        before = self.program.window.picture_at_rest()
        self.program.click_button(SYMBOLS_REFERENCE)
        self.program.window.picture_at_rest(other_than=before)
        # Below the heading.
        self.desktop.key("Down", "Down", "Return")
        return self.desktop.window(self.program.process, "^Dialog$")


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
