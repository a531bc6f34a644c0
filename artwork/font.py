"""Musica.ttf from the drawings: 1000 units to the em, four staff spaces to the em."""

from fontTools.feaLib.builder import addOpenTypeFeaturesFromString
from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen

import geometry

FAMILY = "Musica"
EM = 1000
SPACE = EM // 4                 # font units of a staff space
BEARING = 0.25                  # spaces left free to the right of the ink
TIMESTAMP = 3786912000          # 2024-01-01, in seconds since 1904: fixed, so that runs agree
TOLERANCE = 0.3 / SPACE         # how far a dropped point may lie off the outline
COMBINING = {                   # what normalisation makes of the whole notes U+1D15E..1D164
    0x1D15E: (0x1D157, 0x1D165),
    0x1D15F: (0x1D158, 0x1D165),
    **{0x1D160 + i: (0x1D158, 0x1D165, 0x1D16E + i) for i in range(5)},
}


def coded(drawings):
    """The drawings that the font holds: those with a code point or a letter."""
    return [glyph for glyph in drawings if glyph.codes or glyph.letters]


def advance(drawings, glyph):
    """Advance width in font units."""
    if glyph.advance is not None:
        return round(glyph.advance * SPACE)
    return round((drawings.bounds(glyph.name)[2] + BEARING) * SPACE)


def character_map(drawings):
    """Code point to glyph name; letters of one character are code points too."""
    mapping = {}
    for glyph in coded(drawings):
        for code in glyph.codes + [ord(word) for word in glyph.letters if len(word) == 1]:
            if code in mapping:
                raise ValueError(f"U+{code:04X} stands for {mapping[code]} and {glyph.name}")
            mapping[code] = glyph.name
    return mapping


def features(drawings, mapping):
    """The ccmp rules: decomposed notes become one glyph, as do letters typed in pairs."""
    rules = [([mapping[part] for part in parts], mapping[code])
             for code, parts in COMBINING.items()]
    rules += [([mapping[ord(letter)] for letter in word], glyph.name)
              for glyph in coded(drawings) for word in glyph.letters if len(word) > 1]
    lines = [f"  sub {' '.join(parts)} by {name};" for parts, name in rules]
    return "\n".join(["languagesystem DFLT dflt;", "languagesystem latn dflt;",
                      "feature ccmp {", *lines, "} ccmp;"])


def _outline(polygons):
    """A TrueType glyph: outer contours run clockwise there, ours the other way round."""
    pen = TTGlyphPen(None)
    for polygon in polygons:
        points = [(round(x * SPACE), round(y * SPACE))
                  for x, y in geometry.simplified(polygon[::-1], TOLERANCE)]
        points = [p for p, q in zip(points, points[1:] + points[:1]) if p != q]
        if len(points) > 2:
            pen.moveTo(points[0])
            for point in points[1:]:
                pen.lineTo(point)
            pen.closePath()
    return pen.glyph()


def _not_defined():
    return [geometry.box(0, -0.5, 1, 1.5), geometry.box(0.1, -0.4, 0.9, 1.4)[::-1]]


def build(drawings):
    """The finished font as a fontTools object."""
    mapping = character_map(drawings)
    glyphs = {".notdef": _outline(_not_defined())}
    advances = {".notdef": round(1.25 * SPACE)}
    for glyph in coded(drawings):
        glyphs[glyph.name] = _outline(drawings.contours(glyph.name))
        advances[glyph.name] = advance(drawings, glyph)
    builder = FontBuilder(EM, isTTF=True)
    builder.updateHead(created=TIMESTAMP, modified=TIMESTAMP)
    builder.font.recalcTimestamp = False
    builder.setupGlyphOrder(list(glyphs))
    builder.setupCharacterMap(mapping)
    builder.setupGlyf(glyphs)
    table = builder.font["glyf"]
    builder.setupHorizontalMetrics({name: (width, getattr(table[name], "xMin", 0))
                                    for name, width in advances.items()})
    _set_height(builder, table)
    _set_names(builder)
    builder.setupPost(keepGlyphNames=True)
    addOpenTypeFeaturesFromString(builder.font, features(drawings, mapping))
    builder.font["OS/2"].recalcUnicodeRanges(builder.font)
    return builder.font


def _set_height(builder, table):
    """Ascent and descent hold the tallest ink, so that no symbol is clipped in a text item."""
    inked = [glyph for glyph in table.glyphs.values() if glyph.numberOfContours]
    ascent = max(glyph.yMax for glyph in inked) + 10
    descent = -min(glyph.yMin for glyph in inked) + 10
    builder.setupHorizontalHeader(ascent=ascent, descent=-descent)
    builder.setupOS2(sTypoAscender=ascent, sTypoDescender=-descent, sTypoLineGap=0,
                     usWinAscent=ascent, usWinDescent=descent, achVendID="TONQ", fsType=0)


def _set_names(builder):
    builder.setupNameTable({
        "copyright": "Copyright (c) 2026 The Tonquill developers",
        "familyName": FAMILY,
        "styleName": "Regular",
        "uniqueFontIdentifier": f"{FAMILY} 1.0",
        "fullName": FAMILY,
        "version": "Version 1.000",
        "psName": FAMILY,
        "licenseDescription": "MIT licence",
    })
