#!/usr/bin/python3
"""Write every picture, the icon, the font and their tables from the drawings in this folder.

Run it without arguments to renew the files of this repository, or with --output DIR to write the
same tree elsewhere. Every run writes the same bytes.
"""

import argparse
from pathlib import Path

import font
import icon
import images
import sheet
import strips
from outlines import Drawings

HERE = Path(__file__).resolve().parent


def resource_list(names):
    """The Qt resource file: every picture under :/images/ by its own name."""
    files = [f'        <file alias="{name}">{name}</file>' for name in sorted(names)]
    return "\n".join(["<RCC>", '    <qresource prefix="/images">', *files,
                      "    </qresource>", "</RCC>", ""])


def generate(root):
    """Write all outputs below root."""
    resources, pictures, docs = root / "resources", root / "resources/images", root / "docs"
    for folder in (pictures, docs):
        folder.mkdir(parents=True, exist_ok=True)
    symbols = Drawings(HERE / "glyphs.txt", HERE / "font.txt")
    toolbar = Drawings(HERE / "glyphs.txt", HERE / "font.txt", HERE / "toolbar.txt")
    emblem = Drawings(HERE / "glyphs.txt", HERE / "icon.txt")
    names = images.write(symbols, pictures)
    names += strips.write(toolbar, pictures)
    names += icon.write(emblem, resources, pictures)
    (pictures / "images.qrc").write_text(resource_list(names), encoding="utf-8")
    musica = font.build(symbols)
    musica.save(resources / "Musica.ttf")
    sheet.write(toolbar, musica, docs)


def main():
    """Read the command line and write the outputs."""
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--output", type=Path, default=HERE.parent,
                        help="root of the tree to write (default: the repository)")
    generate(parser.parse_args().output)


if __name__ == "__main__":
    main()
