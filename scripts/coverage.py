"""Prints how many lines of the program's folders the tests have reached, and which they have not.

Reads what a build with TONQUILL_COVERAGE has left behind. Fails when it is fewer than the share
that is asked for in one of the editor's folders; solo/ is shown beside them, for what its tests
kill has no time to say what it reached.
"""

import argparse
import collections
import json
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
EDITOR = ("app", "document", "items", "vector")
FOLDERS = (*EDITOR, "solo")


def reports(build):
    """What gcov says of each object file that has run."""
    for data in sorted(build.resolve().rglob("*.gcda")):
        command = ["gcov", "--json-format", "--stdout", data]
        result = subprocess.run(command, cwd=data.parent, check=True, capture_output=True)
        yield from map(json.loads, result.stdout.splitlines())


def counts_by_file(build):
    """How often each line ran, by file: a header's lines are in many object files."""
    counts = collections.defaultdict(collections.Counter)
    for report in reports(build):
        for file in report["files"]:
            path = pathlib.Path(report["current_working_directory"], file["file"]).resolve()
            if path.is_relative_to(ROOT) and path.relative_to(ROOT).parts[0] in FOLDERS:
                for line in file["lines"]:
                    counts[path.relative_to(ROOT)][line["line_number"]] += line["count"]
    return counts


def ranges(numbers):
    """Line numbers in short: 3-5, 9."""
    found = []
    for number in sorted(numbers):
        if found and found[-1][1] == number - 1:
            found[-1][1] = number
        else:
            found.append([number, number])
    return ", ".join(f"{a}" if a == b else f"{a}-{b}" for a, b in found)


def print_share(name, reached, lines):
    print(f"{name:<10} {reached:5} of {lines:5} lines  {100 * reached / lines:5.1f} %")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--minimum", type=float, default=0, metavar="PERCENT")
    arguments = parser.parse_args()
    counts = counts_by_file(arguments.build)
    totals = collections.defaultdict(lambda: [0, 0])
    for path, lines in sorted(counts.items()):
        missed = [number for number, count in lines.items() if not count]
        totals[path.parts[0]][0] += len(lines) - len(missed)
        totals[path.parts[0]][1] += len(lines)
        if missed:
            print(f"not reached  {path}: {ranges(missed)}")
    for folder, (reached, lines) in sorted(totals.items()):
        print_share(folder + "/", reached, lines)
    reached, lines = map(sum, zip(*totals.values()))
    print_share("all", reached, lines)
    shares = [100 * totals[folder][0] / totals[folder][1] for folder in EDITOR]
    sys.exit(min(shares) < arguments.minimum)


if __name__ == "__main__":
    main()
