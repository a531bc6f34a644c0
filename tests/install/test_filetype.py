"""The type of the program's files, and what a software centre tells, from the installed tree."""

import subprocess
import sys
import unittest
import xml.etree.ElementTree

from installed import InstalledTreeCase
from workbench import stop_after, tool

CMAKE, BUILD = sys.argv[1:]
del sys.argv[1:]
InstalledTreeCase.install = (CMAKE, "--install", BUILD, "--prefix")
MIME_TYPE = "application/x-tonquill"


class FileTypeTest(InstalledTreeCase):
    def test_file_name_tells_the_type(self):
        subprocess.run([tool("update-mime-database"), self.share("mime")], check=True)
        globs = self.share("mime/globs2").read_text().splitlines()
        self.assertIn(f"50:{MIME_TYPE}:*.tonquill", globs)
        self.assertIn(f"{MIME_TYPE} text/plain", self.share("mime/subclasses").read_text())

    def test_first_line_tells_the_type(self):
        subprocess.run([tool("update-mime-database"), self.share("mime")], check=True)
        magic = self.share("mime/magic").read_bytes()
        self.assertIn(f":{MIME_TYPE}]".encode(), magic)
        self.assertIn(b"tonquill-document ", magic)

    def test_type_has_its_icon(self):
        icons = self.share("mime/icons")
        subprocess.run([tool("update-mime-database"), self.share("mime")], check=True)
        type_name, icon = icons.read_text().strip().split(":")
        self.assertEqual(type_name, MIME_TYPE)
        self.assertTrue(self.share(f"icons/hicolor/scalable/mimetypes/{icon}.svg").is_file())

    def test_program_with_files_opens_the_type(self):
        entry = self.desktop_entry("tonquill-solo")
        self.assertEqual(entry["MimeType"], MIME_TYPE + ";")
        self.assertEqual(entry["Exec"], "tonquill-solo %f")

    def test_software_centre_gets_a_valid_description(self):
        file = self.share("metainfo/org.tonquill.tonquill.metainfo.xml")
        self.passes("appstreamcli", "validate", "--no-net", file)
        component = xml.etree.ElementTree.parse(file).getroot()
        launchable = component.findtext("launchable")
        self.assertTrue(self.share(f"applications/{launchable}").is_file())
        for binary in component.findall("provides/binary"):
            self.assertTrue((self.tree.prefix / "bin" / binary.text).exists())
        self.assertEqual(component.findtext("provides/mediatype"), MIME_TYPE)


if __name__ == "__main__":
    stop_after(120)
    unittest.main(verbosity=2)
