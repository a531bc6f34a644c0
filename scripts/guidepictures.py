"""Takes the pictures of the user guide: runs the program on a virtual display, does what the guide
describes, and writes the pictures to the given folder."""

import pathlib
import sys

scripts = pathlib.Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(scripts.parent / "tests/e2e"))

from desktop import Desktop  # noqa: E402
from editor import Editor  # noqa: E402
from workbench import stop_after  # noqa: E402

PRINT_PREVIEW, TEXT, GRAND_STAFF, TIME_SIGNATURES = 3, 0x100, 0x101, 0x104
QUARTER_NOTE, TEXT_BLOCK = 0x10B, 0x200
LEFT, RIGHT, UPPER, LOWER = 90, 650, 120, 216
# The middle lines of the two staves.
TREBLE, BASS = UPPER + 16, LOWER - 16
HALF_STAFF_SPACE = 4
# From the middle of a note with its stem up to the middle of its head.
HEAD_BELOW_MIDDLE = 13


def glyph(symbol, x, y):
    return f"tonquill_bitmap {symbol} {x} {y} 0\n"


def note(symbol, x, middle, step):
    """A note so many steps above the staff's middle line."""
    return glyph(symbol, x, middle - step * HALF_STAFF_SPACE - HEAD_BELOW_MIDDLE)


def sheet():
    """The page count and the records of a bar and a half for two hands."""
    melody = [(19, -2), (19, 0), (22, 2), (22, 1), (19, 0), (16, 2), (19, 1)]
    return [
        "tonquill_pagecount 1\n",
        f"tonquill_grandstaff {LEFT} {UPPER} 0 0 {RIGHT - LEFT} {LOWER - UPPER}\n",
        glyph(2, 112, TREBLE + 1),
        glyph(3, 112, BASS - 2),
        f"tonquill_timesig 140 {UPPER - 12} 3 4\n",
        f"tonquill_timesig 140 {BASS - 28} 3 4\n",
        "tonquill_text 280 40 0 0 Minuet Arial 20 000000 0\n",
        *[note(symbol, 196 + 50 * i, TREBLE, step) for i, (symbol, step) in enumerate(melody)],
        glyph(8, 640, TREBLE),
        glyph(8, 640, BASS),
    ]


class Guide:
    """The program, doing what the guide describes."""

    def __init__(self, desktop, programs, folder):
        self.desktop = desktop
        self.folder = folder
        self.editor = Editor(desktop, programs)
        self.window = self.editor.window
        self.editor.host.wait_for("received")
        self.editor.host.send_document(sheet())

    def save(self, name, window=None):
        """All of a window, when it has come to rest."""
        (window or self.window).picture_at_rest().save(self.folder / f"{name}.png")

    def save_part(self, name, left, top, right, bottom):
        """A part of the page."""
        self.window.picture_at_rest()
        self.editor.picture(left, top, right, bottom).save(self.folder / f"{name}.png")

    def escape(self):
        self.desktop.key("Escape")
        self.window.picture_at_rest()

    def place(self):
        self.save("window")
        self.editor.click_button(QUARTER_NOTE)
        self.window.move(self.editor.at((560, 90)))
        self.save_part("placing", 450, 50, 690, 240)
        self.editor.click((560, TREBLE - 13))
        self.window.click(self.editor.button(TIME_SIGNATURES))
        self.window.picture_at_rest().crop(0, 0, 420, 540).save(self.folder / "menu.png")
        self.escape()

    def select(self):
        self.window.move(self.editor.at((230, 90)))
        self.desktop.press()
        for point in ((300, 120), (400, 160), (470, 170)):
            self.window.move(self.editor.at(point))
        self.save_part("selecting", 80, 70, 500, 230)
        self.desktop.release()
        self.save_part("selected", 80, 70, 500, 230)

    def stretch(self):
        self.editor.click_button(GRAND_STAFF)
        self.editor.click((LEFT, 290))
        self.window.move(self.editor.at((400, 340)))
        self.editor.click((RIGHT, 400))
        self.save_part("stretched", 70, 270, 690, 430)

    def texts(self):
        self.editor.click_button(TEXT)
        dialog = self.desktop.window(self.editor.process, "^Simple Text$")
        dialog.picture_at_rest()
        self.save("text", dialog)
        self.escape()
        self.editor.click_button(TEXT_BLOCK)
        self.editor.click((480, 30))
        self.save_part("block", 450, 16, 700, 104)

    def pages(self):
        self.window.click(self.editor.control("pb_insertPage"))
        self.window.picture_at_rest()
        left, top = self.window.origin
        height = self.window.size[1]
        # The menu reaches below the window.
        below = self.desktop.picture().crop(left + 460, top + height - 60, 366, 130)
        below.save(self.folder / "pages.png")
        self.escape()

    def preview(self):
        self.editor.click_button(PRINT_PREVIEW)
        self.save("preview", self.desktop.window(self.editor.process, "^Print Preview$"))


def program_with_files(desktop, programs, folder):
    """The program with files, with its Insert menu open."""
    document = desktop.folder / "minuet.tonquill"
    document.write_text("".join(sheet()))
    program = desktop.start([programs / "tonquill-solo", document], log="solo.log")
    window = desktop.window(program, "^minuet")
    window.picture_at_rest()
    desktop.key("alt+i")
    window.picture_at_rest().crop(0, 0, 640, 420).save(folder / "solo.png")
    desktop.key("Escape", "Escape")


def main(programs, folder):
    folder.mkdir(parents=True, exist_ok=True)
    with Desktop() as desktop:
        guide = Guide(desktop, programs, folder)
        for step in (guide.place, guide.select, guide.stretch, guide.texts, guide.pages):
            step()
        guide.preview()
    with Desktop() as desktop:
        program_with_files(desktop, programs, folder)


stop_after(120)
main(*map(pathlib.Path, sys.argv[1:]))
