#!/usr/bin/python3
"""Writes the example documents beside this script. Every run writes the same bytes."""

import pathlib
import sys

sys.dont_write_bytecode = True
FOLDER = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(FOLDER))

import canon  # noqa: E402
import leadsheet  # noqa: E402
import minuet  # noqa: E402
import tablature  # noqa: E402


def main():
    for piece in (minuet, leadsheet, tablature, canon):
        piece.document().save(FOLDER / piece.FILE)


main()
