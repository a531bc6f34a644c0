"""Finding and installing packages, with stand-ins for the commands that would do it."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPT = sys.argv.pop(1)


class PackagesTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.list = self.folder / "packages.txt"
        self.list.write_text(
            "# For whom, which, and what for.\n\n"
            "build    compiler  compiles\n"
            "build    toolkit   draws\n"
            "run      fonts     are drawn\n"
            "display  screen    shows\n"
        )
        self.installed("compiler", "fonts")
        self.command("sudo", "exit 1")

    def installed(self, *names):
        """Has dpkg-query know these as installed, and one more as removed."""
        listing = "".join(f"{name}:installed " for name in names) + "toolkit:config-files "
        self.command("dpkg-query", f"echo -n '{listing}'; exit 1")

    def command(self, name, body):
        file = self.folder / name
        file.write_text(f"#!/bin/bash\n{body}\n")
        file.chmod(0o755)

    def run_script(self, commands, **environment):
        apt_log = self.folder / "apt.log"
        self.command("apt-get", f'echo "$DEBIAN_FRONTEND $*" >>{apt_log}')
        preparation = f"set -euo pipefail; . {SCRIPT}; packages_list={self.list}"
        as_root = 'as_root() { "$@"; }'
        result = subprocess.run(
            ["bash", "-c", f"{preparation}; {as_root}; {commands}"],
            env={"PATH": f"{self.folder}:/usr/bin:/bin"} | environment,
            stdin=subprocess.DEVNULL,
            capture_output=True,
            text=True,
        )
        apt_calls = apt_log.read_text().splitlines() if apt_log.exists() else []
        return result, apt_calls

    def test_installs_only_what_is_missing_and_says_so(self):
        result, calls = self.run_script(
            "is_debian_12() { true; }; install_packages build run"
        )
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(result.stdout, "Installing the packages toolkit\n")
        self.assertEqual(len(calls), 2)
        self.assertRegex(calls[0], "^noninteractive .* update$")
        self.assertRegex(calls[1], "^noninteractive .* --no-install-recommends toolkit$")

    def test_touches_nothing_when_all_is_there(self):
        self.installed("compiler", "fonts", "toolkit")
        result, calls = self.run_script("is_debian_12() { true; }; install_packages build run")
        self.assertEqual((result.returncode, result.stdout, calls), (0, "", []))

    def test_stops_when_installing_fails(self):
        result, _ = self.run_script(
            "is_debian_12() { true; }; apt_get() { false; }; install_packages build; echo went on"
        )
        self.assertEqual(result.returncode, 1)
        self.assertNotIn("went on", result.stdout)

    def test_only_tells_what_is_needed_on_another_system(self):
        result, calls = self.run_script("is_debian_12() { false; }; install_packages build run")
        self.assertEqual((result.returncode, calls), (1, []))
        self.assertIn("compiler toolkit fonts\n", result.stderr)
        self.assertNotIn("screen", result.stderr)

    def test_believes_another_system_that_says_all_is_there(self):
        result, calls = self.run_script(
            "is_debian_12() { false; }; install_packages build", TONQUILL_PACKAGES="present"
        )
        self.assertEqual((result.returncode, calls), (0, []))


if __name__ == "__main__":
    unittest.main(verbosity=2)
