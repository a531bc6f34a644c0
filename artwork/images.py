"""The pictures of the 37 symbols: 8 pixels a space for the screen, 64 for anything finer."""

import math

import raster

SPACE = 8           # pixels of a staff space on an ordinary screen
FINE = 8            # pixels of the fine picture to one of the coarse
EDGE = 1            # white pixels round the ink
TINY = 1e-6


def canvas(drawings, glyph):
    """The picture's box in whole pixels (left, bottom, right, top).

    Pixel columns begin at multiples of 1/8 space. Rows lie half a pixel off, so that a staff
    line's middle is a row's middle: row r covers (r - 0.5) / 8 to (r + 0.5) / 8, and bottom and
    top count rows. The two forms of a note share one width, so that the head stays in its column
    when they are swapped.
    """
    _, bottom, _, top = _wanted(drawings, glyph)
    boxes = [_wanted(drawings, form) for form in _forms(drawings, glyph)]
    left, right = min(box[0] for box in boxes), max(box[2] for box in boxes)
    return (math.floor(left * SPACE + TINY) - EDGE, _row_border(bottom, math.floor, TINY) - EDGE,
            math.ceil(right * SPACE - TINY) + EDGE, _row_border(top, math.ceil, -TINY) + EDGE)


def _forms(drawings, glyph):
    """A note's two forms; of anything else, only itself."""
    if "Note" not in glyph.name or glyph.name[-1] not in "12":
        return [glyph]
    return [drawings[glyph.name[:-1] + form] for form in "12"]


def _row_border(y, rounding, nudge):
    """The border between rows at or beyond y, counted from the one below the row of y = 0."""
    return rounding(y * SPACE + 0.5 + nudge)


def _wanted(drawings, glyph):
    """The box (in spaces) that the picture must hold: the ink and the room asked for round it."""
    ink = drawings.bounds(glyph.name)
    room = glyph.room or ink
    return (min(ink[0], room[0]), min(ink[1], room[1]), max(ink[2], room[2]), max(ink[3], room[3]))


def picture(drawings, glyph, fine=1):
    """The symbol in black on white, fine times 8 pixels a space."""
    left, bottom, right, top = canvas(drawings, glyph)
    return raster.grey_image(drawings.contours(glyph.name), left / SPACE, (top - 0.5) / SPACE,
                             (right - left) * fine, (top - bottom) * fine, SPACE * fine)


def write(drawings, folder):
    """Write <Name>.bmp and fine/<Name>.png of every symbol and return the file names."""
    (folder / "fine").mkdir(parents=True, exist_ok=True)
    names = []
    for glyph in drawings:
        if glyph.image:
            names += [f"{glyph.image}.bmp", f"fine/{glyph.image}.png"]
            picture(drawings, glyph).save(folder / names[-2])
            picture(drawings, glyph, FINE).save(folder / names[-1], optimize=True)
    return names
