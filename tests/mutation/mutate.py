"""Breaks the program in one place at a time and sees that a test fails each time.

It works on a copy of the sources in a build folder of its own. Prints how many of the breaks were
noticed, and fails unless all were.
"""

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys

from mutations import MUTATIONS

ROOT = pathlib.Path(__file__).resolve().parents[2]


def run(*command, check=True):
    """Runs a command without its output; when it must not fail, that is shown."""
    result = subprocess.run(
        [*map(str, command)], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True
    )
    if check and result.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))} failed:\n{result.stdout}")
    return result


def problems():
    """What is wrong with the list itself: breaks whose text is not there exactly once."""
    for mutation in MUTATIONS:
        count = (ROOT / mutation.file).read_text(encoding="utf-8").count(mutation.text)
        if count != 1:
            yield f"{mutation.name}: its text stands {count} times in {mutation.file}"


class Copy:
    """The sources that are broken, built in the same way as those that they are copied from."""

    def __init__(self, folder):
        self.sources = folder
        self.build = folder / "build/dev"

    def prepare(self):
        self._copy_sources()
        run("cmake", "-S", self.sources, "--preset", "dev")

    def _copy_sources(self):
        """Touches only what differs, so that only that is compiled."""
        names = run("git", "-C", ROOT, "ls-files", "-z").stdout.split("\0")[:-1]
        for name in names:
            source, target = ROOT / name, self.sources / name
            if target.exists() and target.read_bytes() == source.read_bytes():
                continue
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target)

    def tests_matching(self, pattern):
        listing = run("ctest", "--test-dir", self.build, "--show-only", "-R", pattern).stdout
        return re.findall(r"Test +#\d+: (\S+)", listing)

    def all_pass(self, tests):
        """Builds these tests and says whether all of them pass."""
        run("cmake", "--build", self.build, "--parallel", os.cpu_count(), "--target", *tests)
        exactly = "^(" + "|".join(tests) + ")$"
        return run("ctest", "--test-dir", self.build, "-R", exactly, "--timeout", 60,
                   "--parallel", os.cpu_count(), check=False).returncode == 0  # fmt: skip

    def notices(self, mutation, tests):
        """Whether one of the tests fails while the program is broken."""
        file = self.sources / mutation.file
        whole = file.read_text(encoding="utf-8")
        file.write_text(whole.replace(mutation.text, mutation.broken), encoding="utf-8")
        try:
            return not self.all_pass(tests)
        finally:
            file.write_text(whole, encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build/mutation")
    parser.add_argument("--list-only", action="store_true", help="only see that all breaks apply")
    parser.add_argument("--only", default="", metavar="TEXT", help="breaks with this in the name")
    arguments = parser.parse_args()
    if found := list(problems()):
        sys.exit("\n".join(found))
    if arguments.list_only:
        return
    chosen = [mutation for mutation in MUTATIONS if arguments.only in mutation.name]
    copy = Copy(arguments.build)
    copy.prepare()
    tests = {mutation: copy.tests_matching(mutation.tests) for mutation in chosen}
    if without := [mutation.name for mutation in chosen if not tests[mutation]]:
        sys.exit("no test for: " + "; ".join(without))
    if not copy.all_pass(sorted(set().union(*tests.values()))):
        sys.exit("a test fails before anything is broken")
    caught = 0
    for mutation in chosen:
        noticed = copy.notices(mutation, tests[mutation])
        caught += noticed
        print("caught  " if noticed else "MISSED  ", mutation.name, flush=True)
    print(f"{caught} of {len(chosen)} breaks were noticed")
    sys.exit(caught != len(chosen))


if __name__ == "__main__":
    main()
