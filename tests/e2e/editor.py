"""The program in its window on a desktop, with the host it is connected to."""

import json
import pathlib

from host import Host


class Editor:
    """Tonquill, started on a desktop beside its host, and where things are in it.

    The host is the stand-in, or what start_host() starts and returns. Points of the page are in
    scene units, as in the records.
    """

    def __init__(self, desktop, programs, *arguments, start_host=None):
        programs = pathlib.Path(programs)
        self.desktop = desktop
        # Before there is a host, so that it hears of the program only.
        self._layout = json.loads(desktop.run([programs / "tonquill-layoutdump"]).stdout)
        self.host = (start_host or (lambda: Host(desktop, programs / "tonquill-hoststandin")))()
        self.process = desktop.start([programs / "tonquill", *arguments], log="tonquill.log")
        self.window = desktop.window(self.process, "^Tonquill$")
        wanted = self._layout["window"]
        if self.window.size != (wanted["width"], wanted["height"]):
            raise AssertionError(f"the window has the size {self.window.size}, not {wanted}")
        self.window.picture_at_rest()

    def log(self):
        """What the program has written to its output so far."""
        return self.desktop.log("tonquill.log")

    def button(self, identifier):
        """The middle of a toolbar button, in the window."""
        return _middle(self._layout["buttons"][str(identifier)])

    def control(self, object_name):
        """The middle of one of the page controls below the view, in the window."""
        return _middle(self._layout["controls"][object_name])

    def at(self, point):
        """The point of the window that shows this point of the page."""
        viewport, origin = self._layout["viewport"], self._layout["scene"]
        inside = [point[0] - origin[0], point[1] - origin[1]]
        if inside != [round(inside[0]), round(inside[1])]:
            raise AssertionError(f"the page is not on whole pixels: {origin}")
        if not (0 <= inside[0] < viewport["width"] and 0 <= inside[1] < viewport["height"]):
            raise AssertionError(f"the window does not show {point}")
        return viewport["x"] + round(inside[0]), viewport["y"] + round(inside[1])

    def click_button(self, identifier):
        self.window.click(self.button(identifier))

    def click(self, point, **options):
        """Clicks a point of the page."""
        self.window.click(self.at(point), **options)

    def drag(self, start, end, **options):
        """Drags from one point of the page to another."""
        self.window.drag(self.at(start), self.at(end), **options)

    def picture(self, left, top, right, bottom):
        """What the window shows of this part of the page."""
        x, y = self.at((left, top))
        return self.window.picture().crop(x, y, right - left, bottom - top)

    def around(self, point, reach):
        """What the window shows of the page up to this far from a point."""
        x, y = point
        return self.picture(x - reach, y - reach, x + reach, y + reach)


def _middle(rect):
    return rect["x"] + rect["width"] // 2, rect["y"] + rect["height"] // 2
