"""The toolbar strips: black on white slices of 24 x 24 pixels, side by side, at 1x and 2x."""

from PIL import Image

import raster

SLICE = 24          # pixels of a slice, and units of its drawing, at 1x
VALUES = ("Whole", "Half", "Quarter", "Eighth", "Sixteenth", "ThirtySecond", "SixtyFourth",
          "OneTwentyEighth")


def _symbols(form):
    return (["Text", "GrandStaff", "Clefs", "Tempo", "TimeSignatures", "Accidentals",
             "RepeatBegin", "RepeatEnd", "StaffLine"]
            + [value + form for value in VALUES] + ["NoteDot", "Triplet", "Tie"])


STRIPS = {
    "ToolBar1-HighColor": ["Raise", "SheetMusic", "GuitarTabs", "PrintPreview", "PageSetup",
                           "Print", "Undo", "Redo"],
    "ToolBar2-HighColor": _symbols("Note"),
    "ToolBar2-HighColor-B": _symbols("Rest"),
    "ToolBar3-HighColor": ["TextBlock", "TabLines", "SymbolsReference", "FreeLine"],
}


def strip(drawings, icons, scale):
    """The slices of the named drawings in one picture, scale times 24 pixels high."""
    size = SLICE * scale
    image = Image.new("L", (size * len(icons), size), 255)
    for index, name in enumerate(icons):
        contours = drawings.contours("Tool" + name)
        image.paste(raster.grey_image(contours, 0, SLICE, size, size, scale), (index * size, 0))
    return image


def write(drawings, folder):
    """Write the four strips at both sizes and return the file names."""
    names = []
    for name, icons in STRIPS.items():
        for scale, suffix in ((1, ""), (2, "@2x")):
            names.append(f"{name}{suffix}.bmp")
            strip(drawings, icons, scale).save(folder / names[-1])
    return names
