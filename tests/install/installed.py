"""An installed tree, wherever it stands, and its programs running from there."""

import configparser
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "e2e"))

from host import TO_HOST, Host  # noqa: E402
from workbench import Workbench, tool  # noqa: E402


class InstalledTree:
    """What is installed below a prefix."""

    def __init__(self, prefix):
        self.prefix = pathlib.Path(prefix)

    def files(self):
        """Every file and link, as paths from the prefix."""
        return {
            str(path.relative_to(self.prefix))
            for path in self.prefix.rglob("*")
            if path.is_symlink() or not path.is_dir()
        }

    def program_runs(self, name, host_program):
        """Whether the program does its work when it is started by its link, and has its font.

        It says what folder it takes for its own, which has to be the one behind the link.
        """
        works, output = self._exports() if name == "tonquill-solo" else self._greets(host_program)
        own_folder = (self.prefix / "lib/tonquill").resolve()
        return works and 'add font : 0 QList("Musica")' in output and f'"{own_folder}"' in output

    def _greets(self, host_program):
        """Whether the editor sends its document to a host, and what it says meanwhile."""
        with Workbench() as workbench:
            host = Host(workbench, host_program)
            workbench.start([self.prefix / "bin/tonquill"], log="output.log")
            (message,) = host.wait_for("received")
            output = workbench.log("output.log")
        return message["text"] == TO_HOST + "tonquill_pagecount 1\n", output

    def _exports(self):
        """Whether the program with files makes a PDF file of one, and what it says meanwhile."""
        with Workbench() as workbench:
            document, pdf = workbench.folder / "empty.tonquill", workbench.folder / "empty.pdf"
            document.write_text("tonquill_pagecount 1\n")
            result = workbench.run(
                [self.prefix / "bin/tonquill-solo", "--export", pdf, document],
                environment={"QT_LOGGING_RULES": "tonquill.debug=true"},
            )
            return pdf.read_bytes().startswith(b"%PDF-"), result.stderr


class InstalledTreeCase(unittest.TestCase):
    """Tests of a tree that is installed once for all of them."""

    # The command that installs, without the prefix at its end.
    install = None

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        # A blank in the path is what scripts and links stumble over.
        cls.tree = InstalledTree(cls.folder / "a prefix")
        subprocess.run(
            [*cls.install, cls.tree.prefix], check=True, stdout=subprocess.DEVNULL
        )

    def share(self, path):
        return self.tree.prefix / "share" / path

    def passes(self, *command):
        """Runs a checker, which must find nothing at all to say."""
        command = [tool(command[0]), *map(str, command[1:])]
        result = subprocess.run(command, capture_output=True, text=True)
        self.assertEqual((result.returncode, result.stderr), (0, ""), result.stdout)
        return result.stdout

    def desktop_entry(self, name):
        parser = configparser.ConfigParser(interpolation=None, strict=True)
        parser.optionxform = str
        parser.read(self.share(f"applications/{name}.desktop"), encoding="utf-8")
        return parser["Desktop Entry"]
