"""Breaks the program in one place at a time and sees that a test fails each time.

It works on a copy of the sources in build/mutation. Prints how many of the breaks were noticed, and
fails unless all were.
"""

import argparse
import os
import pathlib
import shutil
import subprocess
import sys

from mutations import MUTATIONS

ROOT = pathlib.Path(__file__).resolve().parents[2]
COPY = ROOT / "build/mutation"
BUILD = COPY / "build/dev"
PARALLEL = ("--parallel", str(os.cpu_count()))


def run(*command, check=True):
    """Runs a command without its output; when it must not fail, that is shown."""
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if check and result.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))} failed:\n{result.stdout}")
    return result


def problems():
    """What is wrong with the list itself: breaks whose text is not there exactly once."""
    for mutation in MUTATIONS:
        count = (ROOT / mutation.file).read_text(encoding="utf-8").count(mutation.text)
        if count != 1:
            yield f"{mutation.name}: its text stands {count} times in {mutation.file}"


def copy_sources():
    """Touches only what differs, so that only that is compiled."""
    for name in run("git", "-C", ROOT, "ls-files", "-z").stdout.split("\0")[:-1]:
        source, target = ROOT / name, COPY / name
        if not target.exists() or target.read_bytes() != source.read_bytes():
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target)


def all_pass(tests):
    """Builds these tests and says whether all of them pass."""
    run("cmake", "--build", BUILD, *PARALLEL, "--target", *tests)
    exactly = f"^({'|'.join(tests)})$"
    command = ("ctest", "--test-dir", BUILD, "-R", exactly, "--timeout", "60", *PARALLEL)
    return run(*command, check=False).returncode == 0


def is_noticed(mutation):
    """Whether one of its tests fails while the program is broken."""
    file = COPY / mutation.file
    whole = file.read_text(encoding="utf-8")
    file.write_text(whole.replace(mutation.text, mutation.broken), encoding="utf-8")
    try:
        return not all_pass(mutation.tests.split())
    finally:
        file.write_text(whole, encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--list-only", action="store_true", help="only see that all breaks apply")
    parser.add_argument("--only", default="", metavar="TEXT", help="breaks with this in the name")
    arguments = parser.parse_args()
    if found := list(problems()):
        sys.exit("\n".join(found))
    if arguments.list_only:
        return
    chosen = [mutation for mutation in MUTATIONS if arguments.only in mutation.name]
    copy_sources()
    run("cmake", "-S", COPY, "--preset", "dev")
    if not all_pass(sorted({test for mutation in chosen for test in mutation.tests.split()})):
        sys.exit("a test fails before anything is broken")
    missed = 0
    for mutation in chosen:
        noticed = is_noticed(mutation)
        missed += not noticed
        print("caught  " if noticed else "MISSED  ", mutation.name, flush=True)
    print(f"{len(chosen) - missed} of {len(chosen)} breaks were noticed")
    sys.exit(missed != 0)


if __name__ == "__main__":
    main()
