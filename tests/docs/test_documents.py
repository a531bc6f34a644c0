"""That the documents' links lead somewhere, and that the guide's pictures are of this program."""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAMS = pathlib.Path(sys.argv.pop(1))
LINK = re.compile(r"\]\(([^)#:]+)(?:#[^)]*)?\)")


def picture_size(file):
    data = file.read_bytes()
    return tuple(int.from_bytes(data[at : at + 4], "big") for at in (16, 20))


class DocumentsTest(unittest.TestCase):
    def test_links_lead_to_files(self):
        documents = [*ROOT.glob("*.md"), *ROOT.glob("docs/*.md"), ROOT / "artwork/README.md"]
        links = [(document, link) for document in documents
                 for link in LINK.findall(document.read_text(encoding="utf-8"))]  # fmt: skip
        self.assertGreater(len(links), 20)
        for document, link in links:
            with self.subTest(document=document.name, link=link):
                self.assertTrue((document.parent / link).exists())

    def test_pictures_of_the_guide_can_be_taken_again(self):
        guide = (ROOT / "docs/user-guide.md").read_text(encoding="utf-8")
        shown = {pathlib.Path(link).name for link in LINK.findall(guide) if "pictures/" in link}
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        script = [sys.executable, "-B", ROOT / "scripts/guidepictures.py", PROGRAMS, folder]
        subprocess.run(script, check=True)
        kept = {file.name: picture_size(file) for file in (ROOT / "docs/pictures").iterdir()}
        self.assertEqual(kept, {file.name: picture_size(file) for file in folder.iterdir()})
        self.assertEqual(set(kept), shown)


if __name__ == "__main__":
    unittest.main(verbosity=2)
