"""What `cmake --install` makes: a tree that is complete, sound, and runs wherever it stands."""

import pathlib
import sys
import unittest
import xml.etree.ElementTree

from installed import InstalledTree, InstalledTreeCase
from workbench import stop_after

CMAKE, BUILD, HOST, *PROGRAMS = sys.argv[1:]
del sys.argv[1:]
InstalledTreeCase.install = (CMAKE, "--install", BUILD, "--prefix")


class InstallTest(InstalledTreeCase):
    def test_programs_and_font_have_a_folder_of_their_own(self):
        self.assertEqual(
            {path.name for path in (self.tree.prefix / "lib/tonquill").iterdir()},
            {"Musica.ttf", *PROGRAMS},
        )
        self.assertEqual(
            {path.name: str(path.readlink()) for path in (self.tree.prefix / "bin").iterdir()},
            {name: f"../lib/tonquill/{name}" for name in PROGRAMS},
        )

    def test_nothing_else_lies_in_shared_folders(self):
        icons = {f"icons/hicolor/{size}x{size}/apps/tonquill.png" for size in (16, 32, 48, 256)}
        expected = icons | {"icons/hicolor/scalable/apps/tonquill.svg"}
        for name in PROGRAMS:
            expected |= {f"applications/{name}.desktop", f"man/man1/{name}.1"}
        if "tonquill-solo" in PROGRAMS:
            expected |= {
                "icons/hicolor/scalable/mimetypes/application-x-tonquill.svg",
                "metainfo/org.tonquill.tonquill.metainfo.xml",
                "mime/packages/tonquill.xml",
            }
        shared = {name for name in self.tree.files() if not name.startswith(("bin/", "lib/"))}
        documents = {name for name in shared if name.startswith("share/doc/tonquill/")}
        self.assertEqual(shared - documents, {f"share/{name}" for name in expected})
        self.assertIn("share/doc/tonquill/musica-letters.md", documents)

    def test_programs_run_by_their_links(self):
        for name in PROGRAMS:
            with self.subTest(program=name):
                self.assertTrue(self.tree.program_runs(name, HOST))

    def test_tree_runs_where_it_is_moved_to(self):
        moved = self.folder / "moved"
        self.tree.prefix.rename(moved)
        try:
            self.assertTrue(InstalledTree(moved).program_runs("tonquill", HOST))
        finally:
            moved.rename(self.tree.prefix)

    def test_font_is_the_one_of_the_sources(self):
        source = pathlib.Path(__file__).resolve().parents[2] / "resources/Musica.ttf"
        installed = self.tree.prefix / "lib/tonquill/Musica.ttf"
        self.assertEqual(installed.read_bytes(), source.read_bytes())

    def test_desktop_entries_are_valid_and_start_what_is_there(self):
        for name in PROGRAMS:
            with self.subTest(entry=name):
                self.passes("desktop-file-validate", self.share(f"applications/{name}.desktop"))
                entry = self.desktop_entry(name)
                program = self.tree.prefix / "bin" / entry["Exec"].split()[0]
                self.assertTrue(program.is_file())
                icon = self.share(f"icons/hicolor/scalable/apps/{entry['Icon']}.svg")
                self.assertTrue(icon.is_file())

    def test_man_pages_have_no_warnings(self):
        for name in PROGRAMS:
            with self.subTest(page=name):
                text = self.passes(
                    "man", "--warnings", "--local-file", self.share(f"man/man1/{name}.1")
                )
                self.assertIn(f"{name} - sketch pad", " ".join(text.split()))

    def test_icons_are_pictures_of_their_sizes(self):
        for size in (16, 32, 48, 256):
            data = self.share(f"icons/hicolor/{size}x{size}/apps/tonquill.png").read_bytes()
            self.assertEqual(data[:8], b"\x89PNG\r\n\x1a\n")
            width, height = (int.from_bytes(data[at : at + 4], "big") for at in (16, 20))
            self.assertEqual((width, height), (size, size))
        for icon in self.share("icons/hicolor/scalable").rglob("*.svg"):
            root = xml.etree.ElementTree.parse(icon).getroot()
            self.assertEqual(root.tag, "{http://www.w3.org/2000/svg}svg")


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
