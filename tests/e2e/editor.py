"""The programs in their windows on a desktop, and the documents that they tell of."""

import json
import math
import pathlib
import time

from host import TO_HOST, Host
from workbench import wait_until

ONE_PAGE = "tonquill_pagecount 1\n"
SECONDS_BETWEEN_TELLING = 2.0


class Program:
    """One of the programs on a desktop, and where things are in its window.

    Points of the page are in scene units, as in the records.
    """

    def __init__(self, desktop, command, layout, title, log, size=None):
        self.desktop = desktop
        self._layout = layout
        self._log = log
        self.process = desktop.start(command, log=log)
        self.window = desktop.window(self.process, title)
        if size:
            self.window = self.window.resized(size)
        wanted = self._layout["window"]
        if self.window.size != (wanted["width"], wanted["height"]):
            raise AssertionError(f"the window has the size {self.window.size}, not {wanted}")
        self.window.picture_at_rest()

    def place(self, object_name):
        """Where the viewport or a page control is in the window: left, top, width, height."""
        return _values((self._layout["controls"] | self._layout)[object_name])

    def log(self):
        """What the program has written to its output so far."""
        return self.desktop.log(self._log)

    def button(self, identifier):
        """The middle of a toolbar button, in the window."""
        return _middle(self._layout["buttons"][str(identifier)])

    def control(self, object_name):
        """The middle of one of the page controls below the view, in the window."""
        return _middle(self._layout["controls"][object_name])

    def button_picture(self, identifier):
        """What the window shows of a toolbar button."""
        return self.window.picture().crop(*_values(self._layout["buttons"][str(identifier)]))

    def control_picture(self, object_name):
        """What the window shows of a page control."""
        return self.window.picture().crop(*_values(self._layout["controls"][object_name]))

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

    def click_control(self, object_name):
        self.window.click(self.control(object_name))

    def click(self, point, **options):
        """Clicks a point of the page."""
        self.window.click(self.at(point), **options)

    def double_click(self, point):
        """Clicks a point of the page twice in a row."""
        self.window.double_click(self.at(point))

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


class Editor(Program):
    """Tonquill, started on a desktop beside its host.

    The host is the stand-in, or what start_host() starts and returns.
    """

    def __init__(self, desktop, programs, *arguments, start_host=None):
        programs = pathlib.Path(programs)
        # Before there is a host, so that it hears of the program only.
        layout = json.loads(desktop.run([programs / "tonquill-layoutdump"]).stdout)
        self.host = (start_host or (lambda: Host(desktop, programs / "tonquill-hoststandin")))()
        command = [programs / "tonquill", *arguments]
        super().__init__(desktop, command, layout, "^Tonquill$", "tonquill.log")


class EditorWithDocument(Editor):
    """Tonquill with a document of these records, which its host has sent."""

    title = "^Tonquill$"

    def __init__(self, desktop, programs, *records):
        super().__init__(desktop, programs)
        self.host.wait_for("received")
        before = self.window.picture()
        self.host.send_document([ONE_PAGE, *records])
        self.window.picture_at_rest(other_than=before if records else None)

    def document(self):
        """The document that the host was told last."""
        return "".join(self.host.messages()).split(TO_HOST)[-1]

    def glyphs(self):
        """The glyphs of that document, each a symbol with its x and y, in order."""
        rows = _rows(self.document(), "tonquill_bitmap")
        return sorted((int(symbol), int(x), int(y)) for symbol, x, y, _ in rows)

    def tell(self):
        """Has the program tell its document; here it does so by itself when an edit ends."""


class SoloInSize(Program):
    """tonquill-solo with a file of its own, in a window of this width and height."""

    def __init__(self, desktop, programs, file, size):
        programs = pathlib.Path(programs)
        dump = [programs / "tonquill-layoutdump", "--solo", "--size", *map(str, size)]
        layout = json.loads(desktop.run(dump).stdout)
        command = [programs / "tonquill-solo", file]
        super().__init__(desktop, command, layout, rf"^{file.name} –", "solo.log", size)

    def picture_after(self, key):
        """Presses a key that is seen in the window; returns what the window then shows."""
        before = self.window.picture_at_rest()
        self.desktop.key(key)
        return self.window.picture_at_rest(other_than=before)


class SoloWithDocument(Program):
    """tonquill-solo with a file of these records."""

    title = "^song.tonquill"

    def __init__(self, desktop, programs, *records):
        programs = pathlib.Path(programs)
        layout = json.loads(desktop.run([programs / "tonquill-layoutdump", "--solo"]).stdout)
        self.file = desktop.folder / "song.tonquill"
        plain = desktop.folder / "song.txt"
        plain.write_text("".join([ONE_PAGE, *records]))
        command = [programs / "tonquill-solo", plain]
        super().__init__(desktop, command, layout, "^song.txt", "solo.log")
        # A host's plain document is saved as a file of the program's own, whose name is suggested.
        desktop.key("ctrl+s")
        desktop.window(self.process, "^Save As$")
        desktop.key("Return")
        desktop.window(self.process, self.title)

    def document(self):
        """The document as it was saved last."""
        return self.file.read_text()

    def glyphs(self):
        """The glyphs of that document, each a symbol with its x and y, in order."""
        rows = _rows(self.document(), "tonquill_bitmap")
        return sorted((int(row[2]), int(float(row[0])), int(float(row[1]))) for row in rows)

    def tell(self):
        """Has the program tell its document: saves it."""
        self.desktop.key("ctrl+s")


PROGRAM_KINDS = {"tonquill": EditorWithDocument, "tonquill-solo": SoloWithDocument}


def wait_for_document(program, matches, what):
    """Waits until the program's document, once told, is one for which matches() is true.

    It is told anew until then: the first time may have come before the last click was dealt with.
    """
    last_told = -math.inf

    def told():
        nonlocal last_told
        if time.monotonic() - last_told > SECONDS_BETWEEN_TELLING:
            program.tell()
            last_told = time.monotonic()
        return matches()

    try:
        wait_until(told, what)
    except TimeoutError:
        raise AssertionError(f"{what}; told was:\n{program.document()}") from None


def _rows(document, keyword):
    """What follows the keyword in each of its lines, word by word."""
    lines = [line.split() for line in document.splitlines()]
    return [words[1:] for words in lines if words and words[0] == keyword]


def glyph(symbol, x, y):
    """A glyph's record."""
    return f"tonquill_bitmap {symbol} {x} {y} 0\n"


def block(text, x, y, width, height):
    """A text block's record."""
    return f"tonquill_textblock_begin {x} {y} {width} {height}\n{text}\ntonquill_textblock_end\n"


def _values(rect):
    return rect["x"], rect["y"], rect["width"], rect["height"]


def _middle(rect):
    return rect["x"] + rect["width"] // 2, rect["y"] + rect["height"] // 2
