"""The application icon and the one of its files: coloured layers to pictures, .ico and SVG."""

import io
import struct

from PIL import Image

import raster

SIDE = 64                       # drawing units of the icon's side
ICO_SIZES = (16, 32, 48, 256)
DESKTOP_SIZES = (16, 32, 48)    # beside the SVG and the 256 pixels that the program itself shows

# A sheet with its corner turned down; the emblem stands on it at six tenths of its size.
SHEET = """<path fill="#fdfdfb" stroke="#8a8f99" d="M12.5 1.5H40.5L52.5 13.5V62.5H12.5Z"/>
<path fill="#d9dce2" stroke="#8a8f99" stroke-linejoin="round" d="M40.5 1.5V13.5H52.5Z"/>
<g transform="translate(13.3 19) scale(0.6)">"""


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
    shades, shapes = _parts(drawings)
    return _document(["<defs>", *shades, "</defs>", *shapes])


def file_svg(drawings):
    """The icon of the program's files as SVG text: a sheet of paper that bears the emblem."""
    shades, shapes = _parts(drawings)
    return _document(["<defs>", *shades, "</defs>", SHEET, *shapes, "</g>"])


def _document(lines):
    return "\n".join([f'<svg xmlns="http://www.w3.org/2000/svg" width="{SIDE}" height="{SIDE}" '
                      f'viewBox="0 0 {SIDE} {SIDE}">', *lines, "</svg>", ""])


def _parts(drawings):
    """The gradients and the filled paths of the layers, back to front."""
    shades, shapes = [], []
    for layer in layers(drawings):
        top, bottom = layer.fill
        shades.append(f'<linearGradient id="{layer.name}" x1="0" y1="0" x2="0" y2="1">'
                      f'<stop offset="0" stop-color="{top}"/>'
                      f'<stop offset="1" stop-color="{bottom}"/></linearGradient>')
        path = " ".join(_path(polygon) for polygon in drawings.contours(layer.name))
        shapes.append(f'<path fill="url(#{layer.name})" d="{path}"/>')
    return shades, shapes


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
    """Write the desktop's icons into folder, the program's own into images; return the latter."""
    (folder / "tonquill.svg").write_text(svg(drawings), encoding="utf-8")
    (folder / "application-x-tonquill.svg").write_text(file_svg(drawings), encoding="utf-8")
    for size in DESKTOP_SIZES:
        picture(drawings, size).save(folder / f"tonquill-{size}.png", optimize=True)
    (images / "Tonquill.ico").write_bytes(ico(drawings))
    picture(drawings, 256).save(images / "tonquill-icon-256.png", optimize=True)
    return ["Tonquill.ico", "tonquill-icon-256.png"]
