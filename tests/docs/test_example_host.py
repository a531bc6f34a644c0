"""The example of a host in docs/, with the real program."""

import pathlib
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/e2e"))

from desktop import Desktop  # noqa: E402
from editor import Editor  # noqa: E402
from host import SERVER_NAME  # noqa: E402
from workbench import Workbench, stop_after, wait_until  # noqa: E402

PROGRAMS = pathlib.Path(sys.argv.pop(1))
EXAMPLE = ROOT / "docs/example_host.py"
PAGE_COUNT = "tonquill_pagecount 1\n"
EIGHTH_NOTE_BUTTON, UNDO_BUTTON, REDO_BUTTON = 0x10C, 6, 7


def start_example(workbench):
    """The example, listening, and the file that it keeps the document in."""
    file = workbench.folder / "document"
    process = workbench.start([sys.executable, EXAMPLE, file], log="example.log")
    wait_until((workbench.folder / SERVER_NAME).is_socket, "the example listens")
    return process, file


class ExampleHostTest(unittest.TestCase):
    def test_fits_on_a_page(self):
        self.assertLessEqual(len(EXAMPLE.read_text().splitlines()), 40)

    def test_socket_is_for_its_user_only(self):
        workbench = self.enterContext(Workbench())
        start_example(workbench)
        self.assertEqual((workbench.folder / SERVER_NAME).stat().st_mode & 0o777, 0o600)

    def test_shows_the_document_that_it_keeps(self):
        workbench = self.enterContext(Workbench())
        records = [
            "tonquill_bitmap 19 120 300 0\n",
            "tonquill_textblock_begin 80 900 240 60\ntwo\nlines\ntonquill_textblock_end\n",
            "tonquill_tie_of_another_kind\n",
            "tonquill_triplet 200 410 0 0 60 -12\n",
        ]
        (workbench.folder / "document").write_text(PAGE_COUNT + "".join(records))
        host, file = start_example(workbench)
        program = workbench.start(
            [PROGRAMS / "tonquill"],
            log="tonquill.log",
            environment={"QT_LOGGING_RULES": "tonquill.*=true"},
        )

        def built():
            lines = workbench.log("tonquill.log").splitlines()
            label = "conxtructitem itemname "
            return [line.split(label)[1].strip('"') for line in lines if label in line]

        # The last of the file is at the back, so it is built first; the unknown one has no keyword.
        expected = ["tonquill_triplet", "", "tonquill_textblock_begin", "tonquill_bitmap"]
        wait_until(lambda: built() == expected, f"the program builds {expected}")
        # The break before the end keyword is left out on the way, for it would become text.
        self.assertIn('txt= "two\\nlines"', workbench.log("tonquill.log"))
        workbench.stop(program)
        self.assertEqual(host.wait(20), 0)
        self.assertEqual(file.read_text(), PAGE_COUNT + "".join(records))

    def test_keeps_undoes_and_redoes_edits(self):
        desktop = self.enterContext(Desktop())
        editor = Editor(desktop, PROGRAMS, start_host=lambda: start_example(desktop))
        _, file = editor.host
        note = PAGE_COUNT + "tonquill_bitmap 22 300 200 0\n"
        empty_page = editor.around((300, 200), 60)

        def shows(document, picture_is_empty):
            wait_until(
                lambda: file.exists()
                and file.read_text() == document
                and (editor.around((300, 200), 60) == empty_page) == picture_is_empty,
                f"the file holds {document!r}, and so does the page",
            )

        editor.click_button(EIGHTH_NOTE_BUTTON)
        editor.click((300, 200))
        shows(note, False)
        editor.click_button(UNDO_BUTTON)
        shows(PAGE_COUNT, True)
        editor.click_button(REDO_BUTTON)
        shows(note, False)
        editor.click_button(REDO_BUTTON)
        desktop.window(editor.process, "^Redo$")
        self.assertEqual(file.read_text(), note)


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
