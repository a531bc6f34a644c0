"""That the translations in the repository are complete, and those that the program loads."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]


class TranslationsTest(unittest.TestCase):
    def test_running_the_script_changes_nothing(self):
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        kept = sorted((ROOT / "translations").glob("tonquill_*"))
        self.assertEqual([file.name for file in kept], ["tonquill_de.qm", "tonquill_de.ts"])
        for file in kept:
            shutil.copy(file, folder)
        subprocess.run(
            [ROOT / "scripts/translate", folder], check=True, stdin=subprocess.DEVNULL
        )
        for file in kept:
            with self.subTest(file=file.name):
                self.assertEqual((folder / file.name).read_bytes(), file.read_bytes())

    def test_nothing_is_left_to_translate(self):
        for file in (ROOT / "translations").glob("*.ts"):
            self.assertNotIn('type="unfinished"', file.read_text(encoding="utf-8"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
