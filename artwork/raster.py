"""Polygons to grey pictures: exact area coverage of every pixel."""

import math

from PIL import Image


def coverage(polygons, left, top, width, height, scale):
    """Coverage (0 to 1) of width x height pixels, rows from the top down.

    left and top are the drawing coordinates of the picture's upper left corner (y up), scale is
    pixels to a drawing unit. Polygons must not overlap; clockwise ones are holes.
    """
    sums = [[0.0] * (width + 2) for _ in range(height)]
    for polygon in polygons:
        points = [((x - left) * scale, (top - y) * scale) for x, y in polygon]
        for start, end in zip(points, points[1:] + points[:1]):
            _add_edge(sums, start, end, width, height)
    return [_running_row(row, width) for row in sums]


def _running_row(row, width):
    total, result = 0.0, []
    for value in row[:width]:
        total += value
        result.append(min(abs(total), 1.0))
    return result


def _add_edge(sums, start, end, width, height):
    """Enter what an edge changes of the coverage to its right, row by row."""
    (x0, y0), (x1, y1) = start, end
    if y0 == y1:
        return
    direction = 1.0
    if y0 > y1:
        x0, y0, x1, y1, direction = x1, y1, x0, y0, -1.0
    slope = (x1 - x0) / (y1 - y0)
    for row in range(max(math.floor(y0), 0), min(math.ceil(y1), height)):
        upper, lower = max(y0, row), min(y1, row + 1)
        if lower > upper:
            _add_span(sums[row], x0 + (upper - y0) * slope, x0 + (lower - y0) * slope,
                      direction * (lower - upper), width)


def _add_span(row, xa, xb, amount, width):
    """One edge within one row, from xa to xb: split at the pixel borders it crosses."""
    left, right = min(max(min(xa, xb), 0.0), width), min(max(max(xa, xb), 0.0), width)
    first, last = math.floor(left), math.floor(right)
    if first == last or right - left < 1e-12:
        share = 1.0 - (0.5 * (left + right) - first)
        row[first] += amount * share
        row[first + 1] += amount * (1.0 - share)
        return
    position = left
    for pixel in range(first, last + 1):
        stop = min(pixel + 1, right)
        part = amount * (stop - position) / (right - left)
        share = 1.0 - (0.5 * (position + stop) - pixel)
        row[pixel] += part * share
        row[pixel + 1] += part * (1.0 - share)
        position = stop


def grey_image(polygons, left, top, width, height, scale):
    """The polygons in black on white as an 8-bit grey image."""
    image = Image.new("L", (width, height))
    image.putdata([255 - round(255 * value)
                   for row in coverage(polygons, left, top, width, height, scale) for value in row])
    return image
