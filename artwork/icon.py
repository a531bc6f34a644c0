"""The application icon: coloured layers to pictures, to the .ico file and to SVG."""

import io
import struct

from PIL import Image

import raster

SIDE = 64                       # drawing units of the icon's side
ICO_SIZES = (16, 32, 48, 256)


def layers(drawings):
    """The coloured drawings, back to front."""
    return [glyph for glyph in drawings if glyph.fill]


def picture(drawings, size):
    """The icon as an RGBA picture of size x size pixels."""
    image = Image.new("RGBA", (size, size), (255, 255, 255, 0))
    for layer in layers(drawings):
        rows = raster.coverage(drawings.contours(layer.name), 0, SIDE, size, size, size / SIDE)
        mask = Image.new("L", (size, size))
        mask.putdata([round(255 * value) for row in rows for value in row])
        paint = _gradient(drawings.bounds(layer.name), layer.fill, size)
        image = Image.alpha_composite(image, Image.merge("RGBA", (*paint.split(), mask)))
    return image


def _gradient(box, fill, size):
    """A picture shaded from the first colour at the top of the box to the second at its bottom."""
    top, bottom = [[int(colour[i:i + 2], 16) for i in (1, 3, 5)] for colour in fill]
    image = Image.new("RGB", (1, size))
    for row in range(size):
        y = SIDE - (row + 0.5) * SIDE / size
        share = min(max((box[3] - y) / (box[3] - box[1]), 0.0), 1.0)
        image.putpixel((0, row), tuple(round(a + (b - a) * share) for a, b in zip(top, bottom)))
    return image.resize((size, size))


def svg(drawings):
    """The icon as SVG text, y turned down."""
    shades, shapes = [], []
    for layer in layers(drawings):
        top, bottom = layer.fill
        shades.append(f'<linearGradient id="{layer.name}" x1="0" y1="0" x2="0" y2="1">'
                      f'<stop offset="0" stop-color="{top}"/>'
                      f'<stop offset="1" stop-color="{bottom}"/></linearGradient>')
        path = " ".join(_path(polygon) for polygon in drawings.contours(layer.name))
        shapes.append(f'<path fill="url(#{layer.name})" d="{path}"/>')
    return "\n".join([f'<svg xmlns="http://www.w3.org/2000/svg" width="{SIDE}" height="{SIDE}" '
                      f'viewBox="0 0 {SIDE} {SIDE}">', "<defs>", *shades, "</defs>", *shapes,
                      "</svg>", ""])


def _path(polygon):
    return "M" + "L".join(f"{x:.2f} {SIDE - y:.2f}" for x, y in polygon) + "Z"


def ico(drawings):
    """The bytes of the .ico file: a PNG for every size."""
    pictures = []
    for size in ICO_SIZES:
        data = io.BytesIO()
        picture(drawings, size).save(data, "PNG", optimize=True)
        pictures.append(data.getvalue())
    offset = 6 + 16 * len(pictures)
    header = struct.pack("<HHH", 0, 1, len(pictures))
    for size, data in zip(ICO_SIZES, pictures):
        header += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    return header + b"".join(pictures)


def write(drawings, folder, images):
    """Write the SVG into folder, the .ico and the PNG into images; return those two names."""
    (folder / "tonquill.svg").write_text(svg(drawings), encoding="utf-8")
    (images / "Tonquill.ico").write_bytes(ico(drawings))
    picture(drawings, 256).save(images / "tonquill-icon-256.png", optimize=True)
    return ["Tonquill.ico", "tonquill-icon-256.png"]
