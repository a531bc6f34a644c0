"""The Debian package: what lintian says of it, and its programs run from where it unpacks."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

from installed import InstalledTree
from workbench import stop_after, tool

CPACK, BUILD, HOST, *PROGRAMS = sys.argv[1:]
del sys.argv[1:]


class PackageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        config = pathlib.Path(BUILD) / "CPackConfig.cmake"
        # Whoever packs may keep their own files to themselves.
        subprocess.run(
            [CPACK, "--config", config, "-B", folder],
            check=True, stdout=subprocess.DEVNULL, umask=0o077,
        )
        (cls.package,) = folder.glob("*.deb")
        cls.root = folder / "root"
        subprocess.run([tool("dpkg-deb"), "--extract", cls.package, cls.root], check=True)

    def control(self, field):
        command = [tool("dpkg-deb"), "--field", self.package, field]
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()

    def test_lintian_finds_no_error(self):
        command = [tool("lintian"), "--allow-root", "--fail-on", "error", self.package]
        result = subprocess.run(command, capture_output=True, text=True)
        self.assertEqual(result.returncode, 0, result.stdout)

    def test_asks_for_the_libraries_and_recommends_the_fonts(self):
        depends = self.control("Depends")
        for library in ("libqt6widgets6", "libqt6printsupport6", "libqt6network6"):
            self.assertIn(library, depends)
        self.assertIn("fonts-liberation", self.control("Recommends"))

    def test_programs_run_from_the_unpacked_tree(self):
        tree = InstalledTree(self.root / "usr")
        for name in PROGRAMS:
            with self.subTest(program=name):
                self.assertTrue(tree.program_runs(name, HOST))

    def test_user_guide_names_the_file(self):
        guide = pathlib.Path(__file__).resolve().parents[2] / "docs/user-guide.md"
        self.assertIn(f"build/package/{self.package.name}\n", guide.read_text(encoding="utf-8"))

    def test_nothing_lies_outside_usr(self):
        self.assertEqual([path.name for path in self.root.iterdir()], ["usr"])

    def test_manual_and_changelogs_are_packed(self):
        share = self.root / "usr/share"
        packed = [f"man/man1/{name}.1.gz" for name in PROGRAMS]
        packed += ["doc/tonquill/changelog.gz", "doc/tonquill/changelog.Debian.gz"]
        for name in packed:
            self.assertEqual((share / name).read_bytes()[:2], b"\x1f\x8b", name)
        self.assertIn("Expat", (share / "doc/tonquill/copyright").read_text())

    def test_everybody_may_read_what_is_packed(self):
        command = [tool("dpkg-deb"), "--contents", self.package]
        listing = subprocess.run(command, check=True, capture_output=True, text=True).stdout
        kinds = {"-rw-r--r--", "-rwxr-xr-x", "drwxr-xr-x", "lrwxrwxrwx"}
        packed = [line.split() for line in listing.splitlines()]
        self.assertEqual([line for line in packed if line[0] not in kinds], [])
        modes = {line[5]: line[0] for line in packed}
        for name in ("copyright", "changelog.gz", "changelog.Debian.gz"):
            self.assertEqual(modes[f"./usr/share/doc/tonquill/{name}"], "-rw-r--r--", name)


if __name__ == "__main__":
    stop_after(140)
    unittest.main(verbosity=2)
