"""A desktop of its own for a test: virtual screen, window manager, windows and pointer."""

import os
import pathlib
import re
import time

from picture import Picture
from workbench import Workbench, tool, wait_until

LEFT, RIGHT = 1, 3

SETTINGS = pathlib.Path("/etc/xdg/openbox/rc.xml")


class Desktop(Workbench):
    """A workbench with an X server on a free display and a window manager on that."""

    def __init__(self, width=1280, height=1024):
        super().__init__()
        self.size = (width, height)

    def _open(self):
        self._start_screen()
        self._start_window_manager()

    def _start_screen(self):
        screen_folder = self.folder / "screen"
        screen_folder.mkdir()
        reading, writing = os.pipe()
        width, height = self.size
        self.start(
            [tool("Xvfb"), "-displayfd", str(writing)]
            + ["-screen", "0", f"{width}x{height}x24", "-fbdir", str(screen_folder)]
            + ["-nolisten", "tcp", "-nocursor", "-noreset"],
            log="screen.log",
            pass_fds=(writing,),
        )
        os.close(writing)
        with os.fdopen(reading) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError("no X server:\n" + self.log("screen.log"))
        self._framebuffer = screen_folder / "Xvfb_screen0"
        self.environment |= {"DISPLAY": f":{number}", "QT_QPA_PLATFORM": "xcb"}

    def _start_window_manager(self):
        settings = self.folder / "windowmanager.xml"
        settings.write_text(_without_grabs(SETTINGS.read_text()))
        command = [tool("openbox"), "--sm-disable", "--config-file", str(settings)]
        manager = self.start(command, log="windowmanager.log")

        def ready():
            if manager.poll() is not None:
                raise RuntimeError("no window manager:\n" + self.log("windowmanager.log"))
            return self.xdotool("get_num_desktops", check=False).returncode == 0

        wait_until(ready, "the window manager is ready")

    def xdotool(self, *arguments, check=True):
        return self.run([tool("xdotool"), *map(str, arguments)], check)

    def window(self, process, name):
        """Waits until the process's window of this name, a regular expression, has the keyboard."""

        def find():
            if process.poll() is not None:
                raise RuntimeError(f"{process.args[0]} has ended ({process.returncode})")
            wanted = ["--onlyvisible", "--all", "--pid", process.pid, "--name", name]
            found = self.xdotool("search", *wanted, check=False).stdout.split()
            return found and self.active_window() in found and self.active_window()

        return Window(self, wait_until(find, f"window {name} shows and has the keyboard"))

    def active_window(self):
        return self.xdotool("getactivewindow", check=False).stdout.strip()

    def picture(self):
        """What the screen shows now; the pointer is not in it."""
        return Picture.from_framebuffer(self._framebuffer)

    def move(self, x, y):
        """Puts the pointer on this point of the screen."""
        self.xdotool("mousemove", x, y)

    def pointer(self):
        """Where the pointer is on the screen."""
        values = _shell_values(self.xdotool("getmouselocation", "--shell"))
        return values["X"], values["Y"]

    def press(self, button=LEFT):
        self.xdotool("mousedown", button)

    def release(self, button=LEFT):
        self.xdotool("mouseup", button)

    def key(self, *keys):
        """Presses and releases keys, named as X names them ("ctrl+c", "Delete")."""
        self.xdotool("key", *keys)

    def key_down(self, *keys):
        self.xdotool("keydown", *keys)

    def key_up(self, *keys):
        self.xdotool("keyup", *keys)

    def type_text(self, text):
        self.xdotool("type", "--", text)


class Window:
    """A window on a desktop; its points count from the top left inside the frame."""

    def __init__(self, desktop, identifier):
        self.desktop = desktop
        self.id = identifier
        # What xdotool tells of a framed window's place is off by the frame; the pointer is not.
        desktop.xdotool("mousemove", "--window", identifier, 0, 0)
        self.origin = desktop.pointer()
        values = _shell_values(desktop.xdotool("getwindowgeometry", "--shell", identifier))
        self.size = values["WIDTH"], values["HEIGHT"]

    def activate(self):
        """Brings the window to the front and waits until it has the keyboard."""
        self.desktop.xdotool("windowactivate", self.id)
        wait_until(lambda: self.desktop.active_window() == self.id, "the window has the keyboard")

    def resized(self, size):
        """Gives the window this width and height; returns it as it is then."""
        self.desktop.xdotool("windowsize", "--sync", self.id, *size)

        def find():
            window = Window(self.desktop, self.id)
            return window.size == size and window

        return wait_until(find, f"the window has the size {size}")

    def move(self, point):
        """Puts the pointer on this point of the window."""
        self.desktop.move(self.origin[0] + point[0], self.origin[1] + point[1])

    def click(self, point, button=LEFT):
        self.move(point)
        self.desktop.press(button)
        self.desktop.release(button)

    def double_click(self, point):
        self.move(point)
        self.desktop.xdotool("click", "--repeat", 2, "--delay", 20, LEFT)

    def drag(self, start, end, steps=8, button=LEFT):
        """Presses at the start, moves along a straight line and releases at the end."""
        self.move(start)
        self.desktop.press(button)
        for step in range(1, steps + 1):
            self.move([a + round((b - a) * step / steps) for a, b in zip(start, end)])
        self.desktop.release(button)

    def picture(self):
        """What is inside the frame now."""
        return self.desktop.picture().crop(*self.origin, *self.size)

    def picture_at_rest(self, other_than=None, seconds=0.3):
        """What is inside the frame once it is drawn and has not changed for this long.

        With another picture given, it has to differ from that one too.
        """
        last, since = None, 0.0

        def at_rest():
            nonlocal last, since
            now = self.picture()
            if now != last:
                last, since = now, time.monotonic()
            drawn = not now.is_plain() and now != other_than
            return drawn and time.monotonic() - since >= seconds

        wait_until(at_rest, "the window is drawn and comes to rest")
        return last


def _without_grabs(settings):
    """The window manager's settings without what it does itself with a press inside of a window.

    For that it has the display hold back all that the pointer does until it has seen the press. On
    a busy machine a quick release and the next press are lost between the two.
    """
    return re.sub(r'<context name="Client">.*?</context>', "", settings, flags=re.DOTALL)


def _shell_values(result):
    """The numbers that xdotool prints as shell assignments."""
    return {name: int(value) for name, value in (line.split("=") for line in result.stdout.split())}
