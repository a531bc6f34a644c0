"""The program of its own on a desktop: starts, edits by hand, and what its windows are called."""

import pathlib

from workbench import wait_until

NOTE = "tonquill_bitmap {} {} 19"
DEFAULT_NOTES = [(300, 150)]

BOX = "^Tonquill$"
SAVE_AS = "^Save As$"


def document(*places):
    """A document's file with a quarter note at each place."""
    lines = [NOTE.format(*place) for place in places or DEFAULT_NOTES]
    return "\n".join(["tonquill-document 1", "tonquill_pagecount 1", *lines, "tonquill-end", ""])


class Solo:
    """One start of the program. Its window is the active one once this is made."""

    def __init__(self, desktop, programs, *arguments, window=r" – Tonquill$", **options):
        self.desktop = desktop
        self.program = pathlib.Path(programs) / "tonquill-solo"
        self.process = desktop.start([self.program, *arguments], log="solo.log", **options)
        self.titled(window)

    def titled(self, name):
        """Waits until a window of this name, a regular expression, has the keyboard."""
        return self.desktop.window(self.process, name)

    def main(self, name, modified=False):
        """Waits until the document of this name is in the window, with or without a change."""
        return self.titled(f"^{name}{'[*]' if modified else ''} – Tonquill$")

    def edit(self, name):
        """Moves all that is on the pages one unit right, by keys."""
        self.main(name + "[*]?")
        # A menu's shortcut may come while the window is being shown; the title tells.
        self.desktop.key("ctrl+a")
        self.desktop.key("Right")
        self.main(name, modified=True)

    def start_again(self, *arguments, **options):
        """Starts the program once more, which hands its file over, and waits for its end."""
        again = self.desktop.start([self.program, *arguments], log="again.log", **options)
        wait_until(lambda: again.poll() is not None, "the second start has handed its file over")
        return again.returncode

    def type_path(self, path):
        """Types a path into a file dialog and presses Enter."""
        self.desktop.key("ctrl+a")
        self.desktop.type_text(str(path))
        self.desktop.key("Return")

    def kill(self):
        self.process.kill()
        self.process.wait()

    def is_running(self):
        return self.process.poll() is None

    def log(self):
        return self.desktop.log("solo.log")
