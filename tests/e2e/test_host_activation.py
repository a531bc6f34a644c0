"""The host brings the program's window to the front, whatever has become of it."""

import pathlib
import sys
import unittest

from desktop import Desktop, Window
from editor import Editor
from host import TO_PROGRAM
from workbench import stop_after, wait_until

PROGRAMS = pathlib.Path(sys.argv.pop(1))
PICTURES = pathlib.Path(sys.argv.pop(1))
BEHIND_THE_OTHER = 300, 300


def page_in(window):
    """What is seen of the page, without what frames and controls look like in a window at work."""
    return window.picture().crop(100, 110, 600, 500)


class HostActivationTest(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        self.editor = Editor(self.desktop, PROGRAMS)
        self.addCleanup(lambda: print(self.editor.log()))
        # Something to know the window by.
        empty = self.editor.window.picture()
        self.editor.host.wait_for("received")
        self.editor.host.send_document(["tonquill_bitmap 19 300 300 0"])
        self.editor.window.picture_at_rest(other_than=empty)
        self.shown = page_in(self.editor.window)
        self.window = self.editor.window.id

    def open_another_window(self):
        """One that lies over the editor's, and in which the user has just clicked."""
        folder = self.desktop.folder / "other"
        folder.mkdir()
        process = self.desktop.start(
            [PROGRAMS / "tonquill"], environment={"TMPDIR": str(folder)}, log="other.log"
        )
        other = self.desktop.window(process, "^Tonquill$")
        self.assertNotEqual(other.id, self.window)
        self.desktop.xdotool("windowmove", "--sync", other.id, 30, 30)
        self.other = self.desktop.window(process, "^Tonquill$")
        wait_until(lambda: page_in(self.editor.window) != self.shown, "it covers the editor")
        self.other.click(BEHIND_THE_OTHER)
        wait_until(lambda: self.desktop.active_window() == self.other.id, "it has the keyboard")

    def activate(self):
        self.editor.host.command("text", TO_PROGRAM + "state:activate")
        self.addCleanup(lambda: self.desktop.picture().save(PICTURES / f"{self._testMethodName}.png"))
        wait_until(
            lambda: self.desktop.active_window() == self.window, "the window has the keyboard"
        )
        # Wherever that is: a window that is shown again may be placed anew.
        wait_until(
            lambda: page_in(Window(self.desktop, self.window)) == self.shown,
            "the window is on top",
        )

    def test_from_behind_another_window(self):
        self.open_another_window()
        self.activate()

    def test_minimised(self):
        self.desktop.xdotool("windowminimize", "--sync", self.window)
        self.open_another_window()
        self.activate()

    def test_hidden(self):
        wanted = ["--onlyvisible", "--all", "--pid", self.editor.process.pid, "--name", "Tonquill"]

        def hidden():
            if self.desktop.xdotool("search", *wanted, check=False).returncode != 0:
                return True
            # Again: the window manager may not have been ready for its key.
            self.desktop.key("alt+F4")
            return False

        wait_until(hidden, "the window is hidden")
        self.open_another_window()
        self.activate()

    def test_twice(self):
        self.open_another_window()
        self.activate()
        self.desktop.xdotool("windowactivate", "--sync", self.other.id)
        self.other.click(BEHIND_THE_OTHER)
        self.activate()


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
