"""Read the drawings: text files of glyphs made of pen strokes, outlines and shared pieces.

Glyph coordinates are staff spaces, x to the right and y up. Toolbar and icon drawings use the
same format with their own unit; the files say which.
"""

from dataclasses import dataclass, field
from pathlib import Path

import geometry

PIECES = ("stroke", "outline", "ellipse", "box", "use", "bold")
POINT_COUNTS = {"stroke": (3,), "outline": (2, 6)}


class DrawingError(Exception):
    """A line of a drawing that cannot be read."""


@dataclass
class Piece:
    """One shape of a glyph; a cut piece is taken away from everything drawn before it."""

    kind: str
    words: list
    cut: bool = False
    rows: list = field(default_factory=list)


@dataclass
class Glyph:
    """One drawing with what the outputs need to know about it."""

    name: str
    codes: list = field(default_factory=list)
    letters: list = field(default_factory=list)
    image: str = ""
    title: str = ""
    room: tuple = ()
    advance: float = None
    fill: list = field(default_factory=list)
    pieces: list = field(default_factory=list)


class Drawings:
    """Every glyph of the given files by name, in reading order, with resolved contours."""

    def __init__(self, *paths):
        self.glyphs = {}
        self._contours = {}
        for path in paths:
            for glyph in _read(Path(path)):
                if glyph.name in self.glyphs:
                    raise DrawingError(f"{path}: {glyph.name} is drawn twice")
                self.glyphs[glyph.name] = glyph

    def __iter__(self):
        return iter(self.glyphs.values())

    def __getitem__(self, name):
        return self.glyphs[name]

    def contours(self, name):
        """The glyph's outline: non-overlapping polygons, outer ones counter-clockwise."""
        if name not in self._contours:
            ink = []
            for piece in self.glyphs[name].pieces:
                shape = self._shape(piece)
                ink = geometry.difference(ink, shape) if piece.cut else geometry.union(ink, shape)
            self._contours[name] = ink
        return self._contours[name]

    def bounds(self, name):
        """The ink box (left, bottom, right, top)."""
        return geometry.bounds(self.contours(name))

    def _shape(self, piece):
        numbers = [float(word) for word in piece.words if _is_number(word)]
        if piece.kind == "use":
            return geometry.placed(self.contours(piece.words[0]), *numbers)
        if piece.kind == "bold":
            ink = geometry.placed(self.contours(piece.words[1]), *numbers[1:])
            return geometry.grown(ink, numbers[0])
        if piece.kind == "ellipse":
            return [geometry.ellipse(*numbers)]
        if piece.kind == "box":
            return [geometry.box(*numbers)]
        if piece.kind == "outline":
            return [geometry.path(piece.rows)]
        return geometry.stroke(piece.rows, butt="butt" in piece.words)


def _is_number(word):
    try:
        float(word)
    except ValueError:
        return False
    return True


def _read(path):
    """Yield the glyphs of one file."""
    glyph = None
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        words = line.split()
        if not words or words[0].startswith("#"):
            continue
        try:
            if words[0] == "glyph":
                if glyph:
                    yield glyph
                glyph = Glyph(words[1])
            else:
                _read_line(glyph, words)
        except (ValueError, IndexError, AttributeError) as error:
            raise DrawingError(f"{path}:{number}: {line.strip()}: {error}") from error
    if glyph:
        yield glyph


def _read_line(glyph, words):
    if _is_number(words[0]):
        piece = glyph.pieces[-1]
        row = [float(word) for word in words]
        if len(row) not in POINT_COUNTS[piece.kind]:
            raise ValueError(f"{len(row)} numbers in a row of {piece.kind}")
        piece.rows.append(row)
    elif words[0] == "cut":
        _add_piece(glyph, words[1:], cut=True)
    elif words[0] in PIECES:
        _add_piece(glyph, words, cut=False)
    elif words[0] == "code":
        glyph.codes += [int(word, 16) for word in words[1:]]
    elif words[0] == "letter":
        glyph.letters += words[1:]
    elif words[0] == "image":
        glyph.image = words[1]
    elif words[0] == "title":
        glyph.title = " ".join(words[1:])
    elif words[0] == "room":
        glyph.room = tuple(float(word) for word in words[1:5])
    elif words[0] == "advance":
        glyph.advance = float(words[1])
    elif words[0] == "fill":
        glyph.fill = words[1:]
    else:
        raise ValueError("unknown word")


def _add_piece(glyph, words, cut):
    if words[0] not in PIECES:
        raise ValueError("unknown piece")
    glyph.pieces.append(Piece(words[0], words[1:], cut))
